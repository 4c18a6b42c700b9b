#include "Backgrounds.h"

#include <array>

namespace kv::datafile {

void PaintBackground(QPainter& painter, int number) {
  constexpr int kFirst = 101;
  constexpr std::array kPainters = {PaintMenu,       PaintCircuit,   PaintLobby,     PaintSlateDeck,
                                    PaintSlateMatch, PaintEmberDeck, PaintEmberMatch};
  if (number < kFirst || number >= kFirst + static_cast<int>(kPainters.size())) return;
  kPainters[static_cast<std::size_t>(number - kFirst)](painter);
}

}  // namespace kv::datafile
