// Saves the hull to "default.tvh" of the current folder, as the autosave does, once for each line of
// standard input, and answers each with a line: the number of the save, or "failed" and why. The number
// stands near the front and at the very end of the file, and the length differs from save to save, so
// that a file that is half written, or made of two, shows.

#include <filesystem>
#include <iostream>
#include <string>

#include "base/files.h"
#include "hull/hull_file.h"
#include "hull/hull_model.h"
#include "program/start_up.h"

int main() {
  StartProgram();
  std::string problem;
  FileFailed = [&problem](const std::filesystem::path&, const std::string& why) { problem = why; };
  std::string line;
  for (int save = 1; std::getline(std::cin, line); ++save) {
    problem.clear();
    FrameZ[0] = static_cast<double>(save);
    HullInfo = std::string(static_cast<std::size_t>(save * 7 % 3000), 'x');
    HullFileSpare = save;
    WriteHullFile("default.tvh");
    std::cout << (problem.empty() ? std::to_string(save) : "failed " + problem) << std::endl;
  }
  return 0;
}
