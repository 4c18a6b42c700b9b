#include "presentation/ctlTitlebar.h"

#include <QLabel>
#include <QPainter>
#include <QPainterPath>

#include "presentation/RoundWindow.h"
#include "presentation/TitleButton.h"
#include "presentation/TitleDrag.h"
#include "profile/clsPlayer.h"

namespace kv {
namespace {

constexpr QRgb kQuitIdle = qRgb(128, 0, 0);
constexpr QRgb kQuitHot = qRgb(255, 0, 0);
constexpr QRgb kQuitPressed = qRgb(255, 255, 255);
constexpr QRgb kDefaultBorder = qRgb(0, 169, 251);

// Layout pixels. The buttons keep clear of the window's rounded corner.
constexpr int kButtonSize = 14;
constexpr int kRightMargin = 16;
constexpr int kGap = 6;
constexpr double kCornerRadius = kScreenCorners / 2.0;

// The outline of the bar: its upper corners follow those of the window.
QPainterPath Outline(const QRectF& r, double radius) {
  QPainterPath path(r.bottomLeft());
  path.lineTo(r.left(), r.top() + radius);
  path.arcTo(r.left(), r.top(), 2 * radius, 2 * radius, 180, -90);
  path.arcTo(r.right() - 2 * radius, r.top(), 2 * radius, 2 * radius, 90, -90);
  path.lineTo(r.bottomRight());
  path.closeSubpath();
  return path;
}

}  // namespace

ctlTitlebar::ctlTitlebar(QWidget* parent, ButtonContext& context)
    : QWidget(parent),
      context_(context),
      lblTitlebar_(new QLabel(this)),
      drgTitlebar_(new TitleDrag(this)),
      quit_(new TitleButton(this, TitleButton::Sign::Close)),
      mini_(new TitleButton(this, TitleButton::Sign::Minimise)),
      help_(new TitleButton(this, TitleButton::Sign::Help)) {
  lblTitlebar_->setObjectName(QStringLiteral("lblTitlebar"));
  lblTitlebar_->setTextFormat(Qt::PlainText);
  lblTitlebar_->setAlignment(Qt::AlignCenter);
  drgTitlebar_->setObjectName(QStringLiteral("drgTitlebar"));
  quit_->setObjectName(QStringLiteral("cmdQuit"));
  quit_->setAccessibleName(QStringLiteral("Close"));
  mini_->setObjectName(QStringLiteral("cmdMini"));
  mini_->setAccessibleName(QStringLiteral("Minimize"));
  help_->setObjectName(QStringLiteral("cmdHelp"));
  help_->setAccessibleName(QStringLiteral("The rules"));
  help_->setToolTip(QStringLiteral("The rules (F1)"));
  quit_->setColor(kQuitIdle);
  setBorder_Color(kDefaultBorder);
  ConnectParts();
}

void ctlTitlebar::ConnectParts() {
  drgTitlebar_->Moved = [this] { PointerMoved(); };
  quit_->Moved = [this] {
    if (QuitColor() != QColor(kQuitIdle)) return;
    quit_->setColor(kQuitHot);
    context_.PlayHover();
  };
  quit_->Pressed = [this] { quit_->setColor(kQuitPressed); };
  quit_->Released = [this] { unColorQuit(); };
  quit_->Left = [this] {
    if (QuitColor() == QColor(kQuitHot)) unColorQuit();
  };
  connect(quit_, &QAbstractButton::clicked, this, [this] {
    if (const std::function<void()> handler = Quit) handler();
  });
  mini_->Moved = [this] { PointerMoved(); };
  help_->Moved = [this] { PointerMoved(); };
  connect(help_, &QAbstractButton::clicked, this, [this] {
    if (const std::function<void()> handler = Help) handler();
  });
  connect(mini_, &QAbstractButton::clicked, this,
          [this] { window()->setWindowState(window()->windowState() | Qt::WindowMinimized); });
}

void ctlTitlebar::unColorQuit() {
  if (QuitColor() != QColor(kQuitIdle)) quit_->setColor(kQuitIdle);
}

void ctlTitlebar::setCaption(const QString& caption) {
  lblTitlebar_->setText(caption);
  setAccessibleName(caption);
}

QString ctlTitlebar::Caption() const {
  return lblTitlebar_->text();
}

void ctlTitlebar::setBorder_Color(const QColor& color) {
  borderColor_ = color;
  mini_->setColor(color);
  help_->setColor(color);
  QPalette palette = lblTitlebar_->palette();
  palette.setColor(QPalette::WindowText, color.lighter(210));
  lblTitlebar_->setPalette(palette);
  update();
}

void ctlTitlebar::ReadProperties(const PropertyBag& bag) {
  setFont(bag.font(u"font", font()));
  setCaption(bag.text(u"caption"));
  setEnabled(bag.flag(u"enabled", true));
  setBorder_Color(bag.colour(u"border_color", borderColor_));
  miniInLayout_ = bag.flag(u"minimize", true);
  Relayout();
}

void ctlTitlebar::Relayout() {
  lblTitlebar_->setGeometry(rect());
  drgTitlebar_->setGeometry(rect());
  const int top = (height() - kButtonSize) / 2;
  quit_->setGeometry(width() - kRightMargin - kButtonSize, top, kButtonSize, kButtonSize);
  mini_->setGeometry(quit_->x() - kGap - kButtonSize, top, kButtonSize, kButtonSize);
  const clsPlayer* player = context_.player();
  const bool minimizes = player == nullptr ? miniInLayout_ : player->ShowMinimize_Opt;
  mini_->setVisible(minimizes);
  help_->setGeometry((minimizes ? mini_ : quit_)->x() - kGap - kButtonSize, top, kButtonSize, kButtonSize);
  help_->setVisible(static_cast<bool>(Help));
  update();
}

void ctlTitlebar::setButtonFocus(Qt::FocusPolicy policy) {
  quit_->setFocusPolicy(policy);
  mini_->setFocusPolicy(policy);
  help_->setFocusPolicy(policy);
}

QWidget& ctlTitlebar::drgTitlebar() const {
  return *drgTitlebar_;
}

QAbstractButton& ctlTitlebar::cmdQuit() const {
  return *quit_;
}

QAbstractButton& ctlTitlebar::cmdMini() const {
  return *mini_;
}

QAbstractButton& ctlTitlebar::cmdHelp() const {
  return *help_;
}

QColor ctlTitlebar::QuitColor() const {
  return quit_->Color();
}

void ctlTitlebar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF bar = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  QLinearGradient light(bar.topLeft(), bar.bottomLeft());
  light.setColorAt(0, borderColor_.darker(280));
  light.setColorAt(0.55, borderColor_.darker(700));
  light.setColorAt(1, QColor(6, 8, 12));
  painter.setPen(QPen(borderColor_, 1));
  painter.setBrush(light);
  painter.drawPath(Outline(bar, kCornerRadius));
  painter.setBrush(Qt::NoBrush);
  QColor inner = borderColor_;
  inner.setAlpha(90);
  painter.setPen(QPen(inner, 1));
  painter.drawPath(Outline(bar.adjusted(2, 2, -2, -2), kCornerRadius - 2));
}

void ctlTitlebar::resizeEvent(QResizeEvent*) {
  Relayout();
}

// The player may have been loaded, or changed the option, since the last time.
void ctlTitlebar::showEvent(QShowEvent*) {
  Relayout();
}

void ctlTitlebar::PointerMoved() {
  unColorQuit();
  if (MouseMove) MouseMove();
}

}  // namespace kv
