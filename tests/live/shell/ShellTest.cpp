#include "ShellTest.h"

#include <wayvane/platform/qt/QtPlatform.h>
#include <wayvane/platform/qt/QtWindow.h>

#include <QDir>
#include <QMutex>

namespace wayvane::qt::test {

namespace {

QMutex logMutex;
QStringList logLines;

void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
  // What the offscreen platform says about things that it has no use for.
  if (text.startsWith(QLatin1String("This plugin does not support"))) return;
  const QMutexLocker lock(&logMutex);
  logLines << QStringLiteral("%1:%2").arg(QString::fromLatin1(context.category), text);
  if (type == QtWarningMsg || type == QtCriticalMsg) std::fprintf(stderr, "%s\n", qPrintable(text));
}

QWindow* windowOf(QWidget& widget)
{
  return widget.window()->windowHandle();
}

} // namespace

QStringList takeLog()
{
  const QMutexLocker lock(&logMutex);
  return std::exchange(logLines, {});
}

bool waitUntil(const std::function<bool()>& condition)
{
  return QTest::qWaitFor(condition, 2000);
}

void click(QWidget& widget, QPoint at)
{
  QTest::mouseClick(windowOf(widget), Qt::LeftButton, {}, widget.mapTo(widget.window(), at));
}

void doubleClick(QWidget& widget)
{
  QTest::mouseDClick(windowOf(widget), Qt::LeftButton, {},
                     widget.mapTo(widget.window(), widget.rect().center()));
}

void keepPicture(const QImage& picture, const QString& name)
{
  QDir().mkpath(QStringLiteral("shell-pictures"));
  picture.save(QStringLiteral("shell-pictures/%1.png").arg(name));
}

ShellTest::ShellTest()
{
  qInstallMessageHandler(handleMessage);
  EXPECT_TRUE(installPlatform());
  window = std::make_unique<QMainWindow>();
  window->setWindowTitle(QStringLiteral("Notes"));
  button = new QPushButton(QStringLiteral("Press"), window.get());
  button->setGeometry(40, 40, 120, 40);
  QObject::connect(button, &QPushButton::clicked, button, [this] { ++clicks; });
  window->setGeometry(100, 100, 400, 300);
  window->show();
  window->activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
  takeLog();
}

ShellTest::~ShellTest()
{
  window.reset();
  spin(1);
  for (const QString& line : takeLog())
    ADD_FAILURE() << "left in the log: " << qPrintable(line);
  qInstallMessageHandler(nullptr);
}

platform::WindowHandle ShellTest::handle() const
{
  return windowForWidget(window.get());
}

} // namespace wayvane::qt::test
