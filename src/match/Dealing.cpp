#include "match/Dealing.h"

#include <algorithm>
#include <array>

#include "match/clsGame.h"

namespace kv {
namespace {

struct DeckRow {
  std::string_view opponent;
  std::array<const char*, kDeckSize> codes;
};

// The decks stand in the form in which a hand holds them.
constexpr std::array<DeckRow, 6> kOpponentDecks = {{
    {"Lucky Brannock", {"ms-6", "ms-6", "ms-6", "ms-6", "ms-6", "ms-6", "ms-6", "ms-6", "ms-6", "ms-6"}},
    {"Tamsen", {"ps1", "ps2", "ps3", "ps4", "ps5", "ps6", "ms-1", "ms-2", "ms-3", "ms-4"}},
    {"Vel'ir", {"ps1", "ms-1", "ps2", "ms-2", "ps3", "ms-3", "ps4", "ms-4", "ps5", "ms-5"}},
    {"Brummox", {"ps1", "fp1", "ps2", "fp2", "ps3", "fp3", "ps4", "fp4", "ps5", "fp5"}},
    {"Orrin Vaal", {"fp1", "fp1", "fp2", "fp2", "fp2", "fp3", "fp3", "fp3", "fp4", "fp4"}},
    {"H6-J8", {"s11", "s51", "s51", "s51", "fp3", "fp3", "fp4", "fp4", "s299", "s499"}},
}};

/// Four different positions of a deck, in the order drawn.
std::array<int, kHandSize> DrawPositions(Random& random) {
  std::array<int, kHandSize> drawn{};
  for (std::size_t i = 0; i < drawn.size(); ++i) {
    const auto before = drawn.begin() + static_cast<std::ptrdiff_t>(i);
    int position = 0;
    do {
      position = static_cast<int>(random.Rnd() * kDeckSize) + 1;
    } while (std::find(drawn.begin(), before, position) != before);
    drawn[i] = position;
  }
  return drawn;
}

}  // namespace

std::shared_ptr<clsDeckArray> DealHand(const clsDeckArray& deck, Random& random) {
  auto hand = std::make_shared<clsDeckArray>();
  int slot = 1;
  for (const int position : DrawPositions(random)) hand->setValue(slot++, deck.Value(position).InHand());
  return hand;
}

std::array<CardCode, kHandSize> HandOf(const clsDeckArray& deck) {
  std::array<CardCode, kHandSize> hand;
  for (int slot = 1; slot <= kHandSize; ++slot)
    hand.at(static_cast<std::size_t>(slot) - 1) = deck.Value(slot);
  return hand;
}

void DealYourHand(clsGame& game, Random& random) {
  game.SideDeck = DealHand(*game.DeckRef, random);
}

void SetupCompHand(clsGame& game, Random& random) {
  // The decks stand in the form of a hand already: dealing changes no code of theirs.
  game.CompDeck = DealHand(OpponentDeck(game.OppName), random);
  if (game.OppName == "Yourself") game.CompDeck->CopyArray(*game.SideDeck);
  AI_SortDeck(*game.CompDeck);
}

clsDeckArray OpponentDeck(std::string_view opponent) {
  clsDeckArray deck;
  const auto* row = std::find_if(kOpponentDecks.begin(), kOpponentDecks.end(),
                                 [&](const DeckRow& each) { return each.opponent == opponent; });
  if (row != kOpponentDecks.end()) deck.setAll(row->codes);
  return deck;
}

void AI_SortDeck(clsDeckArray& deck) {
  for (int i = 1; i <= kHandSize; ++i) deck.setValue(i + kHandSize, deck.Value(i));
  int out = 1;
  for (const char kind : {'p', 'm', 'f', 's'}) {
    for (int i = kHandSize + 1; i <= 2 * kHandSize; ++i) {
      if (deck.Value(i).prefix().starts_with(kind)) deck.setValue(out++, deck.Value(i));
    }
  }
}

}  // namespace kv
