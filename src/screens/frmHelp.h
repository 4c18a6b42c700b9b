// The rules in a window of their own, in front of whatever is open, which goes on behind it. It looks up
// nothing of a match.
#pragma once

#include <QListWidget>
#include <QTextBrowser>
#include <memory>
#include <string_view>
#include <vector>

#include "presentation/Screen.h"
#include "screens/HelpPages.h"
#include "screens/HelpScenes.h"

namespace kv {

class frmHelp final : public Screen {
 public:
  /// `moves`: the examples of the cards play.
  frmHelp(const ScreenServices& services, std::string_view style, std::vector<HelpPage> pages, bool moves);
  ~frmHelp() override;

  void LeaveProgram() override;

  [[nodiscard]] QListWidget& lstPages() { return *lstPages_; }
  [[nodiscard]] QTextBrowser& txtPage() { return *txtPage_; }
  [[nodiscard]] MotionLayer& motionLayer() { return *motionLayer_; }

 protected:
  void Shown() override;
  void Closing() override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ShowPage(int index);
  void AddCardPictures();
  [[nodiscard]] double CardHeight() const;  // in the text, layout pixels
  void SpaceParagraphs();
  void DressTables();

  const std::vector<HelpPage> pages_;
  const bool moves_;
  QListWidget* lstPages_;  // children
  QTextBrowser* txtPage_;
  MotionLayer* motionLayer_;
  std::unique_ptr<HelpScenes> scenes_;
};

}  // namespace kv
