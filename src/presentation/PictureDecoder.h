// Picture files from memory into images, with a limit on everything a file can ask for. Never throws and
// never complains: bytes that are no picture give nothing.
#pragma once

#include <QImage>
#include <QSize>
#include <cstddef>
#include <span>

namespace kv {

inline constexpr int kMaxPictureSide = 4096;  // stored pixels

/// The decoded image in its stored size, or reduced to `limit` when that is smaller and not empty. A null
/// image for bytes that are broken or ask for more than kMaxPictureSide. No alpha channel unless it is used.
[[nodiscard]] QImage DecodePicture(std::span<const std::byte> bytes, QSize limit = {});

}  // namespace kv
