#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/Files.h"
#include "support/Limits.h"
#include "support/TempFolder.h"

namespace kv::test {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

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

}  // namespace
}  // namespace kv::test
