// What may stand in a box for a player's name: no leading blanks, and only characters that the player file
// can hold. Anything else would come back from the file as "?" and the name would be lost.
#pragma once

#include <QValidator>
#include <functional>

#include "platform/Text.h"

namespace kv {

class NameValidator final : public QValidator {
 public:
  using QValidator::QValidator;

  /// An input with these characters, which the file cannot hold, was refused; may be empty.
  std::function<void(const QString& letters)> Refused;

  /// Takes leading blanks away wherever they come from, and keeps the caret before the same character.
  State validate(QString& input, int& caret) const override {
    while (input.startsWith(u' ')) {
      input.remove(0, 1);
      if (caret > 0) --caret;
    }
    QString lost;
    for (const char32_t letter : input.toUcs4()) {
      const QString text = QString::fromUcs4(&letter, 1);
      const std::string utf8 = text.toStdString();
      if (FromWindows1252(ToWindows1252(utf8)) != utf8) lost += text;
    }
    if (lost.isEmpty()) return Acceptable;
    if (Refused) Refused(lost);
    return Invalid;
  }
};

}  // namespace kv
