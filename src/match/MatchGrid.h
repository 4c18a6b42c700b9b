// Where the cards and markers of a match lie, in layout pixels of the match screen. These places belong to
// the game; everything else on the screen is placed by its layout file.
#pragma once

#include <array>

#include "match/MatchView.h"

namespace kv {

struct Spot {
  double left = 0;
  double top = 0;
};

struct MatchGrid {
  Spot table;         // card 1 of the player's table
  double columnStep;  // three cards to a row
  double rowStep;
  double oppTableStep;  // from the player's table to the opponent's
  Spot yourHand;        // hand card 1
  Spot oppHand;
  double handStep;
  Spot marker;  // won-set marker 1 of the player
  Spot markerStep;
  double oppMarkerStep;
  double dropLeft, dropRight, dropTop, dropBottom;

  /// Table card 1 to 9.
  [[nodiscard]] constexpr Spot TableSpot(Seat seat, int card) const {
    const int column = (card - 1) % 3;
    const int row = (card - 1) / 3;
    return {column * columnStep + table.left + (seat == Seat::Opponent ? oppTableStep : 0),
            row * rowStep + table.top};
  }
  /// Hand card 1 to 4.
  [[nodiscard]] constexpr Spot HandSpot(Seat seat, int slot) const {
    const Spot& first = seat == Seat::Opponent ? oppHand : yourHand;
    return {first.left + handStep * (slot - 1), first.top};
  }
  /// Won-set marker 1 to 3.
  [[nodiscard]] constexpr Spot MarkerSpot(Seat seat, int set) const {
    return {marker.left + markerStep.left * (set - 1) + (seat == Seat::Opponent ? oppMarkerStep : 0),
            marker.top + markerStep.top * (set - 1)};
  }
  /// Whether a card with this centre is dropped on the table; the bounds belong to it.
  [[nodiscard]] constexpr bool InDropArea(Spot centre) const {
    return centre.left >= dropLeft && centre.left <= dropRight && centre.top >= dropTop &&
           centre.top <= dropBottom;
  }
};

/// By StyleIndex: 0 "Slate", 1 "Ember".
inline constexpr std::array<MatchGrid, 2> kMatchGrids = {{
    {.table = {196, 172},
     .columnStep = 53.7,
     .rowStep = 68,
     .oppTableStep = 239,
     .yourHand = {159, 393},
     .oppHand = {419, 393},
     .handStep = 53,
     .marker = {226, 137},
     .markerStep = {19, 0},
     .oppMarkerStep = 281,
     .dropLeft = 192,
     .dropRight = 355,
     .dropTop = 169,
     .dropBottom = 374},
    {.table = {199, 129},
     .columnStep = 96,
     .rowStep = 108,
     .oppTableStep = 352,
     .yourHand = {116, 487},
     .oppHand = {537, 487},
     .handStep = 96,
     .marker = {122, 174},
     .markerStep = {0, 38},
     .oppMarkerStep = 758,
     .dropLeft = 192,
     .dropRight = 480,
     .dropTop = 125,
     .dropBottom = 450},
}};

}  // namespace kv
