#include <wayvane/platform/Platform.h>
#include <wayvane/platform/qt/QtApplication.h>
#include <wayvane/platform/qt/QtEvents.h>
#include <wayvane/platform/qt/QtFiles.h>
#include <wayvane/platform/qt/QtLocalization.h>
#include <wayvane/platform/qt/QtLog.h>
#include <wayvane/platform/qt/QtMainQueue.h>
#include <wayvane/platform/qt/QtPanels.h>
#include <wayvane/platform/qt/QtPlatform.h>
#include <wayvane/platform/qt/QtScreen.h>
#include <wayvane/platform/qt/QtTextMeasurer.h>

#include <QApplication>
#include <QThread>

namespace wayvane::qt {

namespace {

struct Binding {
  QtApplication application;
  QtEvents events;
  QtMainQueue mainQueue;
  QtPanels panels{mainQueue};
  QtScreen screen;
  QtLocalization localization;
  QtTextMeasurer textMeasurer;
  QtFiles files;
  QtLog log;
  platform::Platform platform{application,  events,       panels, screen, mainQueue,
                              localization, textMeasurer, files,  log};
};

} // namespace

bool installPlatform()
{
  if (!qobject_cast<QApplication*>(QCoreApplication::instance())) {
    QtLog().write("Wayvane: not installed (there is no QApplication)");
    return false;
  }
  if (QThread::currentThread() != qApp->thread()) {
    QtLog().write("Wayvane: not installed (not on the main thread)");
    return false;
  }
  // Never deleted: what the framework's singletons hold may outlive the application object.
  static Binding* const binding = new Binding;
  if (!platform::Platform::current()) platform::Platform::setCurrent(&binding->platform);
  return true;
}

} // namespace wayvane::qt
