// The game. It takes no options: everything it remembers is in the player file.
#include <QApplication>
#include <QDesktopServices>
#include <QIcon>
#include <QUrl>
#include <filesystem>

#include "app/AccessibleRoles.h"
#include "app/Program.h"
#include "app/SingleInstance.h"
#include "app/StartCheck.h"
#include "platform/FileSettings.h"
#include "platform/Folders.h"
#include "platform/Memory.h"
#include "platform/QtDialogs.h"
#include "platform/QtFontSystem.h"
#include "platform/QtScheduler.h"
#include "platform/QtSignals.h"
#include "platform/QtSizeFactor.h"
#include "platform/QtThrift.h"
#include "platform/SdlSoundDevice.h"
#include "presentation/Fonts.h"

namespace {

void OpenFolder(const std::string& folder) {
  std::error_code error;
  const std::string absolute = std::filesystem::absolute(folder, error).string();
  QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(absolute)));
}

void OpenAddress(const std::string& address) {
  QDesktopServices::openUrl(QUrl::fromUserInput(QString::fromStdString(address)));
}

/// The icon's sizes that lie beside the program; a missing one is no fault.
QIcon ProgramIcon(const std::string& programFolder) {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
    const std::string file = programFolder + "/Icons/kelm-vantri-" + std::to_string(size) + ".png";
    if (std::filesystem::exists(file)) icon.addFile(QString::fromStdString(file));
  }
  return icon;
}

}  // namespace

int main(int argc, char** argv) {
  kv::ReturnLargeBlocks();
  // Everything that the player owns is found in the working folder from here on.
  const std::string programFolder = kv::ProgramFolder();
  std::error_code error;  // a folder that cannot be made is told when the player is saved
  const std::string playerFolder = std::filesystem::absolute(kv::UserFolder(), error).string();
  std::filesystem::create_directories(playerFolder, error);
  std::filesystem::current_path(playerFolder, error);
  // A folder that cannot be entered is named in full: nobody's players are put where the game happens to
  // start.
  const std::string working = error ? playerFolder : std::string();
  kv::SingleInstance instance(playerFolder);
  if (instance.OtherRuns()) {
    const QCoreApplication application(argc, argv);
    static_cast<void>(instance.RaiseOther());
    return 0;
  }

  kv::QtThrift thrift;
  QApplication application(argc, argv);
  // No display name: the toolkit would add it to every title.
  QApplication::setApplicationName(QStringLiteral("kelm-vantri"));
  QGuiApplication::setDesktopFileName(QStringLiteral("kelm-vantri"));
  QApplication::setWindowIcon(ProgramIcon(programFolder));
  QApplication::setQuitOnLastWindowClosed(false);
  kv::InstallAccessibleRoles();
  kv::QtSignals ends;
  ends.Ended = [] { QCoreApplication::exit(0); };  // of a box about a missing file

  kv::QtScheduler scheduler;
  kv::QtDialogs dialogs(scheduler);
  if (!kv::CheckProgramFiles(programFolder, working, dialogs)) return 1;
  kv::SystemRandom random;
  kv::SdlSoundDevice sound(scheduler);
  kv::QtFontSystem fonts;
  for (const kv::DisplayFont& font : kv::kDisplayFonts) {
    kv::InstallFont(programFolder + "/" + font.file, font.name, false, fonts, dialogs);
  }
  // A plain end of the event loop: asking every window first whether it may be closed would let one refuse.
  const auto quit = [] { QCoreApplication::exit(0); };
  kv::QtSizeFactor sizes;
  kv::FileSettings settings(kv::SettingsFolder() + "/settings.ini", scheduler);
  kv::Program program(
      {scheduler, dialogs, random, sound, quit, OpenFolder, OpenAddress, {}, {}, &sizes, &settings},
      {programFolder, working, kv::PortraitFolder(programFolder, working)});
  if (ends.ended()) return 0;
  ends.Ended = [&program] { program.EndAtOnce(); };
  program.Start();
  thrift.Restore();
  instance.Listen([&program] { program.stage().Raise(); });
  return QApplication::exec();
}
