#include "platform/QtDialogs.h"

#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>

#include "platform/QtDialogSign.h"

namespace kv {
namespace {

// Dark and quiet in both interface styles, so that a box belongs to the screen it lies over.
constexpr const char* kLook =
    "QDialog { background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #172331, stop:0.3 #0c151f, stop:1 "
    "#070c12);"
    "  border: 2px solid #46596c; }"
    "QLabel { color: #e6ebf0; font-family: 'BankGothic Md BT'; font-size: 14px; }"
    "QLineEdit { background: #03080e; color: #ffffff; border: 1px solid #4a6274; padding: 4px; }"
    "QPushButton { background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #274056, stop:0.5 #152636,"
    "  stop:0.51 #0f1d2a, stop:1 #1b3145); color: #d6ebf8; border: 1px solid #56708a; padding: 6px 20px;"
    "  font-family: 'BankGothic Md BT'; font-size: 13px; min-width: 56px; }"
    "QPushButton:hover { background: #1a3448; color: #ffffff; }"
    "QPushButton:focus { border: 1px solid #00a9fb; color: #ffffff; }";

QMessageBox::Icon IconOf(DialogIcon icon) {
  switch (icon) {
    case DialogIcon::Information:
      return QMessageBox::Information;
    case DialogIcon::Exclamation:
      return QMessageBox::Warning;
    case DialogIcon::Critical:
      return QMessageBox::Critical;
    case DialogIcon::Question:
      return QMessageBox::Question;
    case DialogIcon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

// In place of the toolkit's own picture; the box still knows its kind, and tells it to those who listen.
void ShowSign(const QMessageBox& box, DialogIcon icon) {
  auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgboxex_icon_label"));
  if (label != nullptr && icon != DialogIcon::None) {
    label->setPixmap(DialogSign(icon, box.devicePixelRatioF()));
  }
}

// On the heap and watched: the window over which it opens may be destroyed while it is open, and takes the
// box with it.
int Run(const std::string& text, const std::string& title, DialogIcon icon,
        QMessageBox::StandardButtons buttons, QMessageBox::StandardButton escape) {
  const QPointer<QMessageBox> box =
      new QMessageBox(IconOf(icon), QString::fromStdString(title), QString::fromStdString(text), buttons,
                      QApplication::activeWindow());
  box->setStyleSheet(QString::fromLatin1(kLook));
  ShowSign(*box, icon);
  box->setTextFormat(Qt::PlainText);
  box->setEscapeButton(escape);
  box->setDefaultButton(escape);  // a hasty Enter must not give anything up
  const int answer = box->exec();
  delete box;
  return answer;
}

}  // namespace

void QtDialogs::Message(const std::string& text, const std::string& title, DialogIcon icon) {
  const QtScheduler::Nested nested(scheduler_);
  Run(text, title, icon, QMessageBox::Ok, QMessageBox::Ok);
}

bool QtDialogs::AskYesNo(const std::string& text, const std::string& title, DialogIcon icon) {
  const QtScheduler::Nested nested(scheduler_);
  return Run(text, title, icon, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

std::optional<std::string> QtDialogs::AskText(const std::string& prompt, const std::string& title,
                                              const std::string& preset) {
  const QtScheduler::Nested nested(scheduler_);
  const QPointer<QInputDialog> box = new QInputDialog(QApplication::activeWindow());
  box->setStyleSheet(QString::fromLatin1(kLook));
  box->setWindowTitle(QString::fromStdString(title));
  box->setLabelText(QString::fromStdString(prompt));
  box->setTextValue(QString::fromStdString(preset));
  const bool accepted = box->exec() == QDialog::Accepted && box;
  std::optional<std::string> text;
  if (accepted) text = box->textValue().toStdString();
  delete box;
  return text;
}

}  // namespace kv
