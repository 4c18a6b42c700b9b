// The data file and its pictures, and the viewer that shows what is in it.
#include <gtest/gtest.h>

#include <QImage>
#include <QTreeWidget>
#include <array>
#include <cstdio>
#include <cstring>

#include "packing/Catalogue.h"
#include "packing/Encode.h"
#include "presentation/PictureDecoder.h"
#include "presentation/PictureSizes.h"
#include "presentation/Pictures.h"
#include "presentation/PicturesAhead.h"
#include "presentation/frmResViewer.h"
#include "support/TempFolder.h"

namespace kv::test {
namespace {

using datafile::Bytes;
using datafile::Groups;

std::string DataFile() {
  return std::string(std::getenv("KV_ASSETS")) + "/" + kDataFileName;
}

QImage Plain(int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(QColor(10, 120, 200));
  return image;
}

/// A data file of these groups in a folder of its own, opened.
class SmallFile {
 public:
  explicit SmallFile(const Groups& groups) {
    const Bytes bytes = datafile::WriteModule(groups, datafile::SmallestSize(groups)).value();
    folder_.Put("some.dat", {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    opened = pictures.OpenDataFile(folder_ / "some.dat");
  }
  TempFolder folder_;
  Pictures pictures{2};
  bool opened = false;
};

/// What a command prints.
std::string Output(const std::string& command) {
  std::string text;
  FILE* pipe = popen(command.c_str(), "r");
  std::array<char, 4096> part{};
  while (const std::size_t count = std::fread(part.data(), 1, part.size(), pipe))
    text.append(part.data(), count);
  EXPECT_EQ(pclose(pipe), 0) << command;
  return text;
}

TEST(DataFile, HasTheExactSizeAndEveryPictureInItsLayoutSize) {
  EXPECT_EQ(std::filesystem::file_size(DataFile()), static_cast<std::uintmax_t>(kDataFileSize));
  Pictures fine(2);
  Pictures coarse(1);
  ASSERT_TRUE(fine.OpenDataFile(DataFile()));
  ASSERT_TRUE(coarse.OpenDataFile(DataFile()));
  std::size_t portraits = 0;
  for (const int number : datafile::AllNumbers()) {
    for (Pictures* pictures : {&fine, &coarse}) {
      bool ok = false;
      const Picture picture = pictures->getPic(number, ok);
      ASSERT_TRUE(ok) << number;
      const LayoutSize size = LayoutSizeOf(number);
      EXPECT_EQ(picture.image()->deviceIndependentSize(), QSizeF(size.width, size.height)) << number;
      EXPECT_EQ(picture.image()->devicePixelRatio(), pictures == &fine ? 2 : 1) << number;
    }
    portraits += number >= 300 && number < 400 ? 1U : 0U;
  }
  EXPECT_EQ(portraits, 62U);
}

TEST(Pictures, ThatAreDecodedAheadAreTheSame) {
  Pictures own(1);
  ASSERT_TRUE(own.OpenDataFile(DataFile()));
  PicturesAhead ahead(DataFile(), {400, 402});
  Pictures pictures(1);
  ASSERT_TRUE(pictures.OpenDataFile(ahead));
  for (const int number : {402, 400, 401, 201}) {
    EXPECT_EQ(*pictures.getPic(number).image(), *own.getPic(number).image()) << number;
    EXPECT_EQ(pictures.getPic(number).image()->devicePixelRatio(), 1) << number;
  }
  EXPECT_TRUE(ahead.Take(400).isNull());
  PicturesAhead none("/nowhere/vntdata.dat", {400});
  EXPECT_FALSE(Pictures(1).OpenDataFile(none));
  EXPECT_TRUE(none.Take(400).isNull());
}

TEST(DataFile, OtherToolsListAndExtractIt) {
  const std::string list = Output("wrestool -l " + DataFile());
  EXPECT_EQ(std::ranges::count(list, '\n'), static_cast<std::ptrdiff_t>(datafile::AllNumbers().size()));
  EXPECT_LT(list.find("--type='GIF' --name=201"), list.find("--type='JPG' --name=101"));
  Pictures pictures;
  ASSERT_TRUE(pictures.OpenDataFile(DataFile()));
  for (const auto& [type, name] :
       {std::pair("GIF", "465"), std::pair("JPG", "107"), std::pair("JPG", "365")}) {
    const std::string bytes =
        Output(std::string("wrestool -x --raw --type=") + type + " --name=" + name + " " + DataFile());
    const std::vector<std::byte> own = pictures.GetResourceBytes(name, type);
    ASSERT_EQ(bytes.size(), own.size()) << name;
    EXPECT_EQ(std::memcmp(bytes.data(), own.data(), own.size()), 0) << name;
  }
}

TEST(Pictures, AskingAgainGivesTheSameImage) {
  Pictures pictures;
  ASSERT_TRUE(pictures.OpenDataFile(DataFile()));
  const Picture first = pictures.getPic(105);
  EXPECT_EQ(first, pictures.getPic(105));
  EXPECT_NE(first, pictures.getPic(107));
  EXPECT_FALSE(first.image()->hasAlphaChannel());
  EXPECT_TRUE(pictures.getPic(462).image()->hasAlphaChannel());
}

TEST(Pictures, OnlyThoseOfAScreenGoWithWhoeverShowedThem) {
  Pictures pictures;
  ASSERT_TRUE(pictures.OpenDataFile(DataFile()));
  for (const int number : {101, 107, 400, 402, 201, 307, 462}) {
    const PictureMemory seen(pictures.getPic(number));
    EXPECT_EQ(seen.recall().empty(), LayoutSizeOf(number).width > 112) << number;
    EXPECT_FALSE(pictures.getPic(number).empty()) << number;  // and is there again
  }
}

TEST(Pictures, EachBandLooksInItsOwnGroup) {
  const Bytes gif = datafile::EncodeGif(Plain(8, 8));
  const Bytes jpg = datafile::EncodeJpeg(Plain(8, 8), 80);
  std::map<std::uint16_t, Bytes> gifs;
  std::map<std::uint16_t, Bytes> jpgs;
  for (const std::uint16_t number : {110, 111, 250, 251, 399, 400, 499, 500}) {
    gifs[number] = gif;
    jpgs[number] = jpg;
  }
  for (const std::uint16_t number : {111, 250, 400, 499}) jpgs.erase(number);
  for (const std::uint16_t number : {110, 251, 399}) gifs.erase(number);
  SmallFile file({{"GIF", gifs}, {"JPG", jpgs}});
  ASSERT_TRUE(file.opened);
  for (const int number : {110, 111, 250, 251, 399, 400, 499}) {
    bool ok = false;
    EXPECT_FALSE(file.pictures.getPic(number, ok).empty()) << number;
    EXPECT_TRUE(ok) << number;
  }
  for (const int number : {-1, 0, 109, 112, 150, 398, 500, 65536 + 110}) {
    bool ok = true;
    EXPECT_TRUE(file.pictures.getPic(number, ok).empty()) << number;
    EXPECT_FALSE(ok) << number;
  }
}

TEST(Pictures, BrokenBytesStayEmpty) {
  const Bytes gif = datafile::EncodeGif(Plain(60, 60));
  Bytes cutJpeg = datafile::EncodeJpeg(Plain(60, 60), 80);
  cutJpeg.resize(40);
  Bytes huge = gif;
  huge[6] = huge[7] = huge[8] = huge[9] = 0xff;  // a screen of 65535 by 65535
  constexpr std::string_view kDrawing = "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>";
  const Bytes drawing(kDrawing.begin(), kDrawing.end());  // a picture, but of a kind that is not let in
  SmallFile file(
      {{"GIF", {{201, {'G', 'I', 'F'}}, {202, huge}, {203, gif}}},
       {"JPG", {{101, cutJpeg}, {102, {0xff, 0xd8, 0xff}}, {103, Bytes(400, 0x41)}, {104, drawing}}}});
  ASSERT_TRUE(file.opened);
  for (const int number : {201, 202, 101, 102, 103, 104}) {
    bool ok = true;
    EXPECT_TRUE(file.pictures.getPic(number, ok).empty()) << number;
    EXPECT_FALSE(ok) << number;
  }
  EXPECT_FALSE(file.pictures.getPic(203).empty());
  for (std::size_t length = 0; length < gif.size(); ++length) {
    (void)DecodePicture(std::as_bytes(std::span(gif).first(length)));  // whatever it gives, it ends
  }
}

TEST(Pictures, NoFileOrNoModuleMeansNoPictures) {
  TempFolder folder;
  folder.Put("text.dat", "no module at all");
  folder.Put("empty.dat", "");
  Pictures pictures;
  EXPECT_TRUE(pictures.getPic(105).empty());
  for (const char* name : {"text.dat", "empty.dat", "missing.dat"}) {
    EXPECT_FALSE(pictures.OpenDataFile(folder / name)) << name;
    EXPECT_TRUE(pictures.getPic(105).empty());
    EXPECT_TRUE(pictures.GetResourceBytes("105", "JPG").empty());
    EXPECT_TRUE(pictures.LoadResPicture("JPG", "105").empty());
  }
  SmallFile one({{"JPG", {{105, datafile::EncodeJpeg(Plain(4, 4), 80)}}}});
  EXPECT_TRUE(one.opened);
  EXPECT_TRUE(one.pictures.getPic(105).empty());  // there is no second group
}

TEST(Pictures, TypesHaveTheirTexts) {
  EXPECT_EQ(ResourceTypeText("10"), "#10");
  EXPECT_EQ(ResourceTypeText("JPG"), "JPG");
  EXPECT_TRUE(IsPictureType("jpeg"));
  EXPECT_FALSE(IsPictureType("TXT"));
}

TEST(frmResViewer, ShowsTypesNamesAndWhatAPictureIs) {
  QImage image(30, 20, QImage::Format_RGB32);
  image.fill(Qt::green);
  const datafile::Groups groups = {{"GIF", {{201, datafile::EncodeGif(image)}, {202, {1, 2}}}},
                                   {"JPG", {{105, datafile::EncodeJpeg(image, 80)}}},
                                   {"TXT", {{1, {'a'}}, {2, {'b'}}}}};
  const datafile::Bytes bytes = datafile::WriteModule(groups, datafile::SmallestSize(groups)).value();
  const TempFolder folder;
  folder.Put("some.dat", {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
  frmResViewer viewer;
  ASSERT_TRUE(viewer.LoadFile(folder / "some.dat"));

  QTreeWidgetItem* root = viewer.TreeView1()->topLevelItem(0);
  EXPECT_EQ(root->text(0), QStringLiteral("Vntdata.dat"));
  ASSERT_EQ(root->childCount(), 3);
  EXPECT_TRUE(root->child(1)->isExpanded());
  QTreeWidgetItem* text = root->child(2);
  EXPECT_FALSE(text->isExpanded());
  ASSERT_EQ(text->childCount(), 1);
  EXPECT_EQ(text->child(0)->text(0), QStringLiteral("Dummy"));
  text->setExpanded(true);
  ASSERT_EQ(text->childCount(), 2);
  EXPECT_EQ(text->child(1)->text(0), QStringLiteral("2"));

  viewer.NodeClick(root->child(1)->child(0));
  EXPECT_EQ(viewer.InfoText(), QStringLiteral("Image info:\nType: Bitmap (*.bmp)\nSyze: 30 x 20"));
  viewer.TreeView1()->setCurrentItem(root->child(0)->child(1));  // broken bytes
  EXPECT_EQ(viewer.InfoText(), QStringLiteral("Image info:\nType: None\nSyze: 0 x 0"));
  viewer.NodeClick(text->child(0));
  EXPECT_EQ(viewer.InfoText(), QString());
}

}  // namespace
}  // namespace kv::test
