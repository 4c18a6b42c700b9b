#include "screens/PlayerFiles.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "platform/Files.h"
#include "platform/NewFile.h"

namespace kv {
namespace {

constexpr std::string_view kEnding = ".vnt";
constexpr std::string_view kForbidden = R"(\/:*?"<>|)";
constexpr std::size_t kLongestFileName = 255;  // bytes, with the ending

bool IsControl(char c) {
  return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

}  // namespace

std::string PlayerPath(const std::string& folder, std::string_view name) {
  return (folder.empty() ? std::string() : folder + "/") + std::string(name) + std::string(kEnding);
}

void PlayerFileList::Refresh() {
  files_ = List(folder_, "*" + std::string(kEnding));
}

std::string PlayerFileList::Player(std::size_t index) const {
  const std::string& file = files_.at(index);
  return file.substr(0, file.size() - kEnding.size());
}

bool IsValidFileName(std::string_view name) {
  if (name.empty()) return true;
  return name.find_first_of(kForbidden) == std::string_view::npos && std::ranges::none_of(name, IsControl) &&
         name.back() != '.' && name.back() != ' ' && name.size() + kEnding.size() <= kLongestFileName;
}

bool PlayerExists(const std::string& folder, std::string_view name) {
  std::error_code error;
  const auto status = std::filesystem::symlink_status(ResolvePath(PlayerPath(folder, name)), error);
  return std::filesystem::exists(status);
}

PlayerCreation CreatePlayerFile(clsPlayer& player, const std::string& folder, std::string_view name) {
  if (PlayerExists(folder, name)) return PlayerCreation::Exists;
  const std::string path = PlayerPath(folder, name);
  const NewFile file(path);
  if (file.claim() == NewFile::Claim::Exists) return PlayerCreation::Exists;
  // Without the claim a save might meet a file made meanwhile. A path that goes on below the file is one at
  // which nothing can be saved: the player tells so.
  player.FileName = file.claim() == NewFile::Claim::Made ? path : path + "/";
  player.WritePlayerFile();
  player.FileName = path;
  return file.Written() ? PlayerCreation::Created : PlayerCreation::NotSaved;
}

}  // namespace kv
