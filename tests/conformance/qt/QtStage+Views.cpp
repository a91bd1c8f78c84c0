#include <tests/conformance/qt/HostCanvas.h>
#include <tests/conformance/qt/Place.h>
#include <tests/conformance/qt/QtStage.h>
#include <wayvane/platform/qt/QtView.h>

#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QScrollArea>
#include <QTabBar>
#include <QTableWidget>
#include <QTextEdit>
#include <QToolButton>

namespace wayvane::conformance {

using platform::HostProperty;
using platform::ViewHandle;
using platform::WindowHandle;

namespace {

QString toQString(const std::string& text)
{
  return QString::fromStdString(text);
}

const char* nameOf(HostProperty property)
{
  switch (property) {
  case HostProperty::GuidePadding:
    return "wv_guidePadding";
  case HostProperty::GuideCornerRadius:
    return "wv_guideCornerRadius";
  case HostProperty::GuideIdentifier:
    return "wv_guideIdentifier";
  case HostProperty::DisplayString:
    return "wv_displayString";
  case HostProperty::LocalizedTitle:
    return "wv_localizedTitle";
  }
  return "";
}

void dress(QWidget& widget, const Look& look)
{
  widget.setObjectName(toQString(look.identifier.value_or("")));
  if (look.accessibilityLabel) widget.setAccessibleName(toQString(*look.accessibilityLabel));
  if (look.toolTip) widget.setToolTip(toQString(*look.toolTip));
  if (look.valueBinding)
    widget.setProperty("wv_bindings", QVariantMap{{"value", toQString(*look.valueBinding)}});
  for (const auto& [property, text] : look.hostStrings)
    widget.setProperty(nameOf(property), toQString(text));
  for (const auto& [property, number] : look.hostNumbers)
    widget.setProperty(nameOf(property), number);
}

} // namespace

ViewHandle QtStage::place(QWidget* widget, const WindowHandle& window, const Look& look)
{
  auto* main = qobject_cast<QMainWindow*>(widgetOf(window));
  QWidget* parent = look.inside ? widgetOf(look.inside) : main->centralWidget();
  widget->setParent(parent);
  widget->setGeometry(rectIn(*parent, look.frame));
  dress(*widget, look);
  widget->show();
  pass(0);
  return qt::viewForWidget(widget);
}

ViewHandle QtStage::addPlain(const WindowHandle& window, const Look& look)
{
  return place(new HostCanvas, window, look);
}

ViewHandle QtStage::addButton(const WindowHandle& window, const Look& look, const ButtonPiece& piece)
{
  auto* button = new QPushButton(caption(piece.title));
  if (piece.action) button->setProperty("wv_action", toQString(*piece.action));
  clicks_[button] = 0;
  QObject::connect(button, &QAbstractButton::clicked, button, [this, button] { ++clicks_[button]; });
  return place(button, window, look);
}

ViewHandle QtStage::addIconButton(const WindowHandle& window, const Look& look)
{
  QPixmap picture(16, 16);
  picture.fill(Qt::darkGreen);
  auto* button = new QToolButton;
  button->setIcon(picture);
  button->setIconSize({16, 16});
  return place(button, window, look);
}

ViewHandle QtStage::addLabel(const WindowHandle& window, const Look& look, const std::string& text)
{
  return place(new QLabel(toQString(text)), window, look);
}

ViewHandle QtStage::addField(const WindowHandle& window, const Look& look, const FieldPiece& piece)
{
  auto* field = new QLineEdit(toQString(piece.value));
  field->setPlaceholderText(toQString(piece.placeholder.value_or("")));
  return place(field, window, look);
}

ViewHandle QtStage::addTextView(const WindowHandle& window, const Look& look, const TextViewPiece& piece)
{
  auto* text = new QTextEdit;
  text->setPlainText(toQString(piece.value));
  text->setReadOnly(!piece.editable);
  return place(text, window, look);
}

ViewHandle QtStage::addPopUp(const WindowHandle& window, const Look& look, const PopUpPiece& piece)
{
  auto* box = new QComboBox;
  for (const std::string& item : piece.items)
    box->addItem(toQString(item));
  box->setCurrentIndex(piece.selected);
  return place(box, window, look);
}

ViewHandle QtStage::addSegments(const WindowHandle& window, const Look& look, const SegmentsPiece& piece)
{
  auto* bar = new QTabBar;
  for (const std::string& label : piece.labels)
    bar->addTab(caption(label));
  bar->setCurrentIndex(piece.selected);
  return place(bar, window, look);
}

ViewHandle QtStage::addGroupBox(const WindowHandle& window, const Look& look, const std::string& title)
{
  return place(new QGroupBox(caption(title)), window, look);
}

namespace {

QVariantMap modelOfRow(const TablePiece& piece, std::size_t row)
{
  QVariantMap model;
  if (row < piece.models.size())
    for (const auto& [key, text] : piece.models[row])
      model[toQString(key)] = toQString(text);
  return model;
}

void fillRow(QTableWidget& table, const TablePiece& piece, std::size_t row)
{
  const QVariantMap model = modelOfRow(piece, row);
  for (std::size_t column = 0; column < piece.texts[row].size(); ++column) {
    const int r = static_cast<int>(row), c = static_cast<int>(column);
    const bool isDrawn = piece.cells == Cells::Drawn;
    auto* item = new QTableWidgetItem(isDrawn ? toQString(piece.texts[row][column]) : QString());
    if (!model.isEmpty()) item->setData(Qt::UserRole, model);
    table.setItem(r, c, item);
    if (!isDrawn) table.setCellWidget(r, c, new QLabel(toQString(piece.texts[row][column])));
  }
}

} // namespace

ViewHandle QtStage::addTable(const WindowHandle& window, const Look& look, const TablePiece& piece)
{
  auto* table = new QTableWidget(static_cast<int>(piece.texts.size()),
                                 static_cast<int>(piece.columnIdentifiers.size()));
  QStringList headers;
  for (const std::string& identifier : piece.columnIdentifiers)
    headers << toQString(identifier);
  table->setHorizontalHeaderLabels(headers);
  table->verticalHeader()->hide();
  table->verticalHeader()->setDefaultSectionSize(20);
  table->horizontalHeader()->setDefaultSectionSize(90);
  for (std::size_t row = 0; row < piece.texts.size(); ++row)
    fillRow(*table, piece, row);
  return place(table, window, look);
}

ViewHandle QtStage::addScrollArea(const WindowHandle& window, const Look& look, platform::Size document)
{
  auto* area = new QScrollArea;
  if (document.width > 0) {
    auto* content = new QWidget;
    content->setFixedSize(static_cast<int>(document.width), static_cast<int>(document.height));
    area->setWidget(content);
  }
  return place(area, window, look);
}

void QtStage::hide(const ViewHandle& view)
{
  widgetOf(view)->hide();
  pass(0);
}

void QtStage::destroy(const ViewHandle& view)
{
  delete widgetOf(view);
}

// What was experienced

int QtStage::pressesReceived(const ViewHandle& view)
{
  QWidget* widget = widgetOf(view);
  const auto* canvas = qobject_cast<const HostCanvas*>(widget);
  return canvas ? canvas->presses() : clicks_.value(widget);
}

int QtStage::mouseEventsReceived(const ViewHandle& view)
{
  return qobject_cast<const HostCanvas*>(widgetOf(view))->mouseEvents();
}

std::vector<std::string> QtStage::hoverReceived(const ViewHandle& view)
{
  return qobject_cast<const HostCanvas*>(widgetOf(view))->hover();
}

int QtStage::timesDrawn(const ViewHandle& view)
{
  return qobject_cast<const HostCanvas*>(widgetOf(view))->paints();
}

Picture QtStage::picture(const WindowHandle& window)
{
  const QImage drawn = widgetOf(window)->grab().toImage();
  return [drawn](platform::Point point) {
    const double scale = drawn.devicePixelRatio();
    const QColor color = drawn.pixelColor(static_cast<int>(point.x * scale),
                                          drawn.height() - 1 - static_cast<int>(point.y * scale));
    constexpr double kFull = 255;
    return Pixel{color.red() / kFull, color.green() / kFull, color.blue() / kFull};
  };
}

} // namespace wayvane::conformance
