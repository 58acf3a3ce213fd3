#include "monkey/diary.h"

#include <atomic>
#include <climits>
#include <cstddef>
#include <deque>
#include <iostream>

namespace {

constexpr std::size_t ActsKept = 15;

std::deque<std::string> latest;
std::string first_fault;
std::atomic<int> acts = 0;  // the watch for hangs reads it as well
int first_told = INT_MAX;

}  // namespace

void StartDiary(int tell_from) {
  latest.assign(1, "start");
  first_fault.clear();
  acts = 0;
  first_told = tell_from;
}

int StartAct() {
  ++acts;
  latest.push_back("act " + std::to_string(acts) + ":");
  if (latest.size() > ActsKept) {
    latest.pop_front();
  }
  return acts;
}

int ActCount() {
  return acts;
}

void Tell(const std::string& words) {
  latest.back() += " " + words;
  if (acts >= first_told) {
    std::cout << "act " << acts << ": " << words << std::endl;
  }
}

std::string LatestActs() {
  std::string text;
  for (const std::string& act : latest) {
    text += act + "\n";
  }
  return text;
}

void NoteFault(const std::string& what) {
  if (first_fault.empty()) {
    first_fault = what;
  }
}

const std::string& FirstFault() {
  return first_fault;
}
