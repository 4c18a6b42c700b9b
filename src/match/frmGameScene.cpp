#include "match/frmGameScene.h"

#include "presentation/MovingLight.h"
#include "presentation/MovingPicture.h"

namespace kv {
namespace {

/// One show of a scene. Times in milliseconds, lengths in layout pixels.
struct SceneStep {
  Scene scene;
  enum class From : std::uint8_t { Portrait, BannerTop, BannerBottom, Total } from;
  bool gold;
  int delay;
  int length;
  int sparks;
  int volleys;
  double reach;
  double fall;
};
using From = SceneStep::From;

// A set sparkles once; a match bursts from the banner; a step of the campaign rises like a column, and bursts
// into light when it opens a place of the circuit; a high score rains gold in three volleys.
constexpr SceneStep kSceneSteps[] = {
    {Scene::Set, From::Portrait, false, 0, 800, 16, 1, 46, 0},
    {Scene::Match, From::BannerTop, false, 120, 1300, 26, 2, 110, 40},
    {Scene::Match, From::Portrait, true, 0, 1100, 20, 1, 62, 20},
    {Scene::CampaignStep, From::BannerTop, true, 100, 1300, 24, 3, 34, -130},
    {Scene::CampaignStep, From::Portrait, false, 0, 1200, 20, 2, 40, -70},
    {Scene::Unlocked, From::BannerTop, true, 0, 1400, 34, 3, 40, -170},
    {Scene::Unlocked, From::BannerTop, false, 500, 980, 30, 1, 150, -20},
    {Scene::Unlocked, From::Portrait, true, 0, 1400, 26, 3, 56, -80},
    {Scene::HighScore, From::BannerTop, true, 0, 1480, 30, 3, 90, 120},
    {Scene::HighScore, From::BannerBottom, true, 200, 1280, 16, 3, 70, 90},
    {Scene::HighScore, From::Portrait, true, 0, 1300, 20, 3, 66, 30},
};
constexpr int kHaloTime = 700;
constexpr int kHaloReach = 18;
constexpr int kHaloes = 3;
constexpr int kNodTime = 520;
constexpr double kNod = 0.07;  // how much larger a portrait becomes for a moment

QRect SourceOf(From from, const ScenePlaces& places) {
  switch (from) {
    case From::Portrait:
      return places.portrait.adjusted(8, 8, -8, -8);
    case From::BannerTop:
      return {places.banner.left() + 20, places.banner.top(), places.banner.width() - 40, 4};
    case From::BannerBottom:
      return {places.banner.left() + 20, places.banner.bottom() - 4, places.banner.width() - 40, 4};
    case From::Total:
      break;
  }
  return places.total;
}

/// The portrait comes a little nearer, and goes back.
void Nod(MotionLayer& layer, QWidget& face) {
  const QPointF place = layer.PlaceOf(face).topLeft();
  layer.Begin(std::make_unique<FlyingPicture>(Flight{
                  .front = layer.PictureOf(face), .back = {}, .from = place, .to = place, .lift = kNod}),
              {.length = kNodTime, .easing = Easing::InOut, .skippable = true}, {&face});
}

}  // namespace

SceneLook SceneLookOf(int styleIndex) {
  if (styleIndex == 1) return {.light = {255, 176, 72}, .gold = {255, 214, 110}, .streaks = false};
  return {.light = {96, 205, 255}, .gold = {255, 236, 130}, .streaks = true};
}

void PlayScene(MotionLayer& layer, Scene scene, const SceneLook& look, const ScenePlaces& places) {
  if (scene == Scene::None) return;
  if (places.face != nullptr) Nod(layer, *places.face);  // behind the light
  std::uint64_t seed = 1;
  for (const SceneStep& step : kSceneSteps) {
    if (step.scene != scene) continue;
    const SparkShow show{.source = SourceOf(step.from, places),
                         .colour = step.gold ? look.gold : look.light,
                         .behind = places.banner,
                         .count = step.sparks,
                         .reach = step.reach,
                         .fall = step.fall,
                         .streaks = look.streaks,
                         .volleys = step.volleys};
    layer.Begin(std::make_unique<Sparks>(show, seed++),
                {.delay = step.delay, .length = step.length, .easing = Easing::Even, .skippable = true});
  }
  const int haloes = scene == Scene::Set ? 1 : kHaloes;
  for (int i = 0; i < haloes; ++i) {
    layer.Begin(std::make_unique<Glow>(places.portrait, scene >= Scene::Unlocked ? look.gold : look.light,
                                       kHaloReach, 2),
                {.delay = i * kHaloTime / 2, .length = kHaloTime, .skippable = true});
  }
}

}  // namespace kv
