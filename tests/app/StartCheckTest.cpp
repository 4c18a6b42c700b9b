#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "app/SingleInstance.h"
#include "app/StartCheck.h"
#include "presentation/PictureSizes.h"
#include "support/Rows.h"
#include "support/ScriptedDialogs.h"
#include "support/TempFolder.h"

namespace kv::test {
namespace {

namespace fs = std::filesystem;

struct StartCheck : ::testing::Test {
  // Everything the program needs, the sound folder under the name it has on disk.
  StartCheck() {
    fs::create_directory(program / "Sounds");
    for (const char* name :
         {"bnkgothicL.ttf", "BNKGOTHICM.TTF", "Sounds/accept.wav", "Sounds/bust.wav", "Sounds/buy.wav",
          "Sounds/check.wav", "Sounds/click.wav", "Sounds/draw.wav", "Sounds/hover.wav", "Sounds/LevelUp.wav",
          "Sounds/losematch.wav", "Sounds/loseset.wav", "Sounds/panel.wav", "Sounds/playcard.wav",
          "Sounds/propose.wav", "Sounds/tie.wav", "Sounds/turn.wav", "Sounds/winmatch.wav",
          "Sounds/winset.wav"}) {
      program.Put(name, "");
    }
    PutDataFile(kDataFileSize);
  }
  void PutDataFile(long long size) const {
    program.Put("vntdata.dat", "");
    fs::resize_file(program / "vntdata.dat", static_cast<std::uintmax_t>(size));
  }
  bool Check() { return CheckProgramFiles(program.path(), working.path(), dialogs); }

  TempFolder program;
  TempFolder working;
  ScriptedDialogs dialogs;
};

TEST_F(StartCheck, TheFirstMissingFileIsNamedAndNothingElseIsDone) {
  // From the last of the list to the first: each time the earlier one is told.
  for (const auto& [gone, named] : Rows<const char*, const char*>{{"Sounds/winset.wav", "sounds\\winset.wav"},
                                                                  {"Sounds/accept.wav", "sounds\\accept.wav"},
                                                                  {"BNKGOTHICM.TTF", "bnkgothicM.ttf"},
                                                                  {"vntdata.dat", "vntdata.dat"}}) {
    fs::remove(program / gone);
    EXPECT_FALSE(Check());
    EXPECT_EQ(dialogs.boxes.back().text, "Could not find file '" + std::string(named) + "'");
    EXPECT_EQ(dialogs.boxes.back().title, "Kelm Vantri: Error");
    EXPECT_EQ(dialogs.boxes.back().icon, DialogIcon::Critical);
  }
  EXPECT_EQ(dialogs.boxes.size(), 4U);
  EXPECT_EQ(working.Count(), 0);
}

TEST_F(StartCheck, TheDataFileMustHaveItsExactSize) {
  EXPECT_TRUE(Check());
  EXPECT_TRUE(dialogs.boxes.empty());
  for (const int difference : {-1, 1}) {
    PutDataFile(kDataFileSize + difference);
    EXPECT_FALSE(Check());
    EXPECT_EQ(dialogs.boxes.back().text,
              "Data file size doesn't not match expected size. Check that you are running the latest base "
              "version and update.");
    EXPECT_EQ(dialogs.boxes.back().icon, DialogIcon::None);
  }
}

TEST_F(StartCheck, OwnPortraitsLieBesideTheProgramOrElseBesideThePlayers) {
  PutDataFile(0);
  EXPECT_FALSE(Check());  // the folder is made before the size is looked at
  EXPECT_TRUE(fs::is_directory(working / "Portraits"));
  EXPECT_EQ(PortraitFolder(program.path(), working.path()), working / "Portraits");
  EXPECT_EQ(PortraitFolder(program.path(), ""), "Portraits");
  fs::remove(working / "Portraits");
  program.Put("Portraits", "a file is no folder");
  EXPECT_EQ(PortraitFolder(program.path(), working.path()), working / "Portraits");
  fs::remove(program / "Portraits");
  fs::create_directory(program / "portraits");
  EXPECT_FALSE(Check());
  EXPECT_EQ(working.Count(), 0);
  EXPECT_EQ(PortraitFolder(program.path(), working.path()), program / "Portraits");
}

TEST(SingleInstance, OneCopyForEachFolderAndAKilledOneKeepsNobodyOut) {
  const TempFolder folder;
  const TempFolder another;
  const pid_t killed = ::fork();
  if (killed == 0) {
    const SingleInstance never(folder.path());
    ::_exit(never.OtherRuns() ? 1 : 0);
  }
  ASSERT_EQ(::waitpid(killed, nullptr, 0), killed);
  EXPECT_EQ(folder.Count(), 1);  // its mark is still there
  {
    const SingleInstance first(folder.path());
    EXPECT_FALSE(first.OtherRuns());
    EXPECT_TRUE(SingleInstance(folder.path()).OtherRuns());
    EXPECT_FALSE(SingleInstance(another.path()).OtherRuns());
    EXPECT_FALSE(SingleInstance(folder / "gone").OtherRuns());
  }
  EXPECT_FALSE(SingleInstance(folder.path()).OtherRuns());
}

}  // namespace
}  // namespace kv::test
