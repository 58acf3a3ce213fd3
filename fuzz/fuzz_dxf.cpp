// Any bytes as a pattern file on its way to DXF: the drawing is whole, and each of its groups is one
// that a reader of the format takes.

#include "base/number_text.h"
#include "base/skipped_statement.h"
#include "fuzz_program.h"
#include "panels/dxf_export.h"
#include "panels/dxf_text.h"

namespace {

bool IsCoordinateCode(std::string_view code) {
  return code == " 10" || code == " 20" || code == " 11" || code == " 21";
}

bool IsName(std::string_view value) {
  for (const char* name : {"SECTION", "LINE", "POLYLINE", "VERTEX", "SEQEND", "ENDSEC", "EOF"}) {
    if (value == name) {
      return true;
    }
  }
  return false;
}

void ExpectGroup(std::string_view code, std::string_view value) {
  if (IsCoordinateCode(code)) {
    Expect(NumericLength(value) > 0 && HasValue(NumberOf(value)));
  } else if (code == "  0") {
    Expect(IsName(value));
  } else {
    Expect((code == "  2" && value == "ENTITIES") || (code == "  8" && value == "0") ||
           (code == " 66" && value == "     1"));
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const FuzzProgram program;
  DxfPen pen;
  pen.down = size % 2 == 1;  // as the file before left it
  const std::string drawing = DxfOfPattern(TextOf(data, size), pen);
  Expect(drawing.starts_with(DxfFileHead) && drawing.ends_with(DxfFileTail));
  TextReader in(drawing);
  std::string_view code;
  std::string_view value;
  while (in.ReadLine(code)) {
    Expect(in.ReadLine(value));
    ExpectGroup(code, value);
  }
  return 0;
}
