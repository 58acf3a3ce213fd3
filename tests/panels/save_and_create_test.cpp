#include "panels/save_and_create.h"

#include <clocale>

#include "base/files.h"
#include "controls/forms.h"
#include "hull/hull_file.h"
#include "hull/hull_model.h"
#include "panels/save_dialog.h"
#include "program/start_up.h"
#include "support/program_test.h"

namespace {

std::string Slashed(const std::string& path) {
  return path + static_cast<char>(std::filesystem::path::preferred_separator);
}

class SaveAndCreateTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Dummy4_Click();
    Form3.Text6.Text = (folder / "out").string();
    std::filesystem::create_directory(folder / "out");
    Form1.StatusBar1.Panels[1].Show = [this] { status.push_back(Form1.StatusBar1.Panels[1]); };
  }

  std::vector<std::string> status;
};

TEST_F(SaveAndCreateTest, RunsTheStagesInOrder) {
  NumChines = 3;
  Form3.Check3.Value = true;
  Form3.Check4.Value = true;
  Form3.Check8.Value = true;
  Form3.Command1.Click();
  const std::string out = (folder / "out/").string();
  std::vector<std::string> expected = {"Setting up solutions...", "Saving hull drawing default.DXF..."};
  const std::vector<std::string> panels = {"sole1", "sole2", "chine1", "chine2"};
  for (const auto& name : panels) {
    expected.push_back("Expanding..." + name + ".triangulation");
  }
  expected.emplace_back("Done...");
  for (const auto& name : panels) {
    expected.push_back("Leveling..." + name + ".uc");
  }
  expected.emplace_back("Done...");
  std::vector<std::string> parts = {"transom", "bhead1", "bhead2", "bhead3",
                                    "sole1",   "sole2",  "chine1", "chine2"};
  for (const auto& name : parts) {
    expected.push_back("Adding " + name + ".uc to HANDPLOT.TXT...");
  }
  expected.emplace_back("Done...");
  parts.insert(parts.end() - 2, "4x8");
  for (const char* ending : {".plt", ".dxf"}) {
    for (const auto& name : parts) {
      expected.push_back((ending[1] == 'p' ? "Exporting to HPGL..." : "Exporting to DXF...") + out + name +
                         ending);
    }
    expected.emplace_back("Done...");
  }
  expected.emplace_back("Working on...default.tvh");
  EXPECT_EQ(status, expected);
  EXPECT_FALSE(Form3.Visible);
}

TEST_F(SaveAndCreateTest, DeletesOldPatternsAndNothingElse) {
  Form3.Check10.Value = true;
  for (const char* name : {"chine29.tri", "FRAME8.UC", "watrplne.uc", "keel.tri", "deck.tri", "old.dxf",
                           "chine9.dxf", "HandPlot.txt"}) {
    Write(name, "old");
  }
  Form3.Command1.Click();
  EXPECT_FALSE(Exists("chine29.tri") || Exists("FRAME8.UC") || Exists("watrplne.uc"));
  EXPECT_EQ(Read("deck.tri") + Read("old.dxf") + Read("chine9.dxf"), "oldoldold");
  EXPECT_NE(Read("keel.tri"), "old");
}

TEST_F(SaveAndCreateTest, WithoutExpansionsOnlyTheHullIsSaved) {
  Form3.Visible = true;
  Form3.Check1.Value = false;
  Form3.Text1.Text = "skiff";
  Form3.Command1.Click();
  EXPECT_EQ(Names(), (std::vector<std::string>{"default.tvh", "out", "skiff.tvh"}));
  EXPECT_EQ(Read("default.tvh"), Read("skiff.tvh"));
  EXPECT_TRUE(Form3.Visible);
}

TEST_F(SaveAndCreateTest, TwoChinesHaveNoSoles) {
  NumChines = 2;
  Form3.Check8.Value = true;
  Form3.Command1.Click();
  EXPECT_FALSE(Form3.Check8.Value);
  EXPECT_FALSE(Exists("sole1.tri"));
}

TEST_F(SaveAndCreateTest, ALostFolderStopsNothing) {
  std::filesystem::remove(folder / "out");
  Form3.Check4.Value = true;
  Form3.Command1.Click();
  EXPECT_TRUE(Exists("chine1.uc"));
  EXPECT_TRUE(Exists("default.tvh"));
}

TEST_F(SaveAndCreateTest, NamesAreNormalised) {
  const std::pair<const char*, const char*> cases[] = {
      {"myboat", "myboat.tvh"},
      {"a.very.long", "a.tvh"},
      {"averylongname", "averylon.tvh"},
      {"zo\xC3\xABstr\xC3\xB6me", "zo\xC3\xABstr\xC3\xB6m.tvh"},
      {"my.boats/skiff.tvh", "my.tvh"}};
  for (const auto& [typed, name] : cases) {
    Form3.Text1.Text = typed;
    EXPECT_EQ(HullFileName, name);
  }
}

TEST_F(SaveAndCreateTest, TheNameOfAStrangersFileLeadsNowhere) {
  Form3.Check1.Value = false;
  std::filesystem::create_directory(folder / "a");
  for (const char* name : {"..\\..\\evil.tvh", "..\\evil", "a\\..\\..\\evil.tvh"}) {
    HullFileName = (folder / name).string();  // a file of this name lies in the folder and was chosen
    Dummy4_Click();
    Form3.Command1.Click();
    const std::filesystem::path saved(HullFileName);
    EXPECT_TRUE(std::filesystem::exists(saved)) << saved;
    EXPECT_EQ(saved.lexically_normal(), saved) << "no step up";
    EXPECT_TRUE(HullFileName.starts_with(folder.string())) << saved;
  }
}

TEST_F(SaveAndCreateTest, BoxesReachTheTables) {
  Form3.Text6.Text = "exports\\";
  EXPECT_EQ(ExportPath, Slashed("exports")) << "both kinds of separators may be typed";
  Form3.Text3.Text = "two sheets";
  EXPECT_EQ(HullInfo, "two sheets");
  Form3.FrameText[3].Text = "-12.5 in";
  EXPECT_EQ(FrameInches(3), 12.5);
  EXPECT_EQ(FrameFileText(2), "") << "never set stays an empty line";
  PitchAngle = 4;
  FrameZ[5] = 7.0;
  Dummy4_Click();
  EXPECT_EQ(PitchAngle, 0);
  EXPECT_EQ(*Form3.FrameText[5].Text, "7");
}

TEST_F(SaveAndCreateTest, SettingsComeBack) {
  Form3.Check1.Value = false;
  Form3.Check2.Value = true;
  Form3.Check10.Value = true;
  Form3.Text6.Text = "patterns";
  Form3.Unload();
  EXPECT_EQ(Read("hull.dat"),
            Joined({" 0 ", " 0 ", " 0 ", " 0 ", " 0 ", " 1 ", " 0 ", " 0 ", " 0 ", " 1 ", "patterns"}));
  StartProgram();
  Form3.Unload();
  EXPECT_EQ(Lines(Read("hull.dat"))[0], " 0 ") << "a window that was never made writes no settings";
  Dummy4_Click();
  EXPECT_FALSE(Form3.Check1.Value);
  EXPECT_TRUE(Form3.Check2.Value);
  EXPECT_EQ(ExportPath, Slashed("patterns"));
  Write("hull.dat", " 1 \r\n 1 ");
  ReadSaveSettings();
  EXPECT_TRUE(Form3.Check1.Value && Form3.Check3.Value && Form3.Check10.Value) << "what is missing stays";
  Form3.Text6.Text = "plans, old";
  Form3.Unload();
  Dummy4_Click();
  EXPECT_EQ(*Form3.Text6.Text, "plans") << "a comma ends the path";
  Form3.Text6.Text = "";
  Form3.Unload();
  Dummy4_Click();
  EXPECT_EQ(*Form3.Text6.Text, folder.string()) << "an empty path is the open folder";
}

TEST_F(SaveAndCreateTest, TheDialogComesAndGoes) {
  StartProgram();
  std::string seen;
  Form3.Move = [&](Place place) { seen += place == Place::Centre ? "centre " : "?"; };
  Form3.Command1.SetFocus = [&] { seen += "focus "; };
  Form3.File1.Refresh = [&] { seen += "files "; };
  Form3.ShowModal = [&] {
    seen += Form3.Visible ? "modal " : "?";
    EXPECT_EQ(*Form3.Label3.Caption, folder.string());
    EXPECT_EQ(*Form3.Text4.Text, "a@b.c");
    Form3.GotFocus();
    Form3.Command3.Click();
    Form3.Text1.Text = "skiff";
    int key = EscapeKey;
    Form3.KeyDown(key);
    EXPECT_EQ(key, NoKey);
  };
  HullContact = "a@b.c";
  Form1.Dummy4.Click();
  EXPECT_EQ(seen, "centre focus modal focus files files ");
  EXPECT_EQ(HullDate, "11-16-2026");
  EXPECT_FALSE(Form3.Visible);
  EXPECT_EQ(*Form1.StatusBar1.Panels[1], "Working on...skiff.tvh");
  EXPECT_EQ(Names(), (std::vector<std::string>{"out"})) << "nothing was saved";
  seen.clear();
  Form3.ShowModal = [] {
    int key = UpKey;
    Form3.KeyDown(key);
    EXPECT_EQ(key, UpKey);
    Form3.Check1.Value = false;
    Form3.Text1.KeyPress(EnterKey);
  };
  Form1.Dummy4.Click();
  EXPECT_EQ(seen, "files files ") << "made once, with one refresh by the save and one behind it";
  EXPECT_TRUE(Exists("skiff.tvh"));
}

TEST_F(SaveAndCreateTest, AChosenFileGivesItsNameOnly) {
  Form3.File1.Click();
  EXPECT_EQ(HullFileName, "default.tvh") << "none is chosen";
  Form3.Dir1.Path = (folder / "out").string();
  EXPECT_EQ(*Form3.Label3.Caption, *Form3.Dir1.Path);
  Form3.File1.FileName = "skiff.old.tvh";
  Form3.File1.Click();
  EXPECT_EQ(HullFileName, (folder / "out/skiff.tvh").string());
  Form3.Drive1.Drive = "/my.boats";
  EXPECT_EQ(*Form3.File1.Path, "/my.boats");
  EXPECT_EQ(*Form3.File1.FileName, "") << "another folder has no chosen file";
  Form3.File1.FileName = "skiff.tvh";
  Form3.File1.Click();
  EXPECT_EQ(HullFileName, "/my.tvh") << "cut at the first dot, which is the folder's";
}

TEST_F(SaveAndCreateTest, ClearingDeletesPatternsOnly) {
  for (const char* name : {"a.UC", "handplot.txt", "chine1.tri", "a.dxf"}) {
    Write(name, "old");
  }
  Form1.dummy21.Click();
  EXPECT_EQ(Names(), (std::vector<std::string>{"a.dxf", "chine1.tri", "out"}));
}

TEST_F(SaveAndCreateTest, DecimalCommasOfTheLocaleNeverShow) {
  if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr) {
    GTEST_SKIP() << "no locale with decimal commas here";
  }
  Form3.Command1.Click();
  std::setlocale(LC_ALL, "C");
  EXPECT_NE(Read("default.tvh").find(" 3.875 "), std::string::npos);
  for (const char* name : {"default.tvh", "chine1.tri", "default.dxf", "handplot.txt"}) {
    EXPECT_EQ(Read(name).find(','), std::string::npos) << name;
  }
}

/// What a builder needs of a seam: the same chine has the same length on both of its panels.
TEST_F(SaveAndCreateTest, SeamsOfNeighbouringPanelsAreEqual) {
  NumChines = 6;
  Form1.Refresh();
  Form3.Command1.Click();
  for (int n = 1; n <= 4; ++n) {
    const auto below = Lines(Read("chine" + std::to_string(n) + ".tri"));
    const auto above = Lines(Read("chine" + std::to_string(n + 1) + ".tri"));
    for (std::size_t k = 0; k < 12; ++k) {
      EXPECT_EQ(below[2 + 2 * k], above[52 + 2 * k]);
    }
  }
}

}  // namespace
