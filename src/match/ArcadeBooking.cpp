#include "match/ArcadeBooking.h"

#include <algorithm>
#include <limits>

#include "profile/clsPlayer.h"

namespace kv {

void ArcadeBooking::SaveWin() {
  // A counter at its limit stays there: a player should not see wins turn negative.
  if (game_.WinsRef->Value < std::numeric_limits<std::int16_t>::max()) ++game_.WinsRef->Value;
  const std::int64_t credits = game_.CreditsRef->Value + std::int64_t{2} * game_.Wager;
  game_.CreditsRef->Value = static_cast<std::int32_t>(std::min<std::int64_t>(kMostCredits, credits));
  Close();
}

void ArcadeBooking::SaveLoss() {
  Close();
}

void ArcadeBooking::Close() {
  game_.Wager = -1;
  player_.WritePlayerFile();
}

}  // namespace kv
