// Installing the display typefaces that the program carries beside itself. A font that is missing or broken
// is never an error of the program: the screens are then drawn in the system's own typeface.
#pragma once

#include <string>

#include "platform/Dialogs.h"
#include "platform/FontSystem.h"

namespace kv {

/// The two typefaces of the layouts: the file beside the program and the name the layouts use.
struct DisplayFont {
  const char* file;
  const char* name;
};
inline constexpr DisplayFont kDisplayFonts[] = {{"bnkgothicL.ttf", "BankGothic Lt BT"},
                                                {"bnkgothicM.ttf", "BankGothic Md BT"}};

/// Installs one font file under `fontName`; one that is installed already is left alone. With `showMessages`
/// every reason to stop is told in a box, without it a missing file is only noted on standard error.
void InstallFont(const std::string& path, const std::string& fontName, bool showMessages, FontSystem& fonts,
                 Dialogs& dialogs);

/// The current folder with a "/" at its end.
[[nodiscard]] std::string CurrentFolder();

}  // namespace kv
