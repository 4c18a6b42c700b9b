// One match between two programs, as each of them tells it: what one side did is, on the other, what the peer
// did.
#include <map>

#include "network/NetworkFixture.h"
#include "support/EventLog.h"

namespace kv::test {
namespace {

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
  /// The lines that both can know: flips are one's own, and credits too.
  static std::vector<std::string> Shared(const EventLog& log) {
    std::vector<std::string> shared;
    for (const std::string& line : log.lines) {
      const bool own = line.find(" flips ") != std::string::npos || line.starts_with("booked") ||
                       line.starts_with("match for");
      if (!own) shared.push_back(line);
    }
    return shared;
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

TEST_F(MatchEventsTwice, BothSidesTellTheSameMatch) {
  ToMatch();
  PlayUntil([this] { return BothOn("frmNetwork"); }, 50);
  const auto told = Shared(hosts);
  EXPECT_EQ(told, Shared(guests));
  EXPECT_GT(told.size(), 20u);
  EXPECT_NE(told.back().find("wins the match"), std::string::npos) << told.back();
  EXPECT_EQ(hosts.wrongTotals + guests.wrongTotals, 0);
  const bool won = host.results.back()[0] == kSetsToWin;
  EXPECT_EQ((won ? hosts : guests).lines.back(), "booked won 50: 50 to 155");
  EXPECT_EQ((won ? guests : hosts).lines.back(), "booked lost 50: 50 to 50");
}

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
