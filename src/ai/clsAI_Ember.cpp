#include "ai/clsAI_Ember.h"

namespace kv {
namespace {

constexpr int kLowest = -24;  // no total lies deeper

}  // namespace

int clsAI_Ember::LowestReachable(AiOperations& side, int t) {
  if (t < kLowest) return kLowest;
  for (int x = kLowest; x <= t; ++x) {
    if (side.AI_FindCard(x - t) != 0) return x;
  }
  return t + 1;
}

int clsAI_Ember::BestReachable(AiOperations& side, int t) {
  for (int x = kTarget; x >= kLowest; --x) {
    if (x == t || side.AI_FindCard(x - t) != 0) return x;
  }
  return kLowest - 1;
}

void clsAI_Ember::AI(AiOperations& side, int total, int oppTotal, int uWins, int /*oWins*/, bool uStand,
                     bool /*oStand*/) {
  const bool ahead = total > oppTotal && total < kTarget && uStand;
  if (ahead || side.TableCount() == kFullTable || total == kTarget) {
    side.AI_Stand();
    return;
  }
  const int best = BestReachable(side, total);
  if (best == kTarget) {
    side.AI_PlayCard(side.AI_FindCard(kTarget - total));
    side.AI_Stand();
    return;
  }
  AimAt(side, total, oppTotal, best);
  Finish(side, oppTotal, uWins);
}

/// 19 and 18 are worth a card only while low cards remain to save a later bust.
void clsAI_Ember::AimAt(AiOperations& side, int total, int oppTotal, int best) {
  const bool nineteen = best == 19 && LowestReachable(side, total) <= 11 && oppTotal < 20;
  const bool eighteen = best == 18 && LowestReachable(side, total) <= 13 && oppTotal < 19;
  if (nineteen || eighteen) side.AI_PlayCard(side.AI_FindCard(best - total));
}

void clsAI_Ember::Finish(AiOperations& side, int oppTotal, int uWins) {
  const int reached = side.Total();
  if (oppTotal <= kTarget && reached < oppTotal) {
    side.AI_EndTurn();
  } else if (reached >= 18 && reached <= kTarget && reached >= oppTotal) {
    side.AI_Stand();
  } else if (reached > kTarget && (uWins == 2 || oppTotal < 18)) {
    Rescue(side, oppTotal);
  } else {
    side.AI_EndTurn();
  }
}

void clsAI_Ember::Rescue(AiOperations& side, int oppTotal) {
  const int total = side.Total();
  for (int change = kTarget - total; change >= kLowest; --change) {
    const int slot = side.AI_FindCard(change);
    if (slot == 0) continue;
    side.AI_PlayCard(slot);
    const bool ahead = oppTotal < side.Total() && side.Total() >= 18;
    if (ahead || side.TableCount() == kFullTable) {
      side.AI_Stand();
      return;
    }
    break;
  }
  side.AI_EndTurn();
}

}  // namespace kv
