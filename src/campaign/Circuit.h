// The campaign circuit: who can be met, for which stakes, and how far the player has come. Everything is
// derived from the player record; the circuit keeps nothing of its own.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string_view>

#include "cards/clsNumbers.h"

namespace kv {

class clsGame;
struct PlayerFields;

inline constexpr int kCircuitTiles = 7;
inline constexpr int kYourself = 6;         // the tile of the mirror match
inline constexpr int kWinsToUnlock = 10;    // against one opponent, for the next
inline constexpr int kWinsToArcadeOpp = 5;  // against H6-J8
inline constexpr std::string_view kFinalOpponent = "Orrin Vaal";
inline constexpr std::string_view kSpecialOpponent = "H6-J8";

struct CircuitOpponent {
  std::string_view name;
  std::int16_t minWager;  // credits
  std::int32_t maxWager;
  std::int16_t portrait;                                  // number; 0 where it is the player's own
  const std::shared_ptr<clsInteger> PlayerFields::*wins;  // null where none are counted
};
/// The opponents in the order of their tiles.
[[nodiscard]] const std::array<CircuitOpponent, kCircuitTiles>& CircuitOpponents();
/// The player's counter against this opponent; null when there is none.
[[nodiscard]] std::shared_ptr<clsInteger> WinCounter(const PlayerFields& player, std::string_view opponent);

struct CircuitTile {
  CircuitOpponent opponent;  // with the player's portrait where it is the player's own
  std::int16_t wins;         // -1: not shown
  bool visible;
  bool enabled;  // the credits cover the least stake
};

class Circuit {
 public:
  /// Ties the match record to the player's campaign account. Both must outlive the circuit.
  Circuit(clsGame& game, PlayerFields& player);

  /// The tile of an index from 0 to 6.
  [[nodiscard]] CircuitTile Tile(int index) const;
  /// Ten wins against the final opponent: the wide layout with all tiles.
  [[nodiscard]] bool Finished() const;
  /// Neither credits nor a card that could be sold.
  [[nodiscard]] bool Bankrupt() const;
  /// Whether the last match reached an unlock mark; true once.
  [[nodiscard]] bool TakeLevelUp();
  /// The next match is against this tile's opponent. False, and nothing changed, when the tile cannot be
  /// chosen.
  [[nodiscard]] bool Choose(int index);
  /// The campaign deck is looked at without a match.
  void ChooseDeckView();

 private:
  clsGame& game_;
  PlayerFields& player_;
};

}  // namespace kv
