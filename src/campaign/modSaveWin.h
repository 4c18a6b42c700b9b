// Books the result of a match: the stake is paid out, campaign progress is counted, unlocks are told, the
// player file is written. It corrects what the settling of the stake had booked in advance, and books a match
// never twice.
#pragma once

#include <cstdint>

#include "match/MatchPartners.h"

namespace kv {

class Dialogs;
class clsGame;
class clsPlayer;

class SaveBooking final : public MatchBooking {
 public:
  /// All three must outlive the booking.
  SaveBooking(clsGame& game, clsPlayer& player, Dialogs& dialogs)
      : game_(game), player_(player), dialogs_(dialogs) {}

  /// The local player won, or lost, the match whose stake is open. Without an open stake (Wager is -1) there
  /// is no match to book and nothing happens: whichever way a match ends, only the first booking counts.
  void SaveWin() override;
  void SaveLoss() override;

 private:
  /// Takes the open stake, so that nothing that runs inside a box of ours can book the match again.
  [[nodiscard]] std::int32_t TakeStake();
  void PayOut(std::int32_t stake);
  void CountCampaignWin();

  clsGame& game_;
  clsPlayer& player_;
  Dialogs& dialogs_;
};

}  // namespace kv
