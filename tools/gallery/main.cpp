// vantri-gallery: renders every screen in both styles, at scale 1 and 2. The data file and the fonts are
// those beside this tool.
#include <QApplication>
#include <QProcess>
#include <algorithm>
#include <cstring>
#include <filesystem>
#include <iostream>

#include "Gallery.h"
#include "platform/Folders.h"
#include "platform/QtFontSystem.h"
#include "platform/QtPropertyBag.h"
#include "platform/StandardOptions.h"
#include "presentation/Fonts.h"

namespace {

constexpr const char* kScale = "QT_SCALE_FACTOR";
constexpr const char* kUsage =
    "usage: vantri-gallery FOLDER [--contrast]\n"
    "Renders every screen in both styles into FOLDER. With --contrast it fails if a text of theirs has a\n"
    "contrast of less than 4.5 to 1.\n";

/// The scale belongs to a whole process: one for each.
int RenderInProcesses(const QStringList& arguments) {
  int result = 0;
  for (const char* scale : {"1", "2"}) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(kScale), QString::fromLatin1(scale));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QCoreApplication::applicationFilePath(), arguments);
    if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit) return 1;
    result = std::max(result, process.exitCode());
  }
  return result;
}

int RenderStyle(kv::Gallery gallery, bool contrast) {
  if (contrast) gallery.MeasureTexts();
  int result = 0;
  for (const std::string& file : gallery.Render()) {
    std::cerr << "vantri-gallery: " << file << " could not be written\n";
    result = 1;
  }
  for (const std::string& text : gallery.faintTexts()) {
    std::cerr << "vantri-gallery: too faint: " << text << '\n';
    result = 1;
  }
  if (contrast) {
    std::cout << gallery.style() << " @" << gallery.scale() << ": least contrast " << gallery.leastContrast()
              << '\n';
  }
  return result;
}

}  // namespace

int main(int argc, char** argv) {
  if (kv::AnswersStandardOption(argc, argv, "vantri-gallery", kUsage)) return 0;
  const bool contrast = argc == 3 && std::strcmp(argv[2], "--contrast") == 0;
  if ((argc != 2 && !contrast) || argv[1][0] == '-') {
    std::cerr << kUsage;
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const std::string programFolder = kv::ProgramFolder();
  qputenv("KV_ASSETS", QByteArray::fromStdString(programFolder));
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  const int scale = qEnvironmentVariableIntValue(kScale);
  const std::string folder = argv[1];
  std::filesystem::create_directories(folder);
  if (scale < 1) return RenderInProcesses(QCoreApplication::arguments().mid(1));

  kv::test::ScriptedDialogs dialogs;
  kv::QtFontSystem fonts;
  for (const kv::DisplayFont& font : kv::kDisplayFonts) {
    kv::InstallFont(programFolder + "/" + font.file, font.name, false, fonts, dialogs);
  }
  QApplication::setFont(
      kv::FontOf(QString::fromLatin1(kv::kDisplayFonts[1].name), 10, false));  // as the game
  int result = 0;
  for (const char* style : {"Slate", "Ember"}) {
    result = std::max(result, RenderStyle(kv::Gallery(folder, style, scale), contrast));
  }
  return result;
}
