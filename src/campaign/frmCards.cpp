#include "campaign/frmCards.h"

#include <QKeyEvent>
#include <QLabel>
#include <algorithm>

#include "campaign/SpokenDesk.h"
#include "match/clsGame.h"
#include "platform/QtKeys.h"
#include "platform/QtText.h"

namespace kv {
namespace {

bool Usable(const ctlButton& button) {
  return button.isVisible() && button.Enabled();
}

}  // namespace

frmCards::frmCards(const ScreenServices& services, const frmCardsServices& cards)
    : Screen(services, "frmCards", cards.player.Interface_Opt),
      cards_(cards),
      round_({services.scheduler, services.dialogs, services.random, services.navigator, cards.player,
              cards.game, cards.network, cards.networkStake, lifetime()},
             *this) {
  BuildBanks();
  BuildDeck();
  BuildShop();
  BuildButtons();
  ctlWager_ = new ctlWager(this, layout(), services.buttons, round_.entry());
  ctlWager_->WagerClick = [this] { round_.ctlWager_WagerClick(); };
  ctlWager_->EndClick = [this] {
    if (round_.EndClick() || closing()) return;
    ctlWager_->getcmdEnd().setEnabled(true);
    FocusAmount();
  };
  ctlWager_->CreditsClick = [this] { ctlWager_->ShowFilled(round_.entry().FillFromCredits()); };
  ctlWager_->WagerInfoClick = [this] { ctlWager_->ShowFilled(round_.entry().FillFromInfo()); };
  if (cards_.game.isNetwork()) {
    GrowBelow(layout().rect(u"ctlChat").height());
    chat_ = new ctlChat(this, layout(), cards_.network, services.announcer);
  }
  ctlTitlebar_ = NewTitlebar();
  ctlTitlebar_->Quit = [this] { TitlebarQuit(); };
  ctlTitlebar_->setCaption(ToQString(round_.desk().Title()));
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
  round_.Open();
  if (!closing() && ctlWager_->isVisible()) Announce(SpokenQuestion(round_.entry()));
}

void frmCards::Closing() {
  round_.Close();
}

// --- Cards -----------------------------------------------------------------------------------------------

void frmCards::ClickBank(const CardPlace& place) {
  const BankClick did = round_.desk().ClickBank(place);
  if (did == BankClick::Ignored) return;
  if (did == BankClick::Added) PlayEffect("draw");
  // The last copy is taken: the focus must not slide to a card that the person did not choose.
  if (focusWidget() == Bank(place) && !round_.desk().Bank(place).enabled) setFocus();
  Refresh();
  const CardDesk& desk = round_.desk();
  Announce(did == BankClick::Added ? SpokenChange(desk.Bank(place).code, true, desk.DeckCount())
                                   : SpokenPick(desk.view(), desk.Shop()));
}

void frmCards::RemoveCard(int slot) {
  const CardCode card = round_.desk().Slot(slot);
  if (ctlWager_->isVisible() || !round_.desk().RemoveCard(slot)) return;
  Refresh();
  Announce(SpokenChange(card, false, round_.desk().DeckCount()));
}

void frmCards::SwitchView(CardView view) {
  round_.desk().YourDeck(view);
  Refresh();
}

void frmCards::Trade() {
  const CardCode card = round_.desk().Shop().card;
  const bool traded = round_.desk().Trade();  // what cannot be traded leaves everything as it was
  Refresh();
  if (traded) Announce(SpokenDeal(round_.desk().view(), card, round_.desk().Credits()));
}

// --- The stake -------------------------------------------------------------------------------------------

void frmCards::ShowWager() {
  ctlWager_->Refresh();
  FocusAmount();
}

void frmCards::FocusAmount() {
  if (ctlWager_->isVisible() && (chat_ == nullptr || !chat_->writing())) ctlWager_->gettxtWager().setFocus();
}

void frmCards::ShowSettled() {
  Refresh();
  Announce(QStringLiteral("Stake %1.").arg(cards_.game.Wager).toStdString());
  if (chat_ == nullptr || !chat_->writing()) setFocus();
}

void frmCards::TitlebarQuit(bool inPassing) {
  // Pressed twice it would end twice; after a no it can be pressed anew.
  ctlTitlebar_->setEnabled(false);
  if (!round_.TitlebarQuit(inPassing) && !closing()) ctlTitlebar_->setEnabled(true);
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
    TitlebarQuit(true);
  } else {
    Screen::keyPressEvent(event);
  }
}

}  // namespace kv
