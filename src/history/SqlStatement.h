// One prepared statement: values are bound and columns read in order. It reports by results only, and goes
// with its scope.
#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kv {

class SqlStatement {
 public:
  /// A statement that cannot be prepared gives its result at every Step.
  SqlStatement(sqlite3* database, std::string_view sql)
      : result_(
            sqlite3_prepare_v2(database, sql.data(), static_cast<int>(sql.size()), &statement_, nullptr)) {}
  ~SqlStatement() { sqlite3_finalize(statement_); }
  SqlStatement(const SqlStatement&) = delete;
  SqlStatement& operator=(const SqlStatement&) = delete;

  SqlStatement& Number(std::int64_t value) { return After(sqlite3_bind_int64(statement_, ++bound_, value)); }
  template <typename Value>
  SqlStatement& Number(std::optional<Value> value) {
    return value ? Number(*value) : After(sqlite3_bind_null(statement_, ++bound_));
  }
  /// The bytes must stay until the last Step.
  SqlStatement& Text(std::string_view text) {
    return After(
        sqlite3_bind_text(statement_, ++bound_, text.data(), static_cast<int>(text.size()), SQLITE_STATIC));
  }
  SqlStatement& Bytes(std::string_view bytes) {
    return After(
        sqlite3_bind_blob(statement_, ++bound_, bytes.data(), static_cast<int>(bytes.size()), SQLITE_STATIC));
  }

  /// SQLITE_OK, or why the statement cannot be used.
  [[nodiscard]] int Prepared() const { return result_; }
  /// SQLITE_ROW, SQLITE_DONE or what went wrong.
  [[nodiscard]] int Step() {
    column_ = -1;
    if (result_ == SQLITE_OK || result_ == SQLITE_ROW) result_ = sqlite3_step(statement_);
    return result_;
  }
  /// The columns of the row, one call after the other.
  [[nodiscard]] std::int64_t Number() { return sqlite3_column_int64(statement_, ++column_); }
  [[nodiscard]] std::optional<std::int64_t> NumberOrNothing() {
    const bool none = sqlite3_column_type(statement_, column_ + 1) == SQLITE_NULL;
    const std::int64_t value = Number();
    return none ? std::nullopt : std::optional(value);
  }
  [[nodiscard]] std::string Text() {
    ++column_;
    const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement_, column_));
    const int size = sqlite3_column_bytes(statement_, column_);
    return bytes == nullptr ? std::string() : std::string(bytes, static_cast<std::size_t>(size));
  }

 private:
  SqlStatement& After(int result) {
    if (result_ == SQLITE_OK) result_ = result;
    return *this;
  }

  sqlite3_stmt* statement_ = nullptr;
  int result_;
  int bound_ = 0;
  int column_ = -1;
};

}  // namespace kv
