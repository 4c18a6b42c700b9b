#include "platform/Folders.h"

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <filesystem>

namespace kv {
namespace {

namespace fs = std::filesystem;

std::string Environment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

/// A service or a bare session may start a program without $HOME.
std::string HomeFolder() {
  if (std::string home = Environment("HOME"); home.starts_with('/')) return home;
  passwd entry{};
  passwd* found = nullptr;
  std::array<char, 16384> texts{};
  const int error = getpwuid_r(getuid(), &entry, texts.data(), texts.size(), &found);
  return error == 0 && found != nullptr && entry.pw_dir != nullptr ? entry.pw_dir : "/";
}

std::string OwnFolder(const char* variable, const char* usual) {
  const std::string named = Environment(variable);
  // A relative path there is invalid by the convention and counts as not set.
  const fs::path base = named.starts_with('/') ? fs::path(named) : fs::path(HomeFolder()) / usual;
  return (base / "kelm-vantri").string();
}

}  // namespace

std::string ProgramFolder() {
  std::error_code error;
  const fs::path executable = fs::read_symlink("/proc/self/exe", error);
  return error ? std::string(".") : executable.parent_path().string();
}

std::string DataFolder(const std::string& programFolder, std::string_view dataFile) {
  std::error_code error;
  if (fs::exists(fs::path(programFolder) / dataFile, error)) return programFolder;
  const fs::path installed = (fs::path(programFolder) / KV_DATA_FROM_PROGRAM).lexically_normal();
  return fs::exists(installed / dataFile, error) ? installed.string() : programFolder;
}

std::string UserFolder() {
  return OwnFolder("XDG_DATA_HOME", ".local/share");
}

std::string SettingsFolder() {
  return OwnFolder("XDG_CONFIG_HOME", ".config");
}

}  // namespace kv
