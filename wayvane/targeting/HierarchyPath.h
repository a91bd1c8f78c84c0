#pragma once

#include <wayvane/platform/View.h>

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace wayvane {

/// The class of that name, when the program has one.
[[nodiscard]] std::optional<platform::ViewClass> classNamed(std::string_view name);
/// Whether the name is that of a class whose elements are of that kind.
[[nodiscard]] bool isNameOfKind(std::string_view name, platform::ViewKind kind);

/// A place in a view tree, topmost level first: "NSSplitView[0]/NSView[1]". Each component names a class and
/// the index among those subviews that are of the class or of a subclass; without an index it is 0. A class
/// that the program does not have is compared by its exact name. A component that cannot be read leads
/// nowhere, as does a path of more than `kMostLevels` components. Borrows the text. Main thread only.
class HierarchyPath {
public:
  static constexpr std::size_t kMostLevels = 10000;

  explicit HierarchyPath(std::string_view path);

  /// The view at that place below `root`; null when there is none.
  [[nodiscard]] platform::ViewHandle viewBelow(const platform::View& root) const;
  /// The same; when there is none, the place that is left without the first component, then without the first
  /// two, and so on: the levels above an element are what changes most.
  [[nodiscard]] platform::ViewHandle viewNear(const platform::View& root) const;
  /// The path down to and with its first table; nothing when it has none.
  [[nodiscard]] std::optional<HierarchyPath> upToFirstTable() const;

private:
  struct Component {
    std::string_view className;
    std::optional<platform::ViewClass> viewClass;
    /// -1 when it cannot be read.
    std::int64_t index = 0;
  };

  using Components = std::span<const Component>;

  explicit HierarchyPath(Components components)
    : components_(components.begin(), components.end())
  {}

  static Component parsed(std::string_view text);
  static bool isMatch(const platform::View& view, const Component& component);
  static platform::ViewHandle subviewAt(const platform::View& view, const Component& component);
  static platform::ViewHandle viewAt(const platform::View& root, Components components);

  std::vector<Component> components_;
};

} // namespace wayvane
