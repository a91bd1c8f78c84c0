#pragma once

#include "User.h"

#include <wayvane/recording/WVRecorder.h>

#include <QMainWindow>
#include <QPointer>
#include <QPushButton>

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

namespace wayvane::qt::test {

/// A program with a main window and a second one, both with buttons, that is being recorded.
class RecordingTest : public testing::Test {
protected:
  RecordingTest();
  /// The log must hold nothing but the lines about clicks.
  ~RecordingTest() override;

  /// A button that notes its title in `acts` when it is clicked.
  QPushButton* addButton(QWidget* parent, const char* title, const QRect& place);
  static void show(QWidget& window);

  // The author

  /// Fills in the annotation and adds the step. False when none is asked for, or it does not go away.
  static bool annotate(const QString& title = QStringLiteral("Here"),
                       const QString& message = QStringLiteral("Press it."), Qt::Key end = Qt::Key_Return);

  /// Gives up the annotation.
  static bool cancel() { return annotate({}, {}, Qt::Key_Escape); }

  /// Waits longer than an annotation takes to come. False when one is open.
  static bool nothingIsAsked();

  // What was recorded

  /// Each step in words: `Class#identifier 'title' @Window: title | message`, with "-" for what is absent.
  [[nodiscard]] std::vector<std::string> steps() const;
  [[nodiscard]] std::string counter() const;
  /// Presses Done; true when the guide was handed over, and its file reads back as the same guide.
  testing::AssertionResult finishes();

  /// The lines that the recorder has logged since the last call.
  static std::vector<std::string> takeLog();

  struct Listener : WVRecorderDelegate {
    void recorderDidCaptureStep(std::uint64_t index) override { captured.push_back(index); }

    void recorderDidFinishWithGuide(const std::shared_ptr<WVGuide>& guide) override
    {
      finished.push_back(guide);
    }

    std::vector<std::uint64_t> captured;
    std::vector<std::shared_ptr<WVGuide>> finished;
  };

  QPointer<QMainWindow> window;
  QPointer<QWidget> second;
  QPointer<QPushButton> save;
  QPointer<QPushButton> apply;
  /// What the program did.
  std::vector<std::string> acts;
  std::shared_ptr<Listener> listener = std::make_shared<Listener>();
  std::unique_ptr<WVRecorder> recorder;
};

using testing::ElementsAre;
using testing::IsEmpty;

} // namespace wayvane::qt::test
