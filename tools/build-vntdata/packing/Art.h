// Pictures that take a painter's place: art/pictures/NUMBER.png, .jpg or .svg. Every file there is either
// taken or a fault that is told; none is passed over in silence.
#pragma once

#include <QImage>
#include <map>
#include <string>

namespace kv::datafile {

struct Art {
  std::map<int, QImage> pictures;  // by number, in the layout size or the stored one
  std::string fault;               // what is wrong with a file, for people; empty when all are good
};

/// The pictures of an art folder. One that is not there holds none; a README and hidden files are no
/// pictures.
[[nodiscard]] Art ReadArt(const std::string& folder);

}  // namespace kv::datafile
