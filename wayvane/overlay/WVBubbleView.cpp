#include <wayvane/model/WVLocalization.h>
#include <wayvane/overlay/WVBubbleView.h>
#include <wayvane/platform/Format.h>
#include <wayvane/platform/Platform.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace wayvane {

using namespace platform;

namespace {

constexpr double kPointerDepth = 10;
constexpr double kMargin = 14;
constexpr double kFirstLine = 12;
constexpr double kCounterHeight = 14;
constexpr double kLeastHeight = 50;

/// Where the texts go, and what the pointer takes of it: the origin of the first line and the column's width.
Rect textColumn(std::int64_t pointerDirection)
{
  switch (pointerDirection) {
  case WVBubblePointerUp:
    return {kMargin, kFirstLine + kPointerDepth, 252, 0};
  case WVBubblePointerRight:
    return {kMargin, kFirstLine, 242, 0};
  case WVBubblePointerLeft:
    return {kMargin + kPointerDepth, kFirstLine, 242, 0};
  default:
    return {kMargin, kFirstLine, 252, 0};
  }
}

} // namespace

WVBubbleView::WVBubbleView(const Rect& frame)
  : SurfaceView(frame, true)
  , bodyLayer_(Layer::make(LayerKind::Shape))
  , titleLabel_(std::make_shared<SurfaceLabel>(Font::boldSystem(13)))
  , messageLabel_(std::make_shared<SurfaceLabel>(Font::system(12)))
  , stepLabel_(std::make_shared<SurfaceLabel>(Font::system(10), Color::secondaryLabel(), false))
{
  bodyLayer_->setGeometryFlipped(true);
  bodyLayer_->setFrame(bounds());
  bodyLayer_->setAutoresizingMask(kWidthSizable | kHeightSizable);
  bodyLayer_->setFillColor(Color::controlBackground());
  bodyLayer_->setStrokeColor(Color::separator());
  bodyLayer_->setLineWidth(0.5);
  bodyLayer_->setShadow(Shadow{Color::white(0, 0.3), {0, -2}, 12});
  layer()->addSublayer(bodyLayer_);
  for (const auto& label : {titleLabel_, messageLabel_, stepLabel_})
    addSubview(label);
}

void WVBubbleView::configureWithStep(const WVStep& step, std::size_t index, std::size_t total)
{
  Rect column = textColumn(pointerDirection_);
  showTitle(step, column);
  showMessage(step, column);
  showCounter(index, total, column);
  double height = column.y + kCounterHeight + 8;
  if (pointerDirection_ == WVBubblePointerDown) height += kPointerDepth;
  const Rect old = frame();
  setFrame({old.x, old.y, old.width, std::max(kLeastHeight, height)});
}

void WVBubbleView::showTitle(const WVStep& step, Rect& column)
{
  const std::string title = step.localizedTitle().value_or("");
  titleLabel_->setHidden(title.empty());
  if (title.empty()) return;
  titleLabel_->setStringValue(title);
  const double height = _heightForString(title, titleLabel_->font(), column.width);
  titleLabel_->setFrame({column.x, column.y, column.width, height});
  column.y += height + 4;
}

void WVBubbleView::showCounter(std::size_t index, std::size_t total, const Rect& column)
{
  const std::string pattern = wv_localizedWithDefault("WV.Step.Format", "%lu of %lu");
  stepLabel_->setStringValue(
      format(pattern, {static_cast<std::uint64_t>(index + 1), static_cast<std::uint64_t>(total)}));
  stepLabel_->setFrame({column.x, column.y, column.width, kCounterHeight});
}

double WVBubbleView::_heightForString(const std::string& string, const Font& font, double width) const
{
  if (string.empty()) return 0;
  AttributedText text;
  text.runs.push_back({string, font, Color::label(), nullptr, {}});
  return _heightForAttributedString(text, width);
}

double WVBubbleView::_heightForAttributedString(const AttributedText& string, double width) const
{
  const Platform* platform = Platform::current();
  if (string.isEmpty() || !platform) return 0;
  return std::ceil(platform->textMeasurer.sizeOfText(string, width).height);
}

void WVBubbleView::setFrame(const Rect& frame)
{
  SurfaceView::setFrame(frame);
  redrawBody();
}

void WVBubbleView::viewDidMoveToWindow()
{
  redrawBody();
}

AccessibleAlert WVBubbleView::accessibleAlert() const
{
  const std::string title = titleLabel_->isHidden() ? "" : titleLabel_->stringValue();
  return {title, spokenMessage_, stepLabel_->stringValue(), frame()};
}

} // namespace wayvane
