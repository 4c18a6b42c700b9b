#include "vantri-peer/PeerCards.h"

#include <algorithm>

namespace kv {
namespace {

constexpr int kActInterval = 50;  // milliseconds

}  // namespace

PeerCards::PeerCards(const PeerServices& services)
    : PeerScreen(services),
      round_({services.scheduler, services.report, services.random, services.navigator, services.player,
              services.game, services.network, services.stake, life()},
             *this),
      tmrAct_(NewTimer(kActInterval, [this] { Act(); })) {}

void PeerCards::Open() {
  tmrAct_->setEnabled(true);
  round_.Open();
}

void PeerCards::Closing() {
  tmrAct_->setEnabled(false);
  round_.Close();
}

void PeerCards::Act() {
  if (round_.desk().view() == CardView::Null) {
    NegotiateStake();
    return;
  }
  FillDeck();
  if (round_.desk().Buttons().next) round_.Continue();
}

void PeerCards::NegotiateStake() {
  WagerEntry& entry = round_.entry();
  if (entry.caption() != WagerCaption::Accept || !entry.buttonEnabled()) {
    if (!entry.boxEnabled()) return;
    const std::int32_t stake = std::min(services().options.stake, services().game.CreditsRef->Value);
    static_cast<void>(entry.Change(std::to_string(stake), 0));
  }
  round_.ctlWager_WagerClick();
}

void PeerCards::FillDeck() {
  CardDesk& desk = round_.desk();
  for (int kind = 1; kind <= kCardKinds; ++kind) {
    for (int value = 1; value <= kCardNumbers; ++value) {
      while (desk.DeckCount() < kDeckSize && desk.ClickBank({kind, value}) == BankClick::Added) {
      }
    }
  }
}

}  // namespace kv
