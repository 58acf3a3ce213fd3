// Runs the benchmarks interleaved and prints their ratios. Only ratios taken in one run mean
// anything; they are shown, and no time makes the program fail.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "plain_write.h"

namespace {

struct Ratio {
  const char* title;
  const char* ours;
  const char* other;
  double wanted;
};

constexpr Ratio Ratios[] = {
    {"hull splines / GSL", "HullSplines", "GslSplines", 0.5},
    {"hull splines / GSL, its tables kept", "HullSplines", "GslSplinesKept", 0.5},
    {"whole chain / plain write", "WholeChain", "ChainPlainWrite", 5},
    {"hydrostatic pass / plain write", "HydroPass", "HydroPlainWrite", 1.5},
    {"DXF export / plain write", "DxfExport", "DxfPlainWrite", 8},
    {"drag step / painter's lines", "DragStep", "DragLines/Cleared", 1.3},
    {"drag step / painter's lines, uncleared", "DragStep", "DragLines/Only", 1.3},
    {"DXF export / r12writer", "DxfExport", "DxfR12Writer", 0.25},
};

/// Keeps the median of each benchmark in seconds: of real time where the disk takes part, else of CPU
/// time, because the machine may be shared.
class MedianReporter : public benchmark::ConsoleReporter {
 public:
  std::map<std::string, double> medians;

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.aggregate_name == "median" && !run.error_occurred) {
        const double time =
            run.run_name.time_type.empty() ? run.GetAdjustedCPUTime() : run.GetAdjustedRealTime();
        medians[run.run_name.function_name] = time / benchmark::GetTimeUnitMultiplier(run.time_unit);
      }
    }
    ConsoleReporter::ReportRuns(runs);
  }
};

/// A ratio is left out if one of its two benchmarks was left out or failed.
void PrintRatios(const std::map<std::string, double>& medians) {
  std::puts("\nRatios of the medians");
  for (const Ratio& ratio : Ratios) {
    if (medians.contains(ratio.ours) && medians.contains(ratio.other)) {
      const double value = medians.at(ratio.ours) / medians.at(ratio.other);
      std::printf("%-38s %7.3f  (wanted <= %g)\n", ratio.title, value, ratio.wanted);
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  std::string defaults[] = {"--benchmark_enable_random_interleaving=true", "--benchmark_repetitions=15",
                            "--benchmark_min_time=0.05", "--benchmark_report_aggregates_only=true"};
  std::vector<char*> arguments = {argv[0]};
  for (std::string& argument : defaults) {
    arguments.push_back(argument.data());
  }
  arguments.insert(arguments.end(), argv + 1, argv + argc);  // what the user gives overrides them
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) {
    return 1;
  }
  MedianReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  PrintRatios(reporter.medians);
  RemoveBenchFolder();
}
