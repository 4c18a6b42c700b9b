// What one player owns: statistics of the three modes, collections, side decks, options and key bindings.
// Plain values with their starting state; it never reads or writes a file and never asks anybody anything.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "cards/clsCardArray.h"
#include "cards/clsDeckArray.h"
#include "cards/clsNumbers.h"
#include "platform/Version.h"

namespace kv {

/// All texts are UTF-8. The boxes and arrays are shared: a match holds the same ones, so they are made once,
/// are never null and are changed only through what they point at.
struct PlayerFields {
  /// A brand-new player, with no name and an empty campaign collection.
  PlayerFields();
  PlayerFields(const PlayerFields&) = delete;
  PlayerFields& operator=(const PlayerFields&) = delete;

  /// Puts the arcade side deck back; the high score stays.
  void ResetArcade();
  /// Starts the campaign anew; the card collection and the arcade high score stay.
  void ResetSP();
  /// Starts the network career anew, with an empty collection.
  void ResetMP();

  bool WRITING = false;  // a save is in progress (not stored)
  std::string FileName;  // path of the player file (not stored)
  std::string PIN;       // 0 to 4 digits, the scrambling key (not stored)
  std::string Version{kProgramVersion};
  std::string Name;
  const std::shared_ptr<clsLong> Credits = std::make_shared<clsLong>();
  const std::shared_ptr<clsInteger> Wins = std::make_shared<clsInteger>();
  const std::shared_ptr<clsInteger> Losses = std::make_shared<clsInteger>();
  std::int32_t Arcade_Best = 0;
  const std::shared_ptr<clsLong> Credits_MP = std::make_shared<clsLong>();
  const std::shared_ptr<clsInteger> Wins_MP = std::make_shared<clsInteger>();
  const std::shared_ptr<clsInteger> Losses_MP = std::make_shared<clsInteger>();
  std::int16_t Disconnects = 0;  // network matches that ended out of order
  std::int16_t Portrait = 7;
  std::string LastIP = "127.0.0.1";
  std::int32_t LastPort = 6000;
  // Campaign wins against each opponent, in circuit order.
  const std::shared_ptr<clsInteger> Brannock_Wins = std::make_shared<clsInteger>();
  const std::shared_ptr<clsInteger> Tamsen_Wins = std::make_shared<clsInteger>();
  const std::shared_ptr<clsInteger> Velir_Wins = std::make_shared<clsInteger>();
  const std::shared_ptr<clsInteger> Brummox_Wins = std::make_shared<clsInteger>();
  const std::shared_ptr<clsInteger> Orrin_Wins = std::make_shared<clsInteger>();
  const std::shared_ptr<clsInteger> H6J8_Wins = std::make_shared<clsInteger>();
  std::uint8_t TurnMode_Opt = 2;
  bool AutoTurn_Opt = false;     // end the turn by itself while the total is below 10
  bool AutoDialogs_Opt = false;  // confirm the match's boxes by itself
  bool LightPulse_Opt = true;
  bool ShowPortrait_Opt = true;
  std::string Interface_Opt = "Slate";  // or "Ember"
  bool ShowMinimize_Opt = true;
  std::uint8_t GameSpeed_Opt = 1;
  std::uint8_t ArcadeOpp_Opt = 0;
  std::uint8_t ArcadeAI_Opt = 0;  // 0 clsAI_Normal, 1 clsAI_Ember
  bool KeysEn = false;            // keyboard play
  // Virtual-key codes: (1,1) end turn, (1,2) stand, rows 2 to 4 for hand cards 1 to 4: play, first flip
  // button, second flip button.
  const std::shared_ptr<clsCardArray> Keys = std::make_shared<clsCardArray>();
  bool Mute_Highlight_Opt = false;
  bool Mute_Buttons_Opt = false;
  bool Mute_Cards_Opt = false;
  bool Mute_Events_Opt = false;
  const std::shared_ptr<clsDeckArray> Deck = std::make_shared<clsDeckArray>();
  const std::shared_ptr<clsCardArray> Cards = std::make_shared<clsCardArray>();
  const std::shared_ptr<clsDeckArray> Deck_MP = std::make_shared<clsDeckArray>();
  const std::shared_ptr<clsCardArray> Cards_MP = std::make_shared<clsCardArray>();
  const std::shared_ptr<clsDeckArray> ArcadeDeck = std::make_shared<clsDeckArray>();
};

}  // namespace kv
