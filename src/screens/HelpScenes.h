// The examples on a page of the rules: puts their pictures into it, and lets each play once when it is seen
// first, and again when it is asked for.
#pragma once

#include <QTextBrowser>
#include <vector>

#include "presentation/MotionLayer.h"
#include "screens/ExampleScene.h"

namespace kv {

class HelpScenes {
 public:
  /// All must outlive it; `layer` covers the window of the page. Without `moves` they are pictures only.
  HelpScenes(QTextBrowser& page, MotionLayer& layer, const CardLook& look, SceneStyle style, bool moves);

  /// The page shows another text, which has the pictures of its cards already.
  void PageChanged();
  /// Those that stand in view as a whole and did not play yet.
  void PlayNew();
  /// All that stand in view; false when there is none.
  bool PlayAgain();
  /// The one below this point of the page's viewport.
  void PlayAt(QPoint point);

 private:
  struct Shown {
    const HelpExample* example;
    int card = -1;  // positions in the text
    int scene = -1;
    bool played = false;
  };
  [[nodiscard]] QRect PlateOf(const Shown& shown) const;
  void Find();
  void BreakBehind(int position);
  template <typename Which>
  bool Play(const Which& which);

  QTextBrowser& page_;
  MotionLayer& layer_;
  SmallCards cards_;
  const SceneStyle style_;
  const bool moves_;
  std::vector<Shown> shown_;
};

}  // namespace kv
