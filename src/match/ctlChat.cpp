#include "match/ctlChat.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include "presentation/PanelPainter.h"
#include "presentation/WidgetSkin.h"

namespace kv {
namespace {

constexpr int kMostCharacters = 400;  // of a line
constexpr int kTabWidth = 8;          // in characters
constexpr std::string_view kLineBreak = "\r\n";

}  // namespace

ctlChat::ctlChat(QWidget* parent, Layout& layout, MatchNetwork& network, Announcer& announcer)
    : QWidget(parent),
      network_(network),
      announcer_(announcer),
      look_(layout.bag(u"ctlChat")),
      txtNetwork_(new QPlainTextEdit(this)),
      txtSend_(new QLineEdit(this)) {
  layout.Place(u"ctlChat", *this);
  txtNetwork_->setReadOnly(true);
  txtNetwork_->setUndoRedoEnabled(false);
  txtNetwork_->setTabChangesFocus(true);
  txtNetwork_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  txtNetwork_->setFocusPolicy(Qt::StrongFocus);
  SkinWidget(*txtNetwork_, layout.bag(u"txtNetwork"));
  txtNetwork_->setTabStopDistance(kTabWidth * txtNetwork_->fontMetrics().averageCharWidth());
  layout.Place(u"txtNetwork", *txtNetwork_);
  txtSend_->setMaxLength(kMostCharacters);
  txtSend_->setPlaceholderText(look_.text(u"prompt"));
  SkinWidget(*txtSend_, layout.bag(u"txtSend"));
  layout.Place(u"txtSend", *txtSend_);
  connect(txtSend_, &QLineEdit::returnPressed, this, [this] { txtSend_KeyPress(); });
  network_.MirrorChat([this](const std::string& log) { txtNetwork_Change(log); });
}

void ctlChat::txtNetwork_Change(const std::string& log) {
  const bool grown = !shown_.empty() && log.starts_with(shown_ + std::string(kLineBreak));
  if (grown) {
    // A peer that talks without end must not have the whole log laid out anew for every line.
    const std::string added = log.substr(shown_.size() + kLineBreak.size());
    txtNetwork_->appendPlainText(QString::fromStdString(added));
    announcer_.Announce(added, Urgency::Polite);
  } else {
    txtNetwork_->setPlainText(QString::fromStdString(log));
  }
  shown_ = log;
  txtNetwork_->verticalScrollBar()->setValue(txtNetwork_->verticalScrollBar()->maximum());
}

void ctlChat::txtSend_KeyPress() {
  const std::string line = txtSend_->text().toStdString();
  if (line.empty()) return;
  txtSend_->clear();
  network_.SubmitChat(line);
}

void ctlChat::keyPressEvent(QKeyEvent* event) {
  // Nobody writes with a function key: the table can be heard while a line is begun.
  const bool functionKey = event->key() >= Qt::Key_F1 && event->key() <= Qt::Key_F12;
  event->setAccepted(!functionKey);
  if (functionKey) return;
  // What is typed here is no key of the screen around it. Escape takes the line back and leaves it; what it
  // means to the screen it means only from there, for nobody who is writing wants to leave the game.
  event->accept();
  if (event->key() != Qt::Key_Escape || !writing()) return;
  txtSend_->clear();
  parentWidget()->setFocus();
}

void ctlChat::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintPanel(painter, rect(), look_);
}

}  // namespace kv
