#include "platform/QtPropertyBag.h"

#include <QJsonArray>
#include <algorithm>
#include <cmath>

namespace kv {
namespace {

constexpr double kPixelsPerPoint = 96.0 / 72.0;

}  // namespace

QFont FontOf(const QString& family) {
  // By the name that the file has: for one that it only stands in for the toolkit would sort all of the
  // system's typefaces first.
  return {QFont::substitute(family)};
}

QFont FontOf(const QString& family, double points, bool bold) {
  QFont font = FontOf(family);
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(points * kPixelsPerPoint))));
  font.setBold(bold);
  return font;
}

QJsonValue PropertyBag::Find(QStringView key) const {
  for (auto it = object_.begin(); it != object_.end(); ++it) {
    if (key.compare(it.key(), Qt::CaseInsensitive) == 0) return it.value();
  }
  return QJsonValue(QJsonValue::Undefined);
}

bool PropertyBag::has(QStringView key) const {
  return !Find(key).isUndefined();
}

QString PropertyBag::text(QStringView key, const QString& def) const {
  return Find(key).toString(def);
}

int PropertyBag::number(QStringView key, int def) const {
  return Find(key).toInt(def);
}

bool PropertyBag::flag(QStringView key, bool def) const {
  return Find(key).toBool(def);
}

QColor PropertyBag::colour(QStringView key, const QColor& def) const {
  const QJsonArray parts = Find(key).toArray();
  if (parts.size() != 3) return def;
  const QColor colour(parts[0].toInt(-1), parts[1].toInt(-1), parts[2].toInt(-1));
  return colour.isValid() ? colour : def;
}

QFont PropertyBag::font(QStringView key, const QFont& def) const {
  const QJsonValue value = Find(key);
  if (!value.isObject()) return def;
  const PropertyBag parts(value.toObject());
  QFont font = def;
  const double points = parts.Find(u"size").toDouble();
  if (points > 0) font = FontOf(def.family(), points, def.bold());
  font.setFamily(QFont::substitute(parts.text(u"family", def.family())));
  font.setBold(parts.flag(u"bold", def.bold()));
  return font;
}

}  // namespace kv
