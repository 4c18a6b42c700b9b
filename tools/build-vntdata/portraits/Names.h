// The names that the table of portraits has for the choices, in the order of Choices.h. A choice that is
// added gets its name here and its numbers in the table that holds the others.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "portraits/Choices.h"

namespace kv::datafile {

using NameList = std::span<const std::string_view>;

inline constexpr std::array<std::string_view, 10> kKindNames = {
    "Human", "Smooth", "Reptile", "Aquatic", "Insect", "Furred", "Stone", "Leaf", "Avian", "Machine"};
static_assert(kKindNames.size() == static_cast<std::size_t>(Kind::Machine) + 1);
inline constexpr std::array<std::string_view, 19> kShapeNames = {
    "Egg",  "Round", "Square", "Heart", "Dome", "Block", "Hammer", "Wedge",  "Bulb", "Frog",
    "Cone", "Cat",   "Bird",   "Box",   "Tank", "Lamp",  "Screen", "Bucket", "Orb"};
static_assert(kShapeNames.size() == static_cast<std::size_t>(Shape::Orb) + 1);
inline constexpr std::array<std::string_view, 8> kBuildNames = {"Usual", "Slim",  "Broad", "Hunched",
                                                                "Tall",  "Stout", "Low",   "Leaning"};
static_assert(kBuildNames.size() == static_cast<std::size_t>(Build::Leaning) + 1);
inline constexpr std::array<std::string_view, 6> kPlaceNames = {"Bar",  "Window", "Neon",
                                                                "Haze", "Lamps",  "Screens"};
static_assert(kPlaceNames.size() == static_cast<std::size_t>(Place::Screens) + 1);
inline constexpr std::array<std::string_view, 13> kMoodNames = {
    "Calm",   "Smile",     "Grin",       "Smirk", "Scowl", "Wink", "Laugh",
    "Sleepy", "Surprised", "Suspicious", "Sad",   "Sneer", "Proud"};
static_assert(kMoodNames.size() == static_cast<std::size_t>(Mood::Proud) + 1);
inline constexpr std::array<std::string_view, 11> kHairNames = {
    "None", "Short", "Long", "Mohawk", "Bun", "Braids", "Curly", "Slick", "Receding", "Bob", "Wild"};
static_assert(kHairNames.size() == static_cast<std::size_t>(Hair::Wild) + 1);
inline constexpr std::array<std::string_view, 12> kGearNames = {
    "None", "Cap", "Hood", "Visor", "Goggles", "Band", "Helmet", "Circlet", "Wrap", "Brim", "Pods", "Bowl"};
static_assert(kGearNames.size() == static_cast<std::size_t>(Gear::Bowl) + 1);
inline constexpr std::array<std::string_view, 15> kGrowthNames = {
    "None",     "Antennae", "Horns",  "RamHorns", "Antlers", "Crest",  "Fins",    "Ears",
    "LongEars", "Fronds",   "Spines", "Plumes",   "Mane",    "Stalks", "Tendrils"};
static_assert(kGrowthNames.size() == static_cast<std::size_t>(Growth::Tendrils) + 1);
inline constexpr std::array<std::string_view, 8> kEyesNames = {"Plain", "Slit", "Dark", "Facets",
                                                               "Glow",  "Four", "One",  "Lens"};
static_assert(kEyesNames.size() == static_cast<std::size_t>(Eyes::Lens) + 1);
inline constexpr std::array<std::string_view, 9> kMouthNames = {
    "Lips", "Fangs", "Tusks", "Wide", "Beak", "Mandibles", "Muzzle", "Feelers", "Grille"};
static_assert(kMouthNames.size() == static_cast<std::size_t>(Mouth::Grille) + 1);
inline constexpr std::array<std::string_view, 10> kGarmentNames = {
    "Collar", "Robe", "Armour", "Jacket", "Scarf", "Fur", "Cables", "Gown", "Uniform", "Straps"};
static_assert(kGarmentNames.size() == static_cast<std::size_t>(Garment::Straps) + 1);
inline constexpr std::array<std::string_view, 14> kMarkNames = {
    "None",      "Scar",     "Stripes", "Freckles", "Scales",  "Paint", "Beard",
    "Moustache", "Wrinkles", "Patch",   "Plates",   "Monocle", "Spots", "Stubble"};
static_assert(kMarkNames.size() == static_cast<std::size_t>(Mark::Stubble) + 1);

constexpr NameList NamesOf(Kind) {
  return kKindNames;
}
constexpr NameList NamesOf(Shape) {
  return kShapeNames;
}
constexpr NameList NamesOf(Build) {
  return kBuildNames;
}
constexpr NameList NamesOf(Place) {
  return kPlaceNames;
}
constexpr NameList NamesOf(Mood) {
  return kMoodNames;
}
constexpr NameList NamesOf(Hair) {
  return kHairNames;
}
constexpr NameList NamesOf(Gear) {
  return kGearNames;
}
constexpr NameList NamesOf(Growth) {
  return kGrowthNames;
}
constexpr NameList NamesOf(Eyes) {
  return kEyesNames;
}
constexpr NameList NamesOf(Mouth) {
  return kMouthNames;
}
constexpr NameList NamesOf(Garment) {
  return kGarmentNames;
}
constexpr NameList NamesOf(Mark) {
  return kMarkNames;
}

}  // namespace kv::datafile
