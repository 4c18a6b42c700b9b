#include "screens/HelpScenes.h"

#include <QTextBlock>
#include <utility>

namespace kv {
namespace {

// Milliseconds.
constexpr int kSceneTime = 1300;
constexpr int kSceneDelay = 350;  // from one to the next

}  // namespace

HelpScenes::HelpScenes(QTextBrowser& page, MotionLayer& layer, const CardLook& look, SceneStyle style,
                       bool moves)
    : page_(page), layer_(layer), cards_(look, 1), style_(std::move(style)), moves_(moves) {}

void HelpScenes::PageChanged() {
  layer_.FinishAll();
  cards_ = SmallCards(cards_.look(), page_.devicePixelRatioF());
  Find();
  for (const Shown& each : shown_) {
    BreakBehind(each.scene);
    const ExampleScene scene(*each.example, cards_, style_);
    page_.document()->addResource(QTextDocument::ImageResource,
                                  QUrl(QStringLiteral("scene:") + QLatin1String(each.example->code)),
                                  scene.Picture());
  }
}

/// The words of the example begin below its picture.
void HelpScenes::BreakBehind(int position) {
  QTextCursor cursor(page_.document());
  cursor.setPosition(position + 1);
  cursor.deleteChar();
  cursor.insertText(QString(QChar::LineSeparator));
}

void HelpScenes::Find() {
  shown_.clear();
  for (const HelpExample& example : HelpExamples()) {
    Shown shown{&example};
    for (QTextBlock block = page_.document()->begin(); block.isValid(); block = block.next()) {
      for (auto part = block.begin(); !part.atEnd(); ++part) {
        const QString name = part.fragment().charFormat().toImageFormat().name();
        if (name == QStringLiteral("card:") + QLatin1String(example.code))
          shown.card = part.fragment().position();
        if (name == QStringLiteral("scene:") + QLatin1String(example.code))
          shown.scene = part.fragment().position();
      }
    }
    if (shown.card >= 0 && shown.scene >= 0) shown_.push_back(shown);
  }
}

QRect HelpScenes::PlateOf(const Shown& shown) const {
  QTextCursor cursor(page_.document());
  cursor.setPosition(shown.scene);
  return {page_.cursorRect(cursor).topLeft(), ExampleScene::Size(cards_.look())};
}

template <typename Which>
bool HelpScenes::Play(const Which& which) {
  const QWidget& window = *layer_.parentWidget();
  bool any = false;
  int delay = 0;
  for (Shown& each : shown_) {
    const QRect plate = PlateOf(each);
    if (!moves_ || !page_.viewport()->rect().contains(plate) || !which(each, plate)) continue;
    QTextCursor cursor(page_.document());
    cursor.setPosition(each.card);
    const QUrl card(QStringLiteral("card:") + QLatin1String(each.example->code));
    auto scene = std::make_unique<ExampleScene>(*each.example, cards_, style_,
                                                page_.viewport()->mapTo(&window, plate.topLeft()));
    scene->FlyFrom(page_.document()->resource(QTextDocument::ImageResource, card).value<QImage>(),
                   page_.viewport()->mapTo(&window, page_.cursorRect(cursor).topLeft()));
    layer_.Begin(std::move(scene), {.delay = delay, .length = kSceneTime, .easing = Easing::Even});
    each.played = any = true;
    delay += kSceneDelay;
  }
  return any;
}

void HelpScenes::PlayNew() {
  Play([](const Shown& each, const QRect&) { return !each.played; });
}

bool HelpScenes::PlayAgain() {
  layer_.FinishAll();
  return Play([](const Shown&, const QRect&) { return true; });
}

void HelpScenes::PlayAt(QPoint point) {
  const auto below = [point](const Shown&, const QRect& plate) { return plate.contains(point); };
  if (!layer_.moving()) Play(below);
}

}  // namespace kv
