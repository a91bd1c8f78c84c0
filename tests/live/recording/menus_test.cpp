#include "RecordingTest.h"

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

namespace wayvane::qt::test {
namespace {

/// A program with menus, pop-ups and lists that drop down.
class Menus : public RecordingTest {
protected:
  Menus()
  {
    QMenu* const file = window->menuBar()->addMenu(QStringLiteral("File"));
    addCommand(*file, "Open");
    QMenu* const recent = file->addMenu(QStringLiteral("Recent"));
    addCommand(*recent, "Last");
    addCommand(*window->menuBar()->addMenu(QStringLiteral("Edit")), "Copy");
    combo = new QComboBox(window);
    combo->setObjectName(QStringLiteral("size"));
    combo->addItems({QStringLiteral("Small"), QStringLiteral("Large")});
    combo->setGeometry(40, 140, 160, 30);
    combo->show();
    wait(20);
  }

  QAction* addCommand(QMenu& menu, const char* title)
  {
    QAction* const action = menu.addAction(QString::fromLatin1(title));
    action->setObjectName(QString::fromLatin1(title).toLower());
    QObject::connect(action, &QAction::triggered, action,
                     [this, text = std::string(title)] { acts.push_back(text); });
    return action;
  }

  static QWidget* openPopup()
  {
    return waitUntil([] { return QApplication::activePopupWidget() != nullptr; })
               ? QApplication::activePopupWidget()
               : nullptr;
  }

  void clickListEntry(int row) const
  {
    const QAbstractItemView& view = *combo->view();
    click(*view.viewport(), view.visualRect(combo->model()->index(row, 0)).center());
  }

  QComboBox* combo = nullptr;
};

TEST_F(Menus, ACommandIsAStepAndOpeningItsMenuIsNone)
{
  QMenu* const menu = openMenu(*window, QStringLiteral("File"));
  ASSERT_TRUE(menu);
  EXPECT_TRUE(nothingIsAsked()) << "about the menu bar";
  EXPECT_TRUE(menu->isVisible());
  choose(*menu, QStringLiteral("Open"));
  ASSERT_TRUE(annotate());
  EXPECT_THAT(acts, ElementsAre("Open"));
  EXPECT_THAT(steps(), ElementsAre("File > Open: Here | Press it."));
  EXPECT_EQ(recorder->guide()->steps.front().target.menuAction, "open");
  EXPECT_THAT(takeLog(), IsEmpty());
  EXPECT_TRUE(finishes());
}

TEST_F(Menus, ACommandWithoutWordsIsNamedAfterItself)
{
  QMenu* const menu = openMenu(*window, QStringLiteral("Edit"));
  ASSERT_TRUE(menu);
  choose(*menu, QStringLiteral("Copy"));
  ASSERT_TRUE(annotate({}, {}));
  EXPECT_THAT(steps(), ElementsAre("Edit > Copy: Copy | Click here"));
}

TEST_F(Menus, ACommandOfASubmenuHasAllTitlesOnItsWay)
{
  QMenu* const menu = openMenu(*window, QStringLiteral("File"));
  ASSERT_TRUE(menu);
  press(*menu, Qt::Key_Down);
  press(*menu, Qt::Key_Down);
  press(*menu, Qt::Key_Right);
  ASSERT_TRUE(waitUntil([&] { return QApplication::activePopupWidget() != menu; }));
  press(*QApplication::activePopupWidget(), Qt::Key_Return);
  ASSERT_TRUE(annotate());
  EXPECT_THAT(acts, ElementsAre("Last"));
  EXPECT_THAT(steps(), ElementsAre("File > Recent > Last: Here | Press it."));
}

TEST_F(Menus, AMenuThatIsLeftIsNoStep)
{
  QMenu* const menu = openMenu(*window, QStringLiteral("File"));
  ASSERT_TRUE(menu);
  press(*menu, Qt::Key_Escape);
  EXPECT_TRUE(nothingIsAsked());
  click(*save);
  ASSERT_TRUE(annotate());
  EXPECT_THAT(steps(), ElementsAre("QPushButton#save 'Save' @Main: Here | Press it."));
}

TEST_F(Menus, ACommandThatEndsItsWindowEndsTheAnnotationWithIt)
{
  QMenu* const menu = openMenu(*window, QStringLiteral("Edit"));
  ASSERT_TRUE(menu);
  QObject::connect(menu->actions().front(), &QAction::triggered, second, [this] { window->deleteLater(); });
  choose(*menu, QStringLiteral("Copy"));
  EXPECT_TRUE(waitUntil([this] { return window.isNull(); }));
  EXPECT_TRUE(nothingIsAsked());
  EXPECT_THAT(acts, ElementsAre("Copy"));
  EXPECT_THAT(steps(), IsEmpty());
  EXPECT_FALSE(recorder->capturingAnnotation());
  EXPECT_TRUE(finishes());
}

TEST_F(Menus, ACommandOfAContextMenuWorksAndIsNoStep)
{
  QLabel* const label = new QLabel(QStringLiteral("Text"), window);
  label->setGeometry(40, 200, 100, 30);
  label->setContextMenuPolicy(Qt::CustomContextMenu);
  label->show();
  QMenu context;
  addCommand(context, "Shout");
  QObject::connect(label, &QWidget::customContextMenuRequested, &context,
                   [&](QPoint at) { context.popup(label->mapToGlobal(at)); });
  QContextMenuEvent asked(QContextMenuEvent::Mouse, {10, 10}, label->mapToGlobal(QPoint(10, 10)));
  click(*label, {10, 10}, Qt::RightButton);
  QApplication::sendEvent(label, &asked);
  ASSERT_EQ(openPopup(), &context);
  choose(context, QStringLiteral("Shout"));
  EXPECT_THAT(acts, ElementsAre("Shout"));
  EXPECT_TRUE(nothingIsAsked());
  EXPECT_THAT(steps(), IsEmpty());
}

TEST_F(Menus, AShortcutOfACommandIsItsStep)
{
  QAction* const copy = window->menuBar()->actions().last()->menu()->actions().front();
  copy->setShortcut(QKeySequence(QStringLiteral("Ctrl+K")));
  press(*window, Qt::Key_K, Qt::ControlModifier);
  ASSERT_TRUE(annotate());
  EXPECT_THAT(acts, ElementsAre("Copy"));
  EXPECT_THAT(steps(), ElementsAre("Edit > Copy: Here | Press it."));
}

TEST_F(Menus, AListThatDropsDownIsOneStepAndTheChoiceInItNone)
{
  click(*combo, {10, 15});
  ASSERT_TRUE(openPopup());
  ASSERT_TRUE(waitUntil([] { return popover() != nullptr; }));
  EXPECT_TRUE(combo->view()->isVisible()) << "the annotation does not close it";
  clickListEntry(1);
  EXPECT_TRUE(waitUntil([this] { return !combo->view()->isVisible(); }));
  EXPECT_EQ(combo->currentText(), QStringLiteral("Large"));
  ASSERT_TRUE(annotate()) << "the choice does not close the annotation";
  EXPECT_TRUE(nothingIsAsked());
  EXPECT_THAT(steps(), ElementsAre("QComboBox#size 'Small' @Main: Here | Press it."));
  EXPECT_TRUE(finishes());
}

TEST_F(Menus, AQuickChoiceFromAListIsTheSameStep)
{
  click(*combo, {10, 15});
  ASSERT_TRUE(openPopup());
  // A release soon after the opening belongs to the press that opened it.
  wait(20);
  press(*openPopup(), Qt::Key_Down);
  press(*openPopup(), Qt::Key_Return);
  EXPECT_EQ(combo->currentText(), QStringLiteral("Large"));
  ASSERT_TRUE(annotate());
  EXPECT_THAT(steps(), ElementsAre("QComboBox#size 'Small' @Main: Here | Press it."));
}

TEST_F(Menus, TheMenuOfAToolButtonIsTheStepOfTheButton)
{
  QToolBar* const bar = window->addToolBar(QStringLiteral("Tools"));
  auto* const button = new QToolButton;
  button->setObjectName(QStringLiteral("more"));
  button->setText(QStringLiteral("More"));
  button->setPopupMode(QToolButton::InstantPopup);
  QMenu menu;
  addCommand(menu, "Twirl");
  button->setMenu(&menu);
  bar->addWidget(button);
  wait(20);
  bool wasAsked = false;
  bool stayedOpen = false;
  // The press runs the menu until it is closed.
  QTimer::singleShot(0, &menu, [&] {
    wasAsked = waitUntil([] { return popover() != nullptr; });
    stayedOpen = menu.isVisible();
    choose(menu, QStringLiteral("Twirl"));
  });
  click(*button);
  EXPECT_TRUE(wasAsked);
  EXPECT_TRUE(stayedOpen);
  EXPECT_THAT(acts, ElementsAre("Twirl"));
  ASSERT_TRUE(annotate());
  EXPECT_TRUE(nothingIsAsked());
  EXPECT_THAT(steps(), ElementsAre("QToolButton#more 'More' @Main: Here | Press it."));
}

TEST_F(Menus, AClickInAPopUpFormIsAStepOfTheForm)
{
  auto* const form = new QWidget(window, Qt::Popup);
  form->setWindowTitle(QStringLiteral("Form"));
  form->setGeometry(200, 300, 200, 100);
  QPushButton* const inside = addButton(form, "Inside", {20, 20, 100, 30});
  show(*form);
  click(*inside);
  EXPECT_THAT(acts, ElementsAre("Inside"));
  ASSERT_TRUE(waitUntil([] { return popover() != nullptr; }));
  EXPECT_TRUE(form->isVisible()) << "the annotation does not close it";
  click(*popover(), popover()->rect().center());
  EXPECT_TRUE(waitUntil([form] { return !form->isVisible(); })) << "it is left for the annotation";
  ASSERT_TRUE(annotate());
  EXPECT_THAT(steps(), ElementsAre("QPushButton#inside 'Inside' @Form: Here | Press it."));
}

TEST_F(Menus, TheAnnotationGetsTheKeyboardWhenItIsClickedOverAnOpenList)
{
  click(*combo, {10, 15});
  ASSERT_TRUE(openPopup());
  ASSERT_TRUE(waitUntil([] { return popover() != nullptr; }));
  click(*popover(), popover()->rect().center());
  EXPECT_TRUE(waitUntil([this] { return !combo->view()->isVisible(); })) << "the list is left";
  EXPECT_EQ(combo->currentText(), QStringLiteral("Small"));
  ASSERT_TRUE(annotate());
  EXPECT_THAT(steps(), ElementsAre("QComboBox#size 'Small' @Main: Here | Press it."));
}

} // namespace
} // namespace wayvane::qt::test
