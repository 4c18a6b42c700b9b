// A host and a guest on their way through a network game, and messages that nobody's program has sent. It
// acts as the two persons do, never on the rules behind them.
#pragma once

#include <gtest/gtest.h>

#include "network/TwoPrograms.h"

namespace kv::test {

class NetworkFixture : public testing::Test, protected TwoPrograms {
 protected:
  NetworkFixture() {
    for (NetworkPlayer* each : {&host, &guest}) each->record().AutoTurn_Opt = false;
  }
  /// A message that nobody's program has sent arrives and is handled.
  void Forge(NetworkPlayer& to, const std::string& message) {
    to.socket->Receive(message + "\x87");
    Pass(250);
  }
  /// The message arrives, makes no sense, and is answered by a line in the own chat.
  void Refused(NetworkPlayer& player, const std::string& message) {
    const std::size_t before = Complaints(player, message);
    Forge(player, message);
    EXPECT_EQ(Complaints(player, message), before + 1) << message;
  }
  [[nodiscard]] static std::size_t Complaints(NetworkPlayer& player, const std::string& message) {
    return Count(player.program->network()->chatLog(),
                 "<< Unknown command: " + message + " - report as bug >>");
  }
  [[nodiscard]] static std::size_t Count(const std::string& text, const std::string& part) {
    std::size_t found = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++found;
    return found;
  }
  /// To the card screens, and with `settled` until the stake is agreed upon.
  void ToCards(bool settled) {
    host.continues = guest.continues = false;
    Start();
    if (settled) PlayUntil([this] { return Settled(); }, 50);
    host.continues = guest.continues = true;
  }
  [[nodiscard]] bool Settled() const {
    if (host.program->network()->arcade()) return BothOn("frmCards");
    return host.program->game()->Wager == 50 && guest.program->game()->Wager == 50 && BothOn("frmCards");
  }
  /// To the first turn of a match for 50 credits; `seat` is the host's view of whose turn it is.
  void ToTurn(Seat seat) {
    ToCards(true);
    NetworkPlayer& acts = seat == Seat::Player ? host : guest;
    acts.plays = false;
    PlayUntil([&] {
      if (!BothOn("frmGame")) return false;
      return acts.match()->engine().shown().controls.endTurn &&
             Other(acts).match()->engine().peer().peerTurn() == PeerTurn::Theirs;
    });
    acts.plays = true;
    Pass(500);
  }
  NetworkPlayer& Other(const NetworkPlayer& player) { return &player == &host ? guest : host; }
  [[nodiscard]] static std::array<int, 4> Account(NetworkPlayer& player) {
    const auto stored = std::make_unique<clsPlayer>(player.dialogs, player.random);
    EXPECT_FALSE(stored->LoadPlayerFile(player.record().FileName));
    return {stored->Credits_MP->Value, stored->Wins_MP->Value, stored->Losses_MP->Value, stored->Disconnects};
  }
  using Accounts = std::array<int, 4>;  // credits, wins, losses, disconnects, as they are on disk
};

}  // namespace kv::test
