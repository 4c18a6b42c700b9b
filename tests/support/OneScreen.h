// One screen with all that it stands on, and a person's hand on it, and a folder of its own; its
// controls are reached by the names that they bear in its layout.
#pragma once

#include <QLabel>
#include <memory>
#include <stdexcept>
#include <string>

#include "presentation/ctlButton.h"
#include "support/ScreenHand.h"
#include "support/ScreenStage.h"
#include "support/TempFolder.h"

namespace kv::test {

struct OwnFolder {
  TempFolder folder;
};

/// What a fixture adds and the screen uses must outlive the screen: it resets `screen` in its destructor.
template <typename Kind>
class OneScreen : public OwnFolder, public ScreenStage {
 public:
  explicit OneScreen(const std::string& style = "Slate", bool portraitsInFolder = false)
      : ScreenStage(style, 1, portraitsInFolder ? folder.path() : "/nowhere") {}

  /// Opens it in place of the one before.
  Kind& Show(std::unique_ptr<Kind> made, int milliseconds = 3000) {
    hand.reset();
    screen = std::move(made);
    screen->Open();
    Settle(milliseconds);
    hand = std::make_unique<ScreenHand>(*screen);
    return *screen;
  }
  template <typename Control = QWidget>
  [[nodiscard]] Control& Find(const char* name) {
    QWidget* found = screen->template findChild<QWidget*>(QString::fromUtf8(name));
    auto* control = dynamic_cast<Control*>(found);
    if (control == nullptr) throw std::out_of_range(name);
    return *control;
  }
  [[nodiscard]] ctlButton& Button(const char* name) { return Find<ctlButton>(name); }
  [[nodiscard]] std::string Text(const char* label) { return Find<QLabel>(label).text().toStdString(); }
  void Click(QWidget& control) {
    hand->Click(control);
    Settle(50);
  }
  void Click(const char* control) { Click(Find(control)); }
  void Key(Qt::Key key) {
    hand->Key(key);
    Settle(50);
  }

  std::unique_ptr<Kind> screen;
  std::unique_ptr<ScreenHand> hand;
};

}  // namespace kv::test
