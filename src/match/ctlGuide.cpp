#include "match/ctlGuide.h"

#include <QPainter>

#include "platform/QtText.h"
#include "presentation/PanelPainter.h"

namespace kv {
namespace {

constexpr int kYesKey = Qt::Key_F5;
constexpr int kNoKey = Qt::Key_F6;

}  // namespace

ctlGuide::ctlGuide(QWidget* parent, Layout& layout, ButtonContext& context, MatchGuide& guide,
                   Announcer& announcer)
    : QWidget(parent),
      context_(context),
      guide_(guide),
      announcer_(announcer),
      look_(layout.bag(u"ctlGuide")),
      text_(layout.NewLabel(u"lblGuide", this)),
      yes_(NewButton(layout, u"cmdGuideYes")),
      no_(NewButton(layout, u"cmdGuideNo")) {
  layout.Place(u"ctlGuide", *this);
  setMouseTracking(true);
  text_->setWordWrap(true);
  yes_->setToolTip(QStringLiteral("A hint whenever it matters, five in all. (F5)"));
  no_->setToolTip(QStringLiteral("No hints, now and later. (F6)"));
  yes_->Click = [this] { guide_.Accept(); };
  no_->Click = [this] { guide_.Decline(); };
  guide_.Changed = [this] { Show(); };
  hide();
}

ctlButton* ctlGuide::NewButton(Layout& layout, QStringView control) {
  auto* button = new ctlButton(this, context_);
  button->ReadProperties(layout.bag(control));
  layout.Place(control, *button);
  return button;
}

bool ctlGuide::Key(int key) {
  if (isHidden() || (key != kYesKey && key != kNoKey)) return false;
  ctlButton* button = key == kYesKey ? yes_ : no_;
  if (!button->isHidden()) button->click();
  return true;
}

void ctlGuide::Show() {
  const bool offers = guide_.now() == Guidance::Offer;
  const QString text = ToQString(guide_.text());
  yes_->setEnabled(true);  // whichever was clicked
  no_->setEnabled(true);
  // The focus goes back to the match, and not to a control that nobody chose.
  if (yes_->hasFocus() || no_->hasFocus()) parentWidget()->setFocus();
  yes_->setVisible(offers);
  setVisible(!text.isEmpty());
  if (text.isEmpty()) return;
  text_->setText(text);
  text_->setAccessibleName(text);
  announcer_.Announce(guide_.text() + (offers ? " F5: show me. F6: don't show." : ""), Urgency::Polite);
}

void ctlGuide::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintPanel(painter, rect(), look_);
}

void ctlGuide::mouseMoveEvent(QMouseEvent*) {
  context_.unColor();
}

}  // namespace kv
