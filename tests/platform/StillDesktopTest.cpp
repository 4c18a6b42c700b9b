// The desktop's settings against motion, as its programs write them.
#include <gtest/gtest.h>

#include "platform/StillDesktop.h"
#include "support/TempFolder.h"

namespace kv::test {
namespace {

TEST(StillDesktopTest, OnlyAClearNoAsksForStillness) {
  const struct {
    const char* file;
    const char* text;
    bool still;
  } cases[] = {
      {"gtk-3.0/settings.ini", "[Settings]\ngtk-theme-name=Breeze\ngtk-enable-animations=false\n", true},
      {"gtk-4.0/settings.ini", "[Settings]\r\ngtk-enable-animations = 0\r\n", true},
      {"gtk-3.0/settings.ini", "[Settings]\ngtk-enable-animations=true\n", false},
      {"gtk-3.0/settings.ini", "gtk-enable-animations=", false},
      {"kdeglobals", "[KDE]\nAnimationDurationFactor=0\n", true},
      {"kdeglobals", "[KDE]\nAnimationDurationFactor=0.0", true},
      {"kdeglobals", "[KDE]\nAnimationDurationFactor=0.5\n", false},
      {"settings.ini", "gtk-enable-animations=0\n", false},
  };
  for (const auto& each : cases) {
    const TempFolder config;
    for (const char* folder : {"gtk-3.0", "gtk-4.0"}) std::filesystem::create_directory(config / folder);
    EXPECT_FALSE(DesktopWishesStillness(config.path()));
    config.Put(each.file, each.text);
    EXPECT_EQ(DesktopWishesStillness(config.path()), each.still) << each.file << ": " << each.text;
  }
}

}  // namespace
}  // namespace kv::test
