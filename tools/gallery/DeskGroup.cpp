// The card screen: the stake, the deck, the shop, the deck without a match, and a network match.
#include "Gallery.h"
#include "campaign/Circuit.h"
#include "campaign/frmCards.h"
#include "match/clsGame.h"
#include "support/ScreenHand.h"

namespace kv {
namespace {

constexpr CardPlace kPicked{3, 4};  // a flip card
constexpr int kOpponent = 3;        // with a stake that matters

/// Waits for nobody: what a network match shows before its peer has answered.
struct QuietNetwork final : MatchNetwork {};

struct Desk {
  Desk(const Gallery& gallery, std::string_view mode, const std::function<void(PlayerFields&)>& change = {})
      : stage(gallery.style(), gallery.scale()) {
    FillSamplePlayer(stage.player);
    for (int value = 1; value <= kCardNumbers; ++value) {
      stage.player.Cards->setValue(1 + value % 4, 7 - value, static_cast<std::int16_t>(value % 3 + 1));
    }
    if (change) change(stage.player);
    game.OppName = "Orrin Vaal";
    if (mode == kModeCampaign || mode == kModeDeckConfig) {
      Circuit circuit(game, stage.player);
      for (const auto& opponent : CircuitOpponents()) {
        if (opponent.wins != nullptr) (stage.player.*(opponent.wins))->Value = kWinsToUnlock;
      }
      static_cast<void>(circuit.Choose(kOpponent));
    } else if (mode == kModeNetwork) {
      game.CreditsRef = stage.player.Credits_MP;
      game.DeckRef = stage.player.Deck_MP;
      game.CardsRef = stage.player.Cards_MP;
      game.MaxWager = stage.player.Credits_MP->Value;
    }
    game.Mode = mode;
    screen = std::make_unique<frmCards>(stage.services(),
                                        frmCardsServices{stage.player, game, network, networkStake});
    screen->Open();
    stage.Settle();
    hand = std::make_unique<test::ScreenHand>(*screen);
  }
  void SettleStake() {
    screen->wager().gettxtWager().setText(QStringLiteral("400"));
    hand->Click(screen->wager().getcmdWager());
  }
  void Key(Qt::Key key) {
    hand->Key(key);
    stage.Settle(200);
  }

  test::ScreenStage stage;
  QuietNetwork network;
  NetworkStake networkStake;
  clsGame game{stage.player, {}};
  std::unique_ptr<frmCards> screen;
  std::unique_ptr<test::ScreenHand> hand;
};

void Match(Gallery& gallery) {
  Desk desk(gallery, kModeCampaign);
  desk.screen->wager().gettxtWager().setText(QStringLiteral("400"));
  gallery.Save(*desk.screen, "cards-stake");
  desk.SettleStake();
  desk.hand->Click(desk.screen->ctlDeck(4));
  gallery.Save(*desk.screen, "cards-deck");
}

void Shop(Gallery& gallery) {
  Desk desk(gallery, kModeCampaign);
  desk.SettleStake();
  desk.Key(Qt::Key_2);
  desk.hand->Click(*desk.screen->Bank(kPicked));
  gallery.Save(*desk.screen, "cards-buy");
  desk.Key(Qt::Key_3);
  gallery.Save(*desk.screen, "cards-sell");
}

void Refusal(Gallery& gallery) {
  Desk desk(gallery, kModeDeckConfig, [](PlayerFields& player) {
    player.Cards->Fill(0);
    player.Credits->Value = 0;
    for (int slot = 1; slot <= kDeckSize; ++slot) player.Deck->setValue(slot, CardCode("ps6"));
  });
  desk.Key(Qt::Key_3);
  desk.hand->Click(desk.screen->ctlDeck(4));
  desk.hand->Click(*desk.screen->Bank({1, 6}));
  gallery.Save(*desk.screen, "cards-refused");
}

}  // namespace

void RenderDesk(Gallery& gallery) {
  for (const auto& [mode, name] :
       {std::pair(kModeArcade, "cards-arcade"), std::pair(kModeDeckConfig, "cards-view"),
        std::pair(kModeNetwork, "cards-network"), std::pair(kModeNetworkArcade, "cards-network-arcade")}) {
    const Desk desk(gallery, mode);
    gallery.Save(*desk.screen, name);
  }
  Match(gallery);
  Shop(gallery);
  Refusal(gallery);
}

}  // namespace kv
