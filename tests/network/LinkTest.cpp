// The link alone: pacing, quitting, the time of grace, and what a peer can overdo.
#include <gtest/gtest.h>

#include "network/Link.h"
#include "support/LoopbackSocket.h"

namespace kv::test {
namespace {

class LinkTest : public testing::Test {
 protected:
  LinkTest() {
    peer.ConnectionRequest = [this] { peer.Accept(); };
    peer.Connected = [] {};
    peer.DataArrival = [this] { heard += peer.GetData(); };
    peer.setLocalPort(6000);
    peer.Listen();
    link.Connect(6000, "10.0.0.9");
    clock.Advance(10);
  }

  /// The peer closes the line, and a new one is opened to it.
  void Reconnect() {
    peer.Close();
    peer.Listen();
    link.Connect(6000, "10.0.0.9");
    clock.Advance(10);
  }

  HandScheduler clock;
  LoopbackNet net{clock};
  LoopbackSocket socket{net, "10.0.0.1"};
  LoopbackSocket peer{net, "10.0.0.9"};
  std::string heard;
  std::vector<std::string> messages;
  std::vector<std::string> log;
  bool later = false;
  std::function<void()> inHandler;
  Link link{
      clock,
      socket,
      {.Greet = [this] { log.emplace_back("greet"); },
       .Message =
           [this](const std::string& message) {
             messages.push_back(message);
             if (inHandler) inHandler();
             return !later;
           },
       .Interrupted = [this](bool now) { log.emplace_back(now ? "interrupted" : "stands"); },
       .Failed = [this](int number,
                        const std::string& text) { log.push_back(std::to_string(number) + " " + text); }}};
};

TEST_F(LinkTest, OneMessageEachWayATick) {
  EXPECT_EQ(log, std::vector<std::string>{"greet"});
  link.NetSend("[Chat]caf\u00e9");
  link.NetSend("[Play]");
  peer.SendData("[Play]\x87[Turn]\x87[Stnd]\x87");
  clock.Advance(100);
  EXPECT_EQ(heard, "[Chat]caf\xe9\x87");
  EXPECT_EQ(messages.size(), 1u);
  clock.Advance(100);
  EXPECT_EQ(heard, "[Chat]caf\xe9\x87[Play]\x87");
  EXPECT_EQ(messages.size(), 2u);
}

TEST_F(LinkTest, WhatIsNotYetDueComesAgainInOrder) {
  peer.SendData("[Play]\x87[Turn]\x87");
  later = true;
  clock.Advance(300);
  later = false;
  clock.Advance(200);
  EXPECT_EQ(messages, (std::vector<std::string>{"[Play]", "[Play]", "[Play]", "[Play]", "[Turn]"}));
}

/// A handler that shows a box is still at its message while a fresh connection stands behind the box.
TEST_F(LinkTest, AHandlerAtWorkIsNotGivenTheNextMessage) {
  peer.SendData("[Quit]\x87[Turn]\x87");
  inHandler = [this] {
    inHandler = {};
    Reconnect();
    peer.SendData("[Play]\x87");
    clock.Advance(1000);
    EXPECT_EQ(messages, std::vector<std::string>{"[Quit]"});
  };
  clock.Advance(2000);
  EXPECT_EQ(messages, (std::vector<std::string>{"[Quit]", "[Play]"})) << "the old line's are gone with it";
}

TEST_F(LinkTest, WhatWasNotYetDueIsForgottenWithItsConnection) {
  peer.SendData("[Card]no7\x87");
  later = true;
  inHandler = [this] {
    inHandler = {};
    Reconnect();
  };
  clock.Advance(100);
  EXPECT_EQ(link.waiting(), 0u);
}

TEST_F(LinkTest, AGoodbyeCountsThoughTheLineIsClosedBehindIt) {
  peer.SendData("[Chat]a\x87[Quit]\x87[Chat]b\x87");
  peer.Close();
  inHandler = [this] {
    if (messages.back() == "[Quit]") link.CloseConnection();
  };
  clock.Advance(11000);
  EXPECT_EQ(messages, (std::vector<std::string>{"[Chat]a", "[Quit]"}));
  EXPECT_EQ(log, std::vector<std::string>{"greet"}) << "nothing is lost";
  EXPECT_EQ(clock.RunningTimers(), 0);
}

TEST_F(LinkTest, QuitIsTheLastWord) {
  link.NetSend("[Chat]a");
  link.QuitLink();
  link.NetSend("[Chat]b");
  clock.Advance(1000);
  EXPECT_EQ(heard, "[Quit]\x87");
  EXPECT_FALSE(link.pumping());
  for (int time = 0; time < 50; ++time) peer.SendData(std::string(100, '\x87') + std::string(4000, 'x'));
  clock.Advance(1000);
  EXPECT_EQ(link.waiting(), 0u) << "nobody handles what comes after it";
  EXPECT_EQ(log, std::vector<std::string>{"greet"});
  link.CloseConnection();
  link.CloseConnection();
  EXPECT_EQ(clock.RunningTimers(), 0);
}

TEST_F(LinkTest, WhoLeavesWaitsForThePeerASecondAndIsToldNothing) {
  for (const bool gone : {false, true}) {
    heard.clear();
    link.StartTurnRepeat();
    link.Leave();
    if (gone) peer.Close();
    clock.Advance(gone ? 200 : 900);
    EXPECT_EQ(link.connected(), !gone);
    link.NetSend("[Card]no1");  // of a match that is hidden and goes on
    clock.Advance(200);
    EXPECT_EQ(heard, gone ? "" : "[Quit]\x87");
    EXPECT_EQ(clock.RunningTimers(), 0);
    EXPECT_EQ(log.back(), "greet");
    Reconnect();
  }
}

TEST_F(LinkTest, ALostLineIsToldAfterItsTimeOfGrace) {
  link.StartTurnRepeat();
  peer.Close();
  clock.Advance(200);
  EXPECT_EQ(log.back(), "interrupted");
  clock.Advance(9800);
  EXPECT_EQ(log.back(), "interrupted");
  clock.Advance(200);
  EXPECT_EQ(log.back(), "0 Connection lost");
  EXPECT_EQ(clock.RunningTimers(), 0);
}

TEST_F(LinkTest, TurnIsRepeatedEveryFiveSeconds) {
  link.StartTurnRepeat();
  clock.Advance(10200);
  EXPECT_EQ(heard, "[Turn]\x87[Turn]\x87");
}

TEST_F(LinkTest, NoiseEndsTheConnectionWithBoundedMemory) {
  for (const std::string& noise : {std::string(5000, 'x'), std::string(2000, '\x87')}) {
    peer.SendData(noise);
    clock.Advance(10);
    EXPECT_EQ(link.waiting(), 0u);
    EXPECT_EQ(log.back().substr(0, 19), "0 The other side se");
    EXPECT_FALSE(link.connected());
    Reconnect();
    ASSERT_TRUE(link.connected());
    messages.clear();
    peer.SendData("[Play]\x87");
    clock.Advance(200);
    EXPECT_EQ(messages, std::vector<std::string>{"[Play]"}) << "the next connection begins afresh";
  }
}

TEST_F(LinkTest, HalfAMessageIsDroppedWithItsLine) {
  peer.SendData("[Chat]ha");
  clock.Advance(200);
  Reconnect();
  peer.SendData("[Play]\x87");
  clock.Advance(200);
  EXPECT_EQ(messages, std::vector<std::string>{"[Play]"});
}

TEST_F(LinkTest, NobodyListens) {
  peer.Close();
  link.Connect(6001, "10.0.0.9");
  clock.Advance(10);
  EXPECT_EQ(log.back(), "10061 Connection refused");
}

}  // namespace
}  // namespace kv::test
