#include "packing/Sheet.h"

#include <QPainter>
#include <algorithm>

#include "brush/Lettering.h"
#include "packing/Stored.h"

namespace kv::datafile {
namespace {

constexpr int kSheetWidth = 1800;
constexpr int kGap = 10;
constexpr int kCaption = 14;
constexpr int kLargest = 430;  // a background is reduced to this width

}  // namespace

QImage ContactSheet(const Catalogue& catalogue) {
  QImage sheet(kSheetWidth, 2600, QImage::Format_RGB32);
  sheet.fill(QColor(60, 60, 64));
  QPainter painter(&sheet);
  painter.setRenderHint(QPainter::Antialiasing);
  int x = kGap;
  int y = kGap;
  int rowHeight = 0;
  int group = 0;
  for (const int number : AllNumbers()) {
    QImage image = catalogue.Paint(number);
    const int width = std::min(image.width() / kStoredRatio, kLargest);
    image = image.scaledToWidth(width, Qt::SmoothTransformation);
    if (x + width > kSheetWidth || number / 100 != group) {
      x = kGap;
      y += rowHeight;
      rowHeight = 0;
      group = number / 100;
    }
    painter.drawImage(x, y + kCaption, image);
    DrawLettering(painter, QString::number(number), QRectF(x, y, width, kCaption), 11, Qt::white);
    x += width + kGap;
    rowHeight = std::max(rowHeight, image.height() + kCaption + kGap);
  }
  painter.end();
  return sheet.copy(0, 0, kSheetWidth, std::min(sheet.height(), y + rowHeight));
}

}  // namespace kv::datafile
