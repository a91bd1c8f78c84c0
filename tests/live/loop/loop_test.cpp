#include <wayvane/manager/WVGuideManager.h>
#include <wayvane/overlay/WVBubbleView.h>
#include <wayvane/platform/View.h>
#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtWindow.h>
#include <wayvane/playback/WVPlayer.h>
#include <wayvane/qt/Wayvane.h>
#include <wayvane/recording/WVRecorder.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QTabBar>
#include <QTableView>
#include <QTest>
#include <QTranslator>

#include <gmock/gmock.h>

#include <examples/trailbook/MainWindow.h>
#include <examples/trailbook/User.h>
#include <utility>

namespace wayvane::qt::test {
namespace {

using testing::ElementsAre;
using trailbook::User;

QString readFile(const QString& path)
{
  QFile file(path);
  return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// What the framework writes into the log as long as this lives.
class LogLines {
public:
  LogLines()
  {
    lines_.clear();
    before_ = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString& text) { lines_.push_back(text); });
  }

  ~LogLines() { qInstallMessageHandler(before_); }

  LogLines(const LogLines&) = delete;
  LogLines& operator=(const LogLines&) = delete;

  [[nodiscard]] static std::vector<std::string> containing(const char* words)
  {
    std::vector<std::string> found;
    for (const QString& line : lines_)
      if (line.contains(QLatin1String(words))) found.push_back(line.toStdString());
    return found;
  }

private:
  static inline QStringList lines_;
  QtMessageHandler before_ = nullptr;
};

/// One program for all tests, as a user has it: the framework is installed once.
class FullLoop : public testing::Test {
protected:
  static void SetUpTestSuite()
  {
    window = new trailbook::MainWindow;
    window->move(60, 60);
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    ASSERT_TRUE(install());
    WVGuideManager::sharedManager().setStringsFileNames({"trailbook"});
    user = new User(*window);
  }

  static void TearDownTestSuite()
  {
    delete std::exchange(user, nullptr);
    delete std::exchange(window, nullptr);
  }

  void SetUp() override
  {
    window->findChild<QTabBar*>(QStringLiteral("detailTabs"))->setCurrentIndex(0);
  }

  static QString folder()
  {
    return QString::fromStdString(WVGuideManager::sharedManager().guidesDirectory());
  }

  static WVRecorder& recorder() { return WVRecorder::sharedRecorder(); }

  static WVPlayer& player() { return WVPlayer::sharedPlayer(); }

  static bool annotate(const QString& title, const QString& message, Qt::Key end = Qt::Key_Return)
  {
    if (!User::waitUntil([] { return User::field(QStringLiteral("titleField")) != nullptr; })) return false;
    QWidget& popover = *User::field(QStringLiteral("titleField"))->window();
    // The field gets the keyboard on a later turn of the main loop.
    User::wait(100);
    User::type(popover, title);
    User::press(popover, Qt::Key_Tab);
    User::type(popover, message);
    User::press(popover, end);
    return User::waitUntil([] { return !User::field(QStringLiteral("titleField")); });
  }

  static std::size_t recordedSteps() { return recorder().guide()->steps.size(); }

  static void clickNamed(const char* name)
  {
    User::click(*window->findChild<QWidget*>(QString::fromLatin1(name)));
  }

  static void clickTableRow(int row)
  {
    auto* const table = window->findChild<QTableView*>(QStringLiteral("trailTable"));
    User::click(*table->viewport(), table->visualRect(table->model()->index(row, 1)).center());
  }

  static void record()
  {
    ASSERT_TRUE(user->choose(QStringLiteral("Help"), QString::fromUtf8("Record Guide…")));
    ASSERT_TRUE(User::waitUntil([] { return recorder().isRecording(); }));
  }

  static void recordFiveClicksAndACommand()
  {
    record();
    clickNamed("saveButton");
    ASSERT_TRUE(annotate(QStringLiteral("Keep"), QStringLiteral("Saves it.")));
    clickTableRow(3);
    ASSERT_TRUE(annotate(QString(), QStringLiteral("Choose.")));
    ASSERT_TRUE(chooseWithoutHaste(QStringLiteral("Edit"), QStringLiteral("Share")));
    ASSERT_TRUE(annotate(QString(), QStringLiteral("A command.")));
    clickNamed("searchField");
    ASSERT_TRUE(annotate(QStringLiteral("Search"), QString()));
    clickNamed("revertButton");
    ASSERT_TRUE(annotate(QStringLiteral("Back"), QString()));
    User::click(*window->findChild<QWidget*>(QStringLiteral("detailTabs")), QPoint(20, 12));
    ASSERT_TRUE(annotate(QString(), QString()));
  }

  /// Looks at the open menu for a while before choosing from it.
  static bool chooseWithoutHaste(const QString& menu, const QString& item)
  {
    if (!user->openMenu(menu)) return false;
    User::wait(300);
    return user->chooseFromOpenMenu(item);
  }

  static void saveAs(const QString& name)
  {
    user->whenDialogAppears([name](QDialog& dialog) {
      auto* const field = dialog.findChild<QLineEdit*>();
      EXPECT_EQ(field->text(), QStringLiteral("Untitled"));
      field->selectAll();
      User::type(dialog, name);
      User::press(dialog, Qt::Key_Return);
    });
    User::click(*User::button(QStringLiteral("Done")));
    ASSERT_TRUE(User::waitUntil([] { return !recorder().isRecording(); }));
  }

  /// Whether the file says what the expected one does, but for the guide's identifier.
  static testing::AssertionResult isWrittenAsExpected(const QString& name, const QString& expected)
  {
    QString written = readFile(folder() + u'/' + name + QStringLiteral(".wayvane"));
    written.replace(QString::fromStdString(recorder().guide()->identifier.value_or("")),
                    QStringLiteral("ID"));
    const QString wanted = readFile(QStringLiteral(WAYVANE_TESTS_DIR "/live/loop/") + expected);
    if (!wanted.isEmpty() && written == wanted) return testing::AssertionSuccess();
    return testing::AssertionFailure() << qPrintable(written);
  }

  /// Clicks whatever is highlighted until the guide is over.
  static std::vector<std::uint64_t> followToTheEnd()
  {
    std::vector<std::uint64_t> shown;
    while (player().isPlaying()) {
      if (!User::waitUntil([] { return !player().isPlaying() || player().currentBubble(); }, 8000)) return {};
      if (!player().isPlaying()) break;
      shown.push_back(player().currentStepIndex());
      const auto bubble = player().currentBubble();
      QWidget* const target = widgetOf(*player().overlayWindow()->parentWindow());
      User::click(*target, target->mapFromGlobal(
                               globalFromScreenPoint(player().currentTargetScreenRect().center()).toPoint()));
      if (!User::waitUntil([&bubble] { return player().currentBubble() != bubble; })) return {};
    }
    return shown;
  }

  static inline trailbook::MainWindow* window = nullptr;
  static inline User* user = nullptr;
};

TEST_F(FullLoop, TheHelpMenuEndsWithTheRecordEntry)
{
  QMenu* const help = user->openMenu(QStringLiteral("Help"));
  ASSERT_TRUE(help);
  EXPECT_EQ(help->actions().last()->text(), QString::fromUtf8("Record Guide…"));
  help->close();
}

TEST_F(FullLoop, RecordAnnotateUndoSaveFindAndPlay)
{
  record();
  clickNamed("saveButton");
  ASSERT_TRUE(annotate(QStringLiteral("Keep"), QStringLiteral("Saves it.")));
  clickTableRow(3);
  ASSERT_TRUE(annotate(QString(), QStringLiteral("Choose.")));
  clickNamed("searchField");
  ASSERT_TRUE(annotate(QStringLiteral("Search"), QString()));
  clickNamed("revertButton");
  ASSERT_TRUE(annotate(QString(), QStringLiteral("no"), Qt::Key_Escape)) << "cancelled";
  clickNamed("revertButton");
  ASSERT_TRUE(annotate(QStringLiteral("Back"), QString()));
  User::click(*window->findChild<QWidget*>(QStringLiteral("detailTabs")), QPoint(20, 12));
  ASSERT_TRUE(annotate(QString(), QString()));
  ASSERT_TRUE(user->choose(QStringLiteral("Edit"), QStringLiteral("Share")));
  ASSERT_TRUE(annotate(QString(), QStringLiteral("A command.")));
  ASSERT_EQ(recordedSteps(), 6U);
  User::click(*User::button(QStringLiteral("Undo")));
  EXPECT_EQ(recordedSteps(), 5U) << "the command was taken back";
  saveAs(QStringLiteral("A/B"));
  EXPECT_TRUE(isWrittenAsExpected(QStringLiteral("A-B"), QStringLiteral("expected.wayvane")));

  ASSERT_TRUE(user->choose(QStringLiteral("Help"), QStringLiteral("A/B")));
  ASSERT_TRUE(player().isPlaying());
  EXPECT_THAT(followToTheEnd(), ElementsAre(0, 1, 2, 3, 4));
}

TEST_F(FullLoop, ACommandStaysInTheGuideWhenAClickIsTakenBack)
{
  recordFiveClicksAndACommand();
  ASSERT_EQ(recordedSteps(), 6U);
  clickNamed("revertButton");
  ASSERT_TRUE(annotate(QStringLiteral("A slip"), QString()));
  ASSERT_EQ(recordedSteps(), 7U);
  User::click(*User::button(QStringLiteral("Undo")));
  EXPECT_EQ(recordedSteps(), 6U) << "the last click was taken back";
  saveAs(QStringLiteral("Commands"));
  EXPECT_TRUE(isWrittenAsExpected(QStringLiteral("Commands"), QStringLiteral("commands.wayvane")));

  ASSERT_TRUE(user->choose(QStringLiteral("Help"), QStringLiteral("Commands")));
  LogLines lines;
  EXPECT_THAT(followToTheEnd(), ElementsAre(0, 1, 3, 4, 5)) << "all but the command";
  EXPECT_THAT(lines.containing("MENU"),
              ElementsAre("WVPlayer: step 2 is MENU target: action=actionShareTrail path=Edit > Share"));
  EXPECT_THAT(lines.containing("skipping"),
              ElementsAre("WVPlayer: menu action actionShareTrail not found in any menu, skipping"));
}

TEST_F(FullLoop, AFileThatComesOrGoesShowsAtTheNextOpening)
{
  const QString path = folder() + QStringLiteral("/dropped.wayvane");
  QFile file(path);
  ASSERT_TRUE(file.open(QFile::WriteOnly));
  file.write(R"({"identifier": "1", "name": "Dropped in", "version": "1", "steps": []})");
  file.close();
  const auto titles = [] {
    QStringList found;
    if (QMenu* const help = user->openMenu(QStringLiteral("Help"))) {
      for (const QAction* const action : help->actions())
        found << action->text();
      help->close();
    }
    return found;
  };
  EXPECT_TRUE(titles().contains(QStringLiteral("Dropped in")));
  QFile::remove(path);
  EXPECT_FALSE(titles().contains(QStringLiteral("Dropped in")));
}

TEST_F(FullLoop, AGuideRecordedInEnglishFindsAllItsTargetsInGerman)
{
  const auto guide = WVGuide::guideWithContentsOfURL(
      (QStringLiteral(WAYVANE_TESTS_DIR "/live/loop/expected.wayvane")).toStdString());
  ASSERT_TRUE(guide);
  TearDownTestSuite();
  QLocale::setDefault(QLocale(QStringLiteral("de")));
  QTranslator translator;
  ASSERT_TRUE(translator.load(QLocale(), QStringLiteral("trailbook"), QStringLiteral("_"),
                              QStringLiteral(":/translations")));
  QCoreApplication::installTranslator(&translator);
  window = new trailbook::MainWindow;
  user = new User(*window);
  window->show();
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window));
  ASSERT_EQ(window->windowTitle(), QStringLiteral("Wanderbuch"));
  const char* const expected[] = {"saveButton", "trailTable", "searchField", "revertButton", "detailTabs"};
  for (std::size_t i = 0; i < guide->steps.size(); ++i) {
    const platform::ViewHandle view = guide->steps[i].target.resolveInWindow(nullptr);
    ASSERT_TRUE(view) << "step " << i;
    EXPECT_EQ(view->accessibilityIdentifier().value_or(""), expected[i]);
  }
  QCoreApplication::removeTranslator(&translator);
}

} // namespace
} // namespace wayvane::qt::test
