#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/ModelObjects.h>
#include <wayvane/platform/qt/QtHostProperties.h>
#include <wayvane/platform/qt/QtImage.h>
#include <wayvane/platform/qt/QtItemViews.h>
#include <wayvane/platform/qt/QtTableView.h>

#include <QHeaderView>

#include <cmath>

namespace wayvane::qt {

using platform::Point;
using platform::ViewKind;

QAbstractItemView* QtTableView::itemView() const
{
  return static_cast<QAbstractItemView*>(widget());
}

const void* QtTableView::roleOfKind(ViewKind kind) const
{
  if (kind == ViewKind::TableView) return static_cast<const platform::TableView*>(this);
  if (kind == ViewKind::ScrollView) return static_cast<const platform::ScrollView*>(this);
  return QtControlView::roleOfKind(kind);
}

// Identifier

namespace {

/// "outer:2.0", by the rows of the model; with ",1" behind it for the second column.
std::string nameByItem(const QAbstractItemView& outer, const QModelIndex& index)
{
  std::string rows = index.column() > 0 ? "," + std::to_string(index.column()) : std::string();
  for (QModelIndex i = index; i.isValid() && i != outer.rootIndex(); i = i.parent())
    rows = (i.parent().isValid() && i.parent() != outer.rootIndex() ? "." : ":") + std::to_string(i.row()) +
           rows;
  const auto view = viewForWidget(const_cast<QAbstractItemView*>(&outer));
  return view->accessibilityIdentifier().value_or(view->className()) + rows;
}

} // namespace

std::optional<std::string> QtTableView::accessibilityIdentifier() const
{
  if (auto given = QtControlView::accessibilityIdentifier()) return given;
  const QAbstractItemView* view = itemView();
  const QAbstractItemView* outer = view ? itemViewOfCell(*view) : nullptr;
  const QModelIndex index = outer ? indexOfCell(*outer, *view) : QModelIndex();
  return index.isValid() ? std::optional(nameByItem(*outer, index)) : std::nullopt;
}

bool QtTableView::accessibilityIdentifierEquals(const platform::SearchText& text) const
{
  if (QtControlView::accessibilityIdentifierEquals(text)) return true;
  const QAbstractItemView* view = itemView();
  return view && itemViewOfCell(*view) && accessibilityIdentifier() == text.utf8();
}

// Rows and columns

int QtTableView::numberOfRows() const
{
  const QAbstractItemView* view = itemView();
  return view ? rows_.count(*view) : 0;
}

int QtTableView::numberOfColumns() const
{
  const QAbstractItemView* view = itemView();
  return view ? shownColumnCount(*view) : 0;
}

QModelIndex QtTableView::indexAt(int column, int row) const
{
  const QAbstractItemView* view = itemView();
  const int logical = view ? logicalColumn(*view, column) : -1;
  return logical < 0 ? QModelIndex() : rows_.indexOfRow(*view, row).siblingAtColumn(logical);
}

namespace {

QString headerText(const QAbstractItemModel& model, int column)
{
  for (const int role : {static_cast<int>(Qt::UserRole), static_cast<int>(Qt::DisplayRole)}) {
    // A model without headers answers with the column's number, which names nothing.
    const QVariant value = model.headerData(column, Qt::Horizontal, role);
    if (value.typeId() == QMetaType::QString && !value.toString().isEmpty()) return value.toString();
  }
  return {};
}

} // namespace

std::optional<std::string> QtTableView::identifierOfColumn(int column) const
{
  const QAbstractItemView* view = itemView();
  const int logical = view ? logicalColumn(*view, column) : -1;
  if (logical < 0) return std::nullopt;
  const QStringList said = hostValue(*view, info(), "wv_columnIdentifiers").toStringList();
  if (logical < said.size() && !said[logical].isEmpty()) return toUtf8(said[logical]);
  return toOptional(headerText(*view->model(), logical));
}

QModelIndex QtTableView::indexAtPoint(Point point) const
{
  const QAbstractItemView* view = itemView();
  if (!view || !view->model()) return {};
  const QPointF inViewport = toQPointF(point) - scrollOffset(*view);
  return view->indexAt(
      {static_cast<int>(std::floor(inViewport.x())), static_cast<int>(std::floor(inViewport.y()))});
}

int QtTableView::rowAtPoint(Point point) const
{
  const QModelIndex index = indexAtPoint(point);
  const QAbstractItemView* view = itemView();
  return view && index.isValid() ? rows_.rowOfIndex(*view, index) : -1;
}

int QtTableView::columnAtPoint(Point point) const
{
  const QModelIndex index = indexAtPoint(point);
  const QAbstractItemView* view = itemView();
  return view && index.isValid() ? shownColumn(*view, index.column()) : -1;
}

// Cells

platform::ViewHandle QtTableView::viewAtColumnRow(int column, int row,
                                                  platform::MakeIfNecessary /*make*/) const
{
  const QModelIndex index = indexAt(column, row);
  const QAbstractItemView* view = itemView();
  return view && index.isValid() ? viewForWidget(view->indexWidget(index)) : nullptr;
}

QModelIndex QtTableView::indexHolding(const platform::View& view) const
{
  const QAbstractItemView* items = itemView();
  const QWidget* cell = widgetOf(view);
  while (items && cell && itemViewOfCell(*cell) != items)
    cell = cell->isWindow() ? nullptr : cell->parentWidget();
  return items && cell ? indexOfCell(*items, *cell) : QModelIndex();
}

int QtTableView::rowForView(const platform::View& view) const
{
  const QModelIndex index = indexHolding(view);
  const QAbstractItemView* items = itemView();
  return items && index.isValid() ? rows_.rowOfIndex(*items, index) : -1;
}

int QtTableView::columnForView(const platform::View& view) const
{
  const QModelIndex index = indexHolding(view);
  const QAbstractItemView* items = itemView();
  return items && index.isValid() ? shownColumn(*items, index.column()) : -1;
}

std::optional<platform::TableCell> QtTableView::preparedCell(int column, int row) const
{
  const QModelIndex index = indexAt(column, row);
  const QAbstractItemView* view = itemView();
  if (!view || !index.isValid()) return std::nullopt;
  // The model is the host's: it may do anything when asked, even end the view.
  const QSize iconSize = view->iconSize();
  platform::TableCell cell;
  cell.stringValue = toUtf8(index.data(Qt::DisplayRole).toString());
  cell.accessibilityLabel = toOptional(index.data(Qt::AccessibleTextRole).toString());
  const QVariant picture = index.data(Qt::DecorationRole);
  if (picture.typeId() == QMetaType::QIcon) {
    cell.image = QtImage::make(picture.value<QIcon>(), iconSize);
  } else if (picture.typeId() == QMetaType::QPixmap || picture.typeId() == QMetaType::QImage) {
    cell.image = QtImage::make(picture.value<QPixmap>());
  }
  return cell;
}

platform::ModelObjectHandle QtTableView::modelObjectOfRow(int column, int row) const
{
  return modelObjectOfIndex(indexAt(column, row));
}

} // namespace wayvane::qt
