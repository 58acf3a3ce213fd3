#pragma once
// What tests of handlers share: a program started without a window in a folder of its own.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "base/text_lines.h"

class ProgramTest : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  /// A file of the working folder; fails the test if it is missing.
  std::string Read(const std::string& name) const;
  void Write(const std::string& name, const std::string& text) const;
  bool Exists(const std::string& name) const;
  /// Names in the working folder, sorted.
  std::vector<std::string> Names() const;

  std::filesystem::path folder;
};

/// The lines of a text without their ends.
std::vector<std::string> Lines(const std::string& text);

/// Lines joined as files hold them.
std::string Joined(const std::vector<std::string>& lines);

/// Sets a box barge: two chines, half-width `half_beam`, the lower at height 0, the upper at
/// `depth`, bulkheads at equal distances over `length`.
void SetBoxBarge(double half_beam, double depth, double length);

/// The same value for a chine at every bulkhead, with the given Z of the five bulkheads.
void SetChine(int chine, const std::vector<double>& x, const std::vector<double>& y,
              const std::vector<double>& z);
