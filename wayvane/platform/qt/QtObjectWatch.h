#pragma once

#include <cstdint>

class QObject;
class QWidget;

/// What can only be known cheaply by watching the program's events. Main thread only.
namespace wayvane::qt {

namespace detail {

struct HostPropertyWatch {
  /// Whether all widgets that may carry such properties are known.
  bool isComplete = false;
  bool isEmpty = true;
};

// Read for every widget of every search.
extern HostPropertyWatch hostPropertyWatch;
// Goes on counting where an earlier watch ended, for programs that make a second application object.
extern std::uint64_t childGeneration;
void beginWatch();
[[nodiscard]] bool isKnownCarrier(const QWidget& widget);

} // namespace detail

/// Begins to note which widgets have dynamic properties for us ("wv_..."); does nothing when it is begun.
inline void watchHostProperties()
{
  if (!detail::hostPropertyWatch.isComplete) detail::beginWatch();
}

/// A number that changes whenever an object of the main thread gets or loses a child, so that what was found
/// among children can be kept until then. Nothing is known, and 0 is answered, without an application object.
[[nodiscard]] inline std::uint64_t childGeneration()
{
  watchHostProperties();
  return detail::hostPropertyWatch.isComplete ? detail::childGeneration : 0;
}

/// False when the widget certainly has no dynamic property for us. Free, as long as no widget has one.
[[nodiscard]] inline bool mayCarryHostProperties(const QWidget& widget)
{
  const detail::HostPropertyWatch& watch = detail::hostPropertyWatch;
  return !watch.isComplete || (!watch.isEmpty && detail::isKnownCarrier(widget));
}

} // namespace wayvane::qt
