// The messages of a network game as values. ParseMessage is the one door for what a peer sends: a text
// becomes a message whose every part has been checked, or nothing. It must never change anything.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "cards/CardCode.h"

namespace kv {

inline constexpr std::size_t kMostNameCharacters = 64;
inline constexpr int kMostPortraitNumber = 65;

/// The messages, named after their commands. All texts are UTF-8 of one line.
namespace msg {
struct Acpt {};
struct Back {};
struct Card {
  int value;  // of the main-deck card drawn: 1 to 10
};
struct Mode {
  bool arcade;
};
struct Chat {
  std::string text;
};
struct Forf {};
struct Hand {
  int slot;       // 1 to 4
  CardCode code;  // a card that a hand can hold, as it is played
};
struct Name {
  std::string text;  // not empty
};
struct Play {};  // "[Rset]" is the same
struct File {
  std::string baseName;  // a plain name without extension, never a path; "0" for none
};
struct Port {
  int number;  // 0 to kMostPortraitNumber
};
struct Quit {};
struct Stnd {};
struct Turn {};
struct TAck {};
struct Vers {
  std::string version;  // empty when it cannot be read
};
struct Wage {
  std::int32_t amount;  // 0 to kMostCredits
};
struct WhoS {
  bool youStart;
};
}  // namespace msg

using Message = std::variant<msg::Acpt, msg::Back, msg::Card, msg::Mode, msg::Chat, msg::Forf, msg::Hand,
                             msg::Name, msg::Play, msg::File, msg::Port, msg::Quit, msg::Stnd, msg::Turn,
                             msg::TAck, msg::Vers, msg::Wage, msg::WhoS>;

/// The message in `text` (a command of six characters and its payload); nothing when the command is unknown
/// or its payload is not one that it can carry.
[[nodiscard]] std::optional<Message> ParseMessage(std::string_view text);

/// Text that can go over the wire as part of one message, in the form in which it arrives: without
/// separators, line breaks and control characters, and with "?" for what the wire's characters lack.
[[nodiscard]] std::string WireText(std::string_view text);

/// Whether the code is one that a hand can hold and play.
[[nodiscard]] bool IsHandCode(const CardCode& code);

}  // namespace kv
