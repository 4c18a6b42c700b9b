// The system's side of installing a font: where fonts lie, taking a file in, recording it, telling windows.
// The real form (QtFontSystem) keeps a font to this program; nothing is written to the system.
#pragma once

#include <optional>
#include <string>

namespace kv {

class FontSystem {
 public:
  virtual ~FontSystem() = default;
  /// The fonts folder with a "/" at its end; nothing when it cannot be told.
  [[nodiscard]] virtual std::optional<std::string> FontsFolder() = 0;
  /// True when a font file of that name is in the fonts folder already.
  [[nodiscard]] virtual bool IsInstalled(const std::string& folder, const std::string& fileName) = 0;
  /// Takes the file into the fonts folder and makes the running program able to draw with it. A file that is
  /// no font is noted on standard error and changes nothing.
  virtual void CopyAndRegister(const std::string& path, const std::string& folder) = 0;
  /// Records that the font of this title (its name and " (TrueType)") lies in that file of the fonts folder.
  virtual void Record(const std::string& title, const std::string& fileName) = 0;
  /// Tells all windows that the fonts have changed.
  virtual void Announce() = 0;
};

}  // namespace kv
