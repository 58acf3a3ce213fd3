// Any bytes as a hand plotting table: it is read, laid out, tidied, painted and written, and ends.

#include <cstdint>
#include <filesystem>

#include "base/files.h"
#include "controls/forms.h"
#include "nest/nest_model.h"
#include "nest/nest_pages.h"
#include "nest/nest_table.h"
#include "program/start_up.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const bool started = [] {
    SetWorkingFolder(std::filesystem::temp_directory_path() / "tarve-fuzz");
    std::filesystem::create_directories(WorkingFolder());
    StartProgram();
    return true;
  }();
  static_cast<void>(started);
  ReadHandPlot({reinterpret_cast<const char*>(data), size});
  for (int row = 0; row < NestPartCount; ++row) {
    Form2.List1.SetListIndex(row);
    Form2.Command5.Click();
    Form2.Command3.Click();
  }
  Form2.Picture1.MouseUp(1, 0, 0);
  Form2.Picture1.MouseMove(0, 10, 10);
  NestTableText();
  DrawSurface paper;
  NestPages(NestFit::Print).paint(1, paper);
  return 0;
}
