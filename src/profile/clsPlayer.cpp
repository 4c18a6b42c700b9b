#include "profile/clsPlayer.h"

#include <array>
#include <cstdio>
#include <ctime>
#include <utility>
#include <variant>

#include "platform/Files.h"
#include "platform/Text.h"
#include "profile/PlayerFile.h"
#include "profile/Scramble.h"

namespace kv {
namespace {

constexpr const char* kTitle = "Kelm Vantri";
constexpr const char* kErrorTitle = "Kelm Vantri: Error";
constexpr const char* kTooNewText = "This version of Kelm Vantri is older than the player file version!";
constexpr const char* kSaveErrorText =
    "Error saving player file! Keep playing and if this error occurs again try deleting  "
    "the player file before the next save is triggered.";

/// The local date, one space, the local time: "2024-02-29 18:05:00".
std::string LocalDateAndTime() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  std::array<char, 32> text{};
  if (::localtime_r(&now, &local) == nullptr) return "";
  return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", &local)};
}

}  // namespace

clsPlayer::clsPlayer(Dialogs& dialogs, Random& random, EventPump handleEvents)
    : dialogs_(dialogs), random_(random), handleEvents_(std::move(handleEvents)) {}

bool clsPlayer::LoadPlayerFile(const std::string& filePath) {
  FileName = filePath;
  const FileBytes file = ReadStart(filePath, kMaxPlayerFileBytes);
  if (!file.bytes) return true;
  const auto parsed = ParsePlayerFile(*file.bytes, ToWindows1252(PIN));
  if (const auto* fault = std::get_if<PlayerFileFault>(&parsed)) {
    if (*fault == PlayerFileFault::TooNew) {
      dialogs_.Message(kTooNewText, kErrorTitle, DialogIcon::Critical);
    }
    return true;
  }
  const auto& content = std::get<PlayerFileContent>(parsed);
  StoreContent(content, *this);
  saveTime_ = FromWindows1252(content.saveTime);
  if (Version != kProgramVersion) Upgrade();
  return false;
}

void clsPlayer::Upgrade() {
  const std::string old = std::exchange(Version, std::string(kProgramVersion));
  // When the save fails, its own message is the only one: the file still has its old form.
  if (Save()) {
    dialogs_.Message("Your player file has been updated from v" + old + " to v" + Version + ".", kTitle,
                     DialogIcon::Information);
  }
}

void clsPlayer::WritePlayerFile() {
  (void)Save();
}

bool clsPlayer::Save() {
  while (WRITING && handleEvents_ && handleEvents_()) {
  }
  WRITING = true;
  std::string saveTime = LocalDateAndTime();
  const auto file = FormatPlayerFile(*this, ToWindows1252(saveTime), random_);
  const bool saved = file && (store_ ? store_(FileName, *file) : AtomicWrite(FileName, *file).empty());
  WRITING = false;
  if (saved) {
    saveTime_ = std::move(saveTime);
  } else {
    dialogs_.Message(kSaveErrorText, kErrorTitle, DialogIcon::Critical);
  }
  return saved;
}

std::string clsPlayer::Cipher(std::string_view text, std::string_view key) {
  return CipherBytes(text, key);
}

std::string clsPlayer::Encode(std::string_view text, std::optional<std::string_view> key) {
  return EncodeBytes(text, key.value_or(PIN), random_);
}

std::optional<std::string> clsPlayer::Decode(std::string_view text,
                                             std::optional<std::string_view> key) const {
  return DecodeBytes(text, key.value_or(PIN));
}

}  // namespace kv
