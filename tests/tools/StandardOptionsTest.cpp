// Every program tells its options and its version, and does nothing else: not even a display is needed for
// it.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <string>

namespace kv {
namespace {

constexpr int kPatience = 20000;  // milliseconds, for a machine that is busy with something else
constexpr const char* kPrograms[] = {"vantri",        "vantri-peer",     "vantri-gallery",
                                     "vantri-demo",   "vantri-strength", "vantri-campaign",
                                     "vantri-player", "vantri-pictures", "vantri-interleave",
                                     "build-icon",    "build-sounds",    "build-vntdata"};

struct Ended {
  int code = -1;  // -1: it did not end by itself
  std::string output;
  std::string errors;
  bool leftFiles = false;
};

/// Runs a program in an empty home, where a window could not be opened.
Ended Start(const QString& program, const QStringList& words, const char* display = "xcb") {
  const QTemporaryDir home;
  QProcess process;
  process.setWorkingDirectory(home.path());
  QProcessEnvironment environment;
  environment.insert("HOME", home.path());
  environment.insert("QT_QPA_PLATFORM", QString::fromLatin1(display));
  // How the sanitizers of a checked build are set goes on to the programs.
  const char* sanitizers = "ASAN_OPTIONS";
  environment.insert(QString::fromLatin1(sanitizers), qEnvironmentVariable(sanitizers));
  process.setProcessEnvironment(environment);
  process.start(program, words);
  const bool ended = process.waitForFinished(kPatience) && process.exitStatus() == QProcess::NormalExit;
  return {ended ? process.exitCode() : -1, process.readAllStandardOutput().toStdString(),
          process.readAllStandardError().toStdString(),
          !QDir(home.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)};
}

QString PathOf(const char* program) {
  return QCoreApplication::applicationDirPath() + "/../bin/" + QString::fromLatin1(program);
}

class EveryProgram : public testing::TestWithParam<const char*> {};

TEST_P(EveryProgram, TellsItsVersionAndItsOptionsAndRefusesOnesThatItDoesNotKnow) {
  const Ended version = Start(PathOf(GetParam()), {"--version"});
  EXPECT_EQ(version.output, std::string(GetParam()) + " " KV_VERSION "\n");
  const Ended help = Start(PathOf(GetParam()), {"--help"});
  EXPECT_TRUE(help.output.starts_with(std::string("usage: ") + GetParam() + " ")) << help.output;
  const Ended refused = Start(PathOf(GetParam()), {"--no-such-option"}, "offscreen");
  EXPECT_EQ(refused.output, "");
  for (const Ended* end : {&version, &help, &refused}) {
    EXPECT_EQ(end->code, end == &refused ? 2 : 0) << end->errors;
    EXPECT_EQ(end->errors.empty(), end != &refused) << end->errors;
    EXPECT_FALSE(end->leftFiles);
  }
}

INSTANTIATE_TEST_SUITE_P(Programs, EveryProgram, testing::ValuesIn(kPrograms), [](const auto& program) {
  std::string name = program.param;
  std::erase(name, '-');
  return name;
});

}  // namespace
}  // namespace kv
