#include "platform/Folders.h"

#include <cstdlib>
#include <filesystem>

namespace kv {
namespace {

std::string Environment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

}  // namespace

std::string ProgramFolder() {
  std::error_code error;
  const std::filesystem::path executable = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? std::string(".") : executable.parent_path().string();
}

std::string UserFolder() {
  const std::string data = Environment("XDG_DATA_HOME");
  // A relative path there is invalid by the convention and counts as not set.
  const std::filesystem::path base = data.starts_with('/')
                                         ? std::filesystem::path(data)
                                         : std::filesystem::path(Environment("HOME")) / ".local/share";
  return (base / "kelm-vantri").string();
}

}  // namespace kv
