#include "screens/PlayerCare.h"

#include <fcntl.h>
#include <stdio.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "platform/Files.h"
#include "profile/PlayerFile.h"
#include "screens/PlayerFiles.h"

namespace kv {
namespace {

constexpr int kLongestPIN = 4;  // digits

bool Opens(std::string_view file, std::string_view pin) {
  const auto read = ParsePlayerFile(file, pin);
  const auto* fault = std::get_if<PlayerFileFault>(&read);
  return fault == nullptr || *fault == PlayerFileFault::TooNew;
}

/// All of them are tried within a few milliseconds: a wrong one shows at the second record.
bool AnyPINOpens(std::string_view file) {
  int count = 1;
  for (int digits = 0; digits <= kLongestPIN; ++digits, count *= 10) {
    for (int number = 0; number < count; ++number) {
      std::string pin = digits == 0 ? std::string() : std::to_string(number);
      if (digits > 0) pin.insert(0, static_cast<std::size_t>(digits) - pin.size(), '0');
      if (Opens(file, pin)) return true;
    }
  }
  return false;
}

bool Lies(const std::string& path) {
  std::error_code error;
  return std::filesystem::exists(std::filesystem::symlink_status(path, error));
}

/// In one step that fails where anything has the new name already.
CareResult Move(const std::string& from, const std::string& to) {
  if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
    return CareResult::Done;
  if (errno == EEXIST) return CareResult::Exists;
  // Some network folders do not know that step; there the name is looked at first.
  if (errno != EINVAL || Lies(to)) return CareResult::Refused;
  return ::rename(from.c_str(), to.c_str()) == 0 ? CareResult::Done : CareResult::Refused;
}

std::vector<std::string> FilesOf(const std::string& path, const PlayerCareServices& care) {
  std::vector<std::string> files = {path};
  if (!care.companions) return files;
  for (std::string& companion : care.companions(path)) files.push_back(std::move(companion));
  return files;
}

}  // namespace

bool PINAllowsCare(const std::string& path, std::string_view pin) {
  const FileBytes file = ReadWhole(path, kMaxPlayerFileBytes);
  return !file.bytes || Opens(*file.bytes, pin) || !AnyPINOpens(*file.bytes);
}

std::string NameInside(const std::string& path) {
  const FileBytes file = ReadWhole(path, kMaxPlayerFileBytes);
  if (!file.bytes) return {};
  const auto read = ParsePlayerFile(*file.bytes, {});
  const auto* content = std::get_if<PlayerFileContent>(&read);
  if (content == nullptr) return {};
  PlayerFields fields;
  StoreContent(*content, fields);
  return fields.Name;
}

CareResult TrashPlayer(const std::string& path, const PlayerCareServices& care) {
  CareResult result = CareResult::Done;
  for (const std::string& file : FilesOf(path, care)) {
    const bool player = file == path;
    if (!player && !Lies(file)) continue;
    if (care.moveToTrash && care.moveToTrash(file)) continue;
    if (player) return CareResult::Refused;
    result = CareResult::Parted;
  }
  return result;
}

CareResult RenamePlayer(const std::string& folder, std::string_view from, std::string_view to,
                        const PlayerCareServices& care) {
  const std::string old = ResolvePath(PlayerPath(folder, from));
  const std::string target = PlayerPath(folder, to);
  if (PlayerExists(folder, to) && ResolvePath(target) != old) return CareResult::Exists;
  const std::vector<std::string> before = FilesOf(old, care);
  const std::vector<std::string> after = FilesOf(target, care);
  for (std::size_t i = 0; i < before.size(); ++i) {
    if (i > 0 && Lies(after[i])) return CareResult::Exists;
  }
  for (std::size_t i = 0; i < before.size(); ++i) {
    if (i > 0 && !Lies(before[i])) continue;
    const CareResult moved = Move(before[i], after[i]);
    if (moved == CareResult::Done) continue;
    while (i-- > 0) static_cast<void>(Move(after[i], before[i]));
    return moved;
  }
  return CareResult::Done;
}

}  // namespace kv
