#include "RecordingTest.h"

#include <QApplication>
#include <QTest>
#include <QThread>

#include <thread>

namespace wayvane::qt::test {
namespace {

// An element that goes by its own click

enum class Moment { Pressed, Released, Clicked };
enum class Deed {
  Delete,
  DeleteLater,
  HideElement,
  DeleteWindow,
  DeleteWindowLater,
  HideWindow,
  CloseWindow
};

struct End {
  Moment moment;
  Deed deed;
  const char* name;
};

void PrintTo(const End& end, std::ostream* out)
{
  *out << end.name;
}

class EndsByItsOwnClick : public RecordingTest, public testing::WithParamInterface<End> {
protected:
  void arm(QPushButton& button, bool deletesOnClose = true)
  {
    button.window()->setAttribute(Qt::WA_DeleteOnClose, deletesOnClose);
    const QPointer<QPushButton> victim = &button;
    const auto act = [this, victim] { doTo(victim); };
    switch (GetParam().moment) {
    case Moment::Pressed:
      QObject::connect(&button, &QPushButton::pressed, act);
      break;
    case Moment::Released:
      QObject::connect(&button, &QPushButton::released, act);
      break;
    case Moment::Clicked:
      QObject::connect(&button, &QPushButton::clicked, act);
    }
  }

  [[nodiscard]] static bool windowGoes() { return GetParam().deed >= Deed::DeleteWindow; }

private:
  void doTo(QPushButton* victim)
  {
    ++deeds;
    switch (GetParam().deed) {
    case Deed::Delete:
      delete victim;
      break;
    case Deed::DeleteLater:
      victim->deleteLater();
      break;
    case Deed::HideElement:
      victim->hide();
      break;
    case Deed::DeleteWindow:
      delete victim->window();
      break;
    case Deed::DeleteWindowLater:
      victim->window()->deleteLater();
      break;
    case Deed::HideWindow:
      victim->window()->hide();
      break;
    case Deed::CloseWindow:
      victim->window()->close();
    }
  }

protected:
  int deeds = 0;
};

TEST_P(EndsByItsOwnClick, InAnotherWindowAndTheStepIsKept)
{
  arm(*apply);
  click(*apply);
  EXPECT_EQ(deeds, 1);
  if (windowGoes()) {
    EXPECT_TRUE(nothingIsAsked()) << "there is no window to ask over";
    EXPECT_THAT(steps(), ElementsAre("QPushButton#apply 'Apply' @Second: - | "));
  } else {
    ASSERT_TRUE(annotate());
    EXPECT_THAT(steps(), ElementsAre("QPushButton#apply 'Apply' @Second: Here | Press it."));
  }
  click(*save);
  ASSERT_TRUE(annotate()) << "the next one is recorded as usual";
  EXPECT_EQ(counter(), "2 steps");
  EXPECT_EQ(steps().back(), "QPushButton#save 'Save' @Main: Here | Press it.");
  EXPECT_TRUE(finishes());
}

TEST_P(EndsByItsOwnClick, InTheMainWindowAndTheStepIsKept)
{
  arm(*save);
  click(*save);
  EXPECT_EQ(deeds, 1);
  if (windowGoes()) {
    EXPECT_TRUE(nothingIsAsked()) << "there is no window to ask over";
    EXPECT_THAT(steps(), ElementsAre("QPushButton#save 'Save' @Main: - | "));
  } else {
    ASSERT_TRUE(annotate());
    EXPECT_THAT(steps(), ElementsAre("QPushButton#save 'Save' @Main: Here | Press it."));
  }
  EXPECT_EQ(counter(), "1 steps");
  EXPECT_TRUE(finishes());
}

INSTANTIATE_TEST_SUITE_P(
    Ends, EndsByItsOwnClick,
    testing::Values(End{Moment::Pressed, Deed::Delete, "DeletedWhenPressed"},
                    End{Moment::Released, Deed::Delete, "DeletedWhenReleased"},
                    End{Moment::Clicked, Deed::Delete, "DeletedWhenClicked"},
                    End{Moment::Pressed, Deed::DeleteLater, "DeletedLaterWhenPressed"},
                    End{Moment::Clicked, Deed::DeleteLater, "DeletedLaterWhenClicked"},
                    End{Moment::Pressed, Deed::HideElement, "HiddenWhenPressed"},
                    End{Moment::Clicked, Deed::HideElement, "HiddenWhenClicked"},
                    End{Moment::Pressed, Deed::DeleteWindow, "WindowDeletedWhenPressed"},
                    End{Moment::Released, Deed::DeleteWindow, "WindowDeletedWhenReleased"},
                    End{Moment::Clicked, Deed::DeleteWindow, "WindowDeletedWhenClicked"},
                    End{Moment::Clicked, Deed::DeleteWindowLater, "WindowDeletedLaterWhenClicked"},
                    End{Moment::Pressed, Deed::HideWindow, "WindowHiddenWhenPressed"},
                    End{Moment::Clicked, Deed::HideWindow, "WindowHiddenWhenClicked"},
                    End{Moment::Clicked, Deed::CloseWindow, "WindowClosedWhenClicked"}),
    [](const auto& one) { return one.param.name; });

// Ends between the click and the answer

using Lives = RecordingTest;

TEST_F(Lives, TheWindowGoesBeforeTheAnnotationComes)
{
  click(*apply);
  delete second;
  EXPECT_TRUE(nothingIsAsked());
  EXPECT_THAT(acts, ElementsAre("Apply"));
  EXPECT_THAT(steps(), ElementsAre("QPushButton#apply 'Apply' @Second: - | "));
  EXPECT_TRUE(finishes());
}

TEST_F(Lives, TheElementGoesWhileTheAnnotationIsOpen)
{
  click(*save);
  ASSERT_TRUE(waitUntil([] { return popover() != nullptr; }));
  delete save;
  ASSERT_TRUE(annotate());
  EXPECT_THAT(steps(), ElementsAre("QPushButton#save 'Save' @Main: Here | Press it."));
}

TEST_F(Lives, TheWindowGoesWhileTheAnnotationIsOpenAndTakesItAlong)
{
  click(*apply);
  ASSERT_TRUE(waitUntil([] { return popover() != nullptr; }));
  delete second;
  EXPECT_TRUE(waitUntil([] { return !popover(); }));
  EXPECT_FALSE(recorder->capturingAnnotation());
  EXPECT_THAT(steps(), IsEmpty());
  click(*save);
  ASSERT_TRUE(annotate());
  EXPECT_THAT(steps(), ElementsAre("QPushButton#save 'Save' @Main: Here | Press it."));
}

TEST_F(Lives, TheWindowIsHiddenWhileTheAnnotationIsOpenAndTheAnswerCounts)
{
  click(*apply);
  ASSERT_TRUE(waitUntil([] { return popover() != nullptr; }));
  second->hide();
  wait(50);
  ASSERT_TRUE(annotate());
  EXPECT_THAT(steps(), ElementsAre("QPushButton#apply 'Apply' @Second: Here | Press it."));
}

TEST_F(Lives, AllWindowsGoAndDoneStillWorks)
{
  click(*save);
  ASSERT_TRUE(annotate());
  delete second;
  delete window;
  wait(20);
  EXPECT_TRUE(finishes());
  EXPECT_THAT(steps(), ElementsAre("QPushButton#save 'Save' @Main: Here | Press it."));
}

TEST_F(Lives, TheElementUnderThePointerGoesWhileItIsDescribed)
{
  hover(*save);
  wait(20);
  delete save;
  hover(*window, {45, 65});
  click(*window, {300, 300});
  ASSERT_TRUE(annotate());
  EXPECT_THAT(steps(), ElementsAre("QMainWindow#main '-' @Main: Here | Press it."));
}

TEST_F(Lives, DoneBeforeTheAnnotationComesDropsTheClick)
{
  click(*save);
  EXPECT_TRUE(finishes());
  EXPECT_TRUE(nothingIsAsked());
  EXPECT_THAT(steps(), IsEmpty());
}

TEST_F(Lives, DoneWhileTheAnnotationIsOpenDropsTheClick)
{
  click(*save);
  ASSERT_TRUE(waitUntil([] { return popover() != nullptr; }));
  EXPECT_TRUE(finishes());
  EXPECT_TRUE(waitUntil([] { return !popover(); }));
  EXPECT_THAT(steps(), IsEmpty());
}

// Other threads

TEST_F(Lives, AnotherThreadHasTheElementDeletedDuringTheClick)
{
  QObject::connect(save, &QPushButton::pressed, save,
                   [this] { std::thread([victim = save.data()] { victim->deleteLater(); }).join(); });
  click(*save);
  ASSERT_TRUE(annotate());
  EXPECT_TRUE(save.isNull());
  EXPECT_THAT(steps(), ElementsAre("QPushButton#save 'Save' @Main: Here | Press it."));
  EXPECT_TRUE(finishes());
}

/// Lives in a thread of its own, from where it has things deleted.
class Worker : public QObject {
  Q_OBJECT
public slots:

  void work() { emit worked(); }

signals:
  void worked();
};

TEST_F(Lives, AWorkersAnswerDeletesTheWindowBeforeTheAnnotationComes)
{
  QThread thread;
  Worker worker;
  worker.moveToThread(&thread);
  thread.start();
  QObject::connect(apply, &QPushButton::clicked, &worker, &Worker::work);
  QObject::connect(&worker, &Worker::worked, second, [this] { delete second; });
  click(*apply);
  EXPECT_TRUE(nothingIsAsked());
  EXPECT_TRUE(second.isNull());
  EXPECT_THAT(steps(), ElementsAre("QPushButton#apply 'Apply' @Second: - | "));
  EXPECT_TRUE(finishes());
  thread.quit();
  thread.wait();
}

TEST_F(Lives, AWorkersAnswerDeletesTheWindowWhileTheAnnotationIsOpen)
{
  QThread thread;
  Worker worker;
  worker.moveToThread(&thread);
  thread.start();
  QObject::connect(&worker, &Worker::worked, second, [this] { delete second; });
  click(*apply);
  ASSERT_TRUE(waitUntil([] { return popover() != nullptr; }));
  QMetaObject::invokeMethod(&worker, &Worker::work);
  EXPECT_TRUE(waitUntil([] { return !popover(); }));
  EXPECT_THAT(steps(), IsEmpty());
  EXPECT_FALSE(recorder->capturingAnnotation());
  thread.quit();
  thread.wait();
}

TEST_F(Lives, EventsOfOtherThreadsAreNotTakenForClicks)
{
  std::thread([] {
    QObject elsewhere;
    QEvent press(QEvent::MouseButtonPress);
    QCoreApplication::sendEvent(&elsewhere, &press);
  }).join();
  EXPECT_TRUE(nothingIsAsked());
  EXPECT_THAT(steps(), IsEmpty());
}

} // namespace
} // namespace wayvane::qt::test

#include "lives_test.moc"
