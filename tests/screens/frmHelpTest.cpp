// The rules inside the program.
#include <gtest/gtest.h>

#include <QScrollBar>
#include <QTextDocument>

#include "presentation/LayoutText.h"
#include "screens/frmHelp.h"
#include "support/MatchTable.h"
#include "support/OneScreen.h"
#include "support/ProgramStage.h"

namespace kv::test {
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

TEST(HelpExamples, ComeOutAsInAMatch) {
  for (const HelpExample& example : HelpExamples()) {
    MatchTable table({});
    table.engine->Activate();
    table.LoadTable(Seat::Player, example.table);
    table.engine->board().PlayFromHand(Seat::Player, 1, CardCode(example.played));
    EXPECT_EQ(table.engine->shown().Table(Seat::Player), TableAfter(example)) << example.code;
    const std::string sum = std::to_string(table.engine->shown().Total(Seat::Player));
    if (CardCode(example.played).type() == CardType::Double) continue;  // its text tells no sum
    EXPECT_NE(std::string(example.text).find(sum), std::string::npos) << sum << ": " << example.text;
  }
}

class HelpScenesTest : public testing::TestWithParam<const char*>, protected OneScreen<frmHelp> {
 protected:
  HelpScenesTest() : OneScreen(GetParam()) {}
  frmHelp& OpenCards(bool moves) {
    Show(std::make_unique<frmHelp>(services(), GetParam(), HelpPages(LayoutText("README"), nullptr), moves),
         50);
    screen->lstPages().setCurrentRow(1);
    return *screen;
  }
  [[nodiscard]] QImage Now() { return screen->grab().toImage(); }
};
INSTANTIATE_TEST_SUITE_P(Styles, HelpScenesTest, testing::Values("Slate", "Ember"),
                         [](const auto& style) { return std::string(style.param); });

TEST_P(HelpScenesTest, AnExamplePlaysOnceAndEndsAsThePictureOnThePage) {
  frmHelp& help = OpenCards(true);
  EXPECT_TRUE(help.motionLayer().moving());
  const QImage begun = Now();
  QImage before;
  QImage last;
  while (help.motionLayer().moving()) {
    before = std::exchange(last, Now());
    Settle(16);
  }
  EXPECT_NE(begun, last);
  EXPECT_EQ(last, Now()) << "nothing jumps at the end";
  EXPECT_EQ(before, Now());
  globals.effects.StopEffects();
  EXPECT_EQ(scheduler.RunningTimers(), 0);
  ScreenHand(help.lstPages()).Key(Qt::Key_Return);
  EXPECT_TRUE(help.motionLayer().moving()) << "again";
  help.txtPage().verticalScrollBar()->setValue(help.txtPage().verticalScrollBar()->maximum());
  EXPECT_TRUE(help.motionLayer().moving()) << "what comes into view for the first time";
  Settle(8000);
  help.txtPage().verticalScrollBar()->setValue(0);
  EXPECT_FALSE(help.motionLayer().moving()) << "all were seen";
  help.lstPages().setCurrentRow(0);
  ScreenHand(help.lstPages()).Key(Qt::Key_Return);
  EXPECT_FALSE(help.motionLayer().moving()) << "no example on this page";
}

TEST_P(HelpScenesTest, NothingPlaysWithoutEffects) {
  frmHelp& help = OpenCards(false);
  ScreenHand(help.lstPages()).Key(Qt::Key_Return);
  EXPECT_FALSE(help.motionLayer().moving());
  EXPECT_FALSE(help.txtPage().toPlainText().contains("plays it again"));
}

class HelpTest : public testing::Test, protected ProgramStage {
 protected:
  [[nodiscard]] frmHelp* Help() {
    return program->stage().findChild<frmHelp*>("frmHelp", Qt::FindDirectChildrenOnly);
  }
};

TEST_F(HelpTest, OpensInFrontOfAMatchThatGoesOnBehindIt) {
  EnterMenuAs("ann");
  Click("cmdArcade");
  Control<QLineEdit>("txtWager").setText("10");
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
      Help()->txtPage().document()->resource(QTextDocument::ImageResource, QUrl("card:ps3"));
  EXPECT_FALSE(picture.value<QImage>().isNull());
  EXPECT_EQ(Help()->txtPage().toHtml().count("<img src=\"card:"), 8);
  EXPECT_EQ(Help()->txtPage().toHtml().count("<img src=\"scene:"), 8);
  const bool mine = match.engine().shown().Light(Seat::Player);
  match.engine().person().Stand();
  Settle(6000);
  EXPECT_TRUE(mine);
  EXPECT_TRUE(match.engine().shown().banner.visible || match.engine().shown().Stood(Seat::Player));
  ScreenHand(*Help()).Key(Qt::Key_Escape);
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
}  // namespace kv::test
