// What the program asks or tells in a box of its own: one interface, so that tests can script the answers.
#pragma once

#include <optional>
#include <string>

namespace kv {

enum class DialogIcon { None, Information, Exclamation, Critical, Question };

/// All texts are UTF-8. Each call returns when the person has answered; events go on being handled.
class Dialogs {
 public:
  virtual ~Dialogs() = default;
  virtual void Message(const std::string& text, const std::string& title, DialogIcon icon) = 0;
  /// True for Yes; closing the box counts as No.
  [[nodiscard]] virtual bool AskYesNo(const std::string& text, const std::string& title, DialogIcon icon) = 0;
  /// The typed text, or nothing when cancelled.
  [[nodiscard]] virtual std::optional<std::string> AskText(const std::string& prompt,
                                                           const std::string& title,
                                                           const std::string& preset) = 0;
  /// The look of the boxes that follow: "Slate" or "Ember".
  virtual void setInterfaceStyle(const std::string& /*style*/) {}
};

}  // namespace kv
