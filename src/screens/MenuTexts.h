// What the main menu says about its player: the statistics of the three modes, in plain decimal numbers. It
// only reads the record and knows no window.
#pragma once

#include <string>

#include "profile/PlayerFields.h"

namespace kv {

/// UTF-8.
struct MenuTexts {
  std::string cmdPlayer;
  std::string lblArcadeHigh;
  std::string lblSPStats;
  std::string lblMPStats;
};

[[nodiscard]] MenuTexts MenuTextsOf(const PlayerFields& player);

/// No credits, and no card to sell for credits: the campaign cannot be gone on with.
[[nodiscard]] bool CampaignLost(const PlayerFields& player);
/// The last opponent of the circuit has been beaten often enough.
[[nodiscard]] bool CampaignWon(const PlayerFields& player);

}  // namespace kv
