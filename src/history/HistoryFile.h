// The matches of one player, in an SQLite file beside the player file. It is the only place that knows SQL. A
// file that cannot be used costs the history and never a match: nothing here throws, and a match that cannot
// be stored at once is kept in memory and tried again.
#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "history/MatchLine.h"
#include "history/MatchRecord.h"

struct sqlite3;

namespace kv {

class HistoryFile {
 public:
  /// Opens nothing yet. `path` is that of the history itself.
  explicit HistoryFile(std::string path) : path_(std::move(path)) {}
  /// Tries once more to store what is left, and closes the file.
  ~HistoryFile();
  HistoryFile(const HistoryFile&) = delete;
  HistoryFile& operator=(const HistoryFile&) = delete;

  /// The history of the player in `playerFile` ("zoe.vnt": "zoe.history.sqlite" beside it).
  [[nodiscard]] static std::string PathOf(const std::string& playerFile);
  /// The same and its logs, which lie beside it while it is open or after a crash: moved only together.
  [[nodiscard]] static std::vector<std::string> FilesOf(const std::string& playerFile);

  /// Opens the file, or makes it, so that the first match need not. False: it cannot be used. One that is
  /// damaged, or of a newer program, is renamed, and another made in its place.
  bool Open();
  /// Stores the match in one transaction. The ticket is for Replace; it is given also when the match is only
  /// kept in memory for now.
  std::int64_t Store(const MatchRecord& record, bool imported = false);
  /// The match that was stored last, its end corrected. Nothing happens for an older ticket.
  void Replace(std::int64_t ticket, const MatchRecord& record);

  /// All matches, the newest first. Makes no file where there is none.
  [[nodiscard]] std::vector<MatchLine> Lines();
  /// Nothing when there is no such match, or it cannot be read.
  [[nodiscard]] std::optional<MatchRecord> Load(std::int64_t id);

  /// What went wrong, for the person; each is told once. Empty: nothing new.
  [[nodiscard]] std::string TakeNotice();
  /// The last of them, empty while nothing went wrong.
  [[nodiscard]] const std::string& lastNotice() const { return told_; }
  [[nodiscard]] const std::string& path() const { return path_; }
  /// How many matches are not in the file yet.
  [[nodiscard]] std::size_t Waiting() const { return waiting_.size(); }

 private:
  struct Entry {
    std::int64_t ticket = 0;
    MatchRecord record;
    bool imported = false;
    std::optional<std::int64_t> row;  // of one that is replaced
  };
  struct Close {
    void operator()(sqlite3* database) const;
  };

  void Keep(Entry entry);
  void Flush();
  [[nodiscard]] bool OpenToRead();
  [[nodiscard]] int Connect();
  [[nodiscard]] int PrepareSchema(bool readOnly);
  [[nodiscard]] int Execute(const char* sql);
  [[nodiscard]] int Write(const Entry& entry, std::int64_t& row);
  /// True when a damaged file was set aside, or may be written by now: it is worth another try.
  bool Fail(int result);
  bool SetAside(const char* what);
  void Tell(const std::string& notice);

  const std::string path_;
  std::unique_ptr<sqlite3, Close> database_;
  std::deque<Entry> waiting_;
  std::int64_t lastTicket_ = 0;
  std::optional<std::int64_t> lastRow_;  // of the match with that ticket, once it is in the file
  std::string notice_;
  std::string told_;
};

}  // namespace kv
