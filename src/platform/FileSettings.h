// Settings in a file of lines "key=text". A file that is damaged, too large, or something else than a file
// costs only what it holds, and one that cannot be written is noted once; nothing of it ever stops the game.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"

namespace kv {

class FileSettings final : public SettingsStore {
 public:
  /// Reads the file, which need not exist. `scheduler` must outlive the settings.
  FileSettings(std::string path, Scheduler& scheduler);
  /// Writes what has not been written yet.
  ~FileSettings() override;
  FileSettings(const FileSettings&) = delete;
  FileSettings& operator=(const FileSettings&) = delete;

  [[nodiscard]] std::optional<std::string> Read(std::string_view key) const override;
  /// Stands on the disk half a second later: a window that is dragged changes its place with every step.
  void Write(std::string_view key, std::string_view text) override;

 private:
  void Parse(std::string_view bytes);
  void Save();

  std::string path_;
  std::map<std::string, std::string, std::less<>> texts_;  // unknown keys too: they outlive this version
  std::unique_ptr<Timer> tmrSave_;
  bool noted_ = false;
};

}  // namespace kv
