#include "screens/frmOptionsKeys.h"

#include <QLabel>
#include <QPainter>
#include <algorithm>

#include "profile/PlayerFields.h"
#include "screens/modgetKeyName.h"

namespace kv {
namespace {

constexpr const char16_t* kPushKey = u"Push key...(esc = none)";
constexpr int kWaitingFrame = 2;  // layout pixels around the button that waits, and how far from it
constexpr int kWaitingGap = 3;
constexpr int kScrimAlpha = 190;  // what lies beneath can be told, but not mistaken for usable

constexpr QStringView kKeyLabels[] = {u"lblKeysTurn",    u"lblKeysStand",   u"lblKeysPlay",
                                      u"lblKeysFlip1",   u"lblKeysFlip2",   u"lblKeysCard(0)",
                                      u"lblKeysCard(1)", u"lblKeysCard(2)", u"lblKeysCard(3)"};

/// A key button, what it does and the entry of the key table that it edits.
struct KeyEntry {
  QStringView control;
  int row;
  int column;
};
constexpr std::array<KeyEntry, kKeyButtons> kKeyEntries = {{
    {u"cmdKeysTurn", 1, 1},
    {u"cmdKeysStand", 1, 2},
    {u"cmdKeysPlay(0)", 2, 1},
    {u"cmdKeysPlay(1)", 2, 2},
    {u"cmdKeysPlay(2)", 2, 3},
    {u"cmdKeysPlay(3)", 2, 4},
    {u"cmdKeysFlip1(0)", 3, 1},
    {u"cmdKeysFlip1(1)", 3, 2},
    {u"cmdKeysFlip1(2)", 3, 3},
    {u"cmdKeysFlip1(3)", 3, 4},
    {u"cmdKeysFlip2(0)", 4, 1},
    {u"cmdKeysFlip2(1)", 4, 2},
    {u"cmdKeysFlip2(2)", 4, 3},
    {u"cmdKeysFlip2(3)", 4, 4},
}};

}  // namespace

frmOptionsKeys::frmOptionsKeys(QWidget* parent, Layout& layout, ButtonContext& context)
    : QWidget(parent),
      panel_(PanelOf(layout, u"pnlKeys")),
      accent_(layout.bag(u"frmeKeys").colour(u"accent", Qt::white)) {
  setMouseTracking(true);
  layout.Place(u"frmeKeys", *this);
  title_ = layout.NewLabel(u"lblKeysTitle", this);
  ownTitle_ = title_->text();
  for (const QStringView label : kKeyLabels) {
    layout.NewLabel(label, this);
  }
  for (int index = 0; index < kKeyButtons; ++index) {
    KeyButton& key = keys_.at(static_cast<std::size_t>(index));
    key.button = NewButton(kKeyEntries.at(static_cast<std::size_t>(index)).control, layout, context);
    key.what = key.button->accessibleName();
    key.button->Click = [this, index] {
      if (KeyClick) KeyClick(index);
    };
  }
  lblKeysShared_ = layout.NewLabel(u"lblKeysShared", this);
  shared_ = layout.bag(u"lblKeysShared").colour(u"color");
  cmdKeysDefaults_ = NewButton(u"cmdKeysDefaults", layout, context);
  cmdKeysDefaults_->Click = [this] {
    BindDefaults();
    cmdKeysDefaults_->setEnabled(true);
    if (DefaultsClick) DefaultsClick();
  };
  cmdKeysDone_ = NewButton(u"cmdKeysDone", layout, context);
  cmdKeysDone_->Click = [this] {
    if (DoneClick) DoneClick();
  };
}

ctlButton* frmOptionsKeys::NewButton(QStringView control, Layout& layout, ButtonContext& context) {
  auto* button = new ctlButton(this, context);
  button->ReadProperties(layout.bag(control));
  layout.Place(control, *button);
  return button;
}

void frmOptionsKeys::Read(const clsCardArray& keys) {
  for (int index = 0; index < kKeyButtons; ++index) {
    const KeyEntry& entry = kKeyEntries.at(static_cast<std::size_t>(index));
    keys_.at(static_cast<std::size_t>(index)).tag = keys.Value(entry.row, entry.column);
  }
  ShowKeys();
}

void frmOptionsKeys::BindDefaults() {
  Read(*PlayerFields().Keys);
}

void frmOptionsKeys::Write(clsCardArray& keys) const {
  for (int index = 0; index < kKeyButtons; ++index) {
    const KeyEntry& entry = kKeyEntries.at(static_cast<std::size_t>(index));
    keys.setValue(entry.row, entry.column, KeyOf(index));
  }
}

void frmOptionsKeys::Bind(int index, std::int16_t keyCode) {
  keys_.at(static_cast<std::size_t>(index)).tag = keyCode;
  ShowKeys();
}

bool frmOptionsKeys::Shared(int index) const {
  const std::int16_t key = KeyOf(index);
  return key > 0 && std::ranges::count(keys_, key, &KeyButton::tag) > 1;
}

void frmOptionsKeys::ShowKeys() {
  bool any = false;
  for (int index = 0; index < kKeyButtons; ++index) {
    const KeyButton& key = keys_.at(static_cast<std::size_t>(index));
    const QString name = getKeyName(key.tag);
    const bool shared = Shared(index);
    any = any || shared;
    key.button->setCaption(name);
    key.button->setAccessibleName(key.what + QStringLiteral(": ") +
                                  (name.isEmpty() ? QStringLiteral("no key") : name) +
                                  (shared ? QStringLiteral(", also set for another action") : QString()));
    key.button->setColor_Style(key.tag <= 0 ? QStringLiteral("Ember") : QStringLiteral("Ember_Menu"));
  }
  lblKeysShared_->setVisible(any);
  update();
}

void frmOptionsKeys::BeginWaiting(int index) {
  waiting_ = keys_.at(static_cast<std::size_t>(index)).button;
  cmdKeysDone_->setEnabled(false);
  setEnabled(false);
  ShowTitle(QString::fromUtf16(kPushKey));
}

void frmOptionsKeys::EndWaiting() {
  setEnabled(true);
  cmdKeysDone_->setEnabled(true);
  ShowTitle(ownTitle_);
  if (waiting_ == nullptr) return;
  ctlButton& waited = *waiting_;
  waiting_ = nullptr;
  waited.setEnabled(true);
  waited.setFocus();
}

QString frmOptionsKeys::Title() const {
  return title_->text();
}

void frmOptionsKeys::ShowTitle(const QString& title) {
  title_->setText(title);
  title_->setAccessibleName(title);
  update();
}

void frmOptionsKeys::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), QColor(0, 0, 0, kScrimAlpha));
  PaintPanel(painter, panel_);
  const auto frame = [&painter](const QWidget& button) {
    painter.drawRect(
        QRectF(button.geometry()).adjusted(-kWaitingGap, -kWaitingGap, kWaitingGap, kWaitingGap));
  };
  painter.setPen(QPen(shared_, kWaitingFrame, Qt::DashLine));
  for (int index = 0; index < kKeyButtons; ++index) {
    if (Shared(index)) frame(cmdKey(index));
  }
  if (waiting_ == nullptr) return;
  painter.setPen(QPen(accent_, kWaitingFrame));
  frame(*waiting_);
}

}  // namespace kv
