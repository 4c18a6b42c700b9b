#include <gtest/gtest.h>

#include <QImage>

#include "presentation/PictureSizes.h"
#include "presentation/Portraits.h"
#include "support/TempFolder.h"

namespace kv {
namespace {

using test::TempFolder;

class PortraitsTest : public testing::Test {
 protected:
  PortraitsTest() {
    EXPECT_TRUE(pictures.OpenDataFile(std::string(std::getenv("KV_ASSETS")) + "/" + kDataFileName));
  }

  void PutPicture(const std::string& name, const char* format, int width = 40, int height = 20) const {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::red);
    ASSERT_TRUE(image.save(QString::fromStdString(folder / name), format));
  }
  bool Found(int number, const std::string& name) {
    bool found = false;
    EXPECT_FALSE(portraits.GetPortrait(number, name, found).empty());
    return found;
  }

  TempFolder folder;
  Pictures pictures{1};
  PortraitOwner owner{"Player1.vnt", 12};
  Portraits portraits{pictures, folder.path(), [this] { return owner; }};
};

TEST_F(PortraitsTest, WithoutAnOwnPictureTheBuiltInOneIsShown) {
  bool found = true;
  EXPECT_EQ(portraits.GetPortrait(-1, "", found), pictures.getPic(312));
  EXPECT_FALSE(found);
  EXPECT_EQ(portraits.GetPortrait(45, "0", found), pictures.getPic(345));
  EXPECT_TRUE(portraits.GetPortrait(6, "0", found).empty());  // nobody has that number
}

TEST_F(PortraitsTest, AnOwnPictureOverridesWhateverNumberIsChosen) {
  PutPicture("PLAYER1.Jpg", "jpg");
  bool found = false;
  const Picture own = portraits.GetPortrait(20, "", found);
  EXPECT_TRUE(found);
  EXPECT_EQ(own.image()->width(), own.image()->height());
  EXPECT_EQ(own.image()->deviceIndependentSize(), QSizeF(kPortraitSide, kPortraitSide));
  EXPECT_TRUE(Found(20, "player1"));
  EXPECT_FALSE(Found(20, "0"));
  std::filesystem::rename(folder / "PLAYER1.Jpg", folder / "PLAYER1.png");
  EXPECT_FALSE(Found(20, ""));
}

TEST_F(PortraitsTest, OnlyTheFirstFileOfTheNameCounts) {
  PutPicture("Player1.gif.png", "png");
  PutPicture("Player1.jpeg", "jpg");
  EXPECT_FALSE(Found(-1, ""));
  std::filesystem::remove(folder / "Player1.gif.png");
  EXPECT_TRUE(Found(-1, ""));
}

TEST_F(PortraitsTest, BrokenAndHugePicturesAreNotFound) {
  folder.Put("Player1.bmp", "BM no picture");
  EXPECT_FALSE(Found(-1, ""));
  PutPicture("big.bmp", "bmp", 5000, 1);
  EXPECT_FALSE(Found(7, "big"));
}

TEST_F(PortraitsTest, APeersNameCannotLeaveTheFolderOrMatchAnything) {
  PutPicture("Player1.jpg", "jpg");
  const std::string inside = folder.path().substr(folder.path().rfind('/') + 1);
  for (const std::string& name :
       {std::string("*"), std::string("Player?"), "../" + inside + "/Player1", std::string("..\\x")}) {
    EXPECT_FALSE(Found(10, name)) << name;
  }
}

TEST_F(PortraitsTest, AFileNameTooShortForAnExtensionHasNoOwnPicture) {
  PutPicture("abc.jpg", "jpg");
  owner = {"abc", 7};
  EXPECT_FALSE(Found(-1, ""));
}

}  // namespace
}  // namespace kv
