// A check box or option button as the layout of a screen describes it.
#pragma once

#include <QStringView>
#include <QWidget>

#include "presentation/Layout.h"
#include "presentation/WidgetSkin.h"

namespace kv {

/// With its caption, tooltip and skin, placed; owned by `frame`.
template <typename Box>
Box* NewBox(QStringView control, QWidget& frame, Layout& layout) {
  const PropertyBag bag = layout.bag(control);
  auto* box = new Box(bag.text(u"caption"), &frame);
  box->setToolTip(bag.text(u"tooltip"));
  SkinWidget(*box, bag);
  layout.Place(control, *box);
  return box;
}

}  // namespace kv
