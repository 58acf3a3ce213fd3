#include "views/node_editing.h"

#include <deque>

#include "controls/dialogs.h"
#include "hull/figures.h"
#include "hydro/heel.h"
#include "hydro/hydrostatics.h"
#include "views/view.h"
#include "views/view_test.h"
#include "views/zoom.h"

namespace {

constexpr int Left = 1;
constexpr int Right = 2;

class NodeEditing : public ViewTest {
 protected:
  void SetUp() override {
    ViewTest::SetUp();
    ShowBarge();
    CheckView(View::Profile);
  }

  static std::pair<int, int> Pick(double x, double y) {
    Form1.Picture2.MouseDown(Left, x, y);
    return {CurChine, CurStation};
  }
  static void Choose(int chine, int station) {
    CurChine = chine;
    CurStation = station;
  }
  /// Drags with the panels empty before; what panels 5, 4 and 3 show then.
  static std::string Drag(double x, double y) {
    for (const std::size_t panel : {5U, 4U, 3U}) {
      Form1.StatusBar1.Panels[panel] = "";
    }
    Form1.Picture2.MouseMove(Left, x, y);
    return Panels();
  }
  static std::string Panels() {
    const auto& panels = Form1.StatusBar1.Panels;
    return *panels[5] + "|" + *panels[4] + "|" + *panels[3];
  }
  static std::vector<double> Offset(int c, int b) { return {OffX(c, b), OffY(c, b), OffZ(c, b)}; }
  static std::vector<double> Point(int c, int i) {
    return {HullPts(1, i, c), HullPts(2, i, c), HullPts(3, i, c)};
  }
};

using Node = std::pair<int, int>;

TEST_F(NodeEditing, PicksTheNearestAndOfEqualsTheFirst) {
  EXPECT_EQ(Pick(30, 1), Node(1, 1));
  EXPECT_EQ(Pick(62.5, 20), Node(2, 2)) << "between two bulkheads";
  EXPECT_EQ(Pick(0, -999.9), Node(1, 0));
  EXPECT_EQ(Pick(0, -1000), Node(-1, -1));
  CheckView(View::Sections);
  EXPECT_EQ(Pick(25, 19), Node(2, 0));
  CheckView(View::Plan);
  EXPECT_EQ(Pick(100, 25), Node(1, 4));
  Form1.AutoSpline.Checked = false;
  EXPECT_EQ(Pick(100, 25), Node(1, 13));
  CheckView(View::Profile);
  EXPECT_EQ(Pick(8.5, 20), Node(2, 2));
  journal.clear();
  CheckView(View::Spin);
  EXPECT_EQ(Pick(100, 0), Node(2, 2)) << "no pick without a flat view";
  EXPECT_EQ(journal, "");
}

TEST_F(NodeEditing, EachViewMovesItsCoordinates) {
  struct Row {
    View view;
    bool lock;
    int bulkhead;
    std::vector<double> moved;
    double z_of_keel;
    const char* box;
    const char* panels;
  };
  const Row rows[] = {{View::Profile, false, 2, {25, 12.34, 52.126}, 52.126, "52.13", "|12.34y|"},
                      {View::Profile, false, 4, {25, 12.34, 52.13}, 100, "140''", "|12.34y|52.13z"},
                      {View::Profile, false, 0, {25, 12.34, 52.13}, 0, "0", "|12.34y|52.13z"},
                      {View::Profile, true, 2, {25, 12.34, 50}, 50, "58''", "|12.34y|"},
                      {View::Sections, false, 2, {52.13, 12.34, 50}, 50, "58''", "52.13x|12.34y|"},
                      {View::Sections, true, 0, {52.13, 12.34, 0}, 0, "0", "52.13x|12.34y|"},
                      {View::Plan, false, 3, {12.34, 20, 52.126}, 52.126, "52.13", "12.34x||"},
                      {View::Plan, false, 4, {12.34, 20, 52.13}, 100, "140''", "12.34x||52.13z"},
                      {View::Plan, true, 3, {12.34, 20, 75}, 75, "96''", "12.34x||"},
                      {View::Spin, false, 2, {25, 20, 50}, 50, "58''", "||"}};
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    const Row& row = rows[i];
    const char* const boxes[] = {"0", "28''", "58''", "96''", "140''"};
    for (std::size_t b = 0; b < 5; ++b) {
      Form1.Text1[b].Text = boxes[b];
    }
    ShowBarge();
    CheckView(row.view);
    Form1.LockBulkheads.Checked = row.lock;
    Choose(2, row.bulkhead);
    journal.clear();
    EXPECT_EQ(Drag(52.126, 12.344), row.panels) << i;
    EXPECT_EQ(Offset(2, row.bulkhead), row.moved) << i;
    EXPECT_EQ(OffZ(1, row.bulkhead), row.z_of_keel) << i;
    EXPECT_EQ(*Form1.Text1[static_cast<std::size_t>(row.bulkhead)].Text, row.box) << i;
    EXPECT_NE(journal.find("section cls"), std::string::npos) << "the form repaints";
  }
}

TEST_F(NodeEditing, WithoutAutoSplineTheHullPointMoves) {
  Form1.AutoSpline.Click();
  Form1.LockBulkheads.Checked = true;  // doesn't matter here
  Choose(2, 5);
  EXPECT_EQ(Drag(40.126, 12.344), "||");
  EXPECT_EQ(Point(2, 5), (std::vector<double>{25, 12.34, 40.13}));
  CheckView(View::Sections);
  Drag(30, 11);
  EXPECT_EQ(Point(2, 5), (std::vector<double>{30, 11, 40.13}));
  CheckView(View::Plan);
  Choose(2, 4);  // a bulkhead's station brings all chines along
  EXPECT_EQ(Drag(27, 22), "||");
  EXPECT_EQ(Offset(2, 1), (std::vector<double>{22, 20, 27}));
  EXPECT_EQ(Point(1, 4), (std::vector<double>{25, 0, 27}));
  Choose(2, 0);
  Drag(27, 22);
  EXPECT_EQ(Point(2, 0), (std::vector<double>{0, 0, 0})) << "no station";
}

TEST_F(NodeEditing, AHeeledHullIsUprightBeforeAPointMoves) {
  Form1.AutoSpline.Click();
  UprightPts = HullPts;
  HullPts(1, 7, 1) = -3;
  Choose(2, 5);
  Drag(40, 12);
  EXPECT_EQ(HullPts(1, 7, 1), 25);
  EXPECT_EQ(Point(2, 5), (std::vector<double>{25, 12, 40}));
}

TEST_F(NodeEditing, FloorsOfADrag) {
  CheckView(View::Sections);
  Choose(2, 0);
  EXPECT_EQ(Drag(-3, -2), "||") << "no longer texts";
  EXPECT_EQ(Offset(2, 0), (std::vector<double>{0.1, 0, 0}));
  EXPECT_EQ(Drag(0.001, 4), "|4.00y|");
  Choose(2, 2);
  EXPECT_EQ(Drag(0.001, 4), "0.00x|4.00y|");
  EXPECT_EQ(Drag(-0.01, 4), "|4.00y|");
  EXPECT_EQ(OffX(2, 2), 0);
  OffX(2, 0) = -1;  // looked at whichever bulkhead moves
  Drag(9, 4);
  EXPECT_EQ(OffX(2, 0), 0.1);
  CheckView(View::Profile);
  Choose(2, 1);
  EXPECT_EQ(Drag(-5, 4), "|4.00y|");
  EXPECT_EQ(*Form1.Text1[1].Text, "-5.00");
}

TEST_F(NodeEditing, NoNodeNoChange) {
  const auto before = HullText();
  for (const bool spline : {true, false}) {
    Form1.AutoSpline.Checked = spline;
    Choose(-1, -1);
    EXPECT_EQ(Drag(50, 10), "||");
    Form1.Picture2.MouseUp(Left, 50, 10);
    InputBox = [](const std::string&, const std::string&, const std::string&) {
      ADD_FAILURE() << "no node to ask for";
      return "1";
    };
    Form1.Picture2.DblClick();
  }
  Form1.AutoSpline.Checked = true;
  EXPECT_EQ(HullText(), before);
}

TEST_F(NodeEditing, ThePointerShowsInThePanels) {
  const auto at = [](View view, double x, double y) {
    CheckView(view);
    Form1.Picture2.MouseMove(0, x, y);
    return Panels();
  };
  EXPECT_EQ(at(View::Profile, 12.345, -0.001), "x|-0.00y|12.35z");
  EXPECT_EQ(at(View::Sections, 1, 2), "1.00x|2.00y|z");
  EXPECT_EQ(at(View::Plan, 3, 4), "4.00x|y|3.00z");
  EXPECT_EQ(at(View::Spin, 7, 7), "4.00x|y|3.00z");
}

TEST_F(NodeEditing, ADroppedNodeSnapsToTheFirstNearOne) {
  OffY(2, 1) = 0.25;
  Choose(2, 1);
  Form1.Picture2.MouseUp(Left, 0, 0);
  EXPECT_EQ(OffY(2, 1), 0.25);
  OffX(2, 1) = 25.125;
  OffY(2, 1) = 0.125;
  OffZ(2, 1) = 25.125;
  OffX(2, 0) = 25.125;
  OffZ(2, 0) = 25;
  OffY(2, 0) = 0;
  Form1.Picture2.MouseUp(Left, 0, 0);
  EXPECT_EQ(Offset(2, 1), (std::vector<double>{25, 0, 25})) << "chine 1 comes before the stem of chine 2";
  OffY(2, 1) = 0.125;
  Form1.Picture2.MouseUp(Right, 0, 0);
  EXPECT_EQ(OffY(2, 1), 0.125) << "no snap with the right button";
}

TEST_F(NodeEditing, EveryMouseUpEndsTheWaterlineMode) {
  for (const int button : {Left, Right}) {
    Form1.EnterWaterline.Checked = Form1.HScroll1.Visible = Form1.EnterHeel.Enabled = true;
    Form1.Combo1.Visible = true;
    GravityCenterX = GravityCenterY = GravityCenterZ = 3;
    WaterlineY = 5;
    journal.clear();
    Form1.Picture2.MouseUp(button, 1, 1);
    EXPECT_FALSE(Form1.EnterWaterline.Checked || Form1.HScroll1.Visible || Form1.EnterHeel.Enabled ||
                 Form1.Combo1.Visible);
    EXPECT_EQ(GravityCenterX + GravityCenterY + GravityCenterZ, 0);
    EXPECT_EQ(WaterlineY, 5);
    EXPECT_TRUE(journal.starts_with("section cls"));
  }
}

TEST_F(NodeEditing, TheZoomRectangleKeepsTheShapeOfTheSurface) {
  Form1.Picture2.MouseDown(Right, 10, 20);
  EXPECT_EQ(CurChine, 2) << "the right button picks, too";
  picture.calls.clear();
  Form1.Picture2.MouseMove(Right, 3, 15);
  Form1.Picture2.MouseMove(Right, 77, 12);
  EXPECT_EQ(picture.calls,
            "mode 7\nbox 10.0,20.0 10.0,20.0 c3\nbox 10.0,20.0 20.0,15.0 c3\npoint 10.0,20.0 c-1\nmode 13\n"
            "mode 7\nbox 10.0,20.0 20.0,15.0 c3\nbox 10.0,20.0 26.0,12.0 c3\npoint 10.0,20.0 c-1\nmode 13\n");
  Form1.Picture2.MouseUp(Right, 77, 12);
  EXPECT_TRUE(picture.calls.starts_with("cls\nscale 10.0,20.0 26.0,12.0\n"));
  Form1.Picture2.MouseDown(Right, 50, 5);
  Form1.Picture2.MouseUp(Right, 50, 5);
  EXPECT_EQ(picture.Count("scale", ""), 0) << "of no size: refused";
}

TEST_F(NodeEditing, AFigureTakesEveryDrag) {
  FigureIndex = 0;
  Choose(2, 2);
  for (const int button : {Left, Right}) {
    journal.clear();
    Form1.Picture2.MouseMove(button, 40 + button, 7);
    EXPECT_EQ(FigureOffsetX, 40 + button);
    EXPECT_EQ(FigureOffsetY, 7);
    EXPECT_TRUE(journal.starts_with("main cls\n"));
  }
  EXPECT_EQ(OffY(2, 2), 20);
  Form1.Picture2.MouseMove(0, 9, 9);
  EXPECT_EQ(FigureOffsetX, 42);
}

TEST_F(NodeEditing, ADoubleClickAsksForThreeValues) {
  std::deque<std::string> answers;
  std::string asked;
  InputBox = [&](const std::string& prompt, const std::string& title, const std::string& offered) {
    asked += prompt + title + "=" + offered + "\n";
    std::string answer = answers.empty() ? "" : answers.front();
    answers.pop_front();
    return answer;
  };
  Choose(2, 2);
  Form1.LockBulkheads.Checked = true;
  answers = {"30.123 inches", "wide", "60"};
  Form1.Picture2.DblClick();
  EXPECT_EQ(asked,
            "Enter a new X value:New Bulkhead Width=25.00\n"
            "Enter a new Y value:New Bulkhead Height=20.00\n"
            "Enter a new Z value:New Bulkhead Length=50.00\n");
  EXPECT_EQ(Offset(2, 2), (std::vector<double>{30.123, 0, 60}));
  EXPECT_EQ(OffZ(1, 2), 50) << "one node only";
  answers = {"28", ""};
  Form1.Picture2.DblClick();
  EXPECT_EQ(Offset(2, 2), (std::vector<double>{28, 0, 60})) << "the first answer stays";
  asked.clear();
  Form1.AutoSpline.Click();
  Choose(1, 5);
  answers = {"21", "3", "31"};
  Form1.Picture2.DblClick();
  EXPECT_EQ(Point(1, 5), (std::vector<double>{21, 3, 31}));
  EXPECT_EQ(
      asked.find("Enter a new Y value:New Spline Height=0.00\nEnter a new Z value:New Spline Length=33."),
      asked.find("Enter a new Y"));
  asked.clear();
  CheckView(View::Spin);
  Form1.Picture2.DblClick();
  EXPECT_EQ(asked, "");
}

}  // namespace
