#include "match/BetweenSets.h"

#include <cmath>
#include <cstdlib>

#include "ai/HandSearch.h"
#include "match/MatchState.h"

namespace kv {
namespace {

constexpr std::size_t kKinds = 10;
constexpr std::size_t kSideTerms = kKinds + 1;

/// Plus, minus and flip cards up to 3 and from 4 on, tiebreaker, double, turning cards, one-or-two.
std::size_t KindOf(const CardCode& card) {
  const std::size_t big = std::abs(card.number()) > 3 ? 1 : 0;
  switch (card.type()) {
    case CardType::Plus:
      return big;
    case CardType::Minus:
      return 2 + big;
    case CardType::Tiebreaker:
      return 6;
    case CardType::Double:
      return 7;
    case CardType::Flip24:
    case CardType::Flip36:
      return 8;
    case CardType::OneOrTwo:
      return 9;
    default:
      return 4 + big;
  }
}

void Count(const HandCards& hand, double* terms) {
  double cards = 0;
  for (const CardCode& card : hand) {
    if (IsEmptySlot(card)) continue;
    ++terms[KindOf(card)];
    ++cards;
  }
  terms[kKinds] = cards * cards;
}

struct WeightRow {
  int own;
  int other;
  BetweenTerms weights;
};
// Printed by vantri-strength --fit --matches 600000.
constexpr std::array<WeightRow, 6> kWeights = {
    {{0, 0, {{0.411,  0.361,  0.559,  0.560,  0.669,  0.658,  0.758,  0.407,
              0.299,  0.781,  0.006,  -0.403, -0.363, -0.542, -0.568, -0.683,
              -0.648, -0.779, -0.387, -0.301, -0.777, -0.006, -0.065, 0.030}}},
     {0, 1, {{0.455,  0.411,  0.553,  0.630,  0.700,  0.737,  0.783,  0.419,
              0.392,  0.821,  -0.003, -0.436, -0.388, -0.571, -0.575, -0.723,
              -0.720, -0.896, -0.424, -0.350, -0.881, 0.000,  -0.048, -0.842}}},
     {0, 2, {{0.508,  0.440,  0.577,  0.800,  0.764,  0.865,  0.841,  0.487,
              0.568,  0.946,  -0.017, -0.479, -0.435, -0.611, -0.611, -0.805,
              -0.788, -1.079, -0.475, -0.402, -1.018, 0.009,  -0.092, -2.058}}},
     {1, 1, {{0.454,  0.404,  0.544,  0.633,  0.735,  0.759,  0.838,  0.440,  0.415,  0.898, -0.008, -0.466,
              -0.407, -0.557, -0.644, -0.742, -0.780, -0.854, -0.441, -0.420, -0.892, 0.010, -0.080, 0.042}}},
     {1, 2, {{0.518,  0.466,  0.563,  0.770,  0.778,  0.878,  0.862,  0.499,
              0.604,  0.974,  -0.030, -0.484, -0.431, -0.564, -0.667, -0.758,
              -0.810, -0.968, -0.458, -0.475, -0.997, 0.024,  -0.047, -1.182}}},
     {2, 2, {{0.494,  0.460,  0.539,  0.739,  0.733,  0.864,  0.898,  0.476,
              0.631,  0.969,  -0.045, -0.487, -0.443, -0.522, -0.728, -0.717,
              -0.848, -0.870, -0.469, -0.615, -0.952, 0.042,  -0.138, 0.059}}}}};

}  // namespace

BetweenTerms TermsOf(const BetweenSets& at) {
  BetweenTerms terms{};
  Count(at.own, terms.data());
  Count(at.other, terms.data() + kSideTerms);
  terms[2 * kSideTerms] = at.ownStarts ? 1 : 0;
  terms[2 * kSideTerms + 1] = 1;
  return terms;
}

double ChanceToWin(const BetweenSets& at) {
  if (at.ownWins == kSetsToWin || at.otherWins == kSetsToWin) return at.ownWins == kSetsToWin ? 1 : 0;
  if (at.ownWins > at.otherWins) {
    return 1 - ChanceToWin({at.otherWins, at.ownWins, at.other, at.own, !at.ownStarts});
  }
  for (const WeightRow& row : kWeights) {
    if (row.own != at.ownWins || row.other != at.otherWins) continue;
    const BetweenTerms terms = TermsOf(at);
    double sum = 0;
    for (std::size_t i = 0; i < kBetweenTerms; ++i) sum += row.weights[i] * terms[i];
    return 1 / (1 + std::exp(-sum));
  }
  return 0;
}

}  // namespace kv
