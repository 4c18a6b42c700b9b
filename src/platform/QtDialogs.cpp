#include "platform/QtDialogs.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QPointer>

#include "platform/QtBoxFrame.h"
#include "platform/QtDialogSign.h"

namespace kv {
namespace {

struct BoxContent {
  const std::string& text;
  const std::string& title;
  DialogIcon icon;
};

/// The window that a box belongs to, also while another program has the focus: ours has one that is no box,
/// and the box that is open over it, if any.
QWidget* Owner() {
  if (QWidget* active = QApplication::activeWindow()) return active;
  if (QWidget* box = QApplication::activeModalWidget()) return box;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->windowType() == Qt::Window) return window;
  }
  return nullptr;
}

/// Who is busy with another program goes on typing there, and is told by the desktop that a box waits.
void Wait(QDialog& box) {
  if (QApplication::activeWindow() == nullptr) {
    box.setAttribute(Qt::WA_ShowWithoutActivating);
    if (QWidget* owner = box.parentWidget()) QApplication::alert(owner);
  }
}

// On the heap and watched: the window over which it opens may be destroyed while it is open, and takes the
// box with it.
int Run(const BoxContent& content, const std::string& interfaceStyle, QMessageBox::StandardButtons buttons,
        QMessageBox::StandardButton escape) {
  const QPointer<QMessageBox> box =
      new QMessageBox(QMessageBox::NoIcon, QString::fromStdString(content.title),
                      QString::fromStdString(content.text), buttons, Owner());
  if (content.icon != DialogIcon::None) {
    box->setIconPixmap(DialogSign(content.icon, box->devicePixelRatioF()));
  }
  box->setTextFormat(Qt::PlainText);
  box->setEscapeButton(escape);
  box->setDefaultButton(escape);  // a hasty Enter must not give anything up
  FrameBox(*box, interfaceStyle);
  Wait(*box);
  const int answer = box->exec();
  delete box;
  return answer;
}

}  // namespace

void QtDialogs::Message(const std::string& text, const std::string& title, DialogIcon icon) {
  const QtScheduler::Nested nested(scheduler_);
  Run({text, title, icon}, interfaceStyle_, QMessageBox::Ok, QMessageBox::Ok);
}

bool QtDialogs::AskYesNo(const std::string& text, const std::string& title, DialogIcon icon) {
  const QtScheduler::Nested nested(scheduler_);
  return Run({text, title, icon}, interfaceStyle_, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) ==
         QMessageBox::Yes;
}

std::optional<std::string> QtDialogs::AskText(const std::string& prompt, const std::string& title,
                                              const std::string& preset) {
  const QtScheduler::Nested nested(scheduler_);
  const QPointer<QInputDialog> box = new QInputDialog(Owner());
  box->setWindowTitle(QString::fromStdString(title));
  box->setLabelText(QString::fromStdString(prompt));
  box->setTextValue(QString::fromStdString(preset));
  FrameBox(*box, interfaceStyle_);
  Wait(*box);
  const bool accepted = box->exec() == QDialog::Accepted && box;
  std::optional<std::string> text;
  if (accepted) text = box->textValue().toStdString();
  delete box;
  return text;
}

}  // namespace kv
