#include "match/OracleSeat.h"

#include "match/PossibleMoves.h"
#include "match/StandardMove.h"
#include "match/Weigh.h"

namespace kv {
namespace {

// Standard errors by which a move must be ahead of the standard strategy's. With few matches chance alone
// makes one of twenty moves look best.
constexpr double kSure = 1;

}  // namespace

void OracleSeat::SitDown(Seat seat, const std::optional<clsDeckArray>& otherDeck, int turnMode,
                         std::uint64_t seed) {
  std::array<std::optional<clsDeckArray>, 2> decks;
  decks.at(static_cast<std::size_t>(OtherSeat(seat))) = otherDeck;
  follower_.Tell(decks, turnMode);
  random_ = SeededRandom(seed);
}

TurnMove OracleSeat::Advise() {
  const std::vector<TurnMove> possible = PossibleMoves(follower_.position());
  if (possible.size() == 1) return possible.front();
  const TurnMove standard = StandardMove(follower_.position());
  const std::vector<WeighedMove> weighed =
      Weigh({.position = follower_.position(), .matches = matches_, .made = standard, .toTheSetOnly = true},
            random_);
  return weighed.front().Ahead() > kSure ? weighed.front().move : standard;
}

}  // namespace kv
