#include "match/MatchHint.h"

#include <cmath>

#include "match/Dealing.h"
#include "match/MatchSentences.h"
#include "match/clsGame.h"

namespace kv {
namespace {

constexpr int kMatches = 2000;
constexpr std::uint64_t kSeed = 20;

}  // namespace

MatchHint::MatchHint(const clsGame& game, int turnMode) {
  std::array<std::optional<clsDeckArray>, 2> decks;
  if (game.DeckRef != nullptr) decks[0] = *game.DeckRef;
  const clsDeckArray deck = OpponentDeck(game.OppName);
  if (deck.Value(1).text() != "0") decks[1] = deck;
  follower_.Tell(decks, turnMode);
}

WeighedMove MatchHint::Best() const {
  SeededRandom random(kSeed);
  return Weigh({.position = follower_.position(), .matches = kMatches}, random).front();
}

std::string HintText(const WeighedMove& best) {
  const std::string close = best.move.stands ? "stand" : "end your turn";
  const std::string move =
      best.move.slot == 0 ? close : "play " + CardWords(best.move.card) + " and " + close;
  return "Hint: " + move + "; that wins about " + std::to_string(std::lround(100 * best.Chance())) +
         " % of such matches.";
}

}  // namespace kv
