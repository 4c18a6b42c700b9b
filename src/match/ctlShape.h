// A small painted ornament of the match screen. It shows and never reacts: the pointer goes through it.
#pragma once

#include <QColor>
#include <QWidget>

namespace kv {

class ctlShape final : public QWidget {
 public:
  enum class Kind {
    Marker,  // a won set
    Footer,  // the line under a row of flip buttons
    Frame,   // around a portrait; drawn outside of it, on all four sides
    Shutter  // closes the place of a portrait that is hidden, so that no lit frame stands empty
  };
  ctlShape(QWidget* parent, Kind kind, const QColor& color);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Kind kind_;
  QColor color_;
};

/// Width of the frame around a portrait, in layout pixels.
inline constexpr int kFrameWidth = 3;

}  // namespace kv
