#include "screens/PinBox.h"

#include "screens/modShowPIN.h"

namespace kv {

PinBox::PinBox(QWidget* parent) : QLineEdit(parent) {
  setMaxLength(kPINLength);
  setEchoMode(QLineEdit::Password);
  setInputMethodHints(Qt::ImhDigitsOnly | Qt::ImhHiddenText);
  connect(this, &QLineEdit::textChanged, this, [this] { Changed(); });
}

void PinBox::setPIN(const std::string& pin) {
  if (PINIsValid(pin)) setText(QString::fromStdString(pin));
}

void PinBox::setRevealed(bool revealed) {
  setEchoMode(revealed ? QLineEdit::Normal : QLineEdit::Password);
}

void PinBox::Changed() {
  if (PINIsValid(text().toStdString())) {
    lastValid_ = text();
    return;
  }
  const int caret = cursorPosition();
  setText(lastValid_);
  setCursorPosition(caret - 1);
}

}  // namespace kv
