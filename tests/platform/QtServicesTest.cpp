// The desktop's services in their real forms: sentences for a screen reader, keys, fonts; and what the
// program spares while nobody needs it.
#include <gtest/gtest.h>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <QAccessible>
#include <QApplication>
#include <QFont>
#include <QFontInfo>
#include <QKeyEvent>
#include <QLineEdit>
#include <QString>
#include <QTest>
#include <QtGlobal>
#include <set>

#include "platform/Memory.h"
#include "platform/QtAnnouncer.h"
#include "platform/QtCaretRest.h"
#include "platform/QtFontSystem.h"
#include "platform/QtKeys.h"
#include "platform/QtThrift.h"
#include "support/HandScheduler.h"
#include "support/Rows.h"
#include "support/TempFolder.h"

namespace kv::test {
namespace {

struct Shown {
  QAccessible::Id line;
  QAccessible::Event event;
};
std::vector<Shown> shownLines;  // the toolkit's hook takes no context

void Remember(QAccessibleEvent* event) {
  shownLines.push_back({event->uniqueId(), event->type()});
}

class QtAnnouncerTest : public testing::Test {
 protected:
  void SetUp() override {
    shownLines.clear();
    SetReader(true);
    previous_ = QAccessible::installUpdateHandler(Remember);
  }
  void TearDown() override {
    QAccessible::installUpdateHandler(previous_);
    SetReader(false);
  }
  /// Without a reader the toolkit tells nothing; off screen there is none that could come.
  static void SetReader(bool there) {
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(there);
  }
  static QString Read(const Shown& shown) {
    return QAccessible::accessibleInterface(shown.line)->text(QAccessible::Name);
  }

 private:
  QAccessible::UpdateHandler previous_ = nullptr;
};

TEST_F(QtAnnouncerTest, ASentenceCanStillBeReadWhenTheNextOnesHaveBeenTold) {
  QtAnnouncer announcer;
  for (const char* text : {"You draw 7.", "Total 17.", "You stand."})
    announcer.Announce(text, Urgency::Polite);
  ASSERT_EQ(shownLines.size(), 3U);
  EXPECT_EQ(Read(shownLines[0]), "You draw 7.");
  EXPECT_EQ(Read(shownLines[1]), "Total 17.");
  EXPECT_EQ(Read(shownLines[2]), "You stand.");
}

TEST_F(QtAnnouncerTest, ASentenceIsANotificationOfAStatusBarThatHasAppeared) {
  QtAnnouncer announcer;
  announcer.Announce("", Urgency::Polite);
  EXPECT_TRUE(shownLines.empty()) << "nothing was said";
  announcer.Announce("Zo\xC3\xAB proposes 20.", Urgency::Assertive);
  ASSERT_EQ(shownLines.size(), 1U);
  EXPECT_EQ(shownLines[0].event, QAccessible::ObjectShow);
  const QAccessibleInterface* line = QAccessible::accessibleInterface(shownLines[0].line);
  EXPECT_EQ(line->text(QAccessible::Name), QString::fromUtf8("Zo\xC3\xAB proposes 20."));
  EXPECT_EQ(line->role(), QAccessible::Notification);
  EXPECT_FALSE(line->state().invisible);
  EXPECT_EQ(line->parent()->role(), QAccessible::StatusBar) << "else a reader says what kind of thing it is";
  EXPECT_EQ(line->parent()->parent(), QAccessible::queryAccessibleInterface(qApp));
}

int Code(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, quint32 scanCode = 0) {
  return VirtualKey(QKeyEvent(QEvent::KeyPress, key, modifiers, scanCode, 0, 0));
}

TEST(QtKeysTest, TheKeysOfTheBindingsHaveTheirCodesAndTheNumberBlockIsApart) {
  for (const auto& [key, code] : Rows<Qt::Key, int>{{Qt::Key_Tab, 9},
                                                    {Qt::Key_Return, 13},
                                                    {Qt::Key_Control, 17},
                                                    {Qt::Key_AltGr, 18},
                                                    {Qt::Key_Space, 32},
                                                    {Qt::Key_Left, 37},
                                                    {Qt::Key_Q, 'Q'},
                                                    {Qt::Key_4, '4'},
                                                    {Qt::Key_F12, 123},
                                                    {Qt::Key_Plus, 187},
                                                    {Qt::Key_Comma, 188},
                                                    {Qt::Key_unknown, 0},
                                                    {Qt::Key_VolumeUp, 0}}) {
    EXPECT_EQ(Code(key), code) << key;
  }
  EXPECT_EQ(Code(Qt::Key_Backtab, Qt::ShiftModifier), 9);
  EXPECT_EQ(Code(Qt::Key_Shift, Qt::ShiftModifier), 16);
  // With the lock off its arrows are arrows.
  for (const auto& [key, code] :
       Rows<Qt::Key, int>{{Qt::Key_4, 100}, {Qt::Key_Left, 37}, {Qt::Key_Enter, 13}, {Qt::Key_Plus, 107}}) {
    EXPECT_EQ(Code(key, Qt::KeypadModifier), code) << key;
  }
}

TEST(QtKeysTest, ADigitIsItsKeyWhateverTheLayoutPrints) {
  EXPECT_EQ(Code(Qt::Key_Exclam, Qt::ShiftModifier), '1');
  EXPECT_EQ(Code(Qt::Key_Slash, Qt::ShiftModifier, 16), '7');   // a German keyboard's shifted seven
  EXPECT_EQ(Code(Qt::Key_Ampersand, Qt::NoModifier, 10), '1');  // a French one's
  EXPECT_EQ(Code(0x0424, Qt::NoModifier, 38), 'A');             // a Cyrillic one's letter
  EXPECT_EQ(Code(Qt::Key_A, Qt::NoModifier, 24), 'A');          // a Latin letter goes by its letter
}

TEST(QtKeysTest, EveryNameBelongsToOneCode) {
  std::set<QString> names;
  int named = 0;
  for (int code = 0; code < 256; ++code) {
    const QString name = KeyName(code);
    if (name.isEmpty()) continue;
    ++named;
    names.insert(name);
  }
  EXPECT_EQ(static_cast<int>(names.size()), named);
  EXPECT_EQ(KeyName(9), QStringLiteral("Tab"));
  EXPECT_EQ(KeyName(100), QStringLiteral("Num 4"));
  EXPECT_EQ(KeyName(112), QStringLiteral("F1"));
  EXPECT_EQ(KeyName('W'), QStringLiteral("W"));
  EXPECT_TRUE(KeyName(0).isEmpty());
  EXPECT_TRUE(KeyName(-1).isEmpty());
}

QString Drawn(const QString& name) {
  return QFontInfo(QFont(name)).family();
}

TEST(QtFontSystem, DrawsAFileUnderTheNameItIsRecordedFor) {
  const char* assets = std::getenv("KV_ASSETS");
  ASSERT_NE(assets, nullptr);
  const TempFolder folder;
  std::filesystem::copy(std::string(assets) + "/bnkgothicM.ttf", folder / "Some Font.TTF");

  QtFontSystem fonts;
  const std::string fontsFolder = fonts.FontsFolder().value();
  EXPECT_FALSE(fonts.IsInstalled(fontsFolder, "Some Font.TTF"));
  const QString before = Drawn(QStringLiteral("Name Of Layouts"));
  fonts.CopyAndRegister(folder / "Some Font.TTF", fontsFolder);
  fonts.Record("Name Of Layouts (TrueType)", "Some Font.TTF");
  EXPECT_TRUE(fonts.IsInstalled(fontsFolder, "some font.ttf"));
  EXPECT_NE(Drawn(QStringLiteral("Name Of Layouts")), before);
  EXPECT_EQ(Drawn(QStringLiteral("Name Of Layouts")), QStringLiteral("Kelm Gothic Md"));
}

TEST(QtFontSystem, ABrokenFileLeavesTheSystemsFontAndANote) {
  const TempFolder folder;
  folder.Put("broken.ttf", "no font at all");
  QtFontSystem fonts;
  testing::internal::CaptureStderr();
  fonts.CopyAndRegister(folder / "broken.ttf", fonts.FontsFolder().value());
  fonts.Record("Broken Name (TrueType)", "broken.ttf");
  EXPECT_NE(testing::internal::GetCapturedStderr().find("broken.ttf"), std::string::npos);
  EXPECT_FALSE(fonts.IsInstalled("", "broken.ttf"));
  EXPECT_EQ(Drawn(QStringLiteral("Broken Name")), Drawn(QStringLiteral("Name That Nobody Has")));
}

TEST(QtThrift, AsksForLessAndLeavesNoTraceForOtherPrograms) {
  const QByteArray theme = qgetenv("QT_QPA_PLATFORMTHEME");
  qunsetenv("QT_QPA_PLATFORMTHEME");
  qunsetenv("QT_WAYLAND_CLIENT_BUFFER_INTEGRATION");
  qputenv("QT_XCB_GL_INTEGRATION", "xcb_egl");  // the user's own wish
  {
    QtThrift thrift;
    EXPECT_EQ(qgetenv("QT_WAYLAND_CLIENT_BUFFER_INTEGRATION"), "none");
    EXPECT_EQ(qgetenv("QT_XCB_GL_INTEGRATION"), "xcb_egl");
    thrift.Restore();
    EXPECT_FALSE(qEnvironmentVariableIsSet("QT_WAYLAND_CLIENT_BUFFER_INTEGRATION"));
    EXPECT_FALSE(qEnvironmentVariableIsSet("QT_QPA_PLATFORMTHEME"));
  }
  EXPECT_EQ(qgetenv("QT_XCB_GL_INTEGRATION"), "xcb_egl");
  qunsetenv("QT_XCB_GL_INTEGRATION");
  if (!theme.isNull()) qputenv("QT_QPA_PLATFORMTHEME", theme);
}

TEST(QtCaretRest, BlinksForAWhileAfterEachKey) {
  HandScheduler scheduler;
  QLineEdit box;
  box.show();
  const int blinking = QApplication::cursorFlashTime();
  const QtCaretRest rest(scheduler);
  scheduler.Advance(QtCaretRest::kAfter - 1);
  EXPECT_EQ(QApplication::cursorFlashTime(), blinking);
  QTest::keyClick(&box, Qt::Key_A);
  scheduler.Advance(QtCaretRest::kAfter - 1);
  EXPECT_EQ(QApplication::cursorFlashTime(), blinking);
  scheduler.Advance(1);
  EXPECT_EQ(QApplication::cursorFlashTime(), 0);
  QTest::keyClick(&box, Qt::Key_B);
  EXPECT_EQ(QApplication::cursorFlashTime(), blinking);
}

/// Kilobytes of files that stand in this process's memory.
int MappedFiles() {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    if (word != "RssFile:") continue;
    int kilobytes = 0;
    status >> kilobytes;
    return kilobytes;
  }
  return 0;
}

TEST(Memory, CleanPagesGoAndComeBackAsTheyAreNeeded) {
  const int before = MappedFiles();
  ReturnCleanPages();
  const int after = MappedFiles();
  EXPECT_LT(after, before / 2);
  EXPECT_GT(after, 0);
}

}  // namespace
}  // namespace kv::test
