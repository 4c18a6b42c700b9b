// Key codes of the key bindings: the numbers are the usual virtual-key codes of desktop keyboards.
#pragma once

namespace kv {

inline constexpr int KeyTab = 9;
inline constexpr int KeyEnter = 13;
inline constexpr int KeyShift = 16;
inline constexpr int KeyControl = 17;
inline constexpr int KeyAlt = 18;
inline constexpr int KeyEscape = 27;
inline constexpr int KeySpace = 32;

/// The modifiers held while a key is pressed.
struct KeyModifiers {
  bool shift = false;
  bool control = false;
  bool alt = false;
};

}  // namespace kv
