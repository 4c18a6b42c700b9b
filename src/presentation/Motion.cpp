#include "presentation/Motion.h"

#include <QApplication>
#include <QStyle>
#include <algorithm>
#include <cmath>

#include "profile/clsPlayer.h"

namespace kv {

double Eased(Easing easing, double time) {
  const double t = std::clamp(time, 0.0, 1.0);
  const double rest = 1 - t;
  switch (easing) {
    case Easing::Even:
      return t;
    case Easing::Out:
      return 1 - rest * rest;
    case Easing::InOut:
      return t * t * (3 - 2 * t);
    case Easing::Over: {
      constexpr double kBeyond = 1.4;
      return 1 - rest * rest * ((kBeyond + 1) * rest - kBeyond);
    }
  }
  return t;
}

bool DesktopMoves() {
  return QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) > 0;
}

bool MotionWanted(const clsPlayer& player) {
  return player.LightPulse_Opt && DesktopMoves();
}

}  // namespace kv
