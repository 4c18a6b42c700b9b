#include "vantri-peer/PeerCards.h"

#include <algorithm>

#include "campaign/Settlement.h"

namespace kv {
namespace {

// Milliseconds.
constexpr int kNetWaitInterval = 100;
constexpr int kActInterval = 50;

}  // namespace

PeerCards::PeerCards(const PeerServices& services)
    : PeerScreen(services),
      desk_(services.game, services.player, services.stake),
      entry_(services.game, services.player, services.stake, services.network.hosting()),
      tmrNetWait_(NewTimer(kNetWaitInterval, [this] { NetWaitTick(); })),
      tmrAct_(NewTimer(kActInterval, [this] { Act(); })) {}

void PeerCards::Open() {
  tmrAct_->setEnabled(true);
  if (services().game.Mode != kModeNetwork) return;
  tmrNetWait_->setEnabled(true);
  services().network.NetSend("[Play]");
}

void PeerCards::Closing() {
  tmrNetWait_->setEnabled(false);
  tmrAct_->setEnabled(false);
}

void PeerCards::NetWaitTick() {
  if (!services().network.peerReady()) return;
  tmrNetWait_->setEnabled(false);
  if (services().network.hosting()) entry_.EnableButtons(true);
}

void PeerCards::Act() {
  if (desk_.view() == CardView::Null) {
    NegotiateStake();
  } else {
    FillDeck();
    if (desk_.Buttons().next) Continue();
  }
}

void PeerCards::NegotiateStake() {
  if (entry_.caption() == WagerCaption::Accept && entry_.buttonEnabled()) {
    PressWager();
  } else if (entry_.boxEnabled()) {
    const std::int32_t stake = std::min(services().options.stake, services().game.CreditsRef->Value);
    static_cast<void>(entry_.Change(std::to_string(stake), 0));
    PressWager();
  }
}

void PeerCards::PressWager() {
  const WagerPress press = entry_.Press(services().report);
  if (press.action == WagerAction::Propose) Propose(press.amount);
  if (press.action == WagerAction::Settle) Settle(press);
}

void PeerCards::Proposed(std::int32_t amount) {
  proposed_ = false;
  static_cast<void>(entry_.PeerProposes(std::to_string(amount)));
}

void PeerCards::Accepted() {
  // The button settles what was proposed once a stake is open.
  services().game.Wager = 0;
  PressWager();
  if (desk_.view() == CardView::Null) services().game.Wager = -1;
}

void PeerCards::Propose(std::int32_t amount) {
  const ProposalTexts texts = TextsOfProposal(services().player.Name, amount);
  services().network.NetSend(texts.wage);
  services().network.NetSend(texts.chat);
  services().network.AddChatLine(texts.ownLine);
  proposed_ = true;
}

void PeerCards::Settle(const WagerPress& press) {
  proposed_ = false;
  if (press.acceptsPeer) services().network.NetSend("[Acpt]");
  if (SettleStake(services().game, services().player, press.amount)) desk_.StakeSettled();
}

void PeerCards::FillDeck() {
  for (int kind = 1; kind <= kCardKinds; ++kind) {
    for (int value = 1; value <= kCardNumbers; ++value) {
      while (desk_.DeckCount() < kDeckSize && desk_.ClickBank({kind, value}) == BankClick::Added) {
      }
    }
  }
}

void PeerCards::Continue() {
  desk_.Store();
  services().network.NetSend("[Chat][" + services().player.Name + " is ready to play.]");
  services().network.AddChatLine("[You are ready to play.]");
  services().player.WritePlayerFile();
  DealMatch(services().game, services().player, services().random);
  services().navigator.OpenMatch();
}

}  // namespace kv
