#include "panels/dxf_export.h"

#include <array>
#include <cstring>

#include "base/files.h"
#include "base/number_text.h"
#include "base/text_lines.h"
#include "controls/forms.h"
#include "hull/hull_model.h"
#include "hull/plot_scale.h"
#include "panels/dxf_text.h"
#include "panels/part_list.h"

namespace {

/// The text of one coordinate. Most points end one line and start the next, so texts are kept, and
/// in a place of fixed size, so that copying one takes no call.
class CoordinateText {
 public:
  void Set(double value) {
    if (HasValue(value)) {
      size_ = WritePrintText(text_.data(), value);
    }
  }
  /// Writes NumberRoom characters, of which the returned number count.
  std::size_t CopyTo(char* to) const {
    std::memcpy(to, text_.data(), NumberRoom);
    return size_;
  }

 private:
  std::array<char, NumberRoom> text_{' ', '0', ' '};
  std::size_t size_ = 3;
};

struct PointText {
  CoordinateText x;
  CoordinateText y;

  void Read(std::string_view line) {
    const PlotPoint p = ReadMove(line);
    x.Set(p.x);
    y.Set(p.y);
  }
};

/// Puts a record together and appends it at once, since a drawing has many thousands of them.
class Record {
 public:
  template <std::size_t Size>
  Record& Put(const char (&part)[Size]) {
    std::memcpy(at_, part, Size - 1);
    at_ += Size - 1;
    return *this;
  }
  Record& Put(const CoordinateText& value) {
    at_ += value.CopyTo(at_);
    return *this;
  }
  void AppendTo(std::string& out) const {
    out.append(text_.data(), static_cast<std::size_t>(at_ - text_.data()));
  }

 private:
  // Four coordinates, the last with its whole room, and the words around them.
  std::array<char, 4 * NumberRoom + 64> text_;
  char* at_ = text_.data();
};

void PutDxfLine(std::string& out, const PointText& from, const PointText& to) {
  Record record;
  record.Put("  0\r\nLINE\r\n  8\r\n0\r\n 10\r\n").Put(from.x).Put("\r\n 20\r\n").Put(from.y);
  record.Put("\r\n 11\r\n").Put(to.x).Put("\r\n 21\r\n").Put(to.y).Put("\r\n").AppendTo(out);
}

void PutVertex(std::string& out, const PointText& at) {
  Record record;
  record.Put("  0\r\nVERTEX\r\n  8\r\n0\r\n 10\r\n")
      .Put(at.x)
      .Put("\r\n 20\r\n")
      .Put(at.y)
      .Put("\r\n")
      .AppendTo(out);
}

/// The run of points behind a "start_spline" line. It doesn't depend on the pen.
void PutSplineRun(std::string& out, TextReader& in, PointText& current) {
  std::string_view line;
  PointText first;
  if (in.ReadLine(line)) {
    first.Read(line);
  }
  out += DxfPolyline;
  PutVertex(out, first);
  while (in.ReadLine(line) && !Contains(line, "end_spline")) {
    current.Read(line);
    PutVertex(out, current);
  }
  out += DxfPolylineEnd;
}

}  // namespace

std::string DxfOfPattern(std::string_view pattern, DxfPen& pen) {
  std::string out(DxfFileHead);
  out.reserve(pattern.size() * 6);
  PointText last;
  PointText current;
  TextReader in(pattern);
  std::string_view line;
  while (in.ReadLine(line)) {
    const bool names_pen = Contains(line, "pen");
    if (names_pen && Contains(line, "penup")) {
      pen.down = false;
    } else if (names_pen && Contains(line, "pendown")) {
      pen.down = true;
    } else if (Contains(line, "acut") || Contains(line, "aline")) {
      last = current;
      current.Read(line);
      if (pen.down) {
        PutDxfLine(out, last, current);
      }
    } else if (Contains(line, "start_spline")) {
      PutSplineRun(out, in, current);
    }
  }
  out += DxfFileTail;
  return out;
}

void ExportDxf() {
  DeleteFiles("chine", ".dxf");
  ReadPlotScale();
  DxfPen pen;
  for (const std::string& name : ExportedParts()) {
    const std::string output = ExportPath + name + ".dxf";
    Form1.StatusBar1.Panels[1] = "Exporting to DXF..." + output;
    WriteTextFile(output, DxfOfPattern(ReadOrEmpty(name + ".uc"), pen));
  }
  Form1.StatusBar1.Panels[1] = "Done...";
}
