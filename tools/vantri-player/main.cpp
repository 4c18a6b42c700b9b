// vantri-player: shows a player file and sets its options, without opening the game.
#include <array>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Files.h"
#include "platform/Folders.h"
#include "profile/clsPlayer.h"

namespace {

constexpr const char* kUsage =
    "vantri-player [--file FILE] [--pin PIN] [--style Slate|Ember] [--strategy standard|ember]\n"
    "              [--speed slow|normal|fast] [--keys on|off]\n"
    "  Sets options of a player file (the default player's when no FILE is given), then prints them.\n";

/// Says on the terminal what the game would say in a box.
class TerminalDialogs final : public kv::Dialogs {
 public:
  void Message(const std::string& text, const std::string& title, kv::DialogIcon) override {
    std::fprintf(stderr, "%s: %s\n", title.c_str(), text.c_str());
  }
  bool AskYesNo(const std::string&, const std::string&, kv::DialogIcon) override { return false; }
  std::optional<std::string> AskText(const std::string&, const std::string&, const std::string&) override {
    return {};
  }
};

/// The position of `word` in a list of words, or nothing.
template <std::size_t N>
std::optional<std::uint8_t> Choice(std::string_view word, const std::array<std::string_view, N>& words) {
  for (std::size_t i = 0; i < N; ++i) {
    if (words[i] == word) return static_cast<std::uint8_t>(i);
  }
  return {};
}

constexpr std::array<std::string_view, 2> kStyles = {"Slate", "Ember"};
constexpr std::array<std::string_view, 2> kStrategies = {"standard", "ember"};
constexpr std::array<std::string_view, 3> kSpeeds = {"slow", "normal", "fast"};
constexpr std::array<std::string_view, 2> kSwitch = {"off", "on"};

/// Sets one option; false when the option or its value is unknown.
bool SetOption(kv::clsPlayer& player, std::string_view option, std::string_view value) {
  if (option == "--style" && Choice(value, kStyles)) {
    player.Interface_Opt = value;
  } else if (const auto strategy = Choice(value, kStrategies); option == "--strategy" && strategy) {
    player.ArcadeAI_Opt = *strategy;
  } else if (const auto speed = Choice(value, kSpeeds); option == "--speed" && speed) {
    player.GameSpeed_Opt = *speed;
  } else if (const auto keys = Choice(value, kSwitch); option == "--keys" && keys) {
    player.KeysEn = *keys == 1;
  } else {
    return false;
  }
  return true;
}

void Print(const kv::clsPlayer& player) {
  std::printf("%s: %s, arcade best %d, style %s, strategy %s, speed %d, keys %s\n", player.FileName.c_str(),
              player.Name.c_str(), player.Arcade_Best, player.Interface_Opt.c_str(),
              player.ArcadeAI_Opt == 1 ? "ember" : "standard", player.GameSpeed_Opt,
              player.KeysEn ? "on" : "off");
}

}  // namespace

int main(int count, char** words) {
  TerminalDialogs dialogs;
  kv::SystemRandom random;
  kv::clsPlayer player(dialogs, random);
  std::string file = kv::UserFolder() + "/Player.vnt";
  if (count % 2 == 0) {
    std::fputs(kUsage, stderr);
    return 2;
  }
  for (int i = 1; i < count; i += 2) {
    if (std::string_view(words[i]) == "--file") file = words[i + 1];
    if (std::string_view(words[i]) == "--pin") player.PIN = words[i + 1];
  }
  player.FileName = file;
  if (kv::FileExists(file)) {
    if (player.LoadPlayerFile(file)) {
      std::fprintf(stderr, "%s cannot be loaded (wrong PIN, or damaged); it was not changed\n", file.c_str());
      return 1;
    }
  } else {
    player.Name = "Player";
    player.KeysEn = true;
  }
  bool changed = false;
  for (int i = 1; i < count; i += 2) {
    const std::string_view option = words[i];
    if (option == "--file" || option == "--pin") continue;
    if (!SetOption(player, option, words[i + 1])) {
      std::fputs(kUsage, stderr);
      return 2;
    }
    changed = true;
  }
  if (changed) {
    std::error_code error;  // a folder that cannot be made is told by the save
    std::filesystem::create_directories(std::filesystem::path(file).parent_path(), error);
    player.WritePlayerFile();
  }
  Print(player);
  return 0;
}
