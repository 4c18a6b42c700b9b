// Painted images as picture files. The same image always gives the same bytes.
#pragma once

#include <QImage>

#include "packing/ModuleWriter.h"

namespace kv::datafile {

/// GIF with up to 256 colours (one of them see-through where the image is), dithered. Empty on failure.
[[nodiscard]] Bytes EncodeGif(const QImage& image);
/// JPEG of `quality` 0 to 100. Empty on failure.
[[nodiscard]] Bytes EncodeJpeg(const QImage& image, int quality);

}  // namespace kv::datafile
