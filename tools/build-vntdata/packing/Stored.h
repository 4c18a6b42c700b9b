// How a picture is stored: at twice its layout size, in the group where the game looks for its number.
#pragma once

namespace kv::datafile {

/// How many stored pixels stand for one layout pixel.
inline constexpr int kStoredRatio = 2;

/// Whether a picture is a GIF, which may be see-through in places. All others are JPEG.
[[nodiscard]] constexpr bool IsGif(int number) {
  return (number > 110 && number <= 250) || number >= 400;
}

}  // namespace kv::datafile
