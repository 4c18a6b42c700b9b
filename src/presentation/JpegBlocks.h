// The blocks of a JPEG's colours, and the order in which a scan brings them. It holds one number for each
// block and trusts nothing that the frame says.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace kv {

/// A number of one or two bytes at `place`; 0 behind the end.
[[nodiscard]] int JpegByte(std::span<const std::byte> bytes, std::size_t place);
[[nodiscard]] int JpegPair(std::span<const std::byte> bytes, std::size_t place);

struct JpegComponent {
  int id = 0;
  int across = 1;  // blocks in a unit
  int down = 1;
  int columns = 0;  // blocks of the picture
  int rows = 0;
  std::size_t stride = 0;  // blocks that are kept of a row: whole units
  std::vector<std::int16_t> means = {};
  int missing = -1;  // bits that the means still lack; -1 before there are any
};

class JpegBlocks {
 public:
  /// From a frame's segment, behind its length; false for one that cannot be, or that has more than `most`
  /// blocks.
  [[nodiscard]] bool Set(std::span<const std::byte> frame, std::size_t most);
  [[nodiscard]] bool empty() const { return components_.empty(); }
  [[nodiscard]] std::vector<JpegComponent>& components() { return components_; }
  [[nodiscard]] const std::vector<JpegComponent>& components() const { return components_; }

  /// Calls `block(number of the component in the scan, mean)` in the order of a scan of these components, and
  /// `restart()` behind each `interval` units (0 for never), until either returns false.
  template <typename Component, typename Block, typename Restart>
  [[nodiscard]] bool Visit(std::span<Component* const> scan, int interval, Block block,
                           Restart restart) const;

 private:
  [[nodiscard]] bool Place(int width, int height, std::size_t most);

  std::vector<JpegComponent> components_;
  int unitsAcross_ = 0;
  int unitsDown_ = 0;
};

template <typename Component, typename Block, typename Restart>
bool JpegBlocks::Visit(std::span<Component* const> scan, int interval, Block block, Restart restart) const {
  const bool single =
      scan.size() == 1;  // then a unit is one block, and those beside the picture are left out
  const int across = single ? scan.front()->columns : unitsAcross_;
  const int down = single ? scan.front()->rows : unitsDown_;
  const auto unit = [&](std::size_t number, int column, int row) {
    Component& c = *scan[number];
    const int wide = single ? 1 : c.across;
    const int high = single ? 1 : c.down;
    for (int i = 0; i < wide * high; ++i) {
      const int x = column * wide + i % wide;
      const int y = row * high + i / wide;
      const std::size_t place = static_cast<std::size_t>(y) * c.stride + static_cast<std::size_t>(x);
      if (!block(number, c.means[place])) return false;
    }
    return true;
  };
  for (int at = 0; at < across * down; ++at) {
    if (interval > 0 && at > 0 && at % interval == 0 && !restart()) return false;
    for (std::size_t number = 0; number < scan.size(); ++number) {
      if (!unit(number, at % across, at / across)) return false;
    }
  }
  return true;
}

}  // namespace kv
