// The toolkit's style on a desktop on which nothing is to move: every animation takes no time. Whoever moves
// something asks the style how long that may take.
#pragma once

#include <QProxyStyle>

namespace kv {

class QtStillStyle final : public QProxyStyle {
 public:
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    return hint == SH_Widget_Animation_Duration ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
  }
};

}  // namespace kv
