// Everything that one click on Save creates of a thirty-chine hull with all options on, against a
// plain write of the same bytes to the same files. Both start in an empty folder.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>
#include <vector>

#include "base/files.h"
#include "bench_hull.h"
#include "panels/save_and_create.h"
#include "plain_write.h"

namespace fs = std::filesystem;

namespace {

struct Output {
  fs::path path;
  std::string bytes;
};

void SetUpChain() {
  SetWorkingFolder(BenchFolder());
  MakeThirtyChines();
  HullFileName = "bench.tvh";
  Form3.Text6.Text = BenchFolder().string();
  for (CheckBox* box : {&Form3.Check1, &Form3.Check2, &Form3.Check3, &Form3.Check4, &Form3.Check5,
                        &Form3.Check7, &Form3.Check8, &Form3.Check9, &Form3.Check10}) {
    box->Value = true;
  }
  for (std::size_t i = 0; i < Form3.FrameText.size(); ++i) {
    Form3.FrameText[i].Text = std::to_string(15 * (i + 1));
  }
}

/// Every file of one run.
std::vector<Output> OutputsOfChain() {
  SetUpChain();
  EmptyBenchFolder();
  SaveAndCreate();
  std::vector<Output> outputs;
  for (const fs::directory_entry& entry : fs::directory_iterator(BenchFolder())) {
    outputs.push_back({entry.path(), ReadTextFile(entry.path()).value()});
  }
  return outputs;
}

void WholeChain(benchmark::State& state) {
  SetUpChain();
  for (auto _ : state) {
    state.PauseTiming();
    EmptyBenchFolder();
    state.ResumeTiming();
    SaveAndCreate();
  }
}
BENCHMARK(WholeChain)->Unit(benchmark::kMillisecond)->UseRealTime();

void ChainPlainWrite(benchmark::State& state) {
  static const std::vector<Output> outputs = OutputsOfChain();
  for (auto _ : state) {
    state.PauseTiming();
    EmptyBenchFolder();
    state.ResumeTiming();
    for (const Output& output : outputs) {
      PlainWrite(output.path, output.bytes);
    }
  }
  state.counters["files"] = static_cast<double>(outputs.size());
}
BENCHMARK(ChainPlainWrite)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
