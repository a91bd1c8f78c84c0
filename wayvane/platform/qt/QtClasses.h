#pragma once

#include <wayvane/platform/View.h>

#include <QMetaObject>

#include <string_view>

namespace wayvane::qt {

/// Which of the binding's view classes stands for a widget.
enum class Family : std::uint8_t {
  Plain,
  Control,
  Button,
  PopUp,
  Segmented,
  Label,
  LineEdit,
  SpinBox,
  Text,
  Box,
  Table,
  ScrollArea,
};

/// What the binding knows about a widget class. Found once per class, so that a walk decides nothing anew.
struct ClassInfo {
  const QMetaObject* metaObject = nullptr;
  const QMetaObject* superClass = nullptr;
  Family family = Family::Plain;
  /// One bit per ViewKind.
  std::uint32_t kinds = 0;
  /// A widget of the framework itself.
  bool isOwn = false;
  /// Neither the toolkit's nor ours.
  bool isHost = false;
  /// The class declares properties whose names begin with "wv_".
  bool declaresHostProperties = false;

  [[nodiscard]] bool is(platform::ViewKind kind) const { return (kinds >> static_cast<unsigned>(kind)) & 1U; }
};

/// The entry of a class; it stays where it is. Main thread only.
[[nodiscard]] const ClassInfo& classInfo(const QMetaObject* metaObject);
/// The class of that name: one of the toolkit's widget classes, or one that a living widget has or inherits.
/// Null when there is none.
[[nodiscard]] const QMetaObject* classNamed(std::string_view name);

} // namespace wayvane::qt
