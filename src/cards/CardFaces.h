// What every card control shares: the faces of both interface styles and the card-sized pictures that are
// laid over them. It never draws.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "cards/CardCode.h"
#include "platform/Picture.h"

namespace kv {

class CardFaces {
 public:
  /// Where the seven faces of each style come from: pictures 201 to 207 ("Slate") and 221 to 227 ("Ember"). A
  /// face is fetched when it is asked for, and kept by who hands it out.
  void LoadCardPictures(std::function<Picture(int number)> getPic) { getPic_ = std::move(getPic); }
  /// The face with this picture number; empty for any number that is none.
  [[nodiscard]] Picture CardFace(int number) const;

 private:
  std::function<Picture(int number)> getPic_;
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
