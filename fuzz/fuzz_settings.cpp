// Any bytes as the settings file: what was read once is written and read again without a change.

#include "base/platform.h"
#include "fuzz_program.h"
#include "hull/hull_model.h"
#include "panels/save_dialog.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const FuzzProgram program;
  WriteTextFile("hull.dat", TextOf(data, size));
  ReadSaveSettings();
  Expect(ExportPath.empty() || ExportPath.back() == PathSeparator);
  WriteSaveSettings();
  const std::string saved = ReadOrEmpty("hull.dat");
  const std::string export_path = ExportPath;
  ReadSaveSettings();
  WriteSaveSettings();
  Expect(ReadOrEmpty("hull.dat") == saved);
  Expect(ExportPath == export_path);
  return 0;
}
