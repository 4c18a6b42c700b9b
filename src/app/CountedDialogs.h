// The program's boxes, counted while they are open: the screen that asked may be closed meanwhile, by a peer
// for one, but its call is still under way.
#pragma once

#include "platform/Dialogs.h"

namespace kv {

class CountedDialogs final : public Dialogs {
 public:
  /// `dialogs` must outlive it.
  explicit CountedDialogs(Dialogs& dialogs) : dialogs_(dialogs) {}

  void Message(const std::string& text, const std::string& title, DialogIcon icon) override {
    if (silent_) return;
    const Count open(open_);
    dialogs_.Message(text, title, icon);
  }
  [[nodiscard]] bool AskYesNo(const std::string& text, const std::string& title, DialogIcon icon) override {
    if (silent_) return false;
    const Count open(open_);
    return dialogs_.AskYesNo(text, title, icon);
  }
  [[nodiscard]] std::optional<std::string> AskText(const std::string& prompt, const std::string& title,
                                                   const std::string& preset) override {
    if (silent_) return {};
    const Count open(open_);
    return dialogs_.AskText(prompt, title, preset);
  }
  void setInterfaceStyle(const std::string& style) override { dialogs_.setInterfaceStyle(style); }
  /// How many boxes are open, one over the other.
  [[nodiscard]] int open() const { return open_; }
  /// From now on no box opens, and every question is answered no: nobody is there to read it.
  void Silence() { silent_ = true; }

 private:
  class Count {
   public:
    explicit Count(int& open) : open_(open) { ++open_; }
    ~Count() { --open_; }
    Count(const Count&) = delete;
    Count& operator=(const Count&) = delete;

   private:
    int& open_;
  };

  Dialogs& dialogs_;
  int open_ = 0;
  bool silent_ = false;
};

}  // namespace kv
