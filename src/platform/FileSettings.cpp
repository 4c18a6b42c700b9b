#include "platform/FileSettings.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <utility>

#include "platform/Files.h"

namespace kv {
namespace {

constexpr std::size_t kLargestFile = 64U << 10U;  // bytes; a few hundred are used
constexpr int kSaveDelay = 500;                   // milliseconds

bool IsKeyPart(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '.';
}

bool IsControl(char c) {
  return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

bool CanBeKept(std::string_view key, std::string_view text) {
  return !key.empty() && std::ranges::all_of(key, IsKeyPart) && std::ranges::none_of(text, IsControl);
}

}  // namespace

FileSettings::FileSettings(std::string path, Scheduler& scheduler)
    : path_(std::move(path)), tmrSave_(scheduler.NewTimer(kSaveDelay, [this] { Save(); })) {
  if (const FileBytes file = ReadWhole(path_, kLargestFile); file.bytes) Parse(*file.bytes);
}

FileSettings::~FileSettings() {
  if (tmrSave_->Enabled()) Save();
}

void FileSettings::Parse(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t end = std::min(bytes.find('\n'), bytes.size());
    const std::string_view line = bytes.substr(0, end);
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
    const std::size_t equals = std::min(line.find('='), line.size());
    const std::string_view key = line.substr(0, equals);
    const std::string_view text = line.substr(std::min(equals + 1, line.size()));
    if (equals < line.size() && CanBeKept(key, text)) texts_.insert_or_assign(std::string(key), text);
  }
}

std::optional<std::string> FileSettings::Read(std::string_view key) const {
  const auto found = texts_.find(key);
  if (found == texts_.end()) return {};
  return found->second;
}

void FileSettings::Write(std::string_view key, std::string_view text) {
  if (!CanBeKept(key, text) || Read(key) == text) return;
  texts_.insert_or_assign(std::string(key), text);
  if (!tmrSave_->Enabled()) tmrSave_->setEnabled(true);
}

void FileSettings::Save() {
  tmrSave_->setEnabled(false);
  std::string bytes;
  for (const auto& [key, text] : texts_) bytes.append(key).append("=").append(text).append("\n");
  std::error_code error;  // of a folder that cannot be made the writing tells
  std::filesystem::create_directories(std::filesystem::path(path_).parent_path(), error);
  const std::string why = AtomicWrite(path_, bytes);
  if (!why.empty() && !std::exchange(noted_, true)) {
    std::cerr << "Kelm Vantri: the settings are not kept: " << why << '\n';
  }
}

}  // namespace kv
