// A stream made of anything, cut anywhere: framing stays within its bounds, every cutting gives the same
// messages, and whatever is taken for a message is within the limits that the game relies on.
#include "network/Message.h"

#include <cstdint>
#include <cstdlib>
#include <variant>

#include "network/Framing.h"
#include "platform/Text.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

struct Limits {
  void operator()(const kv::msg::Card& card) const { Require(card.value >= 1 && card.value <= 10); }
  void operator()(const kv::msg::Hand& hand) const {
    Require(hand.slot >= 1 && hand.slot <= 4 && kv::IsHandCode(hand.code));
    Require(hand.code.cardValue() >= -6 && hand.code.cardValue() <= kv::kNotChosen);
  }
  void operator()(const kv::msg::Chat& chat) const { Require(kv::WireText(chat.text) == chat.text); }
  void operator()(const kv::msg::Name& name) const {
    Require(!name.text.empty() && kv::WireText(name.text) == name.text);
  }
  void operator()(const kv::msg::File& file) const {
    Require(!file.baseName.empty() && file.baseName.find_first_of("/\\:*?") == std::string::npos);
    Require(file.baseName != "." && file.baseName != "..");
  }
  void operator()(const kv::msg::Port& port) const {
    Require(port.number >= 0 && port.number <= kv::kMostPortraitNumber);
  }
  void operator()(const kv::msg::Wage& wage) const { Require(wage.amount >= 0 && wage.amount <= 2000000000); }
  template <typename Other>
  void operator()(const Other&) const {}
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  kv::Framing whole;
  const auto messages = whole.Feed(bytes);
  kv::Framing cut;
  std::vector<std::string> again;
  for (std::size_t at = 0; at < size;) {
    const std::size_t step = 1 + data[at] % 7;
    for (auto& message : cut.Feed(bytes.substr(at, step))) again.push_back(std::move(message));
    at += step;
  }
  Require(messages == again && whole.broken() == cut.broken());
  for (const std::string& message : messages) {
    Require(message.size() <= kv::kMostFrame);
    if (const auto parsed = kv::ParseMessage(kv::FromWindows1252(message))) std::visit(Limits{}, *parsed);
  }
  return 0;
}
