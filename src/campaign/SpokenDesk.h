// What is told of the desk to who does not see it: one sentence for each thing that was done there. Pure
// texts.
#pragma once

#include <cstdint>
#include <string>

#include "campaign/DeskView.h"

namespace kv {

class WagerEntry;

/// "Bought plus 3. 240 credits."
[[nodiscard]] std::string SpokenDeal(CardView view, const CardCode& card, std::int32_t credits);
/// "plus 3. Price 240. 2 owned.", and why it is refused. Empty while nothing is picked.
[[nodiscard]] std::string SpokenPick(CardView view, const TradeArea& shop);
/// "How much do you wager? Credits: 100. Highscore: 260. 10 is proposed.", or who has the word.
[[nodiscard]] std::string SpokenQuestion(const WagerEntry& entry);
/// "plus 3 added. 4 of 10 cards.", or "removed".
[[nodiscard]] std::string SpokenChange(const CardCode& card, bool added, int cards);

}  // namespace kv
