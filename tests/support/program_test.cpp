#include "support/program_test.h"

#include <algorithm>
#include <fstream>
#include <sstream>

#include "base/clock.h"
#include "base/files.h"
#include "hull/hull_model.h"
#include "program/start_up.h"

namespace fs = std::filesystem;

void ProgramTest::SetUp() {
  const auto* test = testing::UnitTest::GetInstance()->current_test_info();
  folder = fs::temp_directory_path() / (std::string("tarve-") + test->test_suite_name() + "-" + test->name());
  fs::remove_all(folder);
  fs::create_directories(folder);
  setenv("XDG_CONFIG_HOME", (folder / "config").c_str(), 1);
  SetWorkingFolder(folder);
  FixClock("11-16-2026", "12:34:56");
  StartProgram();
}

void ProgramTest::TearDown() {
  fs::remove_all(folder);
}

std::string ProgramTest::Read(const std::string& name) const {
  std::ifstream in(folder / name, std::ios::binary);
  EXPECT_TRUE(in) << name;
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

void ProgramTest::Write(const std::string& name, const std::string& text) const {
  std::ofstream(folder / name, std::ios::binary) << text;
}

bool ProgramTest::Exists(const std::string& name) const {
  return fs::exists(folder / name);
}

std::vector<std::string> ProgramTest::Names() const {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  TextReader in(text);
  std::string_view line;
  while (in.ReadLine(line)) {
    lines.emplace_back(line);
  }
  return lines;
}

std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) {
    PutLine(text, line);
  }
  return text;
}

void SetChine(int chine, const std::vector<double>& x, const std::vector<double>& y,
              const std::vector<double>& z) {
  for (int k = 0; k < Bulkheads; ++k) {
    const auto i = static_cast<std::size_t>(k);
    OffX(chine, k) = x[i];
    OffY(chine, k) = y[i];
    OffZ(chine, k) = z[i];
  }
}

void SetBoxBarge(double half_beam, double depth, double length) {
  EraseHull();
  NumChines = 2;
  const std::vector<double> z = {0, length / 4, length / 2, length * 3 / 4, length};
  SetChine(1, std::vector<double>(5, half_beam), std::vector<double>(5, 0.0), z);
  SetChine(2, std::vector<double>(5, half_beam), std::vector<double>(5, depth), z);
}
