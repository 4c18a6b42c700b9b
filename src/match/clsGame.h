// The match record: one for each run of a mode. It carries the set-up of a match to the match screen and the
// references through which its result is booked; it must never hold anything of a screen.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "ai/Strategy.h"
#include "cards/clsCardArray.h"
#include "cards/clsDeckArray.h"
#include "cards/clsNumbers.h"
#include "platform/Picture.h"

namespace kv {

class clsPlayer;

/// The values of clsGame::Mode.
inline constexpr std::string_view kModeArcade = "Arcade";
inline constexpr std::string_view kModeCampaign = "Campaign";
inline constexpr std::string_view kModeDeckConfig = "Deck Config";
inline constexpr std::string_view kModeNetwork = "Network";
inline constexpr std::string_view kModeNetworkArcade = "Network_Arcade";

inline constexpr std::int32_t kMostCredits = 2000000000;

/// Gives the portrait of a number and a player file's base name ("0" for none).
using PortraitSource = std::function<Picture(int number, const std::string& name)>;

class clsGame {
 public:
  /// A bare record, as simulations use it: arcade, no opponent, no references.
  clsGame() = default;
  /// An arcade run of this player, who must outlive the record. `portraits` may be empty.
  clsGame(clsPlayer& player, PortraitSource portraits);

  std::string Mode{kModeArcade};
  std::string OppName;
  Picture YourPic;
  Picture OppPic;
  std::string OppFileName = "0";
  std::shared_ptr<Strategy> AI;
  std::int32_t Wager = -1;  // credits; -1: no stake is open, or the match is booked
  std::int16_t MinWager = 0;
  std::int32_t MaxWager = kMostCredits;
  std::map<std::string, std::int32_t> LastWagers;  // by opponent, since the mode was entered
  std::shared_ptr<clsLong> CreditsRef;
  std::shared_ptr<clsInteger> WinsRef = std::make_shared<clsInteger>();
  std::shared_ptr<clsInteger> LossesRef = std::make_shared<clsInteger>();
  std::shared_ptr<clsInteger> CampaignWinRef;
  std::shared_ptr<clsDeckArray> SideDeck;  // the player's hand in entries 1 to 4
  std::shared_ptr<clsDeckArray> CompDeck;  // the opponent's hand; a played slot holds "00"
  std::shared_ptr<clsDeckArray> DeckRef;
  std::shared_ptr<clsCardArray> CardsRef;

  [[nodiscard]] bool isNetwork() const { return Mode == kModeNetwork || Mode == kModeNetworkArcade; }

  /// The player's arcade deck and a collection with ten of every card become the ones in use.
  void InitArcadeCards();
  /// Loads the portraits of these numbers for the player and the opponent.
  void LoadPortraits(int yourPicture, int opponentPicture);

 private:
  clsPlayer* player_ = nullptr;
  PortraitSource portraits_;
  std::shared_ptr<clsDeckArray> arcadeDeck_;
  std::shared_ptr<clsCardArray> arcadeCards_;
};

/// The credits an arcade run starts with: a quarter of the best score to the nearest whole number (a half
/// goes to the even one), at least 100.
[[nodiscard]] std::int32_t ArcadeStartCredits(std::int32_t arcadeBest);

}  // namespace kv
