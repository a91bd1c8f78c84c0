#include "ShellTest.h"

#include <QAccessible>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>

namespace wayvane::qt::test {
namespace {

using platform::AlertAnswer;
using platform::AlertSpec;

class QtAlert : public ShellTest {
protected:
  QtAlert()
  {
    spec.messageText = "Exit Tutorial?";
    spec.informativeText = "You clicked outside.";
    spec.buttons = {"Continue Tutorial", "Exit"};
  }

  [[nodiscard]] static QMessageBox* box()
  {
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  }

  /// Runs the alert and calls `during` while it is shown.
  AlertAnswer run(std::function<void()> during)
  {
    QTimer::singleShot(80, qApp, std::move(during));
    return wayvane().panels.runAlert(spec);
  }

  [[nodiscard]] static QAbstractButton* buttonNamed(const char* title)
  {
    for (QAbstractButton* each : box()->buttons())
      if (each->text() == QString::fromUtf8(title)) return each;
    return nullptr;
  }

  AlertSpec spec;
};

TEST_F(QtAlert, AnswersWithTheIndexOfTheButton)
{
  EXPECT_EQ(run([] { click(*buttonNamed("Continue Tutorial")); }).button, 0);
  EXPECT_EQ(run([] { click(*buttonNamed("Exit")); }).button, 1);
}

TEST_F(QtAlert, ThirdButtonHasIndexTwo)
{
  spec.buttons = {"One", "Two", "Three"};
  EXPECT_EQ(run([] { click(*buttonNamed("Two")); }).button, 1);
  EXPECT_EQ(run([] { click(*buttonNamed("Three")); }).button, 2);
}

TEST_F(QtAlert, FirstButtonIsTheDefaultOne)
{
  EXPECT_EQ(run([] { QTest::keyClick(box(), Qt::Key_Return); }).button, 0);
}

TEST_F(QtAlert, ClosingItChoosesNothing)
{
  EXPECT_EQ(run([] { box()->close(); }).button, -1);
}

TEST_F(QtAlert, EscapeChoosesNothing)
{
  EXPECT_EQ(run([] { QTest::keyClick(box(), Qt::Key_Escape); }).button, -1);
}

TEST_F(QtAlert, AlertWithoutButtonsCanBeLeft)
{
  spec.buttons = {};
  EXPECT_EQ(run([] { box()->close(); }).button, -1);
}

TEST_F(QtAlert, ShowsMarkupAsText)
{
  spec.messageText = "<b>bold</b> & <img src='x'>";
  spec.informativeText = "<h1>huge</h1><br>";
  spec.buttons = {"Save & Quit", "<i>No</i>"};
  QStringList shown;
  QList<Qt::TextFormat> formats;
  QString first;
  QImage picture;
  run([&] {
    for (const QLabel* label : box()->findChildren<QLabel*>()) {
      if (label->text().isEmpty()) continue;
      shown << label->text();
      formats << label->textFormat();
    }
    first = box()->buttons().constFirst()->text();
    picture = box()->grab().toImage();
    box()->close();
  });
  keepPicture(picture, QStringLiteral("alert-markup"));
  EXPECT_TRUE(shown.contains(QStringLiteral("<b>bold</b> & <img src='x'>")));
  EXPECT_TRUE(shown.contains(QStringLiteral("<h1>huge</h1><br>")));
  for (const Qt::TextFormat format : formats)
    EXPECT_EQ(format, Qt::PlainText);
  EXPECT_EQ(first, QStringLiteral("Save && Quit"));
}

TEST_F(QtAlert, FieldHasTheFocusAndItsTextIsTheAnswer)
{
  spec.field = platform::AlertField{{260, 24}, "Untitled", "Guide name"};
  QString before, placeholder;
  QImage picture;
  const AlertAnswer answer = run([&] {
    auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_TRUE(field);
    before = field->text();
    placeholder = field->placeholderText();
    QTest::keyClicks(field, QStringLiteral("My guide"));
    picture = box()->grab().toImage();
    QTest::keyClick(field, Qt::Key_Return);
  });
  keepPicture(picture, QStringLiteral("alert-field"));
  EXPECT_EQ(before, QStringLiteral("Untitled"));
  EXPECT_EQ(placeholder, QStringLiteral("Guide name"));
  EXPECT_EQ(answer.button, 0);
  EXPECT_EQ(answer.fieldText, "My guide");
}

TEST_F(QtAlert, FieldLiesBetweenTheTextsAndTheButtons)
{
  spec.field = platform::AlertField{{260, 24}, "Untitled", "Guide name"};
  int texts = 0, field = 0, buttons = 0;
  run([&] {
    texts = box()->findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"))->geometry().bottom();
    field = box()->findChild<QLineEdit*>()->geometry().center().y();
    buttons = box()->findChild<QDialogButtonBox*>()->geometry().top();
    box()->close();
  });
  EXPECT_LT(texts, field);
  EXPECT_LT(field, buttons);
}

TEST_F(QtAlert, OutlivesTheWindowItAppearedOver)
{
  const AlertAnswer answer = run([&] {
    window.reset();
    spin();
    ASSERT_TRUE(box());
    click(*buttonNamed("Exit"));
  });
  EXPECT_EQ(answer.button, 1);
}

TEST_F(QtAlert, EndsWithoutAnAnswerWhenTheProgramQuits)
{
  int chosen = -2;
  QTimer::singleShot(0, qApp, [&] { chosen = run([] { QCoreApplication::quit(); }).button; });
  QCoreApplication::exec();
  EXPECT_EQ(chosen, -1);
}

TEST_F(QtAlert, EndsWithoutAnAnswerWhenSomebodyDeletesIt)
{
  EXPECT_EQ(run([] { delete box(); }).button, -1);
}

TEST_F(QtAlert, TimersRunWhileItIsShown)
{
  bool ran = false;
  wayvane().mainQueue.after(0.02, [&] { ran = true; });
  run([&] {
    EXPECT_TRUE(ran);
    box()->close();
  });
}

TEST_F(QtAlert, AppearsOverTheActiveWindow)
{
  QPoint middle;
  run([&] {
    middle = box()->geometry().center();
    box()->close();
  });
  EXPECT_LT((middle - window->geometry().center()).manhattanLength(), 60);
}

TEST_F(QtAlert, ReadsAsAnAlertToAssistiveTechnology)
{
  QAccessible::Role role = QAccessible::NoRole;
  run([&] {
    role = QAccessible::queryAccessibleInterface(box())->role();
    box()->close();
  });
  EXPECT_EQ(role, QAccessible::AlertMessage);
}

TEST_F(QtAlert, NestedAlertsAnswerEachForItself)
{
  int inner = -2;
  const AlertAnswer outer = run([&] {
    QTimer::singleShot(80, qApp, [] { click(*buttonNamed("Exit")); });
    inner = wayvane().panels.runAlert(spec).button;
    click(*buttonNamed("Continue Tutorial"));
  });
  EXPECT_EQ(inner, 1);
  EXPECT_EQ(outer.button, 0);
}

} // namespace
} // namespace wayvane::qt::test
