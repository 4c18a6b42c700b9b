// The match screen's two borders: what the engine says is shown, and what the person does is handed back.
#include <QAccessible>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QToolTip>

#include "match/MatchKeys.h"
#include "match/MatchTips.h"
#include "match/frmGame.h"
#include "platform/QtKeys.h"
#include "platform/QtText.h"

namespace kv {
namespace {

constexpr Effects::Fade kLightFade{.start = 100, .end = 255, .step = 10};

KeyModifiers HeldOf(Qt::KeyboardModifiers held) {
  return {.shift = held.testFlag(Qt::ShiftModifier),
          .control = held.testFlag(Qt::ControlModifier),
          .alt = held.testFlag(Qt::AltModifier)};
}

}  // namespace

// --- What the engine says --------------------------------------------------------------------------------

void frmGame::TableChanged(Seat seat, int index) {
  if (index == 0) {
    side(seat).ClearTable();
  } else {
    side(seat).ShowTableCard(index, engine_.shown().Table(seat)[static_cast<std::size_t>(index) - 1]);
  }
  side(seat).ShowTotal(engine_.shown().Total(seat));
}

void frmGame::HandChanged(Seat seat, int slot) {
  const CardCode& code = engine_.shown().HandCard(seat, slot);
  if (seat == Seat::Player) {
    hand_->ShowCard(slot, code);
  } else {
    opponent_->ShowHandCard(slot, !(code == EmptiedSlot()));
  }
}

void frmGame::SetWinAdded(Seat seat) {
  side(seat).ShowSetWins(engine_.shown().SetWins(seat));
  motion_->MarkerAdded(seat);
}

void frmGame::ControlsChanged() {
  const MatchControls& controls = engine_.shown().controls;
  cmdTurn_->setEnabled(controls.endTurn);
  cmdStand_->setEnabled(controls.stand);
  cmdForfeit_->setEnabled(controls.forfeit);
  ctlTitlebar_->setEnabled(controls.titlebar);
  if (!controls.hand) services_.effects.StopCardPulse();
  hand_->setEnabled(controls.hand, controls.flips);
  opponent_->setHandEnabled(controls.opponentHand);
  player_->setTableEnabled(controls.table[0]);
  opponent_->setTableEnabled(controls.table[1]);
  guide_.Look();
}

void frmGame::LightsChanged() {
  services_.effects.StopFade();
  for (const Seat seat : {Seat::Player, Seat::Opponent}) {
    side(seat).RepaintLight();
    side(seat).TellLight(engine_.shown().Light(seat));
  }
  if (engine_.shown().Light(Seat::Player)) services_.navigator.CallPlayer();
  for (const Seat seat : {Seat::Player, Seat::Opponent}) {
    if (!engine_.shown().Light(seat)) continue;
    // Without pulsing effects a light simply shines, and nothing moves while the person thinks.
    if (services_.player.LightPulse_Opt) {
      services_.effects.FadeLoop(side(seat).LightPair(), kLightFade);
    } else {
      const Effects::Pair pair = side(seat).LightPair();
      Effects::AlphaBlendPicture(pair.source, *pair.destination, kLightFade.end);
    }
  }
}

void frmGame::BannerChanged() {
  const MatchBanner& banner = engine_.shown().banner;
  ctlBust_->lblBust().setText(QString::fromStdString(banner.text));
  // The next set has begun before the banner goes: until then it keeps its reason.
  if (const QString reason = ToQString(reasons_.text()); !reason.isEmpty() || ctlBust_->isHidden()) {
    ctlBust_->lblReason().setText(reason);
    ctlBust_->lblReason().setAccessibleName(reason);
  }
  ctlButton& button = ctlBust_->cmdBust();
  button.setCaption(QString::fromStdString(banner.caption));
  button.setEnabled(banner.buttonEnabled);
  const bool retold = banner.visible && ctlBust_->accessibleName() != ctlBust_->lblBust().text();
  ctlBust_->setAccessibleName(ctlBust_->lblBust().text());
  if (banner.visible != ctlBust_->isHidden() && !retold) return;
  ctlBust_->setVisible(banner.visible);
  if (banner.visible) {
    services_.effects.StopCardPulse();
    ctlBust_->raise();
    if (chat_ == nullptr || !chat_->writing()) button.setFocus();
    QAccessibleEvent alert(ctlBust_, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    motion_->BannerShown(*ctlBust_);
  } else if (chat_ == nullptr || !chat_->writing()) {
    setFocus();
  }
}

void frmGame::RunTimer(MatchTimer timer, bool run) {
  timers_.at(static_cast<std::size_t>(timer))->setEnabled(run);
}

void frmGame::PlaySound(std::string_view effect) {
  services_.buttons.PlayEffect(effect);
}

bool frmGame::Pause(int milliseconds) {
  return Screen::Pause(milliseconds);
}

// --- What the person does --------------------------------------------------------------------------------

void frmGame::PlainHighlights() {
  hand_->PlainFlips();
  Screen::PlainHighlights();
}

bool frmGame::event(QEvent* event) {
  // A box over the screen swallows the release: what is being dragged goes home first.
  if (event->type() == QEvent::WindowBlocked) hand_->PutBack();
  if (event->type() == QEvent::KeyPress) {
    // Before the toolkit takes Tab for itself: it may be one of the game's keys.
    const auto& key = static_cast<QKeyEvent&>(*event);
    if (GameKey(key) || FocusKey(key)) return true;
  }
  return QWidget::event(event);
}

bool frmGame::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const QString tip = TipFor(watched);
    if (tip.isEmpty()) return false;
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), tip, static_cast<QWidget*>(watched));
    return true;
  }
  if (event->type() != QEvent::KeyPress) return false;
  const auto& key = static_cast<QKeyEvent&>(*event);
  if (GameKey(key)) return true;
  const int slot = hand_->SlotOf(watched);
  if (slot != 0 && (IsEnter(key.key()) || key.key() == Qt::Key_Space)) {
    if (!key.isAutoRepeat()) engine_.person().PlayHandCard(slot);
    return true;
  }
  return FocusKey(key);
}

/// Made when it is asked for: what can be done changes from moment to moment.
QString frmGame::TipFor(const QObject* watched) const {
  const MatchShown& shown = engine_.shown();
  if (watched == cmdTurn_) return WithKey(EndTurnTip(shown), 1, 1);
  if (watched == cmdStand_) return WithKey(StandTip(shown), 1, 2);
  if (watched == cmdForfeit_) return ToQString(ForfeitTip(shown)) + QStringLiteral(" (Esc)");
  for (int slot = 1; slot <= kHandSize; ++slot) {
    if (watched == &hand_->ctlYourDeck(slot)) return WithKey(HandTip(shown, slot), 2, slot);
    if (watched == &hand_->imgFlip(slot)) return WithKey(FirstFlipTip(shown), 3, slot);
    if (watched == &hand_->imgFlip2(slot)) return WithKey(SecondFlipTip(shown), 4, slot);
  }
  return {};
}

/// With the key of this entry of the key table, while the keys are in use.
QString frmGame::WithKey(const std::string& tip, int row, int column) const {
  const QString text = ToQString(tip);
  if (tip.empty() || services_.game.isNetwork() || !services_.player.KeysEn) return text;
  const QString key = KeyName(keys_.Value(row, column));
  return key.isEmpty() ? text : text + QStringLiteral(" (") + key + QStringLiteral(")");
}

bool frmGame::GameKey(const QKeyEvent& event) {
  if (closing() || services_.game.isNetwork() || !services_.player.KeysEn) return false;
  const int code = VirtualKey(event);
  if (!IsBoundKey(keys_, code)) return false;
  if (event.isAutoRepeat()) return true;  // a key held too long must not end the next turn as well
  const KeyAction action = KeyActionOf(keys_, code, HeldOf(event.modifiers()), hand_->flips());
  switch (action.command) {
    case KeyCommand::EndTurn:
      engine_.person().EndTurn();
      break;
    case KeyCommand::Stand:
      engine_.person().Stand();
      break;
    case KeyCommand::Play:
      engine_.person().PlayHandCard(action.slot);
      break;
    case KeyCommand::FirstFlip:
      engine_.person().FirstFlip(action.slot);
      break;
    case KeyCommand::SecondFlip:
      engine_.person().SecondFlip(action.slot);
      break;
    case KeyCommand::None:
      break;
  }
  return true;
}

void frmGame::Hint() {
  if (services_.game.isNetwork()) return;
  std::string text = "No hint: it is not your turn.";
  if (engine_.shown().controls.endTurn) {
    const WeighedMove best = hint_.Best();
    text = HintText(best);
    QWidget* closes = best.move.stands ? cmdStand_ : cmdTurn_;
    (best.move.slot == 0 ? closes : &hand_->ctlYourDeck(best.move.slot))->setFocus(Qt::TabFocusReason);
  }
  services_.announcer.Announce(text, Urgency::Assertive);
  strip_->Tell(text);
}

bool frmGame::FocusKey(const QKeyEvent& event) {
  if (ctlGuide_ != nullptr && !event.isAutoRepeat() && ctlGuide_->Key(event.key())) return true;
  switch (event.key()) {
    case Qt::Key_Right:
    case Qt::Key_Down:
      return focusNextPrevChild(true);
    case Qt::Key_Left:
    case Qt::Key_Up:
      return focusNextPrevChild(false);
    case Qt::Key_Return:
    case Qt::Key_Enter:
      // The banner waits for nothing else, wherever the focus may be.
      if (!ctlBust_->isVisible() || event.isAutoRepeat()) return false;
      ctlBust_->cmdBust().click();
      return true;
    case Qt::Key_F2:
      services_.announcer.Announce(TableText(engine_.shown(), services_.game.OppName), Urgency::Assertive);
      return true;
    case Qt::Key_F3:
      services_.announcer.Announce(HandText(engine_.shown()), Urgency::Assertive);
      return true;
    case Qt::Key_F4:
      if (!event.isAutoRepeat()) Hint();
      return true;
    case Qt::Key_Escape:
      if (!event.isAutoRepeat() && ctlTitlebar_->Enabled()) engine_.person().Forfeit();
      return true;
    default:
      return false;
  }
}

}  // namespace kv
