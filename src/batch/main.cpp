// The command line program: its arguments, and the exit status 0 done, 1 could not do it, 2 usage.

#include <CLI/CLI.hpp>
#include <exception>
#include <functional>
#include <iostream>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>

#include "base/number_text.h"
#include "base/platform.h"
#include "base/skipped_statement.h"
#include "batch/commands.h"
#include "batch/report.h"

namespace {

/// Help that reads like the synopsis of a man page.
class SynopsisFormatter : public CLI::Formatter {
 public:
  explicit SynopsisFormatter(std::string synopsis) : synopsis_(std::move(synopsis)) { column_width(26); }

  std::string make_usage(const CLI::App* /*app*/, std::string /*name*/) const override {
    return "SYNOPSIS\n" + synopsis_ + "\n";
  }
  std::string make_description(const CLI::App* app) const override {
    const std::string name = app->get_parent() == nullptr ? "" : " " + app->get_name();
    return "NAME\n  tarve-batch" + name + " - " + app->get_description() + "\n\n";
  }
  std::string make_positionals(const CLI::App* /*app*/) const override { return {}; }

 private:
  std::string synopsis_;
};

/// Two digits of a date or time between two limits, at a place of the text.
bool PairIsWithin(const std::string& text, std::size_t at, int low, int high) {
  const auto is_digit = [&](std::size_t i) { return text[i] >= '0' && text[i] <= '9'; };
  const int value = (text[at] - '0') * 10 + (text[at + 1] - '0');
  return is_digit(at) && is_digit(at + 1) && value >= low && value <= high;
}

std::string CheckDate(const std::string& text) {
  const bool fits = text.size() == 10 && text[2] == '-' && text[5] == '-' && PairIsWithin(text, 0, 1, 12) &&
                    PairIsWithin(text, 3, 1, 31) && PairIsWithin(text, 6, 0, 99) &&
                    PairIsWithin(text, 8, 0, 99);
  return fits ? "" : "expected a date as MM-DD-YYYY, found " + text;
}

std::string CheckTime(const std::string& text) {
  const bool fits = text.size() == 8 && text[2] == ':' && text[5] == ':' && PairIsWithin(text, 0, 0, 23) &&
                    PairIsWithin(text, 3, 0, 59) && PairIsWithin(text, 6, 0, 59);
  return fits ? "" : "expected a time as HH:MM:SS, found " + text;
}

std::string CheckNumber(const std::string& text) {
  const bool fits = !text.empty() && NumericLength(text) == text.size() && HasValue(NumberOf(text)) &&
                    text.find_first_of("dD") == std::string::npos;
  return fits ? "" : "expected a number, found " + text;
}

/// For numbers that are tried on the hull: a bad one counts as one that it can't take.
std::string RefuseBadNumber(const std::string& text) {
  const std::string problem = CheckNumber(text);
  if (!problem.empty()) {
    throw std::invalid_argument(problem);
  }
  return {};
}

std::string CheckNotEmpty(const std::string& text) {
  return text.empty() ? "expected a name, found an empty one" : "";
}

void AddClock(CLI::App* command, std::string& date, std::string& time) {
  command->add_option("--date", date, "Date to write instead of today's")
      ->type_name("MM-DD-YYYY")
      ->check(CheckDate);
  command->add_option("--time", time, "Time to write instead of the clock's")
      ->type_name("HH:MM:SS")
      ->check(CheckTime);
}

constexpr const char* HullHelp =
    "\nHULL\n  A hull file (.tvh). Without it, the built-in hull. The file is only read.\n";

void AddPatterns(CLI::App& app, PatternsArguments& arguments, std::function<int()>& run) {
  CLI::App* const command = app.add_subcommand("patterns", "full-size patterns of a hull");
  command->formatter(std::make_shared<SynopsisFormatter>(
      "  tarve-batch patterns [HULL] [--into DIR] [--keel] [--deck] [--soles] [--stem]\n"
      "              [--spar] [--text] [--half-frames] [--frame Z]... [--dxf] [--hpgl]\n"
      "              [--export-path DIR] [--date MM-DD-YYYY] [--time HH:MM:SS]"));
  command->add_option("hull", arguments.hull)->check(CheckNotEmpty);
  command->add_option("--into", arguments.into, "Working folder, made if missing; the current one otherwise")
      ->type_name("DIR")
      ->check(CheckNotEmpty);
  command->add_flag("--keel", arguments.keel, "Bottom panel across the centre line at chine 1");
  command->add_flag("--deck", arguments.deck, "Deck panel across the centre line at the top chine");
  command->add_flag("--soles", arguments.soles, "Sole panels at chines 2 and 3");
  command->add_flag("--stem", arguments.stem, "Stem (bulkhead 0)");
  command->add_flag("--spar", arguments.spar, "Cut-out for a 2x4 spar in bulkheads and frames");
  command->add_flag("--text", arguments.text, "Lettering");
  command->add_flag("--half-frames", arguments.half_frames, "One side only of bulkheads, frames and transom");
  command
      ->add_option(
          "--frame", arguments.frames,
          "A frame Z inches aft of the stem (its sign doesn't count), up to eight; instead of the hull's own")
      ->type_name("Z")
      ->allow_extra_args(false)
      ->check(CheckNumber);
  command->add_flag("--dxf", arguments.dxf, "DXF copies of all patterns");
  command->add_flag("--hpgl", arguments.hpgl, "HPGL copies of all patterns");
  command
      ->add_option("--export-path", arguments.export_path,
                   "Folder for the copies, from the current one; the working folder otherwise")
      ->type_name("DIR")
      ->check(CheckNotEmpty);
  AddClock(command, arguments.date, arguments.time);
  command->footer(std::string(HullHelp) +
                  "\nEXAMPLE\n  tarve-batch patterns dory.tvh --into dory --deck --text --frame 40 --dxf\n");
  command->callback([&] {
    if (arguments.frames.size() > 8) {
      throw CLI::ValidationError("--frame", "expected at most eight frames");
    }
    run = [&arguments] { return RunPatterns(arguments); };
  });
}

void AddPoints(CLI::App& app, PointsArguments& arguments, std::function<int()>& run) {
  CLI::App* const command = app.add_subcommand("points", "the interpolated hull as a table");
  command->formatter(std::make_shared<SynopsisFormatter>("  tarve-batch points [HULL] [--format csv|json]"));
  command->add_option("hull", arguments.hull)->check(CheckNotEmpty);
  command->add_option("--format", arguments.format, "csv (the usual one) or json")
      ->type_name("FORMAT")
      ->check(CLI::IsMember({"csv", "json"}));
  command->footer(std::string(HullHelp) +
                  "\nEXAMPLE\n  tarve-batch points dory.tvh --format json > dory.json\n");
  command->callback([&] { run = [&arguments] { return RunPoints(arguments); }; });
}

void RequireOneGoal(const HydrostaticsArguments& arguments) {
  const bool range = arguments.from && arguments.to && arguments.step;
  const bool part_of_range = arguments.from || arguments.to || arguments.step;
  const int goals = (arguments.waterline ? 1 : 0) + (arguments.displacement ? 1 : 0) + (range ? 1 : 0);
  if (goals != 1 || range != part_of_range) {
    throw CLI::ValidationError("hydrostatics",
                               "expected one of --waterline, --displacement, or --from --to --step");
  }
  constexpr double most_waterlines = 100000;
  if (range && !(*arguments.step > 0 && *arguments.to >= *arguments.from &&
                 (*arguments.to - *arguments.from) / *arguments.step < most_waterlines)) {
    throw std::invalid_argument(
        "expected a step above 0 that leads from --from to --to in at most 100000 steps");
  }
}

void AddHydrostatics(CLI::App& app, HydrostaticsArguments& arguments, std::function<int()>& run) {
  CLI::App* const command =
      app.add_subcommand("hydrostatics", "what the water does at a waterline, upright or heeled");
  command->formatter(std::make_shared<SynopsisFormatter>(
      "  tarve-batch hydrostatics [HULL] (--waterline Y | --displacement LBS |\n"
      "              --from Y1 --to Y2 --step D) [--sea] [--pitch DEG] [--heel DEG[,DEG]...]\n"
      "              [--format text|json|csv] [--into DIR]"));
  command->add_option("hull", arguments.hull)->check(CheckNotEmpty);
  const auto add_number = [&](const char* name, auto& target, const char* type, const char* help) {
    return command->add_option(name, target, help)->type_name(type)->check(RefuseBadNumber);
  };
  add_number("--waterline", arguments.waterline, "Y", "Height of the waterline in inches, to a tenth");
  add_number("--displacement", arguments.displacement, "LBS", "Weight in pounds to find the waterline for");
  add_number("--from", arguments.from, "Y1", "First of several waterlines");
  add_number("--to", arguments.to, "Y2", "Last of them");
  add_number("--step", arguments.step, "D", "Inches from one to the next");
  command->add_flag("--sea", arguments.sea, "Sea water instead of fresh water");
  add_number("--pitch", arguments.pitch, "DEG", "Pitch of the hull in degrees");
  add_number("--heel", arguments.heel, "DEG",
             "Heel in degrees; several, parted by commas, give a stability curve")
      ->delimiter(',')
      ->allow_extra_args(false);
  command->add_option("--format", arguments.format, "text (the usual one), json or csv")
      ->type_name("FORMAT")
      ->check(CLI::IsMember({"text", "json", "csv"}));
  command
      ->add_option("--into", arguments.into, "Folder for the waterplane watrplne.uc; otherwise none is left")
      ->type_name("DIR")
      ->check(CheckNotEmpty);
  command->footer(
      std::string(HullHelp) +
      "\nEXAMPLE\n  tarve-batch hydrostatics dory.tvh --displacement 500 --heel 0,10,20,30 --format csv\n");
  command->callback([&] {
    RequireOneGoal(arguments);
    run = [&arguments] { return RunHydrostatics(arguments); };
  });
}

void AddVrml(CLI::App& app, VrmlArguments& arguments, std::function<int()>& run) {
  CLI::App* const command = app.add_subcommand("vrml", "the hull as a solid for viewers of VRML 1.0");
  command->formatter(std::make_shared<SynopsisFormatter>("  tarve-batch vrml [HULL] [--into DIR]"));
  command->add_option("hull", arguments.hull)->check(CheckNotEmpty);
  command
      ->add_option("--into", arguments.into,
                   "Folder for the file, named like the hull, and its copy default.wrl; made if missing, the "
                   "current one otherwise")
      ->type_name("DIR")
      ->check(CheckNotEmpty);
  command->footer(std::string(HullHelp) + "\nEXAMPLE\n  tarve-batch vrml dory.tvh --into dory\n");
  command->callback([&] { run = [&arguments] { return RunVrml(arguments); }; });
}

constexpr const char* LayoutHelp =
    "\nLAYOUT\n"
    "  {\"sheet\": {\"height\": 48, \"length\": 96, \"count\": 3},\n"
    "   \"parts\": [{\"name\": \"chine1.uc\", \"x\": 48, \"y\": 24, \"turn\": 90, \"flip\": true,\n"
    "              \"copy\": {\"x\": 140, \"y\": 24}}]}\n"
    "  Inches and degrees. x and y place the center on the row of 3 to 5 sheets, from the\n"
    "  lower left corner of the first; each instance is flipped first and turned then,\n"
    "  anticlockwise. The last part of a table has no center: its own origin is placed.\n"
    "  Without \"sheet\", three sheets of 48 by 96.\n";

void AddNestOptions(CLI::App* command, NestArguments& arguments) {
  command->add_option("--handplot", arguments.hand_plot, "Hand plotting table with the parts")
      ->type_name("FILE")
      ->required()
      ->check(CheckNotEmpty);
  command->add_option("--layout", arguments.layout, "Where they lie, see below")
      ->type_name("LAYOUT.json")
      ->required()
      ->check(CheckNotEmpty);
  command
      ->add_option("--hull", arguments.hull,
                   "Name of the hull to write; otherwise the one in the table's title")
      ->type_name("NAME")
      ->check(CheckNotEmpty);
  AddClock(command, arguments.date, arguments.time);
}

void AddNestTable(CLI::App& app, NestArguments& arguments, std::function<int()>& run) {
  CLI::App* const command = app.add_subcommand("nest-table", "parts laid out on sheets, to mark out by hand");
  command->formatter(std::make_shared<SynopsisFormatter>(
      "  tarve-batch nest-table --handplot FILE --layout LAYOUT.json [--out FILE]\n"
      "              [--hull NAME] [--date MM-DD-YYYY] [--time HH:MM:SS]"));
  AddNestOptions(command, arguments);
  arguments.out = "nest.txt";
  command->add_option("--out", arguments.out, "The table to write; nest.txt otherwise")
      ->type_name("FILE")
      ->check(CheckNotEmpty);
  command->footer(std::string(LayoutHelp) +
                  "\nEXAMPLE\n  tarve-batch nest-table --handplot dory/handplot.txt --layout dory.json\n");
  command->callback([&] { run = [&arguments] { return RunNestTable(arguments); }; });
}

void AddNestPrint(CLI::App& app, NestPrintArguments& arguments, std::function<int()>& run) {
  CLI::App* const command = app.add_subcommand("nest-print", "parts laid out on sheets, a page a sheet");
  command->formatter(std::make_shared<SynopsisFormatter>(
      "  tarve-batch nest-print --handplot FILE --layout LAYOUT.json --pdf FILE\n"
      "              [--fit print|prn] [--hull NAME] [--date MM-DD-YYYY] [--time HH:MM:SS]"));
  AddNestOptions(command, arguments.nest);
  command->add_option("--pdf", arguments.nest.out, "The PDF file to write")
      ->type_name("FILE")
      ->required()
      ->check(CheckNotEmpty);
  command
      ->add_option("--fit", arguments.fit,
                   "print (the usual one): the sheet between margins; prn: it fills the page")
      ->type_name("FIT")
      ->check(CLI::IsMember({"print", "prn"}));
  command->footer(
      std::string(LayoutHelp) +
      "\nEXAMPLE\n  tarve-batch nest-print --handplot dory/handplot.txt --layout dory.json --pdf dory.pdf\n");
  command->callback([&] { run = [&arguments] { return RunNestPrint(arguments); }; });
}

int Run(int argc, char** argv) {
  CLI::App app("work on hull files without a window");
  app.formatter(std::make_shared<SynopsisFormatter>(
      "  tarve-batch COMMAND [ARGUMENT]...\n  tarve-batch COMMAND --help"));
  app.footer(
      "\nEXIT STATUS\n  0 done, 1 could not do it (standard error says why), 2 wrong usage\n\nEXAMPLE\n  "
      "tarve-batch patterns dory.tvh --into dory --text --dxf\n");
  app.require_subcommand(1);
  PatternsArguments patterns;
  PointsArguments points;
  HydrostaticsArguments hydrostatics;
  VrmlArguments vrml;
  NestArguments nest_table;
  NestPrintArguments nest_print;
  std::function<int()> run;
  AddPatterns(app, patterns, run);
  AddPoints(app, points, run);
  AddHydrostatics(app, hydrostatics, run);
  AddVrml(app, vrml, run);
  AddNestTable(app, nest_table, run);
  AddNestPrint(app, nest_print, run);
  try {
    app.parse(argc, argv);
  } catch (const CLI::RequiredError& error) {
    Complain(app.get_subcommands().empty() ? "expected a command; see tarve-batch --help" : error.what());
    return WrongUsage;
  } catch (const CLI::Success& help) {
    return app.exit(help);
  } catch (const CLI::ParseError& error) {
    Complain(error.what());
    return WrongUsage;
  }
  return run();
}

}  // namespace

int main(int argc, char** argv) {
  SurviveFileSizeLimit();
  try {
    const int status = Run(argc, argv);
    std::cout.flush();
    return std::cout ? status : Complain("standard output: could not write all of it");
  } catch (const std::exception& error) {
    return Complain(error.what());
  }
}
