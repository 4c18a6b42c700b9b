// What makes one portrait: everybody is put together from these choices, and no two share them all.
#pragma once

#include <QColor>
#include <span>

namespace kv::datafile {

enum class Kind { Human, Smooth, Reptile, Aquatic, Insect, Furred, Stone, Leaf, Avian, Machine };
/// The outline of the head. From Box on they are made of metal.
enum class Shape {
  Egg,
  Round,
  Square,
  Heart,
  Dome,
  Block,
  Hammer,
  Wedge,
  Bulb,
  Frog,
  Cone,
  Cat,
  Bird,
  Box,
  Tank,
  Lamp,
  Screen,
  Bucket,
  Orb
};
enum class Build { Usual, Slim, Broad, Hunched, Tall, Stout, Low, Leaning };
enum class Place { Bar, Window, Neon, Haze, Lamps, Screens };
enum class Mood {
  Calm,
  Smile,
  Grin,
  Smirk,
  Scowl,
  Wink,
  Laugh,
  Sleepy,
  Surprised,
  Suspicious,
  Sad,
  Sneer,
  Proud
};
enum class Hair { None, Short, Long, Mohawk, Bun, Braids, Curly, Slick, Receding, Bob, Wild };
/// What is worn on the head.
enum class Gear { None, Cap, Hood, Visor, Goggles, Band, Helmet, Circlet, Wrap, Brim, Pods, Bowl };
/// What grows on the head, or is bolted to it.
enum class Growth {
  None,
  Antennae,
  Horns,
  RamHorns,
  Antlers,
  Crest,
  Fins,
  Ears,
  LongEars,
  Fronds,
  Spines,
  Plumes,
  Mane,
  Stalks,
  Tendrils
};
enum class Eyes { Plain, Slit, Dark, Facets, Glow, Four, One, Lens };
enum class Mouth { Lips, Fangs, Tusks, Wide, Beak, Mandibles, Muzzle, Feelers, Grille };
enum class Garment { Collar, Robe, Armour, Jacket, Scarf, Fur, Cables, Gown, Uniform, Straps };
enum class Mark {
  None,
  Scar,
  Stripes,
  Freckles,
  Scales,
  Paint,
  Beard,
  Moustache,
  Wrinkles,
  Patch,
  Plates,
  Monocle,
  Spots,
  Stubble
};

struct BustSpec {
  int number;
  Kind kind;
  Shape shape;
  Build build;
  Place place;
  QRgb skin;
  QRgb cloth;
  QRgb hair;  // or trim, crest, fur
  QRgb back;  // the light of the room
  QRgb eye;
  double width;   // of the head, 1 is usual
  double length;  // of the head
  double jaw;     // 0 pointed to 1 square
  double tilt;    // degrees, clockwise
  double turn;    // -1 looks to the left, 1 to the right
  double nod;     // -1 looks up, 1 down
  Hair hairStyle;
  Gear gear;
  Growth growth;
  Eyes eyes;
  Mood mood;
  Mouth mouth;
  Garment garment;
  Mark mark;
};

[[nodiscard]] std::span<const BustSpec> AllBusts();

}  // namespace kv::datafile
