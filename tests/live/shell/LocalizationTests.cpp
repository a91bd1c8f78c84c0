#include <wayvane/platform/qt/QtLocalization.h>
#include <wayvane/platform/qt/QtStringTables.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QTemporaryDir>
#include <QTranslator>

#include <gmock/gmock.h>

namespace wayvane::qt::test {
namespace {

using platform::StringTable;
using testing::ElementsAre;
using testing::Optional;

TEST(StringTables, TranslationSourceGivesFinishedTexts)
{
  const QByteArray bytes =
      R"(<?xml version="1.0"?><!DOCTYPE TS><TS version="2.1" language="de" sourcelanguage="en_US"><context>
    <name>Main</name>
    <message><source>&amp;Open</source><translation>Ö&amp;ffnen</translation></message>
    <message><source>Late</source><translation type="unfinished">Spät</translation></message>
    <message><location filename="a.cpp" line="1"/><source>A &amp; B</source><translation>A und B</translation></message>
    </context></TS>)";
  const auto file = readTranslationSource(bytes);
  ASSERT_TRUE(file);
  EXPECT_EQ(file->translations, (StringTable{{"A & B", "A und B"}, {"Open", "Öffnen"}}));
  EXPECT_EQ(file->sources, (StringTable{{"A & B", "A & B"}, {"Late", "Late"}, {"Open", "Open"}}));
  EXPECT_EQ(file->sourceLanguage, "en");
}

TEST(StringTables, BrokenTranslationSourceIsNone)
{
  EXPECT_FALSE(readTranslationSource("<TS><context><message>"));
  EXPECT_FALSE(readTranslationSource("no xml"));
}

class QtLocalization : public testing::Test {
protected:
  QtLocalization() { qApp->setProperty("wv_translationFolders", QStringList{folder.path()}); }

  ~QtLocalization() override
  {
    qApp->setProperty("wv_translationFolders", QVariant());
    QLocale::setDefault(QLocale::c());
  }

  void put(const QString& name, const QByteArray& bytes) const
  {
    const QString path = folder.filePath(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }

  static QByteArray source(const char* key, const char* text)
  {
    return QByteArray("<TS><context><message><source>") + key + "</source><translation>" + text +
           "</translation></message></context></TS>";
  }

  QTemporaryDir folder;
  qt::QtLocalization localization;
};

TEST_F(QtLocalization, LanguageIsTheBareCodeOfTheCurrentLocale)
{
  QLocale::setDefault(QLocale(QStringLiteral("pt_BR")));
  EXPECT_THAT(localization.languageCode(), Optional(std::string("pt")));
  QLocale::setDefault(QLocale(QStringLiteral("de_AT")));
  EXPECT_THAT(localization.languageCode(), Optional(std::string("de")));
  QLocale::setDefault(QLocale::c());
  EXPECT_EQ(localization.languageCode(), std::nullopt);
}

TEST_F(QtLocalization, LanguagesComeFromTheNamesOfTheFiles)
{
  put(QStringLiteral("Notes_de.ts"), source("a", "b"));
  put(QStringLiteral("My_Notes_pt_BR.ts"), source("a", "b"));
  put(QStringLiteral("fr.lproj/Notes.strings"), "");
  put(QStringLiteral("Base.lproj/Notes.strings"), "");
  put(QStringLiteral("readme.ts"), "");
  EXPECT_THAT(localization.hostLocalizations(), testing::UnorderedElementsAre("de", "pt_BR", "fr"));
}

TEST_F(QtLocalization, TablesAreFoundByNameAndLanguage)
{
  put(QStringLiteral("Notes_de.ts"), source("Open", "Oeffnen"));
  put(QStringLiteral("Base.lproj/Notes.strings"), "\"Open\" = \"Open it\";");
  EXPECT_THAT(localization.hostTable("Notes", "de"), Optional(StringTable{{"Open", "Oeffnen"}}));
  EXPECT_THAT(localization.hostTable("Notes", "Base"), Optional(StringTable{{"Open", "Open it"}}));
  EXPECT_EQ(localization.hostTable("Notes", "fr"), std::nullopt);
  EXPECT_EQ(localization.hostTable("Other", "de"), std::nullopt);
}

TEST_F(QtLocalization, NamesDoNotLeadOutOfTheFolders)
{
  put(QStringLiteral("Notes_de.ts"), source("Open", "Oeffnen"));
  qApp->setProperty("wv_translationFolders", QStringList{folder.filePath(QStringLiteral("below"))});
  EXPECT_EQ(localization.hostTable("../Notes", "de"), std::nullopt);
}

TEST_F(QtLocalization, TableOfAGigabyteIsNone)
{
  for (const char* name : {"de.lproj/Notes.strings", "Notes_fr.ts"}) {
    put(QString::fromLatin1(name), "");
    ASSERT_TRUE(QFile::resize(folder.filePath(QString::fromLatin1(name)), qint64{1} << 30));
  }
  EXPECT_EQ(localization.hostTable("Notes", "de"), std::nullopt);
  EXPECT_EQ(localization.hostTable("Notes", "fr"), std::nullopt);
}

TEST_F(QtLocalization, TablesThatAreCutOffOrNoTextAreNone)
{
  put(QStringLiteral("de.lproj/Notes.strings"), "\"Open\" = \"Oeffnen\";\n\"Close\" = \"Schl");
  put(QStringLiteral("fr.lproj/Notes.strings"), QByteArray("\xFF\xFE\x22\x00\x4F", 5));
  put(QStringLiteral("it.lproj/Notes.strings"), "\"Open\" = \"Apr\xEC\";");
  put(QStringLiteral("es.lproj/Notes.strings"), "<plist><dict><key>Open</key>");
  for (const char* language : {"de", "fr", "it", "es"})
    EXPECT_EQ(localization.hostTable("Notes", language), std::nullopt) << language;
}

TEST_F(QtLocalization, TextOfTheCurrentLanguageComesFromItsTable)
{
  put(QStringLiteral("Notes_de.ts"), source("Open", "Oeffnen"));
  QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
  EXPECT_THAT(localization.hostString("Notes", "Open"), Optional(std::string("Oeffnen")));
  EXPECT_EQ(localization.hostString("Notes", "Close"), std::nullopt);
}

TEST_F(QtLocalization, TextThatTheCurrentLanguageLacksComesFromTheBaseTable)
{
  put(QStringLiteral("Base.lproj/Notes.strings"), "\"Open\" = \"Open it\";");
  put(QStringLiteral("Notes_de.ts"), source("Close", "Zumachen"));
  QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
  EXPECT_THAT(localization.hostString("Notes", "Open"), Optional(std::string("Open it")));
}

TEST_F(QtLocalization, HostsOwnTableRewordsTheFrameworkButNotWithItsKeys)
{
  put(QStringLiteral("Base.lproj/Wayvane.strings"),
      "\"WV.Step.Format\" = \"%lu/%lu\"; \"WV.Menu.RecordGuide\" = \"WV.Menu.RecordGuide\";");
  QLocale::setDefault(QLocale(QStringLiteral("en_US")));
  EXPECT_THAT(localization.frameworkString("WV.Step.Format"), Optional(std::string("%lu/%lu")));
  EXPECT_THAT(localization.frameworkString("WV.Menu.RecordGuide"), Optional(std::string("Record Guide…")));
}

TEST_F(QtLocalization, InstalledTranslatorWins)
{
  struct Translator : QTranslator {
    [[nodiscard]] QString translate(const char* context, const char* text, const char*, int) const override
    {
      const bool isOurs = QByteArray(context) == "Wayvane" && QByteArray(text) == "WV.Step.Format";
      return isOurs ? QStringLiteral("%lu von %lu") : QString();
    }

    [[nodiscard]] bool isEmpty() const override { return false; }
  } translator;

  QCoreApplication::installTranslator(&translator);
  EXPECT_THAT(localization.frameworkString("WV.Step.Format"), Optional(std::string("%lu von %lu")));
  EXPECT_EQ(localization.frameworkString("WV.Other"), std::nullopt);
  QCoreApplication::removeTranslator(&translator);
}

} // namespace
} // namespace wayvane::qt::test
