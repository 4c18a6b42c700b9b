// What only the six opponents of the circuit have: the props and marks that tell who they are.
#pragma once

#include "portraits/Bust.h"

namespace kv::datafile {

inline constexpr int kLuckyAmateur = 1;
inline constexpr int kAllRounder = 2;
inline constexpr int kSharpEared = 3;
inline constexpr int kHeavyweight = 4;
inline constexpr int kChampion = 5;
inline constexpr int kBatteredMachine = 45;

/// Dents, rust and a plate from another machine, pressed into a shell before it is lit.
void PressWear(Relief& shell, Sitter& sitter);
/// Props on the body and, with the head's turn, on the head. Nothing for everybody else.
void PaintBodyProps(QPainter& painter, Sitter& sitter);
void PaintHeadProps(QPainter& painter, Sitter& sitter);

}  // namespace kv::datafile
