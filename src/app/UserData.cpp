#include "app/UserData.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace kv {
namespace {

// XDG Base Directory Specification 0.8: an empty or relative value counts as unset.
std::filesystem::path DataHome() {
  const char* xdg = std::getenv("XDG_DATA_HOME");
  if (xdg != nullptr && xdg[0] == '/') return xdg;
  const char* home = std::getenv("HOME");
  return home != nullptr && home[0] != '\0' ? std::filesystem::path(home) / ".local/share"
                                            : std::filesystem::path();
}

}  // namespace

std::string UserDataFolder() {
  const std::filesystem::path home = DataHome();
  if (home.empty()) return "";
  const std::filesystem::path folder = home / "kelm-vantri";
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  return std::filesystem::is_directory(folder, error) ? folder.string() : "";
}

std::string DefaultPlayerFile(const std::string& folder) {
  return folder + "/Player.vnt";
}

}  // namespace kv
