#include "presentation/Pictures.h"

#include <QGuiApplication>
#include <QImage>
#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <span>

#include "platform/Files.h"
#include "platform/ModuleImage.h"
#include "presentation/PictureDecoder.h"
#include "presentation/PictureSizes.h"
#include "presentation/PicturesAhead.h"

namespace kv {
namespace {

constexpr std::size_t kMaxDataFile = 64U << 20U;  // bytes; a larger file is none of ours

constexpr int kLargestKept = 128;  // layout pixels wide: cards, portraits, lights

/// Which group of types holds a number: the first, the second, or none.
struct Band {
  int last;
  std::size_t group;
};
constexpr std::array kBands = {Band{110, 1}, Band{250, 0}, Band{399, 1}, Band{499, 0}};

/// What fills a screen is decoded anew for the next one: each costs a megabyte or more, and the player comes
/// through several on the way to a match.
bool IsLarge(LayoutSize layout) {
  return layout.width > kLargestKept;
}

int NumberOfText(std::string_view text) {
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  return error == std::errc() && end == text.data() + text.size() ? value : 0;
}

std::string UpperAscii(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return upper;
}

}  // namespace

/// The open file, held whole: a file that is cut or replaced while the game runs changes nothing here.
struct Pictures::DataFile {
  std::string bytes;
  std::optional<ModuleImage> image;

  bool Open(const std::string& path) {
    std::optional<std::string> read = ReadWhole(path, kMaxDataFile).bytes;
    if (!read) return false;
    bytes = std::move(*read);
    image = ModuleImage::Read(std::as_bytes(std::span(bytes))).image;
    return image.has_value();
  }
};

Pictures::Pictures(double pixelRatio) : pixelRatio_(pixelRatio) {
  if (pixelRatio_ > 0) return;
  const auto* application = qobject_cast<QGuiApplication*>(QCoreApplication::instance());
  pixelRatio_ = application == nullptr ? 1 : application->devicePixelRatio();
}

Pictures::~Pictures() = default;

bool Pictures::OpenDataFile(const std::string& path) {
  LoadResourceTree(tree_, "Vntdata.dat", path);
  return file_ != nullptr;
}

bool Pictures::OpenDataFile(PicturesAhead& ahead) {
  Forget();
  ahead_ = &ahead;
  file_ = ahead.File().file_;
  tree_ = ahead.File().tree_;
  return file_ != nullptr;
}

void Pictures::Forget() {
  decoded_.clear();
  large_.clear();
  shown_.clear();
  ahead_ = nullptr;
}

void Pictures::LoadResourceTree(ResourceTree& tree, const std::string& title, const std::string& path) {
  Forget();
  auto file = std::make_unique<DataFile>();
  file_ = file->Open(path) ? std::move(file) : nullptr;
  tree = ResourceTree{title, {}};
  if (file_ == nullptr) return;
  for (const std::string& type : file_->image->EnumTypes()) {
    tree.types.push_back({kTreeKeyPrefix + type, type, false, {NameNode{{}, kTreePlaceholder, 0}}});
  }
  for (std::size_t i = 0; i < std::min<std::size_t>(2, tree.types.size()); ++i) ExpandType(tree.types[i]);
}

void Pictures::ExpandType(TypeNode& type) const {
  if (type.expanded || file_ == nullptr) return;
  type.expanded = true;
  type.names.clear();
  for (const std::string& name : file_->image->EnumNames(ResourceTypeText(type.text))) {
    type.names.push_back({kTreeKeyPrefix + name, name, NumberOfText(name)});
  }
}

Picture Pictures::getPic(int number, bool& ok) {
  if (const LayoutSize layout = LayoutSizeOf(number); IsLarge(layout)) {
    Picture picture = large_[number].recall();
    if (picture.empty()) large_[number] = PictureMemory(picture = LoadReduced(number, layout));
    ok = !picture.empty();
    return picture;
  }
  auto known = decoded_.find(number);
  if (known == decoded_.end()) {
    // Only what the file could hold is remembered: a caller's arithmetic must not grow the table for ever.
    if (number < 0 || number >= kBands.back().last + 1) {
      ok = false;
      return {};
    }
    known = decoded_.emplace(number, LoadReduced(number, LayoutSizeOf(number))).first;
  }
  ok = !known->second.empty();
  return known->second;
}

Picture Pictures::getPic(int number) {
  bool ok = false;
  return getPic(number, ok);
}

Picture Pictures::LoadReduced(int number, LayoutSize layout) {
  QImage decoded = Decode(number, layout);
  if (decoded.isNull()) return {};
  auto image = std::make_shared<QImage>(std::move(decoded));
  std::erase_if(shown_, [](const Shown& shown) { return shown.image.expired(); });
  shown_.push_back({image, number, layout});
  return Picture(std::move(image));
}

void Pictures::setPixelRatio(double pixelRatio) {
  if (pixelRatio == pixelRatio_) return;
  pixelRatio_ = pixelRatio;
  for (const Shown& shown : shown_) {
    const std::shared_ptr<QImage> image = shown.image.lock();
    if (image == nullptr) continue;
    if (QImage decoded = Decode(shown.number, shown.layout); !decoded.isNull()) *image = std::move(decoded);
  }
}

/// Walks the group in its order and stops as soon as a greater number is next.
QImage Pictures::Decode(int number, LayoutSize layout) const {
  const auto band = std::ranges::find_if(kBands, [&](const Band& b) { return number <= b.last; });
  if (file_ == nullptr || band == kBands.end() || band->group >= tree_.types.size()) return {};
  const TypeNode& type = tree_.types[band->group];
  bool first = true;
  for (const NameNode& name : type.names) {
    if (!first && name.number > number) return {};
    first = false;
    if (name.number != number) continue;
    if (!IsPictureType(type.text)) return {};
    const QSize limit = (QSizeF(layout.width, layout.height) * pixelRatio_).toSize();
    QImage image = ahead_ == nullptr ? QImage() : Reduced(ahead_->Take(number), limit);
    if (image.isNull()) {
      image = DecodePicture(file_->image->FindResource(name.text, ResourceTypeText(type.text)), limit);
    }
    if (image.isNull()) return {};
    if (layout.width > 0) image.setDevicePixelRatio(static_cast<double>(image.width()) / layout.width);
    return image;
  }
  return {};
}

std::vector<std::byte> Pictures::GetResourceBytes(std::string_view name, std::string_view type) const {
  if (file_ == nullptr) return {};
  const auto bytes = file_->image->FindResource(name, type);
  return {bytes.begin(), bytes.end()};
}

Picture Pictures::LoadResPicture(std::string_view type, std::string_view name) const {
  if (file_ == nullptr) return {};
  QImage image = DecodePicture(file_->image->FindResource(name, type));
  return image.isNull() ? Picture() : Picture(std::make_shared<const QImage>(std::move(image)));
}

std::string ResourceTypeText(std::string_view type) {
  const bool numeric =
      !type.empty() && std::ranges::all_of(type, [](char c) { return c >= '0' && c <= '9'; });
  return numeric ? "#" + std::string(type) : std::string(type);
}

bool IsPictureType(std::string_view type) {
  constexpr std::array<std::string_view, 8> kTypes = {"JPG", "JPEG", "GIF", "PNG",
                                                      "TIF", "TIFF", "WMF", "EMF"};
  return std::ranges::find(kTypes, UpperAscii(type)) != kTypes.end();
}

}  // namespace kv
