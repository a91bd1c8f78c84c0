#include <wayvane/overlay/WVCircleView.h>
#include <wayvane/overlay/WVSpotlightView.h>
#include <wayvane/playback/PlayerLog.h>
#include <wayvane/playback/WVPlayer.h>

namespace wayvane {

namespace {

platform::WindowHandle windowForOverlay(const platform::Application& application)
{
  if (platform::WindowHandle window = application.mainWindow()) return window;
  if (platform::WindowHandle window = application.keyWindow()) return window;
  const std::vector<platform::WindowHandle> windows = application.windows();
  return windows.empty() ? nullptr : windows.front();
}

} // namespace

void WVPlayer::_setupOverlay()
{
  platform::Platform& platform = *platform::Platform::current();
  const Ticket mine = ticket();
  const platform::WindowHandle window = windowForOverlay(platform.application);
  logPlayer("WVPlayer: setupOverlay targetWindow=%@ frame=%@",
            {window ? std::optional(window->title()) : std::nullopt,
             platform::stringFromRect(window ? window->frame() : platform::Rect{})});
  const auto overlay = std::make_shared<WVPlayerWindow>(platform, window);
  if (!mine.playerIfSameRun()) return;
  overlayWindow_ = overlay;
  _makeOverlayViews(*overlay);
  overlay->orderFront();
  logPlayer("WVPlayer: overlay visible=%d frame=%@",
            {overlay->isVisible(), platform::stringFromRect(overlay->frame())});
  if (mine.playerIfSameRun()) _observeEvents(platform.events);
}

void WVPlayer::_makeOverlayViews(const WVPlayerWindow& overlay)
{
  platform::SurfaceView& content = overlay.contentView();
  logPlayer("WVPlayer: overlay bounds=%@", {platform::stringFromRect(content.bounds())});
  spotlightView_ = std::make_shared<WVSpotlightView>(content.bounds());
  spotlightView_->setAutoresizingMask(platform::kWidthSizable | platform::kHeightSizable);
  content.addSubview(spotlightView_);
  circleView_ = std::make_shared<WVCircleView>(platform::Rect{});
  circleView_->setCircleColor(circleColor_);
  content.addSubview(circleView_);
}

void WVPlayer::_observeEvents(platform::Events& events)
{
  eventMonitor_ = events.addLocalMonitor(
      platform::MouseEvent::Type::LeftMouseDown, [mine = ticket()](const platform::MouseEvent& event) {
        WVPlayer* const player = mine.playerIfAlive();
        return player ? player->_handleClickEvent(event) : platform::EventVerdict::Swallow;
      });
  resizeObserver_ = events.observeWindowResize([mine = ticket()](const platform::WindowHandle& window) {
    if (WVPlayer* const player = mine.playerIfAlive()) player->_followResize(window);
  });
}

void WVPlayer::_followResize(const platform::WindowHandle& window)
{
  if (!overlayWindow_ || menuStepActive_) return;
  if (isSameWindow(window, overlayWindow_->parentWindow())) overlayWindow_->setFrame(window->frame());
}

void WVPlayer::_attachOverlayToWindow(const platform::WindowHandle& window)
{
  if (!window || !overlayWindow_ || isSameWindow(overlayWindow_->parentWindow(), window)) return;
  const std::shared_ptr<WVPlayerWindow> overlay = overlayWindow_;
  overlay->moveToWindow(window);
}

} // namespace wayvane
