// The rules in a window of their own, in front of whatever is open, which goes on behind it. It looks up
// nothing of a match.
#pragma once

#include <QListWidget>
#include <QTextBrowser>
#include <string_view>
#include <vector>

#include "presentation/Screen.h"
#include "screens/HelpPages.h"

namespace kv {

class frmHelp final : public Screen {
 public:
  frmHelp(const ScreenServices& services, std::string_view style, std::vector<HelpPage> pages);
  ~frmHelp() override;

  void LeaveProgram() override;

  [[nodiscard]] QListWidget& lstPages() { return *lstPages_; }
  [[nodiscard]] QTextBrowser& txtPage() { return *txtPage_; }

 protected:
  void Shown() override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ShowPage(int index);
  void AddCardPictures();
  void SpaceParagraphs();
  void DressTables();

  const std::vector<HelpPage> pages_;
  QListWidget* lstPages_;  // children
  QTextBrowser* txtPage_;
};

}  // namespace kv
