// Every picture of the program by its number, from the one data file beside it. A picture that is missing or
// broken is an empty one, never an error; nothing here may show a box, write a file or let events run.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/Picture.h"
#include "presentation/PictureSizes.h"
#include "presentation/ResourceTree.h"

namespace kv {

class PicturesAhead;

class Pictures {
 public:
  /// Pictures stored finer than `pixelRatio` times their layout size are reduced to it when decoded, which
  /// saves most of their memory. 0 takes the ratio of the application's finest screen.
  explicit Pictures(double pixelRatio = 0);
  ~Pictures();
  Pictures(const Pictures&) = delete;
  Pictures& operator=(const Pictures&) = delete;

  /// From now on this is the ratio (above 0). The pictures that somebody still shows are decoded anew, in
  /// their places: who has one sees it finer or coarser with the next paint.
  void setPixelRatio(double pixelRatio);

  /// Opens the data file as a resource module and builds the index; true on success. The file stays open.
  /// On failure the one opened before is closed too: its pictures are gone.
  bool OpenDataFile(const std::string& path);
  /// The same with the file that `ahead` opens; what it decodes is taken from it. It must outlive this one.
  bool OpenDataFile(PicturesAhead& ahead);

  /// The picture with that number; `ok` tells whether there is one. Its device pixel ratio relates it to its
  /// layout size. Asking again returns the same one: a picture as large as a screen as long as anything shows
  /// it, every other for good.
  [[nodiscard]] Picture getPic(int number, bool& ok);
  [[nodiscard]] Picture getPic(int number);
  /// The picture with that number reduced to `layout` pixels, freshly decoded and not kept; empty if there is
  /// none.
  [[nodiscard]] Picture LoadReduced(int number, LayoutSize layout);

  /// Clears the tree, opens the file and adds a node for each type with a placeholder below it; the first two
  /// types are expanded. An empty tree with the title when the file cannot be opened.
  void LoadResourceTree(ResourceTree& tree, const std::string& title, const std::string& path);
  /// Puts a type's names in the place of its placeholder. Does nothing for an expanded type.
  void ExpandType(TypeNode& type) const;

  /// The bytes of one resource, or none. A numeric type is written "#" and the number.
  [[nodiscard]] std::vector<std::byte> GetResourceBytes(std::string_view name, std::string_view type) const;
  /// One resource as a picture in its stored size; empty when missing or broken.
  [[nodiscard]] Picture LoadResPicture(std::string_view type, std::string_view name) const;

 private:
  struct DataFile;
  /// A picture that was handed out.
  struct Shown {
    std::weak_ptr<QImage> image;
    int number;
    LayoutSize layout;
  };

  void Forget();
  [[nodiscard]] QImage Decode(int number, LayoutSize layout) const;

  double pixelRatio_;
  PicturesAhead* ahead_ = nullptr;
  std::shared_ptr<const DataFile> file_;
  ResourceTree tree_;
  std::unordered_map<int, Picture> decoded_;
  std::unordered_map<int, PictureMemory> large_;
  std::vector<Shown> shown_;
};

/// The type as the resource functions want it: a numeric one behind "#".
[[nodiscard]] std::string ResourceTypeText(std::string_view type);
/// True for the types whose resources are picture files.
[[nodiscard]] bool IsPictureType(std::string_view type);

}  // namespace kv
