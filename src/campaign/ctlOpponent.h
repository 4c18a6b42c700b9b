// The tile of one opponent on the circuit: portrait, name, stake limits, and the player's wins against it. It
// shows what it is given and never decides whether the opponent can be met.
#pragma once

#include <QColor>
#include <QLabel>
#include <QWidget>
#include <array>
#include <cstdint>
#include <functional>

#include "platform/Picture.h"
#include "platform/QtPropertyBag.h"
#include "presentation/Layout.h"

namespace kv {

class ctlOpponent final : public QWidget {
 public:
  /// Gives the portrait of a number.
  using PortraitSource = std::function<Picture(int number)>;

  /// Lays itself out by the layout's control "ctlOpponent" (size and colours, its normal ones among them
  /// where a style has its own) and those whose names begin with "ctlOpponent.". The owner gives it its
  /// place.
  ctlOpponent(QWidget* parent, Layout& layout, PortraitSource portraits);

  /// Takes "enabled", "maxwager", "minwager", "oppname", "opppic" and "wins".
  void ReadProperties(const PropertyBag& bag);

  [[nodiscard]] bool Enabled() const { return enabled_; }
  void setEnabled(bool enabled);
  [[nodiscard]] std::int32_t MaxWager() const { return lblMax_->text().toInt(); }
  void setMaxWager(std::int32_t credits);
  [[nodiscard]] std::int32_t MinWager() const { return lblMin_->text().toInt(); }
  void setMinWager(std::int32_t credits);
  [[nodiscard]] QString OppName() const { return lblOppName_->text(); }
  void setOppName(const QString& name);
  [[nodiscard]] std::int16_t OppPic() const { return oppPic_; }
  void setOppPic(std::int16_t number);
  [[nodiscard]] std::int16_t Wins() const { return wins_; }
  /// -1 hides the count and its heading.
  void setWins(std::int16_t wins);
  /// A line at the foot of the tile; says in words what the grey of a disabled tile means.
  [[nodiscard]] QString Note() const { return lblNote_->text(); }
  void setNote(const QString& note);

  /// The border of both frames.
  void Color(const QColor& color);
  /// Back to the normal colours.
  void unColor();
  [[nodiscard]] QColor FrameColor() const { return outerFrame_; }

  /// "Vel'ir, stake 100 to 185, 3 wins".
  [[nodiscard]] QString Description() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QLabel* NewPart(Layout& layout, QStringView label);
  void Paint(QLabel& label, const QColor& color);

  PortraitSource portraits_;
  PropertyBag look_;
  QRect pictureArea_;
  Picture picture_;
  std::int16_t oppPic_ = 0;
  std::int16_t wins_ = 0;
  bool enabled_ = true;
  QColor outerFrame_;
  QColor innerFrame_;
  QLabel* lblOppName_;  // children
  QLabel* lblMinWager_;
  QLabel* lblMaxWager_;
  QLabel* lblWinsAgainst_;
  QLabel* lblMin_;
  QLabel* lblMax_;
  QLabel* lblWins_;
  QLabel* lblNote_;
};

}  // namespace kv
