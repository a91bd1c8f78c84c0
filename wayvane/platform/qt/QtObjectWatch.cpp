#include <wayvane/platform/qt/QtHostProperties.h>
#include <wayvane/platform/qt/QtObjectWatch.h>

#include <QApplication>
#include <QDynamicPropertyChangeEvent>
#include <QPointer>
#include <QSet>
#include <QWidget>

#include <algorithm>

namespace wayvane::qt {

detail::HostPropertyWatch detail::hostPropertyWatch;
std::uint64_t detail::childGeneration = 0;

namespace {

class ObjectWatch : public QObject {
public:
  explicit ObjectWatch(QCoreApplication* application)
    : QObject(application)
  {
    collectCarriers();
    detail::hostPropertyWatch.isComplete = true;
    ++detail::childGeneration;
    application->installEventFilter(this);
  }

  ~ObjectWatch() override { detail::hostPropertyWatch = {}; }

  bool eventFilter(QObject* receiver, QEvent* event) override
  {
    switch (event->type()) {
    case QEvent::ChildAdded:
    case QEvent::ChildRemoved:
      ++detail::childGeneration;
      break;
    case QEvent::DynamicPropertyChange:
      noteProperty(receiver, static_cast<QDynamicPropertyChangeEvent*>(event)->propertyName());
      break;
    default:
      break;
    }
    return false;
  }

  [[nodiscard]] bool knows(const QObject& object) const { return carriers_.contains(&object); }

private:
  void noteProperty(const QObject* receiver, const QByteArray& name)
  {
    if (!receiver->isWidgetType() || !name.startsWith("wv_")) return;
    carriers_.insert(receiver);
    detail::hostPropertyWatch.isEmpty = false;
    // The dead are not taken out one by one.
    if (carriers_.size() > mostCarriers_) collectCarriers();
  }

  void collectCarriers()
  {
    carriers_.clear();
    for (const QWidget* widget : QApplication::allWidgets())
      if (carriesHostProperties(static_cast<const QObject&>(*widget))) carriers_.insert(widget);
    detail::hostPropertyWatch.isEmpty = carriers_.isEmpty();
    mostCarriers_ = std::max(mostCarriers_, 2 * carriers_.size());
  }

  QSet<const QObject*> carriers_;
  qsizetype mostCarriers_ = 4096;
};

/// Null without an application object.
const ObjectWatch* currentWatch()
{
  static QPointer<ObjectWatch> watch;
  if (!watch) {
    QCoreApplication* application = QCoreApplication::instance();
    if (!application || QCoreApplication::closingDown()) return nullptr;
    watch = new ObjectWatch(application);
  }
  return watch;
}

} // namespace

void detail::beginWatch()
{
  currentWatch();
}

bool detail::isKnownCarrier(const QWidget& widget)
{
  const ObjectWatch* watch = currentWatch();
  return !watch || watch->knows(widget);
}

} // namespace wayvane::qt
