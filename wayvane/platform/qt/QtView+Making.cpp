#include <wayvane/platform/qt/QtBoxView.h>
#include <wayvane/platform/qt/QtButtonView.h>
#include <wayvane/platform/qt/QtHostProperties.h>
#include <wayvane/platform/qt/QtPopUpView.h>
#include <wayvane/platform/qt/QtScrollView.h>
#include <wayvane/platform/qt/QtSegmentedView.h>
#include <wayvane/platform/qt/QtTableView.h>
#include <wayvane/platform/qt/QtTextFieldView.h>
#include <wayvane/platform/qt/QtTextView.h>

#include <type_traits>

namespace wayvane::qt {

using platform::Feature;

namespace {

bool isMarkedOwn(const QWidget& widget)
{
  return widget.property("wv_own").toBool();
}

/// Calls `use` with the view class of the family, as a type.
template <class Use>
auto withViewClass(Family family, Use use)
{
  switch (family) {
  case Family::Control:
    return use(std::type_identity<QtControlView>{});
  case Family::Button:
    return use(std::type_identity<QtButtonView>{});
  case Family::PopUp:
    return use(std::type_identity<QtPopUpView>{});
  case Family::Segmented:
    return use(std::type_identity<QtSegmentedView>{});
  case Family::Label:
    return use(std::type_identity<QtLabelView>{});
  case Family::LineEdit:
    return use(std::type_identity<QtLineEditView>{});
  case Family::SpinBox:
    return use(std::type_identity<QtSpinBoxView>{});
  case Family::Text:
    return use(std::type_identity<QtTextView>{});
  case Family::Box:
    return use(std::type_identity<QtBoxView>{});
  case Family::Table:
    return use(std::type_identity<QtTableView>{});
  case Family::ScrollArea:
    return use(std::type_identity<QtScrollView>{});
  case Family::Plain:
    break;
  }
  return use(std::type_identity<QtView>{});
}

platform::Features featuresOf(const QWidget& widget, const ClassInfo& info, bool mayCarryProperties)
{
  platform::Features features = info.features;
  if (!widget.children().isEmpty()) features.add(Feature::Subviews);
  if (mayCarryProperties) features.add(Feature::HostAnswers);
  return features;
}

/// Passes over a widget of the framework's own.
bool visit(QWidget& widget, platform::FunctionRef<bool(const platform::View&)> visitor)
{
  const ClassInfo& info = classInfo(widget.metaObject());
  const bool mayCarryProperties = mayCarryHostProperties(widget);
  if (info.isOwn || (mayCarryProperties && isMarkedOwn(widget))) return true;
  return withViewClass(info.family, [&](auto type) {
    const typename decltype(type)::type view(widget, info, featuresOf(widget, info, mayCarryProperties));
    return visitor(view);
  });
}

} // namespace

bool QtView::visitSubviews(platform::FunctionRef<bool(const platform::View&)> visitor) const
{
  const QWidget* w = widget();
  if (!w) return true;
  const QObjectList& children = w->children();
  // What a visitor asks may be answered by the host, who may well add or remove children meanwhile.
  for (qsizetype i = 0; i < children.size(); ++i) { // NOLINT(modernize-loop-convert)
    if (!children[i]->isWidgetType()) continue;
    auto* child = static_cast<QWidget*>(children[i]);
    if (!child->isWindow() && !visit(*child, visitor)) return false;
  }
  return true;
}

platform::ViewHandle viewForWidget(QWidget* widget)
{
  if (!widget) return nullptr;
  watchHostProperties();
  const ClassInfo& info = classInfo(widget->metaObject());
  return withViewClass(info.family, [&](auto type) -> platform::ViewHandle {
    return std::make_shared<typename decltype(type)::type>(QtView::Following{}, *widget, info);
  });
}

QWidget* widgetOf(const platform::View& view)
{
  const auto* mine = dynamic_cast<const QtView*>(&view);
  return mine ? mine->widget() : nullptr;
}

bool isOwnWidget(const QWidget* widget)
{
  if (!widget) return false;
  return classInfo(widget->metaObject()).isOwn || (mayCarryHostProperties(*widget) && isMarkedOwn(*widget));
}

} // namespace wayvane::qt
