// The version of the game, as players, files and peers read it. It stands in the project() line of the build
// alone; nothing else may spell it out.
#pragma once

#include <string_view>

namespace kv {

/// Three numbers of one digit each with dots between them.
extern const std::string_view kProgramVersion;
/// The same without the dots, the number that player files are compared by.
extern const int kProgramVersionNumber;

}  // namespace kv
