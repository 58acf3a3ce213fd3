// One step of a node's drag: from the mouse's move to the end of the repaint of all four surfaces, for a
// hull of thirty chines on a surface of 1600 x 1000. Its peer is the toolkit's painter that clears the
// same images and draws the same lines, known beforehand, in the same colours.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <array>
#include <memory>
#include <vector>

#include "bench_hull.h"
#include "ui/palette.h"
#include "ui/picture_surface.h"

namespace {

constexpr QSize MainSize(1600, 1000);
constexpr QSize ThumbnailSize(136, 100);

struct ColouredLine {
  QLineF line;
  int colour;
};

/// Keeps what a surface of a size is asked to draw, in its pixels: every box as four lines, every dot as
/// a line of no length.
class LineCollector : public DrawSurface {
 public:
  explicit LineCollector(QSize size) : size_(size) {}

  void Cls() override { lines.clear(); }
  void Scale(double x1, double y1, double x2, double y2) override {
    left_ = x1;
    top_ = y1;
    right_ = x2;
    bottom_ = y2;
  }
  void Line(double x1, double y1, double x2, double y2, int colour) override {
    current_ = Pixel(x2, y2);
    lines.push_back({QLineF(Pixel(x1, y1), current_), colour});
  }
  void LineTo(double x2, double y2, int colour) override {
    lines.push_back({QLineF(current_, Pixel(x2, y2)), colour});
    current_ = Pixel(x2, y2);
  }
  void Box(double x1, double y1, double x2, double y2, int colour) override {
    Line(x1, y1, x2, y1, colour);
    Line(x2, y1, x2, y2, colour);
    Line(x2, y2, x1, y2, colour);
    Line(x1, y2, x1, y1, colour);
  }
  void PSet(double x, double y, int colour) override { Line(x, y, x, y, colour); }
  double Width() const override { return size_.width(); }
  double Height() const override { return size_.height(); }

  std::vector<ColouredLine> lines;

 private:
  QPointF Pixel(double x, double y) const {
    return {(x - left_) / (right_ - left_) * size_.width(), (y - top_) / (bottom_ - top_) * size_.height()};
  }

  QSize size_;
  double left_ = 0, right_ = 1, top_ = 1, bottom_ = 0;
  QPointF current_;
};

void NeedToolkit() {
  static int count = 1;
  static std::array<char, 6> name = {"bench"};
  static std::array<char*, 2> arguments = {name.data(), nullptr};
  if (QApplication::instance() == nullptr) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    new QApplication(count, arguments.data());  // lives as long as the program
  }
}

std::array<PictureBox*, 4> Pictures() {
  return {&Form1.Picture1[0], &Form1.Picture1[1], &Form1.Picture1[2], &Form1.Picture2};
}

QSize SizeOf(std::size_t picture) {
  return picture == 3 ? MainSize : ThumbnailSize;
}

/// A hull of thirty chines in the section view, with the mouse on a node of bulkhead 2.
void StartDrag() {
  MakeThirtyChines();
  Form1.Sections.Checked = true;
  Form1.Refresh();
  Form1.Picture2.MouseDown(1, OffX(15, 2), OffY(15, 2));
}

void DragStep(benchmark::State& state) {
  NeedToolkit();
  StartDrag();
  std::array<std::unique_ptr<PictureSurface>, 4> surfaces;
  for (std::size_t i = 0; i < surfaces.size(); ++i) {
    surfaces[i] = std::make_unique<PictureSurface>(*Pictures()[i], nullptr);
    surfaces[i]->resize(SizeOf(i));
    surfaces[i]->show();
  }
  QApplication::processEvents();
  double step = 0;
  for (auto _ : state) {
    step = step > 0.5 ? 0 : step + 0.01;
    Form1.Picture2.MouseMove(1, 30 + step, 20 + step);
    for (const auto& surface : surfaces) {
      surface->Finish();
    }
  }
  for (PictureBox* picture : Pictures()) {
    static DrawSurface nothing;
    *picture = &nothing;
  }
}
BENCHMARK(DragStep);

void DragLines(benchmark::State& state, bool clear) {
  NeedToolkit();
  StartDrag();
  std::vector<LineCollector> collectors;
  std::vector<QImage> images;
  for (std::size_t i = 0; i < 4; ++i) {
    collectors.emplace_back(SizeOf(i));
    images.emplace_back(SizeOf(i), QImage::Format_RGB32);
    images.back().fill(Qt::white);
  }
  for (std::size_t i = 0; i < 4; ++i) {
    *Pictures()[i] = &collectors[i];
  }
  Form1.Picture2.MouseMove(1, 30.3, 20.3);
  for (auto _ : state) {
    for (std::size_t i = 0; i < 4; ++i) {
      if (clear) {
        images[i].fill(Qt::white);
      }
      QPainter painter(&images[i]);
      int colour = -2;
      for (const ColouredLine& line : collectors[i].lines) {
        if (line.colour != colour) {
          colour = line.colour;
          painter.setPen(PaletteColour(colour));
        }
        painter.drawLine(line.line);
      }
    }
  }
  StartProgram();  // lets go of the collectors
}
BENCHMARK_CAPTURE(DragLines, Cleared, true);
BENCHMARK_CAPTURE(DragLines, Only, false);

}  // namespace
