#include <gmock/gmock.h>

#include <QImage>

#include "screens/frmPortraits.h"
#include "support/OneScreen.h"
#include "support/Rows.h"

namespace kv::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Caller final : PortraitCaller {
  std::vector<Picture> chosen;
  void PortraitChosen(const Picture& picture) override { chosen.push_back(picture); }
};

class frmPortraitsTest : public testing::Test, protected OneScreen<frmPortraits> {
 protected:
  frmPortraitsTest() : OneScreen("Slate", true) {}
  ~frmPortraitsTest() override { screen.reset(); }

  void PutOwnPicture(const std::string& name) const {
    QImage image(40, 40, QImage::Format_RGB32);
    image.fill(Qt::red);
    ASSERT_TRUE(image.save(QString::fromStdString(folder / name)));
  }
  frmPortraits& Open(int portrait = 7) {
    player.FileName = "/players/Bob.vnt";
    player.Portrait = static_cast<std::int16_t>(portrait);
    return Show(std::make_unique<frmPortraits>(
        services(), player, caller,
        frmPortraitsServices{folder.path(), [this](const std::string& path) { opened.push_back(path); }}));
  }

  Caller caller;
  std::vector<std::string> opened;
};

TEST(PortraitGridTest, TilesAndPortraitsMatch) {
  for (int tile = 0; tile < kPortraitTiles; ++tile) EXPECT_EQ(TileOfPortrait(PortraitOfTile(tile)), tile);
  EXPECT_EQ(PortraitOfTile(0), 7);
  EXPECT_EQ(PortraitOfTile(1), 10);
  EXPECT_EQ(PortraitOfTile(56), 65);
  for (const int nobody : {-32768, -1, 0, 6, 8, 9, 66, 32767}) EXPECT_EQ(TileOfPortrait(nobody), 0) << nobody;
}

TEST(PortraitGridTest, KeysWrapAround) {
  for (const auto& [key, from, to] : Rows<PortraitKey, int, int>{{PortraitKey::Up, 3, 51},
                                                                 {PortraitKey::Up, 9, 45},
                                                                 {PortraitKey::Up, 51, 39},
                                                                 {PortraitKey::Down, 51, 3},
                                                                 {PortraitKey::Down, 45, 9},
                                                                 {PortraitKey::Down, 36, 48},
                                                                 {PortraitKey::Up, 8, 56},
                                                                 {PortraitKey::Right, 56, 0},
                                                                 {PortraitKey::Left, 0, 56},
                                                                 {PortraitKey::Right, 11, 12}}) {
    EXPECT_EQ(TileAfter(key, from), to) << from;
  }
}

TEST_F(frmPortraitsTest, TilesShowTheirPortraitsInRowsOfTwelve) {
  Open(12);
  EXPECT_EQ(screen->SelectedTile(), 3);
  const QPoint first = screen->imgPortrait(0).pos();
  EXPECT_EQ(screen->imgPortrait(11).pos() - first, QPoint(616, 0));
  EXPECT_EQ(screen->imgPortrait(12).pos().x(), first.x());
  EXPECT_GT(screen->imgPortrait(12).y(), screen->imgPortrait(0).geometry().bottom());
  for (int tile = 0; tile < kPortraitTiles; ++tile) {
    const FadeTarget& image = screen->imgPortrait(tile);
    ASSERT_FALSE(image.picture().empty()) << tile;
    EXPECT_EQ(image.picture().image()->deviceIndependentSize(), QSizeF(image.size())) << tile;
  }
}

TEST_F(frmPortraitsTest, KeysMoveAndEnterConfirms) {
  Open(65);
  for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Left}) hand->Key(key);
  EXPECT_EQ(screen->SelectedTile(), 11);
  EXPECT_EQ(player.Portrait, 65) << "nothing is chosen yet";
  hand->Key(Qt::Key_Return);
  EXPECT_EQ(player.Portrait, 20);
  EXPECT_THAT(caller.chosen, ElementsAre(pictures.getPic(320)));
  EXPECT_THAT(recorded.calls, ElementsAre("ClosePortraits"));
  EXPECT_EQ(sound.Count("click"), 1);
}

TEST_F(frmPortraitsTest, ClickSelectsAndDoubleClickOrOkConfirms) {
  Open();
  hand->Click(screen->imgPortrait(5));
  EXPECT_EQ(screen->SelectedTile(), 5);
  EXPECT_THAT(sound.played, IsEmpty());
  EXPECT_THAT(caller.chosen, IsEmpty());
  hand->Click(screen->cmdOK());
  EXPECT_EQ(player.Portrait, 14);
  Open();
  hand->DoubleClick(screen->imgPortrait(56));
  EXPECT_EQ(player.Portrait, 65);
  EXPECT_EQ(caller.chosen.size(), 2U);
  EXPECT_EQ(sound.Count("click"), 2);
  EXPECT_EQ(recorded.Count("ClosePortraits"), 2);
}

TEST_F(frmPortraitsTest, ARefusedOwnPictureIsToldWithItsReason) {
  Open();
  EXPECT_FALSE(screen->lblRefusal().isVisible());
  folder.Put("bob.jpg", "no picture at all");
  Open();
  EXPECT_TRUE(screen->lblRefusal().isVisible());
  EXPECT_EQ(screen->lblRefusal().text(),
            QStringLiteral("bob.jpg cannot be shown: it is no JPEG, GIF or BMP picture."));
  EXPECT_FALSE(screen->imgOverride().isVisible());
}

TEST_F(frmPortraitsTest, LeavingChoosesNothing) {
  for (const int way : {0, 1, 2}) {
    Open(30);
    hand->Key(Qt::Key_Right);
    if (way == 0) hand->Key(Qt::Key_Escape);
    if (way == 1) hand->Click(screen->titlebar().cmdQuit());
    if (way == 2) screen->close();
    EXPECT_EQ(recorded.Count("ClosePortraits"), way + 1);
    EXPECT_EQ(player.Portrait, 30);
    EXPECT_THAT(caller.chosen, IsEmpty());
  }
}

TEST_F(frmPortraitsTest, AnOwnPictureIsShownWinsAndOpensItsFolder) {
  Open();
  EXPECT_TRUE(screen->imgOverride().isHidden());
  EXPECT_TRUE(screen->lblOverride().isHidden());
  std::filesystem::remove_all(folder.path());
  for (int press = 0; press < 2; ++press) hand->Click(screen->cmdFolder());
  EXPECT_THAT(std::exchange(opened, {}), ElementsAre(folder.path(), folder.path()));
  EXPECT_TRUE(std::filesystem::is_directory(folder.path())) << "there is something to open";
  PutOwnPicture("bob.BMP");
  Open();
  EXPECT_TRUE(screen->cmdFolder().isHidden()) << "the picture itself opens it";
  EXPECT_FALSE(screen->imgOverride().isHidden() || screen->lblOverride().isHidden());
  hand->Click(screen->imgOverride());
  screen->imgOverride().setFocus();
  hand->Key(Qt::Key_Return);
  EXPECT_THAT(opened, ElementsAre(folder.path(), folder.path()));
  hand->DoubleClick(screen->imgPortrait(4));
  EXPECT_EQ(player.Portrait, 13);
  ASSERT_EQ(caller.chosen.size(), 1U);
  EXPECT_EQ(QColor(caller.chosen[0].image()->pixel(0, 0)), QColor(Qt::red));
}

TEST_F(frmPortraitsTest, EveryTileSaysWhatIsOnItAndWhetherItIsChosen) {
  Open(12);
  std::set<QString> words;
  for (int tile = 0; tile < kPortraitTiles; ++tile) {
    const FadeTarget& image = screen->imgPortrait(tile);
    EXPECT_EQ(image.selected(), tile == 3) << tile;
    EXPECT_TRUE(image.accessibleName().contains(QStringLiteral(", a"))) << tile;
    words.insert(image.accessibleName().section(u',', 1));
  }
  EXPECT_EQ(words.size(), static_cast<std::size_t>(kPortraitTiles)) << "no two alike";
  hand->Key(Qt::Key_Right);
  EXPECT_FALSE(*screen->imgPortrait(3).selected());
  EXPECT_TRUE(*screen->imgPortrait(4).selected());
}

}  // namespace
}  // namespace kv::test
