// The cards of a match: both tables, both hands and the common main deck, and what a card does when it lands.
// It knows neither turns nor who wins: when a card may be laid is the engine's business.
#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "match/MatchTeller.h"
#include "match/MatchView.h"
#include "match/clsGame.h"
#include "platform/Random.h"

namespace kv {

struct MatchPosition;

class MatchBoard {
 public:
  /// Shows the hands of `game`, which must be dealt. All references must outlive the board.
  MatchBoard(MatchShown& shown, const clsGame& game, MatchView& view, const MatchTeller& teller,
             Random& random);

  /// A set begins: both tables are empty and the main deck is complete.
  void Clear();
  /// Tables, hands and main deck become those of a position; the view is told nothing.
  void TakeUp(const MatchPosition& position);
  /// By the same chance that draws the cards.
  [[nodiscard]] bool EvenChance();
  /// A card from the main deck, at random.
  [[nodiscard]] CardCode DrawMainCard();
  /// A card drawn on either side leaves the common main deck. Throws std::out_of_range outside 1 to 10.
  void DeductDrawCard(int value);
  /// How often a value 1 to 10 was drawn in this set.
  [[nodiscard]] int MainDeckCount(int value) const {
    return mainDeckCount_.at(static_cast<std::size_t>(value));
  }

  /// The side has drawn `card`, which left the main deck.
  void Draw(Seat seat, const CardCode& card);
  /// Plays `code`, which was in a hand slot, on its side's table.
  void PlayFromHand(Seat seat, int slot, const CardCode& code);
  /// Plays `code` on a table with the effects of its type.
  void PlayCard(const CardCode& code, bool isOpponent);
  /// Lays `code` on a table; a full table takes no more.
  void LoadNextCard(const CardCode& code, bool isOpponent);

  [[nodiscard]] clsDeckArray& hand(Seat seat) { return *hands_[static_cast<std::size_t>(seat)]; }
  /// Hand slot 1 to 4 is empty.
  void EmptyHandSlot(Seat seat, int slot);

 private:
  [[nodiscard]] bool UsedUp(int value);
  void InvertTable(Seat seat, int a, int b);

  MatchShown& shown_;
  MatchView& view_;
  const MatchTeller& teller_;
  Random& random_;
  std::array<std::shared_ptr<clsDeckArray>, 2> hands_;  // by Seat
  std::array<std::uint8_t, 11> mainDeckCount_{};        // [1] to [10]
};

}  // namespace kv
