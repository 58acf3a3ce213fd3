#include "base/files.h"

#include <chrono>

#include "support/program_test.h"

namespace fs = std::filesystem;

namespace {

using Files = ProgramTest;

TEST_F(Files, AreFoundInAnyLetterCaseAndReplacedUnderTheirOwnName) {
  Write("Chine1.UC", "old");
  EXPECT_EQ(FindFile("chine1.uc").filename(), "Chine1.UC");
  EXPECT_TRUE(WriteTextFile("chine1.uc", "new"));
  EXPECT_EQ(Names(), std::vector<std::string>{"Chine1.UC"});
  EXPECT_EQ(Read("Chine1.UC"), "new");
}

TEST_F(Files, HeldBackChangesAreDoneTogetherOrNotAtAll) {
  Write("old.uc", "old");
  Write("kept.uc", "kept");
  HoldBackChanges();
  WriteTextFile("new.uc", "new");
  WriteTextFile("OLD.uc", "changed");
  DeleteFiles("kept", ".uc");
  EXPECT_EQ(ReadOrEmpty("New.uc") + ReadOrEmpty("old.uc") + ReadOrEmpty("kept.uc"), "newchanged");
  EXPECT_EQ(Names(), (std::vector<std::string>{"kept.uc", "old.uc"})) << "nothing on disk yet";
  EXPECT_EQ(Read("old.uc"), "old");
  EXPECT_TRUE(CommitChanges());
  EXPECT_EQ(Names(), (std::vector<std::string>{"new.uc", "old.uc"}));
  EXPECT_EQ(Read("old.uc"), "changed");

  HoldBackChanges();
  WriteTextFile("new.uc", "lost");
  DeleteFile("old.uc");
  WriteTextFile("no/such/folder.uc", "lost");
  EXPECT_FALSE(CommitChanges());
  EXPECT_EQ(Names(), (std::vector<std::string>{"new.uc", "old.uc"}));
  EXPECT_EQ(Read("new.uc"), "new");
}

TEST_F(Files, ReadOnlyFilesStayWhoeverAsks) {
  Write("a.uc", "kept");
  fs::permissions(folder / "a.uc", fs::perms::owner_read);
  std::string told;
  FileFailed = [&told](const fs::path& path, const std::string&) { told += path.filename().string() + " "; };
  EXPECT_FALSE(WriteTextFile("a.uc", "lost"));
  EXPECT_FALSE(CopyTextFile("a.uc", "a.uc"));
  DeleteFiles("", ".uc");
  FileFailed = nullptr;
  EXPECT_EQ(Read("a.uc"), "kept");
  EXPECT_EQ(told, "a.uc a.uc ");
}

TEST_F(Files, AFullDiskCostsNothing) {
  if (!fs::exists("/dev/full")) {
    GTEST_SKIP() << "no /dev/full here";
  }
  fs::create_symlink("/dev/full", folder / "full.txt");
  std::string why;
  FileFailed = [&why](const fs::path&, const std::string& reason) { why = reason; };
  EXPECT_FALSE(WriteTextFile("full.txt", "x"));
  EXPECT_FALSE(WriteTextFile("no/such/folder/x.txt", "x"));
  FileFailed = nullptr;
  EXPECT_FALSE(why.empty());
  EXPECT_EQ(Names(), std::vector<std::string>{"full.txt"}) << "nothing half written is left";
}

TEST_F(Files, WhatAKilledRunLeftIsTakenAwayAndNothingElse) {
  const auto an_hour_ago = fs::file_time_type::clock::now() - std::chrono::hours(1);
  for (const char* name :
       {"boat.tvh.tarve-new7", "boat.tvh.tarve-new", "boat.tvh.tarve-new7x", "boat.tvh.new7"}) {
    Write(name, "half");
    fs::last_write_time(folder / name, an_hour_ago);
  }
  fs::create_symlink("elsewhere.tarve-new8", folder / "link.tarve-new8");
  Write("boat.tvh.tarve-new9", "a save that another program makes right now");
  EXPECT_TRUE(WriteTextFile("boat.tvh", "whole"));
  EXPECT_EQ(Names(),
            (std::vector<std::string>{"boat.tvh", "boat.tvh.new7", "boat.tvh.tarve-new",
                                      "boat.tvh.tarve-new7x", "boat.tvh.tarve-new9", "link.tarve-new8"}));
}

TEST_F(Files, ALinkStaysALinkAndItsFileIsReplaced) {
  Write("real.tvh", "old");
  fs::create_symlink("real.tvh", folder / "link.tvh");
  EXPECT_TRUE(WriteTextFile("link.tvh", "new"));
  EXPECT_TRUE(fs::is_symlink(folder / "link.tvh"));
  EXPECT_EQ(Read("real.tvh"), "new");
}

TEST_F(Files, DeletingGoesByBeginningAndEnding) {
  for (const char* name : {"chine1.tri", "Chine10.TRI", "keel.tri", "chine.txt", "tri"}) {
    Write(name, "");
  }
  fs::create_directory(folder / "chine2.tri");
  DeleteFiles("chine", ".tri");
  EXPECT_EQ(Names(), (std::vector<std::string>{"chine.txt", "chine2.tri", "keel.tri", "tri"}));
}

TEST_F(Files, AKeptFileIsNeverWrittenTo) {
  Write("boat.tvh", "mine");
  KeepAsItIs(folder / "boat.tvh");
  EXPECT_FALSE(WriteTextFile("BOAT.tvh", "theirs"));
  DeleteFile("boat.tvh");
  KeepAsItIs({});
  EXPECT_EQ(Read("boat.tvh"), "mine");
}

}  // namespace
