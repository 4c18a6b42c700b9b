// The pictures of the data file by number and the size in layout pixels that each is made for. A picture may
// be stored larger than that; what it is stored larger by becomes its device pixel ratio.
#pragma once

#include <array>
#include <cstdint>

namespace kv {

/// The data file beside the program, and the only length with which it is accepted.
inline constexpr const char* kDataFileName = "vntdata.dat";
inline constexpr std::int64_t kDataFileSize = 2'416'640;

inline constexpr int kPortraitBase = 300;  // portrait n is picture 300 + n
inline constexpr int kPortraitSide = 112;

struct LayoutSize {
  int width = 0;
  int height = 0;
  friend constexpr bool operator==(LayoutSize, LayoutSize) = default;
};

/// All numbers from `first` to `last` share one size.
struct PictureSizeBand {
  int first;
  int last;
  LayoutSize size;
};

inline constexpr std::array kPictureSizes = {
    PictureSizeBand{101, 101, {640, 480}},   // main menu
    PictureSizeBand{102, 102, {800, 600}},   // campaign
    PictureSizeBand{103, 103, {640, 520}},   // network lobby
    PictureSizeBand{104, 105, {786, 540}},   // side deck and match, "Slate"
    PictureSizeBand{106, 107, {1024, 690}},  // side deck and match, "Ember"
    PictureSizeBand{201, 207, {48, 64}},     // card faces, "Slate"
    PictureSizeBand{221, 227, {83, 102}},    // card faces, "Ember"
    PictureSizeBand{301, 305, {kPortraitSide, kPortraitSide}},
    PictureSizeBand{307, 307, {kPortraitSide, kPortraitSide}},
    PictureSizeBand{310, 365, {kPortraitSide, kPortraitSide}},
    PictureSizeBand{400, 400, {480, 320}},  // start screen: the scene
    PictureSizeBand{401, 402, {440, 90}},   // the title off and on, at (20, 36) of the scene
    PictureSizeBand{403, 404, {440, 12}},   // the line below it off and on, at (20, 130)
    PictureSizeBand{458, 458, {24, 24}},    // turn light lit, "Slate"
    PictureSizeBand{461, 461, {24, 24}},    // turn light unlit, "Slate"
    PictureSizeBand{462, 462, {54, 54}},    // turn light lit, "Ember"
    PictureSizeBand{465, 465, {54, 54}},    // turn light unlit, "Ember"
};

/// The layout size of a picture; zero by zero for a number that is in no band.
[[nodiscard]] constexpr LayoutSize LayoutSizeOf(int number) {
  for (const PictureSizeBand& band : kPictureSizes) {
    if (number >= band.first && number <= band.last) return band.size;
  }
  return {};
}

}  // namespace kv
