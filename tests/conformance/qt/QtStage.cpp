#include <tests/conformance/qt/MessageRecorder.h>
#include <tests/conformance/qt/Place.h>
#include <tests/conformance/qt/QtStage.h>
#include <wayvane/platform/qt/QtPlatform.h>
#include <wayvane/platform/qt/QtWindow.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QMainWindow>
#include <QMenuBar>
#include <QTest>
#include <QToolBar>

#include <gtest/gtest.h>

#include <cmath>

namespace wayvane::conformance {

using platform::Rect;
using platform::WindowHandle;

QtStage::QtStage()
{
  forgetMessages();
  qApp->setProperty("wv_translationFolders", QStringList{folder_.filePath(QStringLiteral("translations"))});
}

QtStage::~QtStage()
{
  closeMenus();
  for (const auto& window : windows_)
    delete window.data();
  qApp->setProperty("wv_helpMenu", {});
  pass(0);
  for (const QWidget* left : QApplication::topLevelWidgets())
    EXPECT_FALSE(left->isVisible()) << "left behind: " << left->metaObject()->className();
  for (const std::string& complaint : recordedMessages().complaints)
    ADD_FAILURE() << "the toolkit complained: " << complaint;
}

// Windows

WindowHandle QtStage::makeWindow(const std::string& title, const Rect& frame)
{
  auto* window = new QMainWindow;
  window->setWindowTitle(QString::fromStdString(title));
  window->menuBar()->setNativeMenuBar(false);
  auto* bar = window->addToolBar(QStringLiteral("Tools"));
  bar->setFixedHeight(40);
  bar->setMovable(false);
  window->setCentralWidget(new QWidget);
  window->setGeometry(globalRect(frame));
  window->show();
  bringToFront(window);
  return qt::windowForWidget(window);
}

void QtStage::bringToFront(QMainWindow* window)
{
  std::erase(windows_, window);
  windows_.emplace_back(window);
  window->raise();
  window->activateWindow();
  if (!QTest::qWaitForWindowActive(window)) ADD_FAILURE() << "a window does not become active";
  pass(0);
}

void QtStage::setFrame(const WindowHandle& window, const Rect& frame)
{
  widgetOf(window)->setGeometry(globalRect(frame));
  pass(0.02);
}

void QtStage::raise(const WindowHandle& window)
{
  bringToFront(qobject_cast<QMainWindow*>(widgetOf(window)));
}

void QtStage::orderOut(const WindowHandle& window)
{
  widgetOf(window)->hide();
  pass(0);
}

void QtStage::closeWindow(const WindowHandle& window)
{
  delete widgetOf(window);
}

void QtStage::addToolbarItem(const WindowHandle& window, const ToolbarPiece& piece)
{
  auto* bar = widgetOf(window)->findChild<QToolBar*>();
  QAction* action = bar->addAction(caption(piece.label.value_or("")));
  action->setObjectName(QString::fromStdString(piece.identifier.value_or("")));
  if (piece.toolTip) action->setToolTip(QString::fromStdString(*piece.toolTip));
  pass(0);
}

// Surroundings

void QtStage::pass(double seconds)
{
  if (seconds > 0) return QTest::qWait(static_cast<int>(std::ceil(seconds * 1000)));
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
}

std::vector<std::string> QtStage::loggedLines() const
{
  return recordedMessages().logged;
}

std::string QtStage::emptyFolder()
{
  const QString path = folder_.filePath(QStringLiteral("documents"));
  QDir(path).removeRecursively();
  QDir().mkpath(path);
  return path.toStdString();
}

namespace {

QByteArray quoted(const std::string& text)
{
  return '"' + QByteArray::fromStdString(text).replace('"', "\\\"") + '"';
}

} // namespace

void QtStage::addHostTable(const std::string& table, const std::string& language,
                           const platform::StringTable& texts)
{
  const QString folder = folder_.filePath(QStringLiteral("translations/%1.lproj").arg(language.c_str()));
  QDir().mkpath(folder);
  QFile file(folder + QStringLiteral("/%1.strings").arg(table.c_str()));
  if (!file.open(QIODevice::WriteOnly)) ADD_FAILURE() << "no table of the host's can be written";
  for (const auto& [key, text] : texts)
    file.write(quoted(key) + " = " + quoted(text) + ";\n");
}

// The program

std::unique_ptr<Stage> makeStage()
{
  return std::make_unique<QtStage>();
}

std::shared_ptr<void> startToolkit(int& argc, char** argv)
{
  recordMessages();
  auto program = std::make_shared<QApplication>(argc, argv);
  QApplication::setOrganizationDomain(QStringLiteral("example.org"));
  QApplication::setApplicationName(QStringLiteral("Notes"));
  QApplication::setApplicationVersion(QStringLiteral("1.4"));
  QApplication::setQuitOnLastWindowClosed(false);
  QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
  qt::installPlatform();
  return program;
}

const std::vector<NotOnThisToolkit> kNotOnThisToolkit;

} // namespace wayvane::conformance
