#include "Film.h"

#include <wayvane/platform/Panels.h>
#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtWindow.h>

#include <QApplication>
#include <QPainter>
#include <QTest>
#include <QTextStream>
#include <QWindow>

#include <cmath>

namespace trailbook {
namespace {

constexpr int kPollMilliseconds = 40;
/// The bubble's delay, its spring and the moving hole are over by then.
constexpr int kSettleMilliseconds = 2000;
constexpr int kStuckMilliseconds = 15000;

void say(const QString& line)
{
  QTextStream(stdout) << line << '\n' << Qt::flush;
}

wayvane::WVPlayer& player()
{
  return wayvane::WVPlayer::sharedPlayer();
}

} // namespace

Film::Film(const QDir& folder, const QString& variant, std::vector<std::shared_ptr<wayvane::WVGuide>> guides)
  : folder_(folder)
  , variant_(variant)
  , guides_(std::move(guides))
{
  poll_.setInterval(kPollMilliseconds);
  connect(&poll_, &QTimer::timeout, this, &Film::look);
}

void Film::start()
{
  folder_.mkpath(".");
  player().setDelegate(shared_from_this());
  player().setShowsCircle(true);
  poll_.start();
  playNext();
}

void Film::playNext()
{
  if (next_ == guides_.size()) {
    saveContactSheet();
    say(QString("%1 of %2 guides completed, %3 pictures in %4")
            .arg(completed_)
            .arg(guides_.size())
            .arg(frames_.size())
            .arg(folder_.path()));
    finish(completed_ == guides_.size() && !frames_.empty() ? 0 : 1);
    return;
  }
  const auto guide = guides_[next_++];
  say(QString("Guide \"%1\", %2 steps")
          .arg(QString::fromStdString(guide->localizedName()))
          .arg(guide->steps.size()));
  bubble_.reset();
  sinceProgress_.start();
  player().playGuide(guide);
}

void Film::playerWillShowStep(std::uint64_t index)
{
  const auto& step = player().guide()->steps[index];
  say(QString("  step %1: %2").arg(index + 1).arg(QString::fromStdString(step.target.displayDescription())));
  sinceProgress_.start();
}

void Film::playerDidCompleteGuide(const std::string&)
{
  ++completed_;
  QTimer::singleShot(300, this, &Film::playNext);
}

void Film::playerDidSkipGuide(const std::string&, std::uint64_t atStep)
{
  say(QString("  the guide ended at step %1").arg(atStep + 1));
  QTimer::singleShot(300, this, &Film::playNext);
}

void Film::look()
{
  if (!player().isPlaying()) return;
  const auto bubble = player().currentBubble();
  if (bubble && bubble != bubble_) {
    bubble_ = bubble;
    sinceBubble_.start();
  } else if (bubble && sinceBubble_.isValid() && sinceBubble_.elapsed() > kSettleMilliseconds) {
    sinceBubble_.invalidate();
    shoot();
    clickTarget();
  } else if (sinceProgress_.elapsed() > kStuckMilliseconds) {
    say("  stuck: nothing happened for a while");
    finish(1);
  }
}

QWidget* Film::targetWindow() const
{
  const auto parent = player().overlayWindow() ? player().overlayWindow()->parentWindow() : nullptr;
  return parent ? wayvane::qt::widgetOf(*parent) : nullptr;
}

void Film::shoot()
{
  QWidget* window = targetWindow();
  if (!window) return;
  const QString name =
      QString("guide%1-step%2-%3.png").arg(next_).arg(player().currentStepIndex() + 1).arg(variant_);
  Frame frame{window->grab().toImage(), name};
  frame.picture.save(folder_.filePath(name));
  frames_.push_back(std::move(frame));
}

void Film::clickTarget()
{
  QWidget* window = targetWindow();
  if (!window || !window->windowHandle()) return;
  const QPointF global = wayvane::qt::globalFromScreenPoint(player().currentTargetScreenRect().center());
  const QPoint local = window->mapFromGlobal(global.toPoint());
  QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, local);
  sinceProgress_.start();
  // A pop-up that the click opened would hide the next step; a user would choose from it.
  QTimer::singleShot(100, this, [] {
    if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
  });
}

void Film::finish(int exitCode)
{
  poll_.stop();
  QCoreApplication::exit(exitCode);
}

void Film::saveContactSheet() const
{
  if (frames_.empty()) return;
  const int columns = 3;
  const QSize cell(520, 360);
  const int rows = static_cast<int>((frames_.size() + columns - 1) / columns);
  QImage sheet(cell.width() * columns, cell.height() * rows, QImage::Format_RGB32);
  sheet.fill(QColor(0x80, 0x80, 0x80));
  QPainter painter(&sheet);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  for (std::size_t i = 0; i < frames_.size(); ++i) {
    const int column = static_cast<int>(i) % columns, row = static_cast<int>(i) / columns;
    const QRect place(column * cell.width() + 8, row * cell.height() + 8, cell.width() - 16,
                      cell.height() - 34);
    QImage picture = frames_[i].picture.scaled(place.size(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    picture.setDevicePixelRatio(1);
    painter.drawImage(place.topLeft(), picture);
    painter.setPen(Qt::white);
    painter.drawText(QRect(place.left(), place.bottom() + 4, place.width(), 20), Qt::AlignLeft,
                     frames_[i].caption);
  }
  painter.end();
  sheet.save(folder_.filePath(QString("contact-sheet-%1.png").arg(variant_)));
}

} // namespace trailbook
