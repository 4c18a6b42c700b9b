#include "app/AccessibleRoles.h"

#include <QAbstractButton>
#include <QAccessibleWidget>

#include "cards/ctlCard.h"
#include "match/ctlBust.h"
#include "match/ctlShape.h"
#include "presentation/FadeTarget.h"
#include "presentation/ctlTitlebar.h"

namespace kv {
namespace {

/// A button or a card: pressing a card does what its double-click does.
class Pressable final : public QAccessibleWidget {
 public:
  explicit Pressable(QWidget* widget) : QAccessibleWidget(widget, QAccessible::Button) {}

  // A card that nobody can play (on a table, or face down) is something to look at.
  QAccessible::Role role() const override { return pressable() ? QAccessible::Button : QAccessible::Graphic; }
  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (widget()->isEnabled() && pressable()) names.prepend(pressAction());
    return names;
  }
  void doAction(const QString& action) override {
    if (action != pressAction()) {
      QAccessibleWidget::doAction(action);
    } else if (auto* button = dynamic_cast<QAbstractButton*>(widget())) {
      button->click();
    } else if (const auto* card = dynamic_cast<ctlCard*>(widget()); card->Enabled() && card->DblClick) {
      card->DblClick();
    }
  }

 private:
  bool pressable() const {
    const auto* card = dynamic_cast<ctlCard*>(widget());
    return card == nullptr || card->DblClick;
  }
};

QAccessibleInterface* NewInterface(const QString&, QObject* object) {
  auto* widget = dynamic_cast<QWidget*>(object);
  if (widget == nullptr) return nullptr;
  // The toolkit knows its own buttons by their classes; ours bear none of those names.
  const bool ownButton = object->metaObject() == &QAbstractButton::staticMetaObject;
  if (ownButton || dynamic_cast<ctlCard*>(widget) != nullptr) {
    return new Pressable(widget);  // owned by the toolkit
  }
  if (dynamic_cast<ctlTitlebar*>(widget) != nullptr)
    return new QAccessibleWidget(widget, QAccessible::TitleBar);
  if (dynamic_cast<ctlBust*>(widget) != nullptr)
    return new QAccessibleWidget(widget, QAccessible::AlertMessage);
  if (dynamic_cast<FadeTarget*>(widget) != nullptr || dynamic_cast<ctlShape*>(widget) != nullptr) {
    return new QAccessibleWidget(widget, QAccessible::Graphic);
  }
  return nullptr;
}

}  // namespace

void InstallAccessibleRoles() {
  QAccessible::installFactory(NewInterface);
}

}  // namespace kv
