// The DXF export of a pattern of 100,000 lines, from file to file, against a plain write of the
// drawing and against r12writer of ezdxf, which writes a LINE for each of the same moves.

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <string>

#include "base/files.h"
#include "base/text_lines.h"
#include "hull/plot_scale.h"
#include "panels/dxf_export.h"
#include "plain_write.h"

namespace fs = std::filesystem;

namespace {

constexpr int Lines = 100000;

fs::path PatternPath() {
  return BenchFolder() / "lines.uc";
}

/// A curve that winds over a sheet of eight feet by four.
std::string PatternOfLines() {
  std::string out;
  PutFlatHead(out);
  PutMove(out, 0, 0);
  PutLine(out, "0 pendown");
  for (int i = 1; i <= Lines; ++i) {
    const double t = i * 0.001;
    PutMove(out, 48 + 48 * std::sin(3.1 * t), 24 + 24 * std::cos(4.3 * t));
  }
  PutLine(out, "0 penup");
  PutLine(out, "end_plot");
  return out;
}

void SetUpLines() {
  SetWorkingFolder(BenchFolder());
  PlotXScale = PlotYScale = 500;
  PlainWrite(PatternPath(), PatternOfLines());
}

void RemoveDrawing(benchmark::State& state) {
  state.PauseTiming();
  fs::remove(BenchFolder() / "lines.dxf");
  state.ResumeTiming();
}

void DxfExport(benchmark::State& state) {
  SetUpLines();
  for (auto _ : state) {
    RemoveDrawing(state);
    DxfPen pen;
    WriteTextFile("lines.dxf", DxfOfPattern(ReadTextFile(PatternPath()).value(), pen));
  }
}
BENCHMARK(DxfExport)->Unit(benchmark::kMillisecond)->UseRealTime();

void DxfPlainWrite(benchmark::State& state) {
  SetUpLines();
  DxfPen pen;
  const std::string drawing = DxfOfPattern(PatternOfLines(), pen);
  for (auto _ : state) {
    RemoveDrawing(state);
    PlainWrite(BenchFolder() / "lines.dxf", drawing);
  }
}
BENCHMARK(DxfPlainWrite)->Unit(benchmark::kMillisecond)->UseRealTime();

/// The CPU seconds that the script prints, without the start of the interpreter. 0 if it fails.
double SecondsOfR12Writer() {
  const std::string command =
      std::string("\"" TARVE_BENCH_PYTHON "\" \"" TARVE_BENCH_SOURCE "/r12_lines.py\" \"") +
      PatternPath().string() + "\" \"" + (BenchFolder() / "r12.dxf").string() + "\"";
  double seconds = 0;
  if (std::FILE* const output = popen(command.c_str(), "r")) {
    const bool read = std::fscanf(output, "%lf", &seconds) == 1;
    seconds = pclose(output) == 0 && read ? seconds : 0;
  }
  return seconds;
}

void DxfR12Writer(benchmark::State& state) {
  SetUpLines();
  for (auto _ : state) {
    const double seconds = SecondsOfR12Writer();
    if (seconds <= 0) {
      state.SkipWithError("needs a Python with ezdxf, set by TARVE_BENCH_PYTHON");
      break;
    }
    state.SetIterationTime(seconds);
  }
}
BENCHMARK(DxfR12Writer)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
