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
struct PlayerFields;

/// The booking of a won or lost match in memory. Without an open stake (Wager is -1) there is no match to
/// book: false, and nothing changed. Whichever way a match ends, only the first booking counts.
[[nodiscard]] bool BookWin(clsGame& game, PlayerFields& player, Dialogs& dialogs);
[[nodiscard]] bool BookLoss(clsGame& game, PlayerFields& player);

/// The bookings of the running program: in memory and, at once, in the player file.
class SaveBooking final : public MatchBooking {
 public:
  /// All three must outlive the booking.
  SaveBooking(clsGame& game, clsPlayer& player, Dialogs& dialogs)
      : game_(game), player_(player), dialogs_(dialogs) {}

  void SaveWin() override;
  void SaveLoss() override;
  void TurnLossIntoWin() override;
  [[nodiscard]] std::string Progress() const override;

 private:
  clsGame& game_;
  clsPlayer& player_;
  Dialogs& dialogs_;
  std::int32_t lost_ = -1;  // the stake of the match booked last, if it was lost
};

}  // namespace kv
