// vantri-demo [--option value]... FOLDER: plays one match by itself on the real screen, in real time, and
// leaves a picture of every turn and of the result in FOLDER. The options are those of vantri-player.
#include <QApplication>
#include <filesystem>
#include <iostream>

#include "DemoPlayer.h"
#include "app/Program.h"
#include "platform/Folders.h"
#include "platform/QtDialogs.h"
#include "platform/QtFontSystem.h"
#include "platform/QtScheduler.h"
#include "presentation/Fonts.h"
#include "vantri-player/PlayerOptions.h"

namespace {

class Silence final : public kv::SoundDevice {
 public:
  int LoadBuffer(const std::string&) override { return -1; }
  void PlayBuffer(int) override {}
  void PlayOnce(const std::string&) override {}
};

/// The player file that the program will open, with the options of the demonstration.
std::optional<std::string> MakePlayer(std::span<const std::string> words, kv::Dialogs& dialogs,
                                      kv::Random& random, const std::string& folder, std::string& error) {
  kv::clsPlayer player(dialogs, random);
  player.Name = "Player";
  player.KeysEn = true;
  player.GameSpeed_Opt = 2;
  const auto rest = kv::ApplyPlayerOptions(words, player, error);
  if (!rest) return {};
  if (rest->size() != 1) {
    error = "one folder must be named";
    return {};
  }
  std::filesystem::create_directories(folder);
  player.FileName = folder + "/Player.vnt";
  player.WritePlayerFile();
  return rest->front();
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const std::vector<std::string> words(argv + 1, argv + argc);
  int none = 1;  // the toolkit would take "--style" for an option of its own
  QApplication application(none, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  kv::QtScheduler scheduler;
  kv::QtDialogs dialogs(scheduler);
  kv::SystemRandom random;
  Silence silence;
  const std::string playerFolder = (std::filesystem::temp_directory_path() /
                                    ("vantri-demo-" + std::to_string(QCoreApplication::applicationPid())))
                                       .string();
  std::string error;
  const auto folder = MakePlayer(words, dialogs, random, playerFolder, error);
  if (!folder) {
    std::cerr << "vantri-demo: " << error << "\nusage: vantri-demo [--option value]... FOLDER\n"
              << kv::PlayerOptionsHelp();
    return 2;
  }
  std::filesystem::create_directories(*folder);
  kv::QtFontSystem fonts;
  for (const kv::DisplayFont& font : kv::kDisplayFonts) {
    kv::InstallFont(kv::ProgramFolder() + "/" + font.file, font.name, false, fonts, dialogs);
  }
  bool finished = false;
  {
    kv::Program program({scheduler, dialogs, random, silence, [] {}}, {kv::ProgramFolder(), playerFolder});
    program.Start();
    kv::DemoPlayer demo(*program.match(), program.game(), scheduler, *folder);
    finished = demo.PlayMatch();
    const kv::MatchEngine& engine = program.match()->engine();
    std::cout << program.match()->banner().lblBust().text().toStdString() << " "
              << engine.SetWins(kv::Seat::Player) << " to " << engine.SetWins(kv::Seat::Opponent) << "; "
              << demo.pictures() << " pictures in " << *folder << "\n";
  }
  std::filesystem::remove_all(playerFolder);
  return finished ? 0 : 1;
}
