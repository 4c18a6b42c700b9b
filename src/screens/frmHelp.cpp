#include "screens/frmHelp.h"

#include <QKeyEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextTable>

#include "cards/ctlCard.h"
#include "platform/QtKeys.h"
#include "platform/QtText.h"
#include "presentation/ChoiceList.h"
#include "presentation/PanelPainter.h"
#include "presentation/WidgetSkin.h"

namespace kv {
namespace {

// Layout pixels.
constexpr int kCellPadding = 4;
constexpr int kParagraphGap = 4;

constexpr double kCardScale = 0.9;

constexpr const char* kAgain = "\nA click on an example plays it again; Enter plays all of them.\n";

}  // namespace

frmHelp::frmHelp(const ScreenServices& services, std::string_view style, std::vector<HelpPage> pages,
                 bool moves)
    : Screen(services, "frmHelp", style),
      pages_(std::move(pages)),
      moves_(moves),
      lstPages_(new QListWidget(this)),
      txtPage_(new QTextBrowser(this)),
      motionLayer_(new MotionLayer(*this, services.scheduler)) {
  NewTitlebar()->Quit = [this] { this->services().navigator.CloseHelp(); };
  SkinWidget(*lstPages_, layout().bag(u"lstPages"));
  layout().Place(u"lstPages", *lstPages_);
  LetCurrentFollowSelection(*lstPages_);
  SkinWidget(*txtPage_, layout().bag(u"txtPage"));
  txtPage_->setOpenLinks(false);
  txtPage_->document()->setDocumentMargin(layout().bag(u"txtPage").number(u"margin"));
  layout().Place(u"txtPage", *txtPage_);
  const PropertyBag page = layout().bag(u"txtPage");
  scenes_ = std::make_unique<HelpScenes>(
      *txtPage_, *motionLayer_, services.look,
      SceneStyle{page.colour(u"fill"), page.colour(u"border"), page.colour(u"color"), txtPage_->font()},
      moves);
  for (const HelpPage& each : pages_) lstPages_->addItem(ToQString(each.title));
  connect(lstPages_, &QListWidget::currentRowChanged, this, [this](int row) { ShowPage(row); });
  for (QWidget* each :
       {static_cast<QWidget*>(lstPages_), static_cast<QWidget*>(txtPage_), txtPage_->viewport()}) {
    each->installEventFilter(this);
  }
  connect(txtPage_->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
    motionLayer_->FinishAll();
    if (isVisible()) scenes_->PlayNew();
  });
  lstPages_->setCurrentRow(0);
}

frmHelp::~frmHelp() {
  CloseScreen();
}

void frmHelp::LeaveProgram() {
  services().navigator.CloseHelp();
}

void frmHelp::Shown() {
  lstPages_->setFocus();
}

void frmHelp::Closing() {
  motionLayer_->Close();
}

void frmHelp::ShowPage(int index) {
  if (index < 0) return;
  const HelpPage& page = pages_.at(static_cast<std::size_t>(index));
  const bool plays = moves_ && page.text.find("(scene:") != std::string::npos;
  txtPage_->setMarkdown(ToQString("## " + page.title + "\n\n" + page.text + (plays ? kAgain : "")));
  AddCardPictures();
  scenes_->PageChanged();
  SpaceParagraphs();
  DressTables();
  txtPage_->setAccessibleName(ToQString(page.title));
  txtPage_->moveCursor(QTextCursor::Start);
  if (isVisible()) scenes_->PlayNew();
}

double frmHelp::CardHeight() const {
  return kCardScale * ctlCard(nullptr, services().look).height();
}

/// The cards that the page shows, as they look on the table.
void frmHelp::AddCardPictures() {
  static const QRegularExpression pictures(QStringLiteral("card:([^)]+)"));
  const QString text = ToQString(pages_.at(static_cast<std::size_t>(lstPages_->currentRow())).text);
  for (const QRegularExpressionMatch& each : pictures.globalMatch(text)) {
    const QImage small = SmallCard(CardCode(each.captured(1).toStdString()), services().look, CardHeight(),
                                   devicePixelRatioF());
    txtPage_->document()->addResource(QTextDocument::ImageResource, QUrl(each.captured(0)), small);
  }
}

void frmHelp::SpaceParagraphs() {
  QTextCursor cursor(txtPage_->document());
  for (QTextBlock block = txtPage_->document()->begin(); block.isValid(); block = block.next()) {
    cursor.setPosition(block.position());
    if (cursor.currentTable() != nullptr || cursor.currentList() != nullptr) continue;
    QTextBlockFormat form = block.blockFormat();
    form.setTopMargin(kParagraphGap);
    form.setBottomMargin(kParagraphGap);
    cursor.setBlockFormat(form);
  }
}

void frmHelp::DressTables() {
  const QColor line = layout().bag(u"txtPage").colour(u"border", Qt::gray);
  for (QTextFrame* frame : txtPage_->document()->rootFrame()->childFrames()) {
    auto* table = qobject_cast<QTextTable*>(frame);
    if (table == nullptr) continue;
    QTextTableFormat form = table->format();
    form.setBorder(0.5);
    form.setBorderBrush(line);
    form.setBorderCollapse(true);
    form.setCellPadding(kCellPadding);
    table->setFormat(form);
  }
}

void frmHelp::paintEvent(QPaintEvent* event) {
  Screen::paintEvent(event);
  QPainter painter(this);
  for (const char16_t* panel : {u"panelPages", u"panelText"}) {
    PaintPanel(painter, layout().rect(panel), layout().bag(panel));
  }
}

void frmHelp::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_F1) {
    services().navigator.CloseHelp();
  } else {
    Screen::keyPressEvent(event);
  }
}

bool frmHelp::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease && watched == txtPage_->viewport()) {
    scenes_->PlayAt(static_cast<QMouseEvent*>(event)->position().toPoint());
  }
  if (event->type() != QEvent::KeyPress) return Screen::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (IsEnter(key) && scenes_->PlayAgain()) return true;
  if (key != Qt::Key_Escape && key != Qt::Key_F1) return false;
  services().navigator.CloseHelp();
  return true;
}

}  // namespace kv
