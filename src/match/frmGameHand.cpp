#include "match/frmGameHand.h"

#include <utility>

#include "match/frmGamePoint.h"

namespace kv {
namespace {

ctlShape* NewFooter(QStringView control, QWidget& container, Layout& layout) {
  auto* footer = new ctlShape(&container, ctlShape::Kind::Footer, layout.bag(control).colour(u"color"));
  layout.Place(control, *footer);
  footer->hide();
  return footer;
}

Picture NewHoverPicture(QStringView control, ctlFlip::Kind kind, const QWidget& container, Layout& layout) {
  return ctlFlip::HoverPicture(kind, layout.bag(control), layout.rect(control).size(),
                               container.devicePixelRatioF());
}

}  // namespace

frmGameHand::frmGameHand(QWidget& container, Layout& layout, const CardLook& look, const MatchGrid& grid)
    : grid_(grid),
      imgFlip_On_(NewHoverPicture(u"imgFlip", ctlFlip::Kind::Sign, container, layout)),
      imgFlip2_On_(NewHoverPicture(u"imgFlip2", ctlFlip::Kind::OneOrTwo, container, layout)),
      footer_(NewFooter(u"imgFlipFooter", container, layout)),
      footer2_(NewFooter(u"imgFlip2Footer", container, layout)) {
  for (int slot = 1; slot <= kHandSize; ++slot) Build(slot, container, layout, look);
}

void frmGameHand::Build(int slot, QWidget& container, Layout& layout, const CardLook& look) {
  auto* card = new ctlCard(&container, look);
  const QString place = QStringLiteral("hand card %1").arg(slot);
  card->setObjectName(QStringLiteral("ctlYourDeck%1").arg(slot));
  card->setPlace(place);
  card->setFocusPolicy(Qt::TabFocus);
  card->move(PointOf(grid_.HandSpot(Seat::Player, slot)));
  card->DblClick = [this, slot] {
    PutBack();
    if (Play) Play(slot);
  };
  card->MouseDown = [this, slot](Qt::MouseButton, Qt::KeyboardModifiers, QPoint at) { Grab(slot, at); };
  card->MouseMove = [this, slot](Qt::MouseButton, Qt::KeyboardModifiers, QPoint at) { Move(slot, at); };
  card->MouseUp = [this, slot](Qt::MouseButton, Qt::KeyboardModifiers, QPoint) { Release(slot); };

  const auto newFlip = [&](QStringView control, ctlFlip::Kind kind, const QString& name) {
    const Picture& hover = kind == ctlFlip::Kind::Sign ? imgFlip_On_ : imgFlip2_On_;
    auto* flip = new ctlFlip(&container, kind, layout.bag(control), hover);
    flip->setGeometry(layout.rect(control).translated(card->x(), 0));
    flip->setObjectName(QStringLiteral("%1_%2").arg(control).arg(slot));
    flip->setAccessibleName(name + QStringLiteral(" of ") + place);
    flip->hide();
    return flip;
  };
  auto* first = newFlip(u"imgFlip", ctlFlip::Kind::Sign, QStringLiteral("flip the sign"));
  auto* second = newFlip(u"imgFlip2", ctlFlip::Kind::OneOrTwo, QStringLiteral("flip between 1 and 2"));
  first->Click = [this, slot] {
    if (FirstFlip) FirstFlip(slot);
  };
  second->Click = [this, slot] {
    if (SecondFlip) SecondFlip(slot);
  };
  slots_.at(static_cast<std::size_t>(slot) - 1) = {card, first, second};
}

void frmGameHand::ShowCard(int slot, const CardCode& code) {
  const Slot& at = At(slot);
  at.card->setCard(code.text());
  at.card->setVisible(!code.empty());
  at.first->setVisible(code.hasFirstFlip());
  at.second->setVisible(code.hasSecondFlip());
  const FlipsShown shown = flips();
  const auto any = [](const std::array<bool, kHandSize>& row) {
    return row != std::array<bool, kHandSize>{};
  };
  footer_->setVisible(any(shown.first));
  footer2_->setVisible(any(shown.second));
}

void frmGameHand::setEnabled(bool cards, bool flips) {
  if (!cards) PutBack();
  for (const Slot& slot : slots_) {
    if (slot.card->Enabled() != cards) slot.card->setEnabled(cards);
    slot.first->setEnabled(flips);
    slot.second->setEnabled(flips);
  }
}

FlipsShown frmGameHand::flips() const {
  FlipsShown shown;
  for (std::size_t i = 0; i < slots_.size(); ++i) {
    shown.first.at(i) = !slots_.at(i).first->isHidden();
    shown.second.at(i) = !slots_.at(i).second->isHidden();
  }
  return shown;
}

void frmGameHand::PlainFlips() {
  for (const Slot& slot : slots_) {
    slot.first->Plain();
    slot.second->Plain();
  }
}

int frmGameHand::SlotOf(const QObject* widget) const {
  for (int slot = 1; slot <= kHandSize; ++slot) {
    if (At(slot).card == widget) return slot;
  }
  return 0;
}

void frmGameHand::Grab(int slot, QPoint position) {
  ctlCard& card = ctlYourDeck(slot);
  PutBack();
  dragged_ = slot;
  home_ = card.pos();
  grab_ = position;
  card.raise();
  if (DragStarted) DragStarted();
}

void frmGameHand::Move(int slot, QPoint position) {
  ctlCard& card = ctlYourDeck(slot);
  if (dragged_ == slot) {
    card.move(card.pos() + position - grab_);
  } else if (Hover) {
    Hover(card);
  }
}

void frmGameHand::Release(int slot) {
  if (dragged_ != slot) return;
  const QRectF area = ctlYourDeck(slot).geometry();
  // QRectF keeps half pixels, which decide at the edge of the drop area.
  const bool dropped = grid_.InDropArea({area.x() + area.width() / 2, area.y() + area.height() / 2});
  PutBack();  // a card that cannot be played is at home again, and so is the empty slot
  if (dropped && Play) Play(slot);
}

void frmGameHand::PutBack() {
  if (dragged_ == 0) return;
  const int slot = std::exchange(dragged_, 0);
  const QPoint from = ctlYourDeck(slot).pos();
  ctlYourDeck(slot).move(home_);
  if (DragEnded) DragEnded();
  if (PutHome) PutHome(slot, from);
}

}  // namespace kv
