#include "match/HeadlessMatch.h"

#include "match/Dealing.h"
#include "match/NobodyWatches.h"

namespace kv {

HeadlessResult PlayHeadless(const HeadlessSetup& setup, Random& random, const MatchWatch& watch) {
  clsGame game;
  game.Wager = kAnyStake;
  game.SideDeck = DealHand(setup.playerDeck, random);
  game.CompDeck = DealHand(setup.opponentDeck, random);
  AI_SortDeck(*game.CompDeck);
  // The strategy is lent for the length of the match; the record does not own it.
  game.AI = std::shared_ptr<Strategy>(std::shared_ptr<Strategy>(), &setup.opponent);
  NoBook book(game);
  return PlayPrepared(game, setup.player, book, setup.options, random, watch, setup.observer);
}

HeadlessResult PlayPrepared(clsGame& game, Strategy& player, MatchBooking& booking,
                            const MatchOptions& options, Random& random, const MatchWatch& watch,
                            MatchObserver* observer) {
  NobodyWatches screen(booking, watch);
  MatchNetwork network;
  MatchEngine engine(game, options, screen, network, screen, screen, random);
  engine.setObserver(observer);
  engine.person().setStrategy(&player);
  return screen.Play(engine);
}

}  // namespace kv
