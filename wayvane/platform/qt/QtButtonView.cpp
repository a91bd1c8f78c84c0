#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtActions.h>
#include <wayvane/platform/qt/QtButtonView.h>
#include <wayvane/platform/qt/QtHostProperties.h>
#include <wayvane/platform/qt/QtImage.h>

#include <QAction>
#include <QStyle>
#include <QToolButton>

namespace wayvane::qt {

using platform::ViewKind;

namespace {

bool showsOnlyImage(const QAbstractButton& button)
{
  if (button.icon().isNull()) return false;
  if (button.text().isEmpty()) return true;
  const auto* tool = qobject_cast<const QToolButton*>(&button);
  if (!tool) return false;
  int style = tool->toolButtonStyle();
  if (style == Qt::ToolButtonFollowStyle) style = tool->style()->styleHint(QStyle::SH_ToolButtonStyle);
  return style == Qt::ToolButtonIconOnly;
}

} // namespace

const QAbstractButton* QtButtonView::button() const
{
  return static_cast<const QAbstractButton*>(widget());
}

std::string QtButtonView::title() const
{
  const QAbstractButton* b = button();
  return b ? toUtf8(withoutMnemonic(b->text())) : std::string();
}

bool QtButtonView::isTitled(const platform::SearchText& text) const
{
  const QAbstractButton* b = button();
  return b && (captionEquals(b->text(), text) || QtView::isTitled(text));
}

bool QtButtonView::isImageOnly() const
{
  const QAbstractButton* b = button();
  return b && showsOnlyImage(*b);
}

platform::ImageHandle QtButtonView::image() const
{
  const QAbstractButton* b = button();
  if (!b) return nullptr;
  return QtImage::make(b->icon(), b->iconSize(), b->isChecked() ? QIcon::On : QIcon::Off);
}

QString QtButtonView::derivedLabel(const QWidget& widget) const
{
  const auto& b = static_cast<const QAbstractButton&>(widget);
  return showsOnlyImage(b) ? withoutMnemonic(b.text()) : QString();
}

QString QtButtonView::ownToolTip(const QWidget& widget) const
{
  const QString tip = widget.toolTip();
  const auto* tool = qobject_cast<const QToolButton*>(&widget);
  const QAction* action = tool ? tool->defaultAction() : nullptr;
  return action && tip == action->toolTip() ? givenToolTip(*action) : tip;
}

QString QtButtonView::actionName(const QWidget& widget) const
{
  if (const QString said = hostText(widget, info(), "wv_action"); !said.isEmpty()) return said;
  const QAction* action =
      info().isToolButton ? static_cast<const QToolButton&>(widget).defaultAction() : nullptr;
  if (const QString name = action ? givenActionName(*action) : QString(); !name.isEmpty()) return name;
  if (const QString name = QtControlView::actionName(widget); !name.isEmpty()) return name;
  const QString own = widget.objectName();
  return isGivenName(own) ? own : QString();
}

const void* QtButtonView::roleOfKind(ViewKind kind) const
{
  if (kind == ViewKind::Button) return static_cast<const platform::Button*>(this);
  return QtControlView::roleOfKind(kind);
}

} // namespace wayvane::qt
