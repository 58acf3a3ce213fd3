#include "views/vrml.h"

#include "controls/forms.h"
#include "hull/hull_model.h"
#include "support/program_test.h"

namespace {

/// A box barge of two chines, 120 inches long, 20 wide and 20 high.
class Vrml : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    SetBoxBarge(10, 20, 120);
    Form1.Refresh();
    lines = Lines(VrmlText());
  }
  /// Line i of a face set, from 0; its triangles start at line 3.
  std::string InSet(int set, std::size_t i) const {
    std::size_t at = 0;
    for (int found = 0; found < set; ++at) {
      found += lines[at].starts_with("   Material") ? 1 : 0;
    }
    return lines[at - 1 + i];
  }

  std::vector<std::string> lines;
};

TEST_F(Vrml, PointsAndCamera) {
  const std::vector<std::string> head = {
      "#VRML V1.0 ascii", "PerspectiveCamera {", "   position 1.52 0.51 2.74", "}", "Separator {  #  XYZ",
      "   Coordinate3 {", "      point ["};
  EXPECT_EQ(std::vector<std::string>(lines.begin(), lines.begin() + 7), head);
  EXPECT_EQ(lines[7], "              0.000 0.000 0.254 ,");
  EXPECT_EQ(lines[7 + 12], "              3.048 0.000 0.254 ,");
  EXPECT_EQ(lines[7 + 13], "              0.000 0.508 0.254 ,");
  EXPECT_EQ(lines[7 + 26], "              0.000 0.000 -0.254 ,");
  EXPECT_EQ(lines[7 + 52] + lines[7 + 53], "      ]   }");
  EXPECT_EQ(lines.back(), "}");
  EXPECT_EQ(VrmlText().find("\n", 17), 17U) << "CR LF";
}

TEST_F(Vrml, FaceSets) {
  const struct {
    const char* material;
    std::size_t triangles;
    std::vector<std::pair<std::size_t, const char*>> lines;
  } sets[] = {
      {"0.30 0.50 0.80  }", 24, {{0, " 0 , 1 , 13 , -1 ,"}, {1, " 1 , 14 , 13 , -1 ,"}}},
      {"0.80 0.50 0.50  }", 24, {{0, " 0 , 13 , 1 , -1 ,"}, {1, " 1 , 13 , 14 , -1 ,"}}},
      {"0.30 0.50 0.80  }", 24, {{0, " 26 , 39 , 27 , -1 ,"}, {1, " 27 , 39 , 40 , -1 ,"}}},
      {"0.80 0.50 0.50  }", 24, {{0, " 26 , 27 , 39 , -1 ,"}, {1, " 27 , 40 , 39 , -1 ,"}}},
      {"0.00 0.70 0.00  transparency .5 }", 10, {{0, " 0 , 13 , 39 , -1 ,"}, {1, " 0 , 39 ,  26 , -1 ,"}}},
      {"0.20 0.20 0.20  transparency .5 }", 10, {{0, " 0 , 39 , 13 , -1 ,"}, {1, " 0 , 26 , 39 , -1 ,"}}},
      {"0.00 0.00 0.70  transparency .85 }", 24, {{0, " 1 , 0 , 26 , -1 ,"}, {1, " 1 , 26 , 27 , -1 ,"}}},
      {"0.80 0.3 0.3  transparency .65 }", 24, {{0, " 1 , 26 , 0 , -1 ,"}, {1, " 1 , 27 , 26 , -1 ,"}}},
      {"0.10 0.10 0.10  transparency .80 }",
       24,
       {{0, " 13 , 14 , 39 , -1 ,"}, {1, " 14 , 40 , 39 , -1 ,"}, {23, " 25 , 51 , 50 , -1 ,"}}},
  };
  int number = 0;
  std::size_t total = 7 + 52 + 2 + 1;
  for (const auto& set : sets) {
    ++number;
    EXPECT_EQ(InSet(number, 0), std::string("   Material { diffuseColor ") + set.material);
    EXPECT_EQ(InSet(number, 1) + InSet(number, 2), "   IndexedFaceSet {      coordIndex [");
    for (const auto& [i, text] : set.lines) {
      EXPECT_EQ(InSet(number, 3 + i), std::string(14, ' ') + text) << number;
    }
    EXPECT_EQ(InSet(number, 3 + set.triangles) + InSet(number, 4 + set.triangles), "      ]   }") << number;
    total += 5 + set.triangles;
  }
  EXPECT_EQ(lines.size(), total);
}

TEST_F(Vrml, TheFileIsNamedLikeTheHull) {
  const std::pair<const char*, const char*> names[] = {{"default.tvh", "default.wrl"},
                                                       {"/home/my.boats/skiff.tvh", "/home/my.wrl"},
                                                       {"  a.b.tvh", "a.wrl"},
                                                       {"skiff", "wrl"},
                                                       {"  .tvh", ".wrl"}};
  for (const auto& [hull, file] : names) {
    EXPECT_EQ(VrmlName(hull), file) << hull;
  }
  Write("default.wrl", "old");
  HullFileName = "barge.tvh";
  OffY(2, 4) = 25;  // not yet repainted
  Form1.Command2.Click();
  EXPECT_EQ(Read("barge.wrl"), VrmlText());
  EXPECT_EQ(Read("default.wrl"), Read("barge.wrl"));
  EXPECT_NE(Read("barge.wrl").find("0.635"), std::string::npos);
  HullFileName = (folder / "none" / "barge.tvh").string();
  Form1.Command2.Click();
  EXPECT_EQ(Names(), (std::vector<std::string>{"barge.wrl", "default.wrl"})) << "fails quietly";
}

}  // namespace
