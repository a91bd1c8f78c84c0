#pragma once

#include <wayvane/platform/Application.h>
#include <wayvane/platform/Events.h>
#include <wayvane/platform/Files.h>
#include <wayvane/platform/Localization.h>
#include <wayvane/platform/Log.h>
#include <wayvane/platform/MainQueue.h>
#include <wayvane/platform/Panels.h>
#include <wayvane/platform/Screen.h>

namespace wayvane::platform {

/// The door to the windowing system: everything the framework asks of it goes through these references. The
/// binding owns what they refer to and keeps it until the process ends, or until `setCurrent(nullptr)`.
struct Platform {
  Application& application;
  Events& events;
  Panels& panels;
  Screen& screen;
  MainQueue& mainQueue;
  Localization& localization;
  TextMeasurer& textMeasurer;
  Files& files;
  Log& log;

  /// The platform the framework runs on; null before a binding installed one. Main thread only.
  [[nodiscard]] static Platform* current();
  static void setCurrent(Platform* platform);
};

} // namespace wayvane::platform
