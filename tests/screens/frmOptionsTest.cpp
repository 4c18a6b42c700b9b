// The options screen: every control and its field, the ways out, the questions about the PIN, and the keys.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QSlider>

#include "screens/frmOptions.h"
#include "screens/modgetKeyName.h"
#include "support/MemorySettings.h"
#include "support/OneScreen.h"
#include "support/Rows.h"

namespace kv::test {
namespace {

class OptionsStage : public OneScreen<frmOptions> {
 public:
  explicit OptionsStage(const std::string& style = "Slate") : OneScreen(style) {
    player.FileName = folder / "player.vnt";
  }
  ~OptionsStage() { screen.reset(); }

  void Open() {
    Show(std::make_unique<frmOptions>(
             services(),
             frmOptionsServices{player, remembered, [this](int percent) { sound.setVolume(percent); }}),
         10);
  }
  void OpenKeys() {
    player.KeysEn = true;
    Open();
    Click("cmdKeys");
  }
  /// Clicks a key button and presses a key.
  void Catch(const char* control, Qt::Key key) {
    Click(control);
    hand->Key(key);
  }
  std::string Title() { return Text("lblKeysTitle"); }
  bool Saved() { return std::filesystem::exists(player.FileName); }

  MemorySettings store;
  Settings remembered{store};
};

TEST(frmOptionsTest, EveryCheckBoxEditsItsField) {
  constexpr std::pair<const char*, bool PlayerFields::*> kBoxes[] = {
      {"chkAutoTurn", &PlayerFields::AutoTurn_Opt},
      {"chkAutoDialogs", &PlayerFields::AutoDialogs_Opt},
      {"chkPulse", &PlayerFields::LightPulse_Opt},
      {"chkShowPortrait", &PlayerFields::ShowPortrait_Opt},
      {"chkShowMini", &PlayerFields::ShowMinimize_Opt},
      {"chkMuteHighlight", &PlayerFields::Mute_Highlight_Opt},
      {"chkMuteCards", &PlayerFields::Mute_Cards_Opt},
      {"chkMuteEvents", &PlayerFields::Mute_Events_Opt},
      {"chkKeys", &PlayerFields::KeysEn},
      {"chkMuteButtons", &PlayerFields::Mute_Buttons_Opt},
  };
  for (const auto& [control, field] : kBoxes) {
    OptionsStage stage;
    const bool before = stage.player.*field;
    stage.Open();
    EXPECT_EQ(stage.Find<QCheckBox>(control).isChecked(), before) << control;
    stage.Find(control).setFocus();
    stage.hand->Key(Qt::Key_Space);
    EXPECT_EQ(stage.sound.Count("check"), 1) << control;
    EXPECT_EQ(stage.player.*field, before) << control << ": nothing is stored before OK";
    stage.Click("cmdOK");
    for (const auto& [other, otherField] : kBoxes) {
      EXPECT_EQ(stage.player.*otherField, (PlayerFields().*otherField) != (other == control)) << other;
    }
    EXPECT_EQ(stage.recorded.calls, std::vector<std::string>{"OpenMenu"});
    EXPECT_TRUE(stage.Saved());
  }
}

TEST(frmOptionsTest, ListsAndTurnSystemEditTheirFields) {
  OptionsStage stage("Ember");
  stage.player.H6J8_Wins->Value = 5;
  stage.player.TurnMode_Opt = 1;
  stage.player.GameSpeed_Opt = 2;
  stage.Open();
  EXPECT_TRUE(stage.Find<QRadioButton>("optTurnSystem(1)").isChecked());
  EXPECT_FALSE(stage.Find("lblArcadeInfo").isVisible());
  const auto choose = [&stage](const char* control, const QString& before, int row) {
    auto& list = stage.Find<QListWidget>(control);
    ASSERT_NE(list.currentItem(), nullptr) << control;
    EXPECT_EQ(list.currentItem()->text(), before);
    const QPoint middle =
        list.viewport()->mapTo(stage.screen.get(), list.visualItemRect(list.item(row)).center());
    QTest::mouseClick(stage.screen->windowHandle(), Qt::LeftButton, {}, middle);
    EXPECT_EQ(list.currentRow(), row) << control;
  };
  choose("lstInterface", "Ember", 0);
  choose("lstSpeed", "Fast!", 0);
  choose("lstArcadeOpp", "Orrin Vaal", 1);
  choose("lstArcadeAI", "Kelm Vantri", 1);
  stage.Click("optTurnSystem(0)");
  EXPECT_EQ(stage.sound.Count("check"), 5);
  choose("lstArcadeAI", "Ember", 1);
  stage.Find("lstSpeed").setFocus();
  stage.hand->Key(Qt::Key_Down);
  EXPECT_EQ(stage.sound.Count("check"), 7) << "by pointer and by keyboard";
  auto& style = stage.Find<QListWidget>("lstInterface");
  const QRect row = style.visualItemRect(style.item(0));
  const QPoint top = style.viewport()->mapTo(stage.screen.get(), row.center());
  stage.hand->Press(top);
  stage.hand->MoveTo(top + QPoint(0, row.height()));
  stage.hand->Release(top + QPoint(0, row.height()));
  EXPECT_EQ(style.currentRow(), 1);
  EXPECT_EQ(stage.sound.Count("check"), 8) << "one click, though dragged to another row";
  stage.hand->Press(top);
  stage.hand->Release(top);
  stage.Click("cmdOK");
  EXPECT_EQ(stage.player.Interface_Opt, "Slate");
  EXPECT_EQ(stage.player.GameSpeed_Opt, 1);
  EXPECT_EQ(stage.player.ArcadeOpp_Opt, 1);
  EXPECT_EQ(stage.player.ArcadeAI_Opt, 1);
  EXPECT_EQ(stage.player.TurnMode_Opt, 0);
}

TEST(frmOptionsTest, ValuesThatNoControlShowsAreKeptAndWhatAScreenReaderSelectsIsStored) {
  for (const bool reader : {false, true}) {
    OptionsStage stage;
    stage.player.TurnMode_Opt = 9;
    stage.player.GameSpeed_Opt = 200;
    stage.player.Interface_Opt = "Copper";
    stage.Open();
    // It selects an entry without moving to it.
    if (reader) stage.Find<QListWidget>("lstInterface").item(1)->setSelected(true);
    stage.Click("cmdOK");
    EXPECT_EQ(stage.player.TurnMode_Opt, 9);
    EXPECT_EQ(stage.player.GameSpeed_Opt, 200);
    EXPECT_EQ(stage.player.Interface_Opt, reader ? "Ember" : "Copper");
  }
}

TEST(frmOptionsTest, TheExtraOpponentIsLockedUntilTheFifthWin) {
  OptionsStage stage;
  stage.player.H6J8_Wins->Value = 4;
  stage.Open();
  EXPECT_FALSE(stage.Find("lstArcadeOpp").isEnabled());
  EXPECT_TRUE(stage.Find("lblArcadeInfo").isVisible());
  EXPECT_TRUE(stage.Find("lstArcadeAI").isEnabled());
}

TEST(frmOptionsTest, TheNameLosesLeadingBlanksAndMustNotBeEmpty) {
  OptionsStage stage;
  stage.Open();
  auto& name = stage.Find<QLineEdit>("txtName");
  name.setFocus();
  name.setCursorPosition(0);
  stage.hand->Key(Qt::Key_Space);
  EXPECT_EQ(name.text(), "Player");
  name.selectAll();
  stage.hand->Key(Qt::Key_Delete);
  EXPECT_FALSE(stage.Button("cmdOK").Enabled());
  stage.hand->Key(Qt::Key_Space);
  EXPECT_FALSE(stage.Button("cmdOK").Enabled());
  QTest::keyClicks(&name, "Ann of the green gables ");
  EXPECT_EQ(name.text().size(), 20);
  name.setText("Ann  ");
  name.insert(QString::fromUtf8("Ł"));
  EXPECT_EQ(name.text(), "Ann  ");
  EXPECT_EQ(stage.announcer.Last(), "Cannot be stored: Ł");
  stage.player.FileName = "/nowhere/at/all.vnt";
  stage.Click("cmdOK");
  EXPECT_EQ(stage.player.Name, "Ann");
  EXPECT_EQ(stage.dialogs.boxes.size(), 1u) << "that it could not be saved";
  EXPECT_EQ(stage.recorded.Count("OpenMenu"), 1);
}

TEST(frmOptionsTest, AChangedPINIsAskedAbout) {
  for (const auto& [before, typed, question] :
       Rows<const char*, const char*, const char*>{{"12", "12", ""},
                                                   {"", "", ""},
                                                   {"12", "345", "Are you sure you want to change your PIN?"},
                                                   {"", "7", "Are you sure you want to change your PIN?"},
                                                   {"12", "", "Are you sure you want to remove your PIN?"}}) {
    const bool asked = *question != '\0';
    OptionsStage stage;
    stage.player.PIN = before;
    stage.Open();
    auto& box = stage.Find<QLineEdit>("txtPIN");
    EXPECT_EQ(box.text().toStdString(), before);
    box.setFocus();
    box.clear();
    QTest::keyClicks(&box, QString::fromUtf8(typed));
    stage.Find<QLineEdit>("txtName").setText("Ann");
    if (asked) {
      stage.dialogs.answers = {false, true};
      stage.Click("cmdOK");
      ASSERT_EQ(stage.dialogs.boxes.size(), 1u);
      EXPECT_EQ(stage.dialogs.boxes[0].text, question);
      EXPECT_EQ(stage.dialogs.boxes[0].title, "Kelm Vantri: Confirmation");
      EXPECT_EQ(stage.dialogs.boxes[0].icon, DialogIcon::Exclamation);
      EXPECT_EQ(stage.player.PIN, before);
      EXPECT_EQ(stage.player.Name, "Player");
      EXPECT_FALSE(stage.Saved());
      EXPECT_TRUE(stage.recorded.calls.empty());
    }
    stage.Click("cmdOK");
    EXPECT_EQ(stage.dialogs.boxes.size(), asked ? 2u : 0u);
    EXPECT_EQ(stage.player.PIN, typed);
    EXPECT_EQ(stage.player.Name, "Ann");
    EXPECT_EQ(stage.recorded.Count("OpenMenu"), 1);
  }
}

TEST(frmOptionsTest, AScreenThatClosesUnderItsQuestionStoresNothing) {
  OptionsStage stage;
  stage.player.PIN = "12";
  stage.Open();
  stage.Find<QLineEdit>("txtPIN").clear();
  stage.dialogs.answers = {true};
  stage.dialogs.whileOpen = [&stage] { stage.screen->CloseScreen(); };
  stage.Click("cmdOK");
  EXPECT_EQ(stage.player.PIN, "12");
  EXPECT_FALSE(stage.Saved());
  EXPECT_TRUE(stage.recorded.calls.empty());
}

TEST(frmOptionsTest, EveryOtherWayOutLeavesTheRecordAsItWas) {
  const std::pair<const char*, std::function<void(OptionsStage&)>> ways[] = {
      {"OpenMenu", [](OptionsStage& stage) { stage.Click("cmdCancel"); }},
      {"OpenMenu", [](OptionsStage& stage) { stage.hand->Key(Qt::Key_Escape); }},
      {"OpenMenu",
       [](OptionsStage& stage) { stage.hand->Click(stage.Find<ctlTitlebar>("ctlTitlebar").cmdQuit()); }},
      {"EndProgram", [](OptionsStage& stage) { stage.screen->close(); }},
  };
  for (const auto& [call, leave] : ways) {
    OptionsStage stage;
    stage.player.KeysEn = true;
    stage.Open();
    stage.Click("imgYourPic");
    EXPECT_EQ(stage.recorded.Count("OpenPortraits"), 1);
    stage.player.Portrait = 20;  // as the picker does
    stage.screen->PortraitChosen(stage.pictures.getPic(320));
    stage.Find<QLineEdit>("txtName").setText("Ann");
    stage.Click("chkKeys");
    EXPECT_FALSE(stage.Button("cmdKeys").Enabled());
    leave(stage);
    EXPECT_EQ(stage.recorded.calls.back(), call);
    EXPECT_EQ(stage.player.Portrait, kDefaultPortrait);
    EXPECT_EQ(stage.player.Name, "Player");
    EXPECT_TRUE(stage.player.KeysEn);
    EXPECT_FALSE(stage.Saved());
  }
}

TEST(frmOptionsTest, AKeyOfTwoActionsIsMarkedAndTheDefaultsAreOneButtonAway) {
  OptionsStage stage;
  stage.OpenKeys();
  const auto name = [&stage](const char* key) { return stage.Button(key).accessibleName().toStdString(); };
  const auto frames = [&stage](const char* key) {
    const QPoint corner = stage.Find(key).mapTo(stage.screen.get(), QPoint(-3, -3));
    return stage.screen->grab().toImage().pixelColor(corner) ==
           stage.Find<QLabel>("lblKeysShared").palette().color(QPalette::WindowText);
  };
  EXPECT_FALSE(stage.Find("lblKeysShared").isVisible());
  stage.Catch("cmdKeysFlip1(0)", Qt::Key_Tab);
  EXPECT_TRUE(stage.Find("lblKeysShared").isVisible());
  EXPECT_EQ(name("cmdKeysStand"), "Key for Stand: Tab, also set for another action");
  EXPECT_EQ(stage.announcer.Last(), "Key for Flip sign, card 1: Tab, also set for another action");
  EXPECT_TRUE(frames("cmdKeysStand") && frames("cmdKeysFlip1(0)"));
  EXPECT_FALSE(frames("cmdKeysTurn"));
  for (const char* key : {"cmdKeysStand", "cmdKeysFlip1(0)"}) stage.Catch(key, Qt::Key_Escape);
  EXPECT_FALSE(stage.Find("lblKeysShared").isVisible()) << "no key is not a key of both";
  stage.Click("cmdKeysDefaults");
  stage.Click("cmdKeysDefaults");
  EXPECT_EQ(name("cmdKeysStand"), "Key for Stand: Tab");
  EXPECT_EQ(stage.Button("cmdKeysFlip1(0)").Caption(), "Q");
  stage.Click("cmdKeysDone");
  EXPECT_EQ(stage.player.Keys->Value(3, 1), 'Q');
  stage.Click("cmdOK");
  EXPECT_EQ(stage.player.Keys->Value(1, 2), 9);
}

TEST(frmOptionsTest, EveryKeyIsCaught) {
  OptionsStage stage;
  stage.OpenKeys();
  EXPECT_FALSE(stage.Find("frmeOptions").isEnabled());
  EXPECT_EQ(stage.Button("cmdKeysTurn").Caption(), "Space");
  struct {
    const char* control;
    Qt::Key key;
    std::int16_t code;
    int row, column;
  } const kCaught[] = {
      {"cmdKeysTurn", Qt::Key_Return, 13, 1, 1},    {"cmdKeysStand", Qt::Key_Space, 32, 1, 2},
      {"cmdKeysPlay(0)", Qt::Key_Tab, 9, 2, 1},     {"cmdKeysPlay(1)", Qt::Key_Z, 'Z', 2, 2},
      {"cmdKeysPlay(2)", Qt::Key_Left, 37, 2, 3},   {"cmdKeysPlay(3)", Qt::Key_Escape, -1, 2, 4},
      {"cmdKeysFlip1(0)", Qt::Key_F5, 116, 3, 1},   {"cmdKeysFlip1(3)", Qt::Key_Z, 'Z', 3, 4},
      {"cmdKeysFlip2(1)", Qt::Key_Shift, 16, 4, 2}, {"cmdKeysFlip2(3)", Qt::Key_Comma, 188, 4, 4},
      {"cmdKeysFlip2(0)", Qt::Key_Alt, 18, 4, 1},  // the last one: it is warned of
  };
  stage.dialogs.whileOpen = [&stage] { EXPECT_EQ(stage.Title(), "Push key...(esc = none)"); };
  for (const auto& caught : kCaught) {
    EXPECT_TRUE(stage.dialogs.boxes.empty());
    stage.Click(caught.control);
    EXPECT_EQ(stage.Title(), "Push key...(esc = none)");
    EXPECT_FALSE(stage.Button("cmdKeysDone").isEnabled());
    stage.hand->Key(caught.key);
    EXPECT_FALSE(stage.screen->WaitsForKey());
    EXPECT_EQ(stage.Title(), "Configure Keys");
    EXPECT_TRUE(stage.Button("cmdKeysDone").isEnabled());
    EXPECT_TRUE(stage.Button(caught.control).isEnabled());
    EXPECT_EQ(stage.Button(caught.control).Caption(), getKeyName(caught.code));
    EXPECT_EQ(stage.Button(caught.control).Color_Style().toStdString(),
              caught.code < 0 ? "Ember" : "Ember_Menu");
  }
  ASSERT_EQ(stage.dialogs.boxes.size(), 1u);
  EXPECT_EQ(stage.dialogs.boxes[0].title, "Kelm Vantri: Alt Key Warning");
  EXPECT_EQ(stage.dialogs.boxes[0].icon, DialogIcon::Critical);
  EXPECT_TRUE(stage.Find("frmeKeys").isVisible());
  EXPECT_EQ(stage.player.Keys->Value(1, 1), 32) << "nothing is stored before OK";
  stage.Click("cmdKeysDone");
  EXPECT_FALSE(stage.Find("frmeKeys").isVisible());
  stage.Click("cmdKeys");
  stage.Click("cmdKeysDone");
  stage.Click("cmdOK");
  for (const auto& caught : kCaught) {
    EXPECT_EQ(stage.player.Keys->Value(caught.row, caught.column), caught.code) << caught.control;
  }
  EXPECT_EQ(stage.player.Keys->Value(3, 2), 'W');
}

TEST(frmOptionsTest, TheKeyThatClicksIsNotCaught) {
  OptionsStage stage;
  stage.OpenKeys();
  stage.Find("cmdKeysTurn").setFocus();
  QWindow* window = stage.screen->windowHandle();
  QTest::keyPress(window, Qt::Key_Return);
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, "\r", true);
  QCoreApplication::sendEvent(window, &held);
  EXPECT_TRUE(stage.screen->WaitsForKey());
  QTest::keyRelease(window, Qt::Key_Return);
  QTest::keyClick(window, Qt::Key_VolumeUp);
  EXPECT_TRUE(stage.screen->WaitsForKey()) << "a key without a code cannot be bound";
  QTest::keyClick(window, Qt::Key_Down);
  EXPECT_FALSE(stage.screen->WaitsForKey());
  EXPECT_TRUE(stage.Find("cmdKeysTurn").hasFocus());
}

TEST(frmOptionsTest, LeavingInTheMiddleOfACapture) {
  OptionsStage stage;
  stage.OpenKeys();
  stage.Click("cmdKeysTurn");
  stage.hand->Click(stage.Find<ctlTitlebar>("ctlTitlebar").cmdQuit());
  EXPECT_EQ(stage.recorded.Count("OpenMenu"), 1);
  stage.screen->CloseScreen();
  EXPECT_FALSE(stage.screen->WaitsForKey());
  EXPECT_EQ(stage.scheduler.RunningTimers(), 0);
}

TEST(frmOptionsTest, TheVolumeIsHeardAtOnceAndOutlivesCancel) {
  for (const char* style : {"Slate", "Ember"}) {
    OptionsStage stage(style);
    stage.remembered.setVolume(80);
    stage.Open();
    auto& slider = stage.Find<QSlider>("sldVolume");
    const auto& label = stage.Find<QLabel>("lblVolume");
    EXPECT_EQ(label.text(), "Volume 80 %");
    EXPECT_FALSE(slider.accessibleName().isEmpty());
    QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(&slider);
    ASSERT_NE(reader->valueInterface(), nullptr);
    EXPECT_EQ(reader->valueInterface()->currentValue().toInt(), 80);

    // By keyboard alone, from the last of the sounds' boxes.
    stage.sound.played.clear();
    stage.Find("chkMuteEvents").setFocus();
    stage.hand->Key(Qt::Key_Tab);
    ASSERT_EQ(stage.screen->focusWidget(), &slider) << style;
    stage.hand->Key(Qt::Key_Left);
    EXPECT_EQ(stage.sound.volume, 75);
    EXPECT_EQ(stage.remembered.volume(), 75);
    EXPECT_EQ(stage.sound.Count("check"), 1) << "nobody hears how loud it is now";
    slider.setValue(43);
    EXPECT_EQ(stage.sound.volume, 45);
    EXPECT_EQ(label.text(), "Volume 45 %");
    stage.Click("cmdCancel");
    EXPECT_EQ(stage.remembered.volume(), 45);
    EXPECT_FALSE(stage.Saved());
  }
}

}  // namespace
}  // namespace kv::test
