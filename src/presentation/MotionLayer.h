// The topmost sheet of a screen, on which things move. A control that moves is where it belongs at once: it
// is only not drawn while its picture is on the way, so that rules, keys, pointer and screen readers wait for
// nothing. At rest no timer runs, and nothing is kept.
#pragma once

#include <QImage>
#include <QPointer>
#include <QWidget>
#include <memory>
#include <vector>

#include "platform/Scheduler.h"
#include "presentation/Motion.h"

namespace kv {

class MotionLayer final : public QWidget {
 public:
  /// Covers `screen`, whose child it is and whose size is fixed from now on. `scheduler` must outlive it.
  MotionLayer(QWidget& screen, Scheduler& scheduler);

  /// The controls it stands for are not drawn until it ends; what moves for one of them already jumps to its
  /// end. It ends as well when the first of them is hidden or gone.
  void Begin(std::unique_ptr<Moving> moving, const Timing& timing,
             const std::vector<QWidget*>& standsFor = {});
  /// What moves for this control jumps to its end.
  void Finish(const QWidget& control);
  void FinishAll();
  /// The screen closes: nothing moves any more, now and later.
  void Close();
  [[nodiscard]] bool moving() const { return !motions_.empty(); }
  [[nodiscard]] bool moves(const QWidget& control) const;

  /// The control as it is drawn now, in its layout size; also one that is not drawn at the moment.
  [[nodiscard]] QImage PictureOf(QWidget& control);
  /// Its place on the screen, in layout pixels.
  [[nodiscard]] QRect PlaceOf(const QWidget& control) const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Running {
    std::unique_ptr<Moving> moving;
    Timing timing;
    std::uint32_t begun = 0;
    double way = 0;
    QRegion painted;
    std::vector<QPointer<QWidget>> standsFor;
  };

  void Frame();
  void End(Running& running);
  template <typename Which>
  void FinishWhich(const Which& which);
  void Veil(QWidget& control);
  void Unveil(QWidget& control);

  Scheduler& scheduler_;
  std::unique_ptr<Timer> tmrFrame_;
  std::vector<Running> motions_;
  bool closed_ = false;
  bool picturing_ = false;  // a control that is not drawn is drawn for its picture
  bool watching_ = false;   // for keys and clicks
};

}  // namespace kv
