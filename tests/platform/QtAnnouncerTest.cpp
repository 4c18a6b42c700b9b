#include <gtest/gtest.h>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <QAccessible>
#include <QString>
#include <vector>

#include "platform/QtAnnouncer.h"

namespace kv {
namespace {

struct Shown {
  QAccessible::Id line;
  QAccessible::Event event;
};
std::vector<Shown> shownLines;  // the toolkit's hook takes no context

void Remember(QAccessibleEvent* event) {
  shownLines.push_back({event->uniqueId(), event->type()});
}

class QtAnnouncerTest : public testing::Test {
 protected:
  void SetUp() override {
    shownLines.clear();
    SetReader(true);
    previous_ = QAccessible::installUpdateHandler(Remember);
  }
  void TearDown() override {
    QAccessible::installUpdateHandler(previous_);
    SetReader(false);
  }
  /// Without a reader the toolkit tells nothing; off screen there is none that could come.
  static void SetReader(bool there) {
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(there);
  }
  static QString Read(const Shown& shown) {
    return QAccessible::accessibleInterface(shown.line)->text(QAccessible::Name);
  }

 private:
  QAccessible::UpdateHandler previous_ = nullptr;
};

TEST_F(QtAnnouncerTest, ASentenceCanStillBeReadWhenTheNextOnesHaveBeenTold) {
  QtAnnouncer announcer;
  for (const char* text : {"You draw 7.", "Total 17.", "You stand."})
    announcer.Announce(text, Urgency::Polite);
  ASSERT_EQ(shownLines.size(), 3U);
  EXPECT_EQ(Read(shownLines[0]), "You draw 7.");
  EXPECT_EQ(Read(shownLines[1]), "Total 17.");
  EXPECT_EQ(Read(shownLines[2]), "You stand.");
}

TEST_F(QtAnnouncerTest, ASentenceIsANotificationOfAStatusBarThatHasAppeared) {
  QtAnnouncer announcer;
  announcer.Announce("", Urgency::Polite);
  EXPECT_TRUE(shownLines.empty()) << "nothing was said";
  announcer.Announce("Zo\xC3\xAB proposes 20.", Urgency::Assertive);
  ASSERT_EQ(shownLines.size(), 1U);
  EXPECT_EQ(shownLines[0].event, QAccessible::ObjectShow);
  const QAccessibleInterface* line = QAccessible::accessibleInterface(shownLines[0].line);
  EXPECT_EQ(line->text(QAccessible::Name), QString::fromUtf8("Zo\xC3\xAB proposes 20."));
  EXPECT_EQ(line->role(), QAccessible::Notification);
  EXPECT_FALSE(line->state().invisible);
  EXPECT_EQ(line->parent()->role(), QAccessible::StatusBar) << "else a reader says what kind of thing it is";
  EXPECT_EQ(line->parent()->parent(), QAccessible::queryAccessibleInterface(qApp));
}

}  // namespace
}  // namespace kv
