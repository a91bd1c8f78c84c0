#pragma once

#include <wayvane/platform/qt/QtControlView.h>
#include <wayvane/platform/qt/QtTableRows.h>

namespace wayvane::qt {

/// A QAbstractItemView: table, list or tree. It is also the scroll view of its own contents, so its
/// coordinates are those of the contents, downward from their corner, and its bounds are the part of them
/// that the viewport shows. Items that a delegate draws are drawn cells; a widget set on an item is its cell
/// view.
class QtTableView : public QtControlView, private platform::TableView, private platform::ScrollView {
public:
  using QtControlView::QtControlView;

  /// Its own name; without one, for a view set on an item of another, the place of that item: of several
  /// tables in a path only the first would be found again.
  [[nodiscard]] std::optional<std::string> accessibilityIdentifier() const override;
  [[nodiscard]] bool accessibilityIdentifierEquals(const platform::SearchText& text) const override;

  [[nodiscard]] platform::Rect bounds() const override;
  /// What is partly scrolled out of sight is cut off at the edge of the viewport.
  [[nodiscard]] platform::Rect convertRectToWindow(const platform::Rect& rect) const override;

protected:
  [[nodiscard]] QPoint originInWidget(const QWidget& widget) const override;
  [[nodiscard]] const QWidget* contents(const QWidget& widget) const override;
  [[nodiscard]] const void* roleOfKind(platform::ViewKind kind) const override;

  [[nodiscard]] int numberOfRows() const override;
  [[nodiscard]] int numberOfColumns() const override;
  /// From the view's property "wv_columnIdentifiers" (by logical column), else what the header says in
  /// Qt::UserRole, else the header's text.
  [[nodiscard]] std::optional<std::string> identifierOfColumn(int column) const override;

  [[nodiscard]] std::optional<std::string> targetBindingSelectorOfColumn(int /*column*/) const override
  {
    return std::nullopt;
  }

  [[nodiscard]] int rowAtPoint(platform::Point point) const override;
  [[nodiscard]] int columnAtPoint(platform::Point point) const override;
  /// Widgets on items are the host's to make; none is made here.
  [[nodiscard]] platform::ViewHandle viewAtColumnRow(int column, int row,
                                                     platform::MakeIfNecessary make) const override;

  [[nodiscard]] platform::ViewHandle rowViewAtRow(int /*row*/,
                                                  platform::MakeIfNecessary /*make*/) const override
  {
    return nullptr;
  }

  [[nodiscard]] int rowForView(const platform::View& view) const override;
  [[nodiscard]] int columnForView(const platform::View& view) const override;
  [[nodiscard]] platform::Rect rectOfRow(int row) const override;
  [[nodiscard]] platform::Rect frameOfCell(int column, int row) const override;
  [[nodiscard]] std::optional<platform::TableCell> preparedCell(int column, int row) const override;
  [[nodiscard]] platform::ModelObjectHandle modelObjectOfRow(int column, int row) const override;

  /// A drawn cell tells its accessible text itself.
  [[nodiscard]] std::vector<platform::AccessibilityChild>
  accessibilityChildrenOfRow(int /*row*/) const override
  {
    return {};
  }

  void layoutIfNeeded() const override;
  void scrollRowToVisible(int row, platform::ScrollAnimation animation) const override;

  [[nodiscard]] platform::ViewHandle documentView() const override;
  [[nodiscard]] platform::Rect documentVisibleRect() const override;
  [[nodiscard]] platform::Rect documentBounds() const override;
  void scrollToOrigin(platform::Point origin, platform::ScrollAnimation animation) const override;

private:
  [[nodiscard]] QAbstractItemView* itemView() const;
  /// Invalid out of range.
  [[nodiscard]] QModelIndex indexAt(int column, int row) const;
  /// Invalid outside.
  [[nodiscard]] QModelIndex indexAtPoint(platform::Point point) const;
  /// The item that holds the descendant; invalid when none does.
  [[nodiscard]] QModelIndex indexHolding(const platform::View& view) const;

  mutable QtTableRows rows_;
};

} // namespace wayvane::qt
