#include "screens/frmOptionsVolume.h"

#include <QLabel>

#include "presentation/WidgetSkin.h"
#include "profile/Settings.h"

namespace kv {
namespace {

constexpr int kStep = 5;        // percent: a key's step, and what a drag snaps to
constexpr int kLargeStep = 20;  // by the page keys, and by a click beside the handle

}  // namespace

frmOptionsVolume::frmOptionsVolume(QWidget& frame, Layout& layout, int percent)
    : QSlider(Qt::Horizontal, &frame),
      lblVolume_(layout.NewLabel(u"lblVolume", &frame)),
      caption_(lblVolume_->text()),
      told_(percent) {
  setRange(0, kFullVolume);
  setSingleStep(kStep);
  setPageStep(kLargeStep);
  setValue(percent);
  SkinWidget(*this, layout.bag(u"sldVolume"));
  layout.Place(u"sldVolume", *this);
  ShowVolume();
  connect(this, &QSlider::valueChanged, this, [this](int value) { Moved(value); });
}

void frmOptionsVolume::Moved(int percent) {
  if (const int step = (percent + kStep / 2) / kStep * kStep; step != percent) {
    setValue(step);  // comes back here
    return;
  }
  ShowVolume();
  if (percent == told_) return;
  told_ = percent;
  if (Changed) Changed(percent);
}

void frmOptionsVolume::ShowVolume() {
  lblVolume_->setText(QStringLiteral("%1 %2 %").arg(caption_).arg(value()));
}

}  // namespace kv
