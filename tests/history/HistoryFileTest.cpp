// The history on disk: what is stored is found again, and whatever happens to the file costs no match.
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <thread>

#include "history/HistoryFile.h"
#include "support/Limits.h"
#include "support/SampleMatch.h"
#include "support/TempFolder.h"

namespace kv::test {
namespace {

/// Another program with the same file open.
struct Database {
  explicit Database(const std::string& path) { sqlite3_open(path.c_str(), &handle); }
  ~Database() { sqlite3_close(handle); }
  void Do(const char* sql) const {
    ASSERT_EQ(sqlite3_exec(handle, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sql;
  }
  sqlite3* handle = nullptr;
};

struct Folder {
  TempFolder folder;
  std::string path = HistoryFile::PathOf(folder / "zoe.vnt");

  /// As a program that starts anew.
  [[nodiscard]] std::size_t Stored() const { return HistoryFile(path).Lines().size(); }
  [[nodiscard]] std::vector<std::string> AsideNames() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
      const std::string name = entry.path().filename().string();
      if (name.find("-1.sqlite") != std::string::npos) names.push_back(name);
    }
    return names;
  }
};

TEST(HistoryFile, GivesBackWhatIsStoredTheNewestFirst) {
  const Folder at;
  EXPECT_EQ(at.path, at.folder / "zoe.history.sqlite");
  EXPECT_EQ(at.Stored(), 0u);
  EXPECT_EQ(at.folder.Count(), 0) << "looking makes no file";
  MatchRecord left = SampleMatch(2, "Zo\xC3\xAB");
  left.booking.reset();
  left.winner.reset();
  left.ending = MatchEnding::Left;
  left.sets.back().result.reset();
  const MatchRecord won = SampleMatch(3);
  {
    HistoryFile history(at.path);
    history.Store(won);
    history.Store(left, true);
  }
  HistoryFile history(at.path);
  const std::vector<MatchLine> lines = history.Lines();
  ASSERT_EQ(lines.size(), 2u);
  MatchLine expected = LineOf(won);
  expected.id = lines[0].id;
  EXPECT_EQ(lines[0], expected);
  EXPECT_EQ(history.Load(lines[0].id), won);
  EXPECT_EQ(history.Load(lines[1].id), left);
  EXPECT_EQ(lines[1].outcome, MatchOutcome::Left);
  EXPECT_TRUE(lines[1].imported);
  EXPECT_FALSE(history.Load(77));
  EXPECT_EQ(history.TakeNotice(), "");
}

TEST(HistoryFile, CorrectsTheLastMatchOnly) {
  const Folder at;
  HistoryFile history(at.path);
  const auto first = history.Store(SampleMatch(1));
  const auto second = history.Store(SampleMatch(2));
  MatchRecord corrected = SampleMatch(2);
  corrected.booking->after = 4321;
  history.Replace(second, corrected);
  history.Replace(first, corrected);
  const auto lines = history.Lines();
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0].after, 4321);
  EXPECT_NE(lines[1].after, 4321);
}

TEST(HistoryFile, SetsADamagedFileOrOneOfANewerProgramAside) {
  const auto check = [](const char* what, const char* word,
                        const std::function<void(const Folder&)>& change) {
    SCOPED_TRACE(what);
    const Folder at;
    HistoryFile(at.path).Store(SampleMatch(1));
    change(at);
    HistoryFile history(at.path);
    history.Store(SampleMatch(2));
    EXPECT_NE(history.TakeNotice().find(word), std::string::npos);
    EXPECT_EQ(history.TakeNotice(), "") << "told once";
    EXPECT_EQ(history.Lines().size(), 1u) << "a history goes on";
    EXPECT_EQ(at.AsideNames().size(), 1u) << "nothing is deleted";
  };
  check("no database", "damaged",
        [](const Folder& at) { at.folder.Put("zoe.history.sqlite", "whatever it holds"); });
  check("another table", "damaged",
        [](const Folder& at) { Database(at.path).Do("DROP TABLE match; CREATE TABLE match(x)"); });
  check("a newer program", "newer", [](const Folder& at) { Database(at.path).Do("PRAGMA user_version=2"); });
}

TEST(HistoryFile, SetsAFileAsideWhoseDamageShowsLater) {
  const Folder at;
  {
    HistoryFile history(at.path);
    for (std::uint64_t i = 1; i <= 60; ++i) history.Store(SampleMatch(i));
  }
  std::string bytes = at.folder.Get("zoe.history.sqlite");
  for (std::size_t i = 4096; i < bytes.size(); ++i) bytes[i] = '\x55';
  at.folder.Put("zoe.history.sqlite", bytes);
  HistoryFile history(at.path);
  history.Store(SampleMatch(61));
  EXPECT_NE(history.TakeNotice().find("damaged"), std::string::npos);
  EXPECT_EQ(at.Stored(), 1u);
}

TEST(HistoryFile, KeepsMatchesUntilTheFileIsFree) {
  const Folder at;
  HistoryFile history(at.path);
  history.Store(SampleMatch(1));
  {
    const Database other(at.path);
    other.Do("BEGIN IMMEDIATE");
    const auto ticket = history.Store(SampleMatch(2));
    EXPECT_EQ(history.Waiting(), 1u);
    EXPECT_NE(history.TakeNotice().find("another program"), std::string::npos);
    MatchRecord corrected = SampleMatch(2);
    corrected.booking->after = 4321;
    history.Replace(ticket, corrected);
    EXPECT_EQ(history.TakeNotice(), "") << "told once";
    EXPECT_EQ(history.Lines().size(), 1u) << "reading goes on";
  }
  history.Store(SampleMatch(3));
  EXPECT_EQ(history.Waiting(), 0u);
  const auto lines = history.Lines();
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines[1].after, 4321);
}

TEST(HistoryFile, LosesNothingToAFullDisk) {
  const Folder at;
  HistoryFile history(at.path);
  history.Store(SampleMatch(1));
  std::size_t waiting = 0;
  {
    const FullDisk full(4096);
    history.Store(SampleMatch(2));
    waiting = history.Waiting();
  }
  EXPECT_EQ(waiting, 1u);
  EXPECT_NE(history.TakeNotice(), "");
  history.Store(SampleMatch(3));
  EXPECT_EQ(history.Lines().size(), 3u);
}

/// Whose files are protected from him: the superuser, as whom tests may run, can write anything.
class Anybody {
 public:
  explicit Anybody(const TempFolder& folder) {
    if (!super_) return;
    EXPECT_EQ(chown(folder.path().c_str(), kNobody, kNobody), 0);
    for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
      EXPECT_EQ(chown(entry.path().c_str(), kNobody, kNobody), 0);
    EXPECT_EQ(seteuid(kNobody), 0);
  }
  ~Anybody() { EXPECT_EQ(seteuid(super_ ? 0 : geteuid()), 0); }
  Anybody(const Anybody&) = delete;
  Anybody& operator=(const Anybody&) = delete;

 private:
  static constexpr uid_t kNobody = 65534;
  const bool super_ = geteuid() == 0;
};

TEST(HistoryFile, WaitsForAFileAndAFolderThatCannotBeWritten) {
  using std::filesystem::perms;
  for (const bool wholeFolder : {false, true}) {
    SCOPED_TRACE(wholeFolder ? "folder" : "file");
    const Folder at;
    HistoryFile(at.path).Store(SampleMatch(1));
    const std::string before = at.folder.Get("zoe.history.sqlite");
    const Anybody anybody(at.folder);
    const std::string what = wholeFolder ? at.folder.path() : at.path;
    permissions(std::filesystem::path(what),
                wholeFolder ? perms::owner_read | perms::owner_exec : perms::owner_read);
    HistoryFile history(at.path);
    history.Store(SampleMatch(2));
    EXPECT_EQ(history.Waiting(), 1u);
    EXPECT_NE(history.TakeNotice(), "");
    EXPECT_EQ(history.Lines().size(), 1u) << "it can be read";
    EXPECT_TRUE(at.AsideNames().empty()) << "it is not damaged";
    EXPECT_EQ(at.folder.Get("zoe.history.sqlite"), before);
    permissions(std::filesystem::path(what), perms::owner_all);
    history.Store(SampleMatch(3));
    EXPECT_EQ(history.Waiting(), 0u);
    EXPECT_EQ(at.Stored(), 3u);
  }
}

TEST(HistoryFile, DoesWithoutAFileWhereThereCanBeNone) {
  const TempFolder folder;
  std::filesystem::create_directory(folder / "zoe.history.sqlite");
  for (const std::string& path :
       {folder / "zoe.history.sqlite", folder / "no such folder/zoe.history.sqlite"}) {
    HistoryFile history(path);
    history.Store(SampleMatch(1));
    EXPECT_NE(history.TakeNotice(), "");
    EXPECT_EQ(history.Lines().size(), 0u);
    EXPECT_EQ(history.Waiting(), 1u);
  }
}

TEST(HistoryFile, TakesTheMatchesOfTwoProgramsAtOnce) {
  const Folder at;
  constexpr std::uint64_t each = 40;
  const auto play = [&at](std::uint64_t first) {
    HistoryFile history(at.path);
    for (std::uint64_t i = 0; i < each; ++i) history.Store(SampleMatch(first + i));
  };
  std::thread one(play, 1), two(play, 1000);
  one.join();
  two.join();
  EXPECT_EQ(at.Stored(), 2 * each);
}

/// A program that stores matches until it is killed, telling each on a pipe once it is stored; whatever it
/// told must be there. KV_HISTORY_KILLS: how often.
TEST(HistoryFile, LosesNothingWhenTheProgramIsKilled) {
  const char* setting = std::getenv("KV_HISTORY_KILLS");
  const int kills = setting == nullptr ? 30 : std::atoi(setting);
  const Folder at;
  SeededRandom random(5);
  const MatchRecord match = SampleMatch(9);
  std::size_t told = 0;
  for (int kill = 0; kill < kills; ++kill) {
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const pid_t child = fork();
    if (child == 0) {
      HistoryFile history(at.path);
      for (;;) {
        history.Store(match);
        if (history.Waiting() == 0 && write(ends[1], "x", 1) != 1) _exit(1);
      }
    }
    close(ends[1]);
    std::this_thread::sleep_for(std::chrono::microseconds(static_cast<int>(random.Rnd() * 30000)));
    ::kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    char seen[4096];
    for (ssize_t count = 0; (count = read(ends[0], seen, sizeof seen)) > 0;)
      told += static_cast<std::size_t>(count);
    close(ends[0]);
    HistoryFile history(at.path);
    const std::size_t stored = history.Lines().size();
    ASSERT_EQ(history.TakeNotice(), "");
    ASSERT_GE(stored, told) << "after kill " << kill;
    ASSERT_LE(stored, told + 1);
    told = stored;
  }
  EXPECT_GT(told, static_cast<std::size_t>(kills));
}

}  // namespace
}  // namespace kv::test
