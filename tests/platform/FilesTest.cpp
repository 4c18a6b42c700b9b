// Files by name and their whole replacement, and the settings that stand in one.
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <iostream>

#include "platform/FileSettings.h"
#include "platform/Files.h"
#include "support/HandScheduler.h"
#include "support/Limits.h"
#include "support/TempFolder.h"

namespace kv::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

namespace fs = std::filesystem;

TEST(Files, ReadsWholeFilesUpToTheLimit) {
  const TempFolder folder;
  folder.Put("a", std::string("x\0\xFFz", 4));
  folder.Put("empty", "");
  EXPECT_EQ(ReadWhole(folder / "a", 4).bytes, std::string("x\0\xFFz", 4));
  EXPECT_EQ(ReadWhole(folder / "a", SIZE_MAX).bytes->size(), 4U);
  EXPECT_FALSE(ReadWhole(folder / "a", 3).bytes);
  EXPECT_EQ(ReadStart(folder / "a", 2).bytes, std::string("x\0", 2));
  EXPECT_EQ(ReadWhole(folder / "empty", 10).bytes, "");
}

TEST(Files, ReadingWhatIsNoFileIsAnErrorAndNeverBlocks) {
  const TempFolder folder;
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
  folder.Put("a", "old");
  const int before = OpenFiles();
  for (const std::string& path :
       {folder / "missing", folder / "pipe", folder.path(), folder / "no/such/folder", std::string(),
        (folder / "a") + std::string("\0b", 2)}) {
    const FileBytes read = ReadWhole(path, 100);
    EXPECT_FALSE(read.bytes) << path;
    EXPECT_NE(read.error, "") << path;
    EXPECT_FALSE(FileExists(path)) << path;
  }
  EXPECT_EQ(OpenFiles(), before);
}

TEST(Files, NamesAreFoundUnderAnyCaseAndEitherSlash) {
  const TempFolder folder;
  fs::create_directory(folder / "Portraits");
  folder.Put("Portraits/ÉMILE.Png", "picture");
  const std::string asked = folder.path() + "\\pORTRAITS\\émile.pNG";
  EXPECT_TRUE(FileExists(asked));
  EXPECT_EQ(ReadWhole(asked, 100).bytes, "picture");
  EXPECT_EQ(ResolvePath(asked), folder / "Portraits/ÉMILE.Png");
  EXPECT_EQ(ResolvePath(folder.path() + "\\portraits\\new.bmp"), folder / "Portraits/new.bmp");
  EXPECT_FALSE(FileExists(folder / "portraits/emile.png"));
  EXPECT_FALSE(FileExists(folder / "portraits"));

  folder.Put("one", "lower");
  folder.Put("ONE", "upper");
  EXPECT_EQ(ReadWhole(folder / "one", 100).bytes, "lower");  // the exact name wins
}

TEST(Files, ListsMatchingFilesInAnOrderThatIgnoresCase) {
  const TempFolder folder;
  for (const char* name :
       {"beta.vnt", "Alpha.VNT", "gamma.vnt", "ALPHA.vnt", "beta.vnt.bak", ".vnt", "x.txt"}) {
    folder.Put(name, "");
  }
  fs::create_directory(folder / "folder.vnt");
  EXPECT_THAT(List(folder.path(), "*.vnt"),
              ElementsAre(".vnt", "ALPHA.vnt", "Alpha.VNT", "beta.vnt", "gamma.vnt"));
  EXPECT_THAT(List(folder.path(), "?E*t"), ElementsAre("beta.vnt"));
  EXPECT_THAT(List(folder / "missing", "*"), IsEmpty());
  // Only "*" and "?" stand for others: a player may be named like this.
  folder.Put("[ab]\\.jpg", "");
  folder.Put("a.jpg", "");
  EXPECT_THAT(List(folder.path(), "[AB]\\.*"), ElementsAre("[ab]\\.jpg"));
}

TEST(Files, AtomicWriteReplacesTheFileAndLeavesNothingBeside) {
  const TempFolder folder;
  EXPECT_EQ(AtomicWrite(folder / "Player.vnt", "first"), "");
  ::chmod((folder / "Player.vnt").c_str(), 0640);
  EXPECT_EQ(AtomicWrite(folder / "player.VNT", "second"), "");  // the same file to the player
  EXPECT_EQ(folder.Get("Player.vnt"), "second");
  EXPECT_EQ(fs::status(folder / "Player.vnt").permissions(), fs::perms(0640));
  EXPECT_EQ(folder.Count(), 1);

  const std::string longest = std::string(251, 'n') + ".vnt";
  EXPECT_EQ(AtomicWrite(folder / longest, "long"), "");
  EXPECT_EQ(folder.Get(longest), "long");
}

TEST(Files, AtomicWriteFollowsALink) {
  const TempFolder folder;
  folder.Put("real", "old");
  fs::create_symlink("real", folder / "link");
  EXPECT_EQ(AtomicWrite(folder / "link", "new"), "");
  EXPECT_TRUE(fs::is_symlink(folder / "link"));
  EXPECT_EQ(folder.Get("real"), "new");
}

TEST(Files, AFailedWriteLeavesTheOldFileAndNothingElse) {
  const TempFolder folder;
  folder.Put("file", "old");
  fs::create_directory(folder / "sub");
  const int before = OpenFiles();
  for (const std::string& path :
       {folder / "sub", folder / "missing/file", folder / "file/inside", folder / std::string(256, 'n'),
        std::string(), (folder / "file") + std::string("\0x", 2)}) {
    EXPECT_NE(AtomicWrite(path, "new"), "") << path;
  }
  {
    const Limit noDescriptors(RLIMIT_NOFILE, 0);
    EXPECT_NE(AtomicWrite(folder / "file", "new"), "");
  }
  if (::geteuid() != 0) {
    ::chmod((folder / "file").c_str(), 0400);
    EXPECT_NE(AtomicWrite(folder / "file", "new"), "");  // the owner has locked it
  }
  EXPECT_EQ(folder.Get("file"), "old");
  EXPECT_EQ(folder.Count(), 2);
  EXPECT_EQ(OpenFiles(), before);
}

TEST(Files, AFullDiskAtAnyPointLeavesTheOldFile) {
  const TempFolder folder;
  folder.Put("file", "old");
  const std::string bytes(3000, 'n');
  for (const rlim_t room : {0U, 1U, 1500U, 2999U}) {
    std::string error;
    {
      const FullDisk disk(room);
      error = AtomicWrite(folder / "file", bytes);
    }
    EXPECT_NE(error, "") << room;
    EXPECT_EQ(folder.Get("file"), "old") << room;
    EXPECT_EQ(folder.Count(), 1) << room;
  }
  EXPECT_EQ(AtomicWrite(folder / "file", bytes), "");
  EXPECT_EQ(folder.Get("file"), bytes);
}

/// Saves again and again, telling the pipe before each save.
[[noreturn]] void SaveUntilKilled(const std::string& path, int pipe) {
  const std::string a(40000, 'a');
  const std::string b(70000, 'b');
  for (bool first = true;; first = !first) {
    if (::write(pipe, ".", 1) != 1 || !AtomicWrite(path, first ? a : b).empty()) ::_exit(1);
  }
}

TEST(Files, AKilledWriterLeavesAWholeFile) {
  const TempFolder folder;
  for (int saves = 1; saves <= 8; ++saves) {
    folder.Put("file", "old");
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    const pid_t child = ::fork();
    if (child == 0) SaveUntilKilled(folder / "file", ends[1]);
    char told = 0;
    for (int i = 0; i < saves; ++i) ASSERT_EQ(::read(ends[0], &told, 1), 1);
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    ::close(ends[0]);
    ::close(ends[1]);
    const std::string left = folder.Get("file");
    EXPECT_TRUE(left == "old" || left == std::string(40000, 'a') || left == std::string(70000, 'b'))
        << left.size();
  }
}

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
