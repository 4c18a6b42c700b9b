#include <gtest/gtest.h>

#include <QApplication>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "platform/QtDialogs.h"

namespace kv::test {
namespace {

class QtDialogsTest : public testing::Test {
 protected:
  /// Acts on the box that is opened next, once it stands.
  template <typename Box>
  void WhenOpen(std::function<void(Box&)> act) {
    QTimer::singleShot(0, QCoreApplication::instance(), [this, act] {
      EXPECT_EQ(scheduler.PauseDepth(), 1);
      auto* box = dynamic_cast<Box*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      act(*box);
    });
  }
  static void Escape(QWidget& box) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(&box, &press);
  }

  QtScheduler scheduler;
  QtDialogs dialogs{scheduler};
};

TEST_F(QtDialogsTest, ShowsTextTitleAndIconAsTheyAre) {
  WhenOpen<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(box.text(), QStringLiteral("<b>5 < 6</b> & more"));
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.windowTitle(), QStringLiteral("Kelm Vantri: Error"));
    EXPECT_FALSE(box.iconPixmap().isNull());
    EXPECT_GT(box.width(), QFontMetrics(box.font()).horizontalAdvance(box.windowTitle()));
    Escape(box);
  });
  dialogs.Message("<b>5 < 6</b> & more", "Kelm Vantri: Error", DialogIcon::Critical);
  EXPECT_EQ(scheduler.PauseDepth(), 0);
}

TEST_F(QtDialogsTest, OnlyYesIsYes) {
  const auto ask = [this] { return dialogs.AskYesNo("Sure?", "Kelm Vantri", DialogIcon::Question); };
  WhenOpen<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); });
  EXPECT_TRUE(ask());
  WhenOpen<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::No)->click(); });
  EXPECT_FALSE(ask());
  WhenOpen<QMessageBox>([](QMessageBox& box) { Escape(box); });
  EXPECT_FALSE(ask());
}

TEST_F(QtDialogsTest, AsksForTextWithAPreset) {
  WhenOpen<QInputDialog>([](QInputDialog& box) {
    EXPECT_EQ(box.textValue(), QStringLiteral("6000"));
    box.setTextValue(QStringLiteral("Zoë"));
    box.accept();
  });
  EXPECT_EQ(dialogs.AskText("Port:", "Kelm Vantri", "6000"), "Zo\u00eb");
  WhenOpen<QInputDialog>([](QInputDialog& box) { Escape(box); });
  EXPECT_EQ(dialogs.AskText("Port:", "Kelm Vantri", "6000"), std::nullopt);
}

TEST_F(QtDialogsTest, ABoxWhoseWindowGoesAnswersNo) {
  auto* window = new QWidget;
  window->show();
  QApplication::setActiveWindow(window);
  WhenOpen<QMessageBox>([window](QMessageBox&) { delete window; });
  EXPECT_FALSE(dialogs.AskYesNo("Sure?", "Kelm Vantri", DialogIcon::None));
}

}  // namespace
}  // namespace kv::test
