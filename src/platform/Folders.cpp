#include "platform/Folders.h"

#include <cstdlib>
#include <filesystem>

namespace kv {
namespace {

std::string Environment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

std::string OwnFolder(const char* variable, const char* usual) {
  const std::string named = Environment(variable);
  // A relative path there is invalid by the convention and counts as not set.
  const std::filesystem::path base = named.starts_with('/')
                                         ? std::filesystem::path(named)
                                         : std::filesystem::path(Environment("HOME")) / usual;
  return (base / "kelm-vantri").string();
}

}  // namespace

std::string ProgramFolder() {
  std::error_code error;
  const std::filesystem::path executable = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? std::string(".") : executable.parent_path().string();
}

std::string UserFolder() {
  return OwnFolder("XDG_DATA_HOME", ".local/share");
}

std::string SettingsFolder() {
  return OwnFolder("XDG_CONFIG_HOME", ".config");
}

}  // namespace kv
