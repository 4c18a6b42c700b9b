#include "match/MatchBoard.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <span>
#include <stdexcept>
#include <string>

#include "match/MatchPosition.h"

namespace kv {
namespace {

constexpr int kCopiesInMainDeck = 4;  // of each value 1 to 10

constexpr Seat SeatOf(bool isOpponent) {
  return isOpponent ? Seat::Opponent : Seat::Player;
}

int TableTotal(std::span<const CardCode> table) {
  int total = 0;
  for (const CardCode& card : table) total += card.cardValue();
  return total;
}

}  // namespace

// The player's flips stay on the table: the hand that was dealt keeps its codes.
MatchBoard::MatchBoard(MatchShown& shown, const clsGame& game, MatchView& view, const MatchTeller& teller,
                       Random& random)
    : shown_(shown),
      view_(view),
      teller_(teller),
      random_(random),
      hands_{std::make_shared<clsDeckArray>(*game.SideDeck), game.CompDeck} {
  for (std::size_t i = 0; i < hands_.size(); ++i) shown_.sides.at(i).hand = hands_.at(i);
}

void MatchBoard::Clear() {
  mainDeckCount_.fill(0);
  for (MatchSide& each : shown_.sides) {
    each.total = 0;
    each.table.clear();
  }
  for (const Seat seat : {Seat::Player, Seat::Opponent}) view_.TableChanged(seat, 0);
}

void MatchBoard::TakeUp(const MatchPosition& position) {
  mainDeckCount_ = position.drawn;
  for (const Seat seat : {Seat::Player, Seat::Opponent}) {
    const PositionSide& from = position.side(seat);
    MatchSide& to = shown_.side(seat);
    to.table = from.table;
    to.total = from.Total();
    to.setWins = from.setWins;
    to.stood = from.stood;
    for (int slot = 1; slot <= kHandSize; ++slot) {
      const CardCode& card = from.hand.at(static_cast<std::size_t>(slot) - 1);
      hand(seat).setValue(slot, card.empty() && seat == Seat::Opponent ? EmptiedSlot() : card);
    }
  }
}

bool MatchBoard::EvenChance() {
  return std::floor(random_.Rnd() + 0.5) != 0;
}

CardCode MatchBoard::DrawMainCard() {
  random_.Randomize();
  int value = 0;
  do {
    value = static_cast<int>(random_.Rnd() * 10) + 1;
  } while (UsedUp(value));
  DeductDrawCard(value);
  return {CardType::MainDeck, value};
}

/// A peer that reports more draws than there are cards must not leave this side without any.
bool MatchBoard::UsedUp(int value) {
  const auto gone = [](std::uint8_t drawn) { return drawn >= kCopiesInMainDeck; };
  if (!gone(mainDeckCount_.at(static_cast<std::size_t>(value)))) return false;
  if (!std::all_of(mainDeckCount_.begin() + 1, mainDeckCount_.end(), gone)) return true;
  mainDeckCount_.fill(0);
  return false;
}

void MatchBoard::DeductDrawCard(int value) {
  if (value < 1 || value > 10) throw std::out_of_range("a main-deck card is 1 to 10");
  ++mainDeckCount_.at(static_cast<std::size_t>(value));
}

void MatchBoard::Draw(Seat seat, const CardCode& card) {
  const bool lands = teller_.heard() && !shown_.TableFull(seat);
  LoadNextCard(card, seat == Seat::Opponent);
  if (lands) teller_.Drew(seat);
}

void MatchBoard::PlayFromHand(Seat seat, int slot, const CardCode& code) {
  // Only these change what lies there already.
  const bool turns = code.type() == CardType::Flip24 || code.type() == CardType::Flip36;
  std::vector<CardCode> before;
  if (turns && teller_.heard()) before = shown_.Table(seat);
  PlayCard(code, seat == Seat::Opponent);
  teller_.Played(seat, slot, code, before);
}

void MatchBoard::PlayCard(const CardCode& code, bool isOpponent) {
  const auto& table = shown_.Table(SeatOf(isOpponent));
  const bool unchosen = code.number() == kNotChosen;
  if (unchosen && code.type() == CardType::Double && !table.empty()) {
    LoadNextCard(CardCode("s2" + table.back().numericPart()), isOpponent);
  } else if (unchosen && (code.type() == CardType::Flip24 || code.type() == CardType::Flip36)) {
    const bool is24 = code.type() == CardType::Flip24;
    InvertTable(SeatOf(isOpponent), is24 ? 2 : 3, is24 ? 4 : 6);
    LoadNextCard(CardCode(is24 ? "s300" : "s400"), isOpponent);
  } else {
    LoadNextCard(code, isOpponent);
  }
}

void MatchBoard::InvertTable(Seat seat, int a, int b) {
  MatchSide& owner = shown_.side(seat);
  auto& table = owner.table;
  for (std::size_t i = 0; i < table.size(); ++i) {
    const int size = std::abs(table[i].cardValue());
    if (size != a && size != b) continue;
    table[i] = table[i].Inverted();
    view_.TableChanged(seat, static_cast<int>(i) + 1);
  }
  // The total follows with the card that has turned them.
  if (table.size() < kTableSize) owner.total = TableTotal(table);
}

void MatchBoard::LoadNextCard(const CardCode& code, bool isOpponent) {
  MatchSide& owner = shown_.side(SeatOf(isOpponent));
  if (owner.table.size() == kTableSize) return;
  owner.table.push_back(code);
  owner.total += code.cardValue();
  view_.TableChanged(SeatOf(isOpponent), static_cast<int>(owner.table.size()));
}

void MatchBoard::EmptyHandSlot(Seat seat, int slot) {
  hand(seat).setValue(slot, seat == Seat::Opponent ? EmptiedSlot() : CardCode());
  view_.HandChanged(seat, slot);
}

}  // namespace kv
