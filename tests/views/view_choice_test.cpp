#include "views/view_choice.h"

#include "hull/bulkhead_boxes.h"
#include "views/repaint.h"
#include "views/view.h"
#include "views/view_scale.h"
#include "views/view_test.h"
#include "views/zoom.h"

namespace {

class Views : public ViewTest {
 protected:
  /// The names of the surfaces in the order in which they were cleared.
  std::string Cleared() const {
    std::string names;
    for (const std::string& line : Lines(journal)) {
      names += line.ends_with(" cls") ? line.substr(0, line.size() - 3) : "";
    }
    return names;
  }

  static void SetZoom(float left, float bottom, float right, float top) {
    ZoomLeft = left;
    ZoomBottom = bottom;
    ZoomRight = right;
    ZoomTop = top;
  }
};

TEST_F(Views, ARepaintOfTheFormPaintsTheThumbnailsAndThenTheMainView) {
  ShowBarge();
  EXPECT_EQ(Cleared(), "section profile plan main ");
  journal.clear();
  Form1.Plan.Click();
  EXPECT_EQ(Cleared(), "main ");
  EXPECT_EQ(*Form1.StatusBar1.Panels[2], "MBm:50.00");
  Form1.AutoSpline.Click();
  EXPECT_EQ(*Form1.StatusBar1.Panels[2], "MBm:0.00");
}

TEST_F(Views, EachSurfaceHasItsScale) {
  ShowBarge();
  EXPECT_TRUE(thumbnails[0].Has("scale -1.0,21.0 42.0,-1.0"));
  EXPECT_TRUE(thumbnails[2].Has("scale -1.0,50.5 101.0,-1.0"));
  const std::tuple<View, bool, double, const char*> rows[] = {
      {View::Profile, false, 20, "scale -1.0,21.0 101.0,-1.0"},
      {View::Profile, true, 20, "scale -1.0,50.5 101.0,-1.0"},
      {View::Profile, true, 50, "scale -1.0,50.5 101.0,-1.0"},  // as steep as the surface
      {View::Profile, true, 60, "scale -1.0,61.0 121.0,-1.0"},
      {View::Sections, false, 20, "scale -1.0,21.0 26.0,-1.0"},
      {View::Sections, true, 20, "scale -1.0,21.0 42.0,-1.0"},
      {View::Plan, false, 20, "scale -1.0,26.0 101.0,-1.0"},
      {View::Plan, true, 20, "scale -1.0,50.5 101.0,-1.0"},
      {View::Spin, false, 60, "scale -1.0,50.5 101.0,-1.0"},
      {View::Spin, true, 60, "scale -1.0,50.5 101.0,-1.0"}};
  for (const auto& [view, true_scale, depth, scale] : rows) {
    CheckView(view);
    Form1.TrueView.Checked = true_scale;
    ShowBarge(depth);
    EXPECT_TRUE(picture.calls.starts_with(std::string("cls\n") + scale + "\n")) << picture.calls;
  }
}

TEST_F(Views, ASizeOfZeroKeepsTheEarlierScale) {
  ShowBarge();
  CheckView(View::Sections);
  picture.height = 0;
  Form1.Picture2.Refresh();
  EXPECT_EQ(picture.Count("scale", ""), 0);
  EXPECT_EQ(picture.ScaleWidth(), 102) << "of the spin view before";
  picture.height = 100;
  SetBoxBarge(25, 20, 0);
  CheckView(View::Profile);
  Form1.Refresh();
  EXPECT_EQ(picture.Count("scale", ""), 0);
}

TEST_F(Views, AZoomOutlivesTheMenuAndEndsWithAThumbnail) {
  ShowBarge();
  SetZoom(10, 5, 30, 15);
  Form1.Profile.Click();
  EXPECT_TRUE(picture.calls.starts_with("cls\nscale 10.0,15.0 30.0,5.0\n"));
  Form1.Plan.Click();
  journal.clear();
  Form1.Picture1[0].Click();
  EXPECT_EQ(Cleared(), "section profile plan main main ");
  EXPECT_NE(journal.find("main scale 10.0,15.0 30.0,5.0\n"), std::string::npos) << "first the old view";
  EXPECT_TRUE(picture.calls.starts_with("cls\nscale -1.0,21.0 42.0,-1.0\n"));
  SetZoom(10, 5, 30, 15);
  journal.clear();
  Form1.Picture3.Click();
  EXPECT_EQ(Cleared(), "section profile plan main ");
  EXPECT_EQ(ZoomLeft + ZoomRight + ZoomBottom + ZoomTop, 0);
  SetZoom(10, 5, 30, 15);
  Form1.Picture2.Refresh();
  EXPECT_TRUE(picture.calls.starts_with("cls\nscale -1.0,50.5 101.0,-1.0\nscale 10.0,15.0 30.0,5.0\n"));
}

TEST_F(Views, ChoosingAViewTicksOneItemAndParksTheKeyboard) {
  int parked = 0;
  Form1.Text1[0].SetFocus = [&] { ++parked; };
  EXPECT_EQ(CheckedView(), View::Spin);
  const std::vector<std::pair<const Event<>*, View>> ways = {
      {&Form1.Profile.Click, View::Profile},     {&Form1.Sections.Click, View::Sections},
      {&Form1.Plan.Click, View::Plan},           {&Form1.Picture1[1].Click, View::Profile},
      {&Form1.Picture1[2].Click, View::Plan},    {&Form1.Picture3.Click, View::Spin},
      {&Form1.Picture1[0].Click, View::Sections}};
  int clicks = 0;
  for (const auto& [click, view] : ways) {
    (*click)();
    EXPECT_EQ(CheckedView(), view);
    EXPECT_EQ(Form1.Sections.Checked + Form1.Profile.Checked + Form1.Plan.Checked, view != View::Spin);
    EXPECT_EQ(parked, ++clicks);
  }
  journal.clear();
  EXPECT_EQ(*Form1.StatusBar1.Panels[1], "");
  Form1.TrueView.Click();
  EXPECT_EQ(*Form1.StatusBar1.Panels[1], "false view");
  EXPECT_FALSE(Form1.TrueView.Checked);
  Form1.TrueView.Click();
  EXPECT_EQ(*Form1.StatusBar1.Panels[1], "true view");
  EXPECT_EQ(Cleared(), "main main ");
}

TEST_F(Views, ABulkheadBoxTakesEnter) {
  ShowBarge();
  Form1.AutoSpline.Click();
  journal.clear();
  Form1.Text1[4].Text = "120 inches";
  Form1.Text1[4].KeyPress('0');
  EXPECT_TRUE(Form1.AutoSpline.Checked);
  EXPECT_EQ(OffZ(1, 4), 100);
  EXPECT_EQ(Cleared(), "");
  Form1.Text1[4].KeyPress(EnterKey);
  EXPECT_EQ(OffZ(1, 4), 120);
  EXPECT_EQ(HullPts(3, 13, 2), 120);
  EXPECT_EQ(Cleared(), "section profile plan main ");
}

}  // namespace
