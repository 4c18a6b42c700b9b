// What the toolkit would load without this game ever using it: a desktop's theme, and the graphics card's
// libraries, which alone take 50 MB on Wayland. It must never overrule what the user has set.
#pragma once

#include <vector>

namespace kv {

class QtThrift {
 public:
  /// Before the application object is made: from here on the toolkit is asked to leave these out.
  QtThrift();
  QtThrift(const QtThrift&) = delete;
  QtThrift& operator=(const QtThrift&) = delete;
  ~QtThrift() { Restore(); }

  /// Once the first window stands: other programs that are started from here find the environment that this
  /// one has found.
  void Restore();

 private:
  std::vector<const char*> set_;  // variables that were not there before
};

}  // namespace kv
