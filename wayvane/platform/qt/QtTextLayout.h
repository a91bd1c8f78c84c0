#pragma once

#include <wayvane/platform/AttributedText.h>

#include <QTextLayout>

#include <memory>
#include <vector>

class QPainter;

namespace wayvane::qt {

/// Text broken into lines: the one layout that is both measured and drawn.
class QtTextLayout {
public:
  /// Text is literal; a line break begins a new paragraph. Without wrapping the width only says where
  /// right-to-left paragraphs begin.
  QtTextLayout(const platform::AttributedText& text, double width, bool wraps,
               platform::Appearance appearance);

  [[nodiscard]] platform::Size size() const { return size_; }

  /// Draws with the top left of the text at (0, 0).
  void draw(QPainter& painter) const;

private:
  struct Attachment {
    int paragraph = 0;
    int position = 0;
    platform::ImageHandle image;
    platform::Rect bounds;
  };

  struct Paragraph {
    std::unique_ptr<QTextLayout> layout;
    QString text;
    QList<QTextLayout::FormatRange> formats;
    QFont font;
  };

  void addRun(const platform::AttributedText::Run& run);
  void addText(const QString& text, const QTextCharFormat& format);
  void addAttachment(const platform::AttributedText::Run& run);
  void breakLines(int index, double width, bool wraps);
  /// Where the attachments of a line reach, above and below its baseline.
  void growByAttachments(int paragraph, const QTextLine& line, double& ascent, double& descent) const;

  platform::Appearance appearance_;
  std::vector<Paragraph> paragraphs_;
  std::vector<Attachment> attachments_;
  platform::Size size_;
};

} // namespace wayvane::qt
