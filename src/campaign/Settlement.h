// Settling the stake of a match: it leaves the credits, and the match is booked in advance as lost (campaign)
// or as a disconnect (network), on disk, before a card is dealt. Whoever pulls the plug afterwards finds that
// entry in the file, and never a gain.
#pragma once

#include <cstdint>

#include "platform/Dialogs.h"

namespace kv {

class clsGame;
class clsPlayer;
struct PlayerFields;

/// The stake becomes the open one and leaves CreditsRef; the advance entry is counted. False, and nothing
/// changed, for an amount that is negative or more than the credits.
[[nodiscard]] bool TakeStake(clsGame& game, PlayerFields& player, std::int32_t amount);
/// The same, and an advance entry is written to the player file before this returns.
[[nodiscard]] bool SettleStake(clsGame& game, clsPlayer& player, std::int32_t amount);

/// Whether losing this stake would end the campaign: it is all the credits, and no card is left to sell.
[[nodiscard]] bool StakeRisksCampaign(const clsGame& game, std::int32_t amount);
/// Asks whether to risk the campaign; true for yes.
[[nodiscard]] bool AskRiskCampaign(Dialogs& dialogs);

/// The end of an arcade run: credits above the high score become the high score, which is saved.
void EndArcadeRun(const clsGame& game, clsPlayer& player);

}  // namespace kv
