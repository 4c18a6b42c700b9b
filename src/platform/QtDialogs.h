// The boxes in which the program asks and tells, in the look of the screens. They open over the
// program's active window and keep its screens from being destroyed while they wait.
#pragma once

#include "platform/Dialogs.h"
#include "platform/QtScheduler.h"

namespace kv {

class QtDialogs final : public Dialogs {
 public:
  /// `scheduler` must outlive it: a box counts as one of its pauses.
  explicit QtDialogs(QtScheduler& scheduler) : scheduler_(scheduler) {}

  void Message(const std::string& text, const std::string& title, DialogIcon icon) override;
  [[nodiscard]] bool AskYesNo(const std::string& text, const std::string& title, DialogIcon icon) override;
  [[nodiscard]] std::optional<std::string> AskText(const std::string& prompt, const std::string& title,
                                                   const std::string& preset) override;
  void setInterfaceStyle(const std::string& style) override { interfaceStyle_ = style; }

 private:
  QtScheduler& scheduler_;
  std::string interfaceStyle_ = "Slate";
};

}  // namespace kv
