#include "screens/frmOptionsSize.h"

#include <QCheckBox>
#include <QLabel>

#include "presentation/ctlButton.h"
#include "profile/Settings.h"
#include "screens/SkinnedBox.h"

namespace kv {

frmOptionsSize::frmOptionsSize(QWidget& frame, Layout& layout, ButtonContext& buttons, WindowSize& size,
                               std::function<void()> clicked)
    : size_(size) {
  layout.NewLabel(u"lblSize", &frame);
  cmdSmaller_ = NewStep(u"cmdSmaller", -1, frame, layout, buttons);
  lblSizeValue_ = layout.NewLabel(u"lblSizeValue", &frame);
  cmdLarger_ = NewStep(u"cmdLarger", 1, frame, layout, buttons);
  chkFit_ = NewBox<QCheckBox>(u"chkFit", frame, layout);
  chkFullScreen_ = NewBox<QCheckBox>(u"chkFullScreen", frame, layout);
  QObject::connect(chkFit_, &QCheckBox::clicked, &frame, [this, clicked](bool on) {
    clicked();
    size_.setFits(on);
  });
  QObject::connect(chkFullScreen_, &QCheckBox::clicked, &frame, [this, clicked](bool on) {
    clicked();
    size_.setFullScreen(on);
  });
  Refresh();
}

ctlButton* frmOptionsSize::NewStep(QStringView control, int direction, QWidget& frame, Layout& layout,
                                   ButtonContext& buttons) {
  auto* button = new ctlButton(&frame, buttons);
  button->ReadProperties(layout.bag(control));
  layout.Place(control, *button);
  button->Click = [this, direction] { size_.StepSize(direction); };
  return button;
}

void frmOptionsSize::Refresh() {
  const int percent = size_.ShownPercent();
  lblSizeValue_->setText(QStringLiteral("%1 %").arg(percent));
  lblSizeValue_->setAccessibleName(QStringLiteral("Size: %1 percent").arg(percent));
  cmdSmaller_->setEnabled(percent > kLeastSize);
  cmdLarger_->setEnabled(percent < kMostSize);
  chkFit_->setChecked(size_.fits());
  chkFullScreen_->setChecked(size_.fullScreen());
}

}  // namespace kv
