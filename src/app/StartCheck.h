// What must lie beside the program before it starts, and where players' own portraits lie.
#pragma once

#include <string>

#include "platform/Dialogs.h"

namespace kv {

/// Looks for the program's files, makes the portrait folder when there is none, and checks the size of the
/// data file. The first fault is told in a box; then it is false, and the program ends.
[[nodiscard]] bool CheckProgramFiles(const std::string& programFolder, const std::string& workingFolder,
                                     Dialogs& dialogs);

/// The folder "Portraits" of the program folder when there is one, else that of the working folder (empty:
/// the current folder). Without a slash at its end.
[[nodiscard]] std::string PortraitFolder(const std::string& programFolder, const std::string& workingFolder);

}  // namespace kv
