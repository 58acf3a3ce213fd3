// Any bytes as a hull file: the reader ends, the tables stay finite, and a saved hull that is opened
// and saved again keeps its chines and offsets to the letter.

#include "controls/forms.h"
#include "fuzz_program.h"
#include "hull/hull_file.h"
#include "hull/hull_model.h"

namespace {

/// The count of chines and the offsets of a saved hull.
std::string OffsetsOf(const std::string& saved) {
  TextReader in(saved);
  std::string_view line;
  std::string offsets;
  for (int i = 0; i < 1 + 3 * Bulkheads * NumChines && in.ReadLine(line); ++i) {
    PutLine(offsets, line);
  }
  return offsets;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const FuzzProgram program;
  WriteTextFile("boat.tvh", TextOf(data, size));
  NormalizeHullFile("boat.tvh");
  LoadHullFile("boat.tvh", size % 2 == 0 ? HullReader::FileList : HullReader::StartUp);
  Form1.Refresh();
  Expect(NumChines >= 2 && NumChines <= MostChines);
  for (int c = 1; c <= NumChines; ++c) {
    for (int s = 1; s <= Stations; ++s) {
      Expect(HasValue(HullPts(1, s, c)) && HasValue(HullPts(2, s, c)) && HasValue(HullPts(3, s, c)));
    }
  }
  WriteHullFile("boat.tvh");
  const std::string saved = ReadOrEmpty("boat.tvh");
  LoadHull(saved, HullReader::StartUp);
  Form1.Refresh();
  Expect(OffsetsOf(HullText()) == OffsetsOf(saved));
  return 0;
}
