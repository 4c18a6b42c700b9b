// The panel beside the table on which a newcomer is told how a match goes. It stands in nobody's way: it
// never takes the focus, and nothing waits for it.
#pragma once

#include <QLabel>
#include <QWidget>

#include "match/MatchGuide.h"
#include "platform/Announcer.h"
#include "presentation/Layout.h"
#include "presentation/ctlButton.h"

namespace kv {

class ctlGuide final : public QWidget {
 public:
  /// Takes "ctlGuide" and its parts from the layout. All must outlive it.
  ctlGuide(QWidget* parent, Layout& layout, ButtonContext& context, MatchGuide& guide, Announcer& announcer);

  /// The keys for its two buttons; true when one of them was meant.
  bool Key(int key);

  [[nodiscard]] QLabel& lblGuide() const { return *text_; }
  [[nodiscard]] ctlButton& cmdGuideYes() const { return *yes_; }
  [[nodiscard]] ctlButton& cmdGuideNo() const { return *no_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  ctlButton* NewButton(Layout& layout, QStringView control);
  void Show();

  ButtonContext& context_;
  MatchGuide& guide_;
  Announcer& announcer_;
  const PropertyBag look_;
  QLabel* text_;  // children
  ctlButton* yes_;
  ctlButton* no_;
};

}  // namespace kv
