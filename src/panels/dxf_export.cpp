#include "panels/dxf_export.h"

#include "base/files.h"
#include "base/number_text.h"
#include "base/text_lines.h"
#include "controls/forms.h"
#include "hull/hull_model.h"
#include "hull/plot_scale.h"
#include "panels/dxf_text.h"
#include "panels/part_list.h"

namespace {

/// A point as the texts of its coordinates: most points end one line and start the next.
struct PointText {
  static void Set(std::string& text, double value) {
    if (HasValue(value)) {
      text.clear();
      AppendPrintText(text, value);
    }
  }

  std::string x = " 0 ";
  std::string y = " 0 ";

  void Read(std::string_view line) {
    const PlotPoint p = ReadMove(line);
    Set(x, p.x);
    Set(y, p.y);
  }
};

void PutGroup(std::string& out, std::string_view code, std::string_view value) {
  out += code;
  out += value;
  out += LineEnd;
}

void PutDxfLine(std::string& out, const PointText& from, const PointText& to) {
  out += DxfLine;
  PutGroup(out, " 10\r\n", from.x);
  PutGroup(out, " 20\r\n", from.y);
  PutGroup(out, " 11\r\n", to.x);
  PutGroup(out, " 21\r\n", to.y);
}

void PutVertex(std::string& out, const PointText& at) {
  out += DxfVertex;
  PutGroup(out, " 10\r\n", at.x);
  PutGroup(out, " 20\r\n", at.y);
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
    if (Contains(line, "penup")) {
      pen.down = false;
    } else if (Contains(line, "pendown")) {
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
