// Outlines of heads, builds and expressions: the numbers behind the choices of a row.
#include <algorithm>
#include <array>

#include "portraits/Bust.h"

namespace kv::datafile {
namespace {

struct Outline {
  Shape shape;
  bool sharp;
  FacePlan plan;
  std::array<QPointF, 8> right;  // from the crown down to the chin, the right half
};

constexpr Outline kOutlines[] = {
    {Shape::Egg,
     false,
     {0.40, -0.06, 1.0, 0.60},
     {{{0, -1}, {0.5, -0.92}, {0.88, -0.58}, {1, -0.1}, {0.93, 0.34}, {0.7, 0.72}, {0.34, 0.96}, {0, 1.02}}}},
    {Shape::Round,
     false,
     {0.42, -0.02, 1.1, 0.56},
     {{{0, -0.94},
       {0.56, -0.84},
       {0.94, -0.5},
       {1.08, 0},
       {1.04, 0.42},
       {0.78, 0.76},
       {0.4, 0.92},
       {0, 0.96}}}},
    {Shape::Square,
     false,
     {0.40, -0.08, 0.95, 0.60},
     {{{0, -1},
       {0.58, -0.95},
       {0.92, -0.62},
       {0.98, -0.1},
       {0.97, 0.4},
       {0.84, 0.76},
       {0.46, 1.0},
       {0, 1.02}}}},
    {Shape::Heart,
     false,
     {0.42, -0.04, 1.12, 0.60},
     {{{0, -0.98},
       {0.6, -0.92},
       {1, -0.55},
       {1.06, -0.12},
       {0.86, 0.34},
       {0.52, 0.74},
       {0.2, 0.98},
       {0, 1.03}}}},
    {Shape::Dome,
     false,
     {0.42, 0.1, 1.3, 0.68},
     {{{0, -1.25},
       {0.74, -1.1},
       {1.18, -0.6},
       {1.1, -0.05},
       {0.8, 0.4},
       {0.5, 0.76},
       {0.2, 0.98},
       {0, 1.02}}}},
    {Shape::Block,
     true,
     {0.42, -0.1, 0.9, 0.58},
     {{{0, -1.02}, {0.46, -1}, {0.88, -0.72}, {1, -0.05}, {0.9, 0.5}, {0.72, 0.88}, {0.4, 1.03}, {0, 1.0}}}},
    {Shape::Hammer,
     false,
     {1.12, -0.22, 1.15, 0.58},
     {{{0, -0.8},
       {0.7, -0.72},
       {1.42, -0.62},
       {1.66, -0.22},
       {1.3, 0.06},
       {0.74, 0.4},
       {0.5, 0.86},
       {0, 1.0}}}},
    {Shape::Wedge,
     false,
     {0.66, -0.3, 1.0, 0.66},
     {{{0, -0.78},
       {0.6, -0.86},
       {1.16, -0.7},
       {1.2, -0.2},
       {0.82, 0.24},
       {0.5, 0.62},
       {0.24, 0.92},
       {0, 1.0}}}},
    {Shape::Bulb,
     false,
     {0.40, 0.08, 1.05, 0.62},
     {{{0, -1.5},
       {0.14, -1.16},
       {0.66, -0.72},
       {1.04, -0.1},
       {1.02, 0.4},
       {0.72, 0.8},
       {0.34, 0.97},
       {0, 1.0}}}},
    {Shape::Frog,
     false,
     {0.66, -0.62, 1.15, 0.42},
     {{{0, -0.5},
       {0.36, -0.62},
       {0.72, -0.92},
       {1.04, -0.58},
       {1.24, 0.1},
       {1.12, 0.56},
       {0.66, 0.86},
       {0, 0.94}}}},
    {Shape::Cone,
     false,
     {0.3, -0.3, 0.95, 0.34},
     {{{0, -1.12},
       {0.4, -0.98},
       {0.62, -0.6},
       {0.72, -0.1},
       {0.82, 0.4},
       {0.96, 0.9},
       {1.1, 1.4},
       {0, 1.7}}}},
    {Shape::Cat,
     false,
     {0.44, -0.08, 1.1, 0.6},
     {{{0, -0.86},
       {0.56, -0.84},
       {0.94, -0.5},
       {1.06, -0.02},
       {1.2, 0.38},
       {0.84, 0.66},
       {0.42, 0.92},
       {0, 1.0}}}},
    {Shape::Bird,
     false,
     {0.5, -0.16, 1.0, 0.5},
     {{{0, -0.96},
       {0.5, -0.88},
       {0.84, -0.52},
       {0.9, -0.06},
       {0.78, 0.36},
       {0.6, 0.8},
       {0.56, 1.2},
       {0, 1.5}}}},
    {Shape::Box,
     true,
     {0.44, -0.12, 1.0, 0.6},
     {{{0, -1}, {0.84, -1}, {1, -0.86}, {1, 0.3}, {0.9, 0.44}, {0.9, 0.86}, {0.76, 1}, {0, 1}}}},
    {Shape::Tank,
     true,
     {0.5, 0.1, 1.0, 0.62},
     {{{0, -0.62}, {0.7, -0.62}, {1.2, -0.2}, {1.4, 0.1}, {1.4, 0.52}, {1.14, 0.9}, {0.7, 1}, {0, 1}}}},
    {Shape::Lamp,
     false,
     {0, 0.24, 1.5, 0.9},
     {{{0, -1.1},
       {0.2, -1.04},
       {0.32, -0.7},
       {0.56, -0.36},
       {1.0, 0.04},
       {1.14, 0.4},
       {0.8, 0.66},
       {0, 0.74}}}},
    {Shape::Screen,
     true,
     {0.44, -0.06, 1.0, 0.44},
     {{{0, -0.82},
       {1.16, -0.82},
       {1.26, -0.74},
       {1.26, 0.66},
       {1.16, 0.76},
       {0.3, 0.78},
       {0.3, 0.9},
       {0, 0.9}}}},
    {Shape::Bucket,
     true,
     {0.4, -0.1, 1.0, 0.6},
     {{{0, -1.1},
       {0.62, -1.04},
       {0.94, -0.84},
       {0.98, -0.4},
       {1.12, -0.36},
       {1.08, -0.02},
       {0.8, 1},
       {0, 1.06}}}},
    {Shape::Orb,
     false,
     {0.42, -0.05, 1.1, 0.56},
     {{{0, -0.92},
       {0.52, -0.8},
       {0.92, -0.46},
       {1.06, 0},
       {0.92, 0.46},
       {0.52, 0.8},
       {0.26, 0.9},
       {0, 0.92}}}},
};

struct BuildRow {
  Build build;
  Frame frame;
};
constexpr BuildRow kBuilds[] = {
    {Build::Usual, {{56, 50}, 0.52, 44, 86, 14, 0}}, {Build::Slim, {{57, 49}, 0.38, 33, 87, 20, 0}},
    {Build::Broad, {{56, 55}, 0.78, 58, 80, 8, 0}},  {Build::Hunched, {{49, 62}, 0.66, 56, 72, 16, -8}},
    {Build::Tall, {{57, 44}, 0.4, 40, 92, 18, 0}},   {Build::Stout, {{56, 55}, 0.92, 52, 84, 20, 0}},
    {Build::Low, {{55, 66}, 0.5, 40, 100, 12, 0}},   {Build::Leaning, {{62, 51}, 0.54, 46, 86, 12, 10}},
};

struct MoodRow {
  Mood mood;
  Expression expression;
};
constexpr MoodRow kMoods[] = {
    {Mood::Calm, {1, 1, 0, 0, 0.08, 0.01, 0, 0, false}},
    {Mood::Smile, {0.9, 0.9, 0.12, 0.12, -0.06, 0.10, 0.01, 0, false}},
    {Mood::Grin, {0.82, 0.86, 0.1, 0.16, -0.02, 0.13, 0.03, 0.10, true}},
    {Mood::Smirk, {0.78, 0.9, -0.02, 0.3, 0.1, 0.04, 0.10, 0, false}},
    {Mood::Scowl, {0.62, 0.62, -0.24, -0.24, 0.5, -0.08, 0, 0, false}},
    {Mood::Wink, {1.05, 0.0, 0.26, -0.14, 0.05, 0.09, 0.08, 0, false}},
    {Mood::Laugh, {0.42, 0.42, 0.22, 0.22, -0.08, 0.12, 0, 0.16, true}},
    {Mood::Sleepy, {0.42, 0.34, 0.16, 0.1, -0.14, -0.01, 0, 0, false}},
    {Mood::Surprised, {1.38, 1.38, 0.5, 0.5, -0.12, -0.02, 0, 0.17, false}},
    {Mood::Suspicious, {0.44, 0.74, -0.2, 0.26, 0.26, -0.03, -0.05, 0, false}},
    {Mood::Sad, {0.78, 0.78, 0.14, 0.14, -0.42, -0.09, 0, 0, false}},
    {Mood::Sneer, {0.66, 0.56, -0.04, -0.2, 0.4, -0.02, 0.12, 0.06, true}},
    {Mood::Proud, {0.66, 0.66, 0.2, 0.26, 0.06, 0.03, 0.02, 0, false}},
};

const Outline& OutlineOf(Shape shape) {
  return *std::ranges::find(kOutlines, shape, &Outline::shape);
}

}  // namespace

FacePlan FacePlanOf(Shape shape) {
  return OutlineOf(shape).plan;
}

Frame FrameOf(Build build) {
  return std::ranges::find(kBuilds, build, &BuildRow::build)->frame;
}

Expression ExpressionOf(Mood mood) {
  return std::ranges::find(kMoods, mood, &MoodRow::mood)->expression;
}

QPainterPath Sitter::HeadPath() const {
  const Outline& outline = OutlineOf(spec.shape);
  QPolygonF points;
  for (const QPointF& point : outline.right) points << Out(point.x(), point.y());
  for (std::size_t i = outline.right.size() - 1; i-- > 1;)
    points << Out(-outline.right[i].x(), outline.right[i].y());
  if (!outline.sharp) return SmoothThrough(points);
  QPainterPath path;
  path.addPolygon(points);
  path.closeSubpath();
  return path;
}

}  // namespace kv::datafile
