// The commands on nesting: parts laid out as a file says, then the button pressed that writes.

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <system_error>

#include "base/clock.h"
#include "base/files.h"
#include "base/platform.h"
#include "batch/commands.h"
#include "batch/nest_layout.h"
#include "batch/nest_placing.h"
#include "batch/report.h"
#include "controls/dialogs.h"
#include "controls/forms.h"
#include "hull/hull_model.h"
#include "nest/nest_model.h"
#include "panels/hand_plot.h"
#include "program/start_up.h"
#include "ui/pdf_pages.h"

namespace fs = std::filesystem;

namespace {

std::optional<std::string> ReadInput(const std::string& name, const char* what) {
  const fs::path file = FindFile(name);
  if (file.empty()) {
    Complain(name + ": no such " + what);
    return std::nullopt;
  }
  std::optional<std::string> text = ReadTextFile(file);
  if (!text) {
    ComplainAboutFiles();
  }
  return text;
}

std::string NamesOfParts() {
  std::string names;
  for (int p = 1; p <= NestPartCount; ++p) {
    names += (p > 1 ? ", " : "") + Quoted(NestName(p));
  }
  return names;
}

/// Without a name of its own in the arguments the hull is the one that the table was made of.
void NameHull(const std::string& name, const std::string& table) {
  const std::string known = name.empty() ? HullOfHandPlot(table) : name;
  if (!known.empty()) {
    HullFileName = known;
  }
}

/// Nests as a user would in a program just started.
bool LayOut(const NestArguments& arguments) {
  const std::optional<std::string> table = ReadInput(arguments.hand_plot, "hand plotting table");
  const std::optional<std::string> text = table ? ReadInput(arguments.layout, "layout") : std::nullopt;
  if (!table || !text) {
    return false;
  }
  NestLayout layout;
  try {
    layout = ReadNestLayout(*text);
  } catch (const std::invalid_argument& error) {
    Complain(arguments.layout + ": " + error.what());
    return false;
  }
  StartProgram();
  ReadHandPlot(*table);
  if (NestPartCount == 0) {
    Complain(arguments.hand_plot + ": expected a hand plotting table such as handplot.txt, found no parts");
    return false;
  }
  NameHull(arguments.hull, *table);
  const std::string missing = LayOutParts(layout);
  if (!missing.empty()) {
    Complain(arguments.layout + ": " + Quoted(missing) + ": no such part in " + arguments.hand_plot +
             "; expected one of " + NamesOfParts());
  }
  return missing.empty();
}

/// From here on both spellings of a path are one.
NestArguments WithOwnPaths(NestArguments arguments) {
  for (std::string* path : {&arguments.hand_plot, &arguments.layout, &arguments.out}) {
    *path = WithOwnSeparators(*path);
  }
  return arguments;
}

/// Whether a file to write is one of those read.
bool WouldReplaceInput(const NestArguments& arguments) {
  for (const std::string& input : {arguments.hand_plot, arguments.layout}) {
    std::error_code failed;
    if (fs::equivalent(FindFile(arguments.out), FindFile(input), failed)) {
      Complain(arguments.out + ": expected a file to write other than " + input + ", which is read");
      return true;
    }
  }
  return false;
}

/// Everything up to the button that writes.
bool Prepare(const NestArguments& arguments) {
  WatchFiles();
  FixClock(arguments.date, arguments.time);
  return !WouldReplaceInput(arguments) && LayOut(arguments);
}

int Finish() {
  const bool done = CommitChanges();
  if (ComplainAboutFiles() || !done) {
    return CouldNot;
  }
  ListFiles(WorkingFolder());
  return Done;
}

}  // namespace

int RunNestTable(const NestArguments& typed) {
  const NestArguments arguments = WithOwnPaths(typed);
  if (!Prepare(arguments)) {
    return CouldNot;
  }
  InputBox = [&](const std::string&, const std::string&, const std::string&) { return arguments.out; };
  HoldBackChanges();
  Form2.Command8.Click();
  return Finish();
}

int RunNestPrint(const NestPrintArguments& typed) {
  const NestArguments arguments = WithOwnPaths(typed.nest);
  if (!Prepare(arguments)) {
    return CouldNot;
  }
  std::string pdf;
  Form2.Print = [&pdf](const PrintJob& job) { pdf = PdfOfPages(job); };
  (typed.fit == "prn" ? Form2.Command9 : Form2.Command10).Click();
  if (pdf.empty()) {
    return Complain(arguments.out + ": the pages could not be painted");
  }
  HoldBackChanges();
  WriteTextFile(arguments.out, pdf);
  return Finish();
}
