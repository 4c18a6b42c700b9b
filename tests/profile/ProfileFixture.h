// A player with a folder of its own, whose boxes are remembered.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "profile/SampleFile.h"
#include "profile/clsPlayer.h"
#include "support/ScriptedDialogs.h"
#include "support/TempFolder.h"

namespace kv {

/// Each box as "title: text" with a mark for its icon, "!" for critical and "i" for information.
[[nodiscard]] inline std::vector<std::string> Told(const test::ScriptedDialogs& dialogs) {
  std::vector<std::string> told;
  for (const auto& box : dialogs.boxes) {
    const char* mark = box.icon == DialogIcon::Critical      ? "! "
                       : box.icon == DialogIcon::Information ? "i "
                                                             : "? ";
    told.push_back(mark + box.title + ": " + box.text);
  }
  return told;
}

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

  const test::TempFolder folder;
  const std::string path = folder / "p.vnt";
  test::ScriptedDialogs dialogs;
  SeededRandom random{7};
  clsPlayer player{dialogs, random};
};

}  // namespace kv
