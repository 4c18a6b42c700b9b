// The colours of the two interface styles. All art takes its colours from here, so that a style is changed in
// one place. Wells stay dark enough for text in the style's accent at 4.5 to 1 and better.
#pragma once

#include <QColor>

namespace kv::datafile {

struct Style {
  bool worn;         // rounded, riveted and scratched instead of cut and clean
  QColor base;       // the table, lit
  QColor baseShade;  // the table, away from the light
  QColor plate;      // raised panels
  QColor plateShade;
  QColor edge;       // where an edge catches the light
  QColor edgeShade;  // where it turns away
  QColor well;       // sunken panels
  QColor wellShade;
  QColor accent;  // what glows
  QColor accentShade;
};

/// Cool, precise, dark blue steel; light is thin and blue.
inline const Style kSlate{false,      {34, 48, 66}, {9, 14, 23}, {50, 68, 90},  {23, 33, 47}, {128, 164, 198},
                          {4, 8, 14}, {11, 19, 30}, {5, 10, 17}, {0, 169, 251}, {0, 74, 128}};
/// Warm, worn bronze and dark leather; light is amber, what lives is green-teal.
inline const Style kEmber{true,         {74, 49, 30},    {24, 15, 10}, {126, 86, 48},
                          {62, 40, 23}, {226, 178, 110}, {18, 10, 5},  {28, 19, 13},
                          {15, 10, 7},  {26, 178, 140},  {14, 84, 68}};

inline constexpr QColor kAmber{255, 176, 72};
inline constexpr QColor kNight{5, 8, 15};

}  // namespace kv::datafile
