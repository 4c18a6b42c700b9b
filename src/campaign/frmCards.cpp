#include "campaign/frmCards.h"

#include <QKeyEvent>
#include <QLabel>
#include <algorithm>

#include "campaign/Settlement.h"
#include "match/clsGame.h"
#include "platform/QtKeys.h"
#include "platform/QtText.h"

namespace kv {
namespace {

constexpr int kNetWaitInterval = 100;  // milliseconds

bool Usable(const ctlButton& button) {
  return button.isVisible() && button.Enabled();
}

}  // namespace

frmCards::frmCards(const ScreenServices& services, const frmCardsServices& cards)
    : Screen(services, "frmCards", cards.player.Interface_Opt),
      cards_(cards),
      desk_(cards.game, cards.player, cards.networkStake),
      entry_(cards.game, cards.player, cards.networkStake, cards.network.hosting()),
      tmrNetWait_(NewTimer(kNetWaitInterval, [this] { NetWaitTick(); })) {
  BuildBanks();
  BuildDeck();
  BuildShop();
  BuildButtons();
  ctlWager_ = new ctlWager(this, layout(), services.buttons, entry_);
  ctlWager_->WagerClick = [this] { ctlWager_WagerClick(); };
  ctlWager_->EndClick = [this] { EndClick(); };
  ctlWager_->CreditsClick = [this] { ctlWager_->ShowFilled(entry_.FillFromCredits()); };
  ctlWager_->WagerInfoClick = [this] { ctlWager_->ShowFilled(entry_.FillFromInfo()); };
  if (cards_.game.isNetwork()) {
    GrowBelow(layout().rect(u"ctlChat").height());
    chat_ = new ctlChat(this, layout(), cards_.network);
  }
  ctlTitlebar_ = NewTitlebar();
  ctlTitlebar_->Quit = [this] { TitlebarQuit(); };
  ctlTitlebar_->setCaption(ToQString(desk_.Title()));
  setWindowTitle(ctlTitlebar_->Caption());
}

frmCards::~frmCards() {
  CloseScreen();
}

void frmCards::Activate() {
  Refresh();
}

void frmCards::Shown() {
  if (ctlWager_->isVisible()) ctlWager_->gettxtWager().setFocus();
  // In the other network mode there is no stake to agree upon, and nothing to wait for.
  if (cards_.game.Mode != kModeNetwork) return;
  tmrNetWait_->setEnabled(true);
  cards_.network.NetSend("[Play]");
}

void frmCards::Closing() {
  tmrNetWait_->setEnabled(false);
}

void frmCards::NetWaitTick() {
  if (!cards_.network.peerReady()) return;
  tmrNetWait_->setEnabled(false);
  cards_.network.clearPeerReady();
  if (!cards_.network.hosting()) return;
  entry_.EnableButtons(true);
  ctlWager_->Refresh();
}

// --- Cards -----------------------------------------------------------------------------------------------

void frmCards::ClickBank(const CardPlace& place) {
  const BankClick did = desk_.ClickBank(place);
  if (did == BankClick::Ignored) return;
  if (did == BankClick::Added) PlayEffect("draw");
  // The last copy is taken: the focus must not slide to a card that the person did not choose.
  if (focusWidget() == Bank(place) && !desk_.Bank(place).enabled) setFocus();
  Refresh();
}

void frmCards::RemoveCard(int slot) {
  if (ctlWager_->isVisible() || !desk_.RemoveCard(slot)) return;
  Refresh();
}

void frmCards::SwitchView(CardView view) {
  desk_.YourDeck(view);
  Refresh();
}

void frmCards::Trade() {
  static_cast<void>(desk_.Trade());  // what cannot be traded leaves everything as it was
  Refresh();
}

// --- The stake -------------------------------------------------------------------------------------------

void frmCards::ctlWager_WagerClick() {
  const WagerPress press = entry_.Press(services().dialogs);
  if (closing()) return;
  if (press.action == WagerAction::Propose) Propose(press.amount);
  if (press.action == WagerAction::Settle) Settle(press);
  ctlWager_->Refresh();
  if (ctlWager_->isVisible() && (chat_ == nullptr || !chat_->writing())) ctlWager_->gettxtWager().setFocus();
}

void frmCards::Proposed(std::int32_t amount) {
  proposed_ = false;
  static_cast<void>(entry_.PeerProposes(std::to_string(amount)));
  ctlWager_->Refresh();
}

void frmCards::Accepted() {
  // The button settles what was proposed once a stake is open.
  cards_.game.Wager = 0;
  ctlWager_WagerClick();
  if (desk_.view() == CardView::Null) cards_.game.Wager = -1;
}

void frmCards::Propose(std::int32_t amount) {
  PlayEffect("check");
  const ProposalTexts texts = TextsOfProposal(cards_.player.Name, amount);
  cards_.network.NetSend(texts.wage);
  cards_.network.NetSend(texts.chat);
  cards_.network.AddChatLine(texts.ownLine);
  proposed_ = true;
}

void frmCards::Settle(const WagerPress& press) {
  proposed_ = false;
  PlayEffect("accept");
  // Whatever the peer was ready for before is over: its next "[Play]" is that of the match.
  if (cards_.game.isNetwork()) cards_.network.clearPeerReady();
  if (press.acceptsPeer) cards_.network.NetSend("[Acpt]");
  if (!SettleStake(cards_.game, cards_.player, press.amount) || closing()) return;
  desk_.StakeSettled();
  Refresh();
  if (chat_ == nullptr || !chat_->writing()) setFocus();
}

// --- Leaving ---------------------------------------------------------------------------------------------

void frmCards::Continue() {
  desk_.Store();
  if (cards_.game.isNetwork()) {
    cards_.network.NetSend("[Chat][" + cards_.player.Name + " is ready to play.]");
    cards_.network.AddChatLine("[You are ready to play.]");
  }
  cards_.player.WritePlayerFile();
  if (closing()) return;
  if (cards_.game.Mode == kModeDeckConfig) {
    services().navigator.OpenCampaign();
  } else {
    DealMatch(cards_.game, cards_.player, services().random);
    services().navigator.OpenMatch();
  }
}

void frmCards::EndClick() {
  Navigator& navigator = services().navigator;
  if (cards_.game.isNetwork()) {
    cards_.network.NetSend("[Back]");
    cards_.player.WritePlayerFile();
    if (!closing()) navigator.OpenLobby();
  } else if (cards_.game.Mode == kModeArcade) {
    EndArcadeRun(cards_.game, cards_.player);
    navigator.OpenMenu();
  } else {
    navigator.OpenCampaign();
  }
}

bool frmCards::AskForfeit() {
  const bool yes = services().dialogs.AskYesNo("Are you sure you wish to forfeit this match?",
                                               "Kelm Vantri: Forfeit Match", DialogIcon::Exclamation);
  return yes && !closing();
}

void frmCards::TitlebarQuit() {
  if (closing()) return;
  if (desk_.LeavesFreely()) {
    ctlTitlebar_->setEnabled(false);
    PlayEffect("click");
    EndClick();
    return;
  }
  if (!AskForfeit()) return;
  PlayEffect("losematch");
  if (cards_.game.isNetwork()) {
    cards_.network.SubmitChat("/disconnect");
  } else if (cards_.game.Mode == kModeArcade) {
    services().navigator.ReloadCards();
  } else {
    EndClick();
  }
}

void frmCards::LeaveProgram() {
  // What was booked when the stake was settled stays booked.
  if (!desk_.LeavesFreely() && !AskForfeit()) return;
  if (cards_.game.isNetwork()) {
    cards_.network.SubmitChat("/quit");
    return;
  }
  services().navigator.EndProgram();
}

// --- Keys ------------------------------------------------------------------------------------------------

bool frmCards::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const auto* pressed = static_cast<QKeyEvent*>(event);
  const auto* card = dynamic_cast<ctlCard*>(watched);
  if (card == nullptr || (!IsEnter(pressed->key()) && pressed->key() != Qt::Key_Space)) return false;
  // A picked card is traded with the space bar, and a full deck takes no card: then the key is the screen's.
  const bool inDeck = std::ranges::find(slots_, card) != slots_.end();
  if (Usable(*cmdTrade_) && pressed->key() == Qt::Key_Space) return false;
  if (Usable(*cmdContinue_) && IsEnter(pressed->key()) && !inDeck) return false;
  if (card->Click && card->Enabled() && !pressed->isAutoRepeat()) card->Click();
  return true;
}

void frmCards::focusInEvent(QFocusEvent* event) {
  Screen::focusInEvent(event);
  // A click beside the stake's panel, one too many on the way in mostly, must not lead the digits astray.
  const bool clicked = event->reason() == Qt::MouseFocusReason;
  if (clicked && ctlWager_->isVisible()) ctlWager_->gettxtWager().setFocus();
}

void frmCards::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  ctlButton* button = nullptr;
  if (IsEnter(key)) button = cmdContinue_;
  if (key == Qt::Key_Space) button = cmdTrade_;
  const std::array views = {cmdDeck_, cmdBuy_, cmdSell_};
  if (key >= Qt::Key_1 && key <= Qt::Key_3) button = views.at(static_cast<std::size_t>(key - Qt::Key_1));
  if (button != nullptr && Usable(*button) && !event->isAutoRepeat()) {
    button->click();  // with the button's own sound
  } else if (key == Qt::Key_Escape && !event->isAutoRepeat()) {
    // A key pressed in passing must not end a run, which nobody is asked about between two matches.
    if (cards_.game.Mode != kModeArcade || !desk_.LeavesFreely()) TitlebarQuit();
  } else {
    Screen::keyPressEvent(event);
  }
}

}  // namespace kv
