// The start screen, the main menu, the options, the portrait picker and the rules.
#include <QLineEdit>
#include <QListWidget>

#include "Gallery.h"
#include "presentation/LayoutText.h"
#include "screens/PlayerFiles.h"
#include "screens/frmHelp.h"
#include "screens/frmMenu.h"
#include "screens/frmOptions.h"
#include "screens/frmOptionsKeys.h"
#include "screens/frmPortraits.h"
#include "screens/frmSplash.h"
#include "support/ScreenHand.h"
#include "support/TempFolder.h"

namespace kv {
namespace {

constexpr std::size_t kLongestName = 20;  // characters
constexpr int kOwnPicture = 41;           // stands for a picture of the player's own

template <typename Kind>
Kind& Child(Screen& screen, const char* name) {
  return *screen.findChild<Kind*>(QString::fromLatin1(name));
}

void Click(test::ScreenStage& stage, Screen& screen, const char* control) {
  test::ScreenHand(screen).Click(Child<QWidget>(screen, control));
  stage.Settle(500);
}

/// The caller that the picker tells of a choice; the gallery makes none.
struct NoCaller final : PortraitCaller {
  void PortraitChosen(const Picture&) override {}
};

enum class Own { None, Shown, Refused };

void Picker(Gallery& gallery, Own own, const char* name) {
  const test::TempFolder folder;
  test::ScreenStage stage(gallery.style(), gallery.scale(), folder.path());
  FillSamplePlayer(stage.player);
  const Picture portrait = stage.pictures.getPic(kPortraitBase + kOwnPicture);
  if (own == Own::Shown && !portrait.empty()) {
    portrait.image()->save(QString::fromStdString(folder / "mara.jpg"));
  }
  if (own == Own::Refused) folder.Put("mara.png", "whatever it holds");
  NoCaller caller;
  frmPortraits picker(stage.services(), stage.player, caller, {folder.path(), {}});
  picker.Open();
  stage.Settle();
  gallery.Save(picker, name);
}

}  // namespace

void RenderStart(Gallery& gallery) {
  const test::TempFolder folder;
  test::ScreenStage stage(gallery.style(), gallery.scale());
  const auto newPlayer = [&stage] { return std::make_unique<clsPlayer>(stage.dialogs, stage.padding); };
  for (const char* name : {"bram", "mara", "old rival", "teth"}) {
    const auto player = newPlayer();
    player->Name = "Mara of the Long Coast";
    player->Name.resize(kLongestName);
    static_cast<void>(CreatePlayerFile(*player, folder.path(), name));
  }
  frmSplash splash(stage.services(), {folder.path(), newPlayer, {}}, gallery.style());
  splash.Open();
  stage.Settle();
  Child<QListWidget>(splash, "lstPlayers").setCurrentRow(1);
  gallery.Save(splash, "start-list");
  Click(stage, splash, "cmdCreate");
  Child<QLineEdit>(splash, "txtPlayer").setText(QStringLiteral("Lior"));
  Child<QLineEdit>(splash, "txtPlayer").insert(QStringLiteral("\u0142"));
  gallery.Save(splash, "start-name");
  Click(stage, splash, "cmdNewName");
  gallery.Save(splash, "start-file");
}

void RenderMenu(Gallery& gallery) {
  struct State {
    const char* name;
    void (*change)(clsPlayer& player);
  };
  constexpr State kStates[] = {{"menu", [](clsPlayer&) {}},
                               {"menu-defeated", [](clsPlayer& player) { player.Credits->Value = 0; }},
                               {"menu-victory", [](clsPlayer& player) {
                                  player.Name = "WWWWWWWWWWWWWWWWWWWW";
                                  player.Orrin_Wins->Value = 10;
                                  player.Arcade_Best = 2'000'000'000;
                                }}};
  for (const auto& [name, change] : kStates) {
    test::ScreenStage stage(gallery.style(), gallery.scale());
    FillSamplePlayer(stage.player);
    change(stage.player);
    frmMenu menu(stage.services(), stage.player);
    menu.Open();
    stage.Settle();
    gallery.Save(menu, name);
  }
}

void RenderOptions(Gallery& gallery) {
  test::ScreenStage stage(gallery.style(), gallery.scale());
  FillSamplePlayer(stage.player);
  SettingsStore nothing;
  Settings settings(nothing);
  frmOptions options(stage.services(), {stage.player, settings});
  options.Open();
  stage.Settle();
  gallery.Save(options, "options");
  Click(stage, options, "cmdKeys");
  gallery.Save(options, "options-keys");
  auto& keys = dynamic_cast<frmOptionsKeys&>(Child<QWidget>(options, "frmeKeys"));
  keys.Bind(1, keys.KeyOf(2));
  gallery.Save(options, "options-keys-shared");
}

void RenderPortraits(Gallery& gallery) {
  Picker(gallery, Own::None, "portraits");
  Picker(gallery, Own::Shown, "portraits-own");
  Picker(gallery, Own::Refused, "portraits-refused");
}

void RenderHelp(Gallery& gallery) {
  test::ScreenStage stage(gallery.style(), gallery.scale());
  FillSamplePlayer(stage.player);
  frmHelp help(stage.services(), gallery.style(), HelpPages(LayoutText("README"), &stage.player), true);
  help.Open();
  stage.Settle();
  for (int page = 0; page < help.lstPages().count(); ++page) {
    help.lstPages().setCurrentRow(page);
    for (int moment = 0; page == 1 && moment < 4; ++moment) {
      stage.Settle(moment == 0 ? 1 : 350);
      gallery.Save(help, "motion-help-" + std::to_string(moment + 1));
    }
    stage.Settle();
    gallery.Save(help, ("help-" + std::to_string(page + 1)).c_str());
  }
}

}  // namespace kv
