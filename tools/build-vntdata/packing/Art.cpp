#include "packing/Art.h"

#include <QDir>
#include <QImageReader>
#include <cstdlib>

#include "packing/Stored.h"
#include "presentation/PictureSizes.h"

namespace kv::datafile {
namespace {

QString SizeText(QSize size) {
  return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

bool SeeThrough(const QImage& image) {
  if (!image.hasAlphaChannel()) return false;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qAlpha(image.pixel(x, y)) != 255) return true;
    }
  }
  return false;
}

/// One file on its way into the data file.
class ArtFile {
 public:
  explicit ArtFile(const QFileInfo& file) : file_(file), reader_(file.filePath()) {
    reader_.setDecideFormatFromContent(true);
  }

  /// Puts the picture among the others, or tells why it cannot be.
  [[nodiscard]] QString AddTo(std::map<int, QImage>& pictures) {
    bool isNumber = false;
    const int number = file_.completeBaseName().toInt(&isNumber);
    const LayoutSize size = isNumber ? LayoutSizeOf(number) : LayoutSize{};
    if (size == LayoutSize{})
      return QStringLiteral("its name is no picture's number (see src/presentation/PictureSizes.h)");
    if (pictures.contains(number)) return QStringLiteral("there is another file for picture %1").arg(number);
    layout_ = {size.width, size.height};
    QImage image;
    if (QString fault = Read(image); !fault.isEmpty()) return fault;
    if (!IsGif(number) && SeeThrough(image)) {
      return QStringLiteral("picture %1 cannot be see-through: fill its background").arg(number);
    }
    pictures[number] = std::move(image);
    return {};
  }

 private:
  [[nodiscard]] QString Read(QImage& image) {
    const QByteArray format = reader_.format();
    const bool drawing = format == "svg";
    if (!drawing && format != "png" && format != "jpeg") {
      return QStringLiteral("it is no PNG, JPEG or SVG") +
             (file_.suffix().toLower() == "svg"
                  ? QStringLiteral(" that can be read (is libqt6svg6 installed?)")
                  : QString());
    }
    const QString fault = drawing ? FitDrawing() : FitPixels();
    if (!fault.isEmpty()) return fault;
    image = reader_.read();
    return image.isNull() ? reader_.errorString() : QString();
  }

  [[nodiscard]] QString FitPixels() const {
    const QSize size = reader_.size();
    if (size == layout_ || size == layout_ * kStoredRatio) return {};
    return QStringLiteral("it is %1 pixels; this picture must be %2 (or %3)")
        .arg(SizeText(size), SizeText(layout_ * kStoredRatio), SizeText(layout_));
  }

  /// A drawing has any size, but the picture's shape: within a pixel of it.
  [[nodiscard]] QString FitDrawing() {
    const QSize stored = layout_ * kStoredRatio;
    const QSize fitted = reader_.size().scaled(stored, Qt::KeepAspectRatio);
    if (std::abs(fitted.width() - stored.width()) > 1 || std::abs(fitted.height() - stored.height()) > 1) {
      return QStringLiteral("its shape is %1; this picture must have the shape of %2")
          .arg(SizeText(reader_.size()), SizeText(layout_));
    }
    reader_.setScaledSize(stored);
    return {};
  }

  QFileInfo file_;
  QImageReader reader_;
  QSize layout_;
};

}  // namespace

Art ReadArt(const std::string& folder) {
  Art art;
  const QDir pictures(QString::fromStdString(folder) + QStringLiteral("/pictures"));
  for (const QFileInfo& file : pictures.entryInfoList(QDir::Files, QDir::Name)) {
    if (file.fileName().startsWith(QStringLiteral("README"))) continue;
    const QString fault = ArtFile(file).AddTo(art.pictures);
    if (!fault.isEmpty()) return {{}, (file.filePath() + QStringLiteral(": ") + fault).toStdString()};
  }
  return art;
}

}  // namespace kv::datafile
