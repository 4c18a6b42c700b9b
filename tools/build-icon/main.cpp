// build-icon FOLDER: writes the icon as kelm-vantri.svg and as kelm-vantri-<size>.png in the usual sizes, and
// the one-coloured kelm-vantri-symbolic.svg for panels and lists.
#include <QGuiApplication>
#include <QImage>
#include <cstdio>

#include "Icon.h"
#include "platform/Files.h"
#include "platform/StandardOptions.h"

namespace {

constexpr int kSizes[] = {16, 24, 32, 48, 64, 128, 256, 512};
constexpr const char* kUsage =
    "usage: build-icon FOLDER\n"
    "Writes the icon of the game into FOLDER: scalable, in pixels, and in one colour.\n";
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

bool WriteText(const QString& folder, const char* name, const QString& text) {
  return kv::AtomicWrite(folder.toStdString() + "/" + name, text.toStdString()).empty();
}

}  // namespace

int main(int argc, char** argv) {
  if (kv::AnswersStandardOption(argc, argv, "build-icon", kUsage)) return 0;
  if (argc != 2 || kv::FindOption(argc, argv)) {
    std::fputs(kUsage, stderr);
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");  // it paints, but shows nothing
  const QGuiApplication application(argc, argv);
  const QString folder = QString::fromUtf8(argv[1]);
  bool good = WriteText(folder, "kelm-vantri.svg", kv::icon::Svg(kv::icon::Shapes(false)));
  good = WriteText(folder, "kelm-vantri-symbolic.svg", kv::icon::SymbolicSvg()) && good;
  for (const int size : kSizes) good = WritePixels(folder, size) && good;
  if (!good) std::fprintf(stderr, "build-icon: cannot write into %s\n", argv[1]);
  return good ? 0 : 1;
}
