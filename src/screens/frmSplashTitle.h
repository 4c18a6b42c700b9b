// The title of the start screen and the line below it: they light up, glow until they are clicked, and the
// window is dragged by the title. It knows nothing of players.
#pragma once

#include <QObject>
#include <QPoint>
#include <functional>
#include <memory>
#include <optional>

#include "platform/Scheduler.h"
#include "presentation/Effects.h"
#include "presentation/FadeTarget.h"
#include "presentation/Layout.h"
#include "presentation/WindowDrag.h"

class QMouseEvent;

namespace kv {

class frmSplashTitle final : public QObject {
 public:
  /// Unlit and lit pictures of both, in the tint of the window.
  struct Look {
    Picture textOff;
    Picture imgFadeText;
    Picture lineOff;
    Picture imgFadeLine;
  };

  /// Places its two picture boxes in `window`, unlit. All references must outlive it; it belongs to the
  /// screen that `window` is.
  frmSplashTitle(QWidget& window, Layout& layout, Effects& effects, Scheduler& scheduler, Look look);

  /// The pointer moved over it.
  std::function<void()> MouseMove;

  /// Lights up once, then glows. Does nothing after EndPulse.
  void Begin();
  /// The person is there: a glow that has come to rest goes on.
  void Stir();
  /// Stands still as it is.
  void Stop();
  /// Lit, and still for good.
  void EndPulse();
  [[nodiscard]] bool pulseEnded() const { return pulseEnded_; }
  [[nodiscard]] const FadeTarget& text() const { return *imgFadeText_Target_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void InitialTick();
  void PulseTick();
  void RestTick();
  void ShowLit();
  void Moved(const QMouseEvent& event);

  QWidget& window_;
  Effects& effects_;
  const Look look_;
  const std::unique_ptr<Timer> tmrInitial_;
  const std::unique_ptr<Timer> tmrPulse_;
  const std::unique_ptr<Timer> tmrRest_;
  bool resting_ = false;
  bool pulseEnded_ = false;
  WindowDrag drag_;
  std::optional<QPoint> press_;               // on the desktop, while it may still become a click
  FadeTarget* imgFadeText_Target_ = nullptr;  // children of the window
  FadeTarget* imgFadeLine_Target_ = nullptr;
};

}  // namespace kv
