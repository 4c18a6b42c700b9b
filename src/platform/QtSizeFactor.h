// The factor by which everything that Qt draws is larger than its layout says: windows, boxes, texts,
// pictures, positions of the pointer. The one place of it; nothing else multiplies a length by it.
#pragma once

#include <QHash>
#include <QObject>
#include <QRect>
#include <QString>

#include "platform/QtShrunken.h"

class QScreen;

namespace kv {

class QtSizeFactor final : public QObject {
 public:
  /// Once the application exists. What the desktop itself asks for (a dense screen) is kept and multiplied.
  QtSizeFactor();

  /// Whether the factor can be changed at all: it needs what only Qt's own headers declare.
  [[nodiscard]] static bool Changeable();
  /// From now on, on every screen of the desktop; 0.25 to 8. Windows that stand keep their size in layout
  /// pixels, and must be moved and resized by who owns them.
  void Set(double factor);
  [[nodiscard]] double factor() const { return factor_; }
  /// The part of a screen that windows may fill, or all of it, in the pixels of a layout at factor 1.
  [[nodiscard]] QSizeF WorkArea(const QScreen& screen) const;
  [[nodiscard]] QSizeF WholeArea(const QScreen& screen) const;

 private:
  void Apply(QScreen& screen);

  QHash<QString, double> desktop_;  // what the desktop asks for, by the name of the screen
  double factor_ = 1;
  QtShrunken shrunken_;
};

}  // namespace kv
