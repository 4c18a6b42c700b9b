#include "presentation/PicturesAhead.h"

#include <utility>

namespace kv {

PicturesAhead::PicturesAhead(std::string dataFile, const std::vector<int>& numbers) {
  std::vector<std::pair<int, std::promise<QImage>>> due;
  for (const int number : numbers) {
    pictures_[number] = due.emplace_back(number, std::promise<QImage>()).second.get_future();
  }
  std::promise<void> opened;
  opened_ = opened.get_future();
  thread_ = std::thread(
      [this, path = std::move(dataFile), opened = std::move(opened), due = std::move(due)]() mutable {
        static_cast<void>(file_.OpenDataFile(path));
        opened.set_value();
        for (auto& [number, promise] : due) {
          const Picture picture = file_.LoadReduced(number, LayoutSize());
          promise.set_value(picture.empty() ? QImage() : *picture.image());
        }
      });
}

const Pictures& PicturesAhead::File() {
  opened_.wait();
  return file_;
}

PicturesAhead::~PicturesAhead() {
  thread_.join();
}

QImage PicturesAhead::Take(int number) {
  const auto found = pictures_.find(number);
  if (found == pictures_.end() || !found->second.valid()) return {};
  return found->second.get();
}

}  // namespace kv
