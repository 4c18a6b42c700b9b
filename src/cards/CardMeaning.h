// What a card does, in one sentence for who points at it or reads the rules.
#pragma once

#include <string>

#include "cards/CardCode.h"

namespace kv {

/// "Adds 3 to your total."; empty for what is no card.
[[nodiscard]] std::string CardMeaning(const CardCode& code);

}  // namespace kv
