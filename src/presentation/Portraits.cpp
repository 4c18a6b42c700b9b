#include "presentation/Portraits.h"

#include <QImage>
#include <algorithm>
#include <array>
#include <span>

#include "platform/Files.h"
#include "platform/Text.h"
#include "presentation/PictureDecoder.h"
#include "presentation/PictureSizes.h"

namespace kv {
namespace {

constexpr std::size_t kExtensionLength = 4;       // of a player file's name
constexpr std::size_t kMaxOwnPicture = 16 << 20;  // bytes
constexpr int kStoredSide = 2 * kPortraitSide;
constexpr std::array<std::string_view, 4> kAccepted = {".jpeg", ".jpg", ".gif", ".bmp"};

/// The same picture, shown at `side` layout pixels.
Picture Reduced(const Picture& picture, int side) {
  if (picture.empty()) return {};
  QImage image = *picture.image();
  image.setDevicePixelRatio(static_cast<double>(image.width()) / side);
  return Picture(std::make_shared<const QImage>(std::move(image)));
}

}  // namespace

Portraits::Portraits(Pictures& pictures, std::string folder, std::function<PortraitOwner()> owner)
    : pictures_(pictures), folder_(std::move(folder)), owner_(std::move(owner)) {}

Picture Portraits::GetPortrait(int number, std::string_view name, bool& found) {
  const PortraitOwner owner = name.empty() || number == kOwnPortrait ? owner_() : PortraitOwner{};
  if (name.empty() && owner.fileName.size() > kExtensionLength) {
    name = std::string_view(owner.fileName).substr(0, owner.fileName.size() - kExtensionLength);
  }
  const Picture own = OwnPicture(name);
  found = !own.empty();
  if (found) return own;
  return pictures_.getPic(kPortraitBase + (number == kOwnPortrait ? owner.portrait : number));
}

std::vector<Picture> Portraits::GetReduced(std::span<const int> numbers, std::string_view name,
                                           int side) const {
  std::vector<Picture> portraits;
  portraits.reserve(numbers.size());
  const Picture own = Reduced(OwnPicture(name), side);
  for (const int number : numbers) {
    portraits.push_back(own.empty() ? pictures_.LoadReduced(kPortraitBase + number, {side, side}) : own);
  }
  return portraits;
}

Picture Portraits::OwnPicture(std::string_view name) const {
  // A peer chooses the name: it may neither leave the folder nor match whatever is there.
  if (name.empty() || name.find_first_of("/\\*?") != std::string_view::npos) return {};
  const std::vector<std::string> files = List(folder_, std::string(name) + ".*");
  if (files.empty()) return {};
  const std::string lowered = LowerAscii(files.front());
  if (std::ranges::none_of(kAccepted, [&](std::string_view end) { return lowered.ends_with(end); }))
    return {};
  const FileBytes file = ReadWhole(folder_ + "/" + files.front(), kMaxOwnPicture);
  if (!file.bytes) return {};
  QImage image = DecodeSquare(std::as_bytes(std::span(*file.bytes)), kStoredSide);
  if (image.isNull()) return {};
  image.setDevicePixelRatio(static_cast<double>(image.width()) / kPortraitSide);
  return Picture(std::make_shared<const QImage>(std::move(image)));
}

}  // namespace kv
