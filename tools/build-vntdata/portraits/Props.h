// Small things that sitters wear or carry.
#pragma once

#include "portraits/Bust.h"

namespace kv::datafile {

inline constexpr QColor kGold(222, 174, 80);

enum class CardSign { Plus, Minus, Flip, Special };

/// A side card, turned by `angle` degrees around its middle.
void PaintCard(QPainter& painter, Sitter& sitter, QPointF at, double angle, CardSign sign);
/// A gem in a gold setting.
void PaintGem(QPainter& painter, Sitter& sitter, QPointF at, double radius, QColor colour);
/// A gold ring: its half width, half height and thickness.
void PaintRing(QPainter& painter, Sitter& sitter, QPointF at, double across, double down, double thick);
/// A gold chain of links of half width `link`.
void PaintChain(QPainter& painter, Sitter& sitter, const QPainterPath& line, double link);

}  // namespace kv::datafile
