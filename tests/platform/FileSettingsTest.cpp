#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <iostream>

#include "platform/FileSettings.h"
#include "support/HandScheduler.h"
#include "support/Limits.h"
#include "support/TempFolder.h"

namespace kv::test {
namespace {

namespace fs = std::filesystem;

class FileSettingsTest : public testing::Test {
 protected:
  [[nodiscard]] FileSettings Open() { return {path, scheduler}; }
  /// True when a text that is written now is there for the next start.
  [[nodiscard]] bool Keeps() {
    Open().Write("volume", "40");
    return Open().Read("volume") == "40";
  }

  const TempFolder folder;
  const std::string path = folder / "own/settings.ini";  // a folder that is not there yet
  HandScheduler scheduler;
};

TEST_F(FileSettingsTest, AChangeStandsOnTheDiskSoonAndNothingTicksAfterwards) {
  FileSettings settings = Open();
  EXPECT_EQ(settings.Read("size"), std::nullopt);
  for (int place = 0; place < 100; ++place) {
    settings.Write("place.x", std::to_string(place));
    scheduler.Advance(10);
  }
  EXPECT_TRUE(FileSettings(path, scheduler).Read("place.x")) << "written at the end of a long drag only";
  scheduler.Advance(500);
  EXPECT_EQ(Open().Read("place.x"), "99");
  EXPECT_EQ(scheduler.RunningTimers(), 0);

  // What is as it was is not written again.
  fs::remove(path);
  settings.Write("place.x", "99");
  scheduler.Advance(500);
  EXPECT_FALSE(fs::exists(path));
}

TEST_F(FileSettingsTest, KeepsWhatALaterVersionHasWrittenAndAnyText) {
  fs::create_directory(folder / "own");
  folder.Put("own/settings.ini", "[head]\r\n# note\nnew.thing=a=b\n=\nvolume=7\nlast");
  Open().Write("last_player", "Zoë = \"1\"");
  EXPECT_EQ(Open().Read("new.thing"), "a=b");
  EXPECT_EQ(Open().Read("volume"), "7");
  EXPECT_EQ(Open().Read("last_player"), "Zoë = \"1\"");
  Open().Write("last_player", "two\nvolume=9");
  EXPECT_EQ(Open().Read("volume"), "7");
}

TEST_F(FileSettingsTest, DamageCostsOnlyWhatItHit) {
  fs::create_directory(folder / "own");
  std::string rubbish;
  for (int i = 0; i < 60000; ++i) rubbish += static_cast<char>(i * 7919 >> 3);
  for (const std::string& bytes : {std::string(), rubbish, std::string(200000, 'x'), std::string(9, '\0')}) {
    folder.Put("own/settings.ini", bytes);
    EXPECT_EQ(Open().Read("volume"), std::nullopt);
    EXPECT_TRUE(Keeps());
  }
  folder.Put("own/settings.ini", "volume=\x01\nsi\0ze=75\nfull_screen=yes\n");
  EXPECT_EQ(Open().Read("volume"), std::nullopt);
}

TEST_F(FileSettingsTest, SomethingElseInItsPlaceIsNoStop) {
  testing::internal::CaptureStderr();
  fs::create_directories(path);
  {
    FileSettings settings = Open();
    for (const char* volume : {"1", "2", "3"}) {
      settings.Write("volume", volume);
      scheduler.Advance(500);
    }
    EXPECT_EQ(settings.Read("volume"), "3");
  }
  EXPECT_TRUE(fs::is_directory(path));
  const std::string noted = testing::internal::GetCapturedStderr();
  EXPECT_EQ(std::ranges::count(noted, '\n'), 1) << noted;

  fs::remove(path);
  ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
  EXPECT_TRUE(Keeps()) << "a pipe would be waited at for ever";
  testing::internal::CaptureStderr();
  fs::remove_all(folder / "own");
  folder.Put("own", "a file where the folder should be");
  EXPECT_FALSE(Keeps());
  EXPECT_EQ(folder.Get("own"), "a file where the folder should be");
  (void)testing::internal::GetCapturedStderr();
}

TEST_F(FileSettingsTest, AFullDiskLeavesTheOldFile) {
  ASSERT_TRUE(Keeps());
  testing::internal::CaptureStderr();
  {
    const FullDisk full(0);
    Open().Write("volume", "90");
  }
  std::cerr.clear();  // its own file was full, too
  (void)testing::internal::GetCapturedStderr();
  EXPECT_EQ(Open().Read("volume"), "40");
  EXPECT_EQ(std::distance(fs::directory_iterator(folder / "own"), {}), 1);
}

}  // namespace
}  // namespace kv::test
