#include "screens/PortraitGrid.h"

#include "presentation/Portraits.h"

namespace kv {
namespace {

constexpr int kTileOffset = 9;  // from a tile's index, 0 excepted, to its portrait

/// The number of tiles in a column.
int ColumnHeight(int column) {
  return (kPortraitTiles - column + kPortraitColumns - 1) / kPortraitColumns;
}

int TileAt(int row, int column) {
  const int height = ColumnHeight(column);
  return (row + height) % height * kPortraitColumns + column;
}

}  // namespace

int PortraitOfTile(int tile) {
  return tile == 0 ? kDefaultPortrait : tile + kTileOffset;
}

int TileOfPortrait(int number) {
  const int tile = number - kTileOffset;
  return tile > 0 && tile < kPortraitTiles ? tile : 0;
}

int TileAfter(PortraitKey key, int tile) {
  const int row = tile / kPortraitColumns;
  const int column = tile % kPortraitColumns;
  switch (key) {
    case PortraitKey::Left:
      return (tile + kPortraitTiles - 1) % kPortraitTiles;
    case PortraitKey::Right:
      return (tile + 1) % kPortraitTiles;
    case PortraitKey::Up:
      return TileAt(row - 1, column);
    case PortraitKey::Down:
      return TileAt(row + 1, column);
  }
  return tile;
}

}  // namespace kv
