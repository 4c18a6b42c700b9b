// A large BMP reduced while it is read, a band of rows at a time, so that the whole image never exists. It
// trusts nothing that the file says.
#pragma once

#include <QImage>
#include <cstddef>
#include <span>

namespace kv {

/// Each pixel the mean of a square of `times` by `times`, at least 1; what is left over on the right and at
/// the last rows is left out. A null image for a packed, cut or damaged one.
[[nodiscard]] QImage ReduceBmp(std::span<const std::byte> bytes, int times);

}  // namespace kv
