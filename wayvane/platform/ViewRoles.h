#pragma once

#include <wayvane/platform/Image.h>
#include <wayvane/platform/ModelObject.h>
#include <wayvane/platform/View.h>

namespace wayvane::platform {

/// Anything that sends an action when it is used.
class Control {
public:
  static constexpr ViewKind kKind = ViewKind::Control;
  virtual ~Control() = default;
  /// The name of the action the control sends, for instance "save:"; nothing when it has none.
  [[nodiscard]] virtual std::optional<std::string> action() const = 0;
};

class Button {
public:
  static constexpr ViewKind kKind = ViewKind::Button;
  virtual ~Button() = default;
  /// Without keyboard mnemonics; empty when there is none.
  [[nodiscard]] virtual std::string title() const = 0;
  [[nodiscard]] virtual bool isImageOnly() const = 0;
  /// Null when it has none.
  [[nodiscard]] virtual ImageHandle image() const = 0;
};

class PopUpButton {
public:
  static constexpr ViewKind kKind = ViewKind::PopUpButton;
  virtual ~PopUpButton() = default;
  [[nodiscard]] virtual std::optional<std::string> titleOfSelectedItem() const = 0;
};

class SegmentedControl {
public:
  static constexpr ViewKind kKind = ViewKind::SegmentedControl;
  virtual ~SegmentedControl() = default;
  /// -1 when no segment is selected.
  [[nodiscard]] virtual int selectedSegment() const = 0;
  [[nodiscard]] virtual int segmentCount() const = 0;
  [[nodiscard]] virtual std::optional<std::string> labelForSegment(int segment) const = 0;
};

/// A one-line text: a label when it is not editable.
class TextField {
public:
  static constexpr ViewKind kKind = ViewKind::TextField;
  virtual ~TextField() = default;
  [[nodiscard]] virtual bool isEditable() const = 0;
  [[nodiscard]] virtual std::string stringValue() const = 0;
  [[nodiscard]] virtual std::optional<std::string> placeholderString() const = 0;
};

/// A multi-line text, or the shared editor that a text field borrows while it is edited.
class TextView {
public:
  static constexpr ViewKind kKind = ViewKind::TextView;
  virtual ~TextView() = default;
  [[nodiscard]] virtual bool isEditable() const = 0;
  [[nodiscard]] virtual std::string string() const = 0;
  [[nodiscard]] virtual bool isFieldEditor() const = 0;
  /// For a field editor, the text field being edited.
  [[nodiscard]] virtual ViewHandle delegate() const = 0;
};

class Box {
public:
  static constexpr ViewKind kKind = ViewKind::Box;
  virtual ~Box() = default;
  [[nodiscard]] virtual std::string title() const = 0;
};

class TableCellView {
public:
  static constexpr ViewKind kKind = ViewKind::TableCellView;
  virtual ~TableCellView() = default;
  /// The model object shown in the row; null when there is none.
  [[nodiscard]] virtual ModelObjectHandle objectValue() const = 0;
};

/// How a change of scroll position is made.
struct ScrollAnimation {
  /// In seconds, ease in and ease out; 0 jumps.
  double duration = 0;
  /// Called once on the main thread when the position is reached, or when it cannot be any more because the
  /// view is gone or another scroll replaced this one. Never called before the function returns for a
  /// duration above 0; called before it returns for 0. May be empty.
  std::function<void()> completion{};
};

class ScrollView {
public:
  static constexpr ViewKind kKind = ViewKind::ScrollView;
  virtual ~ScrollView() = default;
  /// The view that is scrolled; null when there is none. Its coordinates are the document's.
  [[nodiscard]] virtual ViewHandle documentView() const = 0;
  /// In document coordinates.
  [[nodiscard]] virtual Rect documentVisibleRect() const = 0;
  [[nodiscard]] virtual Rect documentBounds() const = 0;
  /// Puts the corner of the visible rectangle with the smallest coordinates at `origin`, document
  /// coordinates.
  virtual void scrollToOrigin(Point origin, ScrollAnimation animation) const = 0;
};

/// A cell that is drawn, not a view.
struct TableCell {
  bool isButton = false;
  /// The action the cell sends by itself.
  std::optional<std::string> action{};
  std::string stringValue{};
  std::optional<std::string> accessibilityLabel{};
  ImageHandle image{};
};

/// A child of a row as assistive technology sees it.
struct AccessibilityChild {
  std::optional<Rect> screenFrame{};
  std::optional<std::string> label{};
};

enum class MakeIfNecessary : bool { No, Yes };

/// A table, list or outline. Rows and columns count from 0 in the order shown. Rectangles and points are in
/// the table's own coordinates.
class TableView {
public:
  static constexpr ViewKind kKind = ViewKind::TableView;
  virtual ~TableView() = default;
  [[nodiscard]] virtual int numberOfRows() const = 0;
  [[nodiscard]] virtual int numberOfColumns() const = 0;
  /// Nothing for a column without identifier or out of range.
  [[nodiscard]] virtual std::optional<std::string> identifierOfColumn(int column) const = 0;
  /// The selector that a column's target binding names, for drawn cells.
  [[nodiscard]] virtual std::optional<std::string> targetBindingSelectorOfColumn(int column) const = 0;
  /// -1 outside.
  [[nodiscard]] virtual int rowAtPoint(Point point) const = 0;
  [[nodiscard]] virtual int columnAtPoint(Point point) const = 0;
  /// Null for drawn cells, and for cell views not made yet when none shall be made.
  [[nodiscard]] virtual ViewHandle viewAtColumnRow(int column, int row, MakeIfNecessary make) const = 0;
  [[nodiscard]] virtual ViewHandle rowViewAtRow(int row, MakeIfNecessary make) const = 0;
  /// The row or column that holds the descendant; -1 when none does.
  [[nodiscard]] virtual int rowForView(const View& view) const = 0;
  [[nodiscard]] virtual int columnForView(const View& view) const = 0;
  /// The zero rectangle out of range.
  [[nodiscard]] virtual Rect rectOfRow(int row) const = 0;
  [[nodiscard]] virtual Rect frameOfCell(int column, int row) const = 0;
  /// Nothing out of range.
  [[nodiscard]] virtual std::optional<TableCell> preparedCell(int column, int row) const = 0;
  /// The model object behind a drawn row where the toolkit knows it; null otherwise.
  [[nodiscard]] virtual ModelObjectHandle modelObjectOfRow(int column, int row) const = 0;
  /// Nothing when the toolkit has no accessibility element for the row.
  [[nodiscard]] virtual std::vector<AccessibilityChild> accessibilityChildrenOfRow(int row) const = 0;
  virtual void layoutIfNeeded() const = 0;
  virtual void scrollRowToVisible(int row, ScrollAnimation animation) const = 0;
};

} // namespace wayvane::platform
