#pragma once

#include <wayvane/platform/Platform.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QMainWindow>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace wayvane::qt::test {

/// The lines that reached the program's message handler since the last call, category "wayvane" and others.
QStringList takeLog();

/// Lets the event loop run until the condition holds; false when it does not within two seconds.
bool waitUntil(const std::function<bool()>& condition);

/// Lets the event loop run.
inline void spin(int milliseconds = 30)
{
  QTest::qWait(milliseconds);
}

/// Presses and releases the left button at a point of the widget, as the windowing system would.
void click(QWidget& widget, QPoint at);

inline void click(QWidget& widget)
{
  click(widget, widget.rect().center());
}

void doubleClick(QWidget& widget);

/// Leaves the picture among the test's artefacts, for people to look at.
void keepPicture(const QImage& picture, const QString& name);

/// A program with one window, and the Qt platform.
class ShellTest : public testing::Test {
protected:
  ShellTest();
  ~ShellTest() override;

  [[nodiscard]] static platform::Platform& wayvane() { return *platform::Platform::current(); }

  /// A handle to the window; the test may delete the window.
  [[nodiscard]] platform::WindowHandle handle() const;

  std::unique_ptr<QMainWindow> window;
  QPushButton* button = nullptr;
  int clicks = 0;
};

} // namespace wayvane::qt::test
