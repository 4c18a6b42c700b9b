// Player files as the start screen knows them: found by their ending, named by the person, and created
// without ever touching one that exists. Names are UTF-8, without folder and ending.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "profile/clsPlayer.h"

namespace kv {

/// The file of a player in `folder` (empty: the current one).
[[nodiscard]] std::string PlayerPath(const std::string& folder, std::string_view name);

/// The player files of a folder, as they were when it was read last. Whether they can be loaded is not known.
class PlayerFileList {
 public:
  explicit PlayerFileList(std::string folder) : folder_(std::move(folder)) {}

  /// Reads the folder again.
  void Refresh();
  /// File names with their ending, in the order of an index.
  [[nodiscard]] const std::vector<std::string>& files() const { return files_; }
  /// The name of the player in file `index`: less its ending.
  [[nodiscard]] std::string Player(std::size_t index) const;

 private:
  std::string folder_;
  std::vector<std::string> files_;
};

/// False for a text with one of the nine characters \ / : * ? " < > | and for every other name that cannot
/// stand in the folder: with a control character, too long, or ending in a dot or blank ("." and ".." are
/// no names).
[[nodiscard]] bool IsValidFileName(std::string_view name);

/// True when anything has the name of this player's file, compared without regard to case: a folder or a
/// link that leads nowhere is in the way, too.
[[nodiscard]] bool PlayerExists(const std::string& folder, std::string_view name);

/// How an attempt to create a player's file ended. When it could not be saved the player has told so in a
/// box.
enum class PlayerCreation { Created, Exists, NotSaved };

/// Saves `player` as a new file of `folder` and sets its FileName. Nothing is left of an attempt that fails.
[[nodiscard]] PlayerCreation CreatePlayerFile(clsPlayer& player, const std::string& folder,
                                              std::string_view name);

}  // namespace kv
