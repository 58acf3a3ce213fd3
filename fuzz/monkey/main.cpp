// tarve-monkey: seeded streams of acts of a user against the program without a window. A run that finds
// a fault tells the seed, the act and the latest acts in words; the same seed and number of acts repeat
// it. A crash and a hang are told in the same way.
//
//   tarve-monkey --seed N --streams S --acts M [--from K]
//
// runs the seeds N to N + S - 1 with M acts each, and tells each act from K on as it happens.

#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <string_view>
#include <thread>

#include "monkey/diary.h"
#include "monkey/run.h"

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/common_interface_defs.h>
#endif

namespace {

using namespace std::chrono_literals;

/// Far beyond what an act may take, on the busiest of machines: it will not come back.
constexpr int HangSeconds = 120;

RunOrder order;

void TellFault(const std::string& fault) {
  std::cerr << "\nFault: " << fault << "\nRepeat with: tarve-monkey --seed " << order.seed << " --acts "
            << ActCount() << " --from 1\n"
            << LatestActs() << std::flush;
}

void OnCrash() {
  TellFault("crash");
}

void OnSignal(int signal) {
  OnCrash();
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

void TellCrashes() {
#if defined(__SANITIZE_ADDRESS__)
  __sanitizer_set_death_callback(OnCrash);
#else
  std::signal(SIGSEGV, OnSignal);
  std::signal(SIGFPE, OnSignal);
#endif
  std::signal(SIGABRT, OnSignal);
}

/// Ends the program when the count of acts has stood still for too long.
void WatchForHangs(const std::atomic<bool>& done) {
  int seen = -1;
  int still = 0;
  while (!done) {
    std::this_thread::sleep_for(1s);
    const int acts = ActCount();
    still = acts == seen ? still + 1 : 0;
    seen = acts;
    if (still > HangSeconds) {
      TellFault("an act doesn't end");
      std::_Exit(1);
    }
  }
}

int NumberAfter(int argc, char** argv, std::string_view option, int otherwise) {
  for (int i = 1; i + 1 < argc; ++i) {
    if (argv[i] == option) {
      return std::atoi(argv[i + 1]);
    }
  }
  return otherwise;
}

int RunAll(int streams) {
  for (int stream = 0; stream < streams; ++stream) {
    if (!Run(order)) {
      TellFault(FirstFault());
      return 1;
    }
    ++order.seed;
  }
  const SlowAct& slow = SlowestAct();
  std::cout << streams << " streams of " << order.acts << " acts; the slowest took " << slow.seconds
            << " s, act " << slow.act << " of seed " << slow.seed << "\n";
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  order.seed = static_cast<std::uint64_t>(NumberAfter(argc, argv, "--seed", 1));
  order.acts = NumberAfter(argc, argv, "--acts", 1000);
  order.tell_from = NumberAfter(argc, argv, "--from", 0);
  TellCrashes();
  std::atomic<bool> done = false;
  std::thread watch([&done] { WatchForHangs(done); });
  const int status = RunAll(NumberAfter(argc, argv, "--streams", 1));
  done = true;
  watch.join();
  return status;
}
