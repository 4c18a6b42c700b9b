// The ground of the options screen's frames: framed panels with their headings, as the layout lists them.
#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <QWidget>
#include <vector>

#include "presentation/Layout.h"

class QPainter;

namespace kv {

/// One framed panel; without a heading it has no line below one either.
struct Panel {
  QRect rect;
  QColor fill;
  QColor border;
  QString heading{};
  QFont font{};
  QColor color{};
};

/// What the layout says of a panel: "rect", "fill_color", "border_color", "caption", "font" and "color".
[[nodiscard]] Panel PanelOf(const Layout& layout, QStringView control);
void PaintPanel(QPainter& painter, const Panel& panel);

class frmOptionsFrame final : public QWidget {
 public:
  frmOptionsFrame(QWidget* parent, Layout& layout, QStringView control);

  void AddPanel(const Panel& panel) { panels_.push_back(panel); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::vector<Panel> panels_;
};

}  // namespace kv
