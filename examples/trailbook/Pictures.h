#pragma once

#include <QDir>
#include <QImage>
#include <QString>

#include <vector>

namespace trailbook {

/// The pictures of a film: files in a folder, and a contact sheet of them all.
class Pictures {
public:
  /// `variant` ends every file name, such as "dark-2x"; `subject` names the contact sheet.
  Pictures(const QDir& folder, const QString& variant, const QString& subject);
  void add(const QImage& picture, const QString& name);
  void saveContactSheet() const;

  [[nodiscard]] std::size_t count() const { return frames_.size(); }

private:
  struct Frame {
    QImage picture;
    QString caption;
  };

  QDir folder_;
  QString variant_;
  QString subject_;
  std::vector<Frame> frames_;
};

} // namespace trailbook
