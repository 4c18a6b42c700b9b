// Where a player's own files lie: the working folder of the program. The program folder may be read-only.
#pragma once

#include <string>

namespace kv {

/// The user's data folder for this program ($XDG_DATA_HOME/kelm-vantri, by default
/// ~/.local/share/kelm-vantri), created when missing. Empty when there is no home folder or it cannot be
/// made.
[[nodiscard]] std::string UserDataFolder();

/// The player file that a match is played with until somebody chooses another, inside `folder`.
[[nodiscard]] std::string DefaultPlayerFile(const std::string& folder);

}  // namespace kv
