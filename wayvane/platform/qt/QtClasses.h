#pragma once

#include <wayvane/platform/View.h>

#include <QMetaObject>

#include <cstddef>
#include <cstdint>
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
  /// Whether an action of the program's may stand behind it.
  bool isToolButton = false;
  /// What its widgets may have; the class alone cannot tell of subviews and of dynamic properties.
  platform::Features features;

  [[nodiscard]] bool is(platform::ViewKind kind) const { return (kinds >> static_cast<unsigned>(kind)) & 1U; }

  /// Whether it is that class or a subclass. Remembers the answer, since a search asks for one class only.
  [[nodiscard]] bool isOrInherits(const void* other) const
  {
    if (other != askedClass_) findInAncestry(other);
    return isAskedClass_;
  }

private:
  void findInAncestry(const void* other) const;

  mutable const void* askedClass_ = nullptr;
  mutable bool isAskedClass_ = false;
};

namespace detail {

/// An open-addressed table from a class to what is known about it, never more than half full.
struct ClassTable {
  const ClassInfo* const* entries;
  std::size_t mask;

  [[nodiscard]] std::size_t place(const QMetaObject* metaObject) const
  {
    return (reinterpret_cast<std::uintptr_t>(metaObject) >> 4U) & mask;
  }
};

extern ClassTable classTable;
const ClassInfo& addClass(const QMetaObject* metaObject);

} // namespace detail

/// The entry of a class; it stays where it is. Nearly always found at the first look. Main thread only.
[[nodiscard]] inline const ClassInfo& classInfo(const QMetaObject* metaObject)
{
  const detail::ClassTable& table = detail::classTable;
  for (std::size_t i = table.place(metaObject); table.entries[i]; i = (i + 1) & table.mask) {
    const ClassInfo& info = *table.entries[i];
    // A plug-in that was unloaded may have left its address to another class.
    if (info.metaObject == metaObject && info.superClass == metaObject->superClass()) return info;
  }
  return detail::addClass(metaObject);
}

/// The class of that name: one of the toolkit's widget classes, or one that a living widget has or inherits.
/// Null when there is none.
[[nodiscard]] const QMetaObject* classNamed(std::string_view name);

} // namespace wayvane::qt
