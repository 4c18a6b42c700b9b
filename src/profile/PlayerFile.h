// The player file's format: length-prefixed text records, scrambled under the PIN, in an order that only
// grows from version to version. Works on bytes in memory; it never opens a file and never shows anything.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/Random.h"
#include "profile/PlayerFields.h"

namespace kv {

/// No player file is longer, however its records are filled; what follows its last record is ignored.
inline constexpr std::size_t kMaxPlayerFileBytes = 128U * (4U + 0xFFFFU);

/// Why a file was refused.
enum class PlayerFileFault {
  Damaged,  // wrong PIN, truncated, or a record that does not convert
  TooNew,   // written by a later version of the program
};

/// A whole file that passed every check: each of its values converts to its field.
struct PlayerFileContent {
  std::string version;              // as written in the file
  int versionNumber = 0;            // "1.2.4" is 124
  std::vector<std::string> values;  // Windows-1252, in file order; which records is told by versionNumber
  std::string saveTime;
};

/// Reads and checks a whole file under `pin`.
[[nodiscard]] std::variant<PlayerFileContent, PlayerFileFault> ParsePlayerFile(std::string_view file,
                                                                               std::string_view pin);

/// Stores the content of a file into the fields; those that the file does not hold keep their values.
void StoreContent(const PlayerFileContent& content, PlayerFields& fields);

/// The file that holds `fields`, scrambled under `fields.PIN`. Nothing when a text is too long for a record
/// (65,532 bytes).
[[nodiscard]] std::optional<std::string> FormatPlayerFile(const PlayerFields& fields,
                                                          std::string_view saveTime, Random& random);

/// First, third and last character of a version text as a number from 0 to 255; nothing if it is none.
[[nodiscard]] std::optional<int> VersionNumber(std::string_view version);

}  // namespace kv
