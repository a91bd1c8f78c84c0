#pragma once

#include <wayvane/model/WVGuide.h>
#include <wayvane/playback/WVPlayer.h>

#include <QApplication>
#include <QMainWindow>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QTableWidget>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace wayvane::qt::test {

/// A program with a second window, a far-away button in a scroll area, and a table.
struct Host {
  Host();
  ~Host();
  QPointer<QMainWindow> main;
  QPointer<QWidget> second;
  QPointer<QPushButton> save;
  QPointer<QPushButton> far;
  QPointer<QPushButton> other;
  QPointer<QScrollArea> scroll;
  QPointer<QTableWidget> table;
  int saves = 0;
  int others = 0;
};

/// What the delegate heard, in words.
class Listener : public WVPlayerDelegate {
public:
  void playerWillShowStep(std::uint64_t index) override { heard.push_back("show " + std::to_string(index)); }

  void playerDidCompleteGuide(const std::string& /*identifier*/) override { heard.emplace_back("complete"); }

  void playerDidSkipGuide(const std::string& /*identifier*/, std::uint64_t atStep) override
  {
    heard.push_back("skip " + std::to_string(atStep));
  }

  std::vector<std::string> heard;
};

/// Plays guides over a live program by real presses.
class PlaybackTest : public testing::Test {
protected:
  PlaybackTest();
  ~PlaybackTest() override;

  static std::shared_ptr<WVGuide> guideFor(const std::vector<std::string>& identifiers);
  static bool waitUntil(const std::function<bool()>& condition, int milliseconds = 5000);

  /// Waits for the bubble of a step.
  bool waitForStep(std::uint64_t index);
  /// Presses in the middle of what is highlighted.
  void clickTarget();
  static void click(QWidget& widget);
  /// Presses the named button of the alert that comes up next.
  void answerNextAlert(const QString& button);
  [[nodiscard]] QWidget* overlay() const;

  std::unique_ptr<Host> host;
  std::unique_ptr<WVPlayer> player;
  std::shared_ptr<Listener> listener = std::make_shared<Listener>();
  QString alertText;
};

} // namespace wayvane::qt::test
