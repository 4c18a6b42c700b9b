// How fast a match is played, by the options and the mode.
#include "match/MatchState.h"

namespace kv {
namespace {

constexpr int kSlateTurnDelay = 380;  // milliseconds
constexpr int kEmberTurnDelay = 210;
constexpr int kNetworkTurnDelay = 210;  // whatever the speed, so that both sides keep pace
constexpr int kSpeedStep = 60;

}  // namespace

MatchPace PaceOf(const MatchOptions& options, bool network) {
  // A speed that the options screen does not offer is played as normal, so that every pause stays positive.
  const int speed = options.speed >= 0 && options.speed <= 2 ? options.speed : 1;
  const int offset = (speed - 1) * kSpeedStep;
  if (network) return {offset, kNetworkTurnDelay};
  return {offset, (options.emberStyle ? kEmberTurnDelay : kSlateTurnDelay) - offset};
}

}  // namespace kv
