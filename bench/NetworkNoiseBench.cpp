// How long a peer that pours noise into its connection can keep the program from its screen, and what one
// line of chat costs when the log is full.
#include <arpa/inet.h>
#include <benchmark/benchmark.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QApplication>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <ctime>
#include <string>
#include <thread>

#include "app/Program.h"
#include "network/frmNetwork.h"
#include "platform/QtScheduler.h"
#include "platform/QtTcpSocket.h"
#include "support/RecordingSound.h"
#include "support/ScriptedDialogs.h"
#include "support/TempFolder.h"

namespace {

constexpr std::int16_t kPort = 6123;
constexpr std::size_t kNoise = 100'000'000;  // bytes

using Clock = std::chrono::steady_clock;

/// The longest of many steps: by the clock, and by the processor time of this thread, which other programs do
/// not lengthen.
class Longest {
 public:
  template <typename Step>
  void Measure(const Step& step) {
    const auto clock = Clock::now();
    const double processor = ProcessorTime();
    step();
    const std::chrono::duration<double, std::milli> took = Clock::now() - clock;
    clock_ = std::max(clock_, took.count());
    processor_ = std::max(processor_, ProcessorTime() - processor);
  }
  void Tell(benchmark::State& state) const {
    state.counters["longest_ms"] = clock_;
    state.counters["longest_processor_ms"] = processor_;
  }

 private:
  static double ProcessorTime() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
  }
  double clock_ = 0;
  double processor_ = 0;
};

/// A program in its lobby, with the real clock and the real socket.
struct Host {
  Host() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application = std::make_unique<QApplication>(argc, nullptr);
    scheduler = std::make_unique<kv::QtScheduler>();
    program = std::make_unique<kv::Program>(
        kv::ProgramServices{.scheduler = *scheduler,
                            .dialogs = dialogs,
                            .random = random,
                            .sound = sound,
                            .quit = [] {},
                            .newSocket = [] { return std::make_unique<kv::QtTcpSocket>(); }},
        kv::ProgramFolders{"no-such-folder", folder.path(), folder / "Portraits"});
    program->Start();
    auto player = std::make_unique<kv::clsPlayer>(dialogs, random);
    player->Name = "Hanna";
    player->FileName = folder / "Hanna.vnt";
    player->LastPort = kPort;
    program->PlayerLoaded(std::move(player));
    program->NewGame(kv::kModeNetwork);
    program->OpenLobby();
  }
  /// Listens again whenever the lobby stands idle, as a stubborn person would.
  void Listen() {
    auto* button = program->screen()->findChild<kv::ctlButton*>(QStringLiteral("cmdConnect"));
    if (button != nullptr && button->isEnabled()) button->click();
  }

  int argc = 0;
  kv::test::TempFolder folder;
  kv::test::ScriptedDialogs dialogs;
  kv::test::RecordingSound sound;
  kv::SeededRandom random{1};
  std::unique_ptr<QApplication> application;
  std::unique_ptr<kv::QtScheduler> scheduler;
  std::unique_ptr<kv::Program> program;
};

/// Sends `noise` over and over, on a new connection whenever the last one was closed.
void Pour(const std::string& noise, std::atomic<bool>& done) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(kPort);
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  for (std::size_t poured = 0; poured < kNoise;) {
    const int line = socket(AF_INET, SOCK_STREAM, 0);
    if (connect(line, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0) {
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    for (ssize_t sent = 0; sent >= 0 && poured < kNoise;) {
      sent = send(line, noise.data(), noise.size(), MSG_NOSIGNAL);
      if (sent > 0) poured += static_cast<std::size_t>(sent);
    }
    close(line);
  }
  done = true;
}

std::string Repeated(const std::string& message) {
  std::string noise;
  while (noise.size() < 60000) noise += message;
  return noise;
}

void Noise(benchmark::State& state, const std::string& noise) {
  Longest longest;
  for (auto _ : state) {
    Host host;
    std::atomic<bool> done = false;
    std::thread peer([&] { Pour(noise, done); });
    while (!done) {
      longest.Measure([&] {
        host.Listen();
        QCoreApplication::processEvents();
      });
      std::this_thread::sleep_for(std::chrono::microseconds(100));
    }
    peer.join();
  }
  longest.Tell(state);
}
BENCHMARK_CAPTURE(Noise, bytes, std::string(60000, 'x'))
    ->Name("network/100 MB of noise/one endless message")
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Noise, separators, std::string(60000, '\x87'))
    ->Name("network/100 MB of noise/empty messages")
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Noise, chat, Repeated("[Chat]" + std::string(4000, 'c') + "\x87"))
    ->Name("network/100 MB of noise/chat")
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

void ChatLine(benchmark::State& state, const std::string& line) {
  Host host;
  kv::NetworkGame& network = *host.program->network();
  Longest longest;
  for (int fill = 0; fill < 10000; ++fill) network.AddChatLine(line);
  for (auto _ : state) {
    longest.Measure([&] {
      network.AddChatLine(line);
      QCoreApplication::processEvents();
    });
  }
  longest.Tell(state);
}
BENCHMARK_CAPTURE(ChatLine, empty, "")
    ->Name("network/chat line into a full log/empty lines")
    ->Iterations(10000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ChatLine, longest, std::string(4000, 'c'))
    ->Name("network/chat line into a full log/longest lines")
    ->Iterations(100)
    ->Unit(benchmark::kMillisecond);

}  // namespace
