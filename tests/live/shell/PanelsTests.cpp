#include "ShellTest.h"

#include <QDialog>
#include <QLineEdit>
#include <QTimer>

namespace wayvane::qt::test {
namespace {

using platform::Rect;

class QtFloatingPanel : public ShellTest {
protected:
  QtFloatingPanel()
  {
    platform::FloatingPanelSpec spec;
    spec.size = {200, 44};
    spec.background = platform::Color::controlBackground();
    spec.cornerRadius = 10;
    spec.movable = true;
    spec.accessibilityTitle = "Recording";
    panel = wayvane().panels.makeFloatingPanel(spec);
    undo = &panel->addButton({"Undo", true, [this] { ++undone; }});
    done = &panel->addButton({"Save & Done With All Of It", false, [this] { ++finished; }});
    const platform::Size size = done->fittingSize();
    done->setFrame({90, (44 - size.height) / 2, size.width, size.height});
    undo->setFrame({10, 10, undo->fittingSize().width, 24});
    panel->setFrame({600, 700, 200, 44});
  }

  void show()
  {
    panel->orderFront();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(widget()));
  }

  [[nodiscard]] static QWidget* widget()
  {
    for (QWidget* top : QApplication::topLevelWidgets())
      if (top->objectName() == QStringLiteral("wv_panel")) return top;
    return nullptr;
  }

  [[nodiscard]] static QPushButton& push(int index)
  {
    return *widget()->findChildren<QPushButton*>().at(index);
  }

  std::unique_ptr<platform::FloatingPanel> panel;
  platform::PanelButton* undo = nullptr;
  platform::PanelButton* done = nullptr;
  int undone = 0;
  int finished = 0;
};

TEST_F(QtFloatingPanel, KeepsFrameInScreenCoordinates)
{
  show();
  EXPECT_EQ(panel->frame(), (Rect{600, 700, 200, 44}));
  EXPECT_EQ(panel->window()->frame(), panel->frame());
  EXPECT_TRUE(panel->isVisible());
  keepPicture(widget()->grab().toImage(), QStringLiteral("panel"));
  panel->orderOut();
  EXPECT_FALSE(panel->isVisible());
}

TEST_F(QtFloatingPanel, ButtonsFitTheirTitlesAndShowAmpersands)
{
  EXPECT_EQ(done->title(), "Save & Done With All Of It");
  EXPECT_GT(done->fittingSize().width, undo->fittingSize().width);
  EXPECT_GT(done->fittingSize().height, 10);
  EXPECT_EQ(push(1).text(), QStringLiteral("Save && Done With All Of It"));
  EXPECT_TRUE(push(1).shortcut().isEmpty());
}

TEST_F(QtFloatingPanel, ButtonsWorkAndTheProgramKeepsTheKeyboard)
{
  button->setFocus();
  show();
  click(push(1));
  click(push(0));
  EXPECT_EQ(finished, 1);
  EXPECT_EQ(undone, 1);
  EXPECT_EQ(QApplication::activeWindow(), window.get());
  EXPECT_EQ(QApplication::focusWidget(), button);
}

TEST_F(QtFloatingPanel, ButtonsWorkWhileAModalDialogIsOpen)
{
  show();
  QDialog dialog(window.get());
  QTimer::singleShot(80, &dialog, [&] {
    click(push(1));
    dialog.accept();
  });
  dialog.exec();
  EXPECT_EQ(finished, 1);
}

TEST_F(QtFloatingPanel, ButtonsWorkThroughNestedModalDialogs)
{
  show();
  QDialog outer(window.get());
  QTimer::singleShot(60, &outer, [&] {
    {
      QDialog inner(&outer);
      QTimer::singleShot(60, &inner, [&] {
        click(push(1));
        inner.accept();
      });
      inner.exec();
    }
    spin(60);
    click(push(1));
    outer.accept();
  });
  outer.exec();
  EXPECT_EQ(finished, 2);
  spin();
  click(push(1));
  EXPECT_EQ(finished, 3);
}

TEST_F(QtFloatingPanel, PanelShownDuringAModalDialogWorksToo)
{
  QDialog dialog(window.get());
  QTimer::singleShot(60, &dialog, [&] {
    show();
    spin(60);
    click(push(1));
    dialog.accept();
  });
  dialog.exec();
  EXPECT_EQ(finished, 1);
}

TEST_F(QtFloatingPanel, DraggingItsBackgroundMovesIt)
{
  show();
  QWindow* native = widget()->windowHandle();
  QTest::mousePress(native, Qt::LeftButton, {}, QPoint(3, 3));
  QTest::mouseMove(native, QPoint(23, 33));
  spin();
  QTest::mouseRelease(native, Qt::LeftButton, {}, QPoint(3, 3));
  spin();
  EXPECT_EQ(panel->frame(), (Rect{620, 670, 200, 44}));
}

TEST_F(QtFloatingPanel, ClickMayEndThePanel)
{
  panel->addButton({"End", false, [this] { panel.reset(); }}).setFrame({150, 10, 40, 20});
  show();
  click(push(2));
  EXPECT_EQ(panel, nullptr);
  spin();
  EXPECT_EQ(widget(), nullptr);
}

TEST_F(QtFloatingPanel, DoesNotKeepTheProgramAlive)
{
  EXPECT_FALSE(widget()->testAttribute(Qt::WA_QuitOnClose));
}

class QtPopover : public ShellTest {
protected:
  QtPopover()
  {
    platform::PopoverSpec spec;
    spec.contentSize = {260, 100};
    spec.fields = {{"titleField", {10, 66, 240, 24}, "Step title (optional)", 12},
                   {"msgField", {10, 36, 240, 24}, "Describe this step…", 12}};
    spec.buttons = {{"Cancel", {85, 6, 70, 24}, platform::PopoverButton::Key::Escape, [this] { ++cancels; }},
                    {"Add Step", {170, 6, 80, 24}, platform::PopoverButton::Key::Return, [this] { ++adds; }}};
    spec.onClose = [this] {
      ++closes;
      textAtClose = popover->text("titleField");
    };
    popover = wayvane().panels.makePopover(std::move(spec));
  }

  void show(const Rect& anchor = {40, 220, 120, 40})
  {
    ASSERT_TRUE(popover->show(handle(), anchor));
    ASSERT_TRUE(QTest::qWaitForWindowActive(widget()));
    popover->focusField("titleField");
    spin();
  }

  [[nodiscard]] static QWidget* widget()
  {
    for (QWidget* top : QApplication::topLevelWidgets())
      if (top->objectName() == QStringLiteral("wv_popover")) return top;
    return nullptr;
  }

  [[nodiscard]] static QLineEdit* field(const char* name)
  {
    return widget()->findChild<QLineEdit*>(QString::fromLatin1(name));
  }

  std::unique_ptr<platform::Popover> popover;
  int cancels = 0;
  int adds = 0;
  int closes = 0;
  std::string textAtClose;
};

TEST_F(QtPopover, TabGoesThroughTheFieldsInTheirOrder)
{
  show();
  EXPECT_EQ(QApplication::focusWidget(), field("titleField"));
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Hello"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), field("msgField"));
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("World"));
  EXPECT_EQ(popover->text("titleField"), "Hello");
  EXPECT_EQ(popover->text("msgField"), "World");
  EXPECT_EQ(popover->text("other"), "");
}

TEST_F(QtPopover, ReturnPressesItsButtonAndCloses)
{
  show();
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Title"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(adds, 1);
  EXPECT_EQ(closes, 1);
  EXPECT_EQ(textAtClose, "Title");
  EXPECT_FALSE(popover->isShown());
  spin();
  EXPECT_EQ(closes, 1);
}

TEST_F(QtPopover, EscapePressesItsButtonAndCloses)
{
  show();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  EXPECT_EQ(cancels, 1);
  EXPECT_EQ(closes, 1);
}

TEST_F(QtPopover, ButtonsWorkByMouse)
{
  show();
  click(*widget()->findChildren<QPushButton*>().at(1));
  EXPECT_EQ(adds, 1);
  EXPECT_EQ(closes, 1);
}

TEST_F(QtPopover, PressOutsideClosesItAndReachesTheProgram)
{
  show();
  click(*button);
  EXPECT_EQ(clicks, 1);
  spin();
  EXPECT_EQ(closes, 1);
  EXPECT_EQ(adds + cancels, 0);
  EXPECT_FALSE(popover->isShown());
}

TEST_F(QtPopover, MonitorsMeetThePressOutsideWhileItIsStillOpen)
{
  show();
  bool wasShown = false;
  const platform::Registration token = wayvane().events.addLocalMonitor(
      platform::MouseEvent::Type::LeftMouseDown, [&](const platform::MouseEvent&) {
        wasShown = popover->isShown();
        return platform::EventVerdict::PassOn;
      });
  click(*button);
  EXPECT_TRUE(wasShown);
  spin();
  EXPECT_FALSE(popover->isShown());
}

TEST_F(QtPopover, PressInsideKeepsItOpen)
{
  show();
  click(*field("msgField"));
  spin();
  EXPECT_TRUE(popover->isShown());
  EXPECT_EQ(QApplication::focusWidget(), field("msgField"));
}

TEST_F(QtPopover, HandsTheKeyboardBack)
{
  button->setFocus();
  show();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  EXPECT_TRUE(waitUntil([&] { return QApplication::focusWidget() == button; }));
}

TEST_F(QtPopover, CanBeShownAgain)
{
  show();
  popover->close();
  EXPECT_FALSE(popover->isShown());
  show();
  EXPECT_TRUE(popover->isShown());
  popover->close();
  EXPECT_EQ(closes, 2);
}

TEST_F(QtPopover, LiesBelowItsAnchorWithTheArrowAtItsMiddle)
{
  show();
  const Rect frame = popover->window()->frame();
  const Rect anchor = handle()->convertRectToScreen({40, 220, 120, 40});
  EXPECT_EQ(frame.maxY(), anchor.y);
  EXPECT_NEAR(frame.center().x, anchor.center().x, 1);
  keepPicture(widget()->grab().toImage(), QStringLiteral("popover"));
}

TEST_F(QtPopover, KeepsClearOfTheSidesOfTheScreen)
{
  const QRect screen = window->screen()->availableGeometry();
  window->move(screen.right() - 150, 200);
  spin();
  show({40, 220, 100, 40});
  EXPECT_EQ(popover->window()->frame().maxX(), screen.right() + 1 - 4);
}

TEST_F(QtPopover, LiesAboveItsAnchorWhereThereIsNoRoomBelow)
{
  const QRect screen = window->screen()->availableGeometry();
  window->move(300, screen.bottom() - 320);
  spin();
  show({40, 5, 120, 20});
  const Rect anchor = handle()->convertRectToScreen({40, 5, 120, 20});
  EXPECT_EQ(popover->window()->frame().y, anchor.maxY());
}

TEST_F(QtPopover, CannotBeShownWithoutALivingVisibleWindow)
{
  EXPECT_FALSE(popover->show(nullptr, {}));
  window->hide();
  EXPECT_FALSE(popover->show(handle(), {0, 0, 10, 10}));
  EXPECT_FALSE(popover->isShown());
  EXPECT_EQ(closes, 0);
}

TEST_F(QtPopover, WindowThatGoesTakesItAlong)
{
  show();
  window.reset();
  spin();
  EXPECT_EQ(closes, 1);
  EXPECT_FALSE(popover->isShown());
}

TEST_F(QtPopover, MayBeDroppedFromItsOwnCallback)
{
  platform::PopoverSpec spec;
  spec.contentSize = {100, 50};
  spec.buttons = {{"Go", {10, 10, 80, 24}, platform::PopoverButton::Key::Return, nullptr}};
  spec.onClose = [this] { popover.reset(); };
  popover = wayvane().panels.makePopover(std::move(spec));
  spin();
  ASSERT_TRUE(popover->show(handle(), {0, 0, 10, 10}));
  ASSERT_TRUE(QTest::qWaitForWindowActive(widget()));
  click(*widget()->findChild<QPushButton*>());
  EXPECT_EQ(popover, nullptr);
}

TEST_F(QtPopover, WorksWhileAModalDialogIsOpen)
{
  QDialog dialog(window.get());
  dialog.setGeometry(500, 500, 100, 60);
  QTimer::singleShot(60, &dialog, [&] {
    show();
    spin(60);
    click(*widget()->findChildren<QPushButton*>().at(1));
    dialog.accept();
  });
  dialog.exec();
  EXPECT_EQ(adds, 1);
}

} // namespace
} // namespace wayvane::qt::test
