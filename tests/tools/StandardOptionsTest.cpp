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
  environment.insert(QStringLiteral("HOME"), home.path());
  environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QString::fromLatin1(display));
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
  return QCoreApplication::applicationDirPath() + QStringLiteral("/../bin/") + QString::fromLatin1(program);
}

class EveryProgram : public testing::TestWithParam<const char*> {};

TEST_P(EveryProgram, TellsItsVersion) {
  const Ended end = Start(PathOf(GetParam()), {QStringLiteral("--version")});
  EXPECT_EQ(end.code, 0) << end.errors;
  EXPECT_EQ(end.output, std::string(GetParam()) + " " KV_VERSION "\n");
  EXPECT_EQ(end.errors, "");
  EXPECT_FALSE(end.leftFiles);
}

TEST_P(EveryProgram, TellsItsOptions) {
  const Ended end = Start(PathOf(GetParam()), {QStringLiteral("--help")});
  EXPECT_EQ(end.code, 0) << end.errors;
  EXPECT_TRUE(end.output.starts_with(std::string("usage: ") + GetParam() + " ")) << end.output;
  EXPECT_EQ(end.errors, "");
  EXPECT_FALSE(end.leftFiles);
}

TEST_P(EveryProgram, RefusesAnOptionThatItDoesNotKnow) {
  const Ended end = Start(PathOf(GetParam()), {QStringLiteral("--no-such-option")}, "offscreen");
  EXPECT_EQ(end.code, 2);
  EXPECT_NE(end.errors, "");
  EXPECT_EQ(end.output, "");
  EXPECT_FALSE(end.leftFiles);
}

INSTANTIATE_TEST_SUITE_P(Programs, EveryProgram, testing::ValuesIn(kPrograms), [](const auto& program) {
  std::string name = program.param;
  std::erase(name, '-');
  return name;
});

}  // namespace
}  // namespace kv
