#include "screens/frmSplash.h"

#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>

#include "presentation/ChoiceList.h"
#include "presentation/PanelPainter.h"
#include "presentation/WidgetSkin.h"
#include "screens/PinBox.h"
#include "screens/TextBoxes.h"
#include "screens/TextLink.h"
#include "screens/frmSplashCreation.h"
#include "screens/frmSplashFrame.h"
#include "screens/frmSplashTitle.h"

namespace kv {
namespace {

constexpr int kLoadWatchInterval = 10;  // milliseconds

}  // namespace

frmSplash::frmSplash(const ScreenServices& services, const frmSplashServices& splash, std::string_view style)
    : Screen(services, "frmSplash", style),
      splash_(splash),
      lstFiles_(splash.workingFolder),
      tmrLoadWatch_(NewTimer(kLoadWatchInterval, [this] { LoadWatchTick(); })) {
  setWindowTitle(QStringLiteral("Kelm Vantri"));
  BuildList();
  BuildCreation();
  BuildFrame();
  BuildTitle();
  for (QWidget* control : findChildren<QWidget*>()) control->installEventFilter(this);
  ShowList(true);
}

frmSplash::~frmSplash() {
  CloseScreen();
}

void frmSplash::LeaveProgram() {
  services().navigator.EndProgram();
}

void frmSplash::BuildTitle() {
  const PropertyBag text = layout().bag(u"imgFadeText_Target");
  const PropertyBag line = layout().bag(u"imgFadeLine_Target");
  title_ = std::make_unique<frmSplashTitle>(
      *this, layout(), services().effects, services().scheduler,
      frmSplashTitle::Look{TintedPicture(text.number(u"picture_off")), TintedPicture(text.number(u"picture")),
                           TintedPicture(line.number(u"picture_off")),
                           TintedPicture(line.number(u"picture"))});
  title_->MouseMove = [this] {
    title_->Stir();
    PlainHighlights();
  };
}

void frmSplash::BuildList() {
  lblPlayerHeader_ = layout().NewLabel(u"lblPlayerHeader", this);
  lstPlayers_ = new QListWidget(this);
  lstPlayers_->setUniformItemSizes(true);
  lstPlayers_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  SkinWidget(*lstPlayers_, layout().bag(u"lstPlayers"));
  layout().Place(u"lstPlayers", *lstPlayers_);
  LetCurrentFollowSelection(*lstPlayers_);
  connect(lstPlayers_, &QListWidget::currentRowChanged, this, [this] { PlayerSelected(); });
  // Also a click on the entry that is current already: it stays selected, and the PIN is typed anew.
  connect(lstPlayers_, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
    item->setSelected(true);
    PlayerSelected();
  });
  connect(lstPlayers_, &QListWidget::itemDoubleClicked, this, [this] {
    if (cmdContinue_->Enabled()) Continue();
  });
  lblPINtitle_ = layout().NewLabel(u"lblPINtitle", this);
  txtPIN_ = new PinBox(this);
  PlaceBox(layout(), u"txtPIN", *txtPIN_);
  cmdContinue_ = NewButton(u"cmdContinue", [this] { Continue(); });
  cmdCreate_ = NewButton(u"cmdCreate", [this] { Create(); });
  BuildCare();
}

void frmSplash::BuildCreation() {
  creation_ = std::make_unique<frmSplashCreation>(
      *this, layout(),
      frmSplashCreation::Services{services().buttons, services().scheduler, services().announcer, lifetime(),
                                  splash_});
  creation_->StepChanged = [this] { StepChanged(); };
  creation_->GivenUp = [this] {
    BackToList();
    FocusList();
  };
  creation_->Done = [this](const std::string& fileName, const std::string& pin) {
    BackToList();
    RefreshPlayerList();
    SelectPlayer(fileName, pin);
    FocusList();
  };
  cmdNew2_ = new QPushButton(this);
  cmdNew2_->setObjectName(QStringLiteral("cmdNew2"));
  cmdNew2_->hide();
  connect(cmdNew2_, &QPushButton::clicked, this, [this] { EnterStep(); });
}

void frmSplash::BuildFrame() {
  BuildSplashFrame(*this, layout(), services().buttons,
                   // There is no site yet: what a newcomer would look for there is in the program.
                   {.lblURL = [this] { services().navigator.OpenHelp(); },
                    .cmdMini = [this] { window()->showMinimized(); },
                    .cmdQuit = [this] { LeaveProgram(); }});
}

void frmSplash::ShowList(bool list) {
  setFocus();  // what has the focus may be hidden now: it must not wander on to whatever comes next
  for (QWidget* part :
       std::initializer_list<QWidget*>{lblPlayerHeader_, lstPlayers_, lblPINtitle_, txtPIN_, cmdContinue_,
                                       cmdCreate_, lblOwner_, lnkRename_, lnkDelete_}) {
    part->setVisible(list);
  }
  StepChanged();
}

void frmSplash::Activate() {
  RefreshPlayerList();
  SelectPlayer(splash_.lastPlayer, {});
}

void frmSplash::Shown() {
  loaded_ = true;
  title_->Begin();
  FocusList();
}

void frmSplash::Closing() {
  title_->Stop();
  tmrLoadWatch_->setEnabled(false);
}

/// A key that a control takes for itself wakes the title, too.
bool frmSplash::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    title_->Stir();
    // Before the list takes it for a letter to search for. In the PIN box it is the text's.
    const auto* pressed = static_cast<QKeyEvent*>(event);
    if (watched == lstPlayers_ && pressed->key() == Qt::Key_Delete && !pressed->isAutoRepeat()) {
      Delete();
      return true;
    }
  }
  return Screen::eventFilter(watched, event);
}

void frmSplash::keyPressEvent(QKeyEvent* event) {
  title_->Stir();
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (!event->isAutoRepeat()) cmdNew2_->click();
      return;
    case Qt::Key_Escape:
      // The way back for someone who changed their mind, and from the list the way out.
      if (event->isAutoRepeat()) return;
      if (creation_->StepButton() != nullptr) {
        creation_->Back();
      } else {
        LeaveProgram();
      }
      return;
    case Qt::Key_F2:
      if (!event->isAutoRepeat()) Rename();
      return;
    case Qt::Key_Up:
    case Qt::Key_Down:
      // So that a player can be picked while the hands are at the PIN box.
      if (lstPlayers_->isVisible()) MoveSelection(event->key() == Qt::Key_Up ? -1 : 1);
      return;
    default:
      Screen::keyPressEvent(event);
  }
}

void frmSplash::mousePressEvent(QMouseEvent* event) {
  drag_.Press(*window(), *event);
}

void frmSplash::mouseMoveEvent(QMouseEvent* event) {
  drag_.Move(*window(), *event);
  title_->Stir();
  Screen::mouseMoveEvent(event);
}

void frmSplash::mouseReleaseEvent(QMouseEvent*) {
  drag_.Release();
}

void frmSplash::paintEvent(QPaintEvent* event) {
  Screen::paintEvent(event);
  QPainter painter(this);
  const PropertyBag panel = layout().bag(u"panel");
  // The title glows beside it.
  if (event->region().intersects(layout().rect(u"panel")))
    PaintPanel(painter, layout().rect(u"panel"), panel);
  const PropertyBag footer = layout().bag(u"footer");
  QColor shade = footer.colour(u"fill_color");
  shade.setAlpha(footer.number(u"fill_alpha"));
  painter.fillRect(layout().rect(u"footer"), shade);
  if (title_->text().hasFocus() && testAttribute(Qt::WA_KeyboardFocusChange)) {
    painter.setPen(panel.colour(u"border_color"));
    painter.drawRect(title_->text().geometry().adjusted(-2, -2, 1, 1));
  }
}

}  // namespace kv
