// A player file written out record by record, independent of the program's own table: it fixes the format
// that players have on their disks.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "profile/PlayerFields.h"

namespace kv {

struct SampleRecord {
  std::string text;       // Windows-1252
  int since = 0;          // the first version that writes it
  std::string marker;     // in front of the text
  std::string keySuffix;  // beyond the PIN
};

/// The 128 records of a file; every value differs from its default and, where it can, from its neighbours.
class SampleFile {
 public:
  SampleFile();

  /// Records count from 1, in the order of the current version; 1 and 2 are the version.
  [[nodiscard]] SampleRecord& record(int number) { return records_.at(static_cast<std::size_t>(number) - 1); }
  [[nodiscard]] std::size_t size() const { return records_.size(); }
  void setVersion(const std::string& text) { record(1).text = record(2).text = text; }

  /// The file of a program of that version number, which has no records of later versions.
  [[nodiscard]] std::string Bytes(const std::string& pin, int versionNumber = 124) const;
  /// The bytes of one record, header included.
  [[nodiscard]] static std::string RecordBytes(const std::string& content);
  [[nodiscard]] std::string Scrambled(int number, const std::string& pin) const;

 private:
  void Add(std::initializer_list<std::string_view> texts, int since = 0);
  void AddMarkedDeck(std::initializer_list<std::string_view> codes);
  void AddMarkedTable(int first);

  std::vector<SampleRecord> records_;
};

/// All stored fields, and FileName and PIN, as one text to compare.
[[nodiscard]] std::string Snapshot(const PlayerFields& fields);

}  // namespace kv
