#include "vantri-strength/MatchInvariants.h"

#include <array>
#include <cstdlib>
#include <stdexcept>
#include <string>

namespace kv {
namespace {

void Require(bool holds, const char* what) {
  if (!holds) throw std::logic_error(std::string("a match broke its rules: ") + what);
}

/// Counts a strategy's calls on their way to the engine.
class CountedOperations final : public AiOperations {
 public:
  explicit CountedOperations(AiOperations& inner) : inner_(inner) {}

  int AI_CardCount() const override { return inner_.AI_CardCount(); }
  int AI_FindCard(int change) override { return inner_.AI_FindCard(change); }
  int AI_FindCardType(std::string_view type) const override { return inner_.AI_FindCardType(type); }
  int AI_TestInvert(int a, int b) const override { return inner_.AI_TestInvert(a, b); }
  void AI_PlayCard(int slot) override {
    const int before = inner_.AI_CardCount();
    inner_.AI_PlayCard(slot);
    played += before - inner_.AI_CardCount();
  }
  void AI_EndTurn() override {
    ++endings;
    inner_.AI_EndTurn();
  }
  void AI_Stand() override {
    ++endings;
    inner_.AI_Stand();
  }
  int Total() const override { return inner_.Total(); }
  int TableCount() const override { return inner_.TableCount(); }
  void SetHandCode(int slot, const CardCode& code) override { inner_.SetHandCode(slot, code); }

  int played = 0;
  int endings = 0;

 private:
  AiOperations& inner_;
};

}  // namespace

void CheckMatchState(const MatchEngine& engine) {
  std::array<int, 11> drawn{};
  for (const Seat seat : {Seat::Player, Seat::Opponent}) {
    int sum = 0;
    for (const CardCode& card : engine.shown().Table(seat)) {
      sum += card.cardValue();
      if (card.type() == CardType::MainDeck) ++drawn.at(static_cast<std::size_t>(std::abs(card.number())));
    }
    // While signs are being turned the total still is the one shown before; it follows with the card itself.
    Require(engine.shown().Table(seat).size() <= kTableSize, "more than nine cards on a table");
    Require(engine.shown().SetWins(seat) >= 0 && engine.shown().SetWins(seat) <= kSetsToWin,
            "more than three sets won");
    if (engine.shown().banner.visible)
      Require(engine.shown().Total(seat) == sum, "a total is not the sum of its table");
  }
  for (int value = 1; value <= 10; ++value) {
    const int counted = engine.board().MainDeckCount(value);
    const int lying = drawn.at(static_cast<std::size_t>(value));
    Require(counted <= 4, "a main-deck value was drawn five times");
    Require(lying <= counted && counted - lying <= 1, "the main deck was not conserved");
  }
}

void CheckedStrategy::AI(AiOperations& side, int total, int oppTotal, int uWins, int oWins, bool uStand,
                         bool oStand) {
  CountedOperations counted(side);
  inner_.AI(counted, total, oppTotal, uWins, oWins, uStand, oStand);
  Require(counted.endings == 1, "a strategy did not close its turn exactly once");
  Require(counted.played <= mostCards_, "a strategy played too many side cards");
}

}  // namespace kv
