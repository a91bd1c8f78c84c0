#include <wayvane/platform/qt/QtChildWatch.h>

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>

namespace wayvane::qt {

namespace {

class ChildWatch : public QObject {
public:
  explicit ChildWatch(QCoreApplication* application)
    : QObject(application)
  {
    application->installEventFilter(this);
  }

  bool eventFilter(QObject* /*receiver*/, QEvent* event) override
  {
    const QEvent::Type type = event->type();
    if (type == QEvent::ChildAdded || type == QEvent::ChildRemoved) ++generation;
    return false;
  }

  // Goes on counting where an earlier watch ended, for programs that make a second application object.
  static inline std::uint64_t generation = 1;
};

} // namespace

std::uint64_t childGeneration()
{
  static QPointer<ChildWatch> watch;
  if (!watch) {
    QCoreApplication* application = QCoreApplication::instance();
    if (!application || QCoreApplication::closingDown()) return 0;
    watch = new ChildWatch(application);
    ++ChildWatch::generation;
  }
  return ChildWatch::generation;
}

} // namespace wayvane::qt
