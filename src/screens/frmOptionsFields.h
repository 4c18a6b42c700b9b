// The check boxes, option buttons and lists of the options screen, and the field of the player record that
// each of them edits. It changes a record in Write only.
#pragma once

#include <array>
#include <cstdint>
#include <functional>

#include "presentation/Layout.h"
#include "profile/PlayerFields.h"

class QCheckBox;
class QListWidget;
class QRadioButton;

namespace kv {

inline constexpr int kOptionChecks = 10;
inline constexpr int kOptionLists = 4;
inline constexpr int kTurnSystems = 3;

class frmOptionsFields {
 public:
  /// Makes the controls as children of `frame`, placed by `layout`. `clicked` is called at every click on one
  /// of them, by pointer or keyboard.
  frmOptionsFields(QWidget& frame, Layout& layout, std::function<void()> clicked);

  /// A value of the record that no control can show (from a file made elsewhere) shows as nothing chosen.
  void Read(const PlayerFields& fields);
  /// Stores what is chosen; where nothing is chosen the record keeps its value.
  void Write(PlayerFields& fields) const;

  [[nodiscard]] QCheckBox& chkKeys() const { return *checks_.back(); }
  [[nodiscard]] QCheckBox& chkLastMute() const { return *checks_.at(kOptionChecks - 2); }
  [[nodiscard]] QListWidget& lstArcadeOpp() const { return *lists_.front(); }

 private:
  void AddChecks(int first, int last, QWidget& frame, Layout& layout);
  void AddList(int index, QWidget& frame, Layout& layout);
  void AddTurnSystems(QWidget& frame, Layout& layout);

  std::function<void()> clicked_;
  std::array<QCheckBox*, kOptionChecks> checks_{};  // children of the frame
  std::array<QListWidget*, kOptionLists> lists_{};
  std::array<QRadioButton*, kTurnSystems> optTurnSystem_{};
  int turnSystem_ = -1;  // the index that was read or clicked last
};

}  // namespace kv
