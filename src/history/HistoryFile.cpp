#include "history/HistoryFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <filesystem>
#include <system_error>
#include <utility>

#include "history/HistoryRows.h"
#include "history/RecordPack.h"

namespace kv {
namespace {

constexpr std::int64_t kSchema = 1;
constexpr int kBusyTimeout = 40;  // milliseconds; the person waits for it
constexpr std::size_t kMostWaiting = 1000;
constexpr int kNewerSchema = -1;  // beside SQLite's own results

constexpr const char* kMake =
    "BEGIN IMMEDIATE;"
    "CREATE TABLE IF NOT EXISTS match(id INTEGER PRIMARY KEY, time INTEGER NOT NULL, version TEXT NOT NULL,"
    " mode TEXT NOT NULL, opponent TEXT NOT NULL, strategy TEXT NOT NULL, stake INTEGER NOT NULL,"
    " deck TEXT NOT NULL, cards TEXT NOT NULL, outcome INTEGER NOT NULL, style INTEGER NOT NULL,"
    " own_sets INTEGER NOT NULL, other_sets INTEGER NOT NULL, before INTEGER, after INTEGER,"
    " imported INTEGER NOT NULL, ending INTEGER NOT NULL, given_up_by INTEGER NOT NULL, winner INTEGER,"
    " course BLOB NOT NULL);"
    "PRAGMA user_version=1;"
    "COMMIT;";
constexpr const char* kInsert =
    "INSERT OR REPLACE INTO "
    "match(id,time,version,mode,opponent,strategy,stake,deck,cards,outcome,style,own_sets,"
    "other_sets,before,after,imported,ending,given_up_by,winner,course) "
    "VALUES(?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)";
bool IsDamage(int result) {
  const int kind = result & 0xFF;
  return kind == SQLITE_CORRUPT || kind == SQLITE_NOTADB || kind == SQLITE_ERROR || kind == SQLITE_MISMATCH;
}

bool CanOnlyBeRead(const std::string& path) {
  const std::string folder = std::filesystem::path(path).parent_path().string();
  const auto may = [](const std::string& what, int mode) {
    return faccessat(AT_FDCWD, what.c_str(), mode, AT_EACCESS) == 0;
  };
  return may(path, R_OK) && !(may(path, W_OK) && may(folder.empty() ? "." : folder, W_OK));
}

/// The file as it is, whatever lies beside it.
std::string ImmutableUri(const std::string& path) {
  std::string uri = "file:";
  for (const char c : path) {
    if (c == '%' || c == '?' || c == '#') {
      uri += c == '%' ? "%25" : c == '?' ? "%3f" : "%23";
    } else {
      uri += c;
    }
  }
  return uri + "?immutable=1";
}

}  // namespace

void HistoryFile::Close::operator()(sqlite3* database) const {
  sqlite3_close_v2(database);
}

HistoryFile::~HistoryFile() {
  if (!waiting_.empty()) Flush();
}

std::string HistoryFile::PathOf(const std::string& playerFile) {
  return std::filesystem::path(playerFile).replace_extension(".history.sqlite").string();
}

std::vector<std::string> HistoryFile::FilesOf(const std::string& playerFile) {
  const std::string path = PathOf(playerFile);
  return {path, path + "-wal", path + "-shm"};
}

// --- Opening ---------------------------------------------------------------------------------------------

bool HistoryFile::Open() {
  if (database_ != nullptr) return true;
  for (int attempt = 0; attempt < 2; ++attempt) {
    const int result = Connect();
    if (result == SQLITE_OK) return true;
    if (!Fail(result)) break;
  }
  database_.reset();
  return false;
}

bool HistoryFile::OpenToRead() {
  std::error_code error;
  return database_ != nullptr || (std::filesystem::exists(path_, error) && Open());
}

int HistoryFile::Connect() {
  // Without leave to write, no log may be made beside the file: it would bar the file when leave is given
  // again.
  const bool readOnly = CanOnlyBeRead(path_);
  const int flags =
      readOnly ? SQLITE_OPEN_READONLY | SQLITE_OPEN_URI : SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
  sqlite3* opened = nullptr;
  const int result = sqlite3_open_v2((readOnly ? ImmutableUri(path_) : path_).c_str(), &opened,
                                     flags | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr);
  database_.reset(opened);
  if (result != SQLITE_OK) return result;
  sqlite3_busy_timeout(opened, kBusyTimeout);
  return PrepareSchema(readOnly);
}

int HistoryFile::PrepareSchema(bool readOnly) {
  std::int64_t schema = 0;
  {
    // Before anything is written: a file of a newer program stays as it is.
    SqlStatement version(database_.get(), "PRAGMA user_version");
    if (const int result = version.Step(); result != SQLITE_ROW) return result;
    schema = version.Number();
  }
  if (schema > kSchema) return kNewerSchema;
  if (readOnly && schema < kSchema) return SQLITE_READONLY;
  if (readOnly) return SqlStatement(database_.get(), kLines).Prepared();
  // A commit waits for no disk; what a power cut takes are the last matches, never the file. The log is taken
  // into the file when it is closed, not in the middle of an evening.
  int result = Execute("PRAGMA journal_mode=WAL;PRAGMA synchronous=NORMAL;PRAGMA wal_autocheckpoint=8000");
  if (result == SQLITE_OK && schema < kSchema) result = Execute(kMake);
  if (result != SQLITE_OK) return result;
  return SqlStatement(database_.get(), kLines).Prepared();
}

int HistoryFile::Execute(const char* sql) {
  const int result = sqlite3_exec(database_.get(), sql, nullptr, nullptr, nullptr);
  if (result != SQLITE_OK && sqlite3_get_autocommit(database_.get()) == 0) {
    sqlite3_exec(database_.get(), "ROLLBACK", nullptr, nullptr, nullptr);
  }
  return result;
}

// --- What goes wrong -------------------------------------------------------------------------------------

bool HistoryFile::Fail(int result) {
  if (result == kNewerSchema) return SetAside("newer");
  if (IsDamage(result)) return SetAside("damaged");
  const int kind = result & 0xFF;
  if (kind == SQLITE_READONLY) {
    // What was opened for reading only stays so, until it is opened anew.
    database_.reset();
    if (!CanOnlyBeRead(path_)) return true;
  }
  std::string why = sqlite3_errstr(kind);
  if (kind == SQLITE_BUSY || kind == SQLITE_LOCKED) why = "another program is using it";
  if (kind == SQLITE_FULL) why = "the disk is full";
  Tell("The history of matches cannot be used now: " + why + ".");
  return false;
}

bool HistoryFile::SetAside(const char* what) {
  database_.reset();
  namespace fs = std::filesystem;
  const fs::path from(path_);
  std::error_code error;
  fs::path to;
  for (int number = 1; to.empty() || fs::exists(to, error); ++number) {
    to = from;
    to.replace_extension("." + std::string(what) + "-" + std::to_string(number) + from.extension().string());
  }
  fs::rename(from, to, error);
  if (error) {
    Tell("The history of matches cannot be used: " + error.message() + ".");
    return false;
  }
  std::error_code none;  // most often there is no log
  for (const char* log : {"-wal", "-shm"}) fs::rename(path_ + log, to.string() + log, none);
  const bool newer = std::string_view(what) == "newer";
  Tell("The history of matches is " + std::string(newer ? "of a newer program" : "damaged") +
       " and was set aside as " + to.filename().string() + ".");
  return true;
}

void HistoryFile::Tell(const std::string& notice) {
  if (notice != told_) notice_ = told_ = notice;
}

std::string HistoryFile::TakeNotice() {
  return std::exchange(notice_, {});
}

// --- Writing ---------------------------------------------------------------------------------------------

std::int64_t HistoryFile::Store(const MatchRecord& record, bool imported) {
  lastRow_.reset();
  Keep({++lastTicket_, record, imported, {}});
  return lastTicket_;
}

void HistoryFile::Replace(std::int64_t ticket, const MatchRecord& record) {
  if (ticket != lastTicket_) return;
  if (!waiting_.empty() && waiting_.back().ticket == ticket) {
    waiting_.back().record = record;
    Flush();
  } else if (lastRow_) {
    Keep({ticket, record, false, lastRow_});
  }
}

void HistoryFile::Keep(Entry entry) {
  waiting_.push_back(std::move(entry));
  if (waiting_.size() > kMostWaiting) waiting_.pop_front();
  Flush();
}

void HistoryFile::Flush() {
  bool again = true;
  while (!waiting_.empty() && Open()) {
    std::int64_t row = 0;
    const int result = Write(waiting_.front(), row);
    if (result == SQLITE_OK) {
      if (waiting_.front().ticket == lastTicket_) lastRow_ = row;
      waiting_.pop_front();
    } else if (!Fail(result) || !std::exchange(again, false)) {
      return;
    }
  }
}

int HistoryFile::Write(const Entry& entry, std::int64_t& row) {
  const MatchRecord& record = entry.record;
  const MatchLine line = LineOf(record);
  const std::string course = PackCourse(record);
  std::optional<std::int64_t> winner;
  if (record.winner) winner = static_cast<std::int64_t>(*record.winner);
  const auto number = [](auto kind) { return static_cast<std::int64_t>(kind); };
  // A single statement is a transaction of its own.
  SqlStatement insert(database_.get(), kInsert);
  insert.Number(entry.row).Number(line.time).Text(line.version).Text(line.mode).Text(line.opponent);
  insert.Text(line.strategy).Number(line.stake).Text(line.deck).Text(line.cards).Number(number(line.outcome));
  insert.Number(number(line.style)).Number(line.setWins[0]).Number(line.setWins[1]).Number(line.before);
  insert.Number(line.after).Number(entry.imported ? 1 : 0).Number(number(record.ending));
  insert.Number(number(record.givenUpBy)).Number(winner).Bytes(course);
  const int result = insert.Step();
  row = sqlite3_last_insert_rowid(database_.get());
  return result == SQLITE_DONE ? SQLITE_OK : result;
}

// --- Reading ---------------------------------------------------------------------------------------------

std::vector<MatchLine> HistoryFile::Lines() {
  std::vector<MatchLine> lines;
  if (!OpenToRead()) return lines;
  int result = SQLITE_ROW;
  {
    SqlStatement select(database_.get(), kLines);
    while ((result = select.Step()) == SQLITE_ROW) lines.push_back(LineIn(select));
  }
  if (result != SQLITE_DONE) Fail(result);
  return lines;
}

std::optional<MatchRecord> HistoryFile::Load(std::int64_t id) {
  if (!OpenToRead()) return {};
  int result = SQLITE_ROW;
  std::optional<MatchRecord> record;
  {
    SqlStatement select(database_.get(), kLoad);
    result = select.Number(id).Step();
    if (result == SQLITE_ROW) record = RecordIn(select);
  }
  if (result != SQLITE_DONE && result != SQLITE_ROW) Fail(result);
  return record;
}

}  // namespace kv
