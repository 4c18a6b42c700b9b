// Fonts for this program only: the file is loaded beside the system's fonts, and the name that the layouts
// use stands for it, whatever family name the file bears inside. Never touches the system's own fonts.
#pragma once

#include <map>
#include <string>

#include "platform/FontSystem.h"

namespace kv {

class QtFontSystem : public FontSystem {
 public:
  /// Reads which fonts the system has, as the first text would: on any thread, also before the application
  /// stands.
  static void ReadSystemFonts();

  [[nodiscard]] std::optional<std::string> FontsFolder() override;
  [[nodiscard]] bool IsInstalled(const std::string& folder, const std::string& fileName) override;
  void CopyAndRegister(const std::string& path, const std::string& folder) override;
  void Record(const std::string& title, const std::string& fileName) override;
  void Announce() override;

 private:
  std::map<std::string, std::string> families_;  // file name in lower case -> family inside the file
};

}  // namespace kv
