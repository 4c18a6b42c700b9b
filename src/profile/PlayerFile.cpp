#include "profile/PlayerFile.h"

#include <array>
#include <charconv>
#include <utility>

#include "platform/Text.h"
#include "profile/FileEntries.h"
#include "profile/Scramble.h"

namespace kv {
namespace {

constexpr std::string_view kVersionSalt = "4916";
constexpr unsigned char kTextTag = 8;
constexpr std::size_t kHeaderBytes = 4;
constexpr std::size_t kMaxTextBytes = 0xFFFF;

/// Takes the next record off the front of the file.
std::optional<std::string_view> TakeRecord(std::string_view& file) {
  if (file.size() < kHeaderBytes) return std::nullopt;
  const auto byte = [file](std::size_t at) { return static_cast<unsigned char>(file[at]); };
  const std::size_t length = byte(2) | static_cast<std::size_t>(byte(3)) << 8U;
  if (byte(0) != kTextTag || byte(1) != 0 || file.size() - kHeaderBytes < length) return std::nullopt;
  const std::string_view text = file.substr(kHeaderBytes, length);
  file.remove_prefix(kHeaderBytes + length);
  return text;
}

std::optional<std::string> TakeDecoded(std::string_view& file, std::string_view key) {
  const auto record = TakeRecord(file);
  return record ? DecodeBytes(*record, key) : std::nullopt;
}

bool AppendRecord(std::string& file, std::string_view text) {
  if (text.size() > kMaxTextBytes) return false;
  file += static_cast<char>(kTextTag);
  file += '\0';
  file += static_cast<char>(text.size() & 0xFFU);
  file += static_cast<char>(text.size() >> 8U);
  file += text;
  return true;
}

std::string VersionKey(std::string_view pin) {
  return std::string(pin).append(kVersionSalt);
}

/// The main numbers, written one after the other, must read as one number: a damaged counter that is negative
/// shows here.
bool IsConsistent(const PlayerFields& fields) {
  std::string joined = std::to_string(fields.Credits->Value);
  joined += std::to_string(fields.Wins->Value);
  joined += std::to_string(fields.Losses->Value);
  joined += std::to_string(fields.Arcade_Best);
  for (const auto* wins : {&fields.Brannock_Wins, &fields.Tamsen_Wins, &fields.Velir_Wins,
                           &fields.Brummox_Wins, &fields.Orrin_Wins}) {
    joined += std::to_string((*wins)->Value);
  }
  joined += std::to_string(fields.TurnMode_Opt);
  return IsNumeric(joined);
}

/// Reads the records after the two version records; false when one of them is missing or does not convert.
bool ParseBody(std::string_view file, std::string_view pin, PlayerFileContent& content) {
  PlayerFields trial;
  for (const FileEntry& entry : EntriesOf(content.versionNumber)) {
    auto value = TakeDecoded(file, std::string(pin) + entry.keySuffix);
    if (!value) return false;
    value->erase(0, entry.marker.size());
    if (!ReadEntry(trial, entry, *value)) return false;
    content.values.push_back(std::move(*value));
  }
  auto saveTime = TakeDecoded(file, pin);
  if (!saveTime) return false;
  content.saveTime = std::move(*saveTime);
  return IsConsistent(trial);
}

}  // namespace

std::optional<int> VersionNumber(std::string_view version) {
  if (version.size() < 3) return std::nullopt;
  const std::array<char, 3> digits = {version[0], version[2], version.back()};
  int number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  if (number < 0 || number > 255) return std::nullopt;
  return number;
}

std::variant<PlayerFileContent, PlayerFileFault> ParsePlayerFile(std::string_view file,
                                                                 std::string_view pin) {
  const auto plain = TakeRecord(file);
  const auto decoded = TakeDecoded(file, VersionKey(pin));
  if (!plain || !decoded || *decoded != *plain) return PlayerFileFault::Damaged;
  const auto number = VersionNumber(*plain);
  if (!number) return PlayerFileFault::Damaged;
  if (*number > kProgramVersionNumber) return PlayerFileFault::TooNew;

  PlayerFileContent content;
  content.version = FromWindows1252(*plain);
  content.versionNumber = *number;
  if (!ParseBody(file, pin, content)) return PlayerFileFault::Damaged;
  return content;
}

void StoreContent(const PlayerFileContent& content, PlayerFields& fields) {
  fields.Version = content.version;
  auto value = content.values.begin();
  for (const FileEntry& entry : EntriesOf(content.versionNumber)) (void)ReadEntry(fields, entry, *value++);
}

std::optional<std::string> FormatPlayerFile(const PlayerFields& fields, std::string_view saveTime,
                                            Random& random) {
  const std::string pin = ToWindows1252(fields.PIN);
  const std::string version = ToWindows1252(fields.Version);
  std::string file;
  bool fits =
      AppendRecord(file, version) && AppendRecord(file, EncodeBytes(version, VersionKey(pin), random));
  for (const FileEntry& entry : EntriesOf(kProgramVersionNumber)) {
    const std::string text = entry.marker + WriteEntry(fields, entry);
    fits = fits && AppendRecord(file, EncodeBytes(text, pin + entry.keySuffix, random));
  }
  fits = fits && AppendRecord(file, EncodeBytes(saveTime, pin, random));
  if (!fits) return std::nullopt;
  return file;
}

}  // namespace kv
