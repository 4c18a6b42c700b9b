// What every test of a skinned control needs: sounds that are recorded, a player, and a pointer.
#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QImage>
#include <QMouseEvent>
#include <QWidget>

#include "platform/Random.h"
#include "presentation/ButtonContext.h"
#include "presentation/Sounds.h"
#include "profile/clsPlayer.h"
#include "support/RecordingSound.h"
#include "support/ScriptedDialogs.h"

namespace kv::test {

class SkinFixture : public testing::Test {
 protected:
  SkinFixture() : sounds_(sound), context(sounds_), player(dialogs_, random_) {
    sounds_.InitEffects("program");
    context.setPlayer(&player);
  }

  /// A pointer event at a place in the widget; a released button is no longer among the held ones.
  static void Point(QWidget& widget, QEvent::Type type, QPoint at, Qt::MouseButton button = Qt::NoButton,
                    Qt::MouseButtons held = Qt::NoButton) {
    QMouseEvent event(type, at, widget.mapToGlobal(QPointF(at)), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
  }
  static void Hover(QWidget& widget, QPoint at) { Point(widget, QEvent::MouseMove, at); }
  static void Press(QWidget& widget, QPoint at) {
    Point(widget, QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton);
  }
  static void Release(QWidget& widget, QPoint at) {
    Point(widget, QEvent::MouseButtonRelease, at, Qt::LeftButton);
  }
  static void ClickOn(QWidget& widget, QPoint at) {
    Press(widget, at);
    Release(widget, at);
  }
  /// The painted colour at a place in the widget.
  static QColor Pixel(QWidget& widget, QPoint at) { return widget.grab().toImage().pixelColor(at); }

  RecordingSound sound;

 private:
  Sounds sounds_;
  ScriptedDialogs dialogs_;
  SeededRandom random_{1};

 protected:
  ButtonContext context;
  clsPlayer player;
};

}  // namespace kv::test
