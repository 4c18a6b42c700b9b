// The player's hand on the match screen: four cards that can be dragged, double-clicked and flipped. It says
// what the person did; the match decides whether anything comes of it.
#pragma once

#include <QPoint>
#include <array>
#include <functional>

#include "cards/ctlCard.h"
#include "match/MatchGrid.h"
#include "match/MatchKeys.h"
#include "match/ctlFlip.h"
#include "match/ctlShape.h"
#include "presentation/Layout.h"

namespace kv {

class frmGameHand {
 public:
  /// The controls become children of `container`, which must outlive this.
  frmGameHand(QWidget& container, Layout& layout, const CardLook& look, const MatchGrid& grid);

  /// With the hand card 1 to 4.
  std::function<void(int slot)> Play;
  std::function<void(int slot)> FirstFlip;
  std::function<void(int slot)> SecondFlip;
  /// The pointer moves over a card that is not being dragged.
  std::function<void(ctlCard& card)> Hover;
  std::function<void()> DragStarted;
  std::function<void()> DragEnded;
  /// The card was let go at this place of the container and is at home again.
  std::function<void(int slot, QPoint from)> PutHome;

  /// Shows the code in its slot and the flip buttons it needs; an empty code hides both.
  void ShowCard(int slot, const CardCode& code);
  /// Cards and flip buttons; disabling ends a drag.
  void setEnabled(bool cards, bool flips);
  /// Ends a drag: the card goes back to its place.
  void PutBack();
  [[nodiscard]] FlipsShown flips() const;
  /// All flip buttons back to their plain pictures.
  void PlainFlips();
  /// The slot of the card that is this widget; 0 if none.
  [[nodiscard]] int SlotOf(const QObject* widget) const;

  [[nodiscard]] ctlCard& ctlYourDeck(int slot) const { return *At(slot).card; }
  [[nodiscard]] ctlFlip& imgFlip(int slot) const { return *At(slot).first; }
  [[nodiscard]] ctlFlip& imgFlip2(int slot) const { return *At(slot).second; }
  /// What a flip button of each row shows while the pointer is over it.
  [[nodiscard]] const Picture& imgFlip_On() const { return imgFlip_On_; }
  [[nodiscard]] const Picture& imgFlip2_On() const { return imgFlip2_On_; }
  [[nodiscard]] ctlShape& imgFlipFooter() const { return *footer_; }
  [[nodiscard]] ctlShape& imgFlip2Footer() const { return *footer2_; }

 private:
  struct Slot {
    ctlCard* card = nullptr;  // children of the container
    ctlFlip* first = nullptr;
    ctlFlip* second = nullptr;
  };

  [[nodiscard]] const Slot& At(int slot) const { return slots_.at(static_cast<std::size_t>(slot) - 1); }
  void Build(int slot, QWidget& container, Layout& layout, const CardLook& look);
  void Grab(int slot, QPoint position);
  void Move(int slot, QPoint position);
  void Release(int slot);

  const MatchGrid& grid_;
  Picture imgFlip_On_;
  Picture imgFlip2_On_;
  std::array<Slot, kHandSize> slots_;
  ctlShape* footer_;
  ctlShape* footer2_;
  int dragged_ = 0;  // the hand card that is being dragged, 0 for none
  QPoint home_;      // where it was when it was grabbed
  QPoint grab_;      // the pointer within it
};

}  // namespace kv
