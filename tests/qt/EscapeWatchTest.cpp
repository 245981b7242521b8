// Input that comes while the program works: Escape counts, the rest waits.
#include "qt/EscapeWatch.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>

namespace quorvel::qt {
namespace {

void Post(QWidget& target, QEvent::Type type, Qt::MouseButtons buttons) {
  const QPointF at = target.rect().center();
  QCoreApplication::postEvent(
      &target, new QMouseEvent(type, at, target.mapToGlobal(at), Qt::LeftButton, buttons, Qt::NoModifier));
}

void PostKey(QWidget& target, int key) {
  QCoreApplication::postEvent(&target, new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier));
}

TEST(EscapeWatch, TakesEscapeAndKeepsTheRest) {
  QWidget window;
  QPushButton button("Stop", &window);
  int clicks = 0;
  QObject::connect(&button, &QPushButton::clicked, &window, [&] { ++clicks; });
  window.show();
  QApplication::processEvents();

  Post(button, QEvent::MouseButtonPress, Qt::LeftButton);
  Post(button, QEvent::MouseButtonRelease, Qt::NoButton);
  PostKey(button, Qt::Key_Space);
  QCoreApplication::postEvent(&window, new QCloseEvent);
  EXPECT_FALSE(EscapeWatch().IsPressed());
  EXPECT_EQ(clicks, 0);
  EXPECT_TRUE(window.isVisible());
  QApplication::processEvents();
  EXPECT_EQ(clicks, 1) << "handled once, when events are handled again";
  EXPECT_FALSE(window.isVisible());

  window.show();
  PostKey(window, Qt::Key_Escape);
  EscapeWatch watch;
  EXPECT_TRUE(watch.IsPressed());
  EXPECT_FALSE(watch.IsPressed());
}

}  // namespace
}  // namespace quorvel::qt
