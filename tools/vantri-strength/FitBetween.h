// Fits the estimate of the chance to win a match between two sets to matches that are played out.
#pragma once

#include <cstdint>

#include "match/BetweenSets.h"

namespace kv {

/// The weights of the terms for a side that has won `own` sets to `other`, own <= other: a logistic
/// regression over so many matches of the standard strategy against itself from the start of a set with
/// random hands.
[[nodiscard]] BetweenTerms FitBetween(int own, int other, int matches, std::uint64_t seed);

}  // namespace kv
