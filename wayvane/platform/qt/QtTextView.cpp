#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtBuddies.h>
#include <wayvane/platform/qt/QtTextView.h>

#include <QPlainTextEdit>
#include <QTextEdit>

namespace wayvane::qt {

using platform::ViewKind;

bool QtTextView::isEditable() const
{
  const QWidget* w = widget();
  if (const auto* rich = qobject_cast<const QTextEdit*>(w)) return !rich->isReadOnly();
  const auto* plain = qobject_cast<const QPlainTextEdit*>(w);
  return plain && !plain->isReadOnly();
}

std::string QtTextView::string() const
{
  const QWidget* w = widget();
  if (const auto* rich = qobject_cast<const QTextEdit*>(w)) return toUtf8(rich->toPlainText());
  const auto* plain = qobject_cast<const QPlainTextEdit*>(w);
  return plain ? toUtf8(plain->toPlainText()) : std::string();
}

QString QtTextView::derivedLabel(const QWidget& widget) const
{
  return buddyText(widget);
}

bool QtTextView::derivedLabelEquals(const QWidget& widget, const platform::SearchText& text) const
{
  return buddyTextEquals(widget, text);
}

const void* QtTextView::roleOfKind(ViewKind kind) const
{
  if (kind == ViewKind::TextView) return static_cast<const platform::TextView*>(this);
  return QtView::roleOfKind(kind);
}

} // namespace wayvane::qt
