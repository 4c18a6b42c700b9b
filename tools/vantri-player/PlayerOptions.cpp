#include "vantri-player/PlayerOptions.h"

#include <algorithm>
#include <array>
#include <functional>

namespace kv {
namespace {

/// One option: its name, the words for its values, and how to read and write it as an index into them.
struct Option {
  std::string_view name;
  std::vector<std::string_view> values;
  std::function<std::size_t(const clsPlayer&)> read;
  std::function<void(clsPlayer&, std::size_t)> write;
};

Option Number(std::string_view name, std::vector<std::string_view> values,
              std::uint8_t PlayerFields::*field) {
  return {
      name, std::move(values), [field](const clsPlayer& player) { return std::size_t{player.*field}; },
      [field](clsPlayer& player, std::size_t index) { player.*field = static_cast<std::uint8_t>(index); }};
}

Option Switch(std::string_view name, bool PlayerFields::*field) {
  return {name,
          {"off", "on"},
          [field](const clsPlayer& player) { return std::size_t{player.*field}; },
          [field](clsPlayer& player, std::size_t index) { player.*field = index == 1; }};
}

const std::vector<Option>& Options() {
  static const std::vector<Option> kOptions = {
      {"style",
       {"Slate", "Ember"},
       [](const clsPlayer& player) { return std::size_t{player.Interface_Opt == "Ember"}; },
       [](clsPlayer& player, std::size_t index) { player.Interface_Opt = index == 1 ? "Ember" : "Slate"; }},
      Number("strategy", {"standard", "ember"}, &PlayerFields::ArcadeAI_Opt),
      Number("opponent", {"Orrin", "H6-J8"}, &PlayerFields::ArcadeOpp_Opt),
      Number("speed", {"slow", "normal", "fast"}, &PlayerFields::GameSpeed_Opt),
      Number("starter", {"random", "player", "alternating"}, &PlayerFields::TurnMode_Opt),
      Switch("keys", &PlayerFields::KeysEn),
      Switch("auto-turn", &PlayerFields::AutoTurn_Opt),
      Switch("auto-dialogs", &PlayerFields::AutoDialogs_Opt),
      Switch("light-pulse", &PlayerFields::LightPulse_Opt),
      Switch("portraits", &PlayerFields::ShowPortrait_Opt),
      Switch("minimize", &PlayerFields::ShowMinimize_Opt),
      Switch("mute-highlight", &PlayerFields::Mute_Highlight_Opt),
      Switch("mute-buttons", &PlayerFields::Mute_Buttons_Opt),
      Switch("mute-cards", &PlayerFields::Mute_Cards_Opt),
      Switch("mute-events", &PlayerFields::Mute_Events_Opt),
  };
  return kOptions;
}

std::string Joined(const std::vector<std::string_view>& values) {
  std::string text;
  for (const std::string_view value : values) text += (text.empty() ? "" : "|") + std::string(value);
  return text;
}

/// True when the word names a value; numbers count from 0.
std::optional<std::size_t> IndexOf(const Option& option, std::string_view word) {
  const auto found = std::find(option.values.begin(), option.values.end(), word);
  if (found != option.values.end()) return static_cast<std::size_t>(found - option.values.begin());
  if (word.size() == 1 && word[0] >= '0' && static_cast<std::size_t>(word[0] - '0') < option.values.size()) {
    return static_cast<std::size_t>(word[0] - '0');
  }
  return {};
}

}  // namespace

std::string PlayerOptionsHelp() {
  std::string text;
  for (const Option& option : Options()) {
    text += "  --" + std::string(option.name) + " " + Joined(option.values) + "\n";
  }
  return text;
}

std::string PlayerOptionsText(const clsPlayer& player) {
  std::string text = "name: " + player.Name + "\n";
  for (const Option& option : Options()) {
    const std::size_t index = option.read(player);
    text += std::string(option.name) + ": " +
            (index < option.values.size() ? std::string(option.values[index]) : std::to_string(index)) + "\n";
  }
  return text;
}

std::optional<std::vector<std::string>> ApplyPlayerOptions(std::span<const std::string> words,
                                                           clsPlayer& player, std::string& error) {
  std::vector<std::string> rest;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (!words[i].starts_with("--")) {
      rest.push_back(words[i]);
      continue;
    }
    const auto option = std::find_if(Options().begin(), Options().end(), [&](const Option& each) {
      return "--" + std::string(each.name) == words[i];
    });
    if (option == Options().end()) {
      error = "unknown option " + words[i];
      return {};
    }
    const auto index = i + 1 < words.size() ? IndexOf(*option, words[i + 1]) : std::nullopt;
    if (!index) {
      error = words[i] + " takes " + Joined(option->values);
      return {};
    }
    option->write(player, *index);
    ++i;
  }
  return rest;
}

}  // namespace kv
