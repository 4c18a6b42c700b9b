#include "match/TurnCollector.h"

#include <utility>

namespace kv {

void TurnCollector::Happened(const MatchEvent& event) {
  follower_.Happened(event);
  if (std::holds_alternative<event::MatchBegun>(event)) {
    turns_.clear();
    open_.reset();
  } else if (std::holds_alternative<event::Drew>(event)) {
    open_ = {follower_.position(), TurnMove()};
  } else if (const auto* played = std::get_if<event::Played>(&event)) {
    if (open_ && open_->made.slot == 0) open_->made = {played->slot, played->card, false};
  } else if (const auto* flipped = std::get_if<event::Flipped>(&event)) {
    if (open_ && open_->position.turn == Seat::Player) {
      open_->position.side(Seat::Player).hand.at(static_cast<std::size_t>(flipped->slot) - 1) = flipped->card;
    }
  } else if (const auto* ended = std::get_if<event::EndedTurn>(&event)) {
    Close(ended->seat, false);
  } else if (const auto* stood = std::get_if<event::Stood>(&event)) {
    Close(stood->seat, true);
  }
}

void TurnCollector::Close(Seat seat, bool stands) {
  if (!open_ || open_->position.turn != seat) return;
  open_->made.stands = stands;
  turns_.push_back(*std::exchange(open_, std::nullopt));
}

}  // namespace kv
