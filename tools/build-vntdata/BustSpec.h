// What makes one portrait: everybody is put together from these choices, and no two share them all.
#pragma once

#include <QColor>
#include <span>

namespace kv::datafile {

enum class Kind { Human, Smooth, Reptile, Aquatic, Insect, Furred, Stone, Leaf, Avian, Machine };
enum class Hair { None, Short, Long, Mohawk, Bun, Braids, Curly, Slick, Receding, Bob };
enum class Gear {
  None,
  Cap,
  Hood,
  Visor,
  Goggles,
  Band,
  Helmet,
  Antennae,
  Horns,
  Crest,
  Fins,
  Ears,
  Fronds,
  Spines,
  Plumes,
  Circlet,
  Wrap,
  Brim,
  Pods
};
enum class Eyes { Plain, Narrow, Slit, Facets, Glow, Four, One, Wide, Tired, Lens };
enum class Mouth { Smile, Frown, Flat, Smirk, Fangs, Grille, Beak, Mandibles, Muzzle, Open };
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
  Monocle
};

struct BustSpec {
  int number;
  Kind kind;
  QRgb skin;
  QRgb cloth;
  QRgb hair;  // or trim, crest, fur
  QRgb back;  // the light behind
  QRgb eye;
  double width;   // of the head, 1 is usual
  double length;  // of the head
  double jaw;     // 0 pointed to 1 square
  Hair hairStyle;
  Gear gear;
  Eyes eyes;
  Mouth mouth;
  Garment garment;
  Mark mark;
};

[[nodiscard]] std::span<const BustSpec> AllBusts();

}  // namespace kv::datafile
