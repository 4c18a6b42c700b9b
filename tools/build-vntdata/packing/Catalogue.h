// Which pictures there are, in which group each is stored, and who paints it: the painter, unless a picture
// of the art folder takes its place.
#pragma once

#include <QImage>
#include <map>
#include <string>
#include <vector>

#include "packing/ModuleWriter.h"
#include "portraits/Spec.h"

namespace kv::datafile {

/// All picture numbers, ascending.
[[nodiscard]] std::vector<int> AllNumbers();

class Catalogue {
 public:
  explicit Catalogue(std::vector<BustSpec> portraits, std::map<int, QImage> art = {});

  /// What keeps the catalogue from being complete, for people: a portrait without a row or a row without a
  /// picture. Empty when all is well.
  [[nodiscard]] std::string Fault() const;
  /// The picture as it is stored. `number` must be one of AllNumbers().
  [[nodiscard]] QImage Paint(int number) const;
  /// Every picture painted and encoded, in its group. Where they do not fit into `limit` bytes, the pictures
  /// of the art folder are stored less finely until they do, within reason.
  [[nodiscard]] Groups PaintAll(std::size_t limit) const;

 private:
  void PaintNumber(QPainter& painter, int number) const;

  std::vector<BustSpec> portraits_;
  std::map<int, QImage> art_;
};

}  // namespace kv::datafile
