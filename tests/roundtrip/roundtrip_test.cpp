#include "Figures.h"
#include "Program.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QStandardPaths>

#include <gtest/gtest.h>

#include <iostream>

namespace roundtrip {

namespace {

/// What must hold of a program, a little below what does.
struct Floor {
  int elements;
  double same;
  double withoutIdentifiers;
  double withoutPlace;
};

class RoundTrip : public testing::Test {
protected:
  static void TearDownTestSuite()
  {
    std::cout << '\n' << tables(programs_).toStdString() << std::endl;
    programs_.clear();
  }

  void expect(const Program& program, const Floor& floor)
  {
    const auto recorded = record(program);
    ASSERT_TRUE(recorded.failure.isEmpty()) << (program.name + " " + recorded.failure).toStdString();
    const auto replayed = replay(program);
    ASSERT_TRUE(replayed.failure.isEmpty()) << (program.name + " " + replayed.failure).toStdString();
    const Figures figures = figuresOf(recorded.report, replayed.report);
    programs_[program.name] = figures;
    EXPECT_TRUE(figures.failures.isEmpty()) << figures.failures.join("\n").toStdString();
    EXPECT_GE(figures.asRecorded.all(), floor.elements);
    EXPECT_GE(figures.asRecorded.share(), floor.same) << figures.misses.join("\n").toStdString();
    EXPECT_GE(figures.inAnotherRun.share(), floor.same) << figures.misses.join("\n").toStdString();
    EXPECT_GE(figures.withoutIdentifiers.share(), floor.withoutIdentifiers);
    EXPECT_GE(figures.withoutPlace.share(), floor.withoutPlace);
  }

private:
  static inline QMap<QString, Figures> programs_;
};

TEST_F(RoundTrip, FindsTheElementsOfTheDemoHostAgain)
{
  expect({"trailbook", ROUNDTRIP_DEMO, R"(translate trailbook
walk main
choose Packing List
walk packing
press addItemButton
walk longer list
close Packing List
choose New Trail
walk new trail
choose About Trailbook
walk about
quit
)"},
         {60, 99, 99, 70});
}

TEST_F(RoundTrip, FindsTheElementsOfAFormDesignerAgain)
{
  expect({"designer", QLibraryInfo::path(QLibraryInfo::BinariesPath) + "/designer", R"(install
walk new form
press Create
walk form
tab Action Editor
walk actions
tab Resource Browser
walk resources
choose Preferences...
walk preferences
tab Embedded Design
walk embedded design
close Preferences
choose Form Settings...
walk settings
quit
)"},
         {140, 99, 85, 45});
}

TEST_F(RoundTrip, FindsTheElementsOfAWritersEditorAgain)
{
  expect({"focuswriter", QStandardPaths::findExecutable("focuswriter"), R"(install
walk full screen
choose Fullscreen
hover Untitled
walk window
choose Find...
walk find
choose Replace...
walk replace
close Replace
choose Symbols...
walk symbols
close Symbols
choose Timers...
walk timers
close Timers
choose Themes...
walk themes
press New
walk theme
close New Theme
close Themes
choose Preferences...
walk preferences
tab Daily Goal
walk goal
quit
)"},
         {180, 99, 99, 45});
}

} // namespace

} // namespace roundtrip
