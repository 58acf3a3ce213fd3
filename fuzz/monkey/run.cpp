#include "monkey/run.h"

#include <climits>
#include <ctime>
#include <string>
#include <string_view>

#include "base/clock.h"
#include "base/text_lines.h"
#include "controls/forms.h"
#include "hull/hull_file.h"
#include "monkey/diary.h"
#include "monkey/faces.h"
#include "monkey/hands.h"
#include "monkey/round_trip.h"
#include "monkey/sandbox.h"
#include "monkey/state_check.h"
#include "monkey/texts.h"
#include "program/session.h"
#include "program/start_up.h"

namespace {

constexpr int ActsBetweenLooksAtFolders = 500;

SlowAct slowest;
std::uint64_t seed = 0;
std::clock_t act_began = 0;

void Act(Stream& stream);

void StartProgramAnew(Stream& stream) {
  ResetProgram();
  ShowFaces(stream, [&stream] { Act(stream); });
  Form_Load();
}

void CheckTime() {
  const std::clock_t now = std::clock();
  const double seconds = static_cast<double>(now - act_began) / CLOCKS_PER_SEC;
  if (seconds > slowest.seconds) {
    slowest = {seconds, seed, ActCount()};
  }
  if (seconds > MostSecondsAnAct) {
    NoteFault("the act took " + std::to_string(seconds) + " seconds");
  }
}

bool HullIsWritten() {
  return ReadWorkingFile("default.tvh") == HullText();
}

/// The program started anew holds the hull that was written: the one that a repaint would show, which
/// brings a heeled hull upright, too.
void StartFromWritten(Stream& stream) {
  const bool was_written = HullIsWritten();
  Form1.Refresh();
  const HullState written = TakeHullState();
  StartProgramAnew(stream);
  if (was_written) {
    Tell("; the hull is found again");
    CompareWithNow(written);
  }
}

/// Within a modal window an act runs inside of another: the time of both counts for itself.
void Act(Stream& stream) {
  if (!FirstFault().empty()) {
    return;
  }
  const int number = StartAct();
  act_began = std::clock();
  ActOnce(stream);
  if (ProgramEnded) {
    StartFromWritten(stream);
  }
  CheckState();
  CheckSurfaces();
  if (number % ActsBetweenLooksAtFolders == 0) {
    CheckFolders();
  }
  CheckTime();
  act_began = std::clock();
}

void ExpectSameText(std::string_view written, std::string_view now) {
  TextReader before(written);
  TextReader after(now);
  std::string_view line;
  std::string_view line_now;
  for (int number = 1; before.ReadLine(line); ++number) {
    after.ReadLine(line_now);
    // A rig box stays empty where its number was too large, and an empty one comes back as 0.
    const bool empty_box = line.empty() && line_now == "0";
    if (line != line_now && !empty_box) {
      NoteFault("line " + std::to_string(number) + " of a hull that was read is not written as it was: " +
                Quoted(std::string(line)) + ", then " + Quoted(std::string(line_now)));
      return;
    }
  }
}

/// The hull goes through the file twice: what was written is what was read, and what was read is written
/// the same.
void EndRun(Stream& stream) {
  Tell("; end of the run");
  AllowWriting();
  Form1.Timer1();
  if (!HullIsWritten()) {
    NoteFault("the clock ticked, and the hull is not written");
  }
  StartFromWritten(stream);
  const std::string text = HullText();
  Form1.Timer1();
  StartProgramAnew(stream);
  ExpectSameText(text, HullText());
  CheckState();
  CheckFolders();
}

}  // namespace

bool Run(const RunOrder& order) {
  seed = order.seed;
  Stream stream(seed);
  StartDiary(order.tell_from > 0 ? order.tell_from : INT_MAX);
  FixClock("11-16-2026", "12:34:56");
  MakeSandbox(stream);
  StartProgramAnew(stream);
  while (ActCount() < order.acts && FirstFault().empty()) {
    Act(stream);
  }
  if (FirstFault().empty()) {
    EndRun(stream);
  }
  RemoveSandbox();
  return FirstFault().empty();
}

const SlowAct& SlowestAct() {
  return slowest;
}
