// What the record screen shows of the history, and the files that it writes and reads.
#include <QBuffer>
#include <QComboBox>
#include <QLabel>
#include <QTableView>
#include <algorithm>
#include <set>
#include <utility>

#include "history/HistoryWords.h"
#include "history/RecordFiles.h"
#include "history/frmRecord.h"
#include "profile/clsPlayer.h"

namespace kv {
namespace {

std::optional<std::string> Chosen(const QComboBox& box) {
  return box.currentIndex() <= 0 ? std::nullopt : std::optional(box.currentData().toString().toStdString());
}

/// All of them first; what was chosen is chosen if it is there.
void Fill(QComboBox& box, const char* all, const std::vector<std::pair<std::string, std::string>>& entries,
          const std::optional<std::string>& chosen) {
  box.clear();
  box.addItem(QString::fromUtf8(all));
  for (const auto& [key, text] : entries)
    box.addItem(QString::fromStdString(text), QString::fromStdString(key));
  box.setCurrentIndex(std::max(0, chosen ? box.findData(QString::fromStdString(*chosen)) : 0));
}

}  // namespace

void frmRecord::Activate() {
  const std::int64_t before = std::exchange(record_.look.match, 0);
  Read();
  ChooseMatch(before);
  static_cast<void>(record_.history.TakeNotice());  // told here
  if (!record_.history.lastNotice().empty()) Tell(record_.history.lastNotice());
}

void frmRecord::Read() {
  all_ = record_.history.Lines();
  FillFilters();
  ShowMatches();
  ShowRates();
}

void frmRecord::FillFilters() {
  filling_ = true;
  std::set<std::string> modes;
  std::set<std::string> opponents;
  for (const MatchLine& line : all_) {
    modes.insert(line.mode);
    opponents.insert(line.opponent);
  }
  std::vector<std::pair<std::string, std::string>> entries;
  for (const std::string& mode : modes) entries.emplace_back(mode, ModeText(mode));
  const MatchFilter& before = record_.look.filter;
  Fill(*cmbMode_, "all modes", entries, before.mode);
  entries.clear();
  for (const std::string& opponent : opponents) entries.emplace_back(opponent, opponent);
  Fill(*cmbOpponent_, "all opponents", entries, before.opponent);
  entries.clear();
  for (const auto outcome :
       {MatchOutcome::Won, MatchOutcome::Lost, MatchOutcome::BrokenOff, MatchOutcome::Left}) {
    entries.emplace_back(std::to_string(static_cast<int>(outcome)), OutcomeText(outcome));
  }
  Fill(*cmbOutcome_, "won or lost", entries, {});
  if (before.outcome) cmbOutcome_->setCurrentIndex(static_cast<int>(*before.outcome) + 1);
  if (cmbRates_->count() == 0) {
    for (const char* by :
         {"win rate by opponent", "win rate by deck", "win rate by ending", "win rate by card"}) {
      cmbRates_->addItem(QString::fromUtf8(by));
    }
  }
  cmbRates_->setCurrentIndex(static_cast<int>(record_.look.rates));
  filling_ = false;
  NoteLook();
}

void frmRecord::NoteLook() {
  MatchFilter& filter = record_.look.filter;
  filter = {Chosen(*cmbMode_), Chosen(*cmbOpponent_), {}};
  if (const int row = cmbOutcome_->currentIndex(); row > 0)
    filter.outcome = static_cast<MatchOutcome>(row - 1);
  record_.look.rates = static_cast<RateBy>(std::max(0, cmbRates_->currentIndex()));
}

void frmRecord::ChooseMatch(std::int64_t match) {
  const auto found =
      std::find_if(shown_.begin(), shown_.end(), [match](const auto& each) { return each.id == match; });
  if (found != shown_.end()) tblMatches_->selectRow(static_cast<int>(found - shown_.begin()));
}

void frmRecord::ShowMatches() {
  shown_ = Filtered(all_, record_.look.filter);
  matches_->setRows(static_cast<int>(shown_.size()));
  if (!shown_.empty()) tblMatches_->selectRow(0);
  EnableActions();
  lblTotals_->setText(QString::fromStdString(TotalsText(TotalsOf(shown_))));
  lblTotals_->setAccessibleName(lblTotals_->text());
  plot_->setPoints(CreditsOverTime(shown_));
}

void frmRecord::ShowRates() {
  rates_ = RatesBy(record_.look.rates, shown_);
  ratesTable_->setRows(static_cast<int>(rates_.size()));
}

void frmRecord::Tell(const std::string& sentence) {
  lblNotice_->show();
  lblNotice_->setText(QString::fromStdString(sentence));
  lblNotice_->setAccessibleName(lblNotice_->text());
  Announce(sentence);
}

void frmRecord::EnableActions() {
  for (ctlButton* button : ofOne_) button->setEnabled(!shown_.empty());
}

void frmRecord::OpenChosen(void (Navigator::*open)(std::int64_t match)) {
  const int row = tblMatches_->currentIndex().row();
  if (row < 0 || row >= static_cast<int>(shown_.size())) return;
  const std::int64_t match = shown_.at(static_cast<std::size_t>(row)).id;
  record_.look.match = match;
  if (record_.history.Load(match)) {
    (services().navigator.*open)(match);
  } else {
    Tell("This match cannot be read.");
  }
}

void frmRecord::SaveList() {
  Tell(SaveBytes(FileBeside(record_.player.FileName, "matches.csv"), CsvOf(shown_)));
}

void frmRecord::SavePlot() {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  QImage picture(plot_->size() * plot_->devicePixelRatio(), QImage::Format_RGB32);
  picture.setDevicePixelRatio(plot_->devicePixelRatio());
  picture.fill(layout().bag(u"plot").colour(u"fill"));
  plot_->render(&picture, QPoint(), QRegion(), QWidget::RenderFlags());
  if (!picture.save(&buffer, "PNG")) {
    Tell("Not saved: the picture could not be made.");
    return;
  }
  const std::string_view png(bytes.constData(), static_cast<std::size_t>(bytes.size()));
  Tell(SaveBytes(FileBeside(record_.player.FileName, "credits.png"), png));
}

void frmRecord::Export() {
  const int row = tblMatches_->currentIndex().row();
  if (row < 0 || row >= static_cast<int>(shown_.size())) return;
  Tell(ExportMatch(record_.history, shown_.at(static_cast<std::size_t>(row)).id, record_.player.FileName));
}

void frmRecord::Import() {
  busy_ = true;
  const auto name = services().dialogs.AskText(
      "Name of the text file, in the folder of the player files:", "Kelm Vantri: Import a match", "");
  busy_ = false;
  if (closing() || !name || name->empty()) return;
  const std::string told = ImportMatch(record_.history, *name, record_.player.FileName);
  Read();
  Tell(told);
}

}  // namespace kv
