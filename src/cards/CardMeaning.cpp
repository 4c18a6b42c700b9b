#include "cards/CardMeaning.h"

#include <cstdlib>

namespace kv {
namespace {

std::string ChangeBy(int value) {
  const std::string size = std::to_string(std::abs(value));
  return value < 0 ? "Takes " + size + " from your total" : "Adds " + size + " to your total";
}

}  // namespace

std::string CardMeaning(const CardCode& code) {
  const bool open = code.number() == kNotChosen;
  const std::string size = std::to_string(std::abs(code.number()));
  switch (code.type()) {
    case CardType::MainDeck:
      return "A card from the common deck: it counts " + std::to_string(code.cardValue()) + ".";
    case CardType::Flip:
      return "Adds or takes " + size + ": choose the sign with the button below it.";
    case CardType::FlipPlus:
    case CardType::FlipMinus:
      return ChangeBy(code.cardValue()) + ": turn the sign with the button below it.";
    case CardType::Tiebreaker:
      return "Plus or minus 1, and wins a tied set if it is the last card of the side that ends it.";
    case CardType::Double:
      return "Repeats the card before it, which is the one just drawn.";
    case CardType::Flip24:
      return "Turns the sign of every 2 and 4 on your side of the table.";
    case CardType::Flip36:
      return "Turns the sign of every 3 and 6 on your side of the table.";
    case CardType::OneOrTwo:
      return open ? std::string("Plus or minus 1 or 2, as you choose.")
                  : ChangeBy(code.cardValue()) +
                        ": turn the sign, or change 1 and 2, with the buttons below it.";
    case CardType::FaceDown:
      return "A card of the opponent's hand.";
    case CardType::Special6:
    case CardType::SpecialP:
    case CardType::Placeholder:
    case CardType::Other:
      return {};
    default:
      return ChangeBy(code.cardValue()) + ".";
  }
}

}  // namespace kv
