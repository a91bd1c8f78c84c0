#include "Application.h"

#include <algorithm>

namespace wayvane::sim {

using platform::WindowHandle;

std::vector<WindowHandle> Application::orderedWindows() const
{
  std::vector<WindowHandle> visible;
  for (const auto& window : order)
    if (window->isVisible()) visible.push_back(window);
  return visible;
}

std::vector<WindowHandle> Application::windows() const
{
  return {made.begin(), made.end()};
}

WindowHandle Application::mainWindow() const
{
  return main.lock();
}

WindowHandle Application::keyWindow() const
{
  return key.lock();
}

std::optional<platform::ViewClass> Application::classNamed(std::string_view name) const
{
  const ClassInfo* info = classes.find(name);
  return info ? std::optional(info->viewClass()) : std::nullopt;
}

bool Application::classIsKind(platform::ViewClass viewClass, platform::ViewKind kind) const
{
  const auto* info = static_cast<const ClassInfo*>(viewClass.identity);
  return info && classes.isKind(*info, kind);
}

std::shared_ptr<Window> Application::windowAt(platform::Point screenPoint) const
{
  for (const auto& window : order)
    if (window->isVisible() && !window->ignoresMouse() && window->frame().contains(screenPoint))
      return window;
  return nullptr;
}

void Application::bringToFront(const std::shared_ptr<Window>& window)
{
  std::erase(order, window);
  const auto place = std::find_if(order.begin(), order.end(),
                                  [&](const auto& other) { return other->level() <= window->level(); });
  order.insert(place, window);
}

void Application::putAbove(const std::shared_ptr<Window>& window, const WindowHandle& below)
{
  std::erase(order, window);
  const auto place =
      std::find_if(order.begin(), order.end(), [&](const auto& other) { return other.get() == below.get(); });
  order.insert(place, window);
}

void Application::forget(const Window& window)
{
  const auto isIt = [&](const auto& other) { return other.get() == &window; };
  std::erase_if(made, isIt);
  std::erase_if(order, isIt);
  const auto next = std::find_if(order.begin(), order.end(), [](const auto& other) {
    return other->isVisible() && !other->isUtilityPanel() && other->contentView();
  });
  const auto successor = next == order.end() ? nullptr : *next;
  if (const auto was = main.lock(); !was || was.get() == &window) main = successor;
  if (const auto was = key.lock(); !was || was.get() == &window) key = successor;
}

void Log::write(std::string_view line)
{
  std::string escaped;
  for (const char c : line) {
    const auto code = static_cast<unsigned char>(c);
    if (code >= 0x20 && code != 0x7f) {
      escaped += c;
      continue;
    }
    constexpr std::string_view kDigits = "0123456789abcdef";
    escaped += "\\u00";
    escaped += {kDigits[code >> 4U], kDigits[code & 15U]};
  }
  lines.push_back(std::move(escaped));
}

} // namespace wayvane::sim
