#pragma once
// What tests of the views share: recording surfaces in place of the four pictures.

#include <array>
#include <filesystem>
#include <string>

#include "base/files.h"
#include "controls/forms.h"
#include "hull/hull_file.h"
#include "hull/hull_model.h"
#include "support/program_test.h"
#include "support/recording_surface.h"

class ViewTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    const char* names[] = {"section", "profile", "plan"};
    for (std::size_t i = 0; i < thumbnails.size(); ++i) {
      Form1.Picture1[i] = &thumbnails[i];
      thumbnails[i].name = names[i];
      thumbnails[i].journal = &journal;
    }
    Form1.Picture2 = &picture;
    picture.name = "main";
    picture.journal = &journal;
  }

  /// A box of half-beam 25 and length 100, so that the margin is 1 and a marker reaches 0.25. All
  /// surfaces are half as high as wide.
  static void ShowBarge(double depth = 20) {
    SetBoxBarge(25, depth, 100);
    Form1.Refresh();
  }

  static void OpenSample(const std::string& name) {
    LoadHullFile((ShippedDataFolder() / "hulls" / name).string(), HullReader::FileList);
  }

  std::array<RecordingSurface, 3> thumbnails;
  RecordingSurface picture;
  /// The calls of all four in one order.
  std::string journal;
};
