#include "Desktop.h"

namespace wayvane::sim {

const ClassInfo& View::classFor(const std::string& name, std::string_view base) const
{
  return desktop_->application().classes.forElement(name, base);
}

View& View::addView(const std::string& className, const ViewOptions& options)
{
  View& view =
      adopt(std::make_shared<View>(*desktop_, classFor(className, "NSView"), options.frame, options.flipped));
  view.applyClues(options);
  view.setHidden(options.hidden);
  return view;
}

Button& View::addButton(const ButtonOptions& options)
{
  return adopt(std::make_shared<Button>(*desktop_, classFor(options.className, "NSButton"), options));
}

PopUpButton& View::addPopUpButton(const PopUpButtonOptions& options)
{
  return adopt(
      std::make_shared<PopUpButton>(*desktop_, classFor(options.className, "NSPopUpButton"), options));
}

SegmentedControl& View::addSegmentedControl(const SegmentedControlOptions& options)
{
  const ClassInfo& info = classFor(options.className, "NSSegmentedControl");
  return adopt(std::make_shared<SegmentedControl>(*desktop_, info, options));
}

TextField& View::addTextField(const TextFieldOptions& options)
{
  return adopt(std::make_shared<TextField>(*desktop_, classFor(options.className, "NSTextField"), options));
}

TokenField& View::addTokenField(TextFieldOptions options)
{
  if (options.className == "NSTextField") options.className = "NSTokenField";
  return adopt(std::make_shared<TokenField>(*desktop_, classFor(options.className, "NSTokenField"), options));
}

TextView& View::addTextView(const TextViewOptions& options)
{
  return adopt(std::make_shared<TextView>(*desktop_, classFor(options.className, "NSTextView"), options));
}

Box& View::addBox(const BoxOptions& options)
{
  return adopt(std::make_shared<Box>(*desktop_, classFor(options.className, "NSBox"), options));
}

ScrollView& View::addScrollView(const ScrollViewOptions& options)
{
  const ClassInfo& info = classFor(options.className, "NSScrollView");
  ScrollView& view = adopt(std::make_shared<ScrollView>(*desktop_, info, options));
  view.build(options);
  return view;
}

TableView& View::addTableView(const TableViewOptions& options)
{
  return adopt(std::make_shared<TableView>(*desktop_, classFor(options.className, "NSTableView"), options));
}

} // namespace wayvane::sim
