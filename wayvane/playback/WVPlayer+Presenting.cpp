#include <wayvane/overlay/WVBubbleView.h>
#include <wayvane/overlay/WVCircleView.h>
#include <wayvane/overlay/WVSpotlightView.h>
#include <wayvane/platform/ViewRoles.h>
#include <wayvane/playback/BubblePlacement.h>
#include <wayvane/playback/ScrollIntoView.h>
#include <wayvane/playback/SimulatedHover.h>
#include <wayvane/playback/WVPlayer.h>
#include <wayvane/targeting/ViewProperties.h>

namespace wayvane {

namespace {

using platform::Platform;
using platform::Rect;
using platform::ViewHandle;

constexpr double kWaitAfterScrolling = 0.3;
constexpr double kRefreshAfterHover = 0.1;
constexpr double kLightDim = 0.15;
constexpr double kStrongDim = 0.4;

/// What of the view the step means: all of it, or a row or cell of a table. In the view's coordinates.
Rect localRectOfTarget(const WVTargetDescriptor& target, const platform::View& view)
{
  const auto* const table = target.tableRow >= 0 ? view.as<platform::TableView>() : nullptr;
  if (!table) return view.bounds();
  const int row = target.resolveRowInTable(*table);
  if (row < 0 || row >= table->numberOfRows()) return view.bounds();
  // Beside a cell that is a view of its own the whole row is what the user recognises.
  const int column = target.resolveColumnInTable(*table);
  const bool isDrawn = column >= 0 && !table->viewAtColumnRow(column, row, platform::MakeIfNecessary::No);
  return isDrawn ? table->frameOfCell(column, row) : table->rectOfRow(row);
}

Rect screenRectOfTarget(const WVTargetDescriptor& target, const platform::View& view)
{
  const Rect rect = view.convertRectToWindow(localRectOfTarget(target, view));
  const platform::WindowHandle window = view.window();
  return window && !rect.isEmpty() ? window->convertRectToScreen(rect) : Rect{};
}

void refreshAfterHover(Platform& platform, const ViewHandle& view)
{
  platform.mainQueue.after(kRefreshAfterHover, [view] {
    if (const platform::WindowHandle window = view->window()) window->displayIfNeeded();
  });
}

} // namespace

void WVPlayer::_showResolvedStep(const WVStep& step, const ViewHandle& view)
{
  const Ticket mine = ticket();
  _attachOverlayToWindow(view->window());
  if (!mine.playerIfSameStep()) return;
  scrollIntoView(view, step.target, Animated::Yes, [mine, step = std::make_shared<const WVStep>(step), view] {
    Platform* const platform = Platform::current();
    if (!platform || !mine.playerIfSameStep()) return;
    platform->mainQueue.after(kWaitAfterScrolling, [mine, step, view] {
      if (WVPlayer* const player = mine.playerIfSameStep()) player->_presentStep(*step, view);
    });
  });
}

void WVPlayer::_presentStep(const WVStep& step, const ViewHandle& viewBeforeScrolling)
{
  const Ticket mine = ticket();
  const ViewHandle found = step.target.resolveInWindow(nullptr);
  const ViewHandle view = found ? found : viewBeforeScrolling;
  const Rect screenRect = screenRectOfTarget(step.target, *view);
  if (!mine.playerIfSameStep()) return;
  if (screenRect.isEmpty()) {
    ++currentStepIndex_;
    _showCurrentStep();
    return;
  }
  // The second search may have found the target in another window.
  _attachOverlayToWindow(view->window());
  if (!mine.playerIfSameStep()) return;
  currentTargetScreenRect_ = screenRect;
  overlayWindow_->setTargetScreenRect(screenRect);
  simulateMouseEnter(view, screenRect);
  if (!mine.playerIfSameStep()) return;
  if (Platform* const platform = Platform::current()) refreshAfterHover(*platform, view);
  _showHighlightAndBubble(step, *view);
}

void WVPlayer::_showHighlightAndBubble(const WVStep& step, const platform::View& view)
{
  const Ticket mine = ticket();
  const Rect overlayRect = overlayWindow_->convertRectFromScreen(currentTargetScreenRect_);
  const double cornerRadius = wv_guideCornerRadius(view);
  const Rect highlightRect = overlayRect.grownBy(wv_guidePadding(view));
  const std::int64_t position =
      step.position != bubblePosition::kAutomatic
          ? step.position
          : automaticBubblePosition(overlayRect, overlayWindow_->frame().size(), kDefaultBubbleSize);
  const std::shared_ptr<WVBubbleView> bubble = _makeBubble(step, overlayRect, position);
  if (!mine.playerIfSameStep()) return;
  _highlight(step.highlightStyle, highlightRect, cornerRadius);
  _showBubble(bubble);
}

std::shared_ptr<WVBubbleView> WVPlayer::_makeBubble(const WVStep& step, const Rect& overlayRect,
                                                    std::int64_t position) const
{
  const auto bubble =
      std::make_shared<WVBubbleView>(Rect{0, 0, kDefaultBubbleSize.width, kDefaultBubbleSize.height});
  const platform::Size overlaySize = overlayWindow_->frame().size();
  bubble->setPointerDirection(position);
  bubble->setPointerTip(overlayRect.center());
  bubble->configureWithStep(step, currentStepIndex_, stepCount());
  bubble->setFrame(bubbleFrame(overlayRect, position, overlaySize, bubble->frame().size()));
  return bubble;
}

void WVPlayer::_highlight(std::int64_t style, const Rect& rect, double cornerRadius)
{
  spotlightView_->setHidden(false);
  spotlightView_->setCornerRadius(cornerRadius);
  if (style == 0) {
    spotlightView_->setDimAlpha(kLightDim);
    circleView_->setHidden(!showsCircle_);
    circleView_->setCornerRadius(cornerRadius);
    circleView_->showAroundRect(rect);
  } else if (style == 1 || style == 2) {
    spotlightView_->setDimAlpha(style == 1 ? kStrongDim : kLightDim);
    circleView_->setHidden(true);
    circleView_->stopAnimating();
  }
  spotlightView_->animateToRect(rect);
}

void WVPlayer::_showBubble(const std::shared_ptr<WVBubbleView>& bubble)
{
  currentBubble_ = bubble;
  bubble->appearAtPoint(bubble->frame().origin(), overlayWindow_->contentView(), {});
  overlayWindow_->showAccessibleAlert(bubble->accessibleAlert());
}

void WVPlayer::_hideBubbleImmediately()
{
  if (!currentBubble_) return;
  currentBubble_->setAlphaValue(0);
  if (overlayWindow_) overlayWindow_->hideAccessibleAlert();
}

} // namespace wayvane
