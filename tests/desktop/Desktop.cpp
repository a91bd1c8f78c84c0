#include "Desktop.h"

namespace wayvane::sim {

Desktop::Desktop()
  : panels_(std::make_shared<Panels>(*this))
  , platform_(std::make_unique<platform::Platform>(platform::Platform{
        application_, events_, *panels_, screen_, clock_, localization_, textMeasurer_, files_, log_}))
  , previous_(platform::Platform::current())
{
  platform::Platform::setCurrent(platform_.get());
}

Desktop::~Desktop()
{
  clock_.clear();
  for (const auto& window : std::vector(application_.made))
    window->close();
  // More may be buried meanwhile.
  for (std::size_t i = 0; i < buried_.size(); ++i) // NOLINT(modernize-loop-convert)
    std::shared_ptr<View>(buried_[i])->destroy();
  clock_.clear();
  if (platform::Platform::current() == platform_.get()) platform::Platform::setCurrent(previous_);
}

void Desktop::setBundle(Text identifier, Text shortVersion, Text version)
{
  application_.identifier = std::move(identifier);
  application_.versionShown = std::move(shortVersion);
  application_.version = std::move(version);
}

const ClassInfo& Desktop::defineClass(const std::string& name, std::string_view parent)
{
  return application_.classes.define(name, parent);
}

void Desktop::setScreen(const platform::Rect& frame, const platform::Rect& visibleFrame)
{
  screen_.frame = frame;
  screen_.visible = visibleFrame;
}

void Desktop::removeScreen()
{
  screen_.frame.reset();
  screen_.visible.reset();
}

void Desktop::setFrameworkTable(const std::string& language, platform::StringTable texts)
{
  localization_.setFrameworkTable(language, std::move(texts));
}

void Desktop::setHostTable(const std::string& table, const std::string& language, platform::StringTable texts)
{
  localization_.setHostTable(table, language, std::move(texts));
}

void Desktop::setHostLocalizations(std::vector<std::string> languages)
{
  localization_.setHostLocalizations(std::move(languages));
}

Menu& Desktop::makeContextMenu()
{
  contextMenus_.push_back(std::make_shared<Menu>());
  return *contextMenus_.back();
}

void Desktop::chooseItem(platform::MenuItem& item)
{
  auto* chosen = dynamic_cast<MenuItem*>(&item);
  if (!chosen) return reportFailure("an entry of another desktop cannot be chosen");
  const auto handle = chosen->shared_from_this();
  if (const Text action = chosen->action(); action && !chosen->isOurs()) recordAction(*action, nullptr);
  chosen->choose();
  events_.menuCommandChosen(handle);
}

OverlayPanel* Desktop::overlay() const
{
  return panels_->overlays.empty() ? nullptr : panels_->overlays.back();
}

Popover* Desktop::popover() const
{
  const auto& all = panels_->popovers;
  const auto shown = std::find_if(all.rbegin(), all.rend(), [](const Popover* p) { return p->isShown(); });
  return shown == all.rend() ? nullptr : *shown;
}

void Desktop::answerNextAlert(int button, Text fieldText)
{
  panels_->answers.push_back({button, std::move(fieldText)});
}

void Desktop::setOnAlert(std::function<void(const platform::AlertSpec&)> handler)
{
  panels_->onAlert = std::move(handler);
}

} // namespace wayvane::sim
