// Something that moves on a screen for a moment: what it looks like at any point of its way, and how long the
// way takes. It only paints; who shows it in time is the MotionLayer.
#pragma once

#include <QPainter>
#include <QRegion>
#include <cstdint>

namespace kv {

class clsPlayer;

enum class Easing : std::uint8_t {
  Even,
  Out,    // fast at first, coming to rest
  InOut,  // gathering speed, coming to rest
  Over,   // a little beyond its end, and back
};
/// How far a motion is when the part `time` (0 to 1) of its time has passed; exactly 0 and 1 at both ends.
[[nodiscard]] double Eased(Easing easing, double time);

class Moving {
 public:
  virtual ~Moving() = default;
  /// Where it is painted at `way` (0 to 1, a little more with Easing::Over), in layout pixels of the screen.
  /// One rectangle, and everything between it and the next frame's is painted anew; several: only they are.
  [[nodiscard]] virtual QRegion Area(double way) const = 0;
  /// The painter may be left as it pleases.
  virtual void Paint(QPainter& painter, double way) const = 0;
};

/// Milliseconds.
struct Timing {
  int delay = 0;  // it stands at its beginning until then
  int length = 0;
  Easing easing = Easing::Out;
  bool skippable = false;  // any key or click ends it, and still does what it does
};

/// Whether the desktop lets anything move.
[[nodiscard]] bool DesktopMoves();
/// Whether anything is to move for this player: neither the option for effects nor the desktop is against it.
[[nodiscard]] bool MotionWanted(const clsPlayer& player);

}  // namespace kv
