#include "DemoPerson.h"

#include <QAbstractButton>
#include <QApplication>
#include <QListWidget>
#include <QMessageBox>
#include <QPixmap>
#include <QTimer>

namespace kv {
namespace {

// Milliseconds.
constexpr int kPatience = 15000;
constexpr int kAfterAct = 120;

}  // namespace

DemoPerson::DemoPerson(Program& program, Scheduler& scheduler, std::string folder, std::string prefix)
    : program_(program), scheduler_(scheduler), folder_(std::move(folder)), prefix_(std::move(prefix)) {}

void DemoPerson::Wait(int milliseconds) {
  static_cast<void>(scheduler_.Pause(milliseconds, lifetime_));
}

void DemoPerson::WaitFor(const std::string& what, const std::function<bool()>& isSo) {
  for (int waited = 0; !isSo(); waited += kLookInterval) {
    if (waited >= kPatience) throw DemoFailure("still not so: " + what);
    Wait(kLookInterval);
  }
}

void DemoPerson::WaitForScreen(const char* name) {
  WaitFor(std::string(name) + " is open", [&] {
    return program_.screen() != nullptr && program_.screen()->objectName() == QString::fromUtf8(name) &&
           program_.screen()->isVisible();
  });
  Wait(kAfterAct);
}

void DemoPerson::Expect(bool isSo, const std::string& what) {
  if (!isSo) throw DemoFailure("not so: " + what);
}

bool DemoPerson::Sees(const std::string& name) {
  const QWidget* found = program_.screen()->findChild<QWidget*>(QString::fromStdString(name));
  return found != nullptr && found->isVisible();
}

void DemoPerson::Hover(const std::string& name) {
  Hand().MoveTo(Hand().CentreOf(Find(name)));
  Wait(kAfterAct);
}

void DemoPerson::Click(const QWidget& widget) {
  Hand().Click(widget);
  Wait(kAfterAct);
}

void DemoPerson::Click(const std::string& name) {
  WaitFor(name + " can be clicked", [&] { return Sees(name) && Find(name).isEnabled(); });
  Click(Find(name));
}

void DemoPerson::ClickAndSayYes(const std::string& name) {
  WaitFor(name + " can be clicked", [&] { return Sees(name) && Find(name).isEnabled(); });
  QTimer::singleShot(kAfterAct, [] {
    const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box != nullptr) box->button(QMessageBox::Yes)->click();
  });
  Click(Find(name));
}

void DemoPerson::ClickRow(const std::string& list, int row) {
  auto& lines = Find<QListWidget>(list);
  const QPoint line = lines.visualItemRect(lines.item(row)).center();
  const QPoint place = lines.viewport()->mapTo(program_.screen(), line);
  Hand().MoveTo(place);
  Hand().Press(place);
  Hand().Release(place);
  Wait(kAfterAct);
}

void DemoPerson::Key(Qt::Key key) {
  Hand().Key(key);
  Wait(kAfterAct);
}

void DemoPerson::Type(const std::string& text) {
  for (const char letter : text) QTest::keyClick(program_.screen()->window()->windowHandle(), letter);
  Wait(kAfterAct);
}

void DemoPerson::TakePicture(const std::string& what) {
  ++pictures_;
  std::string number = std::to_string(pictures_);
  number.insert(0, number.size() < 2 ? 1 : 0, '0');
  const std::string path = folder_ + "/" + prefix_ + number + "-" + what + ".png";
  Expect(program_.screen()->grab().save(QString::fromStdString(path)), path + " is written");
}

}  // namespace kv
