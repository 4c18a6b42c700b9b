// The circuit: which tiles are open, what choosing one prepares, bankruptcy, and the hands of its matches.
#include "ai/clsAI_Normal.h"
#include "campaign/CampaignFixture.h"
#include "match/Dealing.h"
#include "support/Rows.h"
#include "vantri-campaign/CampaignPlay.h"

namespace kv::test {
namespace {

using CircuitRulesTest = CampaignFixture;

TEST_F(CircuitRulesTest, TilesFollowWinsAndCredits) {
  for (const auto& [what, wins, credits, expected] :
       Rows<const char*, std::array<std::int16_t, 6>, std::int32_t, std::string>{
           {"new", {}, 100, "o......"},
           {"nine against each", {9, 9, 9, 9, 9, 9}, 5000, "o......"},
           {"first unlock", {10}, 0, "oo....."},
           {"too poor for the third", {10, 10}, 99, "oog...."},
           {"just enough for the third", {10, 10}, 100, "ooo...."},
           {"one short of the last", {10, 10, 10, 10}, 749, "oooog.."},
           {"the last", {10, 10, 10, 10, 9}, 750, "ooooo.."},
           {"finished", {10, 10, 10, 10, 10}, 349, std::string("ooogg") + "oo"},
           {"finished and broke", {10, 10, 10, 10, 10, 3}, 0, "oogggoo"},
           {"special wins alone show nothing", {0, 0, 0, 0, 0, 10}, 750, "o......"}}) {
    SCOPED_TRACE(what);
    for (std::size_t i = 0; i < wins.size(); ++i) {
      (player.*(CircuitOpponents()[i].wins))->Value = wins[i];
    }
    player.Credits->Value = credits;
    Circuit circuit(game, player);
    std::string tiles;
    for (int i = 0; i < kCircuitTiles; ++i) {
      const CircuitTile tile = circuit.Tile(i);
      tiles += !tile.visible ? '.' : tile.enabled ? 'o' : 'g';
      EXPECT_EQ(circuit.Choose(i), tile.enabled);
    }
    EXPECT_EQ(tiles, expected);
    EXPECT_EQ(circuit.Finished(), wins[4] >= 10);
  }
  EXPECT_EQ(Circuit(game, player).Tile(kYourself).wins, -1);
}

TEST_F(CircuitRulesTest, ChoosingPreparesTheMatch) {
  std::vector<int> portraits;
  clsGame record(player, [&](int number, const std::string&) {
    portraits.push_back(number);
    return Picture();
  });
  player.Portrait = 12;
  player.Orrin_Wins->Value = player.Brummox_Wins->Value = 10;
  player.Credits->Value = 800;
  Circuit circuit(record, player);
  circuit.ChooseDeckView();
  EXPECT_EQ(record.Mode, "Deck Config");
  ASSERT_TRUE(circuit.Choose(4));
  EXPECT_EQ(record.Mode, "Campaign");
  EXPECT_EQ(record.OppName, "Orrin Vaal");
  EXPECT_EQ(record.MinWager, 750);
  EXPECT_EQ(record.MaxWager, 750);
  EXPECT_EQ(portraits.back(), 5);
  EXPECT_EQ(record.CreditsRef, player.Credits);

  DealMatch(record, player, random);
  EXPECT_EQ(record.CampaignWinRef, player.Orrin_Wins);
  ASSERT_TRUE(circuit.Choose(kYourself));
  EXPECT_EQ(portraits.back(), 12);
  DealMatch(record, player, random);
  EXPECT_EQ(record.CampaignWinRef, nullptr);
  clsDeckArray sorted(*record.SideDeck);
  AI_SortDeck(sorted);
  for (int slot = 1; slot <= kHandSize; ++slot) {
    EXPECT_EQ(record.CompDeck->Value(slot), sorted.Value(slot));
  }
  record.Mode = kModeArcade;
  record.OppName = "H6-J8";
  DealMatch(record, player, random);
  EXPECT_EQ(record.CampaignWinRef, nullptr) << "arcade counts no wins against an opponent";
}

TEST_F(CircuitRulesTest, BankruptIsWhoHasNothingToSell) {
  player.Credits->Value = 0;
  EXPECT_TRUE(Circuit(game, player).Bankrupt()) << "the side deck does not count";
  player.Cards->setValue(4, 2, 1);
  EXPECT_FALSE(Circuit(game, player).Bankrupt());
  player.Cards->Fill(0);
  player.Credits->Value = 1;
  EXPECT_FALSE(Circuit(game, player).Bankrupt());
}

// The whole road, again and again: every match is booked once, and nothing is ever refused on the way (the
// simulation throws when a tile, a stake, a deal or a booking is).
TEST_F(CircuitRulesTest, WholeCampaignsKeepTheirBooks) {
  clsAI_Normal strategy;
  std::array<int, 3> ends{};
  for (std::uint64_t seed = 1; seed <= 6; ++seed) {
    SeededRandom chance(seed);
    const CampaignHabits habits{
        .stakes = static_cast<StakePolicy>(seed % 3), .patient = seed % 2 == 0, .mostMatches = 3000};
    const CampaignResult result = PlayCampaign(habits, strategy, chance);
    EXPECT_EQ(result.wins + result.losses, result.matches);
    EXPECT_GE(result.credits, 0);
    EXPECT_GE(result.wins, result.end == CampaignEnd::Finished ? 50 : 0);
    ++ends.at(static_cast<std::size_t>(result.end));
  }
  EXPECT_GT(ends[0], 0) << "a campaign can be finished";
  EXPECT_GT(ends[1], 0) << "and lost";
}

}  // namespace
}  // namespace kv::test
