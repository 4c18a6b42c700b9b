// What must lie beside the program before it starts.
#pragma once

#include <string>

#include "platform/Dialogs.h"

namespace kv {

/// Whether the data file lies in the program folder with exactly its size. If not, says so in a box; the
/// program then ends.
[[nodiscard]] bool CheckDataFile(const std::string& programFolder, Dialogs& dialogs);

}  // namespace kv
