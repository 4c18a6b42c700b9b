// vantri-peer: hosts or joins a network game and plays it by a strategy, without a window. For practice while
// no friend is there, for tests and for long runs; --help tells the rest.
#include <signal.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTemporaryDir>
#include <filesystem>
#include <iostream>

#include "platform/Files.h"
#include "platform/QtScheduler.h"
#include "platform/QtTcpSocket.h"
#include "platform/StandardOptions.h"
#include "vantri-peer/HastyScheduler.h"
#include "vantri-peer/PeerProgram.h"
#include "vantri-peer/PeerSocket.h"
#include "vantri-player/PlayerOptions.h"

namespace {

constexpr int kBadUsage = 2;
constexpr const char* kDefaultName = "Practice";
constexpr std::int16_t kOwnPortrait = 23;  // of a player made here: not the one that every new player bears

int Fail(int code, const std::string& message) {
  std::cerr << "vantri-peer: " << message << "\n";
  return code;
}

/// Where the player lies: the file itself, or one of the player's name in the folder.
std::string PlayerPath(const kv::PeerOptions& options, const std::string& ownFolder) {
  const std::string place = options.player.empty() ? ownFolder : options.player;
  std::error_code error;
  if (!std::filesystem::is_directory(place, error)) return place;
  return place + "/" + (options.name.empty() ? kDefaultName : options.name) + ".vnt";
}

/// False, said why, when the player cannot be had.
bool LoadPlayer(const kv::PeerOptions& options, const std::string& path, kv::clsPlayer& player) {
  player.PIN = options.pin;
  if (kv::FileExists(path)) {
    if (player.LoadPlayerFile(path)) {
      std::cerr << "vantri-peer: " << path << " cannot be loaded\n";
      return false;
    }
    if (!options.name.empty()) player.Name = options.name;
  } else {
    player.Name = options.name.empty() ? kDefaultName : options.name;
    player.FileName = path;
    player.Portrait = kOwnPortrait;
  }
  std::string ignored;  // the words were looked at before
  static_cast<void>(kv::ApplyPlayerOptions(options.playerOptions, player, ignored));
  player.WritePlayerFile();
  return true;
}

/// What is wrong with the words; empty when all of them set an option.
std::string WrongPlayerOption(const std::vector<std::string>& words) {
  const kv::QtScheduler clock;
  const kv::PlayerFields nobody;
  kv::PeerReport report(clock, nobody, false);
  kv::SystemRandom random;
  kv::clsPlayer tried(report, random);
  std::string error;
  const auto rest = kv::ApplyPlayerOptions(words, tried, error);
  if (!rest) return error;
  return rest->empty() ? std::string() : "what is \"" + rest->front() + "\"? --help tells the options";
}

/// Both signals that end a process are read as events: whatever runs comes to its end first.
int EndingSignals() {
  sigset_t ending;
  sigemptyset(&ending);
  sigaddset(&ending, SIGINT);
  sigaddset(&ending, SIGTERM);
  sigprocmask(SIG_BLOCK, &ending, nullptr);
  return signalfd(-1, &ending, SFD_CLOEXEC | SFD_NONBLOCK);
}

int Run(const kv::PeerOptions& options) {
  const QTemporaryDir ownFolder;
  kv::QtScheduler clock;
  kv::HastyScheduler scheduler(clock, options.hurry);
  kv::SystemRandom random;
  kv::PlayerFields nobody;
  kv::PeerReport startReport(scheduler, nobody, false);
  kv::clsPlayer player(startReport, random);
  const std::string path = PlayerPath(options, ownFolder.path().toStdString());
  if (!LoadPlayer(options, path, player)) return 1;
  kv::PeerReport report(scheduler, player, options.chat);
  kv::QtTcpSocket line;
  kv::PeerSocket socket(line, options.version);
  if (options.trace) socket.Tap = [&](bool sent, std::string_view bytes) { report.Trace(sent, bytes); };
  kv::PeerProgram program(
      {options, scheduler, random, socket, player, report, [](int code) { QCoreApplication::exit(code); }});

  const int signals = EndingSignals();
  QSocketNotifier notifier(signals, QSocketNotifier::Read);
  QObject::connect(&notifier, &QSocketNotifier::activated, &notifier, [&] {
    signalfd_siginfo received{};
    if (read(signals, &received, sizeof received) > 0) program.Leave();
  });
  program.Start();
  const int code = QCoreApplication::exec();
  close(signals);
  return code;
}

}  // namespace

int main(int argc, char** argv) {
  if (kv::AnswersStandardOption(argc, argv, "vantri-peer", kv::PeerHelp())) return 0;
  int none = 1;  // the toolkit would take some of the words for options of its own
  const QCoreApplication application(none, argv);
  const std::vector<std::string> words(argv + 1, argv + argc);
  std::string error;
  const auto options = kv::ParsePeerOptions(words, error);
  if (!options) return Fail(kBadUsage, error);
  if (const std::string wrong = WrongPlayerOption(options->playerOptions); !wrong.empty()) {
    return Fail(kBadUsage, wrong);
  }
  return Run(*options);
}
