// A player with a file of its own, and a match record tied to it as the screens tie it.
#pragma once

#include <gtest/gtest.h>

#include "campaign/CardDesk.h"
#include "campaign/Circuit.h"
#include "campaign/Settlement.h"
#include "campaign/WagerEntry.h"
#include "campaign/modSaveWin.h"
#include "match/clsGame.h"
#include "platform/Files.h"
#include "profile/clsPlayer.h"
#include "support/ScriptedDialogs.h"
#include "support/TempFolder.h"

namespace kv::test {

class CampaignFixture : public testing::Test {
 protected:
  CampaignFixture() {
    player.FileName = folder / "Player.vnt";
    player.Name = "Mara";
  }

  /// The record as the campaign screen and the opponent's tile leave it.
  void Meet(int tile) {
    Circuit circuit(game, player);
    ASSERT_TRUE(circuit.Choose(tile));
  }
  /// As the lobby prepares a network match.
  void MeetPeer(std::int32_t credits) {
    player.Credits_MP->Value = credits;
    game.Mode = kModeNetwork;
    game.CreditsRef = player.Credits_MP;
    game.WinsRef = player.Wins_MP;
    game.LossesRef = player.Losses_MP;
    game.DeckRef = player.Deck_MP;
    game.CardsRef = player.Cards_MP;
    game.MaxWager = credits;
  }
  /// As the deck view of the campaign screen leaves it.
  void MeetDeckView() {
    game.CreditsRef = player.Credits;
    game.DeckRef = player.Deck;
    game.CardsRef = player.Cards;
    game.Mode = kModeDeckConfig;
  }
  /// The stake is settled on the card screen, and Continue stores the copies.
  void Stake(std::int32_t amount) {
    CardDesk desk(game, player, networkStake);
    ASSERT_TRUE(SettleStake(game, player, amount));
    desk.StakeSettled();
    desk.Store();
    player.WritePlayerFile();
    DealMatch(game, player, random);
  }

  TempFolder folder;
  ScriptedDialogs dialogs;
  SeededRandom random{1};
  NetworkStake networkStake;
  clsPlayer player{dialogs, random};
  clsGame game{player, {}};
  SaveBooking booking{game, player, dialogs};
};

/// What the player file holds at this moment.
struct StoredPlayer {
  explicit StoredPlayer(const std::string& path) : loaded(!fields.LoadPlayerFile(path)) {}
  ScriptedDialogs dialogs;
  SeededRandom random{2};
  clsPlayer fields{dialogs, random};
  bool loaded;
};

}  // namespace kv::test
