// A text box for a PIN: at most four digits, shown as "#". A keystroke that leaves anything else in it is
// undone.
#pragma once

#include <QLineEdit>
#include <string>

namespace kv {

inline constexpr int kPINLength = 4;

class PinBox final : public QLineEdit {
 public:
  explicit PinBox(QWidget* parent = nullptr);

  /// Always a valid PIN, or empty.
  [[nodiscard]] std::string PIN() const { return text().toStdString(); }
  /// Text that is no PIN is not taken over.
  void setPIN(const std::string& pin);

  /// Shown as typed, or as "#". It begins masked.
  [[nodiscard]] bool revealed() const { return echoMode() == QLineEdit::Normal; }
  void setRevealed(bool revealed);

 private:
  void Changed();

  QString lastValid_;  // what an invalid text is undone to
};

}  // namespace kv
