#include "campaign/ctlWager.h"

#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>

#include "platform/Pressable.h"
#include "platform/QtKeys.h"
#include "platform/QtText.h"
#include "presentation/PanelPainter.h"
#include "presentation/WidgetSkin.h"

namespace kv {
namespace {

// Longer than any amount: a pasted text is judged as a whole and never cut into a valid one.
constexpr int kLongestText = 400;
constexpr QColor kStandsOut(255, 90, 90);

}  // namespace

/// A label that fills the amount when it is clicked.
class ctlWager::Fill final : public QLabel, public Pressable {
 public:
  Fill(QWidget* parent, std::function<void()> fill) : QLabel(parent), fill_(std::move(fill)) {}

  [[nodiscard]] bool pressable() const override { return true; }
  void DoPress() override { fill_(); }

 private:
  std::function<void()> fill_;
};

ctlWager::ctlWager(QWidget* parent, Layout& layout, ButtonContext& context, WagerEntry& entry)
    : QWidget(parent), context_(context), entry_(entry) {
  setMouseTracking(true);
  lblPrompt_ = new QLabel(this);
  lblCredits_ = NewFill([this] {
    if (CreditsClick) CreditsClick();
  });
  lblWagerInfo_ = NewFill([this] {
    if (WagerInfoClick) WagerInfoClick();
  });
  txtWager_ = new QLineEdit(this);
  txtWager_->setMaxLength(kLongestText);
  txtWager_->setAlignment(Qt::AlignCenter);
  txtWager_->installEventFilter(this);
  connect(txtWager_, &QLineEdit::textChanged, this, [this] { TextChanged(); });
  cmdWager_ = NewButton([this] {
    if (WagerClick) WagerClick();
  });
  cmdEnd_ = NewButton([this] {
    if (EndClick) EndClick();
  });
  TakeLayout(layout);
  txtWager_->selectAll();  // a digit takes the place of the stake that is proposed
}

void ctlWager::TakeLayout(Layout& layout) {
  look_ = layout.bag(u"ctlWager");
  style_ = look_.text(u"style", style_);
  drgWTitlebar_ = layout.rect(u"drgWTitlebar");
  highest_ = layout.rect(u"ctlTitlebar").height();
  layout.Place(u"ctlWager", *this);
  layout.Dress(u"lblPrompt", *lblPrompt_);
  setAccessibleName(lblPrompt_->text());
  layout.Dress(u"lblWagerCredits", *lblCredits_);
  layout.Dress(u"lblWagerInfo", *lblWagerInfo_);
  for (QLabel* label : {lblCredits_, lblWagerInfo_}) {
    label->setAttribute(Qt::WA_TransparentForMouseEvents, false);
  }
  SkinWidget(*txtWager_, layout.bag(u"txtWager"));
  layout.Place(u"txtWager", *txtWager_);
  const std::pair<QStringView, ctlButton*> buttons[] = {{u"cmdWager", cmdWager_}, {u"cmdEnd", cmdEnd_}};
  for (const auto& [control, button] : buttons) {
    button->ReadProperties(layout.bag(control));
    layout.Place(control, *button);
  }
  Refresh();
}

void ctlWager::setStyle(const QString& style) {
  if (style == style_ || (style != QLatin1String("Slate") && style != QLatin1String("Ember"))) return;
  Layout layout("frmCards", style.toStdString());
  TakeLayout(layout);
  update();
}

ctlButton* ctlWager::NewButton(const std::function<void()>& click) {
  auto* button = new ctlButton(this, context_);
  button->Click = click;
  return button;
}

ctlWager::Fill* ctlWager::NewFill(const std::function<void()>& fill) {
  auto* label = new Fill(this, fill);
  label->setFocusPolicy(Qt::TabFocus);
  label->setCursor(Qt::PointingHandCursor);
  label->installEventFilter(this);
  return label;
}

QLabel& ctlWager::getlblCredits() {
  return *lblCredits_;
}

QLabel& ctlWager::getlblWagerInfo() {
  return *lblWagerInfo_;
}

void ctlWager::Refresh() {
  {
    const QSignalBlocker quiet(txtWager_);
    const QString text = QString::fromStdString(entry_.text());
    if (txtWager_->text() != text) txtWager_->setText(text);
  }
  txtWager_->setEnabled(entry_.boxEnabled());
  lblCredits_->setEnabled(entry_.boxEnabled());
  lblWagerInfo_->setEnabled(entry_.boxEnabled());
  lblCredits_->setText(QString::fromStdString(entry_.CreditsText()));
  const std::string info = entry_.InfoText();
  lblWagerInfo_->setText(QString::fromStdString(info));
  lblWagerInfo_->setVisible(!info.empty());
  for (Fill* label : {lblCredits_, lblWagerInfo_}) {
    label->setAccessibleName(label->text() + QStringLiteral(" (fills the amount)"));
  }
  QFont font = lblCredits_->font();
  font.setBold(entry_.InfoStandsOut());
  lblWagerInfo_->setFont(font);
  QPalette palette = lblCredits_->palette();
  if (entry_.InfoStandsOut()) palette.setColor(QPalette::WindowText, kStandsOut);
  lblWagerInfo_->setPalette(palette);
  const std::string_view caption = CaptionText(entry_.caption());
  cmdWager_->setCaption(ToQString(caption));
  cmdWager_->setEnabled(entry_.buttonEnabled());
  cmdWager_->setToolTip(ToQString(entry_.ButtonTip()));
  cmdEnd_->setToolTip(ToQString(entry_.EndTip()));
  lblCredits_->setToolTip(QStringLiteral("A click fills in the most that you can play for."));
  lblWagerInfo_->setToolTip(ToQString(entry_.InfoTip()));
}

void ctlWager::TextChanged() {
  ShowBox(entry_.Change(txtWager_->text().toStdString(), txtWager_->cursorPosition()));
}

void ctlWager::ShowBox(const BoxText& box) {
  Refresh();
  txtWager_->setCursorPosition(box.cursor);
}

void ctlWager::ShowFilled(const BoxText& box) {
  ShowBox(box);
  txtWager_->setFocus();
}

bool ctlWager::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  const bool key = type == QEvent::KeyPress;
  const int code = key ? static_cast<QKeyEvent*>(event)->key() : 0;
  if (watched == txtWager_) {
    if (!key || !IsEnter(code)) return false;
    // Taken here, so that the same key does not press a button of the screen behind as well.
    if (!static_cast<QKeyEvent*>(event)->isAutoRepeat()) cmdWager_->click();
    return true;
  }
  if (type == QEvent::FocusIn || type == QEvent::FocusOut || type == QEvent::Enter || type == QEvent::Leave) {
    update();  // the frame around what can be clicked
  }
  const bool pressed = type == QEvent::MouseButtonPress || IsEnter(code) || code == Qt::Key_Space;
  if (!pressed || !entry_.boxEnabled()) return key && pressed;
  (watched == lblCredits_ ? lblCredits_ : lblWagerInfo_)->DoPress();
  return true;
}

void ctlWager::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintPanel(painter, rect(), look_);
  PanelDrag::Paint(painter, drgWTitlebar_, look_.colour(u"border_color", Qt::gray));
  for (const QLabel* label : {lblCredits_, lblWagerInfo_}) {
    if (!label->isVisible() || !label->isEnabled()) continue;
    if (label->hasFocus() || label->underMouse()) painter.drawRect(label->geometry().adjusted(0, 0, -1, -1));
  }
}

void ctlWager::mousePressEvent(QMouseEvent* event) {
  if (drgWTitlebar_.contains(event->position().toPoint())) drag_.Press(*event);
}

void ctlWager::mouseMoveEvent(QMouseEvent* event) {
  context_.unColor();
  drag_.Move(*this, *event, highest_);
}

void ctlWager::mouseReleaseEvent(QMouseEvent*) {
  drag_.Release();
}

}  // namespace kv
