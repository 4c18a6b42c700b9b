// The card control: one card code shown as a face with its value on it. Everything it shows is derived from
// the code; it passes the mouse on to its owner and decides nothing about the game.
#pragma once

#include <QImage>
#include <QString>
#include <QWidget>
#include <functional>
#include <string>

#include "cards/CardFaces.h"
#include "cards/PulsingCard.h"
#include "platform/Pressable.h"

namespace kv {

class PropertyBag;

class ctlCard final : public QWidget, public PulsingCard, public Pressable {
 public:
  /// Raised with the position inside the card.
  using PointerEvent =
      std::function<void(Qt::MouseButton button, Qt::KeyboardModifiers shift, QPoint position)>;

  /// Takes the current player's style; shows no card. `look` must outlive it.
  ctlCard(QWidget* parent, const CardLook& look);
  /// Keys "caption", "card", "count", "enabled", "show_count", "style", in this order.
  void ReadProperties(const PropertyBag& bag);

  /// Lays the picture over the card's face at opacity 0 to 255, in place of what lay there.
  void Alpha(const Picture& picture, int level) override;
  /// Draws the card dimmed, whether or not it is enabled.
  void grey();

  [[nodiscard]] const QString& Caption() const { return caption_; }
  void setCaption(const QString& caption);
  /// The code's text, in lower case.
  [[nodiscard]] std::string Card() const { return code_.text(); }
  void setCard(std::string_view code);
  [[nodiscard]] std::string count() const { return std::to_string(count_); }
  /// Text that is no number counts as 0.
  void setCount(std::string_view text);
  [[nodiscard]] bool Enabled() const override { return isEnabled(); }
  void setEnabled(bool enabled);
  [[nodiscard]] bool Show_Count() const { return showCount_; }
  void setShow_Count(bool show);
  /// "Slate" or "Ember"; any other text leaves the layout as it is.
  [[nodiscard]] const QString& Style() const { return style_; }
  void setStyle(const QString& style);

  /// What the card is to a person who cannot see it: "hand card 2".
  void setPlace(const QString& place);

  /// Whether a double-click does anything, and that double-click.
  [[nodiscard]] bool pressable() const override { return static_cast<bool>(DblClick); }
  void DoPress() override;

  /// The picture the control shows, at this device pixel ratio.
  [[nodiscard]] QImage Surface(qreal ratio) const;

  std::int16_t cardValue = 0;

  std::function<void()> Click;
  std::function<void()> DblClick;
  PointerEvent MouseDown;
  PointerEvent MouseMove;
  PointerEvent MouseUp;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  struct StyleLayout;
  /// Where a press began, which decides who gets what follows.
  enum class Press { None, Surface, Caption };

  static const StyleLayout* LayoutOf(const QString& style);
  void Refresh(bool dim, bool reloadPicture);
  void ShowCaption(const QString& caption);
  void DrawLabels(QPainter& painter) const;
  void DrawCount(QPainter& painter) const;
  [[nodiscard]] bool Ember() const;
  [[nodiscard]] QRect CaptionRect() const;
  void Raise(const PointerEvent& event, const QMouseEvent& from) const;

  const CardLook& look_;
  const StyleLayout* layout_;
  CardCode code_;
  QString style_;
  QString caption_;
  QString countLabel_;
  QString place_;
  Picture face_;
  Picture overlay_;
  int overlayLevel_ = 0;
  std::int16_t count_ = 0;
  bool showCount_ = false;
  Press press_ = Press::None;
  QPoint pressedAt_;
};

}  // namespace kv
