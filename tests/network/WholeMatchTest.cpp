// Whole network games between two programs: every match ends alike on both sides, both book it, and what one
// side did is, on the other, what the peer did.

#include <cstdio>

#include "history/MatchReplay.h"
#include "match/Dealing.h"
#include "network/NetworkFixture.h"
#include "support/EventLog.h"

namespace kv::test {
namespace {

/// What a match did to one player: checked against the sets it saw.
struct Account {
  explicit Account(NetworkPlayer& who) : player(who), credits(who.record().Credits_MP->Value) {}
  void Check(bool arcade, int stake, int wins, int losses) const {
    const clsPlayer& now = player.record();
    const bool won = player.results.back()[0] == kSetsToWin;
    const int gain = arcade ? 0 : won ? stake + stake / 10 : -stake;
    EXPECT_EQ(now.Credits_MP->Value, credits + gain);
    EXPECT_EQ(now.Wins_MP->Value, wins + (won && !arcade ? 1 : 0));
    EXPECT_EQ(now.Losses_MP->Value, losses + (won || arcade ? 0 : 1));
    EXPECT_EQ(now.Disconnects, 0);
    EXPECT_EQ(player.program->game()->Wager, -1);
  }
  NetworkPlayer& player;
  int credits;
};

/// Records the match of one side from its first event on.
struct Recorded {
  explicit Recorded(NetworkPlayer& who, bool asPeer = false) : player(who), mirrored(asPeer), log(asPeer) {}
  void Listen() {
    if (player.match() == nullptr || heard != nullptr) return;
    heard = player.match();
    // Who sat down was told before anybody could listen.
    const clsGame& game = *player.program->game();
    const event::MatchBegun begun{game.OppName, game.Wager, {HandOf(*game.SideDeck), HandOf(*game.CompDeck)}};
    for (MatchObserver* each : std::initializer_list<MatchObserver*>{&log, &recorder}) {
      each->Happened(begun);
      heard->observers().Add(*each);
    }
  }
  void CheckReplay() const {
    EventLog again(mirrored);
    EXPECT_TRUE(PlayAgain(recorder.record(),
                          [&](const MatchEvent& event, const MatchShown&) { again.Happened(event); }));
    EXPECT_GT(log.lines.size(), 10u);
    EXPECT_EQ(again.lines, log.lines);
    HistoryFile& history = *player.program->history();
    const auto lines = history.Lines();
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(history.Load(lines.front().id)->sets, recorder.record().sets);
  }
  /// The lines that both can know: flips are one's own, and credits too.
  [[nodiscard]] std::vector<std::string> Shared() const {
    std::vector<std::string> shared;
    for (const std::string& line : log.lines) {
      const bool own = line.find(" flips ") != std::string::npos || line.starts_with("booked") ||
                       line.starts_with("match for");
      if (!own) shared.push_back(line);
    }
    return shared;
  }
  NetworkPlayer& player;
  bool mirrored;
  frmGame* heard = nullptr;
  EventLog log;
  MatchRecorder recorder{{}};
};

int Setting(const char* name, int otherwise) {
  const char* text = std::getenv(name);
  return text == nullptr ? otherwise : std::atoi(text);
}

/// Streams cut anywhere, every piece late by chance, "[Turn]" repeated by chance, in both modes. How many
/// matches, and from which seed on: KV_NETWORK_MATCHES and KV_NETWORK_SEED.
TEST(WholeMatch, EndsAlikeOnBothSidesHoweverTheStreamIsCut) {
  const int matches = Setting("KV_NETWORK_MATCHES", 20);
  for (int round = Setting("KV_NETWORK_SEED", 0), played = 0; played < matches; ++round) {
    const auto seed = static_cast<std::uint64_t>(round) * 10 + 1;
    SCOPED_TRACE("seed " + std::to_string(seed));
    SeededRandom chance(seed + 5);
    TwoPrograms both(seed);
    both.net.chance = &chance;
    both.net.mostDelay = round % 3 == 0 ? 1500 : 40;
    both.Meet();
    both.Pass(30000);
    for (int match = 0; match < 5; ++match, ++played) {
      const bool arcade = chance.Rnd() < 0.4;
      if (both.host.program->network()->arcade() != arcade) both.host.Click("cmdGameMode");
      both.Pass(5000);
      const int stake = static_cast<int>(chance.Rnd() * 20);
      const Account host(both.host);
      const Account guest(both.guest);
      const auto counters = [](const clsPlayer& p) {
        return std::array{p.Wins_MP->Value, p.Losses_MP->Value};
      };
      const auto hostBefore = counters(both.host.record());
      const auto guestBefore = counters(both.guest.record());
      both.repeatTurns = &chance;
      std::array recorded = {Recorded(both.host), Recorded(both.guest, true)};
      both.eachTick = [&recorded] {
        for (Recorded& each : recorded) each.Listen();
      };
      both.PlayMatch(stake);
      both.eachTick = {};
      for (const Recorded& each : recorded) each.CheckReplay();
      EXPECT_EQ(recorded[0].Shared(), recorded[1].Shared());
      EXPECT_EQ(recorded[0].log.wrongTotals + recorded[1].log.wrongTotals, 0);
      both.Pass(30000);
      ASSERT_EQ(both.host.results.size(), both.guest.results.size());
      const auto& seen = both.host.results.back();
      EXPECT_EQ(seen, (std::array{both.guest.results.back()[1], both.guest.results.back()[0]}));
      EXPECT_EQ(std::max(seen[0], seen[1]), kSetsToWin);
      host.Check(arcade, stake, hostBefore[0], hostBefore[1]);
      guest.Check(arcade, stake, guestBefore[0], guestBefore[1]);
      EXPECT_FALSE(both.host.Saw("Unknown command"))
          << both.host.program->network()->chatLog() << "\n\nHOST " << both.host.socket->sent << "\n\nGUEST "
          << both.guest.socket->sent;
      EXPECT_FALSE(both.guest.Saw("Unknown command"));
      if (testing::Test::HasFailure()) return;
    }
  }
}

/// Writes down what both sides say in one match, for docs/protocol.md: KV_TRANSCRIPT names the file.
TEST(WholeMatch, CanBeReadAsATranscript) {
  TwoPrograms both(5);
  std::string transcript;
  both.net.tap = [&](const std::string& from, std::string_view bytes) {
    std::array<char, 32> head{};
    std::snprintf(head.data(), head.size(), "%7.1f  %s", both.clock.timeGetTime() / 1000.0,
                  from == "10.0.0.1" ? "host   " : "          guest  ");
    transcript += head.data() + std::string(bytes.substr(0, bytes.size() - 1)) + "\n";
  };
  both.Meet();
  both.PlayMatch(50);
  EXPECT_EQ(transcript.find("host   [Vers]1.2.4\n"), transcript.find("host"));
  EXPECT_NE(transcript.find("guest  [Acpt]\n"), std::string::npos);
  if (const char* file = std::getenv("KV_TRANSCRIPT")) std::ofstream(file) << transcript;
}

class MatchEventsTwice : public NetworkFixture {
 protected:
  /// Hears the match that has just been opened, before its first set.
  void Listen() {
    for (const auto& [player, log] : {std::pair{&host, &hosts}, std::pair{&guest, &guests}}) {
      frmGame* match = player->match();
      if (match == nullptr || match == heard[log]) continue;
      heard[log] = match;
      match->observers().Add(*log);
    }
  }
  void ToMatch() {
    for (NetworkPlayer* each : {&host, &guest}) each->record().Credits_MP->Value = 100;
    Meet();
    ToCards(true);
    PlayUntil([this] {
      Listen();
      return heard.size() == 2;
    });
  }

  EventLog hosts;
  EventLog guests{true};
  std::map<EventLog*, frmGame*> heard;
};

TEST_F(MatchEventsTwice, WhoLeavesHasGivenUpAndWhoStaysHasWon) {
  ToMatch();
  PlayUntil([this] { return host.match()->engine().shown().controls.endTurn; });
  host.acts = guest.acts = false;
  Pass(2000);
  host.Say("/disconnect");
  Pass(3000);
  using Lines = std::vector<std::string>;
  const auto last = [](const EventLog& log) { return Lines(log.lines.end() - 3, log.lines.end()); };
  EXPECT_EQ(last(hosts),
            (Lines{"player gives up", "opponent wins the match 0:0", "booked lost 50: 50 to 50"}));
  EXPECT_EQ(last(guests), (Lines{"peer gone", "opponent wins the match 0:0", "booked won 50: 50 to 155"}))
      << "told as the host sees it";
}

TEST_F(MatchEventsTwice, AMatchWhoseLineIsLostIsToldAsBrokenOff) {
  ToMatch();
  PlayUntil([this] { return host.match()->engine().shown().controls.endTurn; });
  host.socket->Close();
  host.acts = guest.acts = false;
  Pass(20000);
  const std::vector<std::string> end(guests.lines.end() - 2, guests.lines.end());
  EXPECT_EQ(end, (std::vector<std::string>{"peer gone", "booked broken off 50: 50 to 75"}));
}

}  // namespace
}  // namespace kv::test
