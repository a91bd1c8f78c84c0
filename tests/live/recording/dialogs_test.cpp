#include "RecordingTest.h"

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTimer>

namespace wayvane::qt::test {
namespace {

/// A program that asks its user something now and then.
class Dialogs : public RecordingTest {
protected:
  /// Runs a modal dialog with one button that does not close it, and `body` meanwhile.
  void whileDialogRuns(const std::function<void(QDialog&)>& body)
  {
    QDialog dialog(window);
    dialog.setWindowTitle(QStringLiteral("Question"));
    dialog.resize(300, 200);
    addButton(&dialog, "Inside", {40, 40, 120, 32});
    QTimer::singleShot(50, &dialog, [&] {
      body(dialog);
      dialog.reject();
    });
    dialog.exec();
  }

  static QPushButton& inside(const QDialog& dialog)
  {
    return *dialog.findChild<QPushButton*>(QStringLiteral("inside"));
  }
};

TEST_F(Dialogs, AClickInAModalOneIsAnnotatedOverIt)
{
  whileDialogRuns([&](QDialog& dialog) {
    click(inside(dialog));
    EXPECT_TRUE(annotate());
    EXPECT_EQ(counter(), "1 steps");
  });
  EXPECT_THAT(acts, ElementsAre("Inside"));
  EXPECT_THAT(steps(), ElementsAre("QPushButton#inside 'Inside' @Question: Here | Press it."));
  EXPECT_TRUE(finishes());
}

TEST_F(Dialogs, TheAnnotationCanBeAnsweredWithTheMouseToo)
{
  whileDialogRuns([&](QDialog& dialog) {
    click(inside(dialog));
    ASSERT_TRUE(waitUntil([] { return popover() != nullptr; }));
    wait(50);
    for (QPushButton* const button : popover()->findChildren<QPushButton*>())
      if (button->text() == QStringLiteral("Add Step")) {
        click(*button);
        break;
      }
    EXPECT_TRUE(waitUntil([] { return !popover(); }));
  });
  EXPECT_THAT(steps(), ElementsAre("QPushButton#inside 'Inside' @Question: - | Click here"));
}

TEST_F(Dialogs, UndoAndDoneWorkWhileOneIsOpen)
{
  click(*save);
  ASSERT_TRUE(annotate());
  whileDialogRuns([&](QDialog& dialog) {
    click(inside(dialog));
    EXPECT_TRUE(annotate());
    EXPECT_EQ(counter(), "2 steps");
    click(*panelButton(QStringLiteral("Undo")));
    EXPECT_EQ(counter(), "1 steps");
    EXPECT_TRUE(finishes());
    EXPECT_TRUE(dialog.isVisible()) << "the dialog goes on";
    click(inside(dialog));
    EXPECT_TRUE(nothingIsAsked());
  });
  EXPECT_THAT(acts, ElementsAre("Save", "Inside", "Inside"));
  EXPECT_THAT(steps(), ElementsAre("QPushButton#save 'Save' @Main: Here | Press it."));
}

TEST_F(Dialogs, UndoAndDoneWorkInDialogsWithinDialogs)
{
  click(*save);
  ASSERT_TRUE(annotate());
  whileDialogRuns([&](QDialog&) {
    whileDialogRuns([&](QDialog& inner) {
      click(inside(inner));
      EXPECT_TRUE(annotate());
      click(*panelButton(QStringLiteral("Undo")));
      EXPECT_EQ(counter(), "1 steps");
    });
    wait(50);
    click(*panelButton(QStringLiteral("Undo")));
    EXPECT_EQ(counter(), "0 steps");
    EXPECT_TRUE(finishes());
  });
}

TEST_F(Dialogs, AClickOnTheWindowBlockedByOneIsNoStep)
{
  whileDialogRuns([&](QDialog&) {
    click(*save);
    EXPECT_TRUE(nothingIsAsked());
  });
  EXPECT_THAT(acts, IsEmpty());
  EXPECT_THAT(steps(), IsEmpty());
}

TEST_F(Dialogs, TheClickThatClosesOneIsKeptWithoutWords)
{
  QDialog dialog(window);
  dialog.setWindowTitle(QStringLiteral("Question"));
  dialog.resize(300, 200);
  QPushButton* const yes = addButton(&dialog, "Yes", {40, 40, 120, 32});
  QObject::connect(yes, &QPushButton::clicked, &dialog, &QDialog::accept);
  QTimer::singleShot(50, &dialog, [&] { click(*yes); });
  EXPECT_EQ(dialog.exec(), QDialog::Accepted);
  EXPECT_TRUE(nothingIsAsked());
  EXPECT_THAT(acts, ElementsAre("Yes"));
  EXPECT_THAT(steps(), ElementsAre("QPushButton#yes 'Yes' @Question: - | "));
  EXPECT_TRUE(finishes());
}

TEST_F(Dialogs, OneThatEndsWhileTheAnnotationIsOpenTakesItAlong)
{
  whileDialogRuns([&](QDialog& dialog) {
    click(inside(dialog));
    ASSERT_TRUE(waitUntil([] { return popover() != nullptr; }));
  });
  EXPECT_TRUE(waitUntil([] { return !popover(); }));
  EXPECT_FALSE(recorder->capturingAnnotation());
  EXPECT_THAT(steps(), IsEmpty());
}

TEST_F(Dialogs, OneOpenedByTheClickIsAskedOver)
{
  QObject::connect(save, &QPushButton::clicked, window, [&] {
    whileDialogRuns([&](QDialog& dialog) {
      EXPECT_TRUE(annotate()) << "about the button that opened it";
      click(inside(dialog));
      EXPECT_TRUE(annotate(QStringLiteral("Then"), QStringLiteral("this.")));
    });
  });
  click(*save);
  EXPECT_THAT(steps(), ElementsAre("QPushButton#save 'Save' @Main: Here | Press it.",
                                   "QPushButton#inside 'Inside' @Question: Then | this."));
  EXPECT_TRUE(finishes());
}

TEST_F(Dialogs, OneOpenedByAMenuCommandIsAskedOver)
{
  QMenu* const file = window->menuBar()->addMenu(QStringLiteral("File"));
  QAction* const print = file->addAction(QStringLiteral("Print"));
  print->setObjectName(QStringLiteral("printAction"));
  QObject::connect(print, &QAction::triggered, window, [&] {
    acts.emplace_back("Print");
    whileDialogRuns([&](QDialog&) { EXPECT_TRUE(annotate()); });
  });
  wait(20);
  QMenu* const menu = openMenu(*window, QStringLiteral("File"));
  ASSERT_TRUE(menu);
  choose(*menu, QStringLiteral("Print"));
  EXPECT_TRUE(waitUntil([this] { return recorder->guide()->steps.size() == 1; }));
  EXPECT_THAT(acts, ElementsAre("Print"));
  EXPECT_THAT(steps(), ElementsAre("File > Print: Here | Press it."));
  EXPECT_EQ(recorder->guide()->steps.front().target.menuAction, "printAction");
  EXPECT_TRUE(finishes());
}

TEST_F(Dialogs, AMessageBoxIsRecordedLikeAnyOther)
{
  QMessageBox box(QMessageBox::Question, QStringLiteral("Sure?"), QStringLiteral("Really?"),
                  QMessageBox::Yes | QMessageBox::No, window);
  QTimer::singleShot(50, &box, [&] { click(*box.button(QMessageBox::No)); });
  EXPECT_EQ(box.exec(), QMessageBox::No);
  EXPECT_TRUE(nothingIsAsked());
  EXPECT_THAT(steps(), ElementsAre("QPushButton#- 'No' @Sure?: - | "));
}

} // namespace
} // namespace wayvane::qt::test
