#include "Classes.h"

#include "Failures.h"

#include <array>
#include <utility>

namespace wayvane::sim {

using platform::ViewKind;

namespace {

using NameAndParent = std::pair<const char*, const char*>;

/// Each after its parent.
constexpr std::array kAppKit{
    NameAndParent{"NSResponder", ""},
    NameAndParent{"NSView", "NSResponder"},
    NameAndParent{"NSControl", "NSView"},
    NameAndParent{"NSButton", "NSControl"},
    NameAndParent{"NSPopUpButton", "NSButton"},
    NameAndParent{"NSSegmentedControl", "NSControl"},
    NameAndParent{"NSSlider", "NSControl"},
    NameAndParent{"NSStepper", "NSControl"},
    NameAndParent{"NSSwitch", "NSControl"},
    NameAndParent{"NSImageView", "NSControl"},
    NameAndParent{"NSColorWell", "NSControl"},
    NameAndParent{"NSDatePicker", "NSControl"},
    NameAndParent{"NSLevelIndicator", "NSControl"},
    NameAndParent{"NSTextField", "NSControl"},
    NameAndParent{"NSTokenField", "NSTextField"},
    NameAndParent{"NSSearchField", "NSTextField"},
    NameAndParent{"NSSecureTextField", "NSTextField"},
    NameAndParent{"NSComboBox", "NSTextField"},
    NameAndParent{"NSTableView", "NSControl"},
    NameAndParent{"NSOutlineView", "NSTableView"},
    NameAndParent{"NSBrowser", "NSControl"},
    NameAndParent{"NSTableRowView", "NSView"},
    NameAndParent{"NSTableCellView", "NSView"},
    NameAndParent{"NSTableHeaderView", "NSView"},
    NameAndParent{"NSText", "NSView"},
    NameAndParent{"NSTextView", "NSText"},
    NameAndParent{"NSBox", "NSView"},
    NameAndParent{"NSScrollView", "NSView"},
    NameAndParent{"NSClipView", "NSView"},
    NameAndParent{"NSSplitView", "NSView"},
    NameAndParent{"NSStackView", "NSView"},
    NameAndParent{"NSGridView", "NSView"},
    NameAndParent{"NSTabView", "NSView"},
    NameAndParent{"NSCollectionView", "NSView"},
    NameAndParent{"NSProgressIndicator", "NSView"},
    NameAndParent{"NSVisualEffectView", "NSView"},
    NameAndParent{"NSThemeFrame", "NSView"},
    NameAndParent{"NSToolbarView", "NSView"},
};

const char* classNameOf(ViewKind kind)
{
  switch (kind) {
  case ViewKind::Control:
    return "NSControl";
  case ViewKind::Button:
    return "NSButton";
  case ViewKind::PopUpButton:
    return "NSPopUpButton";
  case ViewKind::SegmentedControl:
    return "NSSegmentedControl";
  case ViewKind::TextField:
    return "NSTextField";
  case ViewKind::TokenField:
    return "NSTokenField";
  case ViewKind::Text:
    return "NSText";
  case ViewKind::TextView:
    return "NSTextView";
  case ViewKind::Box:
    return "NSBox";
  case ViewKind::TableView:
    return "NSTableView";
  case ViewKind::TableCellView:
    return "NSTableCellView";
  case ViewKind::TableRowView:
    return "NSTableRowView";
  case ViewKind::ScrollView:
    return "NSScrollView";
  }
  return "";
}

} // namespace

ClassTable::ClassTable()
{
  for (const auto& [name, parent] : kAppKit)
    known_.emplace(name, std::make_unique<ClassInfo>(ClassInfo{name, find(parent)}));
}

const ClassInfo& ClassTable::define(const std::string& name, std::string_view parent)
{
  if (const ClassInfo* existing = find(name)) return *existing;
  const ClassInfo* above = find(parent);
  if (!above) reportFailure("no class " + std::string(parent) + " to derive " + name + " from");
  return *known_.emplace(name, std::make_unique<ClassInfo>(ClassInfo{name, above})).first->second;
}

const ClassInfo* ClassTable::find(std::string_view name) const
{
  const auto found = known_.find(name);
  return found == known_.end() ? nullptr : found->second.get();
}

const ClassInfo& ClassTable::forElement(const std::string& name, std::string_view base)
{
  const ClassInfo* above = find(base);
  if (const ClassInfo* known = find(name)) {
    if (!known->isOrInherits(*above)) reportFailure(name + " is no " + above->name);
    return *known;
  }
  auto& info = secret_[name + " : " + above->name];
  if (!info) info = std::make_unique<ClassInfo>(ClassInfo{name, above});
  return *info;
}

bool ClassTable::isKind(const ClassInfo& info, ViewKind kind) const
{
  return info.isOrInherits(*find(classNameOf(kind)));
}

} // namespace wayvane::sim
