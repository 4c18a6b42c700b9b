// Where the program's own data lies and where the user's lies. It only looks; it creates nothing.
#pragma once

#include <string>

namespace kv {

/// The folder of the running executable, with the data file, sounds and fonts; without a slash at its end.
[[nodiscard]] std::string ProgramFolder();

/// The user's own folder for player files: "kelm-vantri" in $XDG_DATA_HOME or ~/.local/share.
[[nodiscard]] std::string UserFolder();
/// The user's own folder for settings: "kelm-vantri" in $XDG_CONFIG_HOME or ~/.config.
[[nodiscard]] std::string SettingsFolder();

}  // namespace kv
