#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtApplication.h>
#include <wayvane/platform/qt/QtClasses.h>
#include <wayvane/platform/qt/QtMenu.h>
#include <wayvane/platform/qt/QtView.h>
#include <wayvane/platform/qt/QtWindow.h>
#include <wayvane/platform/qt/QtWindowOrder.h>

#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>

namespace wayvane::qt {

QtApplication::QtApplication()
  : order_(std::make_unique<QtWindowOrder>())
{}

QtApplication::~QtApplication() = default;

namespace {

std::vector<platform::WindowHandle> handlesTo(const std::vector<QWidget*>& windows)
{
  std::vector<platform::WindowHandle> handles;
  handles.reserve(windows.size());
  for (QWidget* window : windows)
    handles.push_back(windowForWidget(window));
  return handles;
}

/// The main window that the window is, or belongs to.
QWidget* mainWindowAbove(QWidget* window)
{
  while (window && !qobject_cast<QMainWindow*>(window->window()))
    window = window->window()->parentWidget();
  return window ? window->window() : nullptr;
}

QWidget* findMainWindow(const std::vector<QWidget*>& frontToBack)
{
  QWidget* active = mainWindowAbove(QApplication::activeWindow());
  if (active && active->isVisible()) return active;
  for (QWidget* window : frontToBack)
    if (qobject_cast<QMainWindow*>(window) && !isOwnWidget(window)) return window;
  for (QWidget* window : frontToBack)
    if (!window->parentWidget() && window->windowType() != Qt::Tool && !isOwnWidget(window)) return window;
  return nullptr;
}

QMenuBar* menuBarIn(const QWidget& window)
{
  // QMainWindow::menuBar() would make one.
  if (const auto* main = qobject_cast<const QMainWindow*>(&window))
    if (auto* bar = qobject_cast<QMenuBar*>(main->menuWidget())) return bar;
  return window.findChild<QMenuBar*>();
}

/// The bar that belongs to no window is the one of all, where the system has one for the whole screen.
QMenuBar* sharedMenuBar()
{
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (auto* bar = qobject_cast<QMenuBar*>(widget)) return bar;
  return nullptr;
}

QMenuBar* findMenuBar(const QWidget* mainWindow)
{
  QMenuBar* bar = mainWindow ? menuBarIn(*mainWindow) : nullptr;
  return bar ? bar : sharedMenuBar();
}

std::optional<std::string> stated(const char* property)
{
  return qApp ? toOptional(qApp->property(property).toString()) : std::nullopt;
}

std::string reversedDomain(const QString& domain)
{
  QStringList parts = domain.split(u'.', Qt::SkipEmptyParts);
  std::reverse(parts.begin(), parts.end());
  return toUtf8(parts.join(u'.'));
}

} // namespace

std::vector<platform::WindowHandle> QtApplication::orderedWindows() const
{
  return handlesTo(order_->frontToBack());
}

std::vector<platform::WindowHandle> QtApplication::windows() const
{
  return handlesTo(order_->inOrderMade());
}

platform::WindowHandle QtApplication::mainWindow() const
{
  return windowForWidget(findMainWindow(order_->frontToBack()));
}

platform::WindowHandle QtApplication::keyWindow() const
{
  return windowForWidget(QApplication::activeWindow());
}

std::optional<platform::ViewClass> QtApplication::classNamed(std::string_view name) const
{
  const QMetaObject* found = qt::classNamed(name);
  return found ? std::optional(platform::ViewClass{found}) : std::nullopt;
}

bool QtApplication::classIsKind(platform::ViewClass viewClass, platform::ViewKind kind) const
{
  const auto* metaObject = static_cast<const QMetaObject*>(viewClass.identity);
  return metaObject && classInfo(metaObject).is(kind);
}

platform::MenuHandle QtApplication::mainMenu() const
{
  return menuForWidget(findMenuBar(findMainWindow(order_->frontToBack())));
}

platform::MenuHandle QtApplication::helpMenu() const
{
  const QVariant said = qApp ? qApp->property("wv_helpMenu") : QVariant();
  if (auto* menu = qobject_cast<QMenu*>(said.value<QObject*>())) return menuForWidget(menu);
  const QString name = said.toString();
  const QMenuBar* bar = name.isEmpty() ? nullptr : findMenuBar(findMainWindow(order_->frontToBack()));
  if (!bar) return nullptr;
  for (const QAction* action : bar->actions()) {
    auto* menu = action->menu<QMenu*>();
    if (menu && (menu->objectName() == name || withoutMnemonic(menu->title()) == name))
      return menuForWidget(menu);
  }
  return nullptr;
}

std::optional<std::string> QtApplication::bundleIdentifier() const
{
  if (auto said = stated("wv_bundleIdentifier")) return said;
  // It names a folder, so it must stay one.
  const QString name = QCoreApplication::applicationName().replace(u'/', u'-');
  if (name.isEmpty()) return std::nullopt;
  const std::string domain = reversedDomain(QCoreApplication::organizationDomain());
  return domain.empty() ? toUtf8(name) : domain + "." + toUtf8(name);
}

std::optional<std::string> QtApplication::shortVersion() const
{
  return toOptional(QCoreApplication::applicationVersion());
}

std::optional<std::string> QtApplication::bundleVersion() const
{
  return stated("wv_bundleVersion");
}

} // namespace wayvane::qt
