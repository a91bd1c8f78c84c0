#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtBuddies.h>
#include <wayvane/platform/qt/QtImage.h>
#include <wayvane/platform/qt/QtPopUpView.h>

#include <QComboBox>

namespace wayvane::qt {

using platform::ViewKind;

namespace {

QString selectedText(const QComboBox& box)
{
  return box.currentIndex() < 0 ? QString() : box.itemText(box.currentIndex());
}

} // namespace

const QComboBox* QtPopUpView::box() const
{
  return static_cast<const QComboBox*>(widget());
}

std::string QtPopUpView::title() const
{
  const QComboBox* b = box();
  return b ? toUtf8(selectedText(*b)) : std::string();
}

bool QtPopUpView::isTitled(const platform::SearchText& text) const
{
  const QComboBox* b = box();
  return b && (equals(selectedText(*b), text) || QtView::isTitled(text));
}

bool QtPopUpView::isImageOnly() const
{
  const QComboBox* b = box();
  return b && b->currentIndex() >= 0 && selectedText(*b).isEmpty() &&
         !b->itemIcon(b->currentIndex()).isNull();
}

platform::ImageHandle QtPopUpView::image() const
{
  const QComboBox* b = box();
  return b && b->currentIndex() >= 0 ? QtImage::make(b->itemIcon(b->currentIndex()), b->iconSize()) : nullptr;
}

std::optional<std::string> QtPopUpView::titleOfSelectedItem() const
{
  const QComboBox* b = box();
  return b ? toOptional(selectedText(*b)) : std::nullopt;
}

QString QtPopUpView::derivedLabel(const QWidget& widget) const
{
  return buddyText(widget);
}

bool QtPopUpView::derivedLabelEquals(const QWidget& widget, const platform::SearchText& text) const
{
  return buddyTextEquals(widget, text);
}

const void* QtPopUpView::roleOfKind(ViewKind kind) const
{
  if (kind == ViewKind::Button) return static_cast<const platform::Button*>(this);
  if (kind == ViewKind::PopUpButton) return static_cast<const platform::PopUpButton*>(this);
  return QtControlView::roleOfKind(kind);
}

} // namespace wayvane::qt
