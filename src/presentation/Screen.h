// What all screens have in common: a borderless window, or the content of one, with a picture behind it,
// controls from a layout, and an end that can come at any moment. It must never know what a particular screen
// is for.
//
// A layout's control "window" describes the window itself: "picture" (a number of the data file), "warm"
// (true: the picture's cold colours are turned into warm ones), "tint" ([red, green, blue] laid over the
// picture) with "tint_strength" (0 to 255), and "corners" (their diameter in layout pixels; kScreenCorners if
// not given).
#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "presentation/Layout.h"
#include "presentation/ScreenServices.h"
#include "presentation/ctlButton.h"
#include "presentation/ctlTitlebar.h"

namespace kv {

class Screen : public QWidget {
 public:
  ~Screen() override;

  /// Shows the screen, on the window that holds it or as one of its own, and activates it.
  void Open();
  /// Ends everything the screen has started and hides it, for good. It may be destroyed once no pause is
  /// under way. Does nothing the second time.
  void CloseScreen();
  [[nodiscard]] bool closing() const { return lifetime_.closing(); }
  /// Everything is drawn at another size from now on, or in full screen: makes the pictures anew that the
  /// screen has coloured for itself.
  void Resized();
  /// The diameter of its round corners, in layout pixels.
  [[nodiscard]] int corners() const { return corners_; }

  /// The way out that the window system offers (Alt+F4); never called on a closed screen.
  virtual void LeaveProgram() = 0;

 protected:
  /// `name` is that of the screen and of its layout; `style` "Slate" or "Ember". The destructor of each
  /// screen calls CloseScreen.
  Screen(const ScreenServices& services, std::string_view name, std::string_view style);

  /// Once each time the program shows the screen, before it stands. No box may be opened here.
  virtual void Activate() {}
  /// Once each time the program shows the screen, when it stands: the place for a box, and for what moves.
  virtual void Shown() {}
  /// Stops what the screen has started. Effects are stopped already.
  virtual void Closing() {}
  /// Everything is drawn at another size from now on, or in full screen.
  virtual void SizeChanged() {}
  /// The pointer is over nothing in particular: takes back every highlight.
  virtual void PlainHighlights();

  /// Room below the picture for what only some modes show; once, in the constructor.
  void GrowBelow(int height);
  /// A skinned button as the layout describes it; owned by the screen.
  ctlButton* NewButton(QStringView control, std::function<void()> click);
  /// The layout's "ctlTitlebar". Its Quit is the screen's to set.
  ctlTitlebar* NewTitlebar();
  /// A picture of the data file in the window's tint, to lie on the background without a seam.
  [[nodiscard]] Picture TintedPicture(int number);
  [[nodiscard]] std::unique_ptr<Timer> NewTimer(int milliseconds, std::function<void()> tick) const;
  /// Sound, sentence, pause: shorthand for what every screen does.
  void PlayEffect(std::string_view effect) { services().buttons.PlayEffect(effect); }
  void Announce(const std::string& text, Urgency urgency = Urgency::Polite) {
    services().announcer.Announce(text, urgency);
  }
  [[nodiscard]] bool Pause(int milliseconds) { return services().scheduler.Pause(milliseconds, lifetime_); }

  [[nodiscard]] const ScreenServices& services() const { return screenServices_; }
  [[nodiscard]] Layout& layout() { return layout_; }
  [[nodiscard]] const Lifetime& lifetime() const { return lifetime_; }

  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  [[nodiscard]] QImage Tinted(const QImage& picture) const;

  const ScreenServices screenServices_;
  Layout layout_;
  Lifetime lifetime_;
  Picture background_;
  ctlTitlebar* titlebar_ = nullptr;  // child
  std::vector<std::pair<int, std::shared_ptr<QImage>>>
      tinted_;  // picture number, and it in the window's tint
  int corners_ = 0;
  std::unique_ptr<Timer> tmrShown_;  // one tick after the screen is shown
};

}  // namespace kv
