// The chat of a network game: its log and the line to write in. It shows texts as they are, never as markup,
// and knows nothing of what a line means.
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QWidget>

#include "match/MatchPartners.h"
#include "platform/Announcer.h"
#include "presentation/Layout.h"

namespace kv {

class ctlChat final : public QWidget {
 public:
  /// Takes "ctlChat", "txtNetwork" and "txtSend" from the layout and shows the log of `network` until
  /// another chat does; both must outlive it. Every line that comes is told.
  ctlChat(QWidget* parent, Layout& layout, MatchNetwork& network, Announcer& announcer);

  [[nodiscard]] QPlainTextEdit& txtNetwork() { return *txtNetwork_; }
  [[nodiscard]] QLineEdit& txtSend() { return *txtSend_; }
  /// Whether the person is writing.
  [[nodiscard]] bool writing() const { return txtSend_->hasFocus(); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  /// The log has changed: shown to its end.
  void txtNetwork_Change(const std::string& log);
  /// Enter in the entry line: what stands there is said.
  void txtSend_KeyPress();

  MatchNetwork& network_;
  Announcer& announcer_;
  const PropertyBag look_;
  std::string shown_;           // the log as it stands in txtNetwork
  QPlainTextEdit* txtNetwork_;  // children
  QLineEdit* txtSend_;
};

}  // namespace kv
