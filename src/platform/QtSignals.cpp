#include "platform/QtSignals.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

namespace kv {
namespace {

constexpr std::array kSignals = {SIGTERM, SIGINT, SIGHUP};

struct Pipe {
  int read = -1;
  int write = -1;

  [[nodiscard]] static Pipe Open() {
    std::array<int, 2> ends{-1, -1};
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return {};
    return {ends[0], ends[1]};
  }
};

/// Signals are told to the process and not to an object of it, and so there is one pipe for all.
const Pipe& SignalPipe() {
  static const Pipe pipe = Pipe::Open();
  return pipe;
}

void Caught(int) {
  const int before = errno;
  const char byte = 0;
  // A pipe that is full has told it already.
  if (write(SignalPipe().write, &byte, 1) < 0) errno = before;
}

void SetHandler(int signal, void (*handler)(int)) {
  struct sigaction action {};
  sigemptyset(&action.sa_mask);
  action.sa_flags = SA_RESTART;
  action.sa_handler = handler;
  sigaction(signal, &action, nullptr);
}

/// Whoever starts the program with nohup wants it to outlive the terminal.
bool IsKeptIgnored(int signal) {
  struct sigaction now {};
  return signal == SIGHUP && sigaction(signal, nullptr, &now) == 0 && now.sa_handler == SIG_IGN;
}

}  // namespace

QtSignals::QtSignals() : notifier_(SignalPipe().read, QSocketNotifier::Read) {
  QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [this] { Read(); });
  if (SignalPipe().write < 0) return;  // no file can be opened any more: the signals end it the hard way
  for (const int signal : kSignals) {
    if (!IsKeptIgnored(signal)) SetHandler(signal, Caught);
  }
}

QtSignals::~QtSignals() {
  for (const int signal : kSignals) {
    if (!IsKeptIgnored(signal)) SetHandler(signal, SIG_DFL);
  }
}

void QtSignals::Read() {
  std::array<char, 16> bytes{};
  while (read(SignalPipe().read, bytes.data(), bytes.size()) > 0) {
  }
  ended_ = true;
  if (Ended) Ended();
}

}  // namespace kv
