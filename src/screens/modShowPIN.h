// What a PIN is, and how one that was typed is shown for a moment.
#pragma once

#include <string_view>

#include "platform/Scheduler.h"

namespace kv {

class PinBox;

/// True for a text of at least one character of which every one is a digit 0 to 9.
[[nodiscard]] bool PINIsDigits(std::string_view text);
/// True for an empty text and for digits.
[[nodiscard]] bool PINIsValid(std::string_view text);

/// Shows the text of the box for one second, handling events meanwhile, then masks it again. Does nothing
/// while the box is empty or being revealed. `owner` is the life of the screen that the box lies on: once it
/// closes, the box is not touched any more.
void RevealPIN(PinBox& box, Scheduler& scheduler, const Lifetime& owner);

}  // namespace kv
