#include "match/MatchTips.h"

#include "ai/HandSearch.h"
#include "cards/CardMeaning.h"

namespace kv {
namespace {

/// Why the person can do nothing now.
std::string WhyNot(const MatchShown& shown) {
  if (shown.banner.visible) return "The set is over: continue first.";
  if (shown.Stood(Seat::Player)) return "You have stood: the other side plays on.";
  if (!shown.Light(Seat::Player)) return "It is not your turn.";
  return "In a moment.";
}

}  // namespace

std::string EndTurnTip(const MatchShown& shown) {
  if (!shown.controls.endTurn) return WhyNot(shown);
  return "The other side has its turn; you draw again afterwards.";
}

std::string StandTip(const MatchShown& shown) {
  if (!shown.controls.stand) return WhyNot(shown);
  return "Keeps your total of " + std::to_string(shown.Total(Seat::Player)) +
         " and draws no more in this set.";
}

std::string ForfeitTip(const MatchShown& shown) {
  return shown.controls.forfeit ? "Gives up the match, after a question."
                                : "There is nothing to give up now.";
}

std::string HandTip(const MatchShown& shown, int slot) {
  const CardCode& card = shown.HandCard(Seat::Player, slot);
  if (IsEmptySlot(card)) return {};
  const std::string meaning = CardMeaning(card);
  if (shown.controls.hand) return meaning + "\nDouble-click it, or drag it onto the table.";
  return meaning + "\n" + (shown.controls.endTurn ? "One side card a turn." : WhyNot(shown));
}

std::string FirstFlipTip(const MatchShown& shown) {
  return shown.controls.flips ? "Turns the sign of the card above." : WhyNot(shown);
}

std::string SecondFlipTip(const MatchShown& shown) {
  return shown.controls.flips ? "Changes 1 and 2 on the card above." : WhyNot(shown);
}

}  // namespace kv
