// What is done to a player as a whole: his file and those beside it go to the trash, or get another name. No
// file is ever replaced, none is destroyed, and a player with a PIN is left alone by whoever does not know
// it.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace kv {

/// What the care for player files needs.
struct PlayerCareServices {
  /// Moves a file to the desktop's trash; false, and the file lies where it was, when there is none.
  std::function<bool(const std::string& path)> moveToTrash{};
  /// The files that go with the player file at `path`, whether they exist or not.
  std::function<std::vector<std::string>(const std::string& path)> companions{};
  /// A player has another name from now on.
  std::function<void(const std::string& from, const std::string& to)> renamed{};
};

/// Whether who typed `pin` may trash or rename the file: the PIN opens it, or none at all does. A damaged
/// file has no PIN that anybody could know.
[[nodiscard]] bool PINAllowsCare(const std::string& path, std::string_view pin);
/// The name in a player file without a PIN; empty when it has one or cannot be read.
[[nodiscard]] std::string NameInside(const std::string& path);

enum class CareResult {
  Done,
  Refused,  // nothing has changed
  Exists,   // nothing has changed: the new name, or that of a companion, is taken
  Parted,   // the player is gone; a companion stays where it was
};

/// The player file first: when that is refused the others are not touched.
[[nodiscard]] CareResult TrashPlayer(const std::string& path, const PlayerCareServices& care);
/// All files or none. A name that differs by case alone is not taken by the player's own file.
[[nodiscard]] CareResult RenamePlayer(const std::string& folder, std::string_view from, std::string_view to,
                                      const PlayerCareServices& care);

}  // namespace kv
