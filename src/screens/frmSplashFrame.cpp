#include "screens/frmSplashFrame.h"

#include "presentation/TitleButton.h"
#include "screens/TextLink.h"

namespace kv {
namespace {

void AddTitleButton(TitleButton* button, const PropertyBag& bag, ButtonContext& buttons) {
  const QColor idle = bag.colour(u"color");
  const QColor hot = bag.colour(u"hover_color", idle.lighter(180));
  button->setColor(idle);
  button->setFocusPolicy(Qt::TabFocus);
  button->Moved = [&buttons, button, idle, hot] {
    if (button->Color() != idle) return;
    button->setColor(hot);
    buttons.PlayHover();
  };
  button->Pressed = [button, pressed = bag.colour(u"pressed_color", Qt::white)] {
    button->setColor(pressed);
  };
  button->Released = [button, idle] { button->setColor(idle); };
  button->Left = button->Released;
}

}  // namespace

void BuildSplashFrame(QWidget& screen, Layout& layout, ButtonContext& buttons,
                      const SplashFrameActions& actions) {
  const auto add = [&](QStringView control, QAbstractButton* button, const std::function<void()>& action) {
    layout.Place(control, *button);
    QObject::connect(button, &QAbstractButton::clicked, button, action);
  };
  const auto addTitleButton = [&](QStringView control, TitleButton::Sign sign,
                                  const std::function<void()>& action) {
    auto* button = new TitleButton(&screen, sign);
    AddTitleButton(button, layout.bag(control), buttons);
    add(control, button, action);
  };
  layout.NewLabel(u"lblVersion", &screen);
  add(u"lblURL", new TextLink(&screen, layout.bag(u"lblURL")), actions.lblURL);
  addTitleButton(u"cmdMini", TitleButton::Sign::Minimise, actions.cmdMini);
  addTitleButton(u"cmdQuit", TitleButton::Sign::Close, actions.cmdQuit);
}

}  // namespace kv
