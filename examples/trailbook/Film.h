#pragma once

#include <wayvane/model/WVGuide.h>
#include <wayvane/overlay/WVBubbleView.h>
#include <wayvane/playback/WVPlayer.h>

#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <QObject>
#include <QTimer>

#include <memory>
#include <vector>

class QWidget;

namespace trailbook {

/// Plays guides by clicking each target with real mouse events, and keeps a picture of every step once its
/// animation has settled. Quits the program when it is through: with 0 when every guide was completed.
class Film final : public QObject,
                   public wayvane::WVPlayerDelegate,
                   public std::enable_shared_from_this<Film> {
  Q_OBJECT
public:
  /// `variant` becomes part of the file names.
  Film(const QDir& folder, const QString& variant, std::vector<std::shared_ptr<wayvane::WVGuide>> guides);
  void start();

  void playerWillShowStep(std::uint64_t index) override;
  void playerDidCompleteGuide(const std::string& identifier) override;
  void playerDidSkipGuide(const std::string& identifier, std::uint64_t atStep) override;

private:
  struct Frame {
    QImage picture;
    QString caption;
  };

  void playNext();
  void look();
  void shoot();
  void clickTarget();
  void finish(int exitCode);
  QWidget* targetWindow() const;
  void saveContactSheet() const;

  QDir folder_;
  QString variant_;
  std::vector<std::shared_ptr<wayvane::WVGuide>> guides_;
  std::size_t next_ = 0;
  std::size_t completed_ = 0;
  /// Held, so that the next bubble cannot be mistaken for it.
  std::shared_ptr<wayvane::WVBubbleView> bubble_;
  QElapsedTimer sinceBubble_;
  QElapsedTimer sinceProgress_;
  QTimer poll_;
  std::vector<Frame> frames_;
};

} // namespace trailbook
