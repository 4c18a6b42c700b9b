// The match screen's places as the toolkit's points.
#pragma once

#include <QPoint>

#include "match/MatchGrid.h"

namespace kv {

[[nodiscard]] inline QPoint PointOf(Spot spot) {
  return {qRound(spot.left), qRound(spot.top)};
}

}  // namespace kv
