#include "Film.h"
#include "MainWindow.h"

#include <wayvane/manager/WVGuideManager.h>
#include <wayvane/overlay/WVBubbleView.h>
#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/playback/WVPlayer.h>
#include <wayvane/qt/Wayvane.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QPalette>
#include <QStyleFactory>
#include <QTextStream>
#include <QTimer>
#include <QTranslator>

#include <algorithm>

namespace {

using wayvane::WVGuideManager;

struct Options {
  QString film;
  QString record;
  QString language;
  QStringList guides;
  QDir samples;
  bool panels = false;
  bool announce = false;
  bool dark = false;
};

Options parse(const QApplication& app)
{
  QCommandLineParser parser;
  parser.setApplicationDescription("Trailbook, the host program that Wayvane is shown with");
  parser.addHelpOption();
  const QCommandLineOption film("film", "Play guides by real clicks, a picture of each step in DIR.", "DIR");
  const QCommandLineOption guide("guide", "Film only the library's guide of that name (may be repeated).",
                                 "NAME");
  const QCommandLineOption record("record", "Film how a guide is recorded, saved as NAME and played.",
                                  "NAME");
  const QCommandLineOption panels("panels", "Film the panels that an author sees while recording.");
  const QCommandLineOption language("language", "The language of program and guides, such as de.", "CODE");
  const QCommandLineOption samples("samples", "The folder with the sample guides.", "DIR",
                                   QApplication::applicationDirPath() + "/guides");
  const QCommandLineOption announce("announce",
                                    "Play the --guide and print where each step's target is on the screen.");
  const QCommandLineOption dark("dark", "Dark colours.");
  parser.addOptions({film, guide, record, panels, language, samples, announce, dark});
  parser.process(app);
  return {parser.value(film),          parser.value(record), parser.value(language), parser.values(guide),
          QDir(parser.value(samples)), parser.isSet(panels), parser.isSet(announce), parser.isSet(dark)};
}

QPalette darkPalette()
{
  QPalette palette;
  palette.setColor(QPalette::Window, QColor(0x2b, 0x2b, 0x2d));
  palette.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x20));
  palette.setColor(QPalette::AlternateBase, QColor(0x26, 0x26, 0x28));
  palette.setColor(QPalette::Button, QColor(0x3a, 0x3a, 0x3d));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
    palette.setColor(role, QColor(0xea, 0xea, 0xea));
  palette.setColor(QPalette::PlaceholderText, QColor(0x9a, 0x9a, 0x9a));
  palette.setColor(QPalette::Highlight, QColor(0x0a, 0x64, 0xd8));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, QColor(0x80, 0x80, 0x80));
  return palette;
}

/// The samples become part of the user's library, as if somebody had recorded them.
void putIntoLibrary(const QDir& samples)
{
  const QDir library(QString::fromStdString(WVGuideManager::sharedManager().guidesDirectory()));
  for (const QString& name : samples.entryList({"*.wayvane"}, QDir::Files))
    if (!library.exists(name)) QFile::copy(samples.filePath(name), library.filePath(name));
  WVGuideManager::sharedManager().reloadGuides();
}

bool filmLibrary(trailbook::User& user, trailbook::Pictures& pictures, const QStringList& only)
{
  bool good = true;
  auto guides = WVGuideManager::sharedManager().savedGuides();
  std::sort(guides.begin(), guides.end(), [](const auto& a, const auto& b) { return a->name < b->name; });
  int number = 0;
  for (const auto& guide : guides) {
    ++number;
    if (!only.isEmpty() && !only.contains(QString::fromStdString(guide->name.value_or("")))) continue;
    good = trailbook::filmGuide(user, pictures, guide, QString("guide%1").arg(number)) && good;
  }
  return good;
}

QString subjectOf(const Options& options)
{
  if (options.panels) return "panels";
  return options.record.isEmpty() ? "guides" : "recording";
}

bool film(const Options& options, trailbook::MainWindow& window, trailbook::Pictures& pictures)
{
  trailbook::User user(window);
  if (options.panels) return trailbook::filmPanels(user, window, pictures);
  wayvane::WVPlayer::sharedPlayer().setShowsCircle(true);
  return options.record.isEmpty() ? filmLibrary(user, pictures, options.guides)
                                  : trailbook::filmRecording(user, window, pictures, options.record);
}

int makeFilm(const Options& options, trailbook::MainWindow& window)
{
  const QString language = options.language.isEmpty() ? QString() : options.language + '-';
  const QString look = options.dark ? "dark" : "light";
  trailbook::Pictures pictures(QDir(options.film),
                               QString("%1%2-%3x").arg(language, look).arg(window.devicePixelRatio()),
                               subjectOf(options));
  const bool good = film(options, window, pictures);
  pictures.saveContactSheet();
  QTextStream(stdout) << pictures.count() << " pictures in " << options.film
                      << (good ? "\n" : ", but not all could be taken\n");
  return good && pictures.count() > 0 ? 0 : 1;
}

/// Prints "step N X Y" when the user is to click there, and "completed" or "ended" at the end, for whoever
/// moves the pointer from outside.
class Announcer : public QObject, public wayvane::WVPlayerDelegate {
public:
  explicit Announcer(QObject* parent)
    : QObject(parent)
  {
    startTimer(50);
  }

  void playerDidCompleteGuide(const std::string& /*identifier*/) override { finish("completed"); }

  void playerDidSkipGuide(const std::string& /*identifier*/, std::uint64_t /*atStep*/) override
  {
    finish("ended");
  }

private:
  void timerEvent(QTimerEvent* /*event*/) override
  {
    const auto& player = wayvane::WVPlayer::sharedPlayer();
    const auto bubble = player.isPlaying() ? player.currentBubble() : nullptr;
    if (!bubble || bubble == announced_) return;
    announced_ = bubble;
    const QPoint at = wayvane::qt::globalFromScreenPoint(player.currentTargetScreenRect().center()).toPoint();
    QTextStream(stdout) << "step " << player.currentStepIndex() + 1 << ' ' << at.x() << ' ' << at.y() << '\n';
  }

  static void finish(const char* how)
  {
    QTextStream(stdout) << how << '\n';
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
  }

  std::shared_ptr<wayvane::WVBubbleView> announced_;
};

void announceTour(const Options& options, trailbook::MainWindow& window)
{
  static const auto announcer = std::shared_ptr<Announcer>(new Announcer(&window), [](Announcer*) {});
  auto& player = wayvane::WVPlayer::sharedPlayer();
  player.setDelegate(announcer);
  for (const auto& guide : WVGuideManager::sharedManager().savedGuides())
    if (options.guides.contains(QString::fromStdString(guide->name.value_or("")))) player.playGuide(guide);
}

} // namespace

int main(int argc, char** argv)
{
  QApplication app(argc, argv);
  QCoreApplication::setOrganizationDomain("trailbook.example");
  QCoreApplication::setApplicationName("Trailbook");
  QCoreApplication::setApplicationVersion("1.0");
  QApplication::setStyle(QStyleFactory::create("Fusion"));

  const Options options = parse(app);
  if (!options.language.isEmpty()) QLocale::setDefault(QLocale(options.language));
  QTranslator translator;
  if (translator.load(QLocale(), "trailbook", "_", ":/translations"))
    QCoreApplication::installTranslator(&translator);
  if (options.dark) QApplication::setPalette(darkPalette());

  trailbook::MainWindow window;
  window.show();
  wayvane::qt::install();
  WVGuideManager::sharedManager().setStringsFileNames({"trailbook"});
  putIntoLibrary(options.samples);

  if (options.announce) QTimer::singleShot(300, &window, [&] { announceTour(options, window); });
  if (!options.film.isEmpty())
    QTimer::singleShot(300, &window, [&] { QCoreApplication::exit(makeFilm(options, window)); });
  return QApplication::exec();
}
