#include <gtest/gtest.h>

#include "match/MatchKeys.h"
#include "profile/PlayerFields.h"

namespace kv {
namespace {

constexpr int kKeyQ = 81;
constexpr int kKeyA = 65;

class MatchKeysTest : public testing::Test {
 protected:
  KeyAction Press(int key, KeyModifiers held = {}, const FlipsShown& flips = {}) const {
    return KeyActionOf(keys, key, held, flips);
  }

  PlayerFields player;
  clsCardArray& keys = *player.Keys;
  const FlipsShown all{{true, true, true, true}, {true, true, true, true}};
};

TEST_F(MatchKeysTest, DefaultKeys) {
  EXPECT_EQ(Press(KeySpace), (KeyAction{KeyCommand::EndTurn}));
  EXPECT_EQ(Press(KeyTab), (KeyAction{KeyCommand::Stand}));
  EXPECT_EQ(Press('3'), (KeyAction{KeyCommand::Play, 3}));
  EXPECT_EQ(Press(kKeyQ, {}, all), (KeyAction{KeyCommand::FirstFlip, 1}));
  EXPECT_EQ(Press(kKeyA, {}, all), (KeyAction{KeyCommand::SecondFlip, 1}));
  EXPECT_EQ(Press(kKeyQ), KeyAction{}) << "a flip button that is not shown";
  // Entries without a binding hold 0, the code of keys that the platform does not know.
  for (const int unbound : {0, -1, int{KeyEnter}, 70000}) {
    EXPECT_FALSE(IsBoundKey(keys, unbound));
    EXPECT_EQ(Press(unbound, {}, all), KeyAction{});
  }
}

TEST_F(MatchKeysTest, ModifiersTurnAPlayKeyIntoAFlip) {
  EXPECT_EQ(Press('2', {.shift = true}, all), (KeyAction{KeyCommand::FirstFlip, 2}));
  EXPECT_EQ(Press('2', {.alt = true}, all), (KeyAction{KeyCommand::FirstFlip, 2}));
  EXPECT_EQ(Press('2', {.control = true}, all), (KeyAction{KeyCommand::SecondFlip, 2}));
  EXPECT_EQ(Press('2', {.shift = true}), KeyAction{}) << "never played by mistake for a flip";
  EXPECT_EQ(Press(KeySpace, {.shift = true}), (KeyAction{KeyCommand::EndTurn}));
}

TEST_F(MatchKeysTest, AModifierFlipsTheCardOfThePlayKeyWhateverTheFlipKeysAre) {
  for (const std::int16_t flipKey : {std::int16_t{0}, std::int16_t{kKeyQ}}) {  // cleared, and one for all
    for (int slot = 1; slot <= 4; ++slot) {
      keys.setValue(3, slot, flipKey);
      keys.setValue(4, slot, flipKey);
    }
    EXPECT_EQ(Press('3', {.shift = true}, all), (KeyAction{KeyCommand::FirstFlip, 3}));
    EXPECT_EQ(Press('3', {.control = true}, all), (KeyAction{KeyCommand::SecondFlip, 3}));
    const FlipsShown others{{true, true, false, true}, {true, true, false, true}};
    EXPECT_EQ(Press('3', {.alt = true}, others), KeyAction{});
    EXPECT_EQ(Press('3', {.control = true}, others), KeyAction{});
  }
}

TEST_F(MatchKeysTest, ABoundModifierIsAKeyLikeAnyOther) {
  keys.setValue(1, 1, KeyShift);
  EXPECT_EQ(Press(KeyShift, {.shift = true}, all), (KeyAction{KeyCommand::EndTurn}));
  EXPECT_EQ(Press('2', {.shift = true}, all), (KeyAction{KeyCommand::Play, 2}));
  EXPECT_EQ(Press('2', {.control = true}, all), (KeyAction{KeyCommand::SecondFlip, 2}));
  keys.setValue(1, 2, KeyControl);
  EXPECT_EQ(Press('2', {.control = true}, all), (KeyAction{KeyCommand::Play, 2}));
  EXPECT_EQ(Press('2', {.control = true, .alt = true}, all), (KeyAction{KeyCommand::FirstFlip, 2}));
}

TEST_F(MatchKeysTest, OneKeyForSeveralThings) {
  // The first rule wins; among flip buttons the first that is shown.
  for (int slot = 1; slot <= 4; ++slot) keys.setValue(3, slot, kKeyQ);
  EXPECT_EQ(Press(kKeyQ, {}, {{false, false, true, true}, {}}), (KeyAction{KeyCommand::FirstFlip, 3}));
  keys.setValue(4, 2, kKeyQ);
  EXPECT_EQ(Press(kKeyQ, {}, {{}, {true, true, true, true}}), (KeyAction{KeyCommand::SecondFlip, 2}));
  keys.setValue(2, 4, kKeyQ);
  EXPECT_EQ(Press(kKeyQ, {}, all), (KeyAction{KeyCommand::Play, 4}));
  keys.setValue(1, 2, kKeyQ);
  EXPECT_EQ(Press(kKeyQ, {}, all), (KeyAction{KeyCommand::Stand}));
}

}  // namespace
}  // namespace kv
