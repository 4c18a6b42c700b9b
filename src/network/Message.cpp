#include "network/Message.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>

#include "match/clsGame.h"
#include "platform/Text.h"

namespace kv {
namespace {

constexpr std::size_t kCommandLength = 6;
constexpr std::size_t kMostVersionLength = 16;
constexpr std::size_t kExtensionLength = 4;  // of a player file, the point included
constexpr std::size_t kMostFileName = 255;
constexpr int kHighestDraw = 10;
constexpr int kHighestSideCard = 6;
constexpr std::string_view kSeparator = "\u2021";

using Parsed = std::optional<Message>;

bool AllOf(std::string_view text, std::string_view allowed) {
  return !text.empty() && text.find_first_not_of(allowed) == std::string_view::npos;
}

/// Decimal digits with a value from 0 to `most`; no sign, no blanks.
std::optional<std::int32_t> Decimal(std::string_view text, std::int32_t most) {
  std::int32_t number = 0;
  if (!AllOf(text, "0123456789")) return {};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || number > most) return {};
  return number;
}

std::optional<bool> Boolean(std::string_view text) {
  if (text == "1" || text == "True") return true;
  if (text == "0" || text == "False") return false;
  return {};
}

/// Messages that are a command and nothing else.
template <typename T>
Parsed Bare(std::string_view payload) {
  return payload.empty() ? Parsed(T{}) : Parsed();
}

Parsed ParseCard(std::string_view payload) {
  const CardCode code(payload);
  const int value = code.number();
  // Spelled as it is made here: a code has one text only.
  if (value < 1 || value > kHighestDraw || !(CardCode(CardType::MainDeck, value) == code)) return {};
  return msg::Card{value};
}

Parsed ParseMode(std::string_view payload) {
  const auto arcade = Boolean(payload);
  return arcade ? Parsed(msg::Mode{*arcade}) : Parsed();
}

Parsed ParseChat(std::string_view payload) {
  return msg::Chat{WireText(payload)};
}

Parsed ParseHand(std::string_view payload) {
  if (payload.empty() || payload.front() < '1' || payload.front() > '0' + kHandSize) return {};
  CardCode code(payload.substr(1));
  if (!IsHandCode(code)) return {};
  return msg::Hand{payload.front() - '0', std::move(code)};
}

Parsed ParseName(std::string_view payload) {
  std::string name = WireText(payload);
  const bool blank = name.find_first_not_of(' ') == std::string::npos;
  if (blank || ToWindows1252(name).size() > kMostNameCharacters) return {};
  return msg::Name{std::move(name)};
}

Parsed ParseFile(std::string_view payload) {
  if (payload.empty() || payload.size() > kMostFileName || WireText(payload) != payload) return {};
  if (payload.find_first_of("/\\:*?\"<>|") != std::string_view::npos) return {};
  const std::size_t length = payload.size() > kExtensionLength ? payload.size() - kExtensionLength : 1;
  std::string base(payload.substr(0, length));
  // Four bytes short of the end may lie inside a character: such a name has no plain extension.
  if (WireText(base) != base) return {};
  if (base.find_first_not_of('.') == std::string::npos) return {};  // this folder, or the one above
  return msg::File{std::move(base)};
}

Parsed ParsePort(std::string_view payload) {
  const auto number = Decimal(payload, kMostPortraitNumber);
  return number ? Parsed(msg::Port{*number}) : Parsed();
}

Parsed ParseVers(std::string_view payload) {
  const bool printable =
      std::all_of(payload.begin(), payload.end(), [](char c) { return c >= ' ' && c <= '~'; });
  // A version that cannot be read is a version all the same, of a program that this one cannot play with.
  if (payload.empty() || payload.size() > kMostVersionLength || !printable) return msg::Vers{};
  return msg::Vers{std::string(payload)};
}

Parsed ParseWage(std::string_view payload) {
  const auto amount = Decimal(payload, kMostCredits);
  return amount ? Parsed(msg::Wage{*amount}) : Parsed();
}

Parsed ParseWhoS(std::string_view payload) {
  const auto starts = Boolean(payload);
  return starts ? Parsed(msg::WhoS{*starts}) : Parsed();
}

struct CommandRow {
  std::string_view command;
  Parsed (*parse)(std::string_view payload);
};

constexpr std::array<CommandRow, 19> kCommands = {{
    {"[Acpt]", Bare<msg::Acpt>}, {"[Back]", Bare<msg::Back>}, {"[Card]", ParseCard},
    {"[Mode]", ParseMode},       {"[Chat]", ParseChat},       {"[Forf]", Bare<msg::Forf>},
    {"[Hand]", ParseHand},       {"[Name]", ParseName},       {"[Play]", Bare<msg::Play>},
    {"[Rset]", Bare<msg::Play>}, {"[File]", ParseFile},       {"[Port]", ParsePort},
    {"[Quit]", Bare<msg::Quit>}, {"[Stnd]", Bare<msg::Stnd>}, {"[Turn]", Bare<msg::Turn>},
    {"[TAck]", Bare<msg::TAck>}, {"[Vers]", ParseVers},       {"[Wage]", ParseWage},
    {"[WhoS]", ParseWhoS},
}};

}  // namespace

Parsed ParseMessage(std::string_view text) {
  const std::string_view command = text.substr(0, kCommandLength);
  const auto* row = std::find_if(kCommands.begin(), kCommands.end(),
                                 [&](const CommandRow& each) { return each.command == command; });
  if (row == kCommands.end()) return {};
  return row->parse(text.substr(kCommandLength));
}

std::string WireText(std::string_view text) {
  std::string bytes = ToWindows1252(text);
  const std::string separator = ToWindows1252(kSeparator);
  std::erase_if(bytes, [&](char c) {
    const auto byte = static_cast<unsigned char>(c);
    // The five bytes that stand for no character are control characters too.
    const bool control = byte < 0x20 || byte == 0x7F || byte == 0x81 || byte == 0x8D || byte == 0x8F ||
                         byte == 0x90 || byte == 0x9D;
    return control || c == separator.front();
  });
  return FromWindows1252(bytes);
}

bool IsHandCode(const CardCode& code) {
  const int number = code.number();
  const int size = std::abs(number);
  const bool plainSpelling = code.numericPart() == std::to_string(number);
  if (!plainSpelling) return false;
  switch (code.type()) {
    case CardType::Plus:
    case CardType::FlipPlus:
      return number >= 1 && number <= kHighestSideCard;
    case CardType::Minus:
    case CardType::FlipMinus:
      return size >= 1 && size <= kHighestSideCard;
    case CardType::Tiebreaker:
      return size == 1;
    case CardType::OneOrTwo:
      return size == 1 || size == 2;
    case CardType::Double:
    case CardType::Flip24:
    case CardType::Flip36:
      return number == kNotChosen;
    default:
      return false;
  }
}

}  // namespace kv
