// Skies, worlds and the ring station that the far-off circuit is played on.
#pragma once

#include "brush/Brush.h"

namespace kv::datafile {

void Stars(QPainter& painter, QRectF area, std::uint64_t seed, int count);
/// Clouds of light from many faint spots.
void Nebula(QPainter& painter, QRectF area, std::uint64_t seed, QColor first, QColor second);
/// A lit ball with bands; light from the upper left.
void World(QPainter& painter, QPointF centre, double radius, QColor lit, QColor shade, std::uint64_t seed);
/// A ring around a world: the half behind it, or the half before it.
void Ring(QPainter& painter, QPointF centre, double radius, double tilt, QColor colour, bool front);
/// A world so near that only its upper edge is seen, with its air lit from behind and towns on its night
/// side.
void Horizon(QPainter& painter, QPointF centre, double radius, std::uint64_t seed);
/// A spindle with a wheel, seen from the side: the station with the tables.
void Station(QPainter& painter, QPointF centre, double size, const Style& style);

}  // namespace kv::datafile
