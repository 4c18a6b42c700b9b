#include <gmock/gmock.h>

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>

#include "screens/PinBox.h"
#include "screens/PlayerFiles.h"
#include "screens/frmSplash.h"
#include "screens/modShowPIN.h"
#include "support/OneScreen.h"
#include "support/Rows.h"

namespace kv::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class frmSplashTest : public testing::Test, protected OneScreen<frmSplash> {
 protected:
  void Open() {
    Show(std::make_unique<frmSplash>(
             services(), frmSplashServices{folder.path(),
                                           [this] { return std::make_unique<clsPlayer>(dialogs, padding); },
                                           lastPlayer,
                                           {[this](const std::string& path) { return Trash(path); },
                                            [](const std::string& path) {
                                              return std::vector{path + ".log", path + ".more"};
                                            },
                                            [this](const std::string& from, const std::string& to) {
                                              renamed = from + " to " + to;
                                            }}}),
         2);
  }
  void PutPlayer(const std::string& file, const std::string& pin) {
    clsPlayer made(dialogs, padding);
    made.Name = file;
    made.PIN = pin;
    made.FileName = folder / file;
    made.WritePlayerFile();
  }
  /// A trash that takes nothing of the name `stuck`.
  bool Trash(const std::string& path) {
    const std::string name = std::filesystem::path(path).filename();
    if (name == stuck) return false;
    std::filesystem::rename(path, trash / name);
    return true;
  }
  void TypePIN(const char* pin) { Find<PinBox>("txtPIN").setPIN(pin); }
  void PressDelete() {
    List().setFocus();
    hand->Key(Qt::Key_Delete);
  }
  QLineEdit& Box(const char* name) { return Find<QLineEdit>(name); }
  std::string Typed(const char* box) { return Box(box).text().toStdString(); }
  std::string Info() { return Text("lblCreateInfo"); }
  std::vector<std::string> Entries() {
    std::vector<std::string> entries;
    for (int row = 0; row < List().count(); ++row) entries.push_back(List().item(row)->text().toStdString());
    return entries;
  }
  QListWidget& List() { return Find<QListWidget>("lstPlayers"); }
  void Type(const char* text) { QTest::keyClicks(screen->focusWidget(), QString::fromLatin1(text)); }
  void Enter() { hand->Key(Qt::Key_Return); }

  TempFolder trash;
  std::string stuck;
  std::string renamed;
  std::string lastPlayer;
};

TEST_F(frmSplashTest, ThePlayersAreListedByNameTheLastIsSelectedAndADoubleClickGoesOn) {
  for (const char* name : {"carol.vnt", "Bob.VNT", "alice.vnt"}) PutPlayer(name, "");
  folder.Put("notes.txt", "");
  std::filesystem::create_directory(folder / "folder.vnt");
  lastPlayer = "gone";
  Open();
  EXPECT_THAT(Entries(), ElementsAre("alice", "Bob", "carol"));
  EXPECT_EQ(List().currentRow(), 0);
  Type("12");
  hand->Key(Qt::Key_Down);  // from the PIN box
  EXPECT_EQ(List().currentRow(), 1);
  EXPECT_EQ(Typed("txtPIN"), "");
  EXPECT_TRUE(Button("cmdContinue").Enabled());
  lastPlayer = "Bob";
  Open();
  EXPECT_EQ(List().currentRow(), 1);
  const QPoint carol = List().viewport()->mapTo(screen.get(), List().visualItemRect(List().item(2)).center());
  QTest::mouseDClick(screen->windowHandle(), Qt::LeftButton, {}, carol);
  Settle(20);
  EXPECT_THAT(recorded.calls, ElementsAre("PlayerLoaded", "OpenMenu"));
  EXPECT_EQ(recorded.loaded->Name, "carol.vnt");
}

TEST_F(frmSplashTest, ANewPlayerIsCreatedWithTheEnterKeyAloneAndThenLoaded) {
  Open();
  EXPECT_FALSE(List().isEnabled());
  EXPECT_FALSE(Button("cmdContinue").Enabled());
  Enter();
  EXPECT_EQ(Text("lblHeader"), "Enter a player name:");
  EXPECT_FALSE(Button("cmdNewName").Enabled());
  Enter();  // not without a name
  EXPECT_TRUE(Box("txtPlayer").isVisible());
  Type("  Bob the Marshal of Kelm");
  EXPECT_EQ(Typed("txtPlayer"), "Bob the Marshal of K");
  EXPECT_EQ(Info(), "- max length reached (20)\n");
  Enter();
  EXPECT_EQ(Text("lblHeader"), "Enter a filename for your player:");
  EXPECT_EQ(Typed("txtName"), "bob the marshal of k");
  Box("txtName").clear();
  Type(" bob ");
  Box("txtNewPIN").setFocus();
  EXPECT_EQ(Typed("txtName"), "bob");
  Type("42");
  Enter();
  EXPECT_THAT(Entries(), ElementsAre("bob"));
  EXPECT_EQ(Typed("txtPIN"), "42");
  for (const char* box : {"txtPlayer", "txtName", "txtNewPIN"}) EXPECT_EQ(Typed(box), "") << box;
  sound.played.clear();
  Enter();
  EXPECT_THAT(recorded.calls, ElementsAre("PlayerLoaded"));
  EXPECT_EQ(Button("cmdContinue").Caption().toStdString(), "loading...");
  Enter();
  Settle(20);
  EXPECT_THAT(recorded.calls, ElementsAre("PlayerLoaded", "OpenMenu"));
  EXPECT_EQ(recorded.loaded->Name, "Bob the Marshal of K");
  EXPECT_EQ(recorded.loaded->PIN, "42");
  EXPECT_EQ(sound.Count("click"), 1);
  EXPECT_THAT(dialogs.boxes, IsEmpty());
}

TEST_F(frmSplashTest, AFileNameIsCheckedAtEveryChange) {
  constexpr const char* kInvalid = "- invalid char: \\  /  :  *  ?  \"  <  >  |\n";
  constexpr const char* kExists = "- file of already exists\n";
  folder.Put("Bob.VNT", "");
  std::filesystem::create_directory(folder / "place.vnt");
  std::filesystem::create_symlink("nowhere", folder / "link.vnt");
  Open();
  hand->Click(Button("cmdCreate"));
  Type("x");
  hand->Click(Button("cmdNewName"));
  for (const auto& [name, info, enabled] : Rows<const char*, const char*, bool>{
           {"", "", false},
           {"bob", kExists, false},
           {"BOB ", kExists, false},
           {"place", kExists, false},
           {"link", kExists, false},
           {"bo", "", true},
           {"bo b", "", true},
           {".bob", "", true},
           {"j\xC3\xBCrg", "", true},
           {"who?", kInvalid, false},
           {"../bob", kInvalid, false},
           {"a\\b", kInvalid, false},
           {".", kInvalid, false},
           {"..", kInvalid, false},
           {"bob.", kInvalid, false},
           {"a\tb", kInvalid, false},
           {"a\x7F", kInvalid, false},
           {"12345678901234567890", "- max length reached (20)\n", true},
           {"1234567890123456789|",
            "- invalid char: \\  /  :  *  ?  \"  <  >  |\n- max length reached (20)\n", false}}) {
    Box("txtName").setText(QString::fromUtf8(name));
    EXPECT_EQ(Info(), info) << name;
    EXPECT_EQ(Button("cmdNewFile").Enabled(), enabled) << name;
  }
  Box("txtName").setText(QStringLiteral("bob"));
  Enter();
  EXPECT_EQ(folder.Get("Bob.VNT"), "");
  EXPECT_FALSE(IsValidFileName(std::string(252, 'x')));
}

TEST_F(frmSplashTest, AnotherFileIsNeverReplacedAndAFailedSaveLeavesNothing) {
  const auto toFileName = [this] {
    Enter();
    Type("bob");
    Enter();
  };
  Open();
  toFileName();
  folder.Put("bob.vnt", "appeared meanwhile");
  Enter();
  EXPECT_EQ(folder.Get("bob.vnt"), "appeared meanwhile");
  EXPECT_EQ(Info(), "- file of already exists\n");
  EXPECT_FALSE(Button("cmdNewFile").Enabled());
  EXPECT_THAT(dialogs.boxes, IsEmpty());
  hand->Key(Qt::Key_Escape);
  hand->Key(Qt::Key_Escape);
  EXPECT_TRUE(List().isVisible());
  EXPECT_EQ(Typed("txtPlayer"), "");

  std::filesystem::remove(folder / "bob.vnt");
  toFileName();
  hand->Key(Qt::Key_Escape);
  hand->Key(Qt::Key_Escape);
  hand->Click(Button("cmdCreate"));
  Type("bob");
  Enter();
  std::filesystem::remove_all(folder.path());
  Enter();
  ASSERT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_EQ(dialogs.boxes[0].text.substr(0, 25), "Error saving player file!");
  EXPECT_THAT(Entries(), IsEmpty());
  EXPECT_TRUE(Button("cmdCreate").Enabled());
  EXPECT_FALSE(Button("cmdContinue").Enabled());
}

TEST_F(frmSplashTest, BackLeadsThroughTheStepsToTheListAndItsSelection) {
  for (const char* name : {"ann.vnt", "bob.vnt"}) folder.Put(name, "");
  Open();
  List().setCurrentRow(1);
  auto& enter = Find<QAbstractButton>("cmdNew2");
  EXPECT_FALSE(enter.isVisible());
  EXPECT_TRUE(enter.isEnabled());
  hand->Click(Button("cmdCreate"));
  EXPECT_FALSE(enter.isEnabled()) << "there is no name yet";
  Type("Cleo");
  EXPECT_TRUE(enter.isEnabled());
  enter.click();
  Box("txtName").setText(QStringLiteral("ann"));
  EXPECT_FALSE(enter.isEnabled());
  hand->Click(Button("cmdBack"));
  EXPECT_TRUE(Box("txtPlayer").isVisible() && Box("txtPlayer").hasFocus());
  EXPECT_EQ(Typed("txtPlayer"), "Cleo");
  EXPECT_EQ(Text("lblHeader"), "Enter a player name:");
  EXPECT_EQ(Info(), "");
  EXPECT_TRUE(Button("cmdNewName").Enabled());
  hand->Click(Button("cmdBack"));
  EXPECT_TRUE(List().isVisible());
  EXPECT_FALSE(Button("cmdBack").isVisible());
  EXPECT_EQ(List().currentRow(), 1);
  hand->Click(Button("cmdCreate"));
  EXPECT_EQ(Typed("txtPlayer"), "");
}

TEST_F(frmSplashTest, ALetterThatCannotBeStoredIsRefusedWithALine) {
  Open();
  hand->Click(Button("cmdCreate"));
  Box("txtPlayer").insert(QStringLiteral("\u0141"));
  EXPECT_FALSE(Button("cmdNewName").Enabled());
  EXPECT_EQ(Info(), "- cannot be stored: \xC5\x81\n");
  Type("ukasz");
  EXPECT_EQ(Info(), "- cannot be stored: \xC5\x81\n") << "it is still there when the person looks up";
  Box("txtPlayer").insert(QStringLiteral("\u0105"));
  Type(" the Great of Kel");
  EXPECT_EQ(Info(), "- cannot be stored: \xC5\x81\xC4\x85\n- max length reached (20)\n");
  Enter();
  EXPECT_EQ(Info(), "- max length reached (20)\n");
  hand->Click(Button("cmdBack"));
  Box("txtPlayer").setText(QStringLiteral("J\u00FCrg"));
  EXPECT_EQ(Info(), "");
}

TEST_F(frmSplashTest, AFileThatCannotBeLoadedLeavesTheScreenUsable) {
  PutPlayer("a pin.vnt", "1234");
  folder.Put("c foreign.vnt", std::string(70'000, 'x'));
  PutPlayer("e gone.vnt", "");
  const std::string before = folder.Get("a pin.vnt");
  Open();
  std::filesystem::remove(folder / "e gone.vnt");
  for (int row = 0; row < List().count(); ++row) {
    List().setCurrentRow(row);
    for (const char* pin : {"", "12"}) {
      TypePIN(pin);
      dialogs.boxes.clear();
      hand->Click(Button("cmdContinue"));
      ASSERT_EQ(dialogs.boxes.size(), 1U);
      EXPECT_EQ(dialogs.boxes[0].text, "Player file corrupted, or incorrect PIN");
      EXPECT_EQ(dialogs.boxes[0].title, "Kelm Vantri: Error");
      EXPECT_EQ(dialogs.boxes[0].icon, DialogIcon::Critical);
      EXPECT_EQ(Button("cmdContinue").Caption().toStdString(), "continue");
      EXPECT_TRUE(Button("cmdContinue").Enabled() && Button("cmdCreate").Enabled() && List().isEnabled());
      EXPECT_TRUE(Box("txtPIN").hasFocus());
    }
  }
  EXPECT_THAT(recorded.calls, IsEmpty());
  EXPECT_EQ(folder.Get("a pin.vnt"), before);
  List().setCurrentRow(0);
  TypePIN("1234");
  Enter();
  EXPECT_THAT(recorded.calls, ElementsAre("PlayerLoaded"));
}

TEST_F(frmSplashTest, ClosedBehindABoxItTouchesNothingMore) {
  folder.Put("bob.vnt", "");
  Open();
  dialogs.whileOpen = [this] { screen->CloseScreen(); };
  Enter();
  Settle();
  EXPECT_EQ(Button("cmdContinue").Caption().toStdString(), "loading...");
  EXPECT_THAT(recorded.calls, IsEmpty());
}

TEST_F(frmSplashTest, ADeletedPlayerGoesToTheTrashWithWhatLiesBesideHim) {
  for (const char* name : {"ann.vnt", "bob.vnt", "cleo.vnt"}) PutPlayer(name, "");
  folder.Put("bob.vnt.log", "matches");
  const std::string before = folder.Get("bob.vnt");
  Open();
  List().setCurrentRow(1);
  dialogs.answers = {false, true};
  PressDelete();
  EXPECT_EQ(folder.Count(), 4) << "a no leaves everything";
  hand->Click(Find<QAbstractButton>("lnkDelete"));
  EXPECT_EQ(dialogs.boxes.back().text,
            "Move the player file \"bob\" and the matches kept with it to the trash?");
  EXPECT_THAT(Entries(), ElementsAre("ann", "cleo"));
  EXPECT_EQ(List().currentRow(), 1) << "the hand stays where it was";
  EXPECT_EQ(trash.Get("bob.vnt"), before);
  EXPECT_EQ(trash.Get("bob.vnt.log"), "matches");
  dialogs.answers = {true, true};
  PressDelete();
  PressDelete();
  EXPECT_FALSE(Find<QAbstractButton>("lnkDelete").isEnabled());
  EXPECT_FALSE(Button("cmdContinue").Enabled());
  hand->Key(Qt::Key_F2);
  EXPECT_TRUE(dialogs.answers.empty() && dialogs.texts.empty());
}

TEST_F(frmSplashTest, ATrashThatRefusesCostsNothingAndIsTold) {
  PutPlayer("ann.vnt", "");
  folder.Put("ann.vnt.log", "matches");
  Open();
  stuck = "ann.vnt";
  dialogs.answers = {true, true};
  PressDelete();
  EXPECT_EQ(dialogs.boxes.back().text,
            "The player file \"ann\" could not be moved to the trash. Nothing was deleted.");
  EXPECT_EQ(folder.Count(), 2);
  EXPECT_THAT(Entries(), ElementsAre("ann"));
  stuck = "ann.vnt.log";
  PressDelete();
  EXPECT_THAT(dialogs.boxes.back().text, testing::HasSubstr("could not be moved."));
  EXPECT_EQ(folder.Get("ann.vnt.log"), "matches");
}

TEST_F(frmSplashTest, APlayerWithAPINIsLeftAloneWithoutIt) {
  PutPlayer("ann.vnt", "0042");
  folder.Put("broken.vnt", "no player");
  Open();
  for (const char* pin : {"", "42", "1042"}) {
    TypePIN(pin);
    PressDelete();
    hand->Key(Qt::Key_F2);
  }
  ASSERT_EQ(dialogs.boxes.size(), 6U);
  for (const auto& box : dialogs.boxes) EXPECT_EQ(box.text, "Player file corrupted, or incorrect PIN");
  EXPECT_TRUE(Box("txtPIN").hasFocus());
  EXPECT_EQ(folder.Count(), 2);
  hand->Key(Qt::Key_Delete);  // in the box it is the text's
  EXPECT_EQ(dialogs.boxes.size(), 6U);
  TypePIN("0042");
  dialogs.answers = {true, true};
  PressDelete();
  PressDelete();
  EXPECT_EQ(folder.Count(), 0) << "no PIN opens a broken file: it is nobody's secret";
}

TEST_F(frmSplashTest, ARenamedPlayerKeepsEverythingAndReplacesNothing) {
  PutPlayer("ann.vnt", "7");
  PutPlayer("bob.vnt", "");
  folder.Put("ann.vnt.log", "matches");
  folder.Put("zoe.vnt.more", "another's");
  const std::string before = folder.Get("ann.vnt");
  const std::string other = folder.Get("bob.vnt");
  Open();
  TypePIN("7");
  dialogs.texts = {"BOB", "../ann", "an ann of more than twenty", "zoe", std::nullopt};
  hand->Key(Qt::Key_F2);
  EXPECT_EQ(dialogs.boxes.size(), 9U) << "each is refused with a reason, and can be mended";
  EXPECT_EQ(dialogs.boxes[2].preset, "BOB");
  EXPECT_EQ(folder.Get("bob.vnt") + folder.Get("zoe.vnt.more"), other + "another's");
  EXPECT_EQ(folder.Get("ann.vnt"), before);
  EXPECT_EQ(renamed, "");
  dialogs.texts = {" cleo "};
  hand->Click(Find<QAbstractButton>("lnkRename"));
  EXPECT_THAT(Entries(), ElementsAre("bob", "cleo"));
  EXPECT_EQ(List().currentRow(), 1);
  EXPECT_EQ(folder.Get("cleo.vnt"), before);
  EXPECT_EQ(folder.Get("cleo.vnt.log"), "matches");
  EXPECT_EQ(folder.Count(), 4);
  EXPECT_EQ(renamed, "ann to cleo");
  dialogs.texts = {"Cleo"};
  hand->Key(Qt::Key_F2);
  EXPECT_EQ(folder.Get("Cleo.vnt"), before) << "its own name in other letters is not taken";
}

TEST_F(frmSplashTest, TheNameInsideAFileStandsBesideItUnlessItHasAPIN) {
  for (const char* name : {"ann.vnt", "bob.vnt"}) PutPlayer(name, name[0] == 'a' ? "" : "1");
  Open();
  const auto& owner = Find<QLabel>("lblOwner");
  EXPECT_EQ(owner.text().toStdString(), "ann.vnt");
  EXPECT_EQ(owner.accessibleName().toStdString(), "Name of the player: ann.vnt");
  List().setCurrentRow(1);
  EXPECT_EQ(owner.text().toStdString(), "");
}

TEST_F(frmSplashTest, APINBoxTakesDigitsOnlyAndShowsThemForASecond) {
  Open();
  hand->Click(Button("cmdCreate"));
  Type("bob");
  Enter();
  auto& box = Find<PinBox>("txtNewPIN");
  box.setFocus();
  for (const auto& [typed, text, caret] : Rows<const char*, const char*, int>{
           {"12a", "12", 2}, {"x", "", 0}, {"12345", "1234", 4}, {"1-2", "12", 2}}) {
    box.clear();
    Type(typed);
    EXPECT_EQ(box.PIN(), text) << typed;
    EXPECT_EQ(box.cursorPosition(), caret) << typed;
  }
  box.setPIN("12");
  box.setCursorPosition(1);
  box.insert(QStringLiteral("ab"));  // pasted: the whole is undone, the caret goes one place left
  EXPECT_EQ(box.PIN(), "12");
  EXPECT_EQ(box.cursorPosition(), 2);

  EXPECT_FALSE(PINIsValid("\xD9\xA1"));  // a digit, but of another script

  auto& reveal = Find<QAbstractButton>("lblPINReveal");
  EXPECT_EQ(box.displayText().toStdString(), "##");
  scheduler.At(999, [&] {
    EXPECT_EQ(box.displayText().toStdString(), "12");
    hand->Click(reveal);  // one is running already
  });
  hand->Click(reveal);
  EXPECT_EQ(box.displayText().toStdString(), "##");
  box.clear();
  hand->Click(reveal);
  EXPECT_THAT(scheduler.pauses, ElementsAre(1000));
  box.setPIN("12");
  scheduler.At(500, [this] { screen->CloseScreen(); });
  hand->Click(reveal);
  EXPECT_EQ(scheduler.timeGetTime(), 1502U);
}

TEST_F(frmSplashTest, AGlowThatNobodyLooksAtRestsAfterAMinute) {
  Open();
  Settle(60000);
  EXPECT_TRUE(globals.effects.fading());
  Settle(10000);
  EXPECT_FALSE(globals.effects.fading());
  EXPECT_EQ(scheduler.RunningTimers(), 0) << "something still wakes the processor";
  hand->Key(Qt::Key_Down);
  Settle(200);
  EXPECT_TRUE(globals.effects.fading());
}

TEST_F(frmSplashTest, TheTitleLightsUpAndGlowsUntilItIsClicked) {
  Open();
  auto& title = dynamic_cast<FadeTarget&>(Find<QWidget>("imgFadeText_Target"));
  Settle(5000);
  EXPECT_TRUE(globals.effects.fading());
  const int before = title.alpha();
  Settle(100);
  EXPECT_NE(title.alpha(), before);
  hand->Press(hand->CentreOf(title));
  hand->MoveTo(hand->CentreOf(title) + QPoint(60, 0));
  hand->Release(hand->CentreOf(title) + QPoint(60, 0));
  EXPECT_TRUE(globals.effects.fading());  // that was a drag
  hand->Click(title);
  EXPECT_EQ(title.alpha(), 255);
  Settle(5000);
  EXPECT_FALSE(globals.effects.fading());
  EXPECT_EQ(scheduler.RunningTimers(), 0);
}

TEST_F(frmSplashTest, LinkAndWindowButtonsDoWhatTheySay) {
  Open();
  EXPECT_EQ(Text("lblVersion"), "v1.2.4");
  EXPECT_EQ(Find<QAbstractButton>("lblURL").text().toStdString(), "Web: kelm-vantri.example");
  hand->Click(Find<QAbstractButton>("lblURL"));
  EXPECT_THAT(recorded.calls, ElementsAre("OpenHelp"));
  hand->Click(Find<QAbstractButton>("cmdQuit"));
  EXPECT_THAT(recorded.calls, ElementsAre("OpenHelp", "EndProgram"));
  hand->Key(Qt::Key_Escape);
  EXPECT_THAT(recorded.calls, ElementsAre("OpenHelp", "EndProgram", "EndProgram"));
  hand->Click(Find<QAbstractButton>("cmdMini"));
  EXPECT_TRUE(screen->isMinimized());
}

TEST_F(frmSplashTest, TheFocusOfTheCreationGoesStraightToWhatIsTypedNext) {
  PutPlayer("ann.vnt", "");
  Open();
  std::vector<std::string> had;
  const auto watch =
      QObject::connect(qApp, &QApplication::focusChanged, screen.get(), [&](QWidget*, QWidget* now) {
        if (now != nullptr && now != screen.get()) had.push_back(now->objectName().toStdString());
      });
  hand->Click(Button("cmdCreate"));
  Type("bob");
  Enter();
  Enter();
  QObject::disconnect(watch);
  EXPECT_THAT(had, ElementsAre("txtPlayer", "txtName", "txtPIN"));
  EXPECT_EQ(announcer.Last(), "bob is selected.");
  hand->Key(Qt::Key_Up);
  EXPECT_EQ(announcer.Last(), "ann is selected.") << "the keys are in the box beside the list";
}

TEST_F(frmSplashTest, WhatIsWrongWithANameIsTold) {
  Open();
  hand->Click(Button("cmdCreate"));
  Type("a");
  EXPECT_EQ(Find<QLabel>("lblCreateInfo").accessibleName(), QStringLiteral("Notes: none"));
  Enter();
  Type("/");
  EXPECT_THAT(announcer.Last(), testing::HasSubstr("- invalid char"));
  EXPECT_THAT(Find<QLabel>("lblCreateInfo").accessibleName().toStdString(),
              testing::HasSubstr("- invalid char"));
  const std::size_t told = announcer.told.size();
  Type("/");
  EXPECT_EQ(announcer.told.size(), told) << "it is said once";
}

}  // namespace
}  // namespace kv::test
