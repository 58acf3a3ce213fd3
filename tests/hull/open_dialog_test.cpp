#include "hull/open_dialog.h"

#include <array>

#include "base/files.h"
#include "base/number_text.h"
#include "controls/forms.h"
#include "hull/figures.h"
#include "hull/hull_file.h"
#include "hull/hull_model.h"
#include "hull/rig.h"
#include "hydro/hydrostatics.h"
#include "program/start_up.h"
#include "support/program_test.h"
#include "support/recording_surface.h"

namespace {

class OpenDialog : public ProgramTest {
 protected:
  static void Choose(const std::string& name) {
    Form4.File1.FileName = name;
    Form4.File1.Click();
  }
  /// Repaints of the main view that an act brings.
  template <class Act>
  int Repaints(Act act) {
    int count = 0;
    Form1.Picture2.Refresh = [&] { ++count; };
    act();
    Form1.Picture2.Refresh = nullptr;
    return count;
  }
};

TEST_F(OpenDialog, OpensAFileAtTheClick) {
  Form1.Text3.Text = "5";
  OffY(2, 1) = 7.5;
  HullInfo = "oak, ash";
  Form4.Text10.Text = "31 in";
  Form4.Text11.Text = "12,5";
  Form4.Option1.Value = true;
  std::filesystem::create_directory(folder / "my.boats");
  WriteHullFile("my.boats/skiff.tvh");
  StartProgram();
  FigureIndex = 2;
  Form4.Shape2.Visible = true;
  int repaints = 0;
  Form1.Refresh = [&] { ++repaints; };
  Choose("");
  EXPECT_EQ(HullFileName, "default.tvh");
  Form4.Dir1.Path = (folder / "my.boats").string();
  EXPECT_EQ(*Form4.Label3.Caption, *Form4.Dir1.Path);
  Choose("skiff.tvh");
  EXPECT_EQ(HullFileName, (folder / "my.boats/skiff.tvh").string());
  EXPECT_EQ(*Form1.StatusBar1.Panels[1], "Working on..." + HullFileName);
  EXPECT_EQ(OffY(2, 1), 7.5);
  EXPECT_EQ(OffX(6, 1), 0) << "what the file doesn't hold is erased";
  EXPECT_EQ(*Form4.Label11.Caption, "oak. ash");
  EXPECT_EQ(RigStepZ, 31);
  EXPECT_EQ(BallastWeight, 12);
  EXPECT_FALSE(Form4.Option1.Value || Form4.Option2.Value);
  EXPECT_EQ(Read("my.boats/skiff.tvh").find(','), std::string::npos) << "rewritten with points";
  EXPECT_EQ(FigureIndex, -1);
  EXPECT_FALSE(Form4.Shape2.Visible);
  EXPECT_GE(repaints, 1);
}

TEST_F(OpenDialog, ItsMenuItemForgetsResultsAndPitch) {
  PitchAngle = 3;
  Form1.Refresh();
  Form1.EnterWaterline.Click();
  Form1.HScroll1.SetValue(90);
  ASSERT_GT(DisplacedVolume, 0);
  GravityCenterY = 4;
  std::vector<Place> moves;
  Form1.Move = [&](Place place) { moves.push_back(place); };
  int lists = 0;
  Form4.File1.Refresh = [&] { ++lists; };
  Form1.dummy2.Click();
  EXPECT_EQ(DisplacedVolume + WaterlineLength + WaterlineY + WaterlineAftZ + GravityCenterY, 0);
  EXPECT_EQ(PitchAngle + PitchApplied, 0);
  EXPECT_FALSE(Form1.EnterWaterline.Checked || Form1.HScroll1.Visible || Form1.Combo1.Visible);
  EXPECT_TRUE(Form1.Combo1.Rows().empty());
  EXPECT_TRUE(Form4.Visible);
  bool refuse = false;
  Form4.QueryUnload(refuse);
  EXPECT_TRUE(refuse);
  HullFileName = "dory.tvh";
  Form4.Command1.Click();
  EXPECT_EQ(moves, (std::vector<Place>{Place::TopLeft, Place::Centre}));
  EXPECT_EQ(*Form1.StatusBar1.Panels[1], "Working on...dory.tvh");
  EXPECT_EQ(lists, 2);
  EXPECT_FALSE(Form4.Visible);
}

TEST_F(OpenDialog, BoxesOfRigAndBallastReachTheirNumbers) {
  const std::tuple<TextBox*, double*, int> cases[] = {
      {&Form4.Text2, &RigMastLength, 1},   {&Form4.Text4, &RigBoomHeight, 1},
      {&Form4.Text10, &RigStepZ, 1},       {&Form4.Text5, &RigLuffLength, 1},
      {&Form4.Text9, &RigFootLength, 1},   {&Form4.Text6, &RigHeadLength, 1},
      {&Form4.Text7, &RigHeadAngle, 1},    {&Form4.Text11, &BallastWeight, 0},
      {&Form4.Text12, &BallastStation, 0}, {&Form4.Text13, &BallastHeight, 0}};
  double value = 10;
  for (const auto& [box, number, repaints] : cases) {
    value += 1.5;
    EXPECT_EQ(Repaints([&] { box->Text = std::to_string(value) + " in"; }), repaints) << value;
    EXPECT_EQ(*number, value);
    box->Text = "1E999";
    EXPECT_EQ(*number, value) << "too large";
  }
  EXPECT_EQ(Repaints([] { Form4.Rig.Value = true; }), 1);
  EXPECT_EQ(Repaints([] { Form4.Option2.Value = true; }), 1);
}

class Figures : public OpenDialog {
 protected:
  void SetUp() override {
    OpenDialog::SetUp();
    Write("persons.fig",
          "10 10\r\nstart of a figure\r\nFirst friend\r\n0 0\r\n6.7 0\r\n6.7 67\r\n0 0\r\nend\r\n99 99\r\n"
          "start\r\nSecond\r\n0 -5\r\n20 10\r\nno-blank\r\n");
  }
  static std::string At(int i) { return PlainText(FigureX(i)) + "," + PlainText(FigureY(i)); }
};

TEST_F(Figures, ThumbnailsFillTheirBoxes) {
  std::array<RecordingSurface, 3> boxes;
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    Form4.Picture2[i] = &boxes[i];
  }
  HullDesigner = "A. Builder";
  FigureIndex = 1;
  Place place = Place::Centre;
  Form4.Move = [&](Place to) { place = to; };
  Form4_Load();
  EXPECT_EQ(place, Place::BottomRight);
  EXPECT_TRUE(Form4.Visible);
  EXPECT_EQ(*Form4.Label4.Caption, "A. Builder");
  EXPECT_EQ(boxes[0].calls,
            "scale -2.0,69.0 69.0,-2.0\nline 0.0,0.0 6.7,0.0 c4\nline 6.7,0.0 6.7,67.0 c4\n"
            "line 6.7,67.0 0.0,0.0 c4\n");
  EXPECT_TRUE(boxes[1].Has("scale -2.0,69.0 69.0,-2.0")) << "a line without a blank keeps its point";
  EXPECT_EQ(boxes[1].Count("line", ""), 2);
  EXPECT_EQ(boxes[2].calls, "");
  EXPECT_EQ(FigureIndex, -1);
}

TEST_F(Figures, AClickSelectsCentresAndScales) {
  EXPECT_EQ(Repaints([] { Form4.Picture2[0].Click(); }), 1);
  EXPECT_EQ(FigureCount, 4);
  EXPECT_EQ(*Form4.Caption, "First friend");
  EXPECT_TRUE(Form4.Shape2.Visible);
  EXPECT_EQ(At(3), "3.35,33.5");
  EXPECT_EQ(FigureOffsetY, 33.5);
  Form4.VScroll2.SetValue(78);
  EXPECT_EQ(*Form4.Text3.Text, "78");
  EXPECT_EQ(FigureIndex, -1) << "a new height asks for a new click";
  EXPECT_FALSE(Form4.Shape2.Visible);
  Form4.Picture2[0].Click();
  EXPECT_DOUBLE_EQ(FigureX(2) - FigureX(1), 7.8);
  EXPECT_EQ(Repaints([] { Form4.Picture2[0].Click(); }), 1);
  EXPECT_EQ(*Form4.Caption, "Open");
  EXPECT_FALSE(Form4.Shape2.Visible);
}

TEST_F(Figures, FlipsAndTurns) {
  Form4.Picture2[0].Click();
  const int repaints = Repaints([] {
    Form4.Command5.Click();
    EXPECT_EQ(At(3), "-3.35,33.5");
    Form4.Command6.Click();
    EXPECT_EQ(At(3), "-3.35,-33.5");
    Form4.Command7.Click();
    EXPECT_EQ(At(3), "-33.5,-3.35");
  });
  EXPECT_EQ(repaints, 3);
  Form4.Text8.Text = "90 kg";
  EXPECT_EQ(FigureWeight, 90);
}

TEST_F(Figures, ABoxWithoutAFigureShowsItsFrameOnly) {
  Form4.Picture2[0].Click();
  Form4.Picture2[5].Click();
  EXPECT_EQ(FigureIndex, -1);
  EXPECT_TRUE(Form4.Shape2.Visible);
  EXPECT_EQ(*Form4.Shape2.Index, 5);
  SetDataFolder(folder / "none");
  std::filesystem::remove(folder / "persons.fig");
  Form4_Load();
  Form4.Picture2[1].Click();
  EXPECT_EQ(FigureIndex, -1);
  EXPECT_EQ(*Form4.Shape2.Index, 1);
}

TEST_F(Figures, MoreThanTheTablesHold) {
  std::string text;
  for (int figure = 0; figure < 11; ++figure) {
    text += "start\nF" + std::to_string(figure) + "\n";
    for (int i = 1; i <= (figure == 8 ? 103 : 3); ++i) {
      text += std::to_string(i) + " " + std::to_string(figure) + "\n";
    }
    text += "end\n";
  }
  Write("persons.fig", text);
  RecordingSurface last;
  Form4.Picture2[8] = &last;
  Form4_Load();
  EXPECT_EQ(last.Count("line", ""), 99);
  EXPECT_TRUE(last.Has("scale -2.0,102.0 102.0,-2.0"));
  Form4.Picture2[8].Click();
  EXPECT_EQ(FigureCount, 103);
  EXPECT_EQ(At(100), "50,4");
}

TEST_F(Figures, OursFitTheTables) {
  std::filesystem::remove(folder / "persons.fig");
  for (std::size_t i = 0; i < 6; ++i) {
    Form4.Picture2[i].Click();
    ASSERT_EQ(FigureIndex, static_cast<int>(i));
    EXPECT_LE(FigureCount, MostFigurePoints);
    EXPECT_EQ(At(1), At(FigureCount)) << "closed";
  }
  Form4.Picture2[0].Click();
  EXPECT_EQ(HullMaxY, DrawnHeight) << "the first one stands upright";
}

}  // namespace
