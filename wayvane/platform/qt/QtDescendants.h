#pragma once

#include <wayvane/platform/qt/QtObjectWatch.h>

#include <QPointer>
#include <QWidget>

#include <cstdint>
#include <vector>

namespace wayvane::qt {

/// The objects of a class below a window, at any depth. Those of the window asked about last are remembered
/// until anything in the program gets or loses a child, since going through a large window takes long.
template <class Object>
[[nodiscard]] const std::vector<QPointer<Object>>& descendantsOf(const QWidget& window)
{
  static const QWidget* lastWindow = nullptr;
  static std::uint64_t lastGeneration = 0;
  static std::vector<QPointer<Object>> descendants;
  const std::uint64_t generation = childGeneration();
  if (lastWindow != &window || lastGeneration != generation || generation == 0) {
    lastWindow = &window;
    lastGeneration = generation;
    descendants.clear();
    for (Object* object : window.findChildren<Object*>())
      descendants.emplace_back(object);
  }
  return descendants;
}

} // namespace wayvane::qt
