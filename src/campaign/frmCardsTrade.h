// The trade area of the card screen: the picked card, what it costs or brings, how many there are, and why it
// is not traded. It shows; whether anything is traded is the desk's business.
#pragma once

#include <QLabel>

#include "campaign/DeskView.h"
#include "cards/ctlCard.h"
#include "presentation/Layout.h"

namespace kv {

class frmCardsTrade {
 public:
  /// The labels become children of `parent`, which must outlive this.
  void Build(QWidget* parent, Layout& layout);
  /// The control that shows the picked card; a child of the screen's.
  void setCard(ctlCard* card) { ctlTrade_ = card; }
  void Show(const TradeArea& shop);
  void setPriceTip(const QString& tip);

 private:
  ctlCard* ctlTrade_ = nullptr;
  QLabel* lblBuyorSell_ = nullptr;
  QLabel* lblCost_ = nullptr;
  QLabel* lblAmountHeader_ = nullptr;
  QLabel* lblAmount_ = nullptr;
  QLabel* lblRefusal_ = nullptr;
};

}  // namespace kv
