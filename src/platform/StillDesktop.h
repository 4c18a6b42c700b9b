// What the user's desktop says about motion in its settings. Read once at start; it must never be waited for.
#pragma once

#include <string>

namespace kv {

/// Whether the settings in `configFolder` ($XDG_CONFIG_HOME or ~/.config) ask programs to move nothing:
/// "gtk-enable-animations" of GTK 3 and 4, "AnimationDurationFactor" of Plasma. What cannot be read asks for
/// nothing.
[[nodiscard]] bool DesktopWishesStillness(const std::string& configFolder);

}  // namespace kv
