#include <wayvane/platform/Platform.h>
#include <wayvane/targeting/HierarchyPath.h>

#include <algorithm>
#include <charconv>

namespace wayvane {

using platform::View;
using platform::ViewHandle;

namespace {

constexpr std::int64_t kUnreadable = -1;

std::int64_t indexFromText(std::string_view digits)
{
  std::int64_t index = kUnreadable;
  const auto* end = digits.data() + digits.size();
  const auto [rest, error] = std::from_chars(digits.data(), end, index);
  return error == std::errc{} && rest == end ? index : kUnreadable;
}

} // namespace

std::optional<platform::ViewClass> classNamed(std::string_view name)
{
  const auto* desktop = platform::Platform::current();
  return desktop && !name.empty() ? desktop->application.classNamed(name) : std::nullopt;
}

bool isNameOfKind(std::string_view name, platform::ViewKind kind)
{
  const auto viewClass = classNamed(name);
  return viewClass && platform::Platform::current()->application.classIsKind(*viewClass, kind);
}

HierarchyPath::HierarchyPath(std::string_view path)
{
  if (static_cast<std::size_t>(std::count(path.begin(), path.end(), '/')) >= kMostLevels) return;
  for (std::size_t start = 0; start <= path.size();) {
    const auto end = std::min(path.find('/', start), path.size());
    components_.push_back(parsed(path.substr(start, end - start)));
    start = end + 1;
  }
}

HierarchyPath::Component HierarchyPath::parsed(std::string_view text)
{
  const auto bracket = text.find('[');
  Component component{.className = text.substr(0, bracket), .viewClass = classNamed(text.substr(0, bracket))};
  if (bracket == std::string_view::npos) return component;
  // The last character is taken for the closing bracket, whatever it is.
  const auto digits = text.substr(bracket + 1);
  component.index = digits.empty() ? kUnreadable : indexFromText(digits.substr(0, digits.size() - 1));
  return component;
}

bool HierarchyPath::isMatch(const View& view, const Component& component)
{
  return component.viewClass ? view.isOfClass(*component.viewClass)
                             : view.classNameEquals(component.className);
}

ViewHandle HierarchyPath::subviewAt(const View& view, const Component& component)
{
  ViewHandle found;
  if (component.index < 0 || component.className.empty()) return found;
  auto toPass = component.index;
  view.visitSubviews([&](const View& subview) {
    if (!isMatch(subview, component) || toPass-- > 0) return true;
    found = subview.handle();
    return false;
  });
  return found;
}

ViewHandle HierarchyPath::viewAt(const View& root, Components components)
{
  if (components.empty()) return nullptr;
  auto view = subviewAt(root, components.front());
  for (const auto& component : components.subspan(1)) {
    if (!view) break;
    view = subviewAt(*view, component);
  }
  return view;
}

ViewHandle HierarchyPath::viewBelow(const View& root) const
{
  return viewAt(root, components_);
}

ViewHandle HierarchyPath::viewNear(const View& root) const
{
  for (Components rest = components_; !rest.empty(); rest = rest.subspan(1)) {
    if (auto view = viewAt(root, rest)) return view;
  }
  return nullptr;
}

std::optional<HierarchyPath> HierarchyPath::upToFirstTable() const
{
  const auto table = std::find_if(components_.begin(), components_.end(), [](const Component& component) {
    return isNameOfKind(component.className, platform::ViewKind::TableView);
  });
  if (table == components_.end()) return std::nullopt;
  return HierarchyPath(Components(components_.begin(), table + 1));
}

} // namespace wayvane
