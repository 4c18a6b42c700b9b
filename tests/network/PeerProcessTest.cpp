// Pairs of real processes that play each other over TCP, from two addresses of this machine, on clocks that
// run fast: what each of them writes down must agree with the other's.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>
#include <QTcpServer>
#include <array>
#include <memory>
#include <regex>
#include <string>
#include <vector>

namespace kv {
namespace {

constexpr int kPatience = 20000;  // milliseconds, for a machine that is busy with something else

int FreePort() {
  QTcpServer server;
  return server.listen(QHostAddress::LocalHost) ? server.serverPort() : 0;
}

/// One process of the tool. It ends with the test.
class Peer {
 public:
  explicit Peer(const QStringList& arguments) {
    process_.start(QCoreApplication::applicationDirPath() + "/../bin/vantri-peer",
                   arguments + QStringList{"--hurry", "20", "--trace"});
  }
  ~Peer() {
    process_.kill();
    process_.waitForFinished(kPatience);
  }
  Peer(const Peer&) = delete;
  Peer& operator=(const Peer&) = delete;

  /// What it wrote; "(no end)" when it did not end well.
  std::string Output() {
    const bool ended = process_.waitForFinished(kPatience) && process_.exitCode() == 0;
    return process_.readAllStandardOutput().toStdString() + (ended ? "" : "(no end)") +
           process_.readAllStandardError().toStdString();
  }

 private:
  QProcess process_;
};

struct Pair {
  explicit Pair(const QStringList& hostOptions, const QStringList& guestOptions) {
    const QString port = QString::number(FreePort());
    host = std::make_unique<Peer>(QStringList{"--host", "127.0.0.1:" + port, "--once"} + hostOptions);
    guest = std::make_unique<Peer>(QStringList{"--join", "127.0.0.1:" + port, "--from", "127.0.0.2"} +
                                   guestOptions);
  }
  std::unique_ptr<Peer> host;
  std::unique_ptr<Peer> guest;
};

/// The one match that a peer wrote down: won or lost, own sets, the peer's, stake, credits afterwards.
std::vector<std::string> MatchIn(const std::string& output) {
  static const std::regex kLine(
      "match 1: (won|lost) (\\d)-(\\d), stake (\\d+), credits 100 -> (\\d+), [0-9.]+ s\n"
      "1 matches: \\d won, \\d lost; 0 messages refused;");
  std::smatch found;
  if (!std::regex_search(output, found, kLine)) return {};
  return {found.begin() + 1, found.end()};
}

TEST(PeerProcess, PairsAgreeOnTheResultAndTheCredits) {
  const QStringList one{"--matches", "1"};
  const QStringList arcade{"--mode", "Network_Arcade"};
  const QStringList ember{"--strategy", "ember"};
  std::array pairs = {Pair(one, one + ember), Pair(one + arcade, one)};
  for (Pair& pair : pairs) {
    const bool staked = &pair == pairs.begin();
    const std::string hostWrote = pair.host->Output();
    const std::string guestWrote = pair.guest->Output();
    SCOPED_TRACE("HOST\n" + hostWrote + "GUEST\n" + guestWrote);
    const auto host = MatchIn(hostWrote);
    const auto guest = MatchIn(guestWrote);
    ASSERT_FALSE(host.empty() || guest.empty());
    const bool hostWon = host[0] == "won";
    EXPECT_EQ(guest[0], hostWon ? "lost" : "won");
    EXPECT_EQ(host[hostWon ? 1 : 2], "3");
    EXPECT_EQ(guest[1] + guest[2], host[2] + host[1]);
    const std::string won = staked ? "111" : "100";
    const std::string lost = staked ? "90" : "100";
    EXPECT_EQ(host[4], hostWon ? won : lost);
    EXPECT_EQ(guest[4], hostWon ? lost : won);
  }
}

/// What the side that plays well writes down of a guest that does not.
TEST(PeerProcess, MisplaysCostTheOtherSideWhatTheRulesSay) {
  struct Row {
    const char* misplay;
    const char* hostWrites;
  };
  constexpr std::array kRows = {
      Row{"vanish", "match 1: broken off, credits 100 -> 95,"},
      Row{"forfeit", "match 1: won 3-[012], stake 10, credits 100 -> 111,"},
      Row{"disconnect", "match 1: won [0-2]-[0-2], stake 10, credits 100 -> 111,"},
      Row{"noise", "match 1: (won|lost) \\d-\\d, .*\n1 matches: .* [1-9]\\d* messages refused"},
  };
  std::vector<std::unique_ptr<Pair>> pairs;
  for (const Row& row : kRows) {
    pairs.push_back(std::make_unique<Pair>(QStringList{"--matches", "1"},
                                           QStringList{"--misplay", QString::fromUtf8(row.misplay)}));
  }
  for (std::size_t i = 0; i < kRows.size(); ++i) {
    const std::string wrote = pairs[i]->host->Output();
    EXPECT_TRUE(std::regex_search(wrote, std::regex(kRows.at(i).hostWrites))) << kRows.at(i).misplay << "\n"
                                                                              << wrote << "GUEST\n"
                                                                              << pairs[i]->guest->Output();
  }
}

}  // namespace
}  // namespace kv
