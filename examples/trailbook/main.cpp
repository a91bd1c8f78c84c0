#include "Film.h"
#include "MainWindow.h"

#include <wayvane/qt/Wayvane.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QMenuBar>
#include <QPalette>
#include <QStyleFactory>
#include <QTextStream>
#include <QTranslator>

namespace {

using wayvane::WVGuide;

std::vector<std::shared_ptr<WVGuide>> readGuides(const QDir& folder, const QStringList& only)
{
  std::vector<std::shared_ptr<WVGuide>> guides;
  for (const QString& name : folder.entryList({"*.wayvane"}, QDir::Files, QDir::Name)) {
    if (!only.isEmpty() && !only.contains(QFileInfo(name).completeBaseName())) continue;
    wayvane::platform::Error error;
    if (auto guide = WVGuide::guideWithContentsOfURL(folder.filePath(name).toStdString(), &error))
      guides.push_back(guide);
    else
      QTextStream(stderr) << name << ": " << QString::fromStdString(error.description) << '\n';
  }
  return guides;
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

void addGuidesMenu(QMenuBar* bar, const std::vector<std::shared_ptr<WVGuide>>& guides)
{
  QMenu* menu = new QMenu(QCoreApplication::translate("main", "&Guides"), bar);
  for (const auto& guide : guides)
    QObject::connect(menu->addAction(QString::fromStdString(guide->localizedName())), &QAction::triggered,
                     bar, [guide] { wayvane::WVPlayer::sharedPlayer().playGuide(guide); });
  bar->insertMenu(bar->actions().last(), menu);
}

struct Options {
  QString film;
  QString language;
  QStringList guides;
  QDir guideFolder;
  bool dark = false;
};

Options parse(const QApplication& app)
{
  QCommandLineParser parser;
  parser.setApplicationDescription("Trailbook, the host program that Wayvane is shown with");
  parser.addHelpOption();
  const QCommandLineOption film(
      "film", "Play the guides by real clicks and leave a picture of each step in DIR.", "DIR");
  const QCommandLineOption language("language", "The language of the program and its guides, such as de.",
                                    "CODE");
  const QCommandLineOption guide("guide", "Play only this guide (may be repeated).", "NAME");
  const QCommandLineOption folder("guides", "The folder with the sample guides.", "DIR",
                                  app.applicationDirPath() + "/guides");
  const QCommandLineOption dark("dark", "Dark colours.");
  parser.addOptions({film, language, guide, folder, dark});
  parser.process(app);
  return {parser.value(film), parser.value(language), parser.values(guide), QDir(parser.value(folder)),
          parser.isSet(dark)};
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

  const auto guides = readGuides(options.guideFolder, options.guides);
  addGuidesMenu(window.menuBar(), guides);

  std::shared_ptr<trailbook::Film> film;
  if (!options.film.isEmpty()) {
    const QString variant =
        QString("%1-%2x").arg(options.dark ? "dark" : "light").arg(app.devicePixelRatio());
    film = std::make_shared<trailbook::Film>(QDir(options.film), variant, guides);
    QTimer::singleShot(200, film.get(), &trailbook::Film::start);
  }
  return QApplication::exec();
}
