#include "screens/frmSplash.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>

#include "presentation/PanelPainter.h"
#include "presentation/TitleButton.h"
#include "presentation/WidgetSkin.h"
#include "screens/NameValidator.h"
#include "screens/PinBox.h"
#include "screens/TextLink.h"
#include "screens/frmSplashTitle.h"
#include "screens/modShowPIN.h"

namespace kv {
namespace {

constexpr int kNameLength = 20;         // characters of a player name and of a file name
constexpr int kLoadWatchInterval = 10;  // milliseconds
constexpr const char* kAddress = "http://kelm-vantri.example";

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
  ShowView(View::List);
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
  title_->MouseMove = [this] { PlainHighlights(); };
}

void frmSplash::BuildList() {
  lblPlayerHeader_ = layout().NewLabel(u"lblPlayerHeader", this);
  lstPlayers_ = new QListWidget(this);
  lstPlayers_->setUniformItemSizes(true);
  lstPlayers_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  SkinWidget(*lstPlayers_, layout().bag(u"lstPlayers"));
  layout().Place(u"lstPlayers", *lstPlayers_);
  connect(lstPlayers_, &QListWidget::currentRowChanged, this, [this] { PlayerSelected(); });
  // Also a click on the entry that is current already: it stays selected, and the PIN is typed anew.
  connect(lstPlayers_, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
    item->setSelected(true);
    PlayerSelected();
  });
  lblPINtitle_ = layout().NewLabel(u"lblPINtitle", this);
  txtPIN_ = NewPinBox(u"txtPIN");
  cmdContinue_ = NewButton(u"cmdContinue", [this] { Continue(); });
  cmdCreate_ = NewButton(u"cmdCreate", [this] { Create(); });
}

void frmSplash::BuildCreation() {
  lblHeader_ = layout().NewLabel(u"lblHeader", this);
  txtPlayer_ = NewBox(u"txtPlayer");
  txtPlayer_->setValidator(new NameValidator(txtPlayer_));
  connect(txtPlayer_, &QLineEdit::textChanged, this, [this] { CheckPlayerName(); });
  cmdNewName_ = NewButton(u"cmdNewName", [this] { NewName(); });
  txtName_ = NewBox(u"txtName");
  connect(txtName_, &QLineEdit::textChanged, this, [this] { CheckFileName(); });
  connect(txtName_, &QLineEdit::editingFinished, this, [this] { TrimFileName(); });
  lblNewPIN_ = layout().NewLabel(u"lblNewPIN", this);
  txtNewPIN_ = NewPinBox(u"txtNewPIN");
  lblPINReveal_ = NewLink(u"lblPINReveal");
  connect(lblPINReveal_, &QAbstractButton::clicked, this,
          [this] { RevealPIN(*txtNewPIN_, services().scheduler, lifetime()); });
  cmdNewFile_ = NewButton(u"cmdNewFile", [this] { NewFile(); });
  lblCreateInfo_ = layout().NewLabel(u"lblCreateInfo", this);
  lblCreateInfo_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void frmSplash::BuildFrame() {
  layout().NewLabel(u"lblVersion", this);
  connect(NewLink(u"lblURL"), &QAbstractButton::clicked, this, [this] { splash_.openAddress(kAddress); });
  TitleButton* mini = NewTitleButton(u"cmdMini", TitleButton::Sign::Minimise);
  connect(mini, &QAbstractButton::clicked, this, [this] { showMinimized(); });
  TitleButton* quit = NewTitleButton(u"cmdQuit", TitleButton::Sign::Close);
  connect(quit, &QAbstractButton::clicked, this, [this] { LeaveProgram(); });
}

QLineEdit* frmSplash::NewBox(QStringView control) {
  auto* box = new QLineEdit(this);
  box->setMaxLength(kNameLength);
  Dress(control, *box);
  return box;
}

PinBox* frmSplash::NewPinBox(QStringView control) {
  auto* box = new PinBox(this);
  Dress(control, *box);
  return box;
}

void frmSplash::Dress(QStringView control, QLineEdit& box) {
  const PropertyBag bag = layout().bag(control);
  SkinWidget(box, bag);
  box.setToolTip(bag.text(u"tooltip"));
  layout().Place(control, box);
}

TextLink* frmSplash::NewLink(QStringView control) {
  auto* link = new TextLink(this, layout().bag(control));
  layout().Place(control, *link);
  return link;
}

TitleButton* frmSplash::NewTitleButton(QStringView control, TitleButton::Sign sign) {
  auto* button = new TitleButton(this, sign);
  const PropertyBag bag = layout().bag(control);
  const QColor idle = bag.colour(u"color");
  const QColor hot = bag.colour(u"hover_color", idle.lighter(180));
  button->setColor(idle);
  button->setFocusPolicy(Qt::TabFocus);
  button->Moved = [this, button, idle, hot] {
    if (button->Color() != idle) return;
    button->setColor(hot);
    services().buttons.PlayHover();
  };
  button->Pressed = [button, pressed = bag.colour(u"pressed_color", Qt::white)] {
    button->setColor(pressed);
  };
  button->Released = [button, idle] { button->setColor(idle); };
  button->Left = button->Released;
  layout().Place(control, *button);
  return button;
}

void frmSplash::ShowView(View view) {
  view_ = view;
  const bool list = view == View::List;
  for (QWidget* part : std::initializer_list<QWidget*>{lblPlayerHeader_, lstPlayers_, lblPINtitle_, txtPIN_,
                                                       cmdContinue_, cmdCreate_}) {
    part->setVisible(list);
  }
  for (QWidget* part : std::initializer_list<QWidget*>{lblHeader_, lblCreateInfo_}) part->setVisible(!list);
  for (QWidget* part : std::initializer_list<QWidget*>{txtPlayer_, cmdNewName_}) {
    part->setVisible(view == View::PlayerName);
  }
  for (QWidget* part :
       std::initializer_list<QWidget*>{txtName_, lblNewPIN_, txtNewPIN_, lblPINReveal_, cmdNewFile_}) {
    part->setVisible(view == View::FileName);
  }
}

void frmSplash::Activate() {
  RefreshPlayerList();
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

void frmSplash::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (!event->isAutoRepeat()) cmdNew2();
      return;
    case Qt::Key_Escape:
      // The way back for someone who changed their mind; in the list there is nothing to go back to.
      if (view_ != View::List) BackToList();
      return;
    case Qt::Key_Up:
    case Qt::Key_Down:
      // So that a player can be picked while the hands are at the PIN box.
      if (view_ == View::List) MoveSelection(event->key() == Qt::Key_Up ? -1 : 1);
      return;
    default:
      Screen::keyPressEvent(event);
  }
}

void frmSplash::mousePressEvent(QMouseEvent* event) {
  drag_.Press(*this, *event);
}

void frmSplash::mouseMoveEvent(QMouseEvent* event) {
  drag_.Move(*this, *event);
  Screen::mouseMoveEvent(event);
}

void frmSplash::mouseReleaseEvent(QMouseEvent*) {
  drag_.Release();
}

void frmSplash::paintEvent(QPaintEvent* event) {
  Screen::paintEvent(event);
  QPainter painter(this);
  const PropertyBag panel = layout().bag(u"panel");
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
