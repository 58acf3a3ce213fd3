// Any bytes as a pattern file, a triangle file and a stroke font: every stage that reads them ends.

#include <cstdint>
#include <filesystem>

#include "base/files.h"
#include "controls/forms.h"
#include "panels/dxf_export.h"
#include "panels/expansion.h"
#include "panels/hand_plot.h"
#include "panels/hpgl_export.h"
#include "panels/lettering.h"
#include "panels/leveling.h"
#include "program/start_up.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const bool started = [] {
    SetWorkingFolder(std::filesystem::temp_directory_path() / "tarve-fuzz");
    std::filesystem::create_directories(WorkingFolder());
    StartProgram();
    return true;
  }();
  static_cast<void>(started);
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  DxfPen pen;
  DxfOfPattern(text, pen);
  HpglOfPattern(text);
  HandPlotRows(text);
  LeveledPattern(text, FittedSlope(text));
  PanelPattern(Unfold(ReadTriangles(text)));
  WriteTextFile("pedit.fnt", text);
  std::string strokes;
  PlotText(strokes, "BH1", 0.25, 0, 0, 0);
  return 0;
}
