#include "hull/hull_file.h"

#include "base/files.h"
#include "base/number_text.h"
#include "controls/forms.h"
#include "hull/hull_model.h"
#include "hull/plot_scale.h"
#include "support/program_test.h"

namespace {

class HullFile : public ProgramTest {
 protected:
  /// Field lines of the hull in memory; line 1 is fields[0].
  static std::vector<std::string> Fields() { return Lines(HullText()); }
  static void Open(const std::vector<std::string>& lines) { LoadHull(Joined(lines), HullReader::FileList); }

  static constexpr std::size_t Offsets = 1;
  static std::size_t AutoSplineLine() { return Offsets + static_cast<std::size_t>(15 * NumChines); }
  static std::size_t Points() { return AutoSplineLine() + 1; }
  static std::size_t Frames() { return Points() + static_cast<std::size_t>(39 * NumChines); }
};

TEST_F(HullFile, HasItsFieldsInOrder) {
  FrameZ[1] = 44.5;
  HullDesigner = "A. Builder";
  BallastWeight = 12;
  Form4.Text10.Text = "31 in";
  Form4.Option1.Value = true;
  const auto lines = Fields();
  ASSERT_EQ(lines.size(), 1U + 60 + 1 + 156 + 8 + 7 + 2 + 5 + 4);
  EXPECT_EQ(lines[0], " 4 ");
  EXPECT_EQ(lines[2], " 1.3 ");
  EXPECT_EQ(lines[4], " 0.75 ");  // the next chine at the same bulkhead
  EXPECT_EQ(lines[AutoSplineLine()], "-1");
  EXPECT_EQ(lines[Frames()], "");
  EXPECT_EQ(lines[Frames() + 1], " 44.5 ");
  EXPECT_EQ(lines[Frames() + 8 + 2], "31 in");
  EXPECT_EQ(lines[Frames() + 16], "False");
  EXPECT_EQ(lines[Frames() + 17], "A. Builder");
  EXPECT_EQ(lines[Frames() + 22], " 12 ");
  EXPECT_EQ(lines.back(), " 0 ");
}

TEST_F(HullFile, SaveAndReopenGivesTheSameTextButForTheStep) {
  Form1.Text3.Text = "6";
  OffX(3, 2) = 31.123456789012;
  FrameZ[0] = 40.0;
  HullInfo = "plywood 1/4";
  NestMark = " 1 ";
  Form4.Text2.Text = "150";
  Form4.Option2.Value = true;
  Form1.Refresh();
  const std::string saved = HullText();
  LoadHull(saved, HullReader::FileList);
  EXPECT_FALSE(Form4.Option1.Value || Form4.Option2.Value);
  auto lines = Lines(saved);
  auto again = Fields();
  lines[Frames()] = "40 ";  // the open window keeps a frame as the text of its line
  lines[Frames() + 16] = "False";
  for (std::size_t i = 9; i < 14; ++i) {
    lines[Frames() + i] = "0";  // an empty rig box comes back as 0
  }
  lines[Frames() + 14] = "0";
  EXPECT_EQ(again, lines);
  EXPECT_EQ(*Form4.Label11.Caption, "plywood 1/4");
  EXPECT_EQ(Form1.VScroll1.Value(), 6);
}

TEST_F(HullFile, HandEditedPointsSurviveWithoutAutoSpline) {
  Form1.AutoSpline.Checked = false;
  HullPts(2, 5, 2) = 9.75;
  const std::string saved = HullText();
  Form1.AutoSpline.Checked = true;
  Form1.Refresh();
  LoadHull(saved, HullReader::FileList);
  EXPECT_FALSE(Form1.AutoSpline.Checked);
  EXPECT_EQ(HullPts(2, 5, 2), 9.75);
}

TEST_F(HullFile, OlderFilesEndBehindTheOffsets) {
  auto lines = Fields();
  Form1.AutoSpline.Checked = false;
  lines.resize(AutoSplineLine());
  Open(lines);
  EXPECT_TRUE(Form1.AutoSpline.Checked);
  EXPECT_EQ(HullPts(3, 13, 4), 140) << "the points come from the spline";
  Form1.AutoSpline.Checked = false;
  lines.push_back("0");
  Open(lines);
  EXPECT_TRUE(Form1.AutoSpline.Checked);
}

TEST_F(HullFile, ACutFileRepeatsTheLastItemOnce) {
  auto lines = Fields();
  lines[AutoSplineLine()] = "0";
  lines.resize(Points() + 4);  // the second point has its X only
  lines.back() = "7";
  FrameZ[2] = 5.0;
  HullInfo = "old";
  LoadHull(Joined(lines), HullReader::StartUp);
  EXPECT_EQ(HullPts(1, 1, 2), 7);
  EXPECT_EQ(HullPts(2, 1, 2), 7);
  EXPECT_EQ(HullPts(3, 1, 2), 0);
  EXPECT_EQ(FrameInches(2), 0);
  EXPECT_EQ(*Form4.Text2.Text, "0");
  EXPECT_EQ(HullInfo, "");
}

TEST_F(HullFile, MissingOffsetsKeepWhatTheCellsHeld) {
  auto lines = Fields();
  lines.resize(Offsets + 15);  // of bulkhead 1, chine 1 only
  LoadHull(Joined(lines), HullReader::StartUp);
  EXPECT_EQ(OffX(2, 1), 10.25);
  Open(lines);
  EXPECT_EQ(OffX(2, 1), 0);
  EXPECT_EQ(OffX(1, 1), 3.875);
  EXPECT_EQ(*Form1.Text1[1].Text, "28");
}

TEST_F(HullFile, TheCountIsHeldWhateverTheFileSays) {
  const std::pair<const char*, int> cases[] = {{"-5", 2},  {"0", 2},   {"word", 2}, {"", 2},
                                               {"4.5", 4}, {"5.5", 6}, {"1E9", 30}, {"1E400", 4}};
  const auto lines = Fields();
  for (const auto& [count, chines] : cases) {
    NumChines = 4;
    auto changed = lines;
    changed[0] = count;
    Open(changed);
    EXPECT_EQ(NumChines, chines) << count;
  }
}

TEST_F(HullFile, ChinesBeyondThirtyAreReadPastAndDropped) {
  std::vector<std::string> lines = {" 31 "};
  for (int k = 0; k < Bulkheads; ++k) {
    for (int c = 1; c <= 31; ++c) {
      lines.insert(lines.end(), {PrintText(c), PrintText(k), PrintText(20 * k)});
    }
  }
  Open(lines);
  EXPECT_EQ(NumChines, 30);
  EXPECT_EQ(OffX(30, 4), 30);
  EXPECT_EQ(OffX(1, 4), 1);

  LoadHull(std::string("3\r\n\0\0\0\r\n", 8) + std::string(1 << 20, '9') + "\r\n" + std::string(1 << 20, 'x'),
           HullReader::FileList);
  EXPECT_EQ(NumChines, 3);
  EXPECT_EQ(OffY(1, 0), 0) << "a number too large for a double is skipped";
  LoadHull("", HullReader::FileList);
  EXPECT_EQ(NumChines, 3);
}

TEST_F(HullFile, DecimalCommasBecomePointsOnDisk) {
  auto lines = Fields();
  lines[Offsets + 1] = " 1,75 ";
  lines[Frames() + 18] = "oak, ash";
  Write("boat.tvh", Joined(lines));
  NormalizeHullFile("boat.tvh");
  LoadHullFile("boat.tvh", HullReader::FileList);
  EXPECT_EQ(OffY(1, 0), 1.75);
  EXPECT_EQ(HullInfo, "oak. ash");
  EXPECT_EQ(Read("temp.txt"), Read("boat.tvh"));
}

TEST_F(HullFile, CalibrationFiles) {
  const std::tuple<const char*, double, double> cases[] = {{"-500, 0", 500, 500},
                                                           {"-1016 1016", 1016, 1016},
                                                           {"200\r\n", 200, 500},
                                                           {"", 500, 500},
                                                           {"x,y", 500, 500}};
  for (const auto& [text, x, y] : cases) {
    PlotXScale = PlotYScale = 500;
    Write("QV32.dat", text);
    Write("qvector.dat", "1,1");
    ReadPlotScale();
    EXPECT_EQ(PlotXScale, x) << text;
    EXPECT_EQ(PlotYScale, y) << text;
  }
  std::filesystem::create_directories(folder / "config" / "tarve");
  Write("config/tarve/qvxp.dat", "77,88");
  ReadPlotScale();
  EXPECT_EQ(PlotYScale, 88) << "the shared file comes first";
}

}  // namespace
