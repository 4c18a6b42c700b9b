#include "campaign/CardRound.h"

#include "campaign/Settlement.h"
#include "match/clsGame.h"
#include "presentation/Navigator.h"
#include "profile/clsPlayer.h"

namespace kv {
namespace {

constexpr int kNetWaitInterval = 100;  // milliseconds

}  // namespace

CardRound::CardRound(const CardRoundServices& services, CardRoundView& view)
    : services_(services),
      view_(view),
      desk_(services.game, services.player, services.networkStake),
      entry_(services.game, services.player, services.networkStake, services.network.hosting()),
      tmrNetWait_(services.scheduler.NewTimer(kNetWaitInterval, [this] { NetWaitTick(); })) {}

void CardRound::Open() {
  // In the other network mode there is no stake to agree upon, and nothing to wait for.
  if (services_.game.Mode != kModeNetwork) return;
  tmrNetWait_->setEnabled(true);
  services_.network.NetSend("[Play]");
}

void CardRound::Close() {
  tmrNetWait_->setEnabled(false);
}

void CardRound::NetWaitTick() {
  if (!services_.network.peerReady()) return;
  tmrNetWait_->setEnabled(false);
  if (!services_.network.hosting() || desk_.view() != CardView::Null) return;
  entry_.EnableButtons(true);
  view_.ShowWager();
}

// --- The stake -------------------------------------------------------------------------------------------

void CardRound::ctlWager_WagerClick() {
  const WagerPress press = entry_.Press(services_.dialogs);
  if (services_.life.closing()) return;
  if (press.action == WagerAction::Propose) Propose(press.amount);
  if (press.action == WagerAction::Settle) Settle(press);
  if (!services_.life.closing()) view_.ShowWager();
}

void CardRound::Proposed(std::int32_t amount) {
  proposed_ = false;
  static_cast<void>(entry_.PeerProposes(std::to_string(amount)));
  view_.ShowWager();
}

void CardRound::Accepted() {
  // The button settles what was proposed once a stake is open.
  services_.game.Wager = 0;
  ctlWager_WagerClick();
  if (desk_.view() == CardView::Null) services_.game.Wager = -1;
}

void CardRound::Propose(std::int32_t amount) {
  view_.PlaySound("check");
  const ProposalTexts texts = TextsOfProposal(services_.player.Name, amount);
  services_.network.NetSend(texts.wage);
  services_.network.NetSend(texts.chat);
  services_.network.AddChatLine(texts.ownLine);
  proposed_ = true;
}

void CardRound::Settle(const WagerPress& press) {
  proposed_ = false;
  view_.PlaySound("accept");
  if (press.acceptsPeer) services_.network.NetSend("[Acpt]");
  if (!SettleStake(services_.game, services_.player, press.amount) || services_.life.closing()) return;
  desk_.StakeSettled();
  view_.ShowSettled();
}

// --- Leaving ---------------------------------------------------------------------------------------------

void CardRound::Continue() {
  desk_.Store();
  clsGame& game = services_.game;
  if (game.isNetwork()) {
    services_.network.NetSend("[Chat][" + services_.player.Name + " is ready to play.]");
    services_.network.AddChatLine("[You are ready to play.]");
  }
  services_.player.WritePlayerFile();
  if (services_.life.closing()) return;
  if (game.Mode == kModeDeckConfig) {
    services_.navigator.OpenCampaign();
  } else {
    DealMatch(game, services_.player, services_.random);
    services_.navigator.OpenMatch();
  }
}

bool CardRound::EndClick() {
  if (!AskEndRun(false)) return false;
  Leave();
  return true;
}

void CardRound::Leave() {
  Navigator& navigator = services_.navigator;
  if (services_.game.isNetwork()) {
    // The lobby first: while a save that fails is being told, the peer must find this side there.
    services_.network.NetSend("[Back]");
    navigator.OpenLobby();
    services_.player.WritePlayerFile();
  } else if (services_.game.Mode == kModeArcade) {
    EndArcadeRun(services_.game, services_.player);
    navigator.OpenMenu();
  } else {
    navigator.OpenCampaign();
  }
}

bool CardRound::AskForfeit() {
  const bool yes = services_.dialogs.AskYesNo("Are you sure you wish to forfeit this match?",
                                              "Kelm Vantri: Forfeit Match", DialogIcon::Exclamation);
  return yes && !services_.life.closing();
}

bool CardRound::AskEndRun(bool inPassing) {
  const clsGame& game = services_.game;
  const bool begun = game.Mode == kModeArcade && !game.LastWagers.empty();
  const bool won = game.CreditsRef->Value > ArcadeStartCredits(services_.player.Arcade_Best);
  if (!begun || (!won && !inPassing)) return true;
  const bool yes = services_.dialogs.AskYesNo("Do you wish to end this arcade run?", "Kelm Vantri: End Run",
                                              DialogIcon::Question);
  return yes && !services_.life.closing();
}

bool CardRound::AskDiscard() {
  if (!desk_.Changed()) return true;
  const bool yes = services_.dialogs.AskYesNo("Your changes are not stored. Are you sure you wish to leave?",
                                              "Kelm Vantri: Discard Changes", DialogIcon::Exclamation);
  return yes && !services_.life.closing();
}

bool CardRound::TitlebarQuit(bool inPassing) {
  if (services_.life.closing()) return false;
  if (desk_.LeavesFreely()) {
    if (!AskDiscard() || !AskEndRun(inPassing)) return false;
    view_.PlaySound("click");
    Leave();
    return true;
  }
  if (!AskForfeit()) return false;
  view_.PlaySound("losematch");
  if (services_.game.isNetwork()) {
    services_.network.SubmitChat("/disconnect");
  } else if (services_.game.Mode == kModeArcade) {
    services_.navigator.ReloadCards();
  } else {
    Leave();
  }
  return true;
}

void CardRound::LeaveProgram() {
  // What was booked when the stake was settled stays booked.
  if (!(desk_.LeavesFreely() ? AskDiscard() : AskForfeit())) return;
  if (services_.game.isNetwork()) {
    services_.network.SubmitChat("/quit");
    return;
  }
  services_.navigator.EndProgram();
}

}  // namespace kv
