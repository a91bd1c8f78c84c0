#include "Roles.h"

#include "Desktop.h"

namespace wayvane::sim {

using platform::Feature;
using platform::ViewKind;

Text Control::action() const
{
  return isAlive() ? action_ : std::nullopt;
}

void Control::setAction(Text action)
{
  if (action) addFeature(Feature::Action);
  action_ = std::move(action);
}

bool Control::sendsAction(const platform::SearchText& action) const
{
  return isAlive() && action_ && *action_ == action.utf8();
}

const void* Control::role(ViewKind kind) const
{
  if (kind == ViewKind::Control && isAlive()) return static_cast<const platform::Control*>(this);
  return View::role(kind);
}

void Control::pressed()
{
  if (action_) desktop().recordAction(*action_, handle());
}

Button::Button(Desktop& desktop, const ClassInfo& info, const ButtonOptions& options)
  : Control(desktop, info, options.frame)
  , title_(options.title)
  , imageOnly_(options.imageOnly)
  , image_(options.image)
{
  addFeature(Feature::TitleOrLabel);
  applyClues(options);
  setAction(options.action);
  setOnClick(options.onClick);
}

void Button::setImage(platform::ImageHandle image, bool imageOnly)
{
  image_ = std::move(image);
  imageOnly_ = imageOnly;
}

std::string Button::title() const
{
  return isAlive() ? title_ : std::string();
}

bool Button::isTitled(const platform::SearchText& text) const
{
  return isAlive() && (title_ == text.utf8() || Control::isTitled(text));
}

bool Button::isImageOnly() const
{
  return isAlive() && imageOnly_;
}

platform::ImageHandle Button::image() const
{
  return isAlive() ? image_ : nullptr;
}

const void* Button::role(ViewKind kind) const
{
  if (kind == ViewKind::Button && isAlive()) return static_cast<const platform::Button*>(this);
  return Control::role(kind);
}

namespace {

ButtonOptions buttonPartOf(const PopUpButtonOptions& options)
{
  ButtonOptions button;
  button.title = options.title;
  button.frame = options.frame;
  button.action = options.action;
  button.identifier = options.identifier;
  button.accessibilityIdentifier = options.accessibilityIdentifier;
  button.accessibilityLabel = options.accessibilityLabel;
  button.toolTip = options.toolTip;
  return button;
}

} // namespace

PopUpButton::PopUpButton(Desktop& desktop, const ClassInfo& info, const PopUpButtonOptions& options)
  : Button(desktop, info, buttonPartOf(options))
  , items_(options.items)
  , selected_(options.selected)
{}

Text PopUpButton::titleOfSelectedItem() const
{
  const bool hasOne = selected_ >= 0 && static_cast<std::size_t>(selected_) < items_.size();
  return isAlive() && hasOne ? Text(items_[static_cast<std::size_t>(selected_)]) : std::nullopt;
}

const void* PopUpButton::role(ViewKind kind) const
{
  if (kind == ViewKind::PopUpButton && isAlive()) return static_cast<const platform::PopUpButton*>(this);
  return Button::role(kind);
}

SegmentedControl::SegmentedControl(Desktop& desktop, const ClassInfo& info,
                                   const SegmentedControlOptions& options)
  : Control(desktop, info, options.frame)
  , labels_(options.labels)
  , selected_(options.selected)
{
  applyClues(options);
  setAction(options.action);
}

int SegmentedControl::selectedSegment() const
{
  return isAlive() ? selected_ : -1;
}

int SegmentedControl::segmentCount() const
{
  return isAlive() ? static_cast<int>(labels_.size()) : 0;
}

Text SegmentedControl::labelForSegment(int segment) const
{
  return segment >= 0 && segment < segmentCount() ? labels_[static_cast<std::size_t>(segment)] : std::nullopt;
}

const void* SegmentedControl::role(ViewKind kind) const
{
  if (kind == ViewKind::SegmentedControl && isAlive())
    return static_cast<const platform::SegmentedControl*>(this);
  return Control::role(kind);
}

} // namespace wayvane::sim
