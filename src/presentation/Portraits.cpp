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
constexpr std::size_t kMaxOwnPicture = 40 << 20;  // bytes
constexpr int kStoredSide = 2 * kPortraitSide;
constexpr std::array<std::string_view, 4> kAccepted = {".jpeg", ".jpg", ".gif", ".bmp"};

/// The same picture, shown at `side` layout pixels.
Picture Reduced(const Picture& picture, int side) {
  if (picture.empty()) return {};
  QImage image = *picture.image();
  image.setDevicePixelRatio(static_cast<double>(image.width()) / side);
  return Picture(std::make_shared<const QImage>(std::move(image)));
}

/// A player file's name less its extension; empty for one that is too short to have both.
std::string_view WithoutExtension(std::string_view file) {
  return file.size() > kExtensionLength ? file.substr(0, file.size() - kExtensionLength) : std::string_view();
}

std::string ReasonOf(const SquarePicture& square) {
  switch (square.fault) {
    case PictureFault::NoPicture:
      return "it is no JPEG, GIF or BMP picture";
    case PictureFault::TooLarge:
      return "its " + std::to_string(square.stored.width()) + " x " + std::to_string(square.stored.height()) +
             " pixels are too many";
    case PictureFault::TooMuchWork:
      return "it asks for too much work to be read";
    case PictureFault::Damaged:
      return "it is damaged";
    case PictureFault::None:
      break;
  }
  return "";
}

OwnPicture Refused(const std::string& file, const std::string& reason) {
  return {{}, file + " cannot be shown: " + reason + "."};
}

}  // namespace

Portraits::Portraits(Pictures& pictures, std::string folder, std::function<PortraitOwner()> owner)
    : pictures_(pictures), folder_(std::move(folder)), owner_(std::move(owner)) {}

Picture Portraits::GetPortrait(int number, std::string_view name, bool& found) {
  const Picture own = LookUp(name).picture;
  found = !own.empty();
  if (found) return own;
  return pictures_.getPic(kPortraitBase + (number == kOwnPortrait ? owner_().portrait : number));
}

std::vector<Picture> Portraits::GetReduced(std::span<const int> numbers, std::string_view name,
                                           int side) const {
  std::vector<Picture> portraits;
  portraits.reserve(numbers.size());
  const Picture own = Reduced(LookUp(name).picture, side);
  for (const int number : numbers) {
    portraits.push_back(own.empty() ? pictures_.LoadReduced(kPortraitBase + number, {side, side}) : own);
  }
  return portraits;
}

OwnPicture Portraits::LookUp(std::string_view name) const {
  const PortraitOwner owner = name.empty() ? owner_() : PortraitOwner{};
  if (name.empty()) name = WithoutExtension(owner.fileName);
  // A peer chooses the name: it may neither leave the folder nor match whatever is there.
  if (name.empty() || name.find_first_of("/\\*?") != std::string_view::npos) return {};
  const std::vector<std::string> files = List(folder_, std::string(name) + ".*");
  return files.empty() ? OwnPicture{} : ReadOwn(files.front());
}

OwnPicture Portraits::ReadOwn(const std::string& file) const {
  const std::string lowered = LowerAscii(file);
  if (std::ranges::none_of(kAccepted, [&](std::string_view end) { return lowered.ends_with(end); })) {
    return Refused(file, "its name does not end in .jpg, .jpeg, .gif or .bmp");
  }
  const FileBytes read = ReadWhole(folder_ + "/" + file, kMaxOwnPicture);
  if (!read.bytes) return Refused(file, "it cannot be read (" + read.error + ")");
  SquarePicture square = DecodeSquare(std::as_bytes(std::span(*read.bytes)), kStoredSide);
  if (square.fault != PictureFault::None) return Refused(file, ReasonOf(square));
  square.image.setDevicePixelRatio(static_cast<double>(square.image.width()) / kPortraitSide);
  return {Picture(std::make_shared<const QImage>(std::move(square.image))), ""};
}

}  // namespace kv
