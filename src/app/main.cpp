// The game. It has no options of its own: everything it remembers is in the player file.
#include <QApplication>
#include <QDesktopServices>
#include <QFile>
#include <QIcon>
#include <QUrl>
#include <algorithm>
#include <array>
#include <filesystem>
#include <iostream>
#include <memory>
#include <span>
#include <string_view>
#include <thread>
#include <vector>

#include "app/AccessibleRoles.h"
#include "app/Program.h"
#include "app/SingleInstance.h"
#include "app/StartCheck.h"
#include "platform/FileSettings.h"
#include "platform/Folders.h"
#include "platform/Memory.h"
#include "platform/QtAnnouncer.h"
#include "platform/QtCaretRest.h"
#include "platform/QtDialogs.h"
#include "platform/QtFontSystem.h"
#include "platform/QtOneThread.h"
#include "platform/QtPropertyBag.h"
#include "platform/QtScheduler.h"
#include "platform/QtSignals.h"
#include "platform/QtSizeFactor.h"
#include "platform/QtStillStyle.h"
#include "platform/QtThrift.h"
#include "platform/SdlSoundDevice.h"
#include "platform/StandardOptions.h"
#include "platform/StillDesktop.h"
#include "presentation/Fonts.h"
#include "presentation/PictureSizes.h"
#include "presentation/PicturesAhead.h"

namespace {

void OpenFolder(const std::string& folder) {
  std::error_code error;
  const std::string absolute = std::filesystem::absolute(folder, error).string();
  QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(absolute)));
}

bool MoveToTrash(const std::string& path) {
  return QFile::moveToTrash(QString::fromStdString(path));
}

constexpr int kIconDelay = 100;  // milliseconds

/// The icon's sizes that lie with the data and that a window manager shows; a missing one is no fault.
QIcon ProgramIcon(const std::string& dataFolder) {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64}) {
    const std::string file = dataFolder + "/Icons/kelm-vantri-" + std::to_string(size) + ".png";
    if (std::filesystem::exists(file)) icon.addFile(QString::fromStdString(file));
  }
  return icon;
}

void HoldStill() {
  QApplication::setStyle(new kv::QtStillStyle);
}  // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks): the toolkit owns it

constexpr std::string_view kHelp =
    "usage: vantri [--help | --version]\n"
    "Opens Kelm Vantri, a card game. Players, options and decks are kept in ~/.local/share/kelm-vantri/\n"
    "(with XDG_DATA_HOME set: $XDG_DATA_HOME/kelm-vantri/).\n";

/// What the start screen is painted with, in the order in which it asks: the scene, the title off and on, its
/// line.
const std::vector<int> kStartPictures = {400, 401, 402, 403, 404};

/// What a session manager or a developer tells the toolkit; each has a value behind it.
constexpr std::array<std::string_view, 2> kToolkitOptions = {"-platform", "-session"};

/// The first word that nobody here knows; empty for none.
std::string_view UnknownWord(std::span<char*> words) {
  for (std::size_t i = 1; i < words.size(); i += 2) {
    const std::string_view word = words[i];
    if (std::ranges::find(kToolkitOptions, word) == kToolkitOptions.end()) return word;
  }
  return {};
}

}  // namespace

int main(int argc, char** argv) {
  if (kv::AnswersStandardOption(argc, argv, "vantri", kHelp)) return 0;
  const std::string_view unknown = UnknownWord({argv, static_cast<std::size_t>(argc)});
  if (!unknown.empty()) {
    std::cerr << "vantri: what is \"" << unknown << "\"? --help tells what there is\n";
    return 2;
  }
  kv::ReturnLargeBlocks();
  // Everything that the player owns is found in the working folder from here on.
  const std::string dataFolder = kv::DataFolder(kv::ProgramFolder(), kv::kDataFileName);
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
  kv::PaintOnOneThread();
  // On the other cores, while the toolkit starts.
  std::jthread fonts(kv::QtFontSystem::ReadSystemFonts);
  kv::PicturesAhead ahead(dataFolder + "/" + kv::kDataFileName, kStartPictures);
  QApplication application(argc, argv);
  // No display name: the toolkit would add it to every title.
  QApplication::setApplicationName(QStringLiteral("kelm-vantri"));
  // Flatpak lists the game under a name of its own.
  QGuiApplication::setDesktopFileName(qEnvironmentVariable("FLATPAK_ID", QStringLiteral("kelm-vantri")));
  QApplication::setQuitOnLastWindowClosed(false);
  const std::filesystem::path configFolder = std::filesystem::path(kv::SettingsFolder()).parent_path();
  if (kv::DesktopWishesStillness(configFolder.string())) HoldStill();
  kv::InstallAccessibleRoles();
  kv::QtSignals ends;
  ends.Ended = [] { QCoreApplication::exit(0); };  // of a box about a missing file

  kv::QtScheduler scheduler;
  const kv::QtCaretRest caret(scheduler);
  kv::QtDialogs dialogs(scheduler);
  if (!kv::CheckProgramFiles(dataFolder, working, dialogs)) return 1;
  kv::SystemRandom random;
  kv::SdlSoundDevice sound(scheduler);
  kv::QtFontSystem fontSystem;
  for (const kv::DisplayFont& font : kv::kDisplayFonts) {
    kv::InstallFont(dataFolder + "/" + font.file, font.name, false, fontSystem, dialogs);
  }
  // The toolkit lays out a text box's first line before anybody can tell it a font, and would look for a
  // typeface of the system that no screen shows.
  QApplication::setFont(kv::FontOf(QString::fromLatin1(kv::kDisplayFonts[1].name), 10, false));
  // A plain end of the event loop: asking every window first whether it may be closed would let one refuse.
  const auto quit = [] { QCoreApplication::exit(0); };
  kv::QtSizeFactor sizes;
  kv::FileSettings settings(kv::SettingsFolder() + "/settings.ini", scheduler);
  kv::QtAnnouncer announcer;
  kv::Program program({scheduler,
                       dialogs,
                       random,
                       sound,
                       quit,
                       OpenFolder,
                       {},
                       {},
                       &sizes,
                       &settings,
                       &announcer,
                       MoveToTrash,
                       &ahead},
                      {dataFolder, working, kv::PortraitFolder(dataFolder, working)});
  if (ends.ended()) return 0;
  ends.Ended = [&program] { program.EndAtOnce(); };
  program.Start();
  // Window managers take it as well when the window stands, and its files would hold that up.
  std::unique_ptr<kv::Timer> tmrIcon = scheduler.NewTimer(kIconDelay, [&] {
    tmrIcon->setEnabled(false);
    QApplication::setWindowIcon(ProgramIcon(dataFolder));
  });
  tmrIcon->setEnabled(true);
  fonts.join();  // it reads the environment
  thrift.Restore();
  instance.Listen([&program] { program.stage().Raise(); });
  return QApplication::exec();
}
