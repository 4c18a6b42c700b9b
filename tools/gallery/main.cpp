// vantri-gallery FOLDER: renders every screen in both styles, at scale 1 and 2. The data file and the fonts
// are those beside this tool.
#include <QApplication>
#include <QProcess>
#include <filesystem>
#include <iostream>

#include "Gallery.h"
#include "platform/Folders.h"
#include "platform/QtFontSystem.h"
#include "presentation/Fonts.h"

namespace {

constexpr const char* kScale = "QT_SCALE_FACTOR";

/// The scale belongs to a whole process: one for each.
int RenderInProcesses(const QString& folder) {
  int result = 0;
  for (const char* scale : {"1", "2"}) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(kScale), QString::fromLatin1(scale));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QCoreApplication::applicationFilePath(), {folder});
    if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit) return 1;
    result = std::max(result, process.exitCode());
  }
  return result;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: vantri-gallery FOLDER\n";
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
  if (scale < 1) return RenderInProcesses(QString::fromStdString(folder));

  kv::test::ScriptedDialogs dialogs;
  kv::QtFontSystem fonts;
  for (const kv::DisplayFont& font : kv::kDisplayFonts) {
    kv::InstallFont(programFolder + "/" + font.file, font.name, false, fonts, dialogs);
  }
  int result = 0;
  for (const char* style : {"Slate", "Ember"}) {
    for (const std::string& file : kv::Gallery(folder, style, scale).Render()) {
      std::cerr << "vantri-gallery: " << file << " could not be written\n";
      result = 1;
    }
  }
  return result;
}
