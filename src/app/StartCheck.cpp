#include "app/StartCheck.h"

#include <array>
#include <filesystem>
#include <system_error>

#include "platform/Files.h"
#include "presentation/PictureSizes.h"

namespace kv {
namespace {

namespace fs = std::filesystem;

constexpr std::array kProgramFiles = {
    kDataFileName,         "bnkgothicL.ttf",    "bnkgothicM.ttf",       "sounds\\accept.wav",
    "sounds\\bust.wav",    "sounds\\buy.wav",   "sounds\\check.wav",    "sounds\\click.wav",
    "sounds\\draw.wav",    "sounds\\hover.wav", "sounds\\levelup.wav",  "sounds\\losematch.wav",
    "sounds\\loseset.wav", "sounds\\panel.wav", "sounds\\playcard.wav", "sounds\\propose.wav",
    "sounds\\tie.wav",     "sounds\\turn.wav",  "sounds\\winmatch.wav", "sounds\\winset.wav"};
constexpr const char* kPortraits = "Portraits";

std::string In(const std::string& folder, const std::string& name) {
  return folder.empty() ? name : folder + "/" + name;
}

bool IsFolder(const std::string& path) {
  std::error_code error;
  return fs::is_directory(ResolvePath(path), error);
}

bool AllFilesThere(const std::string& programFolder, Dialogs& dialogs) {
  for (const std::string name : kProgramFiles) {
    if (FileExists(In(programFolder, name))) continue;
    dialogs.Message("Could not find file '" + name + "'", "Kelm Vantri: Error", DialogIcon::Critical);
    return false;
  }
  return true;
}

void MakePortraitFolder(const std::string& programFolder, const std::string& workingFolder) {
  if (IsFolder(In(programFolder, kPortraits))) return;
  std::error_code ignored;  // without the folder nobody has a portrait of their own, and that is all
  fs::create_directory(In(workingFolder, kPortraits), ignored);
}

bool DataFileHasItsSize(const std::string& programFolder, Dialogs& dialogs) {
  std::error_code error;
  const auto size = fs::file_size(ResolvePath(In(programFolder, kDataFileName)), error);
  if (!error && size == static_cast<std::uintmax_t>(kDataFileSize)) return true;
  dialogs.Message(
      "Data file size doesn't not match expected size. Check that you are running the latest base version "
      "and update.",
      "Kelm Vantri", DialogIcon::None);
  return false;
}

}  // namespace

bool CheckProgramFiles(const std::string& programFolder, const std::string& workingFolder, Dialogs& dialogs) {
  if (!AllFilesThere(programFolder, dialogs)) return false;
  MakePortraitFolder(programFolder, workingFolder);
  return DataFileHasItsSize(programFolder, dialogs);
}

// A folder beside the program is one that its owner has put there for everybody. An installed program has
// none, and players could not write to it: then each has one beside the player files.
std::string PortraitFolder(const std::string& programFolder, const std::string& workingFolder) {
  const std::string beside = In(programFolder, kPortraits);
  return IsFolder(beside) ? beside : In(workingFolder, kPortraits);
}

}  // namespace kv
