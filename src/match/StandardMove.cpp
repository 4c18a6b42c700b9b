#include "match/StandardMove.h"

#include "ai/HandSearch.h"
#include "ai/clsAI_Normal.h"
#include "match/PossibleMoves.h"
#include "match/UnseenHand.h"

namespace kv {
namespace {

/// The side to move on paper: its strategy's turn is written down as a move. One card a turn, as it plays.
class OnPaper final : public AiOperations {
 public:
  explicit OnPaper(const MatchPosition& position) : position_(position) {
    for (int slot = 1; slot <= kHandSize; ++slot) {
      const CardCode& card = position.own().hand.at(static_cast<std::size_t>(slot) - 1);
      hand_.setValue(slot, position.cardPlayed ? CardCode() : Signed(card));
    }
  }

  int AI_CardCount() const override { return CountHand(hand_); }
  int AI_FindCard(int change) override { return FindHandCard(hand_, Table(), Total(), change); }
  int AI_FindCardType(std::string_view type) const override { return FindHandType(hand_, type); }
  int AI_TestInvert(int a, int b) const override { return TestInvert(Table(), Total(), a, b); }
  void AI_PlayCard(int slot) override {
    if (slot < 1 || slot > kHandSize || move.slot != 0 || TableCount() == kTableSize) return;
    if (!IsEmptySlot(hand_.Value(slot))) move = {slot, hand_.Value(slot), false};
  }
  void AI_EndTurn() override {}
  void AI_Stand() override { move.stands = true; }
  int Total() const override { return TotalAfter(position_, move); }
  int TableCount() const override { return static_cast<int>(Table().size()) + (move.slot == 0 ? 0 : 1); }
  void SetHandCode(int slot, const CardCode& code) override { hand_.setValue(slot, code); }

  TurnMove move;

 private:
  [[nodiscard]] const std::vector<CardCode>& Table() const { return position_.own().table; }

  const MatchPosition& position_;
  clsDeckArray hand_;
};

}  // namespace

TurnMove StandardMove(const MatchPosition& position) {
  OnPaper side(position);
  const PositionSide& other = position.other();
  clsAI_Normal().AI(side, side.Total(), other.Total(), other.setWins, position.own().setWins, other.stood,
                    false);
  return side.move;
}

}  // namespace kv
