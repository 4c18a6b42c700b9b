// The stored properties of one control: keys compared without regard to case, a default for every key that is
// absent or of another kind. It never fails.
#pragma once

#include <QColor>
#include <QFont>
#include <QJsonObject>
#include <QString>

namespace kv {

class PropertyBag {
 public:
  PropertyBag() = default;
  explicit PropertyBag(QJsonObject object) : object_(std::move(object)) {}

  [[nodiscard]] bool has(QStringView key) const;
  [[nodiscard]] QString text(QStringView key, const QString& def = {}) const;
  [[nodiscard]] int number(QStringView key, int def = 0) const;
  [[nodiscard]] bool flag(QStringView key, bool def = false) const;
  /// [red, green, blue], each 0 to 255.
  [[nodiscard]] QColor colour(QStringView key, const QColor& def = {}) const;
  /// {"family", "size" in points, "bold"}: what is left out is taken from `def`. See FontOf.
  [[nodiscard]] QFont font(QStringView key, const QFont& def = {}) const;

 private:
  [[nodiscard]] QJsonValue Find(QStringView key) const;

  QJsonObject object_;
};

/// The typeface that the layouts call `family`, at the toolkit's size.
[[nodiscard]] QFont FontOf(const QString& family);

/// The font of the layouts' sizes: points of 96 to the inch, so that a layout looks the same on every
/// display.
[[nodiscard]] QFont FontOf(const QString& family, double points, bool bold);

}  // namespace kv
