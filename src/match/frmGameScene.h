// The small scenes of a win: light and sparks in the style of the screen, the portrait joining in. A loss has
// none.
#pragma once

#include <QColor>
#include <cstdint>

#include "presentation/MotionLayer.h"

namespace kv {

enum class Scene : std::uint8_t { None, Set, Match, CampaignStep, Unlocked, HighScore };

/// Of the style.
struct SceneLook {
  QColor light;
  QColor gold;
  bool streaks = false;  // sparks are lines of light; else embers
};
[[nodiscard]] SceneLook SceneLookOf(int styleIndex);

/// What takes part in a scene.
struct ScenePlaces {
  QRect banner;
  QRect portrait;
  QWidget* face = nullptr;  // the portrait itself; null when it is hidden
  QRect total;
};

/// At most 1.5 s; any key or click ends it.
void PlayScene(MotionLayer& layer, Scene scene, const SceneLook& look, const ScenePlaces& places);

}  // namespace kv
