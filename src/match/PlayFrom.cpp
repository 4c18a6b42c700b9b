#include "match/PlayFrom.h"

#include <utility>

#include "match/BetweenSets.h"
#include "match/Dealing.h"

namespace kv {
namespace {

clsGame BareGame(Strategy& opponent) {
  clsGame game;
  game.SideDeck = std::make_shared<clsDeckArray>();
  game.CompDeck = std::make_shared<clsDeckArray>();
  // The strategy is lent; the record does not own it.
  game.AI = std::shared_ptr<Strategy>(std::shared_ptr<Strategy>(), &opponent);
  return game;
}

}  // namespace

void MatchFrom::Opening::AI(AiOperations& side, int total, int oppTotal, int uWins, int oWins, bool uStand,
                            bool oStand) {
  if (first_ == nullptr) {
    then_.AI(side, total, oppTotal, uWins, oWins, uStand, oStand);
    return;
  }
  const TurnMove& move = *std::exchange(first_, nullptr);
  MakeMove(side, move);
}

MatchFrom::MatchFrom(PlaysOn strategies, int turnMode, Random& random)
    : openings_{Opening(strategies.player), Opening(strategies.opponent)},
      game_(BareGame(openings_[1])),
      engine_(game_, {.turnMode = turnMode}, screen_, network_, screen_, screen_, random) {
  engine_.person().setStrategy(openings_.data());
}

void MatchFrom::Begin(const MatchPosition& position, const TurnMove* first) {
  game_.Wager = kAnyStake;
  openings_[static_cast<std::size_t>(position.turn)].BeginWith(first);
}

Seat MatchFrom::Play(const MatchPosition& position, const TurnMove* first) {
  Begin(position, first);
  return screen_.Play(engine_, position).winner;
}

double MatchFrom::PlaySet(const MatchPosition& position, const TurnMove* first) {
  Begin(position, first);
  screen_.PlaySet(engine_, position);
  const MatchShown& shown = engine_.shown();
  const Seat own = position.turn;
  const Seat other = OtherSeat(own);
  return ChanceToWin({.ownWins = shown.SetWins(own),
                      .otherWins = shown.SetWins(other),
                      .own = HandOf(*shown.side(own).hand),
                      .other = HandOf(*shown.side(other).hand),
                      .ownStarts = position.startsNext == own});
}

Seat PlayFrom(const MatchPosition& position, const TurnMove& first, PlaysOn strategies, Random& random) {
  return MatchFrom(strategies, position.turnMode, random).Play(position, &first);
}

}  // namespace kv
