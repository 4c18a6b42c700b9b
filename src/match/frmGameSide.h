// What the match screen shows of one side: name, portrait, turn light, total, table, won sets, and for the
// opponent the face-down hand. It only shows.
#pragma once

#include <QLabel>
#include <array>
#include <vector>

#include "cards/ctlCard.h"
#include "match/MatchGrid.h"
#include "match/ctlShape.h"
#include "match/frmGameServices.h"
#include "presentation/FadeTarget.h"
#include "presentation/Layout.h"

namespace kv {

class frmGameSide {
 public:
  /// The controls become children of `container`, which must outlive this.
  frmGameSide(Seat seat, QWidget& container, Layout& layout, const frmGameServices& services,
              const MatchGrid& grid);

  /// Lays card 1 to 9 on the table behind everything else, or shows that it was rewritten.
  void ShowTableCard(int index, const CardCode& code);
  void ClearTable();
  void setTableEnabled(bool enabled);
  void ShowTotal(int total);
  /// Shows the first `count` won-set markers, and no others.
  void ShowSetWins(int count);
  /// Shows or hides a card of the opponent's hand.
  void ShowHandCard(int slot, bool shown);
  void setHandEnabled(bool enabled);
  /// Closes its place, so that nothing of it is missed.
  void HidePortrait();
  /// Draws the turn light unlit; the lit picture fades over it while it is on.
  void RepaintLight();
  /// Its name says whether it is on.
  void TellLight(bool on);
  [[nodiscard]] Effects::Pair LightPair() const { return {lit_, light_}; }

  [[nodiscard]] FadeTarget& light() const { return *light_; }
  [[nodiscard]] FadeTarget& portrait() const { return *portrait_; }
  [[nodiscard]] bool shuttered() const { return !shutter_->isHidden(); }
  [[nodiscard]] QLabel& lblTotal() const { return *total_; }
  [[nodiscard]] const std::vector<ctlCard*>& table() const { return table_; }
  [[nodiscard]] const std::vector<ctlShape*>& markers() const { return markers_; }
  [[nodiscard]] int SetWinsShown() const { return static_cast<int>(markers_.size()); }
  [[nodiscard]] ctlCard& ctlOppDeck(int slot) const { return *hand_.at(static_cast<std::size_t>(slot) - 1); }

 private:
  void BuildLabels(Layout& layout, const frmGameServices& services);
  void BuildPortrait(Layout& layout, const frmGameServices& services);
  void BuildLight(Layout& layout, const frmGameServices& services);
  void BuildOpponentHand();

  const Seat seat_;
  QWidget& container_;
  const MatchGrid& grid_;
  const CardLook& look_;
  PropertyBag markerBag_;
  QSize markerSize_;
  QLabel* total_ = nullptr;  // all controls are children of the container
  FadeTarget* light_ = nullptr;
  FadeTarget* portrait_ = nullptr;
  ctlShape* frame_ = nullptr;
  ctlShape* shutter_ = nullptr;
  Picture lit_;
  Picture unlit_;
  std::vector<ctlCard*> table_;
  std::vector<ctlShape*> markers_;
  std::array<ctlCard*, kHandSize> hand_{};  // the opponent's only
  bool tableEnabled_ = true;
};

}  // namespace kv
