#include <wayvane/model/WVTargetDescriptor.h>
#include <wayvane/platform/Platform.h>
#include <wayvane/platform/ViewRoles.h>
#include <wayvane/targeting/TableResolution.h>
#include <wayvane/targeting/ViewFinding.h>

#include <algorithm>

namespace wayvane {

using platform::Platform;
using platform::SearchText;
using platform::View;
using platform::ViewHandle;
using platform::WindowHandle;

namespace {

std::optional<std::string> currentLanguage()
{
  const auto* desktop = Platform::current();
  return desktop ? desktop->localization.languageCode() : std::nullopt;
}

// "Base" stands before English here, unlike in texts that are shown: it is the language that the host's
// interface was written in, and so the likeliest to be on a button that was never translated.
std::optional<std::string> titleToLookFor(const WVTargetDescriptor& descriptor)
{
  if (!descriptor.titleLocalizations || descriptor.titleLocalizations->empty()) return descriptor.title;
  const auto& texts = *descriptor.titleLocalizations;
  for (const auto& language :
       {currentLanguage(), std::optional<std::string>("Base"), std::optional<std::string>("en")}) {
    const auto text = language ? texts.find(*language) : texts.end();
    if (text != texts.end()) return text->second;
  }
  return texts.begin()->second;
}

template <class Prepared>
std::optional<Prepared> prepared(const std::optional<std::string>& text)
{
  return text ? std::optional<Prepared>(std::in_place, *text) : std::nullopt;
}

struct Binding {
  std::string_view name;
  SearchText keyPath;
};

std::optional<Binding> bindingFromInfo(const std::optional<std::string>& info)
{
  const auto colon = info ? info->find(':') : std::string::npos;
  if (colon == std::string::npos) return std::nullopt;
  const std::string_view text = *info;
  return Binding{text.substr(0, colon), SearchText(text.substr(colon + 1))};
}

/// The items of a window's toolbar, asked for when a strategy first needs them: few do, and a toolkit may
/// have to look for them all over the window.
class Toolbar {
public:
  explicit Toolbar(const platform::Window& window)
    : window_(window)
  {}

  [[nodiscard]] const std::vector<platform::ToolbarItem>& items() const
  {
    if (!items_) items_ = window_.toolbarItems();
    return *items_;
  }

private:
  const platform::Window& window_;
  mutable std::optional<std::vector<platform::ToolbarItem>> items_;
};

/// One window, as the strategies look at it.
struct Place {
  const View& content;
  const Toolbar& toolbar;
};

/// The search for one descriptor. Everything that can be prepared is, once, so that the walks over the views
/// only compare.
class Search {
public:
  explicit Search(const WVTargetDescriptor& descriptor)
    : descriptor_(descriptor)
    , identifier_(prepared<SearchText>(descriptor.accessibilityIdentifier))
    , path_(prepared<HierarchyPath>(descriptor.hierarchyPath))
    , binding_(bindingFromInfo(descriptor.bindingInfo))
    , action_(prepared<SearchText>(descriptor.action))
    , title_(prepared<SearchText>(titleToLookFor(descriptor)))
    , class_(classNamed(descriptor.className ? *descriptor.className : std::string_view()))
  {}

  [[nodiscard]] ViewHandle inWindow(const platform::Window& window) const
  {
    const Toolbar toolbar(window);
    if (auto view = ofToolbarItem(toolbar)) return view;
    const auto content = window.contentView();
    if (!content) return nullptr;
    using Strategy = ViewHandle (Search::*)(const Place&) const;
    for (const Strategy strategy :
         {&Search::atTableRow, &Search::byIdentifier, &Search::byPath, &Search::byBinding, &Search::byAction,
          &Search::byTitle, &Search::byClass}) {
      if (auto view = (this->*strategy)({*content, toolbar})) return view;
    }
    return nullptr;
  }

private:
  [[nodiscard]] ViewHandle ofToolbarItem(const Toolbar& toolbar) const
  {
    if (!descriptor_.toolbarItemIdentifier) return nullptr;
    for (const auto& item : toolbar.items()) {
      if (item.view && item.itemIdentifier == descriptor_.toolbarItemIdentifier) return item.view;
    }
    return nullptr;
  }

  [[nodiscard]] ViewHandle atTableRow(const Place& place) const
  {
    return resolution::viewAtTableRow(descriptor_, place.content, path_ ? &*path_ : nullptr);
  }

  [[nodiscard]] ViewHandle byIdentifier(const Place& place) const
  {
    return identifier_ ? wv_viewWithAccessibilityIdentifier(place.content, *identifier_) : nullptr;
  }

  [[nodiscard]] ViewHandle byPath(const Place& place) const
  {
    return path_ ? path_->viewNear(place.content) : nullptr;
  }

  [[nodiscard]] ViewHandle byBinding(const Place& place) const
  {
    if (!binding_) return nullptr;
    return firstView(place.content, {platform::Feature::Bindings}, [this](const View& view) {
      return view.observedKeyPathEquals(binding_->name, binding_->keyPath);
    });
  }

  [[nodiscard]] ViewHandle byAction(const Place& place) const
  {
    if (!action_) return nullptr;
    if (class_) return byActionAndClass(place);
    if (auto view = wv_viewWithAction(place.content, *action_)) return view;
    for (const auto& item : place.toolbar.items()) {
      if (auto view = item.view ? wv_viewWithAction(*item.view, *action_) : nullptr) return view;
    }
    return nullptr;
  }

  // One walk serves both: the first of the class or, failing that, the first of all.
  [[nodiscard]] ViewHandle byActionAndClass(const Place& place) const
  {
    std::vector<ViewHandle> senders;
    collectViewsWithAction(place.content, *action_, senders);
    for (const auto& item : place.toolbar.items()) {
      if (item.view) collectViewsWithAction(*item.view, *action_, senders);
    }
    if (senders.empty()) return nullptr;
    const auto ofClass = std::find_if(senders.begin(), senders.end(), [this](const ViewHandle& view) {
      return view && view->isOfClass(*class_);
    });
    return ofClass != senders.end() ? *ofClass : senders.front();
  }

  [[nodiscard]] ViewHandle byTitle(const Place& place) const
  {
    return title_ ? wv_viewWithTitle(place.content, *title_) : nullptr;
  }

  [[nodiscard]] ViewHandle byClass(const Place& place) const
  {
    return class_ ? wv_viewOfClass(place.content, *class_) : nullptr;
  }

  const WVTargetDescriptor& descriptor_;
  std::optional<SearchText> identifier_;
  std::optional<HierarchyPath> path_;
  std::optional<Binding> binding_;
  std::optional<SearchText> action_;
  std::optional<SearchText> title_;
  std::optional<platform::ViewClass> class_;
};

bool isSearched(const WindowHandle& window)
{
  return window && !window->className().starts_with("WV") && window->contentView();
}

// Front to back, but those with the recorded title before all others.
std::vector<WindowHandle> windowsToSearch(const std::optional<std::string>& windowTitle)
{
  const auto* desktop = Platform::current();
  if (!desktop) return {};
  auto windows = desktop->application.orderedWindows();
  std::erase_if(windows, [](const WindowHandle& window) { return !isSearched(window); });
  if (windowTitle) {
    std::stable_partition(windows.begin(), windows.end(),
                          [&](const WindowHandle& window) { return window->title() == *windowTitle; });
  }
  return windows;
}

} // namespace

ViewHandle WVTargetDescriptor::resolveInWindow(const WindowHandle& window) const
{
  const Search search(*this);
  if (window) return search.inWindow(*window);
  for (const auto& candidate : windowsToSearch(windowTitle)) {
    if (auto view = search.inWindow(*candidate)) return view;
  }
  return nullptr;
}

platform::Rect WVTargetDescriptor::resolvedScreenRect() const
{
  const auto view = resolveInWindow(nullptr);
  const auto window = view ? view->window() : nullptr;
  if (!window) return {};
  const auto* table = tableRow >= 0 ? view->as<platform::TableView>() : nullptr;
  const auto rect = table ? resolution::rectInTable(*this, *table) : view->bounds();
  if (table && rect == platform::Rect{}) return {};
  const auto inWindow = view->convertRectToWindow(rect);
  // Hidden views have no place on the screen.
  return inWindow == platform::Rect{} ? inWindow : window->convertRectToScreen(inWindow);
}

} // namespace wayvane
