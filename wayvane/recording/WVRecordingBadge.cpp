#include <wayvane/platform/Platform.h>
#include <wayvane/recording/WVRecordingBadge.h>

namespace wayvane {

using platform::Color;
using platform::Font;
using platform::Rect;
using platform::Size;

namespace {

constexpr double kHeight = 44;
constexpr double kUndoLeft = 96;
constexpr double kButtonGap = 6;
constexpr double kMargin = 10;
/// From the top of the free part of the screen down to the badge's bottom.
constexpr double kDropFromTop = 54;

platform::FloatingPanelSpec panelSpec()
{
  platform::FloatingPanelSpec spec;
  spec.size = {200, kHeight};
  spec.level = 3;
  spec.background = Color::controlBackground();
  spec.cornerRadius = 10;
  spec.hasShadow = true;
  spec.movable = true;
  spec.accessibilityTitle = "Recording";
  return spec;
}

platform::Animation pulse()
{
  platform::Animation animation;
  animation.keyPath = platform::KeyPath::Opacity;
  animation.from = 1.0;
  animation.to = 0.3;
  animation.duration = 0.8;
  animation.autoreverses = true;
  animation.repeatCount = platform::Animation::kForever;
  return animation;
}

void placeButton(platform::PanelButton& button, double left)
{
  const Size size = button.fittingSize();
  button.setFrame({left, (kHeight - size.height) / 2, size.width, size.height});
}

} // namespace

WVRecordingBadge::WVRecordingBadge()
  : panel_(platform::Platform::current()->panels.makeFloatingPanel(panelSpec()))
{
  addDot();
  addLabel();
  addButtons();
  placeInCorner();
}

void WVRecordingBadge::addDot()
{
  const auto dot = std::make_shared<platform::SurfaceView>(Rect{10, 16, 12, 12});
  dot->layer()->setCornerRadius(6);
  dot->layer()->setBackgroundColor(Color::systemRed());
  dot->layer()->addAnimation(pulse(), "pulse");
  panel_->contentView().addSubview(dot);
}

void WVRecordingBadge::addLabel()
{
  const Font font{Font::Face::MonospacedDigits, Font::Weight::Medium, 11};
  stepCountLabel_ = std::make_shared<platform::SurfaceLabel>(font, Color::label(), false);
  stepCountLabel_->setStringValue("0 steps");
  stepCountLabel_->setFrame({28, 14, 60, 16});
  panel_->contentView().addSubview(stepCountLabel_);
}

void WVRecordingBadge::addButtons()
{
  undoButton_ = &panel_->addButton({"Undo", true, [this] { undoClicked(); }});
  doneButton_ = &panel_->addButton({"Done", false, [this] { doneClicked(); }});
  placeButton(*undoButton_, kUndoLeft);
  placeButton(*doneButton_, undoButton_->frame().maxX() + kButtonGap);
}

void WVRecordingBadge::placeInCorner()
{
  const Rect free = platform::Platform::current()->screen.mainScreenVisibleFrame().value_or(Rect{});
  const double width = doneButton_->frame().maxX() + kMargin;
  panel_->setFrame({free.maxX() - width - kMargin, free.maxY() - kDropFromTop, width, kHeight});
}

void WVRecordingBadge::undoClicked() const
{
  if (const auto work = onUndo_) work();
}

void WVRecordingBadge::doneClicked() const
{
  if (const auto work = onDone_) work();
}

} // namespace wayvane
