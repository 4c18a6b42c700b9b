// A player with a folder of its own, whose boxes are written down.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "profile/SampleFile.h"
#include "profile/clsPlayer.h"
#include "support/TempFolder.h"

namespace kv {

/// Remembers each box as "title: text" with a mark for its icon, "!" for critical and "i" for information.
class BoxLog final : public Dialogs {
 public:
  void Message(const std::string& text, const std::string& title, DialogIcon icon) override {
    const char* mark = icon == DialogIcon::Critical ? "! " : icon == DialogIcon::Information ? "i " : "? ";
    boxes.push_back(mark + title + ": " + text);
  }
  bool AskYesNo(const std::string&, const std::string&, DialogIcon) override { return false; }
  std::optional<std::string> AskText(const std::string&, const std::string&, const std::string&) override {
    return std::nullopt;
  }

  std::vector<std::string> boxes;
};

inline constexpr const char* kSaveFailed =
    "! Kelm Vantri: Error: Error saving player file! Keep playing and if this error occurs again try "
    "deleting  "
    "the player file before the next save is triggered.";

class ProfileTest : public testing::Test {
 protected:
  /// Loads these bytes into `player` with its PIN; true when the load failed.
  [[nodiscard]] bool LoadBytes(clsPlayer& into, const std::string& bytes) {
    folder.Put("p.vnt", bytes);
    return into.LoadPlayerFile(path);
  }

  const TempFolder folder;
  const std::string path = folder / "p.vnt";
  BoxLog dialogs;
  SeededRandom random{7};
  clsPlayer player{dialogs, random};
};

}  // namespace kv
