#include "cards/CardFaces.h"

#include <cstdlib>

namespace kv {
namespace {

constexpr int kSlateFaces = 200;
constexpr int kEmberFaces = 220;

std::string InWords(int value) {
  return (value < 0 ? "minus " : "plus ") + std::to_string(std::abs(value));
}

std::string Unchosen(const CardCode& code, const char* name) {
  return code.number() == kNotChosen ? name : "zero";
}

}  // namespace

Picture CardFaces::CardFace(int number) const {
  const int slot = number % 10;
  const int style = number - slot;
  const bool face = (style == kSlateFaces || style == kEmberFaces) && slot >= 1 && slot <= 7;
  return face && getPic_ ? getPic_(number) : Picture();
}

std::string SpokenCard(const CardCode& code) {
  const bool open = code.number() == kNotChosen || code.number() == 0;
  switch (code.type()) {
    case CardType::MainDeck:
      return code.number() < 0 ? "minus " + std::to_string(-code.number()) : std::to_string(code.number());
    case CardType::Flip:
      return "plus or minus " + std::to_string(std::abs(code.number()));
    case CardType::FlipPlus:
    case CardType::FlipMinus:
      return "flip card, " + InWords(code.cardValue());
    case CardType::Tiebreaker:
      return "tiebreaker, " + (open ? std::string("plus or minus 1") : InWords(code.cardValue()));
    case CardType::Double:
      return code.number() == kNotChosen ? "double" : "double, " + InWords(code.cardValue());
    case CardType::Flip24:
      return Unchosen(code, "flip 2 and 4");
    case CardType::Flip36:
      return Unchosen(code, "flip 3 and 6");
    case CardType::OneOrTwo:
      return "one or two, " + (open ? std::string("plus or minus") : InWords(code.cardValue()));
    case CardType::FaceDown:
      return "face-down card";
    case CardType::Special6:
    case CardType::SpecialP:
    case CardType::Placeholder:
    case CardType::Other:
      return {};
    default:
      return InWords(code.cardValue());
  }
}

}  // namespace kv
