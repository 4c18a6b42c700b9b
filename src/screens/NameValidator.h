// What may stand in a box for a player's name: no leading blanks, and only characters that the player file
// can hold. Anything else would come back from the file as "?" and the name would be lost.
#pragma once

#include <QValidator>

#include "platform/Text.h"

namespace kv {

class NameValidator final : public QValidator {
 public:
  using QValidator::QValidator;

  /// Takes leading blanks away wherever they come from, and keeps the caret before the same character.
  State validate(QString& input, int& caret) const override {
    while (input.startsWith(u' ')) {
      input.remove(0, 1);
      if (caret > 0) --caret;
    }
    const std::string utf8 = input.toStdString();
    return FromWindows1252(ToWindows1252(utf8)) == utf8 ? Acceptable : Invalid;
  }
};

}  // namespace kv
