// The player record: the one profile that every screen reads and changes, and its file on disk.
// Loading takes over a file completely or not at all; saving replaces the file completely or not at all.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Dialogs.h"
#include "platform/Random.h"
#include "profile/PlayerFields.h"

namespace kv {

class clsPlayer : public PlayerFields {
 public:
  /// Handles the waiting window events once; false when the program ends.
  using EventPump = std::function<bool()>;
  /// Replaces the file at `path` by `bytes`, whole or not at all; true when that was done.
  using FileStore = std::function<bool(const std::string& path, const std::string& bytes)>;

  /// A new record holds a brand-new player. `dialogs` and `random` must outlive it; `random` gives only the
  /// padding of the scrambled records.
  clsPlayer(Dialogs& dialogs, Random& random, EventPump handleEvents = {});

  /// Loads the file with the PIN that is set and remembers its path as FileName. TRUE WHEN IT FAILED: then
  /// every other field is as before. A file of an older version is rewritten at once; what such a file does
  /// not hold keeps its value. Says so in a box when the file was brought up to date or is too new.
  [[nodiscard]] bool LoadPlayerFile(const std::string& filePath);
  /// Saves to FileName. Waits, handling events, while another save is under way. A failure is told in a box
  /// and changes neither the record nor the old file.
  void WritePlayerFile();

  /// Where saved files go instead of the disk (simulations).
  void setFileStore(FileStore store) { store_ = std::move(store); }

  /// XOR with the key, repeated; with 255 when the key is empty. Works on bytes.
  [[nodiscard]] static std::string Cipher(std::string_view text, std::string_view key);
  /// The scrambled form of `text` (Windows-1252 bytes), three bytes longer. The key is the PIN if not given.
  [[nodiscard]] std::string Encode(std::string_view text, std::optional<std::string_view> key = {});
  /// The reverse of Encode; nothing when `text` is shorter than three bytes.
  [[nodiscard]] std::optional<std::string> Decode(std::string_view text,
                                                  std::optional<std::string_view> key = {}) const;

 private:
  [[nodiscard]] bool Save();
  void Upgrade();

  Dialogs& dialogs_;
  Random& random_;
  EventPump handleEvents_;
  FileStore store_;       // empty for the disk
  std::string saveTime_;  // local date and time of the last save, as stored in the file
};

}  // namespace kv
