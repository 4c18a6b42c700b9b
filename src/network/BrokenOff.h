// What is booked when a network match ends before its time. Each of these closes the stake, so that nothing
// can book the match again.
#pragma once

#include "match/MatchPartners.h"
#include "platform/Dialogs.h"

namespace kv {

class clsGame;
class clsPlayer;

/// The line was lost: half the stake comes back, and the disconnect that was counted in advance stays. Writes
/// the player file.
void SaveDisconnect(clsGame& game, clsPlayer& player, MatchBooking& booking, Dialogs& dialogs);

/// The match is called off before its first set: the stake and the advance entry are taken back. Writes the
/// player file.
void WithdrawStake(clsGame& game, clsPlayer& player);

/// The stake of a match that ends on the card screen leaves the player's own credits: the screen's working
/// copy, which it was taken from, is lost.
void StakeToRecord(clsGame& game, clsPlayer& player);

}  // namespace kv
