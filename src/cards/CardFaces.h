// What every card control shares: the faces of both interface styles and the card-sized pictures that are
// laid over them. Loaded once for the whole program; it never draws.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "cards/CardCode.h"
#include "platform/Picture.h"

namespace kv {

class CardFaces {
 public:
  /// Fetches the seven faces of each style: pictures 201 to 207 ("Slate") and 221 to 227 ("Ember").
  void LoadCardPictures(const std::function<Picture(int number)>& getPic);
  /// The face with this picture number; empty for any number that is none.
  [[nodiscard]] Picture CardFace(int number) const;

 private:
  std::array<std::array<Picture, 7>, 2> faces_;
};

/// The bundle that a card control draws with; it must outlive the control.
struct CardLook {
  CardFaces faces;
  Picture picDim;        // laid over a card that cannot be used
  Picture imgMaskSlate;  // opaque where the card is
  Picture imgMaskEmber;
  std::string interfaceStyle = "Slate";  // of the current player; the style new cards take
};

/// The code in words for a screen reader: "plus 3", "flip 2 and 4", "face-down card"; empty for no card.
[[nodiscard]] std::string SpokenCard(const CardCode& code);

}  // namespace kv
