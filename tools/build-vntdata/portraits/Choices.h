// What there is to choose from for a portrait. The table has each under its name in Names.h.
#pragma once

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

}  // namespace kv::datafile
