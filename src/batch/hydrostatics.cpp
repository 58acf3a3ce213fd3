#include <algorithm>
#include <filesystem>
#include <iomanip>
#include <iostream>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "base/files.h"
#include "base/number_text.h"
#include "batch/commands.h"
#include "batch/folders.h"
#include "batch/open_hull.h"
#include "batch/report.h"
#include "controls/dialogs.h"
#include "controls/forms.h"
#include "hull/hull_model.h"
#include "hydro/heel.h"
#include "hydro/hydrostatics.h"

namespace {

using Json = nlohmann::ordered_json;

/// Clicks a menu item and answers the one box that it opens.
void ClickAndAnswer(MenuItem& item, double answer) {
  InputBox = [answer](const std::string&, const std::string&, const std::string&) {
    return PlainText(answer);
  };
  item.Click();
  ResetDialogs();
}

/// One object: the shared state under its own names, and what the window shows.
Json StateAsJson() {
  Json state;
  state["WaterlineY"] = WaterlineY;
  state["WaterDensity"] = WaterDensity;
  state["DisplacedVolume"] = DisplacedVolume;
  state["DisplacementLbs"] = DisplacementLbs;
  state["WaterlineLength"] = WaterlineLength;
  state["WaterlineForeZ"] = WaterlineForeZ;
  state["WaterlineAftZ"] = WaterlineAftZ;
  state["BuoyancyCenterX"] = BuoyancyCenterX;
  state["BuoyancyCenterY"] = BuoyancyCenterY;
  state["BuoyancyCenterZ"] = BuoyancyCenterZ;
  state["LateralArea"] = LateralArea;
  state["LateralCenterY"] = LateralCenterY;
  state["LateralCenterZ"] = LateralCenterZ;
  state["PrismaticCoeff"] = PrismaticCoeff;
  state["ButtockAngle"] = ButtockAngle;
  state["DLRatio"] = DLRatio;
  state["SLRatioLimit"] = SLRatioLimit;
  state["DisplacementSpeedKt"] = DisplacementSpeedKt;
  state["HullMaxX"] = HullMaxX;
  state["HullMaxY"] = HullMaxY;
  state["HullMaxZ"] = HullMaxZ;
  state["MaxHalfBeam"] = MaxHalfBeam;
  return state;
}

void AddHeel(Json& state) {
  state["HeelAngle"] = HeelAngle;
  state["Outcome"] = Heel.Outcome == HeelOutcome::Failed ? "failed" : "solved";
  state["GravityCenterX"] = GravityCenterX;
  state["GravityCenterY"] = GravityCenterY;
  state["GravityCenterZ"] = GravityCenterZ;
  state["MomentArm"] = Heel.MomentArm;
  state["RightingMoment"] = Heel.RightingMoment;
  state["HeeledLength"] = Heel.HeeledLength;
  state["LowestY"] = Heel.LowestY;
  state["TotalLbs"] = Heel.TotalLbs;
}

void AddTexts(Json& state) {
  state["ResultRows"] = Form1.Combo1.Rows();
  state["StatusPanel1"] = *Form1.StatusBar1.Panels[1];
}

/// One thing to compute: a height or else the displacement, and perhaps a heel.
struct Task {
  std::optional<double> waterline;
  std::optional<double> heel;
};

/// Sets the bar. A sheer that goes under lowers the bar's range, and the waterline with it.
bool SetWaterline(double inches) {
  Form1.EnterWaterline.Click();
  const ScrollBar& bar = Form1.HScroll1;
  const std::optional<int> tenths = ToWhole(inches * 10);
  if (!tenths || *tenths < bar.Min() || *tenths > bar.Max()) {
    Complain("waterline " + PlainText(inches) + ": outside of the hull; expected from " +
             FixedText(bar.Min() / 10.0, 1) + " to " + FixedText(bar.Max() / 10.0, 1) + " inches");
    return false;
  }
  Form1.HScroll1.SetValue(*tenths);
  if (Form1.HScroll1.Value() != *tenths) {
    Complain("note: waterline " + PlainText(inches) + " drowns the sheer; computed at " +
             PlainText(WaterlineY));
  }
  return true;
}

bool SearchDisplacement(double pounds) {
  TargetReached = false;
  ClickAndAnswer(Form1.displacement, pounds);
  if (!TargetReached) {
    Complain("displacement " + PlainText(pounds) + ": expected pounds above 0 that the hull can carry");
  }
  return TargetReached;
}

/// At 0 degrees the command does nothing, so the upright state is told with no moment.
void HeelHull(double angle) {
  Heel = HeelState{};
  Heel.TotalLbs = DisplacementLbs;
  Heel.HeeledLength = WaterlineLength;
  Heel.LowestY = LowestPoint();
  ClickAndAnswer(Form1.EnterHeel, angle);
  if (Heel.Outcome == HeelOutcome::Failed) {
    Complain("note: heel " + PlainText(angle) + " failed; the rows are those of the last pass");
  }
}

/// As a user would in a program just started: hull, pitch, water, waterline, heel. So each object
/// of a range or a curve is what it would be alone.
bool AddState(Json& states, const HullSource& hull, const HydrostaticsArguments& arguments,
              const Task& task) {
  OpenHull(hull);
  if (arguments.pitch) {
    ClickAndAnswer(Form1.EnterPitch, *arguments.pitch);
  }
  if (arguments.sea) {
    Form1.Seawater.Click();
  }
  if (!(task.waterline ? SetWaterline(*task.waterline) : SearchDisplacement(*arguments.displacement))) {
    return false;
  }
  if (task.heel) {
    HeelHull(*task.heel);
  }
  states.push_back(StateAsJson());
  if (task.heel) {
    AddHeel(states.back());
  }
  AddTexts(states.back());
  return true;
}

/// One task, or one for each waterline of the range and each angle of the curve.
std::vector<Task> ListTasks(const HydrostaticsArguments& arguments) {
  std::vector<std::optional<double>> waterlines = {arguments.waterline};
  if (arguments.from) {
    constexpr double rounding = 1e-9;  // so that 1 to 2 in steps of 0.1 ends with 2
    const int last = static_cast<int>((*arguments.to - *arguments.from) / *arguments.step + rounding);
    waterlines.clear();
    for (int i = 0; i <= last; ++i) {
      waterlines.emplace_back(*arguments.from + i * *arguments.step);
    }
  }
  std::vector<Task> tasks;
  for (const auto& waterline : waterlines) {
    if (arguments.heel.empty()) {
      tasks.push_back({waterline, std::nullopt});
    }
    for (const double angle : arguments.heel) {
      tasks.push_back({waterline, angle});
    }
  }
  return tasks;
}

void PrintText(const Json& state) {
  for (const std::string row : state["ResultRows"]) {
    const std::size_t colon = row.find(": ");
    std::cout << std::left << std::setw(30) << row.substr(0, colon + 1)
              << row.substr(std::min(colon + 2, row.size())) << '\n';
  }
  std::cout << state["StatusPanel1"].get<std::string>() << '\n';
}

/// Numbers and outcome only: the texts repeat them.
void PrintCsv(const Json& states) {
  const auto print_row = [](const Json& state, auto text_of) {
    const char* separator = "";
    for (const auto& [key, value] : state.items()) {
      if (!value.is_array() && key != "StatusPanel1") {
        std::cout << separator << text_of(key, value);
        separator = ",";
      }
    }
    std::cout << '\n';
  };
  print_row(states.front(), [](const std::string& key, const Json&) { return key; });
  for (const Json& state : states) {
    print_row(state, [](const std::string&, const Json& value) {
      return value.is_string() ? value.get<std::string>() : PlainText(value.get<double>());
    });
  }
}

void Print(const Json& states, const HydrostaticsArguments& arguments) {
  if (arguments.format == "json") {
    const bool one = states.size() == 1 && !arguments.from && arguments.heel.size() < 2;
    std::cout << (one ? states.front() : states).dump(2) << '\n';
  } else if (arguments.format == "csv") {
    PrintCsv(states);
  } else {
    for (const Json& state : states) {
      std::cout << (&state == &states.front() ? "" : "\n");
      PrintText(state);
    }
  }
}

}  // namespace

int RunHydrostatics(const HydrostaticsArguments& arguments) {
  WatchFiles();
  const std::optional<HullSource> hull = ReadHull(arguments.hull);
  if (!hull) {
    return CouldNot;
  }
  const std::filesystem::path folder = FolderPath(arguments.into.empty() ? "." : arguments.into);
  SetWorkingFolder(folder);
  HoldBackChanges();
  Json states = Json::array();
  for (const Task& task : ListTasks(arguments)) {
    if (!AddState(states, *hull, arguments, task)) {
      DropChanges();
      return CouldNot;
    }
  }
  if (!arguments.into.empty() && !(MakeFolder(folder) && CommitChanges())) {
    ComplainAboutFiles();
    return CouldNot;
  }
  Print(states, arguments);
  return Done;
}
