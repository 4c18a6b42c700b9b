// The record screen, as a person uses it by keys and clicks, and the files that it writes.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QTableView>

#include "history/HistoryWords.h"
#include "history/frmRecord.h"
#include "support/SampleMatch.h"
#include "support/ScreenHand.h"
#include "support/ScreenStage.h"
#include "support/TempFolder.h"

namespace kv::test {
namespace {

class frmRecordTest : public testing::Test {
 protected:
  frmRecordTest() : history(folder / "zoe.history.sqlite") { stage.player.FileName = folder / "zoe.vnt"; }

  void Store(std::uint64_t seed, const std::string& opponent, bool won, std::int32_t after,
             const char* mode = "Campaign") {
    MatchRecord record = SampleMatch(seed, opponent);
    record.mode = mode;
    record.booking = {won ? event::Result::Won : event::Result::Lost, 90, after};
    history.Store(record);
  }
  frmRecord& Open() {
    screen = std::make_unique<frmRecord>(stage.services(), frmRecordServices{stage.player, history, look});
    screen->Open();
    stage.Settle();
    hand = std::make_unique<ScreenHand>(*screen);
    return *screen;
  }
  template <typename Kind>
  Kind& Control(const char* name) {
    return *screen->findChild<Kind*>(QString::fromUtf8(name));
  }
  void Click(const char* name) {
    hand->Click(Control<QWidget>(name));
    stage.Settle();
  }
  std::string Notice() { return Control<QLabel>("lblNotice").text().toStdString(); }
  std::string Cell(const char* table, int row, int column) {
    const auto* model = Control<QTableView>(table).model();
    return model->data(model->index(row, column)).toString().toStdString();
  }

  TempFolder folder;
  ScreenStage stage;
  HistoryFile history;
  RecordLook look;
  std::unique_ptr<frmRecord> screen;
  std::unique_ptr<ScreenHand> hand;
};

TEST_F(frmRecordTest, ListsMatchesAndFiltersThem) {
  Store(1, "Tamsen", true, 120);
  Store(2, "Brummox", false, 80, "Arcade");
  Store(3, "Tamsen", false, 70);
  Open();
  EXPECT_EQ(Control<QTableView>("tblMatches").model()->rowCount(), 3);
  EXPECT_EQ(Cell("tblMatches", 0, 0), "2023-11-15 01:13");
  EXPECT_EQ(Cell("tblMatches", 1, 1), "arcade");
  EXPECT_EQ(Cell("tblMatches", 0, 3).substr(0, 5), "lost ");
  EXPECT_EQ(Cell("tblRates", 0, 0), "Tamsen");
  EXPECT_EQ(Cell("tblRates", 0, 3), "50 % (9 to 91 %)");
  EXPECT_NE(Control<QLabel>("lblTotals").text().indexOf(QStringLiteral("1 won, 2 lost")), -1);
  auto& opponents = Control<QComboBox>("cmbOpponent");
  opponents.setCurrentIndex(opponents.findText(QStringLiteral("Tamsen")));
  EXPECT_EQ(screen->shown().size(), 2u);
  Control<QComboBox>("cmbOutcome").setCurrentIndex(1);
  ASSERT_EQ(screen->shown().size(), 1u);
  EXPECT_EQ(screen->shown()[0].after, 120);
  EXPECT_EQ(screen->rates().size(), 1u);
}

TEST_F(frmRecordTest, WritesListPlotAndAMatchAndReadsAMatchBack) {
  Store(1, "=cmd()", true, 120);
  Open();
  Click("cmdList");
  EXPECT_EQ(Notice(), "Saved as " + (folder / "zoe.matches.csv") + ".");
  EXPECT_NE(folder.Get("zoe.matches.csv").find(",\"'=cmd()\","), std::string::npos) << "no formula";
  Click("cmdPlot");
  EXPECT_FALSE(QImage(QString::fromStdString(folder / "zoe.credits.png")).isNull());
  Click("cmdExport");
  stage.dialogs.texts = {"zoe.match-1.txt", "no such file", std::nullopt};
  Click("cmdImport");
  EXPECT_EQ(Notice(), "The match is in the list.");
  ASSERT_EQ(screen->shown().size(), 2u);
  EXPECT_TRUE(screen->shown()[0].imported);
  EXPECT_EQ(history.Load(1), history.Load(2));
  EXPECT_EQ(TotalsOf(screen->shown()).matches, 1) << "somebody else's match does not count";
  Click("cmdImport");
  EXPECT_EQ(Notice().substr(0, 8), "Not read");
  Click("cmdImport");
  EXPECT_EQ(screen->shown().size(), 2u);
  std::string text = folder.Get("zoe.match-1.txt");
  text.replace(text.find("draws "), 7, "draws 9");
  folder.Put("other.txt", text);
  stage.dialogs.texts = {"other.txt"};
  Click("cmdImport");
  EXPECT_EQ(Notice(), "Not read: these moves are not those of a match.");
  EXPECT_EQ(stage.announcer.Last(), Notice());
}

TEST_F(frmRecordTest, IsReachedByKeysAlone) {
  for (std::uint64_t i = 1; i <= 3; ++i) Store(i, "Tamsen", i != 2, 100 + static_cast<std::int32_t>(i));
  Open();
  auto& plot = Control<QWidget>("plot");
  plot.setFocus();
  hand->Key(Qt::Key_Left);
  EXPECT_EQ(stage.announcer.Last(), "Match 2 of 3, 2023-11-15: 102 credits");
  hand->Key(Qt::Key_Home);
  EXPECT_EQ(stage.announcer.Last(), "Match 1 of 3, 2023-11-14: 101 credits");
  for (const char* name :
       {"cmbMode", "cmbOpponent", "cmbOutcome", "tblMatches", "plot", "cmbRates", "tblRates", "cmdExport"}) {
    EXPECT_TRUE(Control<QWidget>(name).focusPolicy() & Qt::TabFocus) << name;
    EXPECT_FALSE(Control<QWidget>(name).accessibleName().isEmpty()) << name;
  }
  hand->Key(Qt::Key_Escape);
  EXPECT_EQ(stage.recorded.calls, std::vector<std::string>{"OpenMenu"});
}

TEST_F(frmRecordTest, LeadsToReviewAndReplayOfTheChosenMatch) {
  Store(1, "Tamsen", true, 120);
  Store(2, "Brummox", false, 80);
  Open();
  Control<QTableView>("tblMatches").selectRow(1);
  Click("cmdReview");
  Click("cmdReplay");
  EXPECT_EQ(stage.recorded.calls, (std::vector<std::string>{"OpenReview 1", "OpenReplay 1"}));
  Control<QComboBox>("cmbMode").setCurrentIndex(1);
  Control<QComboBox>("cmbOutcome").setCurrentIndex(3);
  EXPECT_FALSE(Control<QWidget>("cmdReview").isEnabled()) << "nothing is chosen";
}

TEST_F(frmRecordTest, IsAsItWasAfterAReviewOrAReplay) {
  Store(1, "Tamsen", false, 120);
  Store(2, "Brummox", false, 80);
  Store(3, "Tamsen", false, 70, "Arcade");
  Open();
  auto& opponents = Control<QComboBox>("cmbOpponent");
  opponents.setCurrentIndex(opponents.findText(QStringLiteral("Tamsen")));
  Control<QComboBox>("cmbOutcome").setCurrentIndex(2);
  Control<QComboBox>("cmbRates").setCurrentIndex(2);
  Control<QTableView>("tblMatches").selectRow(1);
  Click("cmdReview");
  history.Store(SampleMatch(4, "Tamsen"));  // of another program, won or lost
  Open();
  ASSERT_GE(screen->shown().size(), 2u);
  EXPECT_EQ(Control<QComboBox>("cmbOpponent").currentText().toStdString(), "Tamsen");
  EXPECT_EQ(Control<QComboBox>("cmbOutcome").currentIndex(), 2);
  EXPECT_EQ(Control<QComboBox>("cmbRates").currentIndex(), 2);
  const auto row = Control<QTableView>("tblMatches").currentIndex().row();
  EXPECT_EQ(screen->shown().at(static_cast<std::size_t>(row)).after, 120);
  look = {};  // the menu was open
  Open();
  EXPECT_EQ(screen->shown().size(), 4u);
}

TEST_F(frmRecordTest, SaysWhatBecameOfADamagedHistory) {
  folder.Put("zoe.history.sqlite", "whatever it holds");
  Open();
  EXPECT_NE(Notice().find("set aside as zoe.history.damaged-1.sqlite"), std::string::npos) << Notice();
}

TEST_F(frmRecordTest, StandsWithoutAMatch) {
  Open();
  EXPECT_FALSE(Control<QWidget>("cmdExport").isEnabled());
  auto& plot = Control<QWidget>("plot");
  plot.setFocus();
  hand->Key(Qt::Key_Left);
  hand->Click(plot);
  EXPECT_EQ(plot.accessibleName().toStdString(), "Credits over time: no match yet");
  EXPECT_EQ(folder.Count(), 0);
}

TEST(HistoryStats, CountStreaksCardsAndDecks) {
  std::vector<MatchLine> lines(6);
  const char* cards[] = {"fl3", "fl3 ps1", "ps1", "ps1", "", "fl3"};
  const char* outcomes = "WWLWBL";
  for (std::size_t i = 0; i < lines.size(); ++i) {
    lines[i].cards = cards[i];
    lines[i].deck = "ps3 fp3 fm3 s11 s299 -- -- ps1 ps1 ps1";
    lines[i].outcome = outcomes[i] == 'W'   ? MatchOutcome::Won
                       : outcomes[i] == 'L' ? MatchOutcome::Lost
                                            : MatchOutcome::BrokenOff;
  }
  const MatchTotals totals = TotalsOf(lines);
  EXPECT_EQ(totals.won, 3);
  EXPECT_EQ(totals.lost, 2);
  EXPECT_EQ(totals.longestWins, 2);
  const auto rates = RatesBy(RateBy::Card, lines);
  ASSERT_EQ(rates.size(), 2u);
  EXPECT_EQ(rates[0].what, "±3");
  EXPECT_EQ(rates[0].won, 2);
  EXPECT_EQ(rates[0].played, 3);
  EXPECT_EQ(RatesBy(RateBy::Deck, lines)[0].what.substr(0, 11), "+3, 2x ±3,");
}

}  // namespace
}  // namespace kv::test
