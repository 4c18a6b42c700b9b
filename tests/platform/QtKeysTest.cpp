#include <gtest/gtest.h>

#include <QKeyEvent>
#include <set>

#include "platform/QtKeys.h"

namespace kv::test {
namespace {

int Code(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, quint32 scanCode = 0) {
  return VirtualKey(QKeyEvent(QEvent::KeyPress, key, modifiers, scanCode, 0, 0));
}

TEST(QtKeysTest, TheKeysOfTheBindingsHaveTheirCodes) {
  EXPECT_EQ(Code(Qt::Key_Tab), 9);
  EXPECT_EQ(Code(Qt::Key_Backtab, Qt::ShiftModifier), 9);
  EXPECT_EQ(Code(Qt::Key_Return), 13);
  EXPECT_EQ(Code(Qt::Key_Shift, Qt::ShiftModifier), 16);
  EXPECT_EQ(Code(Qt::Key_Control), 17);
  EXPECT_EQ(Code(Qt::Key_AltGr), 18);
  EXPECT_EQ(Code(Qt::Key_Space), 32);
  EXPECT_EQ(Code(Qt::Key_Left), 37);
  EXPECT_EQ(Code(Qt::Key_Q), 'Q');
  EXPECT_EQ(Code(Qt::Key_F12), 123);
  EXPECT_EQ(Code(Qt::Key_Comma), 188);
  EXPECT_EQ(Code(Qt::Key_unknown), 0);
  EXPECT_EQ(Code(Qt::Key_VolumeUp), 0);
}

TEST(QtKeysTest, TheNumberBlockIsApart) {
  EXPECT_EQ(Code(Qt::Key_4), '4');
  EXPECT_EQ(Code(Qt::Key_4, Qt::KeypadModifier), 100);
  EXPECT_EQ(Code(Qt::Key_Left, Qt::KeypadModifier), 37);  // with the lock off
  EXPECT_EQ(Code(Qt::Key_Enter, Qt::KeypadModifier), 13);
  EXPECT_EQ(Code(Qt::Key_Plus, Qt::KeypadModifier), 107);
  EXPECT_EQ(Code(Qt::Key_Plus), 187);
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

}  // namespace
}  // namespace kv::test
