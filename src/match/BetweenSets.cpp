#include "match/BetweenSets.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdlib>

#include "ai/HandSearch.h"
#include "match/MatchState.h"

namespace kv {
namespace {

constexpr std::size_t kKinds = 10;
constexpr std::size_t kSideTerms = kKinds + 6;
constexpr std::size_t kDown = kKinds + 4;  // the term of the changes down

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

/// The changes that one card can make, as bits 1 to 6.
struct Reach {
  unsigned up = 0;
  unsigned down = 0;
};

void AddReach(const CardCode& card, Reach& reach) {
  const unsigned bit = 1U << static_cast<unsigned>(std::min(std::abs(card.number()), 6));
  switch (card.type()) {
    case CardType::Plus:
      reach.up |= bit;
      break;
    case CardType::Minus:
      reach.down |= bit;
      break;
    case CardType::Flip:
    case CardType::FlipPlus:
    case CardType::FlipMinus:
      reach.up |= bit;
      reach.down |= bit;
      break;
    case CardType::Tiebreaker:
      reach.up |= 0b10U;
      reach.down |= 0b10U;
      break;
    case CardType::OneOrTwo:
      reach.up |= 0b110U;
      reach.down |= 0b110U;
      break;
    default:
      break;
  }
}

void Count(const HandCards& hand, double* terms) {
  Reach reach;
  int cards = 0;
  for (const CardCode& card : hand) {
    if (IsEmptySlot(card)) continue;
    ++terms[KindOf(card)];
    ++cards;
    AddReach(card, reach);
  }
  double* more = terms + kKinds;
  for (int least = 2; least <= kHandSize; ++least) *more++ = cards >= least ? 1 : 0;
  const int down = std::popcount(reach.down);
  *more++ = std::popcount(reach.up);
  *more++ = down;
  *more = down * down;
}

struct WeightRow {
  int own;
  int other;
  BetweenTerms weights;
};
// Printed by vantri-strength --fit --matches 300000.
constexpr std::array<WeightRow, 6> kWeights = {
    {{0, 0, {{0.306,  0.273,  0.460,  0.442,  0.522,  0.476,  0.664,  0.351,  0.268,  0.515,  0.048,  0.126,
              0.075,  0.086,  0.083,  0.003,  -0.286, -0.251, -0.460, -0.469, -0.527, -0.492, -0.642, -0.355,
              -0.238, -0.538, -0.080, -0.104, -0.129, -0.095, -0.069, 0.002,  0.000,  -0.077, 0.035}}},
     {0, 1, {{0.303,  0.246,  0.391,  0.479,  0.501,  0.500,  0.594,  0.341,  0.292,  0.528,  0.087,  0.111,
              0.067,  0.084,  0.084,  0.001,  -0.270, -0.199, -0.444, -0.437, -0.503, -0.457, -0.682, -0.388,
              -0.255, -0.505, -0.091, -0.120, -0.095, -0.156, -0.116, 0.003,  0.017,  -0.048, -0.792}}},
     {0, 2, {{0.322,  0.255,  0.348,  0.539,  0.492,  0.539,  0.594,  0.364,  0.462,  0.537,  0.055,  0.042,
              0.009,  0.121,  0.183,  -0.019, -0.255, -0.197, -0.442, -0.406, -0.510, -0.469, -0.853, -0.408,
              -0.336, -0.492, -0.077, -0.049, -0.080, -0.203, -0.174, -0.007, 0.047,  -0.073, -2.060}}},
     {1, 1, {{0.252,  0.198,  0.417,  0.453,  0.465,  0.488,  0.644,  0.346,  0.318,  0.495,  0.071,  0.073,
              0.041,  0.158,  0.091,  0.003,  -0.245, -0.190, -0.419, -0.484, -0.464, -0.474, -0.617, -0.366,
              -0.319, -0.492, -0.080, -0.083, -0.014, -0.172, -0.072, -0.005, -0.001, -0.064, 0.045}}},
     {1, 2, {{0.271,  0.203,  0.309, 0.470,  0.395,  0.452,  0.546,  0.356,  0.475,  0.415,  0.045,  -0.002,
              -0.058, 0.176,  0.181, -0.005, -0.278, -0.197, -0.331, -0.385, -0.406, -0.429, -0.703, -0.396,
              -0.389, -0.405, 0.007, -0.015, 0.035,  -0.181, -0.236, -0.004, 0.030,  -0.048, -1.165}}},
     {2, 2, {{0.210,  0.127,  0.182,  0.371,  0.244,  0.319,  0.451,  0.355,  0.510,  0.223,  -0.012, -0.069,
              -0.078, 0.222,  0.291,  -0.012, -0.176, -0.116, -0.146, -0.293, -0.227, -0.282, -0.460, -0.325,
              -0.459, -0.245, -0.008, 0.038,  0.058,  -0.217, -0.307, 0.017,  -0.001, -0.149, 0.054}}}}};

}  // namespace

BetweenTerms TermsOf(const BetweenSets& at) {
  BetweenTerms terms{};
  Count(at.own, terms.data());
  Count(at.other, terms.data() + kSideTerms);
  terms[2 * kSideTerms] = terms[kDown] * terms[kSideTerms + kDown];
  terms[2 * kSideTerms + 1] = at.ownStarts ? 1 : 0;
  terms[2 * kSideTerms + 2] = 1;
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
