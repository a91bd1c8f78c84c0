#pragma once

#include <tests/desktop/Desktop.h>
#include <wayvane/manager/WVGuideManager.h>
#include <wayvane/playback/WVPlayer.h>
#include <wayvane/recording/WVRecorder.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

namespace wayvane {

/// The program org.example.Notes 1.9 with a Help menu of one entry, and a manager that is not installed yet.
class ManagerTest : public testing::Test {
protected:
  ManagerTest()
  {
    desktop_.setBundle("org.example.Notes", "1.9", "190");
    help_.item("Notes Help", "showHelp:");
  }

  /// Puts a guide file into the folder.
  void putGuide(const std::string& name, const std::optional<std::string>& bundle = {},
                const std::optional<std::string>& version = {})
  {
    WVGuide guide(name);
    guide.appBundleIdentifier = bundle;
    guide.appBundleVersion = version;
    guide.addStepWithAccessibilityIdentifier("save", "Save it");
    files_.put(pathOf(name), guide.jsonDataWithError().value());
  }

  [[nodiscard]] std::string pathOf(const std::string& name) const
  {
    return folder_ + "/" + name + ".wayvane";
  }

  [[nodiscard]] std::vector<std::string> namesOfGuides() const
  {
    std::vector<std::string> names;
    for (const GuideHandle& guide : manager_->savedGuides())
      names.push_back(guide->name.value_or("(none)"));
    return names;
  }

  /// A recorded guide of one step, as the recorder hands it over.
  [[nodiscard]] static GuideHandle recordedGuide()
  {
    auto guide = std::make_shared<WVGuide>("Untitled");
    guide->addStepWithAccessibilityIdentifier("save", "Save it");
    return guide;
  }

  const std::string folder_ = "/home/user/.local/share/org.example.Notes/Guides";
  sim::Desktop desktop_;
  sim::Files& files_ = desktop_.files();
  sim::Menu& help_ = desktop_.mainMenu().menu("Help");
  WVPlayer player_;
  WVRecorder recorder_;
  std::optional<WVGuideManager> manager_{std::in_place, player_, recorder_};
};

} // namespace wayvane
