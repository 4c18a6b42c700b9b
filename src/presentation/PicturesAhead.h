// Pictures that are certainly shown first, decoded on a thread of their own while the toolkit starts: on two
// cores they cost the start nothing.
#pragma once

#include <QImage>
#include <future>
#include <map>
#include <string>
#include <thread>
#include <vector>

#include "presentation/Pictures.h"

namespace kv {

class PicturesAhead {
 public:
  /// Begins at once, in that order. A data file that is missing or damaged gives no pictures.
  PicturesAhead(std::string dataFile, const std::vector<int>& numbers);
  /// Waits for what is under way.
  ~PicturesAhead();
  PicturesAhead(const PicturesAhead&) = delete;
  PicturesAhead& operator=(const PicturesAhead&) = delete;

  /// The data file, waited for; without pictures if it could not be opened.
  [[nodiscard]] const Pictures& File();
  /// The picture in its stored size, waited for; each once. Null if it was not asked for or is not there.
  [[nodiscard]] QImage Take(int number);

 private:
  Pictures file_{1};
  std::shared_future<void> opened_;
  std::map<int, std::future<QImage>> pictures_;
  std::thread thread_;
};

}  // namespace kv
