// What the card screen shows of its desk, as plain values: views, bank cards, buttons, the trade area.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "cards/CardCode.h"

namespace kv {

enum class CardView : std::uint8_t { Null, Deck, Buy, Sell };

/// One card of the collection banks; its badge shows `count`.
struct BankCard {
  CardCode code;
  std::int16_t count = 0;
  bool visible = false;
  bool enabled = false;
};

/// The buttons of the lower panel: whether deck, buy and sell are shown, and which buttons are enabled.
struct DeskButtons {
  bool shown = false;
  bool deck = false;
  bool buy = false;
  bool sell = false;
  bool next = false;  // Continue
};

struct TradeArea {
  bool shown = false;
  std::string_view amountHeader;  // "# Owned:" or "# Left:"
  std::string_view priceHeader;   // "Cost:" or "Value:"
  std::string_view caption;       // "buy" or "sell"
  CardCode card;                  // empty while none is picked: then the button is disabled
  std::string price = "?";
  std::string amount = "?";
  std::string_view refusal = {};  // why the picked card is not traded; empty when it is
};

enum class BankClick : std::uint8_t { Ignored, Added, Picked };

}  // namespace kv
