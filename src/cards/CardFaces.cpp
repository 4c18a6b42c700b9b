#include "cards/CardFaces.h"

#include <cstdlib>

namespace kv {
namespace {

constexpr int kFirstFace = 200;
constexpr int kStyleStep = 20;

std::string InWords(int value) {
  return (value < 0 ? "minus " : "plus ") + std::to_string(std::abs(value));
}

std::string Unchosen(const CardCode& code, const char* name) {
  return code.number() == kNotChosen ? name : "zero";
}

}  // namespace

void CardFaces::LoadCardPictures(const std::function<Picture(int number)>& getPic) {
  for (int style = 0; style < 2; ++style) {
    for (int slot = 1; slot <= 7; ++slot) {
      faces_.at(static_cast<std::size_t>(style)).at(static_cast<std::size_t>(slot) - 1) =
          getPic(kFirstFace + kStyleStep * style + slot);
    }
  }
}

Picture CardFaces::CardFace(int number) const {
  const int style = number / 10 % 10 / 2;
  const int slot = number % 10;
  if (number / 100 != kFirstFace / 100 || style > 1 || slot < 1 || slot > 7) return {};
  return faces_.at(static_cast<std::size_t>(style)).at(static_cast<std::size_t>(slot) - 1);
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
