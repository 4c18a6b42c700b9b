#include "match/frmGame.h"

namespace kv {
namespace {

// Milliseconds.
constexpr int kGameInterval = 50;
constexpr int kAutoDialogsInterval = 800;
constexpr int kNetWaitInterval = 50;
constexpr int kQuietInterval = 20;

}  // namespace

frmGame::frmGame(const frmGameServices& services)
    : Screen(services, "frmGame", services.player.Interface_Opt),
      services_(services),
      styleIndex_(services.player.Interface_Opt == "Ember" ? 1 : 0),
      sentences_([this](const std::string& told) {
        services_.announcer.Announce(told, Urgency::Polite);
        strip_->Tell(told);
      }),
      reasons_(services.booking),
      hint_(services.game, services.player.TurnMode_Opt),
      engine_(services.game, MatchOptionsOf(services.player), *this, services.network, services.booking,
              services.dialogs, services.random),
      guide_(services.game, services.player, services.settings, engine_.shown()) {
  observers_.Add(sentences_);
  observers_.Add(reasons_);
  observers_.Add(hint_);
  observers_.Add(guide_);
  engine_.setObserver(&observers_);
  BuildTimers();
  BuildPanel();
  BuildControls();
  BuildMotion();
  ConnectHand();
  for (int slot = 1; slot <= kHandSize; ++slot) {
    for (const Seat seat : {Seat::Player, Seat::Opponent}) HandChanged(seat, slot);
  }
  ControlsChanged();
}

frmGame::~frmGame() {
  CloseScreen();
}

void frmGame::BuildTimers() {
  timers_ = {NewTimer(kGameInterval, [this] { engine_.GameTick(); }),
             NewTimer(kAutoDialogsInterval, [this] { engine_.AutoDialogsTick(); }),
             NewTimer(kNetWaitInterval, [this] { engine_.peer().NetWaitTick(); }),
             NewTimer(kQuietInterval, [this] { engine_.pauses().QuietTick(); })};
}

/// Its picture is the window's own, so it draws nothing: the pointer over it is over nothing in particular.
void frmGame::BuildPanel() {
  panel_ = new FadeTarget(this);
  panel_->setObjectName(styleIndex_ == 0 ? QStringLiteral("picSlate") : QStringLiteral("picEmber"));
  panel_->setGeometry(QRect(QPoint(0, 0), layout().size()));
  panel_->MouseMove = [this] { PlainHighlights(); };
}

void frmGame::BuildControls() {
  const MatchGrid& grid = kMatchGrids.at(static_cast<std::size_t>(styleIndex_));
  player_ = std::make_unique<frmGameSide>(Seat::Player, *panel_, layout(), services_, grid);
  opponent_ = std::make_unique<frmGameSide>(Seat::Opponent, *panel_, layout(), services_, grid);
  lblWager_ = layout().NewLabel(u"lblWager", panel_);
  strip_ = std::make_unique<frmGameStrip>(*layout().NewLabel(u"lblStrip", panel_));
  hand_ = std::make_unique<frmGameHand>(*panel_, layout(), services_.look, grid);
  cmdTurn_ = NewMatchButton(u"cmdTurn", [this] { engine_.person().EndTurn(); });
  cmdStand_ = NewMatchButton(u"cmdStand", [this] { engine_.person().Stand(); });
  cmdForfeit_ = NewMatchButton(u"cmdForfeit", [this] { engine_.person().Forfeit(); });
  if (services_.game.isNetwork()) {
    GrowBelow(layout().rect(u"ctlChat").height());
    chat_ = new ctlChat(this, layout(), services_.network, services_.announcer);
  }
  ctlTitlebar_ = NewTitlebar();
  ctlTitlebar_->Quit = [this] { engine_.person().Forfeit(); };
  if (guide_.active())
    ctlGuide_ = new ctlGuide(this, layout(), services_.buttons, guide_, services_.announcer);
  ctlBust_ = new ctlBust(this, layout(), services_.buttons);
  ctlBust_->Click = [this] { engine_.Continue(); };
  ctlBust_->hide();
  ctlBust_->cmdBust().installEventFilter(this);
  for (const Seat seat : {Seat::Player, Seat::Opponent}) {
    side(seat).light().DblClick = [this] { LightsChanged(); };
    side(seat).light().MouseMove = [this] { PlainHighlights(); };
    side(seat).portrait().MouseMove = [this] { PlainHighlights(); };
  }
}

void frmGame::BuildMotion() {
  const MatchGrid& grid = kMatchGrids.at(static_cast<std::size_t>(styleIndex_));
  motionLayer_ = new MotionLayer(*this, services_.scheduler);
  motion_ = std::make_unique<frmGameMotion>(*motionLayer_, services_, grid,
                                            std::array{player_.get(), opponent_.get()}, *hand_);
  observers_.Add(*motion_);
}

ctlButton* frmGame::NewMatchButton(QStringView control, std::function<void()> click) {
  ctlButton* button = NewButton(control, std::move(click));
  button->installEventFilter(this);
  return button;
}

void frmGame::ConnectHand() {
  hand_->Play = [this](int slot) { engine_.person().PlayHandCard(slot); };
  hand_->FirstFlip = [this](int slot) { engine_.person().FirstFlip(slot); };
  hand_->SecondFlip = [this](int slot) { engine_.person().SecondFlip(slot); };
  // A dragged card goes over the buttons beside the panel, too.
  hand_->DragStarted = [this] {
    services_.effects.StopCardPulse();
    panel_->raise();
  };
  hand_->DragEnded = [this] { panel_->lower(); };
  hand_->PutHome = [this](int slot, QPoint from) { motion_->CardPutHome(slot, from); };
  hand_->Hover = [this](ctlCard& card) {
    if (ctlBust_->isHidden()) services_.effects.StartCardPulse(&card);
  };
  for (int slot = 1; slot <= kHandSize; ++slot) {
    hand_->ctlYourDeck(slot).installEventFilter(this);
    hand_->imgFlip(slot).installEventFilter(this);
    hand_->imgFlip2(slot).installEventFilter(this);
  }
}

void frmGame::Shown() {
  keys_.CopyArray(*services_.player.Keys);
  const QString title = QString::fromStdString(engine_.shown().title);
  ctlTitlebar_->setCaption(title);
  setWindowTitle(title);
  lblWager_->setText(QString::fromStdString(engine_.shown().wager));
  lblWager_->setAccessibleName(lblWager_->text());
  engine_.Activate();
}

void frmGame::Closing() {
  engine_.Close();
  hand_->setEnabled(false, false);
  motionLayer_->Close();
}

void frmGame::LeaveProgram() {
  if (closing()) return;
  engine_.pauses().WhenQuiet([this] {
    if (services_.game.isNetwork()) {
      LeaveNetwork();
      return;
    }
    if (services_.game.Wager != -1) {
      engine_.person().Forfeit();
      if (closing() || !engine_.person().Stopped()) return;
    }
    services_.navigator.EndProgram();
  });
}

/// The peer is told, and the match booked, by leaving the game.
void frmGame::LeaveNetwork() {
  const bool sure = services_.game.Wager == -1 ||
                    services_.dialogs.AskYesNo("Are you sure you wish to forfeit this match?",
                                               "Kelm Vantri: Forfeit Match", DialogIcon::Exclamation);
  if (sure && !closing()) services_.network.SubmitChat("/quit");
}

void frmGame::Leave() {
  CloseScreen();
  services_.navigator.LeaveMatch();
}

}  // namespace kv
