// The whole program on the tests' own clock, with a folder of its own for its players. Controls of the open
// screen are reached by the names they bear in its layout.
//
//   ProgramStage stage;
//   stage.MakePlayer("bob", [](clsPlayer& player) { player.Interface_Opt = "Ember"; });
//   stage.Start();
//   stage.EnterMenu("bob");
#pragma once

#include <QCoreApplication>
#include <QLineEdit>
#include <QListWidget>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

#include "app/Program.h"
#include "match/frmGame.h"
#include "support/HandScheduler.h"
#include "support/LoopbackSocket.h"
#include "support/MemorySettings.h"
#include "support/RecordingAnnouncer.h"
#include "support/RecordingSound.h"
#include "support/ScreenHand.h"
#include "support/ScriptedDialogs.h"
#include "support/TempFolder.h"

namespace kv::test {

class ProgramStage {
 public:
  /// A player file `file`.vnt with no PIN, named as the file.
  void MakePlayer(const std::string& file, const std::function<void(clsPlayer&)>& change = {}) {
    clsPlayer player(dialogs, random);
    player.Name = file;
    player.FileName = folder / (file + ".vnt");
    if (change) change(player);
    player.WritePlayerFile();
  }
  void Start() {
    program = std::make_unique<Program>(
        ProgramServices{scheduler,
                        dialogs,
                        random,
                        sound,
                        [this] { ++quits; },
                        {},
                        [this] { return std::make_unique<LoopbackSocket>(net, "10.0.0.1"); },
                        [] { return std::vector<std::string>{"10.0.0.1"}; },
                        sizes,
                        &settings,
                        &announcer,
                        [this](const std::string& path) {
                          trashed.push_back(std::filesystem::path(path).filename().string());
                          return std::filesystem::remove(path);
                        }},
        ProgramFolders{programFolder, folder.path(), folder / "Portraits"});
    program->Start();
    Settle(1000);
  }
  /// A player of this name comes to the menu.
  void EnterMenuAs(const std::string& file, const std::function<void(clsPlayer&)>& change = {}) {
    MakePlayer(file, change);
    Start();
    EnterMenu(file);
  }
  /// Chooses the player on the start screen and waits for the menu.
  void EnterMenu(const std::string& file) {
    auto& list = Control<QListWidget>("lstPlayers");
    for (int row = 0; row < list.count(); ++row) {
      if (list.item(row)->text().toStdString() == file) list.setCurrentRow(row);
    }
    Click("cmdContinue");
    Settle(1000);
  }
  /// Lets the events be handled and `milliseconds` pass.
  void Settle(int milliseconds) {
    QCoreApplication::processEvents();
    scheduler.Advance(milliseconds);
    QCoreApplication::processEvents();
  }
  void Click(const char* control) {
    ScreenHand(*program->screen()).Click(Control<QWidget>(control));
    Settle(200);
  }
  void Key(Qt::Key key) {
    ScreenHand(*program->screen()).Key(key);
    Settle(200);
  }
  /// The control of the open screen with this name.
  template <typename Kind>
  [[nodiscard]] Kind& Control(const char* name) {
    Screen* screen = program->screen();
    QWidget* found = screen == nullptr ? nullptr : screen->findChild<QWidget*>(QString::fromUtf8(name));
    auto* control = dynamic_cast<Kind*>(found);
    if (control == nullptr) throw std::logic_error("no such control: " + std::string(name));
    return *control;
  }
  /// Name of the open screen, empty when there is none.
  [[nodiscard]] std::string ScreenName() const {
    Screen* screen = program->screen();
    return screen == nullptr ? std::string() : screen->objectName().toStdString();
  }
  /// What the player's file holds now.
  [[nodiscard]] std::unique_ptr<clsPlayer> Stored(const std::string& file) {
    auto player = std::make_unique<clsPlayer>(dialogs, random);
    if (player->LoadPlayerFile(folder / (file + ".vnt"))) throw std::logic_error("not loadable: " + file);
    return player;
  }

  TempFolder folder;
  std::string programFolder = "no-such-folder";
  HandScheduler scheduler;
  LoopbackNet net{scheduler};  // nobody else is on it
  ScriptedDialogs dialogs;
  SeededRandom random{7};
  RecordingSound sound;
  MemorySettings settings;
  QtSizeFactor* sizes = nullptr;  // one that is set gives what is drawn another size
  RecordingAnnouncer announcer;
  int quits = 0;
  std::vector<std::string> trashed;  // names of files
  std::unique_ptr<Program> program;
};

}  // namespace kv::test
