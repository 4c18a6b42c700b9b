// Where the program's own data lies and where the user's lies. It only looks; it creates nothing.
#pragma once

#include <string>
#include <string_view>

namespace kv {

/// The folder of the running executable; without a slash at its end.
[[nodiscard]] std::string ProgramFolder();

/// The folder with the data file, sounds and fonts of a program in `programFolder`: that folder when it holds
/// `dataFile`, else the data folder of an installed game, found from the program so that the whole may be
/// moved. Where neither holds it, the program's own folder. Without a slash at its end.
[[nodiscard]] std::string DataFolder(const std::string& programFolder, std::string_view dataFile);

/// The user's own folder for player files: "kelm-vantri" in $XDG_DATA_HOME or ~/.local/share. Without $HOME
/// the system's list of users is asked where home is.
[[nodiscard]] std::string UserFolder();
/// The user's own folder for settings: "kelm-vantri" in $XDG_CONFIG_HOME or ~/.config.
[[nodiscard]] std::string SettingsFolder();

}  // namespace kv
