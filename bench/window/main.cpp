// What a program of this kind costs at the least: one window with a few colours in it, painted as the game
// paints, and the same sound device. bench/startup compares the game's start with this one's.
#include <QApplication>
#include <QPainter>
#include <QTimer>
#include <QWidget>

#include "platform/Folders.h"
#include "platform/QtScheduler.h"
#include "platform/SdlSoundDevice.h"

namespace {

constexpr QSize kSize(800, 600);
constexpr int kSoundDelay = 120;  // milliseconds, as in the game

class Window final : public QWidget {
 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QLinearGradient colours(0, 0, width(), 0);
    colours.setColorAt(0, Qt::darkBlue);
    colours.setColorAt(1, Qt::white);
    QPainter(this).fillRect(rect(), colours);
  }
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  kv::QtScheduler scheduler;
  kv::SdlSoundDevice sound(scheduler);
  Window window;
  window.setWindowFlag(Qt::FramelessWindowHint);
  window.resize(kSize);
  window.show();
  QTimer::singleShot(kSoundDelay, [&sound] {
    sound.PlayBuffer(sound.LoadBuffer(kv::ProgramFolder() + "/Sounds/click.wav"));
  });
  return QApplication::exec();
}
