// The game. It takes no options: everything it remembers is in the player file.
#include <QApplication>
#include <filesystem>

#include "app/AccessibleRoles.h"
#include "app/Program.h"
#include "app/StartCheck.h"
#include "platform/Folders.h"
#include "platform/QtDialogs.h"
#include "platform/QtFontSystem.h"
#include "platform/QtScheduler.h"
#include "platform/SdlSoundDevice.h"
#include "presentation/Fonts.h"

int main(int argc, char** argv) {
  // The game draws everything itself: a desktop's own theme would only cost memory and time.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORMTHEME")) qputenv("QT_QPA_PLATFORMTHEME", "generic");
  QApplication application(argc, argv);
  // No display name: the toolkit would add it to every title.
  QApplication::setApplicationName(QStringLiteral("kelm-vantri"));
  QApplication::setQuitOnLastWindowClosed(false);
  kv::InstallAccessibleRoles();

  const std::string programFolder = kv::ProgramFolder();
  const std::string playerFolder = kv::UserFolder();
  std::error_code error;  // a folder that cannot be made is told when the player is saved
  std::filesystem::create_directories(playerFolder, error);
  std::filesystem::current_path(playerFolder, error);

  kv::QtScheduler scheduler;
  kv::QtDialogs dialogs(scheduler);
  if (!kv::CheckDataFile(programFolder, dialogs)) return 1;
  kv::SystemRandom random;
  kv::SdlSoundDevice sound(scheduler);
  kv::QtFontSystem fonts;
  for (const kv::DisplayFont& font : kv::kDisplayFonts) {
    kv::InstallFont(programFolder + "/" + font.file, font.name, false, fonts, dialogs);
  }
  kv::Program program({scheduler, dialogs, random, sound, &QCoreApplication::quit}, {programFolder, {}});
  program.Start();
  return QApplication::exec();
}
