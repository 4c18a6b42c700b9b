// The card screen's controls: how they are built from the layout, and how they show what the desk holds.
#include <QLabel>
#include <QPainter>
#include <utility>

#include "campaign/DeskTips.h"
#include "campaign/frmCards.h"
#include "match/clsGame.h"
#include "platform/QtText.h"
#include "presentation/PanelPainter.h"
#include "presentation/SpokenValue.h"

namespace kv {
namespace {

constexpr std::array<QStringView, kCardKinds> kBankNames = {u"ctlPlus", u"ctlMinus", u"ctlFlip",
                                                            u"ctlSpecial"};
constexpr std::array<QStringView, kCardKinds> kBankHeadings = {u"lblPlus", u"lblMinus", u"lblFlip",
                                                               u"lblSpecial"};

constexpr int kEmptySlotAlpha = 150;  // of the frame that waits for a card
constexpr int kSlotCorners = 5;

/// The place of element `index` of a row of controls: each is "step" pixels right of the one before it.
QRect Along(const Layout& layout, QStringView control, int index) {
  return layout.rect(control).translated(index * layout.bag(control).number(u"step"), 0);
}

void PaintEmptySlots(QPainter& painter, const Layout& layout, const CardDesk& desk) {
  QColor frame = layout.bag(u"panelDeck").colour(u"border_color");
  frame.setAlpha(kEmptySlotAlpha);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(frame, 1, Qt::DashLine));
  painter.setBrush(Qt::NoBrush);
  for (int slot = 1; slot <= kDeckSize; ++slot) {
    if (!desk.Slot(slot).empty()) continue;
    const QRectF place = Along(layout, u"ctlDeck", slot - 1);
    painter.drawRoundedRect(place.adjusted(3.5, 3.5, -3.5, -3.5), kSlotCorners, kSlotCorners);
  }
  painter.restore();
}

}  // namespace

ctlCard* frmCards::NewCard(const QRect& place, std::function<void()> click) {
  auto* card = new ctlCard(this, services().look);
  card->move(place.topLeft());
  card->setFocusPolicy(Qt::TabFocus);
  card->installEventFilter(this);
  // A double click is two cards: without this its second half would be lost.
  card->DblClick = click;
  card->Click = std::move(click);
  card->MouseMove = [this, card](Qt::MouseButton, Qt::KeyboardModifiers, QPoint) {
    services().buttons.unColor();
    if (card->Enabled()) services().effects.StartCardPulse(card);
  };
  return card;
}

void frmCards::BuildBanks() {
  for (std::size_t kind = 0; kind < banks_.size(); ++kind) {
    layout().NewLabel(kBankHeadings.at(kind), this);
    for (std::size_t value = 0; value < banks_.at(kind).size(); ++value) {
      const CardPlace place{static_cast<int>(kind) + 1, static_cast<int>(value) + 1};
      const CardCode code = CollectionCode(place);
      if (code.empty()) continue;
      ctlCard* card = NewCard(Along(layout(), kBankNames.at(kind), static_cast<int>(value)),
                              [this, place] { ClickBank(place); });
      card->setObjectName(kBankNames.at(kind).toString() + QString::number(place.value));
      card->setCard(code.text());
      card->setShow_Count(true);
      banks_.at(kind).at(value) = card;
    }
  }
}

void frmCards::BuildDeck() {
  lblDeckCount_ = layout().NewLabel(u"lblDeck", this);
  for (int slot = 1; slot <= kDeckSize; ++slot) {
    ctlCard* card = NewCard(Along(layout(), u"ctlDeck", slot - 1), [this, slot] { RemoveCard(slot); });
    card->setObjectName(QStringLiteral("ctlDeck%1").arg(slot));
    card->setPlace(QStringLiteral("deck card %1").arg(slot));
    slots_.at(static_cast<std::size_t>(slot) - 1) = card;
  }
}

void frmCards::BuildShop() {
  lblWagerHeader_ = layout().NewLabel(u"lblWagerHeader", this);
  lblWager_ = layout().NewLabel(u"lblWager", this);
  lblCreditHeader_ = layout().NewLabel(u"lblCreditHeader", this);
  lblCredits_ = layout().NewLabel(u"lblCredits", this);
  trade_.Build(this, layout());
  ctlCard* picked = NewCard(layout().rect(u"ctlTrade"), {});
  picked->setFocusPolicy(Qt::NoFocus);
  picked->setObjectName(QStringLiteral("ctlTrade"));
  trade_.setCard(picked);
}

void frmCards::BuildButtons() {
  cmdDeck_ = NewButton(u"cmdDeck", [this] { SwitchView(CardView::Deck); });
  cmdBuy_ = NewButton(u"cmdBuy", [this] { SwitchView(CardView::Buy); });
  cmdSell_ = NewButton(u"cmdSell", [this] { SwitchView(CardView::Sell); });
  cmdTrade_ = NewButton(u"cmdTrade", [this] { Trade(); });
  cmdContinue_ = NewButton(u"cmdContinue", [this] { round_.Continue(); });
  if (!round_.desk().ContinueCaption().empty())
    cmdContinue_->setCaption(ToQString(round_.desk().ContinueCaption()));
  // As the eye goes: the collection, the buttons beside it, the deck below, and on.
  QWidget* last = cmdTrade_;
  for (QWidget* next : slots_) setTabOrder(std::exchange(last, next), next);
  setTabOrder(last, cmdContinue_);
}

ctlCard* frmCards::Bank(const CardPlace& place) {
  if (!place.inTable()) return nullptr;
  return banks_.at(static_cast<std::size_t>(place.kind) - 1).at(static_cast<std::size_t>(place.value) - 1);
}

// --- Showing ---------------------------------------------------------------------------------------------

void frmCards::Refresh() {
  services().effects.StopCardPulse();  // it would paint over the dim of a card that is disabled now
  RefreshBanks();
  RefreshDeck();
  RefreshShop();
  RefreshButtons();
  ctlWager_->setVisible(round_.desk().view() == CardView::Null);
  ctlWager_->raise();
  update();
}

void frmCards::RefreshBanks() {
  for (std::size_t kind = 0; kind < banks_.size(); ++kind) {
    for (std::size_t value = 0; value < banks_.at(kind).size(); ++value) {
      ctlCard* card = banks_.at(kind).at(value);
      if (card == nullptr) continue;
      const CardPlace place{static_cast<int>(kind) + 1, static_cast<int>(value) + 1};
      const BankCard shown = round_.desk().Bank(place);
      card->setCount(std::to_string(shown.count));
      card->setPlace(QStringLiteral("%1 in the collection").arg(shown.count));
      card->setVisible(shown.visible);
      card->setEnabled(shown.enabled);
      card->setToolTip(ToQString(BankTip(round_.desk(), place)));
    }
  }
}

void frmCards::RefreshDeck() {
  for (int slot = 1; slot <= kDeckSize; ++slot) {
    const CardCode& code = round_.desk().Slot(slot);
    ctlDeck(slot).setCard(code.text());
    ctlDeck(slot).setVisible(!code.empty());
    ctlDeck(slot).setToolTip(ToQString(DeckTip(round_.desk(), slot)));
  }
  const int count = round_.desk().DeckCount();
  ShowValue(*lblDeckCount_, u"Cards in the deck", QStringLiteral("Deck %1/%2").arg(count).arg(kDeckSize),
            QStringLiteral("%1 of %2").arg(count).arg(kDeckSize));
}

void frmCards::RefreshShop() {
  const TradeArea shop = round_.desk().Shop();
  trade_.Show(shop);
  cmdTrade_->setVisible(shop.shown);
  cmdTrade_->setCaption(ToQString(shop.caption));
  cmdTrade_->setEnabled(!shop.card.empty() && shop.refusal.empty());
  cmdTrade_->setToolTip(ToQString(TradeTip(round_.desk())));
  trade_.setPriceTip(ToQString(PriceTip(round_.desk())));
}

void frmCards::RefreshButtons() {
  const DeskButtons buttons = round_.desk().Buttons();
  for (ctlButton* button : {cmdDeck_, cmdBuy_, cmdSell_}) button->setVisible(buttons.shown);
  cmdDeck_->setEnabled(buttons.deck);
  cmdBuy_->setEnabled(buttons.buy);
  cmdSell_->setEnabled(buttons.sell);
  cmdContinue_->setEnabled(buttons.next);
  cmdDeck_->setToolTip(ToQString(ViewTip(round_.desk(), CardView::Deck)));
  cmdBuy_->setToolTip(ToQString(ViewTip(round_.desk(), CardView::Buy)));
  cmdSell_->setToolTip(ToQString(ViewTip(round_.desk(), CardView::Sell)));
  cmdContinue_->setToolTip(ToQString(ContinueTip(round_.desk())));
  const bool settled = round_.desk().view() != CardView::Null;
  const bool stake = settled && cards_.game.Mode != kModeDeckConfig && cards_.game.Mode != kModeNetworkArcade;
  lblWagerHeader_->setVisible(stake);
  lblWager_->setVisible(stake);
  ShowValue(*lblWager_, u"Stake", QString::number(cards_.game.Wager));
  lblCreditHeader_->setVisible(settled && cards_.game.Mode != kModeNetworkArcade);
  lblCredits_->setVisible(lblCreditHeader_->isVisibleTo(this));
  ShowValue(*lblCredits_, u"Credits", QString::number(round_.desk().Credits()));
}

void frmCards::paintEvent(QPaintEvent* event) {
  Screen::paintEvent(event);
  QPainter painter(this);
  PaintPanel(painter, layout().rect(u"panelDeck"), layout().bag(u"panelDeck"));
  PaintEmptySlots(painter, layout(), round_.desk());
  if (round_.desk().Shop().shown)
    PaintPanel(painter, layout().rect(u"frmeTrade"), layout().bag(u"frmeTrade"));
}

}  // namespace kv
