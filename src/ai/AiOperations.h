// What a strategy may see and do: one side's hand, table and total, and nothing else of the match.
// The match engine implements it for the side that the strategy plays.
#pragma once

#include <string_view>

#include "cards/CardCode.h"

namespace kv {

inline constexpr int kTarget = 20;
inline constexpr int kFullTable = 9;

class AiOperations {
 public:
  virtual ~AiOperations() = default;

  /// Cards left in the hand, 0 to 4.
  [[nodiscard]] virtual int AI_CardCount() const = 0;
  /// The first hand slot (1 to 4) whose card would change the total by `change`, or 0. The card found is
  /// rewritten at once to the sign that makes this change, even when the strategy only asks.
  [[nodiscard]] virtual int AI_FindCard(int change) = 0;
  /// The first hand slot whose code begins with the two letters, or 0.
  [[nodiscard]] virtual int AI_FindCardType(std::string_view type) const = 0;
  /// The total if every table card of absolute value a or b changed its sign.
  [[nodiscard]] virtual int AI_TestInvert(int a, int b) const = 0;
  /// Plays the card of a slot; slot 0, an empty slot or a full table does nothing.
  virtual void AI_PlayCard(int slot) = 0;
  /// Ends the turn. Exactly one call of AI_EndTurn or AI_Stand closes each turn.
  virtual void AI_EndTurn() = 0;
  /// Stands: the side takes no more turns in this set.
  virtual void AI_Stand() = 0;

  /// The side's total as it stands now.
  [[nodiscard]] virtual int Total() const = 0;
  /// Cards on the side's table, 0 to 9.
  [[nodiscard]] virtual int TableCount() const = 0;
  /// Writes the sign of a hand card that the strategy has chosen itself.
  virtual void SetHandCode(int slot, const CardCode& code) = 0;
};

}  // namespace kv
