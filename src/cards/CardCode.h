// The card code: the short text that stands for a card everywhere (decks, hands, tables, files, network).
// A code keeps its text exactly as written. As almost every text follows from type and number, only another
// spelling is stored, so that copying and comparing codes costs nothing. All that tells one card type from
// another is one table in CardCode.cpp.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace kv {

/// The two-letter types, in the order of the type table.
enum class CardType : std::uint8_t {
  MainDeck,           // "no": drawn at the start of a turn
  Plus,               // "ps"
  Minus,              // "ms"
  PlusInverted,       // "pi": a plus card after a 2&4 or 3&6 card
  MinusInverted,      // "mi"
  Flip,               // "fl": sign not yet chosen (decks and collections)
  FlipPlus,           // "fp"
  FlipMinus,          // "fm"
  FlipPlusInverted,   // "fi"
  FlipMinusInverted,  // "fj"
  Tiebreaker,         // "s1"
  Double,             // "s2"
  Flip24,             // "s3"
  Flip36,             // "s4"
  OneOrTwo,           // "s5"
  Special6,           // "s6": no rule uses it
  SpecialP,           // "sp": no rule uses it
  FaceDown,           // "un"
  Placeholder,        // "--"
  Other,              // anything else, the empty code and the emptied slot "00" included
};

/// The numeric part of a special card that has not been chosen yet.
inline constexpr int kNotChosen = 99;

class CardCode {
 public:
  /// The empty code: no card.
  CardCode() = default;
  /// Takes any text; what is not a card becomes CardType::Other with number 0.
  explicit CardCode(std::string_view text);
  /// The code of a type and a number, written with "-" when negative: (FlipMinus, -3) is "fm-3".
  CardCode(CardType type, int number);

  [[nodiscard]] std::string text() const;
  [[nodiscard]] bool empty() const { return spelling_ == Spelling::Empty; }
  /// No card: the empty code, or the emptied slot "00" of the opponent's hand.
  [[nodiscard]] bool noCard() const { return empty() || spelling_ == Spelling::DoubleZero; }
  [[nodiscard]] CardType type() const { return type_; }
  /// The first two characters, fewer when the text is shorter. Valid as long as this code is.
  [[nodiscard]] std::string_view prefix() const;
  /// Everything from the third character on.
  [[nodiscard]] std::string numericPart() const;
  /// The numeric part as a number; 0 when it is not wholly a decimal number of 16 bits.
  [[nodiscard]] int number() const { return number_; }
  /// What the card adds to a total: the number, negative in the negative types.
  [[nodiscard]] int cardValue() const { return value_; }
  /// The text on the card in UTF-8, with "&" doubled as captions need it.
  [[nodiscard]] std::string Caption() const;
  /// Face-down cards hide their caption.
  [[nodiscard]] bool captionHidden() const { return type_ == CardType::FaceDown; }
  /// Which of the seven card faces it bears, 1 to 7.
  [[nodiscard]] int pictureSlot() const;

  /// The code as it lies after a 2&4 or 3&6 card was played over it; types without a sign keep theirs.
  [[nodiscard]] CardCode Inverted() const;
  /// The first flip button: plus and minus side of a flip card, or the sign of a tiebreaker or one-or-two
  /// card.
  [[nodiscard]] CardCode FirstFlip() const;
  /// The second flip button: 1 and 2 of a one-or-two card.
  [[nodiscard]] CardCode SecondFlip() const;
  [[nodiscard]] bool hasFirstFlip() const;
  [[nodiscard]] bool hasSecondFlip() const { return type_ == CardType::OneOrTwo; }
  /// The code in the form in which a hand holds it: flip cards start as plus, tiebreaker and one-or-two at
  /// +1.
  [[nodiscard]] CardCode InHand() const;

  /// The same text.
  friend bool operator==(const CardCode& a, const CardCode& b) {
    if (a.spelling_ != b.spelling_ || a.type_ != b.type_) return false;
    return a.spelling_ == Spelling::Own ? *a.own_ == *b.own_ : a.number_ == b.number_;
  }

 private:
  /// Plain: the type's prefix and the number. All but Plain are CardType::Other, or kept as they are.
  enum class Spelling : std::uint8_t { Plain, Empty, Zero, DoubleZero, Own };

  void Keep(std::string_view text);

  std::shared_ptr<const std::string> own_;  // the text, when it is spelled its own way
  CardType type_ = CardType::Other;
  Spelling spelling_ = Spelling::Empty;
  std::int16_t number_ = 0;
  std::int16_t value_ = 0;
};

/// The code of an emptied slot of the opponent's hand.
[[nodiscard]] const CardCode& EmptiedSlot();

/// The whole text as a decimal number with an optional leading "-", when it fits 16 bits; otherwise 0.
[[nodiscard]] int NumberOf(std::string_view text);

/// The price of a card in the shop, in credits. `kind` is a row of the collection (1 plus, 2 minus, 3 flip,
/// 4 special) or the matching picture number (203, 204, 205, 207); `value` is the card's number 1 to 6.
/// Anything else is 0.
[[nodiscard]] std::int16_t CardPrice(int kind, int value);

}  // namespace kv
