// Prints the options of a player file, and sets the ones that are named.
#include <algorithm>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "platform/Files.h"
#include "platform/Folders.h"
#include "platform/StandardOptions.h"
#include "profile/clsPlayer.h"
#include "vantri-player/PlayerOptions.h"

namespace {

/// What the record would tell in a box goes to standard error here.
class ConsoleDialogs final : public kv::Dialogs {
 public:
  bool told = false;

  void Message(const std::string& text, const std::string&, kv::DialogIcon) override {
    told = true;
    std::cerr << "vantri-player: " << text << "\n";
  }
  bool AskYesNo(const std::string&, const std::string&, kv::DialogIcon) override { return false; }
  std::optional<std::string> AskText(const std::string&, const std::string&, const std::string&) override {
    return {};
  }
};

constexpr const char* kUsage =
    "usage: vantri-player [FILE] [--pin PIN] [--option value]...\n"
    "Prints the options of a player file and sets those that are named. Without FILE it is the one that the\n"
    "game opens; a file that does not exist is made.\n";

constexpr int kBadUsage = 2;

int Fail(int code, const std::string& message) {
  std::cerr << "vantri-player: " << message << "\n";
  return code;
}

}  // namespace

int main(int argc, char** argv) {
  if (kv::AnswersStandardOption(argc, argv, "vantri-player", kUsage + kv::PlayerOptionsHelp())) return 0;
  std::vector<std::string> words(argv + 1, argv + argc);
  ConsoleDialogs dialogs;
  kv::SystemRandom random;
  kv::clsPlayer player(dialogs, random);
  const auto pin = std::find(words.begin(), words.end(), "--pin");
  if (pin != words.end() && pin + 1 != words.end()) {
    player.PIN = *(pin + 1);
    words.erase(pin, pin + 2);
  }
  std::string error;
  const auto files = kv::ApplyPlayerOptions(words, player, error);
  if (!files) return Fail(kBadUsage, error);
  if (files->size() > 1) return Fail(kBadUsage, "more than one file is named");
  const std::string path = files->empty() ? kv::UserFolder() + "/Player.vnt" : files->front();
  if (kv::FileExists(path)) {
    if (player.LoadPlayerFile(path)) return Fail(1, path + " cannot be loaded");
    // Once more: loading has put the file's own values in their place.
    static_cast<void>(kv::ApplyPlayerOptions(words, player, error));
  } else {
    std::error_code ignored;  // saving tells when the folder could not be made
    std::filesystem::create_directories(std::filesystem::path(path).parent_path(), ignored);
    player.Name = std::filesystem::path(path).stem().string();
    player.KeysEn = true;  // as in the player that the game makes
    static_cast<void>(kv::ApplyPlayerOptions(words, player, error));
    player.FileName = path;
  }
  if (words.size() > files->size() || !kv::FileExists(path)) player.WritePlayerFile();
  std::cout << kv::PlayerOptionsText(player);
  return dialogs.told ? 1 : 0;
}
