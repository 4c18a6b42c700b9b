#include "history/frmReplay.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>

#include "ai/HandSearch.h"
#include "match/frmGamePoint.h"
#include "match/frmGameServices.h"
#include "platform/QtText.h"
#include "presentation/WidgetSkin.h"
#include "profile/clsPlayer.h"

namespace kv {
namespace {

constexpr int kRunStepMs = 900;
constexpr const char* kNothingToPlay = "This match has nothing that could be played again.";

/// Nobody asks it for anything: no match is played here.
class BooksNothing final : public MatchBooking {
 public:
  void SaveWin() override {}
  void SaveLoss() override {}
};

}  // namespace

frmReplay::frmReplay(const ScreenServices& services, const frmReplayServices& replay)
    : Screen(services, "frmReplay", replay.player.Interface_Opt), course_(replay.record) {
  BuildSides(replay);
  BuildControls();
  tmrRun_ = NewTimer(kRunStepMs, [this] { RunTick(); });
}

frmReplay::~frmReplay() {
  CloseScreen();
}

void frmReplay::BuildSides(const frmReplayServices& replay) {
  bool found = false;
  game_.OppName = replay.record.opponent;
  game_.YourPic = services().portraits.GetPortrait(replay.player.Portrait, "", found);
  MatchNetwork nobody;
  BooksNothing book;
  const frmGameServices look{services(), replay.player, game_, nobody, book};
  const MatchGrid& grid = kMatchGrids.at(replay.player.Interface_Opt == "Ember" ? 1 : 0);
  for (const Seat seat : {Seat::Player, Seat::Opponent}) {
    sides_.at(static_cast<std::size_t>(seat)) =
        std::make_unique<frmGameSide>(seat, *this, layout(), look, grid);
  }
  side(Seat::Opponent).HidePortrait();  // the record does not have it
  for (int slot = 1; slot <= kHandSize; ++slot) {
    auto* card = new ctlCard(this, services().look);
    card->setObjectName(QStringLiteral("ctlYourDeck%1").arg(slot));
    card->setPlace(QStringLiteral("your hand card %1").arg(slot));
    card->move(PointOf(grid.HandSpot(Seat::Player, slot)));
    hand_.at(static_cast<std::size_t>(slot) - 1) = card;
  }
}

void frmReplay::BuildControls() {
  lblPlace_ = layout().NewLabel(u"lblPlace", this);
  lblStrip_ = layout().NewLabel(u"lblStrip", this);
  BuildSets();
  cmdSetBefore_ = NewStepButton(u"cmdSetBefore", &frmReplay::SetBefore);
  cmdBackward_ = NewStepButton(u"cmdBackward", &frmReplay::Back);
  cmdRun_ = NewStepButton(u"cmdRun", &frmReplay::Run);
  cmdForward_ = NewStepButton(u"cmdForward", &frmReplay::Step);
  cmdNextSet_ = NewStepButton(u"cmdNextSet", &frmReplay::NextSet);
  NewButton(u"cmdBack", [this] { LeaveProgram(); })->installEventFilter(this);
  ctlTitlebar_ = NewTitlebar();
  ctlTitlebar_->Quit = [this] { LeaveProgram(); };
}

void frmReplay::BuildSets() {
  cmbSet_ = new QComboBox(this);
  SkinWidget(*cmbSet_, layout().bag(u"cmbSet"));
  layout().Place(u"cmbSet", *cmbSet_);
  for (std::size_t set = 1; set <= course_.sets(); ++set) cmbSet_->addItem(QStringLiteral("set %1").arg(set));
  cmbSet_->setEnabled(course_.sets() > 0);
  cmbSet_->installEventFilter(this);
  QObject::connect(cmbSet_, &QComboBox::activated, this, [this](int row) { GoToSet(row + 1); });
}

ctlButton* frmReplay::NewStepButton(QStringView control, void (frmReplay::*act)()) {
  ctlButton* button = NewButton(control, [this, act] { (this->*act)(); });
  button->installEventFilter(this);
  return button;
}

void frmReplay::Activate() {
  ShowStep();
}

void frmReplay::Closing() {
  tmrRun_->setEnabled(false);
}

void frmReplay::Go(void (ReplayCourse::*way)()) {
  StopRunning();
  if (!course_.empty()) (course_.*way)();
  ShowStep();
}

void frmReplay::GoToSet(int set) {
  if (static_cast<std::size_t>(set) > course_.sets()) return;
  StopRunning();
  course_.GoToSet(static_cast<std::size_t>(set));
  ShowStep();
}

void frmReplay::Run() {
  const bool run = !tmrRun_->Enabled();
  StopRunning();
  if (run && !course_.empty()) {
    if (course_.AtEnd()) course_.GoTo(0);
    tmrRun_->setEnabled(true);
    cmdRun_->setCaption(QStringLiteral("stop"));
  }
  ShowStep();
}

void frmReplay::StopRunning() {
  tmrRun_->setEnabled(false);
  cmdRun_->setCaption(QStringLiteral("run"));
}

void frmReplay::RunTick() {
  course_.Forth();
  if (course_.AtEnd()) StopRunning();
  ShowStep();
}

void frmReplay::ShowStep() {
  ShowButtons();
  if (course_.empty()) {
    lblStrip_->setText(QString::fromUtf8(kNothingToPlay));
  } else {
    ShowSide(Seat::Player);
    ShowSide(Seat::Opponent);
    ShowHands();
    lblPlace_->setText(QStringLiteral("step %1 of %2").arg(course_.at() + 1).arg(course_.size()));
    lblStrip_->setText(ToQString(course_.sentence()));
  }
  lblPlace_->setAccessibleName(lblPlace_->text());
  lblStrip_->setAccessibleName(lblStrip_->text());
  Announce(lblStrip_->text().toStdString());
}

void frmReplay::ShowSide(Seat seat) {
  const ReplayStep& step = course_.step();
  const auto index = static_cast<std::size_t>(seat);
  frmGameSide& shown = side(seat);
  const std::vector<CardCode>& table = step.tables.at(index);
  if (shown.table().size() > table.size()) shown.ClearTable();
  for (std::size_t card = 0; card < table.size(); ++card) {
    shown.ShowTableCard(static_cast<int>(card) + 1, table[card]);
  }
  shown.ShowTotal(step.totals.at(index));
  shown.ShowSetWins(step.setWins.at(index));
  const bool on = course_.turn() == seat;
  shown.TellLight(on);
  shown.RepaintLight();
  if (on) shown.light().setPicture(shown.LightPair().source);
}

void frmReplay::ShowHands() {
  for (int slot = 1; slot <= kHandSize; ++slot) {
    const auto index = static_cast<std::size_t>(slot) - 1;
    for (const Seat seat : {Seat::Player, Seat::Opponent}) {
      const CardCode& code = course_.step().hands.at(static_cast<std::size_t>(seat)).at(index);
      ctlCard& card = seat == Seat::Player ? *hand_.at(index) : side(seat).ctlOppDeck(slot);
      card.setVisible(!IsEmptySlot(code));
      if (!IsEmptySlot(code)) card.setCard(code.text());
    }
  }
}

void frmReplay::ShowButtons() {
  for (ctlButton* button : {cmdSetBefore_, cmdBackward_}) button->setEnabled(!course_.AtStart());
  for (ctlButton* button : {cmdForward_, cmdNextSet_}) button->setEnabled(!course_.AtEnd());
  cmdRun_->setEnabled(!course_.empty());
  cmbSet_->setCurrentIndex(static_cast<int>(course_.set()) - 1);
}

bool frmReplay::ReplayKey(int key) {
  if (key >= Qt::Key_1 && key <= Qt::Key_9) {
    GoToSet(key - Qt::Key_0);
    return true;
  }
  switch (key) {
    case Qt::Key_Left:
      Back();
      return true;
    case Qt::Key_Right:
      Step();
      return true;
    case Qt::Key_PageUp:
      SetBefore();
      return true;
    case Qt::Key_PageDown:
      NextSet();
      return true;
    case Qt::Key_Escape:
      LeaveProgram();
      return true;
    default:
      return false;
  }
}

bool frmReplay::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && !closing()) {
    if (ReplayKey(static_cast<QKeyEvent*>(event)->key())) return true;
  }
  return Screen::eventFilter(watched, event);
}

void frmReplay::keyPressEvent(QKeyEvent* event) {
  if (closing() || !ReplayKey(event->key())) Screen::keyPressEvent(event);
}

void frmReplay::LeaveProgram() {
  if (!closing()) services().navigator.OpenRecord();
}

}  // namespace kv
