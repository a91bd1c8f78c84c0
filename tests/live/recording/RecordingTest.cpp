#include "RecordingTest.h"

#include <wayvane/platform/qt/QtPlatform.h>
#include <wayvane/recording/WVRecordingBadge.h>

#include <QApplication>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

namespace wayvane::qt::test {

namespace {

QStringList logLines;

void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
  // What the offscreen platform says about things that it has no use for.
  if (text.startsWith(QLatin1String("This plugin does not support"))) return;
  logLines << QStringLiteral("%1:%2").arg(QString::fromLatin1(context.category), text);
  if (type == QtWarningMsg || type == QtCriticalMsg) std::fprintf(stderr, "%s\n", qPrintable(text));
}

QStringList takeLines()
{
  return std::exchange(logLines, {});
}

bool isAboutAClick(const QString& line)
{
  return line.startsWith(QLatin1String("wayvane:WVRecorder: click hit="));
}

std::string orDash(const std::optional<std::string>& text)
{
  return text.value_or("-");
}

std::string inWords(const WVStep& step)
{
  const WVTargetDescriptor& target = step.target;
  const std::string annotation = ": " + orDash(step.title) + " | " + orDash(step.message);
  if (target.menuPath) return *target.menuPath + annotation;
  const std::string row = target.tableRow < 0 ? "" : " row " + std::to_string(target.tableRow);
  return orDash(target.className) + "#" + orDash(target.accessibilityIdentifier) + " '" +
         orDash(target.title) + "' @" + orDash(target.windowTitle) + row + annotation;
}

} // namespace

RecordingTest::RecordingTest()
{
  qInstallMessageHandler(handleMessage);
  EXPECT_TRUE(installPlatform());
  window = new QMainWindow;
  window->setObjectName(QStringLiteral("main"));
  window->setWindowTitle(QStringLiteral("Main"));
  window->setGeometry(100, 100, 600, 400);
  save = addButton(window, "Save", {40, 60, 120, 32});
  second = new QWidget;
  second->setWindowTitle(QStringLiteral("Second"));
  second->setGeometry(800, 100, 300, 200);
  apply = addButton(second, "Apply", {40, 40, 120, 32});
  show(*second);
  show(*window);
  window->activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(window));
  recorder = std::make_unique<WVRecorder>();
  recorder->setDelegate(listener);
  recorder->startRecordingGuide("Tour");
  EXPECT_TRUE(waitUntil([] { return panelButton(QStringLiteral("Done")) != nullptr; }));
  takeLines();
}

RecordingTest::~RecordingTest()
{
  recorder.reset();
  delete window;
  delete second;
  wait(1);
  EXPECT_EQ(popover(), nullptr) << "a popover was left behind";
  for (const QString& line : takeLines())
    EXPECT_TRUE(isAboutAClick(line)) << "left in the log: " << qPrintable(line.left(200));
  qInstallMessageHandler(nullptr);
}

QPushButton* RecordingTest::addButton(QWidget* parent, const char* title, const QRect& place)
{
  auto* const button = new QPushButton(QString::fromLatin1(title), parent);
  button->setObjectName(QString::fromLatin1(title).toLower());
  button->setGeometry(place);
  QObject::connect(button, &QPushButton::clicked, button,
                   [this, text = std::string(title)] { acts.push_back(text); });
  return button;
}

void RecordingTest::show(QWidget& window)
{
  window.show();
  EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
}

bool RecordingTest::annotate(const QString& title, const QString& message, Qt::Key end)
{
  if (!waitUntil([] { return popover() != nullptr; }, 1000)) return false;
  QWidget& asking = *popover();
  const auto* const first = asking.findChild<QLineEdit*>(QStringLiteral("titleField"));
  // The field gets the keyboard on a later turn of the main loop.
  if (!waitUntil([&] { return asking.focusWidget() == first; }, 1000)) return false;
  type(asking, title);
  press(asking, Qt::Key_Tab);
  type(asking, message);
  press(asking, end);
  return waitUntil([] { return !popover(); }, 1000);
}

bool RecordingTest::nothingIsAsked()
{
  wait(200);
  return !popover();
}

std::vector<std::string> RecordingTest::steps() const
{
  std::vector<std::string> words;
  for (const WVStep& step : recorder->guide()->steps)
    words.push_back(inWords(step));
  return words;
}

std::string RecordingTest::counter() const
{
  return recorder->badge() ? recorder->badge()->stepCountLabel().stringValue() : "no badge";
}

testing::AssertionResult RecordingTest::finishes()
{
  QWidget* const done = panelButton(QStringLiteral("Done"));
  if (!done) return testing::AssertionFailure() << "there is no Done";
  click(*done);
  if (recorder->isRecording()) return testing::AssertionFailure() << "still recording";
  if (listener->finished.size() != 1) return testing::AssertionFailure() << "the delegate was not told once";
  WVGuide guide = *listener->finished.front();
  const QTemporaryDir folder;
  const std::string path = folder.filePath(QStringLiteral("guide.wayvane")).toStdString();
  Error error;
  if (!guide.writeToURL(path, &error))
    return testing::AssertionFailure() << "unwritten: " << error.description;
  const auto read = WVGuide::guideWithContentsOfURL(path, &error);
  if (!read) return testing::AssertionFailure() << "unread: " << error.description;
  // What a guide without a version is written with.
  guide.version = "1";
  if (*read == guide) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "the file says something else than the guide";
}

std::vector<std::string> RecordingTest::takeLog()
{
  std::vector<std::string> taken;
  for (const QString& line : takeLines())
    taken.push_back(line.mid(line.indexOf(u':') + 1).toStdString());
  return taken;
}

} // namespace wayvane::qt::test
