// The record screen: the matches of the player as a list with filters, what they say together, and the
// credits over time. It reads the history, writes files that are asked for, and never changes a match.
#pragma once

#include <QPointer>
#include <string>
#include <vector>

#include "history/HistoryFile.h"
#include "history/HistoryStats.h"
#include "history/ctlCreditsPlot.h"
#include "history/frmRecordTable.h"
#include "presentation/Screen.h"

class QComboBox;
class QTableView;

namespace kv {

class clsPlayer;

struct frmRecordServices {
  const clsPlayer& player;
  HistoryFile& history;
  RecordLook& look;
};

class frmRecord final : public Screen {
 public:
  /// In the player's interface style. All of `record` must outlive it.
  frmRecord(const ScreenServices& services, const frmRecordServices& record);
  ~frmRecord() override;

  /// Back to the menu.
  void LeaveProgram() override;

  /// The matches that the list shows.
  [[nodiscard]] const std::vector<MatchLine>& shown() const { return shown_; }
  [[nodiscard]] const std::vector<WinRate>& rates() const { return rates_; }

 protected:
  void Activate() override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void BuildControls();
  QComboBox* NewFilter(QStringView control);
  QTableView* NewTable(QStringView control);
  ctlButton* NewAction(QStringView control, void (frmRecord::*act)());
  void BuildTables();
  [[nodiscard]] QString MatchCell(int row, int column) const;
  [[nodiscard]] QString RateCell(int row, int column) const;

  void Read();
  void FillFilters();
  void NoteLook();
  void ChooseMatch(std::int64_t match);
  void ShowMatches();
  void ShowRates();
  /// A sentence that stays on the screen, and is told.
  void Tell(const std::string& sentence);
  /// Asks for a screen about the chosen match, if it can be read.
  void OpenChosen(void (Navigator::*open)(std::int64_t match));
  void OpenReview() { OpenChosen(&Navigator::OpenReview); }
  void OpenReplay() { OpenChosen(&Navigator::OpenReplay); }
  void EnableActions();
  void SaveList();
  void SavePlot();
  void Export();
  void Import();

  frmRecordServices record_;
  std::vector<MatchLine> all_;
  std::vector<MatchLine> shown_;
  std::vector<WinRate> rates_;
  bool filling_ = false;
  bool busy_ = false;             // a box is open
  QComboBox* cmbMode_ = nullptr;  // children
  QComboBox* cmbOpponent_ = nullptr;
  QComboBox* cmbOutcome_ = nullptr;
  QComboBox* cmbRates_ = nullptr;
  QTableView* tblMatches_ = nullptr;
  QTableView* tblRates_ = nullptr;
  frmRecordTable* matches_ = nullptr;  // of the tables
  frmRecordTable* ratesTable_ = nullptr;
  ctlCreditsPlot* plot_ = nullptr;
  QLabel* lblTotals_ = nullptr;
  QLabel* lblNotice_ = nullptr;
  std::vector<ctlButton*> ofOne_;  // what is done with the chosen match
  ctlTitlebar* ctlTitlebar_ = nullptr;
};

}  // namespace kv
