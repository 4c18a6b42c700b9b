// What is told to a person who does not see the screen: one short sentence at a time. It says what is seen
// anyway, and must never be the only place of it; nothing waits for it.
#pragma once

#include <string>

namespace kv {

enum class Urgency {
  Polite,     // after what is being spoken
  Assertive,  // at once: what the person does next depends on it
};

/// This form says nothing.
class Announcer {
 public:
  virtual ~Announcer() = default;
  /// `text` is UTF-8, whole sentences; an empty one is not told.
  virtual void Announce(const std::string& text, Urgency urgency) {
    static_cast<void>(text);
    static_cast<void>(urgency);
  }
};

}  // namespace kv
