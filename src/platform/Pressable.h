// What a screen reader can press although it is no button of the toolkit's: cards, pictures, labels. Pressing
// it does what the person's double-click or click on it does.
#pragma once

namespace kv {

class Pressable {
 public:
  /// Whether a press means anything here; whether it may be pressed right now, the control itself knows.
  [[nodiscard]] virtual bool pressable() const = 0;
  virtual void DoPress() = 0;

 protected:
  ~Pressable() = default;
};

}  // namespace kv
