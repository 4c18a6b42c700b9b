// What the match screen's controls say when they are pointed at: what they do, or why they cannot be used
// now.
#pragma once

#include <string>

#include "match/MatchShown.h"

namespace kv {

[[nodiscard]] std::string EndTurnTip(const MatchShown& shown);
[[nodiscard]] std::string StandTip(const MatchShown& shown);
[[nodiscard]] std::string ForfeitTip(const MatchShown& shown);
/// Of hand card 1 to 4 of the person.
[[nodiscard]] std::string HandTip(const MatchShown& shown, int slot);
/// Of the two buttons below a hand card.
[[nodiscard]] std::string FirstFlipTip(const MatchShown& shown);
[[nodiscard]] std::string SecondFlipTip(const MatchShown& shown);

}  // namespace kv
