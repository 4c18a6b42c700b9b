// build-icon FOLDER: writes the icon as kelm-vantri.svg and as kelm-vantri-<size>.png in the usual sizes.
#include <QGuiApplication>
#include <QImage>
#include <cstdio>

#include "Icon.h"
#include "platform/Files.h"

namespace {

constexpr int kSizes[] = {16, 24, 32, 48, 64, 128, 256, 512};
constexpr int kSmall = 24;  // up to here the simple form is clearer

bool WritePixels(const QString& folder, int size) {
  QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.scale(static_cast<double>(size) / kv::icon::kSide, static_cast<double>(size) / kv::icon::kSide);
  kv::icon::Paint(painter, kv::icon::Shapes(size <= kSmall));
  painter.end();
  return image.save(QStringLiteral("%1/kelm-vantri-%2.png").arg(folder).arg(size));
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");  // it paints, but shows nothing
  const QGuiApplication application(argc, argv);
  if (argc != 2) {
    std::fprintf(stderr, "usage: build-icon FOLDER\n");
    return 2;
  }
  const QString folder = QString::fromUtf8(argv[1]);
  const QByteArray svg = kv::icon::Svg(kv::icon::Shapes(false)).toUtf8();
  bool good = kv::AtomicWrite(folder.toStdString() + "/kelm-vantri.svg", svg.toStdString()).empty();
  for (const int size : kSizes) good = WritePixels(folder, size) && good;
  if (!good) std::fprintf(stderr, "build-icon: cannot write into %s\n", argv[1]);
  return good ? 0 : 1;
}
