#include <tests/live/elements/Elements.h>
#include <wayvane/platform/qt/QtApplication.h>

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>

namespace wayvane::qt {

namespace {

class Windows : public Elements {
protected:
  [[nodiscard]] static platform::WindowHandle handleTo(QWidget& window) { return windowForWidget(&window); }
};

TEST_F(Windows, AWindowHasClassTitleAndContent)
{
  const auto handle = handleTo(window());
  EXPECT_EQ(handle->className(), "QMainWindow");
  EXPECT_EQ(handle->title(), "Trails");
  EXPECT_TRUE(handle->isVisible());
  EXPECT_FALSE(handle->isUtilityPanel());
  EXPECT_THAT(handle->contentView(), Shows(&window()));
  EXPECT_THAT(handle->frameView(), Shows(&window()));
}

TEST_F(Windows, TheMarkOfAChangedDocumentIsNotInTheTitle)
{
  window().setWindowTitle(QStringLiteral("Tour[*] - Trails"));
  EXPECT_EQ(handleTo(window())->title(), "Tour - Trails");
  window().setWindowTitle(QStringLiteral("Array[*][*]"));
  EXPECT_EQ(handleTo(window())->title(), "Array[*]");
}

TEST_F(Windows, OurOwnWindowsAreNamedSo)
{
  QWidget ours;
  ours.setProperty("wv_own", true);
  EXPECT_EQ(handleTo(ours)->className(), "WVQWidget");
}

TEST_F(Windows, AToolWindowIsAUtilityPanel)
{
  QWidget tool(&window(), Qt::Tool);
  EXPECT_TRUE(handleTo(tool)->isUtilityPanel());
}

TEST_F(Windows, WhatWaitsToBeDrawnIsDrawn)
{
  class Counting : public QWidget {
  public:
    using QWidget::QWidget;
    int paints = 0;

  protected:
    void paintEvent(QPaintEvent* /*event*/) override { ++paints; }
  };

  auto* canvas = add<Counting>(QRect(10, 10, 50, 50));
  ASSERT_TRUE(QTest::qWaitFor([&] { return canvas->paints > 0; }));
  const int before = canvas->paints;
  canvas->update();
  handleTo(window())->displayIfNeeded();
  EXPECT_GT(canvas->paints, before);
}

// Tool bars

class ToolBars : public Windows {
protected:
  void SetUp() override
  {
    Windows::SetUp();
    bar_ = window().addToolBar(QStringLiteral("Main"));
  }

  [[nodiscard]] QToolBar& bar() { return *bar_; }

  /// After the layout, which is when a tool bar shows what is in it.
  [[nodiscard]] std::vector<platform::ToolbarItem> items()
  {
    QTest::qWait(5);
    return handleTo(window())->toolbarItems();
  }

private:
  QToolBar* bar_ = nullptr;
};

TEST_F(ToolBars, EntriesAreTheActionsInOrder)
{
  QAction* action = bar().addAction(QStringLiteral("&New"));
  action->setObjectName(QStringLiteral("newTour"));
  action->setToolTip(QStringLiteral("Begin a tour"));
  bar().addSeparator();
  bar().addAction(QStringLiteral("Share"));
  const auto entries = items();
  ASSERT_EQ(entries.size(), 2U);
  EXPECT_THAT(entries[0].itemIdentifier, Optional(std::string("newTour")));
  EXPECT_THAT(entries[0].label, Optional(std::string("New")));
  EXPECT_THAT(entries[0].toolTip, Optional(std::string("Begin a tour")));
  EXPECT_THAT(entries[0].view, Shows(bar().widgetForAction(action)));
  EXPECT_FALSE(entries[1].itemIdentifier);
  EXPECT_FALSE(entries[1].toolTip) << "the toolkit's own, made of the text";
}

TEST_F(ToolBars, AWidgetInTheBarIsAnEntry)
{
  auto* field = new QLineEdit;
  bar().addWidget(field);
  const auto entries = items();
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_THAT(entries[0].view, Shows(field));
  EXPECT_FALSE(entries[0].label);
}

TEST_F(ToolBars, AHiddenEntryHasNoView)
{
  QAction* action = bar().addAction(QStringLiteral("New"));
  action->setVisible(false);
  ASSERT_EQ(items().size(), 1U);
  EXPECT_THAT(items()[0].view, IsNull());
  action->setVisible(true);
  EXPECT_THAT(items()[0].view, NotNull());
  bar().hide();
  EXPECT_THAT(items()[0].view, IsNull());
}

TEST_F(ToolBars, SeveralBarsFollowTheirPlaces)
{
  bar().addAction(QStringLiteral("Upper"));
  window().addToolBarBreak();
  window().addToolBar(QStringLiteral("Second"))->addAction(QStringLiteral("Lower"));
  QTest::qWait(10);
  ASSERT_EQ(items().size(), 2U);
  EXPECT_THAT(items()[0].label, Optional(std::string("Upper")));
  window().insertToolBarBreak(&bar());
  auto* second = window().findChildren<QToolBar*>().last();
  window().removeToolBar(&bar());
  window().removeToolBar(second);
  window().addToolBar(Qt::TopToolBarArea, second);
  window().addToolBarBreak();
  window().addToolBar(Qt::TopToolBarArea, &bar());
  bar().show();
  second->show();
  QTest::qWait(10);
  ASSERT_EQ(items().size(), 2U);
  EXPECT_THAT(items()[0].label, Optional(std::string("Lower")));
}

TEST_F(ToolBars, AWindowWithoutBarHasNoEntries)
{
  QWidget plain;
  EXPECT_THAT(handleTo(plain)->toolbarItems(), IsEmpty());
}

// The program

class Program : public Windows {
protected:
  [[nodiscard]] const QtApplication& application() const { return application_; }

  [[nodiscard]] static std::vector<QWidget*> widgetsOf(const std::vector<platform::WindowHandle>& windows)
  {
    std::vector<QWidget*> widgets;
    for (const auto& window : windows)
      widgets.push_back(widgetOf(*window));
    return widgets;
  }

  static void use(QWidget& window)
  {
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; }));
  }

private:
  QtApplication application_;
};

TEST_F(Program, TheWindowUsedLastIsInFront)
{
  QMainWindow other;
  use(other);
  EXPECT_THAT(widgetsOf(application().orderedWindows()), ElementsAre(&other, &window()));
  use(window());
  EXPECT_THAT(widgetsOf(application().orderedWindows()), ElementsAre(&window(), &other));
  EXPECT_EQ(widgetOf(*application().keyWindow()), &window());
}

TEST_F(Program, WindowsAreListedInTheOrderOfTheirMaking)
{
  QMainWindow other;
  use(other);
  use(window());
  other.hide();
  EXPECT_THAT(widgetsOf(application().windows()), ElementsAre(&window(), &other));
  EXPECT_THAT(widgetsOf(application().orderedWindows()), ElementsAre(&window()));
}

TEST_F(Program, ADialogLiesAboveTheWindowItBelongsTo)
{
  QDialog dialog(&window());
  use(dialog);
  use(window());
  EXPECT_THAT(widgetsOf(application().orderedWindows()), ElementsAre(&dialog, &window()));
}

TEST_F(Program, MenusAreNoWindows)
{
  QMenu menu;
  menu.addAction(QStringLiteral("Cut"));
  menu.popup(QPoint(300, 300));
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&menu));
  EXPECT_THAT(widgetsOf(application().orderedWindows()), ElementsAre(&window()));
}

TEST_F(Program, ADialogOfAMainWindowLeavesItTheMainOne)
{
  use(window());
  QDialog dialog(&window());
  use(dialog);
  EXPECT_EQ(widgetOf(*application().mainWindow()), &window());
  EXPECT_EQ(widgetOf(*application().keyWindow()), &dialog);
}

TEST_F(Program, WithoutAMainWindowAnyWindowIs)
{
  QWidget plain;
  use(plain);
  EXPECT_EQ(widgetOf(*application().mainWindow()), &window()) << "a main window goes first";
  window().hide();
  EXPECT_EQ(widgetOf(*application().mainWindow()), &plain);
  plain.hide();
  EXPECT_THAT(application().mainWindow(), IsNull());
}

TEST_F(Program, TheProgramIsKnownByItsDomainAndName)
{
  EXPECT_THAT(application().bundleIdentifier(), Optional(std::string("org.example.Notes")));
  QCoreApplication::setOrganizationDomain(QString());
  EXPECT_THAT(application().bundleIdentifier(), Optional(std::string("Notes")));
  qApp->setProperty("wv_bundleIdentifier", QStringLiteral("com.host.Own"));
  EXPECT_THAT(application().bundleIdentifier(), Optional(std::string("com.host.Own")));
  qApp->setProperty("wv_bundleIdentifier", QVariant());
  QCoreApplication::setOrganizationDomain(QStringLiteral("example.org"));
}

TEST_F(Program, TheProgramTellsItsVersions)
{
  EXPECT_THAT(application().shortVersion(), Optional(std::string("1.4")));
  EXPECT_FALSE(application().bundleVersion());
  qApp->setProperty("wv_bundleVersion", QStringLiteral("1407"));
  EXPECT_THAT(application().bundleVersion(), Optional(std::string("1407")));
  qApp->setProperty("wv_bundleVersion", QVariant());
}

} // namespace

} // namespace wayvane::qt
