// The review of one match: the chance to win at each decision as a graph, and every decision with what it
// cost. It weighs in the background, reads one record, and changes nothing.
#pragma once

#include <memory>
#include <vector>

#include "history/MatchReview.h"
#include "history/ctlChancePlot.h"
#include "history/frmRecordTable.h"
#include "presentation/Screen.h"

class QTableView;

namespace kv {

class clsPlayer;

struct frmReviewServices {
  const clsPlayer& player;
  const MatchRecord& record;
  int matches = kReviewMatches;  // for each decision
};

class frmReview final : public Screen {
 public:
  /// In the player's interface style; the record is not needed afterwards.
  frmReview(const ScreenServices& services, const frmReviewServices& review);
  ~frmReview() override;

  /// Back to the list of matches.
  void LeaveProgram() override;

  /// The decisions weighed so far, in the order of the match.
  [[nodiscard]] const std::vector<ReviewedTurn>& weighed() const { return weighed_; }
  /// What runs in the background; null when nothing does.
  [[nodiscard]] BackgroundReview* running() { return running_.get(); }

 protected:
  void Activate() override;
  void Closing() override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void BuildControls(const MatchRecord& record);
  void BuildTable();
  [[nodiscard]] QString Cell(int row, int column) const;
  [[nodiscard]] const MatchPosition& PositionOf(const ReviewedTurn& turn) const {
    return turns_.at(turn.turn).position;
  }
  /// Takes what has come from the background.
  void Poll();
  void ShowWeighed(bool whole);
  void ShowState(bool whole);
  void Choose(std::size_t decision);
  void ShowDecision(std::size_t decision);

  const std::vector<PlayedTurn> turns_;
  const std::size_t decisions_;
  const int matches_;
  std::vector<ReviewedTurn> weighed_;
  std::vector<std::size_t> rows_;  // of the table: indices of weighed_
  std::unique_ptr<BackgroundReview> running_;
  std::unique_ptr<Timer> tmrPoll_;
  ctlChancePlot* plot_ = nullptr;  // children
  QTableView* tblDecisions_ = nullptr;
  frmRecordTable* table_ = nullptr;  // of the table view
  QLabel* lblState_ = nullptr;
  QLabel* lblDecision_ = nullptr;
  ctlTitlebar* ctlTitlebar_ = nullptr;
};

}  // namespace kv
