#include "history/frmRecord.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QTableView>

#include "history/HistoryWords.h"
#include "history/RecordWords.h"
#include "platform/QtText.h"
#include "presentation/PanelPainter.h"
#include "presentation/WidgetSkin.h"
#include "profile/clsPlayer.h"

namespace kv {
namespace {

constexpr std::array kRecordPanels = {u"panelMatches", u"panelCredits", u"panelRates", u"panelFiles"};
constexpr std::size_t kMinutes = 16;  // of a time: as far as its minute

enum MatchColumn { kTime, kMode, kOpponent, kResult, kStake, kCredits, kEnding };

}  // namespace

frmRecord::frmRecord(const ScreenServices& services, const frmRecordServices& record)
    : Screen(services, "frmRecord", record.player.Interface_Opt), record_(record) {
  BuildControls();
  BuildTables();
}

frmRecord::~frmRecord() {
  CloseScreen();
}

void frmRecord::BuildControls() {
  cmbMode_ = NewFilter(u"cmbMode");
  cmbOpponent_ = NewFilter(u"cmbOpponent");
  cmbOutcome_ = NewFilter(u"cmbOutcome");
  ofOne_.push_back(NewAction(u"cmdReview", &frmRecord::OpenReview));
  ofOne_.push_back(NewAction(u"cmdReplay", &frmRecord::OpenReplay));
  tblMatches_ = NewTable(u"tblMatches");
  lblTotals_ = layout().NewLabel(u"lblTotals", this);
  plot_ = new ctlCreditsPlot(this, layout().bag(u"plot"));
  layout().Place(u"plot", *plot_);
  plot_->Chosen = [this](std::size_t point) { Announce(plot_->Sentence(point)); };
  cmbRates_ = NewFilter(u"cmbRates");
  tblRates_ = NewTable(u"tblRates");
  ofOne_.push_back(NewAction(u"cmdExport", &frmRecord::Export));
  NewAction(u"cmdImport", &frmRecord::Import);
  NewAction(u"cmdList", &frmRecord::SaveList);
  NewAction(u"cmdPlot", &frmRecord::SavePlot);
  lblNotice_ = layout().NewLabel(u"lblNotice", this);
  lblNotice_->hide();  // until there is something to say
  NewAction(u"cmdBack", &frmRecord::LeaveProgram);
  ctlTitlebar_ = NewTitlebar();
  ctlTitlebar_->Quit = [this] { LeaveProgram(); };
}

QComboBox* frmRecord::NewFilter(QStringView control) {
  auto* box = new QComboBox(this);
  SkinWidget(*box, layout().bag(control));
  layout().Place(control, *box);
  const bool rates = control == u"cmbRates";
  QObject::connect(box, &QComboBox::currentIndexChanged, this, [this, rates] {
    if (filling_) return;
    NoteLook();
    if (!rates) ShowMatches();
    ShowRates();
  });
  return box;
}

QTableView* frmRecord::NewTable(QStringView control) {
  auto* table = new QTableView(this);
  SkinWidget(*table, layout().bag(control));
  layout().Place(control, *table);
  return table;
}

ctlButton* frmRecord::NewAction(QStringView control, void (frmRecord::*act)()) {
  // A button disables itself when it is clicked; the screen may be gone once the click is handled.
  return NewButton(control, [this, act, name = control.toString()] {
    if (busy_ || closing()) return;
    const QPointer<frmRecord> self(this);
    (this->*act)();
    if (self.isNull() || closing()) return;
    if (auto* button = dynamic_cast<ctlButton*>(findChild<QWidget*>(name))) button->setEnabled(true);
    EnableActions();
  });
}

void frmRecord::BuildTables() {
  matches_ = new frmRecordTable(
      *tblMatches_,
      {QStringLiteral("time"), QStringLiteral("mode"), QStringLiteral("opponent"), QStringLiteral("result"),
       QStringLiteral("stake"), QStringLiteral("credits"), QStringLiteral("ending")},
      {140, 112, 156, 80, 54, 66}, [this](int row, int column) { return MatchCell(row, column); });
  ratesTable_ = new frmRecordTable(
      *tblRates_,
      {QStringLiteral("which"), QStringLiteral("won"), QStringLiteral("of"), QStringLiteral("rate, 95 %")},
      {142, 40, 40}, [this](int row, int column) { return RateCell(row, column); });
}

QString frmRecord::MatchCell(int row, int column) const {
  const MatchLine& line = shown_.at(static_cast<std::size_t>(row));
  switch (column) {
    case kTime:
      return ToQString(words::TimeText(line.time).substr(0, kMinutes));
    case kMode:
      return ToQString((line.imported ? "* " : "") + ModeText(line.mode));
    case kOpponent:
      return ToQString(line.opponent);
    case kResult:
      return ToQString(ResultText(line));
    case kStake:
      return QString::number(line.stake);
    case kCredits:
      return line.after ? QString::number(*line.after) : QString();
    default:
      return ToQString(StyleText(line.style));
  }
}

QString frmRecord::RateCell(int row, int column) const {
  const WinRate& rate = rates_.at(static_cast<std::size_t>(row));
  if (column == 0) return ToQString(rate.what);
  if (column == 1) return QString::number(rate.won);
  if (column == 2) return QString::number(rate.played);
  return ToQString(PercentText(rate.rate(), rate.interval()));
}

void frmRecord::paintEvent(QPaintEvent* event) {
  Screen::paintEvent(event);
  QPainter painter(this);
  for (const char16_t* panel : kRecordPanels) PaintPanel(painter, layout().rect(panel), layout().bag(panel));
}

void frmRecord::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && !event->isAutoRepeat()) {
    LeaveProgram();
  } else {
    Screen::keyPressEvent(event);
  }
}

void frmRecord::LeaveProgram() {
  if (!closing() && !busy_) services().navigator.OpenMenu();
}

}  // namespace kv
