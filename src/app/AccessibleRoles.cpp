#include "app/AccessibleRoles.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QCheckBox>
#include <QCoreApplication>
#include <QEvent>
#include <QRadioButton>
#include <optional>

#include "app/Stage.h"
#include "campaign/ctlWager.h"
#include "history/ctlChancePlot.h"
#include "history/ctlCreditsPlot.h"
#include "match/ctlBust.h"
#include "match/ctlShape.h"
#include "platform/Pressable.h"
#include "presentation/FadeTarget.h"
#include "presentation/Screen.h"
#include "presentation/ctlTitlebar.h"
#include "screens/PortraitList.h"

namespace kv {
namespace {

/// A press that comes later, from the event loop: the reader waits for the answer to its own call, and what
/// it presses may open a box that stays for minutes. It goes with its control, or when it has been done.
class Press final : public QObject {
 public:
  explicit Press(QWidget* control) : QObject(control), control_(*control) {
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
  }

 protected:
  bool event(QEvent* event) override {
    if (event->type() != QEvent::User) return QObject::event(event);
    deleteLater();
    if (!control_.isEnabled() || !control_.isVisible()) return true;
    if (auto* button = dynamic_cast<QAbstractButton*>(&control_)) {
      button->click();
    } else if (auto* other = dynamic_cast<Pressable*>(&control_); other != nullptr && other->pressable()) {
      other->DoPress();
    }
    return true;
  }

 private:
  QWidget& control_;
};

void PressSoon(QWidget* control) {
  new Press(control);
}

/// A button, or a picture, card or label that can be pressed.
class PressableControl : public QAccessibleWidget {
 public:
  explicit PressableControl(QWidget* widget) : QAccessibleWidget(widget, QAccessible::Button) {}

  // A card that nobody can play (on a table, or face down) is something to look at.
  QAccessible::Role role() const override { return pressable() ? QAccessible::Button : QAccessible::Graphic; }
  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (widget()->isEnabled() && pressable()) names.prepend(pressAction());
    return names;
  }
  void doAction(const QString& action) override {
    if (action == pressAction()) {
      PressSoon(widget());
    } else {
      QAccessibleWidget::doAction(action);
    }
  }

 private:
  bool pressable() const {
    const auto* other = dynamic_cast<Pressable*>(widget());
    return other == nullptr || other->pressable();
  }
};

/// A picture. One that is part of a choice is an entry of a list, and tells whether it is the chosen one.
class PictureControl final : public PressableControl {
 public:
  using PressableControl::PressableControl;

  QAccessible::Role role() const override {
    return chosen() ? QAccessible::ListItem : PressableControl::role();
  }
  QAccessible::State state() const override {
    QAccessible::State state = PressableControl::state();
    if (!chosen()) return state;
    state.selectable = true;
    state.focusable = true;  // by way of the list, which has the keys
    state.selected = *chosen();
    state.focused = state.selected && widget()->parentWidget()->hasFocus();
    return state;
  }

 private:
  std::optional<bool> chosen() const { return static_cast<FadeTarget*>(widget())->selected(); }
};

/// A check box or option button. The toolkit would turn it over without a click, so that nobody hears of it.
class CheckControl final : public QAccessibleWidget {
 public:
  using QAccessibleWidget::QAccessibleWidget;

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = static_cast<QAbstractButton*>(widget())->isChecked();
    return state;
  }
  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (widget()->isEnabled()) names.prepend(toggleAction());
    return names;
  }
  void doAction(const QString& action) override {
    if (action == toggleAction()) {
      PressSoon(widget());
    } else {
      QAccessibleWidget::doAction(action);
    }
  }
};

/// A screen lies on the window and bears the title that the window shows.
class ScreenPane final : public QAccessibleWidget {
 public:
  explicit ScreenPane(QWidget* widget) : QAccessibleWidget(widget, QAccessible::Pane) {}

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? widget()->windowTitle() : QAccessibleWidget::text(kind);
  }
};

template <typename Kind>
bool Is(QWidget* widget) {
  return dynamic_cast<Kind*>(widget) != nullptr;
}

QAccessibleInterface* NewInterface(const QString&, QObject* object) {
  auto* widget = dynamic_cast<QWidget*>(object);
  if (widget == nullptr) return nullptr;
  const auto plain = [widget](QAccessible::Role role) { return new QAccessibleWidget(widget, role); };
  // All of them are owned by the toolkit.
  if (Is<FadeTarget>(widget)) return new PictureControl(widget);
  if (Is<QCheckBox>(widget)) return new CheckControl(widget, QAccessible::CheckBox);
  if (Is<QRadioButton>(widget)) return new CheckControl(widget, QAccessible::RadioButton);
  // The toolkit knows its own buttons by their classes; ours bear none of those names.
  const bool ownButton = object->metaObject() == &QAbstractButton::staticMetaObject;
  if (ownButton || Is<Pressable>(widget)) return new PressableControl(widget);
  if (Is<Screen>(widget)) return new ScreenPane(widget);
  if (Is<Stage>(widget)) return plain(QAccessible::Window);
  if (Is<ctlTitlebar>(widget)) return plain(QAccessible::TitleBar);
  if (Is<ctlBust>(widget)) return plain(QAccessible::AlertMessage);
  if (Is<ctlWager>(widget)) return plain(QAccessible::Grouping);
  if (Is<PortraitList>(widget)) return plain(QAccessible::List);
  if (Is<ctlCreditsPlot>(widget) || Is<ctlChancePlot>(widget)) return plain(QAccessible::Graphic);
  if (Is<ctlShape>(widget)) return plain(QAccessible::Graphic);
  return nullptr;
}

}  // namespace

void InstallAccessibleRoles() {
  QAccessible::installFactory(NewInterface);
}

}  // namespace kv
