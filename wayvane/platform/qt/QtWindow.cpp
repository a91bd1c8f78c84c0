#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtActions.h>
#include <wayvane/platform/qt/QtDescendants.h>
#include <wayvane/platform/qt/QtHostProperties.h>
#include <wayvane/platform/qt/QtView.h>
#include <wayvane/platform/qt/QtWindow.h>

#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QToolBar>

#include <algorithm>

namespace wayvane::qt {

QtWindow::QtWindow(QWidget* window)
  : window_(window)
{}

bool QtWindow::isAlive() const
{
  return !window_.isNull();
}

bool QtWindow::isSame(const platform::Window& other) const
{
  return window_ && window_ == widgetOf(other);
}

std::string QtWindow::className() const
{
  if (!window_) return {};
  std::string name = window_->metaObject()->className();
  if (!isOwnWidget(window_)) return name;
  if (const auto colon = name.rfind(':'); colon != std::string::npos) name.erase(0, colon + 1);
  return name.starts_with("WV") ? name : "WV" + name;
}

std::string QtWindow::title() const
{
  if (!window_) return {};
  // The place where the toolkit marks a changed document; written twice, it is text.
  QString title = window_->windowTitle();
  const QString placeholder = QStringLiteral("[*]");
  const QString twice = placeholder + placeholder;
  const QString kept(QChar(u'\uFFFF'));
  title.replace(twice, kept).remove(placeholder).replace(kept, placeholder);
  return toUtf8(title);
}

platform::Rect QtWindow::frame() const
{
  if (!window_) return {};
  return screenRectFromGlobal(QRectF(window_->mapToGlobal(QPointF()), QSizeF(window_->size())));
}

bool QtWindow::isVisible() const
{
  return window_ && window_->isVisible();
}

platform::ViewHandle QtWindow::contentView() const
{
  return viewForWidget(window_);
}

platform::ViewHandle QtWindow::frameView() const
{
  return contentView();
}

bool QtWindow::isUtilityPanel() const
{
  if (!window_) return false;
  // Some of our panels are tool tips to the toolkit, so that nothing activates them.
  return window_->windowType() == Qt::Tool || (window_->windowType() == Qt::ToolTip && isOwnWidget(window_));
}

void QtWindow::displayIfNeeded()
{
  if (window_) QCoreApplication::sendPostedEvents(window_, QEvent::LayoutRequest);
  if (window_) QCoreApplication::sendPostedEvents(window_, QEvent::UpdateRequest);
}

namespace {

/// From the top, and in one line from the left.
bool isShownBefore(const QToolBar* a, const QToolBar* b)
{
  const QPoint mine = a->mapTo(a->window(), QPoint()), theirs = b->mapTo(b->window(), QPoint());
  return mine.y() != theirs.y() ? mine.y() < theirs.y() : mine.x() < theirs.x();
}

std::vector<QToolBar*> toolBarsOf(QWidget& window)
{
  std::vector<QToolBar*> bars;
  if (auto* floating = qobject_cast<QToolBar*>(&window)) bars.push_back(floating);
  for (const auto& bar : descendantsOf<QToolBar>(window))
    if (bar && bar->window() == &window && !isOwnWidget(bar)) bars.push_back(bar);
  std::stable_sort(bars.begin(), bars.end(), isShownBefore);
  return bars;
}

platform::ToolbarItem itemFor(const QToolBar& bar, QAction& action)
{
  platform::ToolbarItem item;
  item.itemIdentifier = toOptional(givenActionName(action));
  item.label = toOptional(withoutMnemonic(action.text()));
  item.toolTip = toOptional(withoutMarkup(givenToolTip(action)));
  QWidget* widget = bar.widgetForAction(&action);
  if (widget && widget->isVisibleTo(bar.window())) item.view = viewForWidget(widget);
  return item;
}

} // namespace

std::vector<platform::ToolbarItem> QtWindow::toolbarItems() const
{
  std::vector<platform::ToolbarItem> items;
  if (!window_) return items;
  for (const QToolBar* bar : toolBarsOf(*window_))
    for (QAction* action : bar->actions())
      if (!action->isSeparator()) items.push_back(itemFor(*bar, *action));
  return items;
}

platform::WindowHandle windowForWidget(QWidget* widget)
{
  return widget ? std::make_shared<QtWindow>(widget->window()) : nullptr;
}

QWidget* widgetOf(const platform::Window& window)
{
  const auto* mine = dynamic_cast<const QtWindow*>(&window);
  return mine ? mine->widget() : nullptr;
}

} // namespace wayvane::qt
