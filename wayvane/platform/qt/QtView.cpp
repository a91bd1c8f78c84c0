#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/ModelObjects.h>
#include <wayvane/platform/qt/QtBindings.h>
#include <wayvane/platform/qt/QtBuddies.h>
#include <wayvane/platform/qt/QtHostProperties.h>
#include <wayvane/platform/qt/QtHover.h>
#include <wayvane/platform/qt/QtItemViews.h>
#include <wayvane/platform/qt/QtView.h>
#include <wayvane/platform/qt/QtWindow.h>

#include <array>

namespace wayvane::qt {

using platform::HostProperty;
using platform::SearchText;
using platform::ViewKind;

QWidget* QtView::livingWidget() const
{
  forgetBuddies();
  QWidget* widget = followed_.data();
  // While it is being destroyed it is no longer of its class, and may not be asked what that class knows.
  return widget && widget->metaObject() == info_->metaObject ? widget : nullptr;
}

platform::ViewHandle QtView::handle() const
{
  return viewForWidget(widget());
}

bool QtView::isAlive() const
{
  return widget() != nullptr;
}

bool QtView::isSame(const platform::View& other) const
{
  const QWidget* mine = widget();
  return mine && mine == widgetOf(other);
}

// Class

std::string QtView::className() const
{
  const QWidget* w = widget();
  return w ? w->metaObject()->className() : std::string();
}

bool QtView::classNameEquals(std::string_view name) const
{
  const QWidget* w = widget();
  return w && name == w->metaObject()->className();
}

bool QtView::isOfClass(platform::ViewClass viewClass) const
{
  return viewClass.identity && isAlive() && info_->isOrInherits(viewClass.identity);
}

platform::ViewClass QtView::viewClass() const
{
  const QWidget* w = widget();
  return {w ? w->metaObject() : nullptr};
}

bool QtView::isKind(ViewKind kind) const
{
  const QWidget* w = widget();
  if (!w) return false;
  return kind == ViewKind::TableCellView ? isIndexWidget(*w) : info_->is(kind);
}

bool QtView::isOfHostClass() const
{
  return isAlive() && info_->isHost;
}

const void* QtView::role(ViewKind kind) const
{
  if (kind != ViewKind::TableCellView) return info_->is(kind) ? roleOfKind(kind) : nullptr;
  return isKind(kind) ? static_cast<const platform::TableCellView*>(this) : nullptr;
}

const void* QtView::roleOfKind(ViewKind /*kind*/) const
{
  return nullptr;
}

bool QtView::isIndexWidget(const QWidget& widget) const
{
  const QAbstractItemView* view = itemViewOfCell(widget);
  return view && indexOfCell(*view, widget).isValid();
}

platform::ModelObjectHandle QtView::objectValue() const
{
  const QWidget* w = widget();
  const QAbstractItemView* view = w ? itemViewOfCell(*w) : nullptr;
  return view ? modelObjectOfIndex(indexOfCell(*view, *w)) : nullptr;
}

// Clues

std::optional<std::string> QtView::accessibilityIdentifier() const
{
  const QWidget* w = widget();
  if (!w) return std::nullopt;
  const QString name = w->objectName();
  return isGivenName(name) ? toOptional(name) : std::nullopt;
}

bool QtView::accessibilityIdentifierEquals(const SearchText& text) const
{
  const QWidget* w = widget();
  if (!w) return false;
  const QString name = w->objectName();
  return !name.isEmpty() && equals(name, text) && isGivenName(name);
}

std::optional<std::string> QtView::accessibilityLabel() const
{
  const QWidget* w = widget();
  if (!w) return std::nullopt;
  const QString name = w->accessibleName();
  return toOptional(name.isEmpty() ? derivedLabel(*w) : name);
}

bool QtView::isTitled(const SearchText& text) const
{
  const QWidget* w = widget();
  if (!w || text.utf8().empty()) return false;
  const QString name = w->accessibleName();
  return name.isEmpty() ? derivedLabelEquals(*w, text) : equals(name, text);
}

bool QtView::derivedLabelEquals(const QWidget& widget, const SearchText& text) const
{
  const QString label = derivedLabel(widget);
  return !label.isEmpty() && equals(label, text);
}

bool QtView::sendsAction(const SearchText& /*action*/) const
{
  return false;
}

QString QtView::derivedLabel(const QWidget& /*widget*/) const
{
  return {};
}

std::optional<std::string> QtView::toolTip() const
{
  const QWidget* w = widget();
  return w ? toOptional(withoutMarkup(ownToolTip(*w))) : std::nullopt;
}

QString QtView::ownToolTip(const QWidget& widget) const
{
  return widget.toolTip();
}

std::optional<std::string> QtView::observedKeyPathForBinding(std::string_view binding) const
{
  const QWidget* w = widget();
  return w ? keyPathOfBinding(*w, *info_, binding) : std::nullopt;
}

bool QtView::observedKeyPathEquals(std::string_view binding, const SearchText& keyPath) const
{
  const QWidget* w = widget();
  return w && mayHaveBindings(*w, *info_) && keyPathOfBinding(*w, *info_, binding) == keyPath.utf8();
}

// What a host says about its own views

namespace {

constexpr std::array kHostPropertyNames{"wv_guidePadding", "wv_guideCornerRadius", "wv_guideIdentifier",
                                        "wv_displayString", "wv_localizedTitle"};

} // namespace

std::optional<std::string> QtView::hostString(HostProperty property) const
{
  const QWidget* w = widget();
  if (!w || !mayHaveHostProperties(*w, *info_)) return std::nullopt;
  return toOptional(hostValue(*w, *info_, kHostPropertyNames[static_cast<std::size_t>(property)]).toString());
}

std::optional<double> QtView::hostNumber(HostProperty property) const
{
  const QWidget* w = widget();
  if (!w || !mayHaveHostProperties(*w, *info_)) return std::nullopt;
  bool isNumber = false;
  const QVariant value = hostValue(*w, *info_, kHostPropertyNames[static_cast<std::size_t>(property)]);
  const double number = value.toDouble(&isNumber);
  return isNumber ? std::optional(number) : std::nullopt;
}

// Hover

bool QtView::respondsToHover() const
{
  // Every widget may: a style or an event filter sees to it, and nothing tells which do.
  return isAlive();
}

void QtView::sendHover(const platform::HoverEvent& event) const
{
  if (QWidget* w = widget()) sendHoverTo(*w, event);
}

std::vector<platform::TrackingArea> QtView::trackingAreas() const
{
  QWidget* w = widget();
  if (!w) return {};
  platform::TrackingArea area;
  area.reportsEnteringAndLeaving = true;
  area.rect = bounds();
  area.ownerIsView = true;
  area.mouseEntered =
      area.mouseExited = [followed = QPointer<QWidget>(w)](const platform::HoverEvent& event) {
        if (followed) sendHoverTo(*followed, event);
      };
  return {area};
}

// Kinship

platform::ViewHandle QtView::superview() const
{
  const QWidget* w = widget();
  return w && !w->isWindow() ? viewForWidget(w->parentWidget()) : nullptr;
}

platform::WindowHandle QtView::window() const
{
  return windowForWidget(widget());
}

} // namespace wayvane::qt
