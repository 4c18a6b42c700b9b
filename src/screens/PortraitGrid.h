// The portrait picker's tiles by index: which portrait each one shows, where it lies, and where a key leads
// from it. Pure arithmetic; an index is always 0 to 56.
#pragma once

namespace kv {

inline constexpr int kPortraitTiles = 57;
inline constexpr int kPortraitColumns = 12;
inline constexpr int kPortraitStep = 56;  // layout pixels from tile to tile, across and down

enum class PortraitKey { Left, Right, Up, Down };

/// Tile 0 shows the default portrait, tiles 1 to 56 portraits 10 to 65.
[[nodiscard]] int PortraitOfTile(int tile);
/// Tile 0 for every number that has no tile of its own.
[[nodiscard]] int TileOfPortrait(int number);

/// Left and Right lead on from the first tile to the last and back; Up and Down stay in the column and lead
/// on from the top to the lowest tile that the column has.
[[nodiscard]] int TileAfter(PortraitKey key, int tile);

}  // namespace kv
