#include <wayvane/platform/Platform.h>
#include <wayvane/platform/ViewRoles.h>
#include <wayvane/recording/HoverText.h>
#include <wayvane/recording/WVHoverHUD.h>

#include <algorithm>
#include <cmath>

namespace wayvane {

using platform::Point;
using platform::Rect;
using platform::Size;
using platform::ViewHandle;

namespace {

constexpr double kTextWidth = 304;
constexpr double kSideInset = 8;
constexpr double kTopInset = 6;
constexpr Size kSmallest{200, 30};

platform::FloatingPanelSpec panelSpec()
{
  platform::FloatingPanelSpec spec;
  spec.size = {320, 60};
  spec.level = 25;
  spec.background = platform::Color::white(0.1, 0.9);
  spec.cornerRadius = 6;
  spec.hasShadow = true;
  spec.ignoresMouse = true;
  spec.accessibilityTitle = "Element under the pointer";
  return spec;
}

/// Whole points: a label a fraction too narrow would break its lines elsewhere than they were measured.
Size sizeAround(const platform::AttributedText& text)
{
  const Size fitting = platform::Platform::current()->textMeasurer.sizeOfText(text, kTextWidth);
  return {std::max(kSmallest.width, std::ceil(fitting.width) + 2 * kSideInset),
          std::max(kSmallest.height, std::ceil(fitting.height) + 2 * kTopInset)};
}

bool areSameOrBothNull(const ViewHandle& a, const ViewHandle& b)
{
  return (!a && !b) || isSameView(a, b);
}

} // namespace

WVHoverHUD& WVHoverHUD::shared()
{
  static WVHoverHUD* const hud = new WVHoverHUD;
  return *hud;
}

WVHoverHUD::WVHoverHUD() = default;

WVHoverHUD::~WVHoverHUD() = default;

bool WVHoverHUD::Place::isSame(const Place& other) const
{
  return isSameView(view, other.view) && row == other.row && column == other.column &&
         areSameOrBothNull(inCell, other.inCell);
}

WVHoverHUD::Place WVHoverHUD::placeOf(const ViewHandle& view, Point locationInWindow)
{
  Place place;
  place.view = view;
  const auto* table = view->as<platform::TableView>();
  if (!table) return place;
  const Point inTable = view->convertPointFromWindow(locationInWindow);
  place.row = table->rowAtPoint(inTable);
  place.column = table->columnAtPoint(inTable);
  if (place.row < 0 || place.column < 0) return place;
  const ViewHandle cell = table->viewAtColumnRow(place.column, place.row, platform::MakeIfNecessary::No);
  if (cell) place.inCell = cell->hitTest(locationInWindow);
  return place;
}

bool WVHoverHUD::makePanelIfNecessary()
{
  platform::Platform* const platform = platform::Platform::current();
  if (!platform) return false;
  const platform::WindowHandle existing = window();
  if (existing && existing->isAlive()) return true;
  panel_ = platform->panels.makeFloatingPanel(panelSpec());
  const platform::Font font{platform::Font::Face::Monospaced, platform::Font::Weight::Regular, 10};
  infoLabel_ = std::make_shared<platform::SurfaceLabel>(font, platform::Color::white(1));
  panel_->contentView().addSubview(infoLabel_);
  shownPlace_.reset();
  return true;
}

void WVHoverHUD::updateForView(const ViewHandle& view, Point point)
{
  const bool isThere = view && view->isAlive();
  if (!isThere || !makePanelIfNecessary()) return orderOut();
  const platform::WindowHandle window = view->window();
  const Point locationInWindow = window ? window->convertPointFromScreen(point) : Point{};
  Place place = placeOf(view, locationInWindow);
  if (!shownPlace_ || !place.isSame(*shownPlace_)) {
    describe(view, locationInWindow);
    shownPlace_ = std::move(place);
  }
  moveTo(point);
}

void WVHoverHUD::describe(const ViewHandle& view, Point locationInWindow)
{
  lastDescriptor_ = WVTargetDescriptor::descriptorForView(*view, locationInWindow);
  lastView_ = view;
  infoLabel_->setStringValue(hoverTextFor(view->className(), *lastDescriptor_));
  size_ = sizeAround(infoLabel_->attributedStringValue());
  infoLabel_->setFrame({kSideInset, kTopInset, size_.width - 2 * kSideInset, size_.height - 2 * kTopInset});
}

void WVHoverHUD::moveTo(Point point)
{
  const auto screen = platform::Platform::current()->screen.mainScreenVisibleFrame();
  const Rect free = screen.value_or(Rect{});
  Rect frame{point.x + 16, point.y - size_.height - 16, size_.width, size_.height};
  if (frame.maxX() > free.maxX()) frame.x = point.x - size_.width - 16;
  if (frame.y < free.y) frame.y = point.y + 20;
  panel_->setFrame(frame);
  panel_->orderFront();
}

void WVHoverHUD::orderOut()
{
  shownPlace_.reset();
  if (panel_) panel_->orderOut();
}

bool WVHoverHUD::isVisible() const
{
  return panel_ && panel_->isVisible();
}

Rect WVHoverHUD::frame() const
{
  return panel_ ? panel_->frame() : Rect{};
}

platform::WindowHandle WVHoverHUD::window() const
{
  return panel_ ? panel_->window() : nullptr;
}

ViewHandle WVHoverHUD::lastView() const
{
  return lastView_ && lastView_->isAlive() ? lastView_ : nullptr;
}

} // namespace wayvane
