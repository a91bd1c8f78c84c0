#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtBuddies.h>
#include <wayvane/platform/qt/QtTextFieldView.h>

#include <QAbstractSpinBox>
#include <QLabel>
#include <QLineEdit>

namespace wayvane::qt {

using platform::ViewKind;

namespace {

const void* roleOf(const platform::TextField* field, ViewKind kind)
{
  return kind == ViewKind::TextField ? field : nullptr;
}

} // namespace

std::string QtLabelView::stringValue() const
{
  const auto* label = static_cast<const QLabel*>(widget());
  return label ? toUtf8(shownText(*label)) : std::string();
}

const void* QtLabelView::roleOfKind(ViewKind kind) const
{
  const void* field = roleOf(this, kind);
  return field ? field : QtControlView::roleOfKind(kind);
}

bool QtLineEditView::isEditable() const
{
  const auto* edit = static_cast<const QLineEdit*>(widget());
  return edit && !edit->isReadOnly();
}

std::string QtLineEditView::stringValue() const
{
  const auto* edit = static_cast<const QLineEdit*>(widget());
  return edit && edit->echoMode() == QLineEdit::Normal ? toUtf8(edit->text()) : std::string();
}

std::optional<std::string> QtLineEditView::placeholderString() const
{
  const auto* edit = static_cast<const QLineEdit*>(widget());
  return edit ? toOptional(edit->placeholderText()) : std::nullopt;
}

QString QtLineEditView::derivedLabel(const QWidget& widget) const
{
  return buddyText(widget);
}

bool QtLineEditView::derivedLabelEquals(const QWidget& widget, const platform::SearchText& text) const
{
  return buddyTextEquals(widget, text);
}

const void* QtLineEditView::roleOfKind(ViewKind kind) const
{
  const void* field = roleOf(this, kind);
  return field ? field : QtControlView::roleOfKind(kind);
}

bool QtSpinBoxView::isEditable() const
{
  const auto* box = static_cast<const QAbstractSpinBox*>(widget());
  return box && !box->isReadOnly();
}

std::string QtSpinBoxView::stringValue() const
{
  const auto* box = static_cast<const QAbstractSpinBox*>(widget());
  return box ? toUtf8(box->text()) : std::string();
}

std::optional<std::string> QtSpinBoxView::placeholderString() const
{
  const QWidget* w = widget();
  const auto* edit = w ? w->findChild<const QLineEdit*>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
  return edit ? toOptional(edit->placeholderText()) : std::nullopt;
}

QString QtSpinBoxView::derivedLabel(const QWidget& widget) const
{
  return buddyText(widget);
}

bool QtSpinBoxView::derivedLabelEquals(const QWidget& widget, const platform::SearchText& text) const
{
  return buddyTextEquals(widget, text);
}

const void* QtSpinBoxView::roleOfKind(ViewKind kind) const
{
  const void* field = roleOf(this, kind);
  return field ? field : QtControlView::roleOfKind(kind);
}

} // namespace wayvane::qt
