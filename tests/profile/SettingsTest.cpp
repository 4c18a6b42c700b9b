#include <gtest/gtest.h>

#include "profile/Settings.h"
#include "support/MemorySettings.h"

namespace kv::test {
namespace {

class SettingsTest : public testing::Test {
 protected:
  MemorySettings store;
  Settings settings{store};
};

TEST_F(SettingsTest, WhatWasSetIsReadAgain) {
  settings.setSize(kFitSize);
  EXPECT_EQ(settings.size(), kFitSize);
  settings.setSize(125);
  settings.setFullScreen(true);
  settings.setPlace({0, 0.33333333});
  settings.setVolume(0);
  settings.setLastPlayer("Zoë = 1");
  settings.setHintSeen("drag_cards");
  settings.setHints(false);

  const Settings later(store);
  EXPECT_EQ(later.size(), 125);
  EXPECT_TRUE(later.fullScreen());
  EXPECT_EQ(later.place(), (WindowPlace{0, 0.3333}));
  EXPECT_EQ(later.volume(), 0);
  EXPECT_EQ(later.lastPlayer(), "Zoë = 1");
  EXPECT_TRUE(later.hintSeen("drag_cards"));
  EXPECT_FALSE(later.hintSeen("keys"));
  EXPECT_FALSE(later.hints());

  settings.setSize(std::nullopt);
  EXPECT_EQ(later.size(), std::nullopt);
}

TEST_F(SettingsTest, AnAbsurdValueIsAsGoodAsNone) {
  for (const std::string text : {"", "999999", "-75", "1e2", "75 ", " 75", "0x64", "nan", "inf", "-0.1",
                                 "1.0001", "maybe", "99999999999999999999", "\xFF\xFE", "YES"}) {
    for (const char* key : {"size", "volume", "place.x", "full_screen", "hints", "hint_seen.keys"}) {
      store.texts[key] = text;
    }
    store.texts["place.y"] = "0.5";
    EXPECT_EQ(settings.size(), std::nullopt) << text;
    EXPECT_EQ(settings.volume(), kFullVolume) << text;
    EXPECT_EQ(settings.place(), std::nullopt) << text;
    EXPECT_FALSE(settings.fullScreen()) << text;
    EXPECT_TRUE(settings.hints()) << text;
    EXPECT_FALSE(settings.hintSeen("keys")) << text;
  }
  for (const char* between : {"74", "0", "76", "301", "325"}) {
    store.texts["size"] = between;
    EXPECT_EQ(settings.size(), std::nullopt) << between;
  }
}

TEST_F(SettingsTest, AnAbsurdWishIsNotStored) {
  settings.setSize(80);
  settings.setVolume(140);
  settings.setPlace({-3, 0.0 / 0.0});
  EXPECT_EQ(settings.size(), std::nullopt);
  EXPECT_EQ(settings.volume(), 100);
  EXPECT_EQ(settings.place(), (WindowPlace{0.5, 0.5}));
  settings.setVolume(-1);
  EXPECT_EQ(settings.volume(), 0);
}

}  // namespace
}  // namespace kv::test
