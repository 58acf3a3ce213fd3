#pragma once
// What the targets about the row of sheets share: the promises on its table and on its pages.

#include "base/text_lines.h"
#include "controls/forms.h"
#include "fuzz_program.h"
#include "nest/nest_model.h"
#include "nest/nest_pages.h"
#include "nest/nest_table.h"

/// Behind each rule of the table for marking out stand the rows of a part, up to an empty line: no more
/// than an outline has points, and each a place.
inline void ExpectNestTable(std::string_view table) {
  const std::string rule(63, '-');
  TextReader in(table);
  std::string_view line;
  while (in.ReadLine(line)) {
    int rows = 0;
    for (bool more = line == rule; more && in.ReadLine(line) && !line.empty(); ++rows) {
      Expect(line.find_first_not_of("0123456789-+.E\"xbymm ") == std::string_view::npos);
    }
    Expect(rows <= MostNestPoints);
  }
}

/// Paper that is twice as wide as high. Every page has a scale to begin with, and a frame within it.
class Paper : public DrawSurface {
 public:
  void Scale(double x1, double y1, double x2, double y2) override {
    Expect(HasValue(x1) && HasValue(y1) && x1 < x2 && y1 > y2);
    left_ = x1;
    top_ = y1;
    right_ = x2;
    bottom_ = y2;
  }
  void Box(double x1, double y1, double x2, double y2, int /*colour*/) override {
    const double hair = 1e-9 * (right_ - left_);  // what rounding may lack
    Expect(x1 >= left_ - hair && x2 <= right_ + hair && y1 <= top_ + hair && y2 >= bottom_ - hair);
    ++frames;
  }
  void Line(double x1, double y1, double x2, double y2, int /*colour*/) override {
    Expect(HasValue(x1) && HasValue(y1) && HasValue(x2) && HasValue(y2));
  }
  double TextWidth(std::string_view text) const override {
    return static_cast<double>(text.size()) * ScaleWidth() / 100;
  }
  double Width() const override { return 200; }
  double Height() const override { return 100; }
  double ScaleLeft() const override { return left_; }
  double ScaleWidth() const override { return right_ - left_; }

  int frames = 0;

 private:
  double left_ = 0;
  double top_ = 0;
  double right_ = 0;
  double bottom_ = 0;
};

inline void ExpectPages() {
  for (const NestFit fit : {NestFit::Print, NestFit::Prn}) {
    const PrintJob job = NestPages(fit);
    Paper paper;
    for (int page = 1; page <= job.pages; ++page) {
      job.paint(page, paper);
    }
    Expect(paper.frames == SheetCount());
  }
}
