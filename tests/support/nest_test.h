#pragma once
// What tests of nesting share: the window with parts of a hand plotting table, on a recording surface.

#include <string>
#include <vector>

#include "controls/forms.h"
#include "nest/nest_model.h"
#include "support/program_test.h"
#include "support/recording_surface.h"

class NestTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Form2.Picture1 = &surface;
  }

  /// Opens the window on a table with these lines behind its two head lines.
  void Open(std::vector<std::string> lines) {
    lines.insert(lines.begin(), {"Hand plotting file for boat.tvh        12:00:00", "X in.         Y in."});
    Write("handplot.txt", Joined(lines));
    Form1.dummy15.Click();
  }

  /// Opens it with two parts: a rectangle 10 x 4 inches from (0, 0), and a triangle 6 x 6.
  void OpenTwoParts() {
    Open({"board.uc      ____", "0.00          0.00", "10.00         0.000", "10.00         4.000",
          "0.00          4.00", "sail.uc       ____", "0.00          0.00", "6.00          0.00",
          "0.00          6.00", ""});
  }

  static void Click(int row) { Form2.List1.SetListIndex(row); }
  static void Drag(double from_x, double from_y, double to_x, double to_y) {
    Form2.Picture1.MouseDown(1, from_x, from_y);
    Form2.Picture1.MouseMove(1, to_x, to_y);
  }

  RecordingSurface surface;
};
