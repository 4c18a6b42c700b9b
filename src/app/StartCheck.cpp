#include "app/StartCheck.h"

#include <filesystem>
#include <system_error>

#include "platform/Files.h"
#include "presentation/PictureSizes.h"

namespace kv {

bool CheckDataFile(const std::string& programFolder, Dialogs& dialogs) {
  const std::string path = programFolder + "/" + kDataFileName;
  if (!FileExists(path)) {
    dialogs.Message("Could not find file '" + std::string(kDataFileName) + "'", "Kelm Vantri: Error",
                    DialogIcon::Critical);
    return false;
  }
  std::error_code error;
  if (const auto size = std::filesystem::file_size(ResolvePath(path), error);
      error || size != static_cast<std::uintmax_t>(kDataFileSize)) {
    dialogs.Message(
        "Data file size doesn't not match expected size. Check that you are running the latest base version "
        "and update.",
        "Kelm Vantri", DialogIcon::None);
    return false;
  }
  return true;
}

}  // namespace kv
