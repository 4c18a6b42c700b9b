#include "platform/QtAnnouncer.h"

#include <QAccessible>
#include <QApplication>
#include <QRect>

#include "platform/QtText.h"

namespace kv {

/// Something that is read and never drawn.
class Unseen : public QAccessibleInterface {
 public:
  Unseen(QAccessible::Role role, QAccessibleInterface* parent) : role_(role), parent_(parent) {}

  bool isValid() const override { return QCoreApplication::instance() != nullptr; }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override { return parent_; }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QAccessible::Role role() const override { return role_; }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.readOnly = true;
    return state;
  }
  QRect rect() const override { return {}; }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? name_ : QString();
  }
  void setText(QAccessible::Text kind, const QString& text) override {
    if (kind == QAccessible::Name) name_ = text;
  }

 private:
  QAccessible::Role role_;
  QAccessibleInterface* parent_;
  QString name_;
};

/// Readers leave out the word "notification" before what a status bar tells.
class SpokenBar final : public Unseen {
 public:
  SpokenBar() : Unseen(QAccessible::StatusBar, QAccessible::queryAccessibleInterface(qApp)) {}
};

class SpokenLine final : public Unseen {
 public:
  explicit SpokenLine(SpokenBar* bar) : Unseen(QAccessible::Notification, bar) {}
};

QtAnnouncer::QtAnnouncer() : bar_(new SpokenBar) {
  QAccessible::registerAccessibleInterface(bar_);
  for (SpokenLine*& line : lines_) {
    line = new SpokenLine(bar_);
    QAccessible::registerAccessibleInterface(line);
  }
}

QtAnnouncer::~QtAnnouncer() {
  for (SpokenLine* line : lines_) QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(line));
  QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(bar_));
}

void QtAnnouncer::Announce(const std::string& text, Urgency urgency) {
  if (text.empty()) return;
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  if (QObject* window = QApplication::activeWindow()) {
    QAccessibleAnnouncementEvent event(window, ToQString(text));
    event.setPoliteness(urgency == Urgency::Assertive ? QAccessible::AnnouncementPoliteness::Assertive
                                                      : QAccessible::AnnouncementPoliteness::Polite);
    QAccessible::updateAccessibility(&event);
    return;
  }
#else
  static_cast<void>(urgency);  // what appears is always told after what is being spoken
#endif
  // The toolkit's event for an alert reaches no reader on this desktop; that something has appeared does.
  SpokenLine* line = lines_.at(next_);
  next_ = (next_ + 1) % kLines;
  line->setText(QAccessible::Name, ToQString(text));
  QAccessibleEvent shown(line, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&shown);
}

}  // namespace kv
