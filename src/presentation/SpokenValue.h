// A label that shows a value bare, because its heading stands beside it: to who does not see them side by
// side, its name says both.
#pragma once

#include <QLabel>
#include <QString>

namespace kv {

/// Shows `value`; the label's name becomes "heading: value", or "heading: spoken" where the value is short
/// for something.
inline void ShowValue(QLabel& label, QStringView heading, const QString& value, const QString& spoken = {}) {
  label.setText(value);
  label.setAccessibleName(heading.toString() + QStringLiteral(": ") + (spoken.isEmpty() ? value : spoken));
}

}  // namespace kv
