#include "campaign/frmCardsTrade.h"

#include "platform/QtText.h"

namespace kv {

void frmCardsTrade::Build(QWidget* parent, Layout& layout) {
  lblBuyorSell_ = layout.NewLabel(u"lblBuyorSell", parent);
  lblCost_ = layout.NewLabel(u"lblCost", parent);
  lblAmountHeader_ = layout.NewLabel(u"lblAmountHeader", parent);
  lblAmount_ = layout.NewLabel(u"lblAmount", parent);
  lblRefusal_ = layout.NewLabel(u"lblRefusal", parent);
}

void frmCardsTrade::Show(const TradeArea& shop) {
  for (QLabel* part : {lblBuyorSell_, lblCost_, lblAmountHeader_, lblAmount_, lblRefusal_}) {
    part->setVisible(shop.shown);
  }
  ctlTrade_->setVisible(shop.shown && !shop.card.empty());
  if (!shop.card.empty()) ctlTrade_->setCard(shop.card.text());
  lblBuyorSell_->setText(ToQString(shop.priceHeader));
  lblCost_->setText(QString::fromStdString(shop.price));
  lblAmountHeader_->setText(ToQString(shop.amountHeader));
  lblAmount_->setText(QString::fromStdString(shop.amount));
  lblRefusal_->setText(ToQString(shop.refusal));
}

}  // namespace kv
