#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtImage.h>
#include <wayvane/platform/qt/QtTextLayout.h>

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace wayvane::qt {

using platform::AttributedText;

namespace {

constexpr double kUnbounded = 1e6;

/// Stands for a picture: it takes the room that its letter spacing gives it, and nothing is drawn for it.
constexpr QChar kPlaceholder = QChar::Nbsp;

} // namespace

QtTextLayout::QtTextLayout(const AttributedText& text, double width, bool wraps,
                           platform::Appearance appearance)
  : appearance_(appearance)
{
  if (text.isEmpty()) return;
  paragraphs_.emplace_back();
  for (const AttributedText::Run& run : text.runs)
    addRun(run);
  for (std::size_t i = 0; i < paragraphs_.size(); ++i)
    breakLines(static_cast<int>(i), width, wraps);
}

void QtTextLayout::addRun(const AttributedText::Run& run)
{
  if (run.attachment) return addAttachment(run);
  QTextCharFormat format;
  format.setFont(toQFont(run.font));
  format.setForeground(toQColor(run.color, appearance_));
  QString text = toQString(run.text);
  text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
  qsizetype start = 0;
  for (qsizetype end = text.indexOf(u'\n'); end >= 0; end = text.indexOf(u'\n', start)) {
    addText(text.mid(start, end - start), format);
    paragraphs_.emplace_back();
    paragraphs_.back().font = format.font();
    start = end + 1;
  }
  addText(text.mid(start), format);
}

void QtTextLayout::addText(const QString& text, const QTextCharFormat& format)
{
  Paragraph& paragraph = paragraphs_.back();
  if (paragraph.text.isEmpty()) paragraph.font = format.font();
  if (text.isEmpty()) return;
  paragraph.formats.append({static_cast<int>(paragraph.text.size()), static_cast<int>(text.size()), format});
  paragraph.text += text;
}

void QtTextLayout::addAttachment(const AttributedText::Run& run)
{
  QFont font = toQFont(run.font);
  font.setLetterSpacing(QFont::AbsoluteSpacing,
                        run.attachmentBounds.width - QFontMetricsF(font).horizontalAdvance(kPlaceholder));
  QTextCharFormat format;
  format.setFont(font);
  Paragraph& paragraph = paragraphs_.back();
  attachments_.push_back({static_cast<int>(paragraphs_.size()) - 1, static_cast<int>(paragraph.text.size()),
                          run.attachment, run.attachmentBounds});
  addText(kPlaceholder, format);
}

void QtTextLayout::breakLines(int index, double width, bool wraps)
{
  Paragraph& paragraph = paragraphs_[static_cast<std::size_t>(index)];
  paragraph.layout = std::make_unique<QTextLayout>(paragraph.text, paragraph.font);
  QTextLayout& layout = *paragraph.layout;
  QTextOption option;
  option.setWrapMode(wraps ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::ManualWrap);
  if (paragraph.text.isRightToLeft()) option.setAlignment(Qt::AlignRight);
  layout.setTextOption(option);
  layout.setFormats(paragraph.formats);
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(std::clamp(width, 1.0, kUnbounded));
    double ascent = line.ascent();
    double descent = line.descent();
    growByAttachments(index, line, ascent, descent);
    line.setPosition({0, size_.height + ascent - line.ascent()});
    size_.width = std::max(size_.width, line.naturalTextWidth());
    size_.height += ascent + descent;
  }
  layout.endLayout();
}

void QtTextLayout::growByAttachments(int paragraph, const QTextLine& line, double& ascent,
                                     double& descent) const
{
  for (const Attachment& attachment : attachments_) {
    if (attachment.paragraph != paragraph || attachment.position < line.textStart() ||
        attachment.position >= line.textStart() + line.textLength())
      continue;
    ascent = std::max(ascent, attachment.bounds.maxY());
    descent = std::max(descent, -attachment.bounds.y);
  }
}

void QtTextLayout::draw(QPainter& painter) const
{
  for (const Paragraph& paragraph : paragraphs_)
    if (paragraph.layout) paragraph.layout->draw(&painter, {});
  const double scale = painter.device() ? painter.device()->devicePixelRatioF() : 1;
  for (const Attachment& attachment : attachments_) {
    const QTextLayout& layout = *paragraphs_[static_cast<std::size_t>(attachment.paragraph)].layout;
    const QTextLine line = layout.lineForTextPosition(attachment.position);
    if (!line.isValid()) continue;
    const double ends[] = {line.cursorToX(attachment.position), line.cursorToX(attachment.position + 1)};
    const double baseline = line.y() + line.ascent();
    const platform::Rect& bounds = attachment.bounds;
    const QRectF place(std::min(ends[0], ends[1]) + bounds.x, baseline - bounds.maxY(), bounds.width,
                       bounds.height);
    painter.drawImage(place, toQImage(attachment.image->rendered(bounds.size(), scale, appearance_)));
  }
}

} // namespace wayvane::qt
