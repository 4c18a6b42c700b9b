#include "match/OracleSeat.h"

#include "match/PossibleMoves.h"
#include "match/Weigh.h"

namespace kv {

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
  return Weigh({.position = follower_.position(), .matches = matches_}, random_).front().move;
}

}  // namespace kv
