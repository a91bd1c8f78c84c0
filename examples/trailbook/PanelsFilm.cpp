#include "Film.h"
#include "MainWindow.h"

#include <wayvane/recording/WVRecorder.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QScreen>
#include <QTableView>

namespace trailbook {
namespace {

constexpr int kSurroundings = 48;

/// The film of one author's panels.
class PanelsFilm {
public:
  PanelsFilm(User& user, MainWindow& window, Pictures& pictures)
    : user_(user)
    , window_(window)
    , pictures_(pictures)
  {}

  bool make()
  {
    // Nobody shall ask where to save it.
    recorder().setDelegate({});
    recorder().startRecordingGuide("Panels");
    user_.wait(200);
    if (!takePanels("")) return false;
    window_.move(window_.screen()->geometry().bottomRight() -
                 QPoint(window_.width() - 30, window_.height() - 8));
    user_.wait(100);
    if (!takePanels("-at-edge")) return false;
    takeCloseUp(*User::button("Done")->window(), "badge");
    recorder().stopRecording();
    return true;
  }

private:
  static wayvane::WVRecorder& recorder() { return wayvane::WVRecorder::sharedRecorder(); }

  static QWidget* popover()
  {
    QLineEdit* const field = User::field("titleField");
    return field ? field->window() : nullptr;
  }

  static QWidget* hoverDisplay()
  {
    for (QWidget* const window : QApplication::topLevelWidgets())
      if (window->isVisible() && window->windowFlags().testFlag(Qt::WindowTransparentForInput)) return window;
    return nullptr;
  }

  bool takePanels(const QString& where)
  {
    auto* const table = window_.findChild<QTableView*>("trailTable");
    const QPoint cell = table->visualRect(table->model()->index(2, 1)).center();
    user_.hover(*table->viewport(), cell);
    return takeHoverDisplay("hover-row" + where) && takeButton(where);
  }

  bool takeButton(const QString& where)
  {
    auto* const save = window_.findChild<QAbstractButton*>("saveButton");
    user_.hover(*save);
    if (!takeHoverDisplay("hover" + where)) return false;
    user_.click(*save);
    if (!user_.waitUntil([] { return popover() != nullptr; })) return false;
    user_.wait(100);
    takeCloseUp(*popover(), "popover-empty" + where);
    user_.type(*popover(), "Keep your changes");
    takeCloseUp(*popover(), "popover" + where);
    user_.press(*popover(), Qt::Key_Return);
    return user_.waitUntil([] { return !popover(); });
  }

  bool takeHoverDisplay(const QString& name)
  {
    user_.wait(100);
    QWidget* const display = hoverDisplay();
    if (display) takeCloseUp(*display, name);
    return display != nullptr;
  }

  void takeCloseUp(const QWidget& panel, const QString& name)
  {
    const QRect around =
        panel.geometry().adjusted(-kSurroundings, -kSurroundings, kSurroundings, kSurroundings);
    pictures_.add(user_.picture(around & window_.screen()->geometry()), "panels-" + name);
  }

  User& user_;
  MainWindow& window_;
  Pictures& pictures_;
};

} // namespace

bool filmPanels(User& user, MainWindow& window, Pictures& pictures)
{
  return PanelsFilm(user, window, pictures).make();
}

} // namespace trailbook
