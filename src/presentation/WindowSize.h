// How large everything is drawn, as a screen sees and changes it. The default form is the window of fixed
// size.
#pragma once

namespace kv {

class WindowSize {
 public:
  virtual ~WindowSize() = default;
  /// The size in use, in percent of the layouts' own.
  [[nodiscard]] virtual int ShownPercent() const { return 100; }
  /// Whether it is the largest at which every screen is whole.
  [[nodiscard]] virtual bool fits() const { return false; }
  [[nodiscard]] virtual bool fullScreen() const { return false; }
  /// One step larger (1) or smaller (-1) than the size in use. Takes effect at once, as all that follow.
  virtual void StepSize(int direction) { static_cast<void>(direction); }
  virtual void setFits(bool fits) { static_cast<void>(fits); }
  virtual void setFullScreen(bool full) { static_cast<void>(full); }
};

}  // namespace kv
