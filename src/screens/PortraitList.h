// What holds the tiles of the portrait picker together: one stop for the keyboard, one list to a screen
// reader. It draws nothing and keeps nothing; which tile is chosen is the screen's.
#pragma once

#include <QWidget>

namespace kv {

class PortraitList final : public QWidget {
 public:
  explicit PortraitList(QWidget* parent) : QWidget(parent) { setMouseTracking(true); }
};

}  // namespace kv
