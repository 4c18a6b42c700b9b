// The rules inside the program.
#include <gtest/gtest.h>

#include <QTextDocument>

#include "presentation/LayoutText.h"
#include "profile/clsPlayer.h"
#include "screens/frmHelp.h"
#include "support/ProgramStage.h"

namespace kv {
namespace {

TEST(HelpPages, HoldTheReadMesChaptersWithoutItsPicturesAndLinks) {
  const std::string_view readMe = LayoutText("README");
  const std::vector<HelpPage> pages = HelpPages(readMe, nullptr);
  ASSERT_EQ(pages.size(), 6u);
  for (const HelpPage& page : pages) {
    EXPECT_GT(page.text.size(), 200u) << page.title;
    EXPECT_EQ(page.text.find("](docs"), std::string::npos) << page.title;
    EXPECT_EQ(page.text.find("\n#"), std::string::npos) << page.title;
  }
  EXPECT_NE(pages[0].text.find("Your table holds nine cards: you win"), std::string::npos);
  EXPECT_NE(pages[2].text.find("**Arcade.**"), std::string::npos);
  EXPECT_EQ(pages[2].text.find("main menu]"), std::string::npos);
  EXPECT_EQ(Chapter("# A\ntext\n## B\nmore [there](b.md)\n", "B"), "more there\n");
  EXPECT_EQ(Chapter("# A\ntext\n", "B"), "");
}

class HelpTest : public testing::Test, protected test::ProgramStage {
 protected:
  [[nodiscard]] frmHelp* Help() {
    return program->stage().findChild<frmHelp*>(QStringLiteral("frmHelp"), Qt::FindDirectChildrenOnly);
  }
};

TEST_F(HelpTest, OpensInFrontOfAMatchThatGoesOnBehindIt) {
  MakePlayer("ann");
  Start();
  EnterMenu("ann");
  Click("cmdArcade");
  Control<QLineEdit>("txtWager").setText(QStringLiteral("10"));
  Click("cmdWager");
  Settle(500);
  Click("cmdContinue");
  Settle(6000);
  ASSERT_EQ(ScreenName(), "frmGame");
  auto& match = *program->screenAs<frmGame>();
  Key(Qt::Key_F1);
  ASSERT_NE(Help(), nullptr);
  Settle(100);
  EXPECT_EQ(Help()->lstPages().count(), 7) << "with the keys of this player";
  for (int page = 0; page < Help()->lstPages().count(); ++page) Help()->lstPages().setCurrentRow(page);
  Help()->lstPages().setCurrentRow(1);
  const QVariant picture =
      Help()->txtPage().document()->resource(QTextDocument::ImageResource, QUrl(QStringLiteral("card:ps3")));
  EXPECT_FALSE(picture.value<QImage>().isNull());
  EXPECT_EQ(Help()->txtPage().toHtml().count(QStringLiteral("<img src=\"card:")), 8);
  const bool mine = match.engine().shown().Light(Seat::Player);
  match.engine().person().Stand();
  Settle(6000);
  EXPECT_TRUE(mine);
  EXPECT_TRUE(match.engine().shown().banner.visible || match.engine().shown().Stood(Seat::Player));
  test::ScreenHand(*Help()).Key(Qt::Key_Escape);
  Settle(500);
  EXPECT_EQ(Help(), nullptr);
  EXPECT_EQ(ScreenName(), "frmGame");
}

TEST_F(HelpTest, GoesWithTheProgramWhileItIsOpen) {
  Start();
  Key(Qt::Key_F1);
  Settle(50);
  ASSERT_NE(Help(), nullptr);
  Key(Qt::Key_F1);  // once more: a fresh one takes its place
  program->EndProgram();
  Settle(1000);
  EXPECT_EQ(Help(), nullptr);
}

}  // namespace
}  // namespace kv
