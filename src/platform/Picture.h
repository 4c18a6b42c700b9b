// A picture as the rules see it: a handle that can be kept, copied and shown, and nothing more.
// It must never pull Qt into the files that hold one.
#pragma once

#include <memory>
#include <utility>

class QImage;

namespace kv {

/// A decoded picture, shared. It always shows the same; when everything is drawn larger, its image becomes
/// finer. An empty one stands for "no picture".
class Picture {
 public:
  Picture() = default;
  explicit Picture(std::shared_ptr<const QImage> image) : image_(std::move(image)) {}

  [[nodiscard]] bool empty() const { return image_ == nullptr; }
  /// The image itself (its device pixel ratio tells how much larger than its layout size it is stored);
  /// null when empty.
  [[nodiscard]] const QImage* image() const { return image_.get(); }

  friend bool operator==(const Picture&, const Picture&) = default;

 private:
  friend class PictureMemory;
  std::shared_ptr<const QImage> image_;
};

/// Remembers a picture without keeping it: it is gone with the last Picture that shows it.
class PictureMemory {
 public:
  PictureMemory() = default;
  explicit PictureMemory(const Picture& picture) : image_(picture.image_) {}

  /// The picture, or an empty one when nothing holds it any more.
  [[nodiscard]] Picture recall() const { return Picture(image_.lock()); }

 private:
  std::weak_ptr<const QImage> image_;
};

}  // namespace kv
