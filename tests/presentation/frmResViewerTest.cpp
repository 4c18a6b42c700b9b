#include <gtest/gtest.h>

#include <QTreeWidget>

#include "packing/Encode.h"
#include "presentation/frmResViewer.h"
#include "support/TempFolder.h"

namespace kv::test {
namespace {

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
