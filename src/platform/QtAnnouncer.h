// Sentences for the desktop's screen reader, by what the toolkit offers for it. Without a reader it does
// nothing. It never touches the focus.
#pragma once

#include <array>

#include "platform/Announcer.h"

namespace kv {

class SpokenBar;
class SpokenLine;

class QtAnnouncer final : public Announcer {
 public:
  /// While the application exists.
  QtAnnouncer();
  ~QtAnnouncer() override;

  void Announce(const std::string& text, Urgency urgency) override;

 private:
  // A reader asks for a sentence only when it has time for it: by then others have followed.
  static constexpr std::size_t kLines = 16;

  SpokenBar* bar_;                         // all of them belong to the toolkit's register
  std::array<SpokenLine*, kLines> lines_;  // of which `next_` was told longest ago
  std::size_t next_ = 0;
};

}  // namespace kv
