// One pass of the hydrostatics of a thirty-chine hull with the waterplane's file, against a plain
// write of the same bytes to the same file; and the pass with its file held back in memory.

#include <benchmark/benchmark.h>

#include "base/files.h"
#include "bench_hull.h"
#include "hydro/hydrostatics.h"
#include "plain_write.h"

namespace {

void SetUpPass() {
  SetWorkingFolder(BenchFolder());
  MakeThirtyChines();
  WaterlineY = 12;
}

void HydroPass(benchmark::State& state) {
  SetUpPass();
  for (auto _ : state) {
    ComputeHydrostatics();
  }
}
BENCHMARK(HydroPass)->Unit(benchmark::kMicrosecond)->UseRealTime();

void HydroPassAlone(benchmark::State& state) {
  SetUpPass();
  HoldBackChanges();
  for (auto _ : state) {
    ComputeHydrostatics();
  }
  DropChanges();
}
BENCHMARK(HydroPassAlone)->Unit(benchmark::kMicrosecond)->UseRealTime();

void HydroPlainWrite(benchmark::State& state) {
  SetUpPass();
  ComputeHydrostatics();
  const std::string waterplane = ReadOrEmpty("watrplne.uc");
  for (auto _ : state) {
    PlainWrite(BenchFolder() / "watrplne.uc", waterplane);
  }
}
BENCHMARK(HydroPlainWrite)->Unit(benchmark::kMicrosecond)->UseRealTime();

}  // namespace
