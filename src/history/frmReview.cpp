#include "history/frmReview.h"

#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QTableView>
#include <algorithm>
#include <numeric>

#include "history/HistoryWords.h"
#include "history/RecordWords.h"
#include "platform/QtText.h"
#include "presentation/PanelPainter.h"
#include "presentation/WidgetSkin.h"
#include "profile/clsPlayer.h"

namespace kv {
namespace {

constexpr std::array kReviewPanels = {u"panelChance", u"panelDecisions"};
constexpr int kPollMs = 100;
constexpr std::size_t kTimeToMinute = 16;
constexpr const char* kNothingToReview = "This match has no decision of yours that could be weighed.";

enum DecisionColumn { kSet, kCost, kChance };

}  // namespace

frmReview::frmReview(const ScreenServices& services, const frmReviewServices& review)
    : Screen(services, "frmReview", review.player.Interface_Opt),
      turns_(TurnsOf(review.record)),
      decisions_(DecisionsIn(turns_)),
      matches_(review.matches) {
  BuildControls(review.record);
  BuildTable();
  tmrPoll_ = NewTimer(kPollMs, [this] { Poll(); });
}

frmReview::~frmReview() {
  CloseScreen();
}

void frmReview::BuildControls(const MatchRecord& record) {
  QLabel* match = layout().NewLabel(u"lblMatch", this);
  match->setText(ToQString(words::TimeText(record.time).substr(0, kTimeToMinute) + ", " +
                           ModeText(record.mode) + ", against " + record.opponent + ": " +
                           ResultText(LineOf(record))));
  match->setAccessibleName(match->text());
  plot_ = new ctlChancePlot(this, layout().bag(u"plot"));
  layout().Place(u"plot", *plot_);
  plot_->Chosen = [this](std::size_t decision) {
    Choose(decision);
    Announce(lblDecision_->text().toStdString());
  };
  lblState_ = layout().NewLabel(u"lblState", this);
  tblDecisions_ = new QTableView(this);
  SkinWidget(*tblDecisions_, layout().bag(u"tblDecisions"));
  layout().Place(u"tblDecisions", *tblDecisions_);
  lblDecision_ = layout().NewLabel(u"lblDecision", this);
  QLabel* assumed = layout().NewLabel(u"lblAssumed", this);
  assumed->setText(ToQString(AssumptionText(record)));
  assumed->setAccessibleName(assumed->text());
  assumed->setVisible(decisions_ > 0 && !assumed->text().isEmpty());
  if (!assumed->isHidden()) lblDecision_->resize(lblDecision_->width(), assumed->y() - lblDecision_->y());
  NewButton(u"cmdBack", [this] { LeaveProgram(); });
  ctlTitlebar_ = NewTitlebar();
  ctlTitlebar_->Quit = [this] { LeaveProgram(); };
}

void frmReview::BuildTable() {
  table_ = new frmRecordTable(*tblDecisions_,
                              {QStringLiteral("set"), QStringLiteral("cost"), QStringLiteral("chance, 95 %"),
                               QStringLiteral("decision")},
                              {36, 120, 140}, [this](int row, int column) { return Cell(row, column); });
  QObject::connect(tblDecisions_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
                   [this](const QModelIndex& current) {
                     if (current.isValid()) ShowDecision(rows_.at(static_cast<std::size_t>(current.row())));
                   });
}

QString frmReview::Cell(int row, int column) const {
  const ReviewedTurn& turn = weighed_.at(rows_.at(static_cast<std::size_t>(row)));
  switch (column) {
    case kSet:
      return QString::number(PositionOf(turn).set);
    case kCost:
      return ToQString(CostText(turn));
    case kChance:
      return ToQString(PercentText(turn.Made().Chance(), turn.Made().Within()));
    default:
      return ToQString(ReviewWords(PositionOf(turn), turn));
  }
}

void frmReview::Activate() {
  ShowWeighed(false);
  if (decisions_ == 0) {
    lblDecision_->setText(QString::fromUtf8(kNothingToReview));
    lblDecision_->setAccessibleName(lblDecision_->text());
    Announce(kNothingToReview);
    return;
  }
  running_ = std::make_unique<BackgroundReview>(turns_, matches_);
  tmrPoll_->setEnabled(true);
}

void frmReview::Closing() {
  tmrPoll_->setEnabled(false);
  running_.reset();
}

void frmReview::Poll() {
  const bool whole = running_->done();
  std::vector<ReviewedTurn> fresh = running_->Take();
  if (fresh.empty() && !whole) return;
  std::move(fresh.begin(), fresh.end(), std::back_inserter(weighed_));
  if (whole) {
    tmrPoll_->setEnabled(false);
    running_.reset();
  }
  ShowWeighed(whole);
}

void frmReview::ShowWeighed(bool whole) {
  rows_.resize(weighed_.size());
  std::iota(rows_.begin(), rows_.end(), std::size_t{0});
  if (whole) rows_ = ByCost(weighed_);
  table_->setRows(static_cast<int>(rows_.size()));
  std::vector<ChancePoint> points;
  for (const ReviewedTurn& turn : weighed_) {
    points.push_back({turn.Made().Chance(), turn.Made().Within(), turn.Best().Chance(), turn.Dear(),
                      PositionOf(turn).set});
  }
  plot_->setPoints(std::move(points), decisions_);
  ShowState(whole);
  if (!rows_.empty()) Choose(whole ? rows_.front() : weighed_.size() - 1);
}

void frmReview::ShowState(bool whole) {
  std::string state = "0 decisions";
  if (whole) {
    const auto dear =
        std::count_if(weighed_.begin(), weighed_.end(), [](const auto& each) { return each.Dear(); });
    state = std::to_string(weighed_.size()) + " decisions, " + std::to_string(dear) + " of them dear";
  } else if (decisions_ > 0) {
    state = std::to_string(weighed_.size()) + " of " + std::to_string(decisions_) + " decisions weighed";
  }
  lblState_->setText(ToQString(state));
  lblState_->setAccessibleName(lblState_->text());
  if (whole) Announce(state + ".");
}

void frmReview::Choose(std::size_t decision) {
  const auto row = std::find(rows_.begin(), rows_.end(), decision) - rows_.begin();
  tblDecisions_->selectRow(static_cast<int>(row));
  ShowDecision(decision);
}

void frmReview::ShowDecision(std::size_t decision) {
  const ReviewedTurn& turn = weighed_.at(decision);
  plot_->setChosen(decision);
  lblDecision_->setText(ToQString(DecisionText(PositionOf(turn), turn)));
  lblDecision_->setAccessibleName(lblDecision_->text());
}

void frmReview::paintEvent(QPaintEvent* event) {
  Screen::paintEvent(event);
  QPainter painter(this);
  for (const char16_t* panel : kReviewPanels) PaintPanel(painter, layout().rect(panel), layout().bag(panel));
}

void frmReview::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && !event->isAutoRepeat()) {
    LeaveProgram();
  } else {
    Screen::keyPressEvent(event);
  }
}

void frmReview::LeaveProgram() {
  if (!closing()) services().navigator.OpenRecord();
}

}  // namespace kv
