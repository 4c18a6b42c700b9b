#include "cards/CardCode.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>

#include "platform/Text.h"

namespace kv {
namespace {

/// How a caption is made from the value.
enum class CaptionRule : std::uint8_t {
  Number,       // 7, -4
  Plus,         // "+" and the value
  PlusMinus,    // "±" and the absolute value
  Tiebreaker,   // "-1T", "±1T", "+1T"
  DoubleValue,  // "D" until it is played
  Inverter24,   // "2&&4" until it is played, then "0"
  Inverter36,
  OneOrTwo,  // "1±2" until it is chosen
  Zeros,     // "OOO"
  None,
};

struct TypeRow {
  CardType type;
  std::string_view prefix;
  bool negative;    // the value is minus the absolute number
  int pictureSlot;  // 1 to 7
  CaptionRule caption;
  CardType inverted;  // what a 2&4 or 3&6 card makes of it; itself when it stays
};

// To add a card type, add its row here (and its name in CardType).
constexpr std::array<TypeRow, 20> kTypes = {{
    {CardType::MainDeck, "no", false, 2, CaptionRule::Number, CardType::MainDeck},
    {CardType::Plus, "ps", false, 3, CaptionRule::Plus, CardType::PlusInverted},
    {CardType::Minus, "ms", true, 4, CaptionRule::Number, CardType::MinusInverted},
    {CardType::PlusInverted, "pi", true, 3, CaptionRule::Number, CardType::Plus},
    {CardType::MinusInverted, "mi", false, 4, CaptionRule::Plus, CardType::Minus},
    {CardType::Flip, "fl", false, 5, CaptionRule::PlusMinus, CardType::Flip},
    {CardType::FlipPlus, "fp", false, 5, CaptionRule::Plus, CardType::FlipPlusInverted},
    {CardType::FlipMinus, "fm", true, 6, CaptionRule::Number, CardType::FlipMinusInverted},
    {CardType::FlipPlusInverted, "fi", true, 5, CaptionRule::Number, CardType::FlipPlus},
    {CardType::FlipMinusInverted, "fj", false, 6, CaptionRule::Plus, CardType::FlipMinus},
    {CardType::Tiebreaker, "s1", false, 7, CaptionRule::Tiebreaker, CardType::Tiebreaker},
    {CardType::Double, "s2", false, 7, CaptionRule::DoubleValue, CardType::Double},
    {CardType::Flip24, "s3", false, 7, CaptionRule::Inverter24, CardType::Flip24},
    {CardType::Flip36, "s4", false, 7, CaptionRule::Inverter36, CardType::Flip36},
    {CardType::OneOrTwo, "s5", false, 7, CaptionRule::OneOrTwo, CardType::OneOrTwo},
    {CardType::Special6, "s6", false, 7, CaptionRule::None, CardType::Special6},
    {CardType::SpecialP, "sp", false, 7, CaptionRule::None, CardType::SpecialP},
    {CardType::FaceDown, "un", false, 1, CaptionRule::None, CardType::FaceDown},
    {CardType::Placeholder, "--", false, 1, CaptionRule::Zeros, CardType::Placeholder},
    {CardType::Other, "", false, 1, CaptionRule::None, CardType::Other},
}};

static_assert([] {
  for (std::size_t i = 0; i < kTypes.size(); ++i) {
    if (static_cast<std::size_t>(kTypes[i].type) != i) return false;
  }
  return true;
}());

constexpr std::size_t kPrefix = 2;  // characters of the type

// What stands in the place of a card, in the order of CardCode::Spelling.
constexpr std::array<std::string_view, 3> kNoCards = {"", "0", "00"};

const TypeRow& RowOf(CardType type) {
  return kTypes[static_cast<std::size_t>(type)];
}

/// Types are known without regard to case: a code in capitals is the same card.
CardType TypeOf(std::string_view text) {
  if (text.size() < 2) return CardType::Other;
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
  const char a = lower(text[0]);
  const char b = lower(text[1]);
  for (const TypeRow& row : kTypes) {
    if (row.prefix.size() == 2 && row.prefix[0] == a && row.prefix[1] == b) return row.type;
  }
  return CardType::Other;
}

/// Turning the sign of -32768 leaves the range; the nearest number that fits stands in.
std::int16_t Number16(int number) {
  return static_cast<std::int16_t>(std::clamp(number, -32768, 32767));
}

std::int16_t ValueOf(CardType type, int number) {
  if (type == CardType::Placeholder) return 0;
  return Number16(RowOf(type).negative ? -std::abs(number) : number);
}

std::string Signed(int value) {
  return value > 0 ? "+" + std::to_string(value) : std::to_string(value);
}

std::string TiebreakerCaption(int value) {
  if (value == 0 || value == kNotChosen) return "±1T";
  if (value == 1 || value == -1) return Signed(value) + "T";
  return "";
}

std::string PlainText(CardType type, int number) {
  std::array<char, 16> digits{};
  const char* end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  std::string text(RowOf(type).prefix);
  text.append(std::string_view(digits.data(), static_cast<std::size_t>(end - digits.data())));
  return text;
}

}  // namespace

int NumberOf(std::string_view text) {
  std::int16_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() ? number : 0;
}

CardCode::CardCode(std::string_view text)
    : type_(TypeOf(text)),
      number_(static_cast<std::int16_t>(NumberOf(text.substr(std::min(kPrefix, text.size()))))),
      value_(ValueOf(type_, number_)) {
  Keep(text);
}

CardCode::CardCode(CardType type, int number)
    : type_(type), spelling_(Spelling::Plain), number_(Number16(number)), value_(ValueOf(type, number_)) {
  if (type == CardType::Other) Keep(std::to_string(number_));
}

void CardCode::Keep(std::string_view text) {
  const auto* known = std::find(kNoCards.begin(), kNoCards.end(), text);
  spelling_ = static_cast<Spelling>(known - kNoCards.begin() + static_cast<int>(Spelling::Empty));
  if (spelling_ != Spelling::Own) return;
  if (type_ != CardType::Other && text == PlainText(type_, number_)) {
    spelling_ = Spelling::Plain;
  } else {
    own_ = std::make_shared<const std::string>(text);
  }
}

std::string CardCode::text() const {
  if (spelling_ == Spelling::Plain) return PlainText(type_, number_);
  return std::string(spelling_ == Spelling::Own ? *own_ : prefix());
}

std::string_view CardCode::prefix() const {
  if (spelling_ == Spelling::Plain) return RowOf(type_).prefix;
  if (spelling_ == Spelling::Own) return std::string_view(*own_).substr(0, kPrefix);
  return kNoCards.at(static_cast<std::size_t>(spelling_) - static_cast<std::size_t>(Spelling::Empty));
}

std::string CardCode::numericPart() const {
  const std::string all = text();
  return all.substr(std::min(kPrefix, all.size()));
}

std::string CardCode::Caption() const {
  switch (RowOf(type_).caption) {
    case CaptionRule::Number:
      return std::to_string(value_);
    case CaptionRule::Plus:
      return "+" + std::to_string(value_);
    case CaptionRule::PlusMinus:
      return "±" + std::to_string(std::abs(value_));
    case CaptionRule::Tiebreaker:
      return TiebreakerCaption(value_);
    case CaptionRule::DoubleValue:
      return value_ == kNotChosen ? "D" : std::to_string(value_);
    case CaptionRule::Inverter24:
      return value_ == kNotChosen ? "2&&4" : "0";
    case CaptionRule::Inverter36:
      return value_ == kNotChosen ? "3&&6" : "0";
    case CaptionRule::OneOrTwo:
      return value_ == 0 || value_ == kNotChosen ? "1±2" : Signed(value_);
    case CaptionRule::Zeros:
      return "OOO";
    case CaptionRule::None:
      break;
  }
  return "";
}

int CardCode::pictureSlot() const {
  return RowOf(type_).pictureSlot;
}

CardCode CardCode::Inverted() const {
  if (type_ == CardType::MainDeck) return {type_, -value_};
  const CardType inverted = RowOf(type_).inverted;
  return inverted == type_ ? *this : CardCode(inverted, std::abs(value_));
}

bool CardCode::hasFirstFlip() const {
  return type_ == CardType::FlipPlus || type_ == CardType::FlipMinus || type_ == CardType::Tiebreaker ||
         type_ == CardType::OneOrTwo;
}

CardCode CardCode::FirstFlip() const {
  if (!hasFirstFlip()) return *this;
  if (type_ == CardType::Tiebreaker || type_ == CardType::OneOrTwo) return {type_, -value_};
  return CardCode((type_ == CardType::FlipPlus ? "fm" : "fp") + numericPart());
}

CardCode CardCode::SecondFlip() const {
  if (!hasSecondFlip()) return *this;
  return {type_, std::abs(value_) == 1 ? value_ * 2 : value_ / 2};
}

CardCode CardCode::InHand() const {
  if (type_ == CardType::Flip && prefix() == "fl") {
    return spelling_ == Spelling::Plain ? CardCode(CardType::FlipPlus, number_)
                                        : CardCode("fp" + numericPart());
  }
  const bool chosen = type_ == CardType::Tiebreaker || type_ == CardType::OneOrTwo;
  return chosen && prefix().front() == 's' ? CardCode(type_, 1) : *this;
}

const CardCode& EmptiedSlot() {
  static const CardCode kEmptied("00");
  return kEmptied;
}

std::int16_t CardPrice(int kind, int value) {
  // Rows: plus, minus (a tenth dearer), flip, special; columns: the card's number 1 to 6.
  static constexpr std::array<std::array<std::int16_t, 6>, 4> kPrices = {{
      {600, 500, 400, 300, 200, 100},
      {660, 550, 440, 330, 220, 110},
      {1200, 1000, 850, 650, 420, 220},
      {2000, 1000, 1000, 1000, 2500, 0},
  }};
  static constexpr std::array<int, 4> kPictureKinds = {203, 204, 205, 207};
  const auto* picture = std::find(kPictureKinds.begin(), kPictureKinds.end(), kind);
  const int row =
      picture != kPictureKinds.end() ? static_cast<int>(picture - kPictureKinds.begin()) : kind - 1;
  if (row < 0 || row > 3 || value < 1 || value > 6) return 0;
  return kPrices[static_cast<std::size_t>(row)][static_cast<std::size_t>(value - 1)];
}

}  // namespace kv
