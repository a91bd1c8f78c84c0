#include "Film.h"

#include "MainWindow.h"

#include <wayvane/overlay/WVBubbleView.h>
#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtWindow.h>
#include <wayvane/playback/WVPlayer.h>
#include <wayvane/recording/WVRecorder.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QTableView>
#include <QTextStream>
#include <QTimer>

namespace trailbook {
namespace {

/// The bubble's delay, its spring and the moving hole are over by then.
constexpr int kSettleMilliseconds = 1900;
constexpr int kStuckMilliseconds = 15000;

void say(const QString& line)
{
  QTextStream(stdout) << line << '\n' << Qt::flush;
}

bool complain(const QString& line)
{
  say("  " + line);
  return false;
}

wayvane::WVPlayer& player()
{
  return wayvane::WVPlayer::sharedPlayer();
}

/// Prints what the player does.
class Narrator : public wayvane::WVPlayerDelegate {
public:
  void playerWillShowStep(std::uint64_t index) override
  {
    const wayvane::WVStep& step = player().guide()->steps[index];
    say(QString("  step %1: %2")
            .arg(index + 1)
            .arg(QString::fromStdString(step.target.displayDescription())));
  }

  void playerDidCompleteGuide(const std::string& /*identifier*/) override { completed = true; }

  void playerDidSkipGuide(const std::string& /*identifier*/, std::uint64_t atStep) override
  {
    say(QString("  the guide ended at step %1").arg(atStep + 1));
  }

  bool completed = false;
};

QWidget* targetWindow()
{
  const auto parent = player().overlayWindow() ? player().overlayWindow()->parentWindow() : nullptr;
  return parent ? wayvane::qt::widgetOf(*parent) : nullptr;
}

void clickTarget()
{
  QWidget* const window = targetWindow();
  if (!window) return;
  const QPointF global = wayvane::qt::globalFromScreenPoint(player().currentTargetScreenRect().center());
  User::click(*window, window->mapFromGlobal(global.toPoint()));
  // A pop-up that the click opened would hide the next step; a user would choose from it.
  User::wait(100);
  if (QWidget* const popup = QApplication::activePopupWidget()) popup->close();
}

std::shared_ptr<Narrator> startNarrating()
{
  auto narrator = std::make_shared<Narrator>();
  player().setDelegate(narrator);
  return narrator;
}

/// Follows the guide that plays by clicking each target, with a picture of every step once its animation has
/// settled. True when the guide was completed.
bool followGuide(User& user, Pictures& pictures, const QString& name, const Narrator& narrator)
{
  while (player().isPlaying()) {
    if (!user.waitUntil([] { return !player().isPlaying() || player().currentBubble(); }, kStuckMilliseconds))
      return complain("stuck: no step was shown");
    if (!player().isPlaying()) break;
    user.wait(kSettleMilliseconds);
    const auto bubble = player().currentBubble();
    if (QWidget* const window = targetWindow())
      pictures.add(window->grab().toImage(),
                   QString("%1-step%2").arg(name).arg(player().currentStepIndex() + 1));
    clickTarget();
    if (!user.waitUntil([&bubble] { return player().currentBubble() != bubble; }))
      return complain("stuck: the click on the target did nothing");
  }
  return narrator.completed;
}

} // namespace

bool filmGuide(User& user, Pictures& pictures, const std::shared_ptr<wayvane::WVGuide>& guide,
               const QString& name)
{
  say(QString("Guide \"%1\", %2 steps")
          .arg(QString::fromStdString(guide->localizedName()))
          .arg(guide->steps.size()));
  const auto narrator = startNarrating();
  player().playGuide(guide);
  return followGuide(user, pictures, name, *narrator);
}

namespace {

/// Fills in the popover that the last act has brought up.
bool annotate(User& user, const QString& title, const QString& message)
{
  if (!user.waitUntil([] { return User::field("titleField") != nullptr; })) return complain("no popover");
  QWidget& popover = *User::field("titleField")->window();
  // The field gets the keyboard on a later turn of the main loop.
  user.wait(100);
  user.hover(*User::field("titleField"));
  user.type(popover, title);
  user.press(popover, Qt::Key_Tab);
  user.type(popover, message);
  return true;
}

bool addStep(User& user)
{
  QLineEdit* const field = User::field("msgField");
  if (!field) return complain("the popover is gone");
  user.press(*field, Qt::Key_Return);
  return user.waitUntil([] { return !User::field("msgField"); }) || complain("the popover stays");
}

bool recordSteps(User& user, MainWindow& window, Pictures& pictures)
{
  auto* const save = window.findChild<QAbstractButton*>("saveButton");
  user.hover(*save);
  user.wait(200);
  pictures.add(user.picture(), "record-2-hover");
  user.click(*save);
  if (!annotate(user, "Keep your changes", "Saves what you typed.")) return false;
  pictures.add(user.picture(), "record-3-popover");
  if (!addStep(user)) return false;

  auto* const table = window.findChild<QTableView*>("trailTable");
  user.click(*table->viewport(), table->visualRect(table->model()->index(3, 0)).center());
  if (!annotate(user, QString(), "Choose this trail.") || !addStep(user)) return false;

  user.click(*window.findChild<QWidget*>("searchField"));
  if (!annotate(user, "Search", "Type a part of a name.") || !addStep(user)) return false;

  user.click(*window.findChild<QAbstractButton*>("revertButton"));
  if (!annotate(user, "A slip", "This step is taken back.") || !addStep(user)) return false;
  pictures.add(user.picture(), "record-4-badge");
  user.click(*User::button("Undo"));
  return true;
}

bool saveRecording(User& user, Pictures& pictures, const QString& guideName)
{
  user.whenDialogAppears([&](QDialog& dialog) {
    user.wait(100);
    auto* const name = dialog.findChild<QLineEdit*>();
    name->selectAll();
    user.type(dialog, guideName);
    pictures.add(user.picture(), "record-5-save");
    user.press(dialog, Qt::Key_Return);
  });
  QAbstractButton* const done = User::button("Done");
  if (!done) return complain("no badge");
  user.click(*done);
  return true;
}

} // namespace

bool filmRecording(User& user, MainWindow& window, Pictures& pictures, const QString& guideName)
{
  say(QString("Recording \"%1\"").arg(guideName));
  if (!user.choose("Help", QString::fromUtf8("Record Guide…"))) return complain("no entry to record with");
  if (!user.waitUntil([] { return wayvane::WVRecorder::sharedRecorder().isRecording(); }))
    return complain("no recording");
  user.wait(200);
  pictures.add(user.picture(), "record-1-started");
  if (!recordSteps(user, window, pictures) || !saveRecording(user, pictures, guideName)) return false;

  QMenu* const help = user.openMenu("Help");
  if (!help) return complain("no Help menu");
  user.wait(100);
  pictures.add(user.picture(), "record-6-menu");
  help->close();
  const auto narrator = startNarrating();
  if (!user.choose("Help", guideName)) return complain("the guide is not in the Help menu");
  return followGuide(user, pictures, "recorded", *narrator);
}

} // namespace trailbook
