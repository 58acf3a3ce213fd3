// Any bytes as a hull file: the reader ends, the tables stay finite, and what is saved reads back.

#include <cstdint>
#include <cstdlib>

#include "controls/forms.h"
#include "hull/hull_file.h"
#include "hull/hull_model.h"
#include "program/start_up.h"

namespace {

void Expect(bool holds) {
  if (!holds) {
    std::abort();
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  StartProgram();
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  LoadHull(WithPoints(text), size % 2 == 0 ? HullReader::FileList : HullReader::StartUp);
  Form1.Refresh();
  Expect(NumChines >= 2 && NumChines <= MostChines);
  for (int c = 1; c <= NumChines; ++c) {
    for (int s = 1; s <= Stations; ++s) {
      Expect(HasValue(HullPts(1, s, c)) && HasValue(HullPts(2, s, c)) && HasValue(HullPts(3, s, c)));
    }
  }
  const std::string saved = HullText();
  LoadHull(saved, HullReader::StartUp);
  Form1.Refresh();
  Expect(HullText().size() >= saved.size() / 2);
  return 0;
}
