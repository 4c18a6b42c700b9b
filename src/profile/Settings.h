// What the program remembers for all its players: size and place of the window, volume, the last player. It
// reads every value with suspicion, a wrong one is as good as none, and it never touches a player's file.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/SettingsStore.h"

namespace kv {

/// In percent of the layouts' own size; kFitSize: the largest at which every screen is whole.
inline constexpr int kFitSize = 0;
inline constexpr int kLeastSize = 75;
inline constexpr int kMostSize = 300;
inline constexpr int kSizeStep = 25;

inline constexpr int kFullVolume = 100;  // percent; 0 is silence

/// The middle of the window, from 0 to 1 of its desktop's screen in each direction.
struct WindowPlace {
  double x = 0.5;
  double y = 0.5;
  friend bool operator==(const WindowPlace&, const WindowPlace&) = default;
};

class Settings {
 public:
  /// `store` must outlive the settings. A change is handed to it at once.
  explicit Settings(SettingsStore& store) : store_(store) {}

  /// kFitSize or a percentage in whole steps; nothing while nobody has chosen one. Another value is taken
  /// back.
  [[nodiscard]] std::optional<int> size() const;
  void setSize(std::optional<int> percent);
  [[nodiscard]] bool fullScreen() const;
  void setFullScreen(bool full);
  /// Nothing while nobody has moved the window.
  [[nodiscard]] std::optional<WindowPlace> place() const;
  void setPlace(WindowPlace place);
  /// 0 to kFullVolume, to which other values are cut.
  [[nodiscard]] int volume() const;
  void setVolume(int percent);
  /// The player who was loaded last, by the name of the file without folder and ending; empty: none.
  [[nodiscard]] std::string lastPlayer() const;
  void setLastPlayer(std::string_view name);
  /// Hints have names of letters, digits and "_"; each is shown until it was seen.
  [[nodiscard]] bool hints() const;
  void setHints(bool on);
  [[nodiscard]] bool hintSeen(std::string_view hint) const;
  void setHintSeen(std::string_view hint);

 private:
  [[nodiscard]] bool Flag(std::string_view key, bool def) const;

  SettingsStore& store_;
};

}  // namespace kv
