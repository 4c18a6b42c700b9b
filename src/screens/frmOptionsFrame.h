// The ground of the options screen's frames: framed panels with their headings, as the layout lists them.
#pragma once

#include <QColor>
#include <QWidget>
#include <vector>

#include "presentation/Layout.h"

class QPainter;

namespace kv {

/// What the layout says of a panel: "rect", "fill" with "fill_strength" (0 to 255), "border", and whether it
/// has a heading, that is a "caption".
struct Panel {
  QRect rect;
  QColor fill;
  QColor border;
  bool headed = false;
};

[[nodiscard]] Panel PanelOf(const Layout& layout, QStringView control);
void PaintPanel(QPainter& painter, const Panel& panel);

class frmOptionsFrame final : public QWidget {
 public:
  /// Placed by the layout; the panels' places are relative to it.
  frmOptionsFrame(QWidget* parent, Layout& layout, QStringView control);

  /// A panel of the layout; its heading is a label of its own.
  void AddPanel(Layout& layout, QStringView control);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::vector<Panel> panels_;
};

}  // namespace kv
