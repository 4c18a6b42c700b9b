#include <gtest/gtest.h>

#include <QKeyEvent>
#include <set>

#include "platform/QtKeys.h"
#include "support/Rows.h"

namespace kv::test {
namespace {

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

}  // namespace
}  // namespace kv::test
