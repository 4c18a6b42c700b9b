// vantri-demo: goes the whole way through the game by itself, off screen and in real time. It fails when
// something does not happen that should.
#include <QApplication>
#include <QProcess>
#include <QTimer>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <vector>

#include "DemoTour.h"
#include "app/Program.h"
#include "platform/Folders.h"
#include "platform/QtDialogs.h"
#include "platform/QtFontSystem.h"
#include "platform/QtScheduler.h"
#include "platform/StandardOptions.h"
#include "presentation/Fonts.h"
#include "support/TempFolder.h"
#include "vantri-player/PlayerOptions.h"

namespace {

constexpr const char* kUsage =
    "usage: vantri-demo [--option value]... FOLDER\n"
    "Goes the whole way through the game by itself, off screen, and leaves a picture of every screen in\n"
    "FOLDER, in both styles or in that of --style. The options are those of its player:\n";
constexpr const char* kStyleOption = "--style";
constexpr std::uint64_t kSeed = 20;  // the cards fall the same way each time
constexpr int kLongest = 240000;     // milliseconds for the whole way

class Silence final : public kv::SoundDevice {
 public:
  int LoadBuffer(const std::string&) override { return -1; }
  void PlayBuffer(int) override {}
  void PlayOnce(const std::string&) override {}
  void setVolume(int) override {}
};

void Go(kv::DemoPerson& person, const std::string& style, std::span<const std::string> options) {
  kv::DemoTour tour(person, style);
  tour.CreatePlayer();
  std::string error;
  static_cast<void>(kv::ApplyPlayerOptions(options, *person.program().player(), error));
  tour.ChooseOptions();
  tour.Arcade();
  tour.Campaign();
  tour.Farewell();
}

int GoInStyle(const std::string& style, std::span<const std::string> options, const std::string& folder) {
  kv::QtScheduler scheduler;
  kv::QtDialogs dialogs(scheduler);
  kv::SeededRandom random(kSeed);
  Silence silence;
  kv::QtFontSystem fonts;
  for (const kv::DisplayFont& font : kv::kDisplayFonts) {
    kv::InstallFont(kv::ProgramFolder() + "/" + font.file, font.name, false, fonts, dialogs);
  }
  // A box that nobody expects would hold everything up.
  QTimer::singleShot(kLongest, [&style] {
    std::cerr << "vantri-demo, " << style << ": it takes too long\n";
    std::_Exit(1);
  });
  const kv::test::TempFolder players;
  kv::Program program({scheduler, dialogs, random, silence, [] {}},
                      {kv::ProgramFolder(), players.path(), players / "Portraits"});
  program.Start();
  kv::DemoPerson person(program, scheduler, folder, style + "-");
  try {
    Go(person, style, options);
  } catch (const kv::DemoFailure& failure) {
    std::cerr << "vantri-demo, " << style << ": " << failure.what() << "\n";
    if (program.screen() != nullptr) person.TakePicture("failure");
    return 1;
  }
  std::cout << style << ": " << person.pictures() << " pictures in " << folder << "\n";
  return 0;
}

/// Both styles at the same time, each in a process of its own.
int GoInBothStyles(const std::vector<std::string>& words) {
  std::array<QProcess, 2> processes;
  constexpr std::array kStyles = {"Slate", "Ember"};
  for (std::size_t i = 0; i < processes.size(); ++i) {
    QStringList arguments{QString::fromLatin1(kStyleOption), QString::fromLatin1(kStyles.at(i))};
    for (const std::string& word : words) arguments.append(QString::fromStdString(word));
    processes.at(i).setProcessChannelMode(QProcess::ForwardedChannels);
    processes.at(i).start(QCoreApplication::applicationFilePath(), arguments);
  }
  int result = 0;
  for (QProcess& process : processes) {
    const bool ended = process.waitForFinished(kLongest) && process.exitStatus() == QProcess::NormalExit;
    if (!ended) process.kill();
    result = std::max(result, ended ? process.exitCode() : 1);
  }
  return result;
}

}  // namespace

int main(int argc, char** argv) {
  if (kv::AnswersStandardOption(argc, argv, "vantri-demo", kUsage + kv::PlayerOptionsHelp())) return 0;
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const std::vector<std::string> words(argv + 1, argv + argc);
  int none = 1;  // the toolkit would take "--style" for an option of its own
  const QApplication application(none, argv);
  QApplication::setQuitOnLastWindowClosed(false);

  kv::QtScheduler scheduler;
  kv::QtDialogs dialogs(scheduler);
  kv::SystemRandom random;
  kv::clsPlayer checked(dialogs, random);
  std::string error;
  const auto rest = kv::ApplyPlayerOptions(words, checked, error);
  if (!rest || rest->size() != 1) {
    std::cerr << "vantri-demo: " << (rest ? "one folder must be named" : error) << "\n"
              << kUsage << kv::PlayerOptionsHelp();
    return 2;
  }
  std::filesystem::create_directories(rest->front());
  if (std::find(words.begin(), words.end(), kStyleOption) == words.end()) return GoInBothStyles(words);
  return GoInStyle(checked.Interface_Opt, words, rest->front());
}
