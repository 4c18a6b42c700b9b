// How many passes over a picture a JPEG file asks for, read from its markers before anything is decoded. It
// looks at every byte at most twice and trusts none.
#pragma once

#include <cstddef>
#include <span>

namespace kv {

struct JpegScans {
  /// Never fewer than a decoder can find; preview pictures inside the file may be counted too.
  int count = 0;
  /// The picture comes in several passes (progressive, or colour by colour), so that a decoder has to hold
  /// all of its coefficients. Also true when the file cannot be made out.
  bool several = true;
  /// Colour components of the picture; the greatest number possible when the file cannot be made out.
  int components = 255;
};

[[nodiscard]] JpegScans ScansOf(std::span<const std::byte> bytes);

}  // namespace kv
