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
