#include "presentation/Fonts.h"

#include <filesystem>
#include <iostream>

#include "platform/Files.h"

namespace kv {
namespace {

constexpr const char* kTitle = "Kelm Vantri";
constexpr std::size_t kExtensionSize = 4;

std::string UpperCase(std::string text) {
  for (char& c : text) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return text;
}

bool IsFontName(const std::string& path) {
  if (path.size() < kExtensionSize) return false;
  const std::string extension = UpperCase(path.substr(path.size() - kExtensionSize));
  return extension == ".TTF" || extension == ".FON";
}

}  // namespace

std::string CurrentFolder() {
  std::error_code error;
  std::string folder = std::filesystem::current_path(error).string();
  if (!folder.ends_with('/')) folder += '/';
  return folder;
}

void InstallFont(const std::string& path, const std::string& fontName, bool showMessages, FontSystem& fonts,
                 Dialogs& dialogs) {
  const auto tell = [&](const std::string& text) {
    if (showMessages) dialogs.Message(text, kTitle, DialogIcon::Information);
  };
  if (!IsFontName(path)) return tell("You must specify a .TTF or .FON file, including extension");

  const std::string file = ResolvePath(path);
  const std::string fileName = path.substr(path.find_last_of("/\\") + 1);
  if (!FileExists(file)) {
    if (!showMessages) {
      std::cerr << "Kelm Vantri: " << path << " is missing, so the system's typeface stands in for it\n";
    }
    return tell(fileName + " not found in " + CurrentFolder() + ".");
  }

  std::optional<std::string> folder = fonts.FontsFolder();
  if (!folder) return tell("Sorry, can't retrieve Font Folder.");
  if (!folder->ends_with('/')) *folder += '/';
  if (fonts.IsInstalled(*folder, fileName)) {
    return tell(fontName + " (" + fileName + ") is already installed.");
  }
  fonts.CopyAndRegister(file, *folder);
  fonts.Record(fontName + " (TrueType)", fileName);
  fonts.Announce();
}

}  // namespace kv
