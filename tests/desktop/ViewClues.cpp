#include "Desktop.h"
#include "View.h"

namespace wayvane::sim {

using platform::Feature;
using platform::HostProperty;
using platform::HoverEvent;

void View::setIdentifier(Text identifier)
{
  if (identifier) addFeature(Feature::Identifier);
  identifier_ = std::move(identifier);
}

void View::setAccessibilityIdentifier(Text identifier)
{
  if (identifier) addFeature(Feature::Identifier);
  accessibilityIdentifier_ = std::move(identifier);
}

void View::setAccessibilityLabel(Text label)
{
  if (label) addFeature(Feature::TitleOrLabel);
  accessibilityLabel_ = std::move(label);
}

void View::setBinding(const std::string& binding, const std::string& keyPath)
{
  addFeature(Feature::Bindings);
  bindings_[binding] = keyPath;
}

Text View::accessibilityIdentifier() const
{
  if (!alive_) return std::nullopt;
  return accessibilityIdentifier_ ? accessibilityIdentifier_ : identifier_;
}

bool View::accessibilityIdentifierEquals(const platform::SearchText& text) const
{
  const Text& seen = accessibilityIdentifier_ ? accessibilityIdentifier_ : identifier_;
  return alive_ && seen && *seen == text.utf8();
}

Text View::identifier() const
{
  return alive_ ? identifier_ : std::nullopt;
}

Text View::accessibilityLabel() const
{
  return alive_ ? accessibilityLabel_ : std::nullopt;
}

bool View::isTitled(const platform::SearchText& text) const
{
  return alive_ && accessibilityLabel_ && *accessibilityLabel_ == text.utf8();
}

bool View::sendsAction(const platform::SearchText&) const
{
  return false;
}

Text View::toolTip() const
{
  return alive_ ? toolTip_ : std::nullopt;
}

Text View::observedKeyPathForBinding(std::string_view binding) const
{
  const auto found = bindings_.find(binding);
  return alive_ && found != bindings_.end() ? Text(found->second) : std::nullopt;
}

bool View::observedKeyPathEquals(std::string_view binding, const platform::SearchText& keyPath) const
{
  const auto found = bindings_.find(binding);
  return alive_ && found != bindings_.end() && found->second == keyPath.utf8();
}

void View::setHostString(HostProperty property, std::string value)
{
  addFeature(Feature::HostAnswers);
  hostStrings_[property] = std::move(value);
}

void View::setHostNumber(HostProperty property, double value)
{
  addFeature(Feature::HostAnswers);
  hostNumbers_[property] = value;
}

Text View::hostString(HostProperty property) const
{
  const auto found = hostStrings_.find(property);
  return alive_ && found != hostStrings_.end() ? Text(found->second) : std::nullopt;
}

std::optional<double> View::hostNumber(HostProperty property) const
{
  const auto found = hostNumbers_.find(property);
  return alive_ && found != hostNumbers_.end() ? std::optional(found->second) : std::nullopt;
}

bool View::respondsToHover() const
{
  return alive_ && respondsToHover_;
}

void View::sendHover(const HoverEvent& event) const
{
  if (alive_ && respondsToHover_) hoverEvents_.push_back(event);
}

TrackingRecord& View::addTrackingArea(const TrackingAreaOptions& options)
{
  trackingAreas_.push_back(std::make_shared<TrackingRecord>(TrackingRecord{options, {}}));
  return *trackingAreas_.back();
}

std::vector<platform::TrackingArea> View::trackingAreas() const
{
  std::vector<platform::TrackingArea> areas;
  if (!alive_) return areas;
  for (const auto& record : trackingAreas_) {
    platform::TrackingArea area{record->options.reportsEnteringAndLeaving, record->options.rect,
                                record->options.ownerIsView, nullptr, nullptr};
    if (record->options.ownerListens) {
      area.mouseEntered =
          area.mouseExited = [record](const HoverEvent& event) { record->events.push_back(event); };
    }
    areas.push_back(std::move(area));
  }
  return areas;
}

} // namespace wayvane::sim
