// What the controls of the card screen and of the circuit say when they are pointed at: what they do, or why
// they cannot be used now. Pure texts.
#pragma once

#include <cstdint>
#include <string>

#include "campaign/CardDesk.h"
#include "campaign/Circuit.h"

namespace kv {

/// Of a card of the collection; empty for a place that holds none.
[[nodiscard]] std::string BankTip(const CardDesk& desk, const CardPlace& place);
/// Of deck slot 1 to 10; empty for an empty one.
[[nodiscard]] std::string DeckTip(const CardDesk& desk, int slot);
/// Of the button that opens the view.
[[nodiscard]] std::string ViewTip(const CardDesk& desk, CardView view);
[[nodiscard]] std::string TradeTip(const CardDesk& desk);
[[nodiscard]] std::string PriceTip(const CardDesk& desk);
[[nodiscard]] std::string ContinueTip(const CardDesk& desk);

/// Of an opponent's tile, for a player with these credits.
[[nodiscard]] std::string OpponentTip(const CircuitTile& tile, std::int32_t credits);
/// Of the place of an opponent who is still to come: `before` is the one who stands before.
[[nodiscard]] std::string ClosedTileTip(const CircuitTile& before);

}  // namespace kv
