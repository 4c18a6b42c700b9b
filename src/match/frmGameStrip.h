// The strip of last moves on the match screen: what was said last, and before it as much as there is room
// for. It makes no sentence itself.
#pragma once

#include <QLabel>
#include <deque>
#include <string>

namespace kv {

class frmGameStrip {
 public:
  /// It must outlive this.
  explicit frmGameStrip(QLabel& label);

  void Tell(const std::string& sentence);

 private:
  [[nodiscard]] bool Fits(const QString& text) const;

  QLabel& label_;
  std::deque<QString> last_;  // the newest at the end
};

}  // namespace kv
