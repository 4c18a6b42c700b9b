#include "match/PositionFollower.h"

#include <algorithm>

namespace kv {
namespace {

constexpr int kAlternating = 2;  // TurnMode_Opt

}  // namespace

void PositionFollower::Tell(const std::array<std::optional<clsDeckArray>, 2>& decks, int turnMode) {
  for (std::size_t i = 0; i < decks.size(); ++i) position_.sides.at(i).deck = decks.at(i);
  position_.turnMode = turnMode;
}

void PositionFollower::Happened(const MatchEvent& event) {
  std::visit([this](const auto& each) { Note(each); }, event);
}

void PositionFollower::Note(const event::MatchBegun& begun) {
  for (std::size_t i = 0; i < begun.hands.size(); ++i) {
    PositionSide& side = position_.sides.at(i);
    side.played.clear();
    side.hand = begun.hands.at(i);
    const bool unknown =
        std::all_of(side.hand.begin(), side.hand.end(), [](const CardCode& card) { return card.empty(); });
    if (unknown) side.hand.fill(CardCode(CardType::FaceDown, 0));
  }
}

void PositionFollower::Note(const event::SetBegun& begun) {
  for (std::size_t i = 0; i < position_.sides.size(); ++i) {
    position_.sides.at(i).table.clear();
    position_.sides.at(i).stood = false;
    position_.sides.at(i).setWins = begun.setWins.at(i);
  }
  position_.drawn.fill(0);
  position_.set = begun.number;
  position_.startsNext = position_.turnMode == kAlternating ? OtherSeat(begun.starts) : begun.starts;
}

void PositionFollower::Note(const event::Drew& drew) {
  position_.turn = drew.seat;
  position_.cardPlayed = false;
  position_.side(drew.seat).table.push_back(drew.card);
  const int value = drew.card.number();
  if (value >= 1 && value <= 10) ++position_.drawn.at(static_cast<std::size_t>(value));
}

void PositionFollower::Note(const event::Flipped& flipped) {
  position_.side(Seat::Player).hand.at(static_cast<std::size_t>(flipped.slot) - 1) = flipped.card;
}

void PositionFollower::Note(const event::Played& played) {
  PositionSide& side = position_.side(played.seat);
  for (const event::TurnedCard& turned : played.turned) {
    side.table.at(static_cast<std::size_t>(turned.index) - 1) = turned.card;
  }
  side.table.push_back(played.landed);
  side.hand.at(static_cast<std::size_t>(played.slot) - 1) = CardCode();
  side.played.push_back(played.card);
  position_.cardPlayed = true;
}

}  // namespace kv
