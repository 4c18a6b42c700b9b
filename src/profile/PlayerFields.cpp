#include "profile/PlayerFields.h"

#include <array>

namespace kv {
namespace {

constexpr std::int32_t kStartCredits = 100;

struct KeyBinding {
  int row;
  int column;
  std::int16_t key;
};

constexpr std::array<KeyBinding, 14> kDefaultKeys = {{
    {1, 1, 32},  // end turn: Space
    {1, 2, 9},   // stand: Tab
    {2, 1, '1'},
    {2, 2, '2'},
    {2, 3, '3'},
    {2, 4, '4'},  // play a hand card
    {3, 1, 'Q'},
    {3, 2, 'W'},
    {3, 3, 'E'},
    {3, 4, 'R'},  // first flip button
    {4, 1, 'A'},
    {4, 2, 'S'},
    {4, 3, 'D'},
    {4, 4, 'F'},  // second flip button
}};

}  // namespace

PlayerFields::PlayerFields() {
  ResetArcade();
  ResetSP();
  ResetMP();
  for (const KeyBinding& binding : kDefaultKeys) Keys->setValue(binding.row, binding.column, binding.key);
}

void PlayerFields::ResetArcade() {
  ArcadeDeck->setAll({"s199", "s199", "s599", "s599", "fl3", "fl3", "fl4", "fl4", "fp5", "s299"});
}

void PlayerFields::ResetSP() {
  Credits->Value = kStartCredits;
  Deck->DefaultDeckSP();
  for (const auto* counter :
       {&Wins, &Losses, &Brannock_Wins, &Tamsen_Wins, &Velir_Wins, &Brummox_Wins, &Orrin_Wins, &H6J8_Wins}) {
    (*counter)->Value = 0;
  }
}

void PlayerFields::ResetMP() {
  Credits_MP->Value = kStartCredits;
  Wins_MP->Value = 0;
  Losses_MP->Value = 0;
  Disconnects = 0;
  Deck_MP->DefaultDeckMP();
  Cards_MP->Fill(0);
}

}  // namespace kv
