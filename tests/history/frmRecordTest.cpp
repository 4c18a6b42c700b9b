// The record screen, as a person uses it by keys and clicks, and the files that it writes.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QImage>
#include <QTableView>

#include "history/HistoryWords.h"
#include "history/frmRecord.h"
#include "support/OneScreen.h"
#include "support/SampleMatch.h"

namespace kv::test {
namespace {

class frmRecordTest : public testing::Test, protected OneScreen<frmRecord> {
 protected:
  frmRecordTest() : history(folder / "zoe.history.sqlite") { player.FileName = folder / "zoe.vnt"; }
  ~frmRecordTest() override { screen.reset(); }

  void Store(std::uint64_t seed, const std::string& opponent, bool won, std::int32_t after,
             const char* mode = "Campaign") {
    MatchRecord record = SampleMatch(seed, opponent);
    record.mode = mode;
    record.booking = {won ? event::Result::Won : event::Result::Lost, 90, after};
    history.Store(record);
  }
  frmRecord& Open() {
    return Show(std::make_unique<frmRecord>(services(), frmRecordServices{player, history, look}));
  }
  void Choose(const char* box, int entry) { Find<QComboBox>(box).setCurrentIndex(entry); }
  std::string Notice() { return Text("lblNotice"); }
  std::string Cell(const char* table, int row, int column) {
    const auto* model = Find<QTableView>(table).model();
    return model->data(model->index(row, column)).toString().toStdString();
  }

  HistoryFile history;
  RecordLook look;
};

TEST_F(frmRecordTest, ListsMatchesAndFiltersThem) {
  Store(1, "Tamsen", true, 120);
  Store(2, "Brummox", false, 80, "Arcade");
  Store(3, "Tamsen", false, 70);
  Open();
  EXPECT_EQ(Find<QTableView>("tblMatches").model()->rowCount(), 3);
  EXPECT_EQ(Cell("tblMatches", 0, 0), "2023-11-15 01:13");
  EXPECT_EQ(Cell("tblMatches", 1, 1), "arcade");
  EXPECT_EQ(Cell("tblMatches", 0, 3).substr(0, 5), "lost ");
  EXPECT_EQ(Cell("tblRates", 0, 0), "Tamsen");
  EXPECT_EQ(Cell("tblRates", 0, 3), "50 % (9 to 91 %)");
  EXPECT_NE(Find<QLabel>("lblTotals").text().indexOf(QStringLiteral("1 won, 2 lost")), -1);
  auto& opponents = Find<QComboBox>("cmbOpponent");
  opponents.setCurrentIndex(opponents.findText(QStringLiteral("Tamsen")));
  EXPECT_EQ(screen->shown().size(), 2u);
  Choose("cmbOutcome", 1);
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
  dialogs.texts = {"zoe.match-1.txt", "no such file", std::nullopt};
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
  dialogs.texts = {"other.txt"};
  Click("cmdImport");
  EXPECT_EQ(Notice(), "Not read: these moves are not those of a match.");
  EXPECT_EQ(announcer.Last(), Notice());
}

TEST_F(frmRecordTest, IsReachedByKeysAlone) {
  for (std::uint64_t i = 1; i <= 3; ++i) Store(i, "Tamsen", i != 2, 100 + static_cast<std::int32_t>(i));
  Open();
  auto& plot = Find("plot");
  plot.setFocus();
  hand->Key(Qt::Key_Left);
  EXPECT_EQ(announcer.Last(), "Match 2 of 3, 2023-11-15: 102 credits");
  hand->Key(Qt::Key_Home);
  EXPECT_EQ(announcer.Last(), "Match 1 of 3, 2023-11-14: 101 credits");
  for (const char* name :
       {"cmbMode", "cmbOpponent", "cmbOutcome", "tblMatches", "plot", "cmbRates", "tblRates", "cmdExport"}) {
    EXPECT_TRUE(Find(name).focusPolicy() & Qt::TabFocus) << name;
    EXPECT_FALSE(Find(name).accessibleName().isEmpty()) << name;
  }
  hand->Key(Qt::Key_Escape);
  EXPECT_EQ(recorded.calls, std::vector<std::string>{"OpenMenu"});
}

TEST_F(frmRecordTest, LeadsToReviewAndReplayOfTheChosenMatch) {
  Store(1, "Tamsen", true, 120);
  Store(2, "Brummox", false, 80);
  Open();
  Find<QTableView>("tblMatches").selectRow(1);
  Click("cmdReview");
  Click("cmdReplay");
  EXPECT_EQ(recorded.calls, (std::vector<std::string>{"OpenReview 1", "OpenReplay 1"}));
  Choose("cmbMode", 1);
  Choose("cmbOutcome", 3);
  EXPECT_FALSE(Find("cmdReview").isEnabled()) << "nothing is chosen";
}

TEST_F(frmRecordTest, IsAsItWasAfterAReviewOrAReplay) {
  Store(1, "Tamsen", false, 120);
  Store(2, "Brummox", false, 80);
  Store(3, "Tamsen", false, 70, "Arcade");
  Open();
  auto& opponents = Find<QComboBox>("cmbOpponent");
  opponents.setCurrentIndex(opponents.findText(QStringLiteral("Tamsen")));
  Choose("cmbOutcome", 2);
  Choose("cmbRates", 2);
  Find<QTableView>("tblMatches").selectRow(1);
  Click("cmdReview");
  history.Store(SampleMatch(4, "Tamsen"));  // of another program, won or lost
  Open();
  ASSERT_GE(screen->shown().size(), 2u);
  EXPECT_EQ(Find<QComboBox>("cmbOpponent").currentText().toStdString(), "Tamsen");
  EXPECT_EQ(Find<QComboBox>("cmbOutcome").currentIndex(), 2);
  EXPECT_EQ(Find<QComboBox>("cmbRates").currentIndex(), 2);
  const auto row = Find<QTableView>("tblMatches").currentIndex().row();
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
  EXPECT_FALSE(Find("cmdExport").isEnabled());
  auto& plot = Find("plot");
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
