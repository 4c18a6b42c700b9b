#include "campaign/ctlOpponent.h"

#include <QPainter>

#include "presentation/PanelPainter.h"
#include "presentation/SpokenValue.h"

namespace kv {
namespace {

constexpr std::int16_t kNewTilePortrait = 7;
constexpr std::int16_t kNoWinsShown = -1;
// The normal colours; a layout may give warmer ones.
constexpr QColor kFrame(128, 128, 255);
constexpr QColor kName(255, 255, 255);
constexpr QColor kHeading(128, 128, 255);
constexpr QColor kValue(0, 169, 251);
constexpr QColor kGrey(128, 128, 128);
constexpr double kDisabledPicture = 0.35;  // opacity

}  // namespace

ctlOpponent::ctlOpponent(QWidget* parent, Layout& layout, PortraitSource portraits)
    : QWidget(parent),
      portraits_(std::move(portraits)),
      look_(layout.bag(u"ctlOpponent")),
      pictureArea_(layout.rect(u"ctlOpponent.imgOppPic")),
      lblOppName_(NewPart(layout, u"lblOppName")),
      lblMinWager_(NewPart(layout, u"lblMinWager")),
      lblMaxWager_(NewPart(layout, u"lblMaxWager")),
      lblWinsAgainst_(NewPart(layout, u"lblWinsAgainst")),
      lblMin_(NewPart(layout, u"lblMin")),
      lblMax_(NewPart(layout, u"lblMax")),
      lblWins_(NewPart(layout, u"lblWins")),
      lblNote_(NewPart(layout, u"lblNote")) {
  setFixedSize(layout.rect(u"ctlOpponent").size());
  setAttribute(Qt::WA_TransparentForMouseEvents);
  ReadProperties(PropertyBag());
  setNote({});
}

QLabel* ctlOpponent::NewPart(Layout& layout, QStringView label) {
  // Some of the screen's own labels bear the same names.
  QLabel* part = layout.NewLabel(QStringLiteral("ctlOpponent.") + label.toString(), this);
  part->setObjectName(label.toString());
  return part;
}

void ctlOpponent::ReadProperties(const PropertyBag& bag) {
  setEnabled(bag.flag(u"enabled", true));
  setMaxWager(bag.number(u"maxwager"));
  setMinWager(bag.number(u"minwager"));
  setOppName(bag.text(u"oppname", QStringLiteral("OppName")));
  setOppPic(static_cast<std::int16_t>(bag.number(u"opppic", kNewTilePortrait)));
  setWins(static_cast<std::int16_t>(bag.number(u"wins")));
}

void ctlOpponent::setEnabled(bool enabled) {
  enabled_ = enabled;
  unColor();
  if (enabled) return;
  for (QLabel* label :
       {lblOppName_, lblMinWager_, lblMaxWager_, lblWinsAgainst_, lblMin_, lblMax_, lblWins_, lblNote_}) {
    Paint(*label, kGrey);
  }
  outerFrame_ = kGrey;
}

void ctlOpponent::setMaxWager(std::int32_t credits) {
  ShowValue(*lblMax_, u"Max Wager", QString::number(credits));
}

void ctlOpponent::setMinWager(std::int32_t credits) {
  ShowValue(*lblMin_, u"Min Wager", QString::number(credits));
}

void ctlOpponent::setOppName(const QString& name) {
  ShowValue(*lblOppName_, u"Opponent", name);
  setAccessibleName(name);
}

void ctlOpponent::setNote(const QString& note) {
  lblNote_->setText(note);
  lblNote_->setVisible(!note.isEmpty());
}

void ctlOpponent::setOppPic(std::int16_t number) {
  oppPic_ = number;
  picture_ = portraits_(number);
  update();
}

void ctlOpponent::setWins(std::int16_t wins) {
  wins_ = wins;
  ShowValue(*lblWins_, u"Wins Against", QString::number(wins));
  lblWins_->setVisible(wins != kNoWinsShown);
  lblWinsAgainst_->setVisible(wins != kNoWinsShown);
}

void ctlOpponent::Paint(QLabel& label, const QColor& color) {
  QPalette palette = label.palette();
  if (palette.color(QPalette::WindowText) == color) return;
  palette.setColor(QPalette::WindowText, color);
  label.setPalette(palette);
}

void ctlOpponent::Color(const QColor& color) {
  if (outerFrame_ == color && innerFrame_ == color) return;
  outerFrame_ = color;
  innerFrame_ = color;
  update();
}

void ctlOpponent::unColor() {
  Paint(*lblOppName_, look_.colour(u"name_color", kName));
  const QColor heading = look_.colour(u"heading_color", kHeading);
  for (QLabel* label : {lblMinWager_, lblMaxWager_, lblWinsAgainst_}) Paint(*label, heading);
  const QColor value = look_.colour(u"value_color", kValue);
  for (QLabel* label : {lblMin_, lblMax_, lblWins_}) Paint(*label, value);
  outerFrame_ = look_.colour(u"frame_color", kFrame);
  innerFrame_ = look_.colour(u"picture_frame", kGrey);
  update();
}

QString ctlOpponent::Description() const {
  QString text = OppName() + QStringLiteral(", stake ") + lblMin_->text();
  if (MinWager() != MaxWager()) text += QStringLiteral(" to ") + lblMax_->text();
  if (wins_ != kNoWinsShown) {
    text += QStringLiteral(", %1 %2").arg(wins_).arg(wins_ == 1 ? u"win" : u"wins");
  }
  return Note().isEmpty() ? text : text + QStringLiteral(", ") + Note();
}

void ctlOpponent::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintPanel(painter, rect(), look_);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  const int corners = look_.number(u"corners");
  painter.setPen(QPen(outerFrame_, 2));
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), corners, corners);
  if (!picture_.empty()) {
    painter.setOpacity(enabled_ ? 1 : kDisabledPicture);
    painter.drawImage(pictureArea_, *picture_.image());
    painter.setOpacity(1);
  }
  painter.setPen(innerFrame_);
  painter.drawRect(QRectF(pictureArea_).adjusted(-0.5, -0.5, 0.5, 0.5));
}

}  // namespace kv
