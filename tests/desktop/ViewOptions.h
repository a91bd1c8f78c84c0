#pragma once

#include <wayvane/platform/ViewRoles.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace wayvane::sim {

using Text = std::optional<std::string>;

/// The part that all elements share. `identifier` is the interface builder's; it is also what accessibility
/// sees unless `accessibilityIdentifier` is given.
struct ViewOptions {
  platform::Rect frame{};
  Text identifier{};
  Text accessibilityIdentifier{};
  Text accessibilityLabel{};
  Text toolTip{};
  bool hidden = false;
  /// Own coordinates run downward from the top edge.
  bool flipped = false;
};

struct ButtonOptions {
  std::string title{};
  platform::Rect frame{0, 0, 80, 24};
  Text action{};
  Text identifier{};
  Text accessibilityIdentifier{};
  Text accessibilityLabel{};
  Text toolTip{};
  bool imageOnly = false;
  platform::ImageHandle image{};
  std::function<void()> onClick{};
  std::string className = "NSButton";
};

struct PopUpButtonOptions {
  std::vector<std::string> items{};
  /// An index in `items`; -1 for none.
  int selected = 0;
  std::string title{};
  platform::Rect frame{0, 0, 100, 24};
  Text action{};
  Text identifier{};
  Text accessibilityIdentifier{};
  Text accessibilityLabel{};
  Text toolTip{};
  std::string className = "NSPopUpButton";
};

struct SegmentedControlOptions {
  std::vector<Text> labels{};
  int selected = 0;
  platform::Rect frame{0, 0, 180, 24};
  Text action{};
  Text identifier{};
  Text accessibilityIdentifier{};
  Text accessibilityLabel{};
  Text toolTip{};
  std::string className = "NSSegmentedControl";
};

struct TextFieldOptions {
  std::string value{};
  bool editable = false;
  Text placeholder{};
  platform::Rect frame{0, 0, 120, 22};
  /// Observed key path of the binding "value".
  Text valueBinding{};
  Text action{};
  Text identifier{};
  Text accessibilityIdentifier{};
  Text accessibilityLabel{};
  Text toolTip{};
  std::string className = "NSTextField";
};

struct TextViewOptions {
  std::string value{};
  bool editable = true;
  bool fieldEditor = false;
  /// For a field editor, the text field being edited.
  platform::ViewHandle delegate{};
  platform::Rect frame{0, 0, 200, 100};
  Text valueBinding{};
  Text identifier{};
  Text accessibilityIdentifier{};
  Text accessibilityLabel{};
  Text toolTip{};
  std::string className = "NSTextView";
};

struct BoxOptions {
  std::string title{};
  platform::Rect frame{0, 0, 200, 100};
  Text identifier{};
  Text accessibilityIdentifier{};
  Text accessibilityLabel{};
  Text toolTip{};
  std::string className = "NSBox";
};

struct ScrollViewOptions {
  platform::Rect frame{0, 0, 200, 200};
  /// Of the document; it is flipped as documents are, unless told otherwise. Without size there is none.
  platform::Size documentSize{};
  bool flippedDocument = true;
  std::string documentClassName = "NSView";
  Text identifier{};
  std::string className = "NSScrollView";
};

struct TableColumn {
  Text identifier{};
  double width = 100;
  Text targetBindingSelector{};
};

struct TableViewOptions {
  platform::Rect frame{0, 0, 400, 200};
  std::vector<TableColumn> columns{};
  double rowHeight = 20;
  /// Rows hold views made when first asked for; otherwise cells are drawn.
  bool viewBased = true;
  Text action{};
  Text identifier{};
  Text accessibilityIdentifier{};
  Text accessibilityLabel{};
  Text toolTip{};
  std::string className = "NSTableView";
};

} // namespace wayvane::sim
