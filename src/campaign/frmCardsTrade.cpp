#include "campaign/frmCardsTrade.h"

#include "platform/QtText.h"
#include "presentation/SpokenValue.h"

namespace kv {
namespace {

/// Before a card is picked there is a question mark.
QString SpokenAmount(const std::string& shown) {
  return shown == "?" ? QStringLiteral("no card picked") : QString::fromStdString(shown);
}

}  // namespace

void frmCardsTrade::Build(QWidget* parent, Layout& layout) {
  lblBuyorSell_ = layout.NewLabel(u"lblBuyorSell", parent);
  lblCost_ = layout.NewLabel(u"lblCost", parent);
  lblCost_->setAttribute(Qt::WA_TransparentForMouseEvents, false);  // it has a tip
  lblAmountHeader_ = layout.NewLabel(u"lblAmountHeader", parent);
  lblAmount_ = layout.NewLabel(u"lblAmount", parent);
  lblRefusal_ = layout.NewLabel(u"lblRefusal", parent);
}

void frmCardsTrade::setPriceTip(const QString& tip) {
  lblCost_->setToolTip(tip);
}

void frmCardsTrade::Show(const TradeArea& shop) {
  for (QLabel* part : {lblBuyorSell_, lblCost_, lblAmountHeader_, lblAmount_}) {
    part->setVisible(shop.shown);
  }
  ctlTrade_->setVisible(shop.shown && !shop.card.empty());
  ctlTrade_->setCard(shop.card.text());
  lblBuyorSell_->setText(ToQString(shop.priceHeader));
  ShowValue(*lblCost_, u"Price", QString::fromStdString(shop.price), SpokenAmount(shop.price));
  lblAmountHeader_->setText(ToQString(shop.amountHeader));
  ShowValue(*lblAmount_, u"Number of copies", QString::fromStdString(shop.amount), SpokenAmount(shop.amount));
  lblRefusal_->setVisible(shop.shown && !shop.refusal.empty());
  lblRefusal_->setText(ToQString(shop.refusal));
  lblRefusal_->setAccessibleName(lblRefusal_->text());
}

}  // namespace kv
