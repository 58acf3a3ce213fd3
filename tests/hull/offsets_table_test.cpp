#include "hull/offsets_table.h"

#include <utility>

#include "controls/dialogs.h"
#include "controls/forms.h"
#include "hull/hull_model.h"
#include "program/start_up.h"
#include "support/program_test.h"

namespace {

class OffsetsTable : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    dummy8_Click();
  }
  static void Open(int row, int column) {
    Form5.Grid1.Select(row, column);
    Form5.Grid1.Click();
  }
  static void Type(int row, int column, const char* text) {
    Open(row, column);
    Form5.Text1.Text = text;
  }
  static int Row(int k, int c) { return k * NumChines + c; }
  static std::string Cell(int row, int column) { return Form5.Grid1.Text(row, column); }
  static std::pair<int, int> Selected() { return {Form5.Grid1.Row(), Form5.Grid1.Col()}; }

  enum { X = 2, Y = 3, Z = 4 };
};

TEST_F(OffsetsTable, ShowsEveryOffset) {
  ASSERT_EQ(Form5.Grid1.Rows(), 21);
  EXPECT_EQ(Cell(0, 1) + Cell(0, X), "ChineX''");
  const std::pair<int, std::vector<std::string>> cases[] = {
      {1, {"BH 0 stem", "1 keel", "0.01", "1.3", "1.3"}},
      {2, {"", "2", "0.75", "6.", "0."}},
      {12, {"", "4 sheer", "34.25", "29.5", "58."}},
      {17, {"BH 4 transom", "1 keel", "5.", "1.", "140."}}};
  for (const auto& [row, cells] : cases) {
    for (int column = 0; column < 5; ++column) {
      EXPECT_EQ(Cell(row, column), cells[static_cast<std::size_t>(column)]) << row;
    }
  }
  EXPECT_EQ(Selected(), std::pair(1, 2));
  Form5.Grid1.Box.Width = 4400;
  Form5_Load();
  EXPECT_EQ(Form5.Grid1.ColWidth(0), 1100);
  EXPECT_EQ(Form5.Grid1.ColWidth(1), 800);
  EXPECT_DOUBLE_EQ(Form5.Grid1.ColWidth(4), (4400 - 1100 - 800 - 120) / 3.0);
}

TEST_F(OffsetsTable, EntriesAreInchesOrEighths) {
  const std::tuple<const char*, double, const char*> cases[] = {
      {"5-4", 5.5, "5.5"}, {"5-4+", 5.5625, "5.5625"}, {"5-4-", 5.4375, "5.4375"}, {"5-", 4.9375, "4.9375"},
      {"5+", 5, "5"},      {"-5", 0.625, "0.625"},     {" 7.25 in", 7.25, "7.25"}, {"oak", 0, "0"},
      {"1E400", 0, "0"},   {"2.5-1", 2.625, "2.625"}};
  Open(Row(1, 3), Y);
  for (const auto& [typed, inches, cell] : cases) {
    Form5.Text1.Text = typed;
    EXPECT_EQ(OffY(3, 1), inches) << typed;
    EXPECT_EQ(Cell(Row(1, 3), Y), cell) << typed;
  }
  Form5.Text1.Text = "";
  EXPECT_EQ(Cell(Row(1, 3), Y), "2.625") << "an empty box keeps the cell";
  Form5.Text1.Text = "0-";
  EXPECT_EQ(Cell(Row(1, 3), Y), "-0.0625");
  EXPECT_EQ(OffY(3, 1), 0) << "the repaint leaves nothing negative";
}

TEST_F(OffsetsTable, EachColumnHasItsTable) {
  Type(Row(4, 2), X, "16");
  Type(Row(4, 2), Y, "6-1");
  Type(Row(4, 2), Z, "141");
  EXPECT_EQ(OffX(2, 4), 16);
  EXPECT_EQ(OffY(2, 4), 6.125);
  EXPECT_EQ(OffZ(2, 4), 141);
  EXPECT_EQ(OffZ(1, 4), 140) << "a raked transom";
  EXPECT_EQ(HullPts(2, 13, 2), 6.125) << "the hull follows";
}

TEST_F(OffsetsTable, InnerBulkheadsShareTheirZForSixChines) {
  Type(Row(2, 3), Z, "60");
  for (int c = 1; c <= 6; ++c) {
    EXPECT_EQ(OffZ(c, 2), 60) << c;
  }
  EXPECT_EQ(Cell(Row(2, 2), Z), "58.") << "other cells stay as they were";
  Form1.Text3.Text = "7";
  Form1.Text3.Text = "8";
  Form5.Unload();
  dummy8_Click();
  const double seventh = OffZ(7, 2);
  Type(Row(2, 8), Z, "59");
  EXPECT_EQ(OffZ(6, 2), 59);
  EXPECT_EQ(OffZ(7, 2), seventh);
  EXPECT_EQ(OffZ(8, 2), 59) << "the edited chine itself";
}

TEST_F(OffsetsTable, TheBoxFloatsOverItsCell) {
  Form5.Grid1.Box = {100, 200, 4400, 3000};
  Form5_Load();
  std::string slots;
  Form5.Text1.BringToFront = [&] { slots += "front "; };
  Form5.Text1.SetFocus = [&] { slots += "focus "; };
  Form5.Text1.SelectAll = [&] { slots += "all:" + *Form5.Text1.Text; };
  Open(2, X);
  EXPECT_EQ(slots, "front focus all:0.75");
  const CellBox& box = Form5.Text1.Box;
  EXPECT_EQ(box.Left, 100 + 1100 + 800);
  EXPECT_EQ(box.Top, 200 + 2 * Grid::RowHeight);
  Form5.Grid1.PlaceCell = [](CellBox& place) { place.Top = 240; };
  Open(9, X);
  EXPECT_EQ(Form5.Text1.Box->Top, 240) << "a face that scrolls knows better";
}

TEST_F(OffsetsTable, EnterGoesDownToTheLastRow) {
  Open(19, Y);
  Form5.Text1.KeyPress('7');
  EXPECT_EQ(Selected(), std::pair(19, 3));
  Form5.Text1.KeyPress(EnterKey);
  EXPECT_EQ(Selected(), std::pair(20, 3));
  EXPECT_EQ(*Form5.Text1.Text, "35.");
  Form5.Text1.KeyPress(EnterKey);
  EXPECT_EQ(Selected(), std::pair(20, 3));
}

TEST_F(OffsetsTable, TabGoesRightAndShiftTabLeft) {
  const HeldKeys tab{false, true, false};
  const HeldKeys back{false, true, true};
  const std::tuple<std::pair<int, int>, HeldKeys, std::pair<int, int>> cases[] = {
      {{3, 2}, tab, {3, 3}},
      {{3, 4}, tab, {4, 0}},
      {{20, 4}, tab, {20, 0}},
      {{3, 3}, back, {3, 2}},
      {{3, 0}, back, {2, 4}},
      {{0, 0}, back, {0, 4}},
      {{3, 2}, {true, true, false}, {3, 2}},
      {{3, 2}, {false, false, true}, {3, 2}}};
  for (const auto& [from, held, to] : cases) {
    Form5.Grid1.Select(from.first, from.second);
    Form5.Text1.LostFocus(held);
    EXPECT_EQ(Selected(), to) << from.first << "," << from.second;
  }
  Type(Row(2, 1), 1, "99");
  Type(0, Z, "98");
  EXPECT_EQ(OffZ(1, 2), 58) << "labels and headings store nothing";
  EXPECT_EQ(OffZ(4, 0), 0);
}

TEST_F(OffsetsTable, NotesShowOnceInARunAndAnOpenTableStays) {
  int boxes = 0;
  StartProgram();
  MsgBox = [&](const std::string& text, int style, const std::string& title) {
    ++boxes;
    EXPECT_EQ(title, "Offsets Table");
    EXPECT_EQ(style, 0);
    EXPECT_EQ(Lines(text).size(), 12U);
    return Answer::Ok;
  };
  dummy8_Click();
  OffX(2, 2) = 21;
  dummy8_Click();
  EXPECT_EQ(Cell(Row(2, 2), X), "20.75");
  Form5.Unload();
  dummy8_Click();
  EXPECT_EQ(Cell(Row(2, 2), X), "21.");
  EXPECT_EQ(boxes, 1);
}

}  // namespace
