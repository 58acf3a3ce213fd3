
#include "controls/dialogs.h"
#include "hull/hull_model.h"
#include "nest/nest_table.h"
#include "support/nest_test.h"

namespace {

using NestOutput = NestTest;
using Text = std::vector<std::string>;

const Text Rule = {std::string(63, '-')};

TEST_F(NestOutput, TheTableTellsEachPointInTheColumnOfItsSheet) {
  OpenTwoParts();
  Click(0);
  NestPosX(1) = 96.25;
  NestPosY(1) = 12.99;
  Form2.Command5.Click();
  NestCopyPosX(1) = 477.5;
  NestCopyPosY(1) = 1.9;
  EXPECT_EQ(NestTableText(),
            Joined({"Nested hand plotting file for default.tvh  /            12:34:56       /  "
                    "          11-16-2026",
                    "",
                    "Sheet 1       Sheet 2       Sheet 3       Sheet 4       Sheet 5",
                    "",
                    "board.uc  (extend lines to panel edges)",
                    Rule[0],
                    "91-2\"x10-8\"",
                    "              5-2\" by 10-8\"",
                    "              5-2\" by 14-8\"",
                    "91-2\"x14-8\"",
                    "",
                    "Copy of board.uc  (extend lines to panel edges)",
                    Rule[0],
                    std::string(56, ' ') + "88-4\" by -1-7\"",
                    "\r\n\r\n",
                    "Sheet 1       Sheet 2       Sheet 3       Sheet 4       Sheet 5",
                    "",
                    "board.uc",
                    Rule[0],
                    "2318 x 279 mm",
                    "              133 x 279 mm",
                    "              133 x 381 mm",
                    "2318 x 381 mm",
                    "",
                    "Copy of board.uc",
                    Rule[0],
                    std::string(56, ' ') + "2248 x -3 mm",
                    ""}));
}

TEST_F(NestOutput, SeamsBelongToTheSheetOnTheirLeft) {
  OpenTwoParts();
  EXPECT_EQ(Lines(NestTableText()).size(), 8U) << "no part shown leaves the heads";
  const std::pair<double, int> places[] = {{-5, 1},  {96, 1},  {96.001, 2}, {192, 2},
                                           {193, 3}, {480, 5}, {480.1, 0}};
  for (const auto& [x, sheet] : places) {
    EXPECT_EQ(SheetAt(x), sheet) << x;
  }
  Form2.Text2.Text = std::string("10.5");
  Click(0);
  NestPosX(1) = 16.5;
  const Text lines = Lines(NestTableText());
  EXPECT_EQ(lines[6], "              1-4\" by 0-0\"") << "1 inch on its sheet, the eighths of 11.5";
}

TEST_F(NestOutput, SaveAsksForANameAndStartsTheViewerWhateverCameOfIt) {
  OpenTwoParts();
  Text viewed;
  Form2.StartViewer = [&viewed](const std::string& name) { viewed.push_back(name); };
  Text asked;
  InputBox = [&asked](const std::string& prompt, const std::string& title, const std::string& offered) {
    asked = {prompt, title, offered, Form2.Busy ? "busy" : ""};
    return offered;
  };
  Form2.Command8.Click();
  EXPECT_EQ(asked, (Text{"File name:", "Hand Plotting", "nest.txt", "busy"}));
  EXPECT_FALSE(Form2.Busy);
  EXPECT_EQ(Read("nest.txt"), NestTableText());
  for (const char* name : {"", "no folder/nest.txt"}) {
    InputBox = [name](const std::string&, const std::string&, const std::string&) { return name; };
    Form2.Command8.Click();
  }
  EXPECT_EQ(viewed, (Text{"nest.txt", "", "no folder/nest.txt"}));
  EXPECT_EQ(Names(), (Text{"handplot.txt", "nest.txt"}));
}

/// What the pages of a click on a print button look like on paper twice as wide as high.
Text Printed(CommandButton& button) {
  Text pages;
  Form2.Print = [&pages](const PrintJob& job) {
    EXPECT_TRUE(job.landscape);
    for (int page = 1; page <= job.pages; ++page) {
      RecordingSurface paper;
      paper.letter = 2;
      job.paint(page, paper);
      pages.push_back(paper.calls);
    }
  };
  button.Click();
  return pages;
}

bool Shows(const std::string& page, const std::string& call) {
  return page.find(call + "\n") != std::string::npos;
}

TEST_F(NestOutput, PrintWarnsFirst) {
  OpenTwoParts();
  Text asked;
  MsgBox = [&asked](const std::string& text, int style, const std::string& title) {
    asked = {text, std::to_string(style), title};
    return Answer::Cancel;
  };
  EXPECT_EQ(Printed(Form2.Command10), Text{});
  EXPECT_EQ(
      asked,
      (Text{"Tarve does NOT print well on ALL printers, so there's NO GUARANTEE you'll get good results."
            "\n\nIf you have a good CAD program, Tarve recommends you export/import DXF and print from "
            "there.\n\nPress ''OK'' to continue to Print...\n\n",
            "49", "Beta Print: Beware"}));
  asked.clear();
  EXPECT_EQ(Printed(Form2.Command9).size(), 3U);
  Form2.Text1.Text = std::string("none");
  EXPECT_EQ(Printed(Form2.Command9), Text{}) << "no sheet, no page";
  EXPECT_EQ(asked, Text{});
}

TEST_F(NestOutput, PrintCentersEachSheetBetweenItsMargins) {
  OpenTwoParts();
  Form2.Text2.Text = std::string("90");
  Click(0);
  NestPosX(1) = 137;  // from 132 to 142: the seam test of page 1 ends at 135
  const Text pages = Printed(Form2.Command10);
  ASSERT_EQ(pages.size(), 3U);
  // 96 inches for the height of 48 govern: 106.7 across 90 percent of the page, 53.3 up.
  EXPECT_TRUE(Shows(pages[0], "scale -8.3,50.7 98.3,-2.7"));
  EXPECT_TRUE(Shows(pages[1], "scale 81.7,50.7 188.3,-2.7"));
  EXPECT_TRUE(Shows(pages[1], "line 142.0,4.0 132.0,4.0 c0"));
  EXPECT_TRUE(Shows(pages[1], "point 132.7,2.0 c15\nprint board.uc c0")) << "8 letters of 2 in 200 by 106.7";
  EXPECT_TRUE(Shows(pages[0], "line 132.0,0.0 142.0,0.0 c0")) << "by its first end";
  EXPECT_FALSE(Shows(pages[0], "line 142.0,4.0 132.0,4.0 c0"));
  EXPECT_TRUE(Shows(pages[2], "line 142.0,4.0 132.0,4.0 c0"));

  Form2.Text1.Text = std::string("30");
  EXPECT_TRUE(Shows(Printed(Form2.Command10)[0], "scale -5.0,40.0 95.0,-10.0")) << "the length governs";
}

TEST_F(NestOutput, PrnFillsThePageAndDrawsRelativeToTheSheet) {
  OpenTwoParts();
  Form2.Option2.Value = true;
  Form2.Text1.Text = std::string("40");
  Click(0);
  NestPosX(1) = 137;
  Form2.Command5.Click();
  const Text pages = Printed(Form2.Command9);
  ASSERT_EQ(pages.size(), 4U);
  EXPECT_TRUE(Shows(pages[1], "scale 0.0,44.0 96.0,-4.0"));
  EXPECT_TRUE(Shows(pages[1], "line 36.0,0.0 46.0,0.0 c0"));
  EXPECT_TRUE(Shows(pages[1], "point 36.3,5.0 c15\nprint Copy of board.uc c0"));
  Form2.Text1.Text = std::string("60");
  EXPECT_TRUE(Shows(Printed(Form2.Command9)[0], "scale -12.0,60.0 108.0,0.0")) << "the height governs";
}

TEST_F(NestOutput, PagesTellTheirSheetAndKeepNamesOnThePaper) {
  OpenTwoParts();
  HullFileName = "/boats/dory.tvh";
  Form2.Text1.Text = std::string("40");
  Click(0);
  NestPosX(1) = 100;
  NestPosY(1) = -3.5;
  Click(1);
  NestPosX(2) = 95;
  const Text pages = Printed(Form2.Command9);
  // 96 inches on 200 units: a letter is 0.96 wide, a line 1.44 high.
  EXPECT_TRUE(Shows(pages[1], "point 0.0,-0.4 c15\nprint Sheet 2   dory.tvh c0"));
  EXPECT_TRUE(Shows(pages[1], "point 0.2,-2.6 c15\nprint board.uc c0")) << "raised above the lower edge";
  EXPECT_TRUE(Shows(pages[0], "point 89.3,3.0 c15\nprint sail.uc c0")) << "kept left of the right edge";
  EXPECT_TRUE(Shows(pages[0], "point 96.2,-3.5 c15\nprint board.uc c0")) << "off this page, and stays";
  EXPECT_TRUE(Shows(pages[1], "width 2\nbox 0.0,40.0 96.0,0.0 c1\nwidth 1"));
  EXPECT_LT(pages[1].find("print board.uc"), pages[1].find("box")) << "its mark spoils no line";
  Form2.Text1.Text = std::string("60");
  // The frame is as high as the page, and 120 inches are across: a line is 1.8 high.
  EXPECT_TRUE(Shows(Printed(Form2.Command9)[2], "point -12.0,1.8 c15\nprint Sheet 3   dory.tvh c0"));
}

}  // namespace
