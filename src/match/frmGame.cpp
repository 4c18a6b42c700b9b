#include "match/frmGame.h"

#include <QCloseEvent>
#include <QPainter>

#include "presentation/RoundWindow.h"

namespace kv {
namespace {

// Milliseconds.
constexpr int kGameInterval = 50;
constexpr int kAutoDialogsInterval = 800;
constexpr int kNetWaitInterval = 50;

constexpr int kBackground[] = {105, 107};  // by StyleIndex

}  // namespace

frmGame::frmGame(const frmGameServices& services)
    : services_(services),
      styleIndex_(services.player.Interface_Opt == "Ember" ? 1 : 0),
      engine_(services.game, MatchOptionsOf(services.player), *this, services.network, services.booking,
              services.dialogs, services.random),
      background_(services.getPic(kBackground[styleIndex_])) {
  setObjectName(QStringLiteral("frmGame"));
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  Layout layout("frmGame", services.player.Interface_Opt);
  setFixedSize(layout.size());
  BuildTimers();
  BuildControls(layout);
  ConnectHand();
  for (int slot = 1; slot <= kHandSize; ++slot) {
    for (const Seat seat : {Seat::Player, Seat::Opponent}) HandChanged(seat, slot);
  }
  ControlsChanged();
  RoundWindow(*this, kScreenCorners);
}

frmGame::~frmGame() {
  CloseScreen();
}

void frmGame::BuildTimers() {
  tmrActivate_ = services_.scheduler.NewTimer(1, [this] {
    tmrActivate_->setEnabled(false);
    Activate();
  });
  tmrGame_ = services_.scheduler.NewTimer(kGameInterval, [this] { engine_.GameTick(); });
  tmrAutoDialogs_ = services_.scheduler.NewTimer(kAutoDialogsInterval, [this] { engine_.AutoDialogsTick(); });
  tmrNetWait_ = services_.scheduler.NewTimer(kNetWaitInterval, [this] { engine_.NetWaitTick(); });
}

void frmGame::BuildControls(Layout& layout) {
  const MatchGrid& grid = kMatchGrids.at(static_cast<std::size_t>(styleIndex_));
  player_ = std::make_unique<frmGameSide>(Seat::Player, *this, layout, services_, grid);
  opponent_ = std::make_unique<frmGameSide>(Seat::Opponent, *this, layout, services_, grid);
  lblWager_ = layout.NewLabel(u"lblWager", this);
  hand_ = std::make_unique<frmGameHand>(*this, layout, services_.look, grid);
  cmdTurn_ = NewButton(u"cmdTurn", layout, [this] { engine_.EndTurn(); });
  cmdStand_ = NewButton(u"cmdStand", layout, [this] { engine_.Stand(); });
  cmdForfeit_ = NewButton(u"cmdForfeit", layout, [this] { engine_.Forfeit(); });
  ctlTitlebar_ = new ctlTitlebar(this, services_.buttons);
  ctlTitlebar_->ReadProperties(layout.bag(u"ctlTitlebar"));
  layout.Place(u"ctlTitlebar", *ctlTitlebar_);
  ctlTitlebar_->setButtonFocus(Qt::TabFocus);
  ctlTitlebar_->Quit = [this] { engine_.Forfeit(); };
  ctlBust_ = new ctlBust(this, layout, services_.buttons);
  ctlBust_->Click = [this] { engine_.Continue(); };
  ctlBust_->hide();
  ctlBust_->cmdBust().installEventFilter(this);
  for (const Seat seat : {Seat::Player, Seat::Opponent}) {
    side(seat).light().DblClick = [this] { LightsChanged(); };
    side(seat).light().MouseMove = [this] { PlainHighlights(); };
    side(seat).portrait().MouseMove = [this] { PlainHighlights(); };
  }
}

ctlButton* frmGame::NewButton(QStringView control, Layout& layout, std::function<void()> click) {
  auto* button = new ctlButton(this, services_.buttons);
  button->ReadProperties(layout.bag(control));
  layout.Place(control, *button);
  button->Click = std::move(click);
  button->installEventFilter(this);
  return button;
}

void frmGame::ConnectHand() {
  hand_->Play = [this](int slot) { engine_.PlayHandCard(slot); };
  hand_->FirstFlip = [this](int slot) { engine_.FirstFlip(slot); };
  hand_->SecondFlip = [this](int slot) { engine_.SecondFlip(slot); };
  hand_->DragStarted = [this] { services_.effects.StopCardPulse(); };
  hand_->Hover = [this](ctlCard& card) {
    if (ctlBust_->isHidden()) services_.effects.StartCardPulse(&card);
  };
  for (int slot = 1; slot <= kHandSize; ++slot) {
    hand_->ctlYourDeck(slot).installEventFilter(this);
    hand_->imgFlip(slot).installEventFilter(this);
    hand_->imgFlip2(slot).installEventFilter(this);
  }
}

void frmGame::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (activated_ || lifetime_.closing()) return;
  activated_ = true;
  setFocus();
  tmrActivate_->setEnabled(true);
}

void frmGame::Activate() {
  keys_.CopyArray(*services_.player.Keys);
  const QString title = QString::fromStdString(engine_.Title());
  ctlTitlebar_->setCaption(title);
  setWindowTitle(title);
  lblWager_->setText(QString::fromStdString(engine_.WagerText()));
  lblWager_->setAccessibleName(lblWager_->text());
  engine_.Activate();
}

void frmGame::CloseScreen() {
  if (lifetime_.closing()) return;
  lifetime_.Close();
  engine_.Close();
  tmrActivate_->setEnabled(false);
  hand_->setEnabled(false, false);
  services_.effects.StopFade();
  services_.effects.StopCardPulse();
  hide();
}

void frmGame::LeaveProgram() {
  if (lifetime_.closing()) return;
  if (services_.game.Wager != -1) {
    engine_.Forfeit();
    if (lifetime_.closing() || !engine_.Stopped()) return;
  }
  services_.navigator.EndProgram();
}

void frmGame::closeEvent(QCloseEvent* event) {
  event->ignore();
  LeaveProgram();
}

void frmGame::Leave() {
  CloseScreen();
  services_.navigator.LeaveMatch();
}

void frmGame::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (background_.empty()) {
    painter.fillRect(rect(), Qt::black);
  } else {
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(rect(), *background_.image());
  }
}

}  // namespace kv
