// Any bytes as a hull file on its way through everything that is made of a hull: all patterns with all
// options, tables, exports, and the hydrostatics. It ends, and its patterns are such as readers know.

#include "batch/hull_check.h"
#include "controls/forms.h"
#include "fuzz_program.h"
#include "hull/hull_file.h"
#include "hull/hull_model.h"
#include "hydro/hydrostatics.h"
#include "panels/dxf_text.h"
#include "panels/save_and_create.h"

namespace {

void CheckAllBoxes() {
  for (CheckBox* box : {&Form3.Check1, &Form3.Check2, &Form3.Check3, &Form3.Check4, &Form3.Check5,
                        &Form3.Check7, &Form3.Check8, &Form3.Check9, &Form3.Check10}) {
    box->Value = true;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const FuzzProgram program;
  const std::string hull = WithPoints(TextOf(data, size));
  const HullCheck check = CheckHull(hull);
  Expect(check.error.empty() || check.line > 0);
  LoadHull(hull, HullReader::FileList);
  CheckAllBoxes();
  Form3.Text6.Text = "exports";
  HullFileName = "boat.tvh";
  SaveAndCreate();
  for (const char* name : {"bhead1", "frame1", "transom", "stem", "deck", "keel", "sole1", "chine1"}) {
    ExpectPattern(ReadOrEmpty(std::string(name) + ".uc"));
  }
  const std::string drawing = ReadOrEmpty("boat.dxf");
  Expect(drawing.starts_with(DxfFileHead) && drawing.ends_with(DxfFileTail));
  Expect(ReadOrEmpty("boat.tvh") == ReadOrEmpty("default.tvh"));
  WaterlineY = 7;
  ComputeHydrostatics();
  ExpectPattern(ReadOrEmpty("watrplne.uc"));
  return 0;
}
