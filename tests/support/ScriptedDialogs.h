// Dialogs that answer from a script and remember every box that was shown.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/Dialogs.h"

namespace kv::test {

class ScriptedDialogs final : public Dialogs {
 public:
  struct Box {
    std::string text;
    std::string title;
    DialogIcon icon = DialogIcon::None;
    std::string preset;  // of a box that asks for text
  };

  std::vector<Box> boxes;                        // every box, in order
  std::deque<bool> answers;                      // to the yes/no questions
  std::deque<std::optional<std::string>> texts;  // to the boxes that ask for text
  std::function<void()> whileOpen;               // runs while a box is open

  void Message(const std::string& text, const std::string& title, DialogIcon icon) override {
    Show({text, title, icon, {}});
  }
  [[nodiscard]] bool AskYesNo(const std::string& text, const std::string& title, DialogIcon icon) override {
    Show({text, title, icon, {}});
    return Next(answers);
  }
  [[nodiscard]] std::optional<std::string> AskText(const std::string& prompt, const std::string& title,
                                                   const std::string& preset) override {
    Show({prompt, title, DialogIcon::None, preset});
    return Next(texts);
  }

 private:
  void Show(Box box) {
    boxes.push_back(std::move(box));
    if (whileOpen) whileOpen();
  }
  template <typename T>
  static T Next(std::deque<T>& script) {
    if (script.empty()) throw std::logic_error("the test gave too few answers");
    T answer = script.front();
    script.pop_front();
    return answer;
  }
};

}  // namespace kv::test
