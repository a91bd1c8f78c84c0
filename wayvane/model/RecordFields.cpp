#include <wayvane/model/RecordFields.h>

namespace wayvane {

std::span<const RecordField<WVGuide>> fieldsOf(const WVGuide&)
{
  static constexpr std::array<RecordField<WVGuide>, 8> fields{{
      {"identifier", &WVGuide::identifier, ""},
      {"name", &WVGuide::name, ""},
      {"version", &WVGuide::version, "1"},
      {"steps", &WVGuide::steps},
      {"nameLocalizations", &WVGuide::nameLocalizations},
      {"appBundleIdentifier", &WVGuide::appBundleIdentifier},
      {"appBundleVersion", &WVGuide::appBundleVersion},
      {"metadata", &WVGuide::metadata, nullptr, true},
  }};
  return fields;
}

std::span<const RecordField<WVStep>> fieldsOf(const WVStep&)
{
  static constexpr std::array<RecordField<WVStep>, 10> fields{{
      {"target", &WVStep::target},
      {"title", &WVStep::title},
      {"titleLocalizations", &WVStep::titleLocalizations},
      {"message", &WVStep::message},
      {"messageLocalizations", &WVStep::messageLocalizations},
      {"action", &WVStep::action},
      {"position", &WVStep::position},
      {"delay", &WVStep::delay},
      {"optional", &WVStep::optional},
      {"highlightStyle", &WVStep::highlightStyle, nullptr, true},
  }};
  return fields;
}

std::span<const RecordField<WVTargetDescriptor>> fieldsOf(const WVTargetDescriptor&)
{
  using Target = WVTargetDescriptor;
  static constexpr std::array<RecordField<Target>, 19> fields{{
      {"accessibilityIdentifier", &Target::accessibilityIdentifier},
      {"menuPath", &Target::menuPath},
      {"menuAction", &Target::menuAction},
      {"className", &Target::className},
      {"hierarchyPath", &Target::hierarchyPath},
      {"title", &Target::title},
      {"titleLocalizations", &Target::titleLocalizations},
      {"action", &Target::action},
      {"toolTip", &Target::toolTip},
      {"toolTipLocalizations", &Target::toolTipLocalizations},
      {"toolbarItemIdentifier", &Target::toolbarItemIdentifier},
      {"bindingInfo", &Target::bindingInfo},
      {"tableRow", &Target::tableRow},
      {"tableColumn", &Target::tableColumn},
      {"tableColumnIdentifier", &Target::tableColumnIdentifier},
      {"tableIdentifier", &Target::tableIdentifier},
      {"cellIdentifier", &Target::cellIdentifier},
      {"objectIdentifier", &Target::objectIdentifier},
      {"windowTitle", &Target::windowTitle},
  }};
  return fields;
}

} // namespace wayvane
