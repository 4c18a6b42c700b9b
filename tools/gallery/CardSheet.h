// A sheet with every kind of card in every state, in one interface style.
#pragma once

#include <QWidget>

#include "app/frmGlobals.h"

namespace kv {

class CardSheet final : public QWidget {
 public:
  /// `globals` must outlive it; its look tells the style.
  explicit CardSheet(const frmGlobals& globals);

 private:
  void AddRow(const char* title, int row);

  const frmGlobals& globals_;
};

}  // namespace kv
