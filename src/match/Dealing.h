// Dealing before a match: four of ten side cards for each hand, and the decks of the computer's opponents.
#pragma once

#include <array>
#include <memory>
#include <string_view>

#include "cards/clsDeckArray.h"
#include "platform/Random.h"

namespace kv {

class clsGame;

/// A hand of four different positions of a deck of ten, drawn at random, in the form in which a hand holds
/// them.
[[nodiscard]] std::shared_ptr<clsDeckArray> DealHand(const clsDeckArray& deck, Random& random);

/// Entries 1 to 4.
[[nodiscard]] std::array<CardCode, kHandSize> HandOf(const clsDeckArray& deck);
/// SideDeck becomes four different positions of DeckRef, drawn at random, in the form in which a hand holds
/// them.
void DealYourHand(clsGame& game, Random& random);
/// CompDeck becomes four different positions of the opponent's deck, sorted by kind. The opponent "Yourself"
/// holds the player's own hand. DealYourHand comes first.
void SetupCompHand(clsGame& game, Random& random);
/// The ten-card deck of a circuit opponent; every entry "0" for a name that has none.
[[nodiscard]] clsDeckArray OpponentDeck(std::string_view opponent);
/// Sorts entries 1 to 4 plus, minus, flip, special, each kind in its old order (5 to 8 are scratch).
void AI_SortDeck(clsDeckArray& deck);

}  // namespace kv
