#pragma once

#include <tests/desktop/Desktop.h>
#include <wayvane/recording/WVHoverHUD.h>
#include <wayvane/recording/WVRecorder.h>
#include <wayvane/recording/WVRecordingBadge.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace wayvane {

/// Writes down what it is told, and does what a test wants of it then.
class RecorderDelegateSpy : public WVRecorderDelegate {
public:
  void recorderDidCaptureStep(std::uint64_t stepIndex) override
  {
    calls.push_back("step " + std::to_string(stepIndex));
    if (onStep) onStep();
  }

  void recorderDidFinishWithGuide(const std::shared_ptr<WVGuide>& guide) override
  {
    calls.push_back(guide ? "finished " + guide->name.value_or("") : "finished nothing");
    if (onFinish) onFinish();
  }

  std::vector<std::string> calls;
  std::function<void()> onStep;
  std::function<void()> onFinish;
};

/// A program with one window, 800 x 600 at (100, 100), one button in it, and a recorder of its own.
class RecorderFixture : public testing::Test {
protected:
  RecorderFixture() { recorder->setDelegate(delegate); }

  void start(const std::string& name = "Tour") { recorder->startRecordingGuide(name); }

  /// A click, and the time after which its popover is there.
  void clickAndWait(const sim::View& view)
  {
    desktop.clickView(view);
    desktop.advance(0.1);
  }

  /// Answers the popover that is up with "Add Step".
  void addStep(const std::string& title = {}, const std::string& message = {})
  {
    sim::Popover* const popover = desktop.popover();
    ASSERT_NE(popover, nullptr);
    popover->typeText("titleField", title);
    popover->typeText("msgField", message);
    popover->pressButton("Add Step");
  }

  void recordClick(const sim::View& view, const std::string& title = {}, const std::string& message = {})
  {
    clickAndWait(view);
    addStep(title, message);
  }

  [[nodiscard]] std::vector<WVStep>& steps() const { return recorder->guide()->steps; }

  [[nodiscard]] std::string badgeText() const { return recorder->badge()->stepCountLabel().stringValue(); }

  [[nodiscard]] sim::FloatingPanel& badgePanel() const
  {
    for (sim::FloatingPanel* panel : desktop.floatingPanels())
      if (panel->button("Done")) return *panel;
    throw std::logic_error("there is no badge");
  }

  sim::Desktop desktop;
  std::shared_ptr<sim::Window> window = desktop.addWindow("Main", {100, 100, 800, 600});
  sim::Button& save = window->content().addButton(
      {.title = "Save", .frame = {300, 300, 80, 24}, .action = "save:", .identifier = "save"});
  std::shared_ptr<RecorderDelegateSpy> delegate = std::make_shared<RecorderDelegateSpy>();
  std::unique_ptr<WVRecorder> recorder = std::make_unique<WVRecorder>();
};

} // namespace wayvane
