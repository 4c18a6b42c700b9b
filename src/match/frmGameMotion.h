// Says what moves on the match screen when something happens: cards travel, turn and shake, totals count,
// markers and wins shine. It only looks at the match; no rule waits for it, and every motion fits into the
// pause that follows what it shows.
#pragma once

#include <array>

#include "match/MatchObserver.h"
#include "match/frmGameHand.h"
#include "match/frmGameMoving.h"
#include "match/frmGameScene.h"
#include "match/frmGameSide.h"
#include "presentation/MotionLayer.h"

namespace kv {

class ctlBust;

class frmGameMotion final : public MatchObserver {
 public:
  /// All must outlive it. `layer` covers the screen on which the sides and the hand lie.
  frmGameMotion(MotionLayer& layer, const frmGameServices& services, const MatchGrid& grid,
                std::array<frmGameSide*, 2> sides, frmGameHand& hand);

  void Happened(const MatchEvent& event) override;
  /// The card of this slot was let go at `from` and is at home again.
  void CardPutHome(int slot, QPoint from);
  /// The side's last marker was added.
  void MarkerAdded(Seat seat);
  /// The banner stands there; a won set or match has its scene then.
  void BannerShown(ctlBust& banner);

 private:
  void See(const event::MatchBegun& e);
  void See(const event::SetBegun& e);
  void See(const event::Drew& e);
  void See(const event::Flipped& e);
  void See(const event::Played& e);
  void See(const event::Stood& e);
  void See(const event::SetDecided& e);
  void See(const event::MatchDecided& e);
  void See(const event::Booked& e);
  template <typename Other>
  void See(const Other&) {}

  [[nodiscard]] bool wanted() const { return MotionWanted(services_.player); }
  [[nodiscard]] frmGameSide& side(Seat seat) { return *sides_.at(static_cast<std::size_t>(seat)); }
  [[nodiscard]] int LandingTime(int total, std::size_t cards) const;
  [[nodiscard]] int PlayTime(const event::Played& e);
  [[nodiscard]] QPointF TableMiddle() const;
  [[nodiscard]] QImage CardPicture(const CardCode& code, bool enabled);
  [[nodiscard]] std::vector<PlacedPicture> TablePictures(Seat seat);
  void Land(Seat seat, Flight flight, int time);
  /// From what was seen before to what is seen now.
  void RollOver(ctlCard& card, QImage before, QImage now, const Timing& timing);
  void TurnCards(const event::Played& e, int time);
  void CountUp(Seat seat, int total, int time);
  void Shake(Seat seat, int time);
  void CloseLid(Seat seat, bool twenty, int delay, int time);

  MotionLayer& layer_;
  const frmGameServices& services_;
  const MatchGrid& grid_;
  const MatchPace pace_;
  const std::array<frmGameSide*, 2> sides_;
  frmGameHand& hand_;
  const SceneLook look_;
  std::array<CardCode, kHandSize> held_;    // the player's hand as it was shown last
  std::array<int, 2> totals_{};             // as told last, by Seat
  std::array<std::uint32_t, 2> landing_{};  // when the side's last card lands, by Seat
  QPoint dropped_;                          // where the card that glides home was let go
  Scene scene_ = Scene::None;               // of what was won, until the banner shows it
};

}  // namespace kv
