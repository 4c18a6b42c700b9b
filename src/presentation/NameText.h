// A name on a plate: names are chosen by people, plates are made once. It never cuts a name at both ends, and
// never hides that one is cut.
#pragma once

#include <QLabel>
#include <QString>

#include "platform/QtPropertyBag.h"

namespace kv {

/// Shows the name in one line of the label, which has its place already: in the font of `look`; if that is
/// too wide for it, in a smaller one; and if even that is, cut at its end, with the whole name as tooltip.
void ShowName(QLabel& label, const PropertyBag& look, const QString& name);

}  // namespace kv
