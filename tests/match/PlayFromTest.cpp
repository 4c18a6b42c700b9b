// Matches that are taken up in the middle end as they would have ended.
#include <gtest/gtest.h>

#include "ai/clsAI_Ember.h"
#include "ai/clsAI_Normal.h"
#include "match/PlayFrom.h"
#include "match/PositionFollower.h"
#include "match/PossibleMoves.h"
#include "match/StandardMove.h"
#include "match/TurnCollector.h"
#include "support/Position.h"
#include "vantri-strength/Tournament.h"

namespace kv::test {
namespace {

/// Plays as another strategy does and keeps the position, and the chance to come, of one of its turns.
class Keeper final : public Strategy {
 public:
  Keeper(Strategy& inner, const PositionFollower& follower, const SeededRandom& random, int turn)
      : inner_(inner), follower_(follower), random_(random), turn_(turn) {}
  void AI(AiOperations& side, int total, int oppTotal, int uWins, int oWins, bool uStand,
          bool oStand) override {
    if (turn_-- == 0) {
      kept = follower_.position();
      chance = random_;
      EXPECT_EQ(kept->own().Total(), total);
      EXPECT_EQ(kept->other().Total(), oppTotal);
    }
    inner_.AI(side, total, oppTotal, uWins, oWins, uStand, oStand);
  }
  std::optional<MatchPosition> kept;
  SeededRandom chance{0};

 private:
  Strategy& inner_;
  const PositionFollower& follower_;
  const SeededRandom& random_;
  int turn_;
};

TEST(PlayFrom, AMatchTakenUpAtAnyTurnEndsAsItWouldHave) {
  clsAI_Normal standard;
  clsAI_Ember ember;
  int takenUp = 0;
  for (int i = 0; i < 400; ++i) {
    const bool atPlayer = i % 2 == 0;
    clsDeckArray decks[2];
    ASSERT_TRUE(FindDeck(i % 3 == 0 ? "H6-J8" : "arcade", decks[0]) && FindDeck("Brummox", decks[1]));
    SeededRandom random(static_cast<std::uint64_t>(i));
    PositionFollower follower;
    Keeper keeper(atPlayer ? static_cast<Strategy&>(standard) : ember, follower, random, i % 23);
    const PlaysOn others{standard, ember};
    const MatchOptions options{.turnMode = i % 5 == 0 ? 1 : 2};
    follower.Tell({}, options.turnMode);
    const HeadlessResult whole =
        PlayHeadless({atPlayer ? keeper : others.player, atPlayer ? others.opponent : keeper, decks[0],
                      decks[1], options, &follower},
                     random);
    if (!keeper.kept) continue;
    ++takenUp;
    SeededRandom again = keeper.chance;
    MatchFrom from(others, options.turnMode, keeper.chance);
    EXPECT_EQ(from.Play(*keeper.kept, nullptr), whole.winner) << "match " << i;
    // The standard strategy sits in the player's seat.
    if (!atPlayer) continue;
    EXPECT_EQ(PlayFrom(*keeper.kept, StandardMove(*keeper.kept), others, again), whole.winner) << i;
  }
  EXPECT_GT(takenUp, 250);
}

TEST(TurnCollector, HasEveryTurnOfTheMatchAsItWasMade) {
  clsAI_Normal standard;
  clsAI_Ember ember;
  clsDeckArray deck;
  ASSERT_TRUE(FindDeck("H6-J8", deck));
  int turns = 0;
  TurnCollector collector;
  for (std::uint64_t seed = 1; seed <= 60; ++seed) {
    SeededRandom random(seed);
    collector.Tell({}, 2);
    static_cast<void>(PlayHeadless({standard, ember, deck, deck, {}, &collector}, random));
    for (const PlayedTurn& each : collector.turns()) {
      if (each.position.turn != Seat::Player) continue;
      ++turns;
      const TurnMove expected = StandardMove(each.position);
      // On 20 and over it the rules have the last word.
      const bool closes = TotalAfter(each.position, expected) >= kTargetTotal;
      EXPECT_TRUE(SameMove({expected.slot, expected.card, expected.stands || closes}, each.made))
          << "seed " << seed << ", total " << each.position.own().Total();
    }
  }
  EXPECT_GT(turns, 800);
}

TEST(PossibleMoves, EveryCardWithEverySignThatIsWorthATry) {
  const auto texts = [](const MatchPosition& position) {
    std::vector<std::string> all;
    for (const TurnMove& move : PossibleMoves(position)) {
      all.push_back(move.card.text() + (move.stands ? "!" : ""));
      if (move.slot != 0) all.back() += "=" + std::to_string(TotalAfter(position, move));
    }
    return all;
  };
  using Texts = std::vector<std::string>;
  EXPECT_EQ(texts(PositionOf({{"no10", "no4"}, {"fm3", "fp3", "ps6", "s51"}}, {{"no9"}})),
            (Texts{"!", "", "fp3!=17", "fp3=17", "fm-3!=11", "fm-3=11", "ps6!=20", "s51!=15", "s51=15",
                   "s5-1!=13", "s5-1=13", "s52!=16", "s52=16", "s5-2!=12", "s5-2=12"}));
  EXPECT_EQ(texts(PositionOf({{"no9", "no9", "no4"}, {"s399", "ps1"}}, {{"no9"}})),
            (Texts{"!", "s399!=14", "s399=14"}))
      << "over 20 there is one way to close without a card, and none with a card that stays over";
  EXPECT_EQ(texts(PositionOf({{"no9", "no8"}, {"s299", "ms2"}}, {{"no10", "no6"}, {}, 0, true})),
            (Texts{"!", "", "ms2!=15", "ms2=15"}));
  MatchPosition played = PositionOf({{"no9", "ps4"}, {"ms2"}}, {{"no10"}});
  played.cardPlayed = true;
  EXPECT_EQ(texts(played), (Texts{"!", ""}));
}

}  // namespace
}  // namespace kv::test
