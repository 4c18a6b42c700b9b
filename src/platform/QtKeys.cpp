#include "platform/QtKeys.h"

#include <QKeyEvent>
#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <string_view>
#include <utility>

#include "platform/Keys.h"

namespace kv {
namespace {

struct Key {
  int code;
  const char16_t* name;
  std::array<int, 3> qtKeys;  // all keys and characters that this key gives; unused places are 0
  bool keypad = false;
};

constexpr Key kKeys[] = {
    {8, u"Backspace", {Qt::Key_Backspace}},
    {KeyTab, u"Tab", {Qt::Key_Tab, Qt::Key_Backtab}},
    {12, u"Num Clear", {Qt::Key_Clear}},
    {KeyEnter, u"Enter", {Qt::Key_Return, Qt::Key_Enter}},
    {KeyShift, u"Shift", {Qt::Key_Shift}},
    {KeyControl, u"Ctrl", {Qt::Key_Control}},
    {KeyAlt, u"Alt", {Qt::Key_Alt, Qt::Key_AltGr}},
    {19, u"Pause", {Qt::Key_Pause}},
    {20, u"Caps Lock", {Qt::Key_CapsLock}},
    {KeyEscape, u"Esc", {Qt::Key_Escape}},
    {KeySpace, u"Space", {Qt::Key_Space}},
    {33, u"Page Up", {Qt::Key_PageUp}},
    {34, u"Page Down", {Qt::Key_PageDown}},
    {35, u"End", {Qt::Key_End}},
    {36, u"Home", {Qt::Key_Home}},
    {37, u"Left", {Qt::Key_Left}},
    {38, u"Up", {Qt::Key_Up}},
    {39, u"Right", {Qt::Key_Right}},
    {40, u"Down", {Qt::Key_Down}},
    {44, u"Print Screen", {Qt::Key_Print, Qt::Key_SysReq}},
    {45, u"Insert", {Qt::Key_Insert}},
    {46, u"Delete", {Qt::Key_Delete}},
    {91, u"Windows", {Qt::Key_Meta, Qt::Key_Super_L, Qt::Key_Super_R}},
    {93, u"Menu", {Qt::Key_Menu}},
    {96, u"Num 0", {Qt::Key_0}, true},
    {97, u"Num 1", {Qt::Key_1}, true},
    {98, u"Num 2", {Qt::Key_2}, true},
    {99, u"Num 3", {Qt::Key_3}, true},
    {100, u"Num 4", {Qt::Key_4}, true},
    {101, u"Num 5", {Qt::Key_5}, true},
    {102, u"Num 6", {Qt::Key_6}, true},
    {103, u"Num 7", {Qt::Key_7}, true},
    {104, u"Num 8", {Qt::Key_8}, true},
    {105, u"Num 9", {Qt::Key_9}, true},
    {106, u"Num *", {Qt::Key_Asterisk}, true},
    {107, u"Num +", {Qt::Key_Plus}, true},
    {109, u"Num -", {Qt::Key_Minus}, true},
    {110, u"Num .", {Qt::Key_Period, Qt::Key_Comma}, true},
    {111, u"Num /", {Qt::Key_Slash}, true},
    {144, u"Num Lock", {Qt::Key_NumLock}},
    {145, u"Scroll Lock", {Qt::Key_ScrollLock}},
    {186, u";", {Qt::Key_Semicolon, Qt::Key_Colon}},
    {187, u"=", {Qt::Key_Equal, Qt::Key_Plus}},
    {188, u",", {Qt::Key_Comma, Qt::Key_Less}},
    {189, u"-", {Qt::Key_Minus, Qt::Key_Underscore}},
    {190, u".", {Qt::Key_Period, Qt::Key_Greater}},
    {191, u"/", {Qt::Key_Slash, Qt::Key_Question}},
    {192, u"`", {Qt::Key_QuoteLeft, Qt::Key_AsciiTilde}},
    {219, u"[", {Qt::Key_BracketLeft, Qt::Key_BraceLeft}},
    {220, u"\\", {Qt::Key_Backslash, Qt::Key_Bar}},
    {221, u"]", {Qt::Key_BracketRight, Qt::Key_BraceRight}},
    {222, u"'", {Qt::Key_Apostrophe, Qt::Key_QuoteDbl}},
};

// What the shifted digits give on most keyboards, from 0 upwards.
constexpr std::array<int, 10> kShiftedDigits = {
    Qt::Key_ParenRight, Qt::Key_Exclam,      Qt::Key_At,        Qt::Key_NumberSign, Qt::Key_Dollar,
    Qt::Key_Percent,    Qt::Key_AsciiCircum, Qt::Key_Ampersand, Qt::Key_Asterisk,   Qt::Key_ParenLeft};

constexpr int kFirstFunctionKey = 112;
constexpr int kFunctionKeys = 24;

// The rows of the keyboard by the scan codes of X11 and Wayland.
struct Row {
  std::uint32_t firstScanCode;
  std::string_view codes;
};
constexpr Row kDigitRow = {10, "1234567890"};
constexpr Row kLetterRows[] = {{24, "QWERTYUIOP"}, {38, "ASDFGHJKL"}, {52, "ZXCVBNM"}};

constexpr bool isLetter(int code) {
  return code >= 'A' && code <= 'Z';
}
constexpr bool isDigit(int code) {
  return code >= '0' && code <= '9';
}

int AtPlace(const Row& row, std::uint32_t scanCode) {
  const std::uint32_t place = scanCode - row.firstScanCode;  // wraps for smaller codes
  return place < row.codes.size() ? row.codes[place] : 0;
}

// X11 key codes of the punctuation keys, and their virtual-key codes.
constexpr std::pair<std::uint32_t, int> kPunctuationPlaces[] = {{20, 189}, {21, 187}, {34, 219}, {35, 221},
                                                                {47, 186}, {48, 222}, {49, 192}, {51, 220},
                                                                {59, 188}, {60, 190}, {61, 191}};

}  // namespace

int VirtualKey(int qtKey, bool keypad) {
  if (qtKey == 0 || qtKey == Qt::Key_unknown) return 0;
  for (const bool onKeypad : {true, false}) {
    if (onKeypad && !keypad) continue;
    for (const Key& key : kKeys) {
      if (key.keypad == onKeypad && std::ranges::count(key.qtKeys, qtKey) != 0) return key.code;
    }
  }
  if (isLetter(qtKey) || isDigit(qtKey)) return qtKey;
  if (qtKey >= Qt::Key_F1 && qtKey < Qt::Key_F1 + kFunctionKeys)
    return qtKey - Qt::Key_F1 + kFirstFunctionKey;
  const auto shifted = std::ranges::find(kShiftedDigits, qtKey);
  return shifted == kShiftedDigits.end() ? 0 : '0' + static_cast<int>(shifted - kShiftedDigits.begin());
}

int VirtualKey(const QKeyEvent& event) {
  const bool keypad = event.modifiers().testFlag(Qt::KeypadModifier);
  if (isLetter(event.key()) || keypad) return VirtualKey(event.key(), keypad);
  if (const int digit = AtPlace(kDigitRow, event.nativeScanCode())) return digit;
  if (const int code = VirtualKey(event.key(), keypad)) return code;
  for (const Row& row : kLetterRows) {
    if (const int letter = AtPlace(row, event.nativeScanCode())) return letter;
  }
  // National punctuation and dead keys: the code of the key that has this place on the American keyboard.
  for (const auto& [scanCode, code] : kPunctuationPlaces) {
    if (event.nativeScanCode() == scanCode) return code;
  }
  return 0;
}

QString KeyName(int virtualKey) {
  if (isLetter(virtualKey) || isDigit(virtualKey)) return QString(QChar(virtualKey));
  if (virtualKey >= kFirstFunctionKey && virtualKey < kFirstFunctionKey + kFunctionKeys) {
    return QStringLiteral("F%1").arg(virtualKey - kFirstFunctionKey + 1);
  }
  const auto key = std::ranges::find(kKeys, virtualKey, &Key::code);
  return key == std::end(kKeys) ? QString() : QString::fromUtf16(key->name);
}

}  // namespace kv
