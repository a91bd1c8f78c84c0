#include "Roles.h"

namespace wayvane::sim {

using platform::ViewKind;

TextField::TextField(Desktop& desktop, const ClassInfo& info, const TextFieldOptions& options)
  : Control(desktop, info, options.frame)
  , value_(options.value)
  , editable_(options.editable)
  , placeholder_(options.placeholder)
{
  applyClues(options);
  setAction(options.action);
  if (options.valueBinding) setBinding("value", *options.valueBinding);
}

bool TextField::isEditable() const
{
  return isAlive() && editable_;
}

std::string TextField::stringValue() const
{
  return isAlive() ? value_ : std::string();
}

Text TextField::placeholderString() const
{
  return isAlive() ? placeholder_ : std::nullopt;
}

const void* TextField::role(ViewKind kind) const
{
  if (kind == ViewKind::TextField && isAlive()) return static_cast<const platform::TextField*>(this);
  return Control::role(kind);
}

TextView::TextView(Desktop& desktop, const ClassInfo& info, const TextViewOptions& options)
  : View(desktop, info, options.frame)
  , value_(options.value)
  , editable_(options.editable)
  , fieldEditor_(options.fieldEditor)
  , delegate_(options.delegate)
{
  if (fieldEditor_) addFeature(platform::Feature::FieldEditor);
  applyClues(options);
  if (options.valueBinding) setBinding("value", *options.valueBinding);
}

bool TextView::isEditable() const
{
  return isAlive() && editable_;
}

std::string TextView::string() const
{
  return isAlive() ? value_ : std::string();
}

bool TextView::isFieldEditor() const
{
  return isAlive() && fieldEditor_;
}

platform::ViewHandle TextView::delegate() const
{
  return isAlive() ? delegate_ : nullptr;
}

const void* TextView::role(ViewKind kind) const
{
  if (kind == ViewKind::TextView && isAlive()) return static_cast<const platform::TextView*>(this);
  return View::role(kind);
}

Box::Box(Desktop& desktop, const ClassInfo& info, const BoxOptions& options)
  : View(desktop, info, options.frame)
  , title_(options.title)
{
  applyClues(options);
}

std::string Box::title() const
{
  return isAlive() ? title_ : std::string();
}

const void* Box::role(ViewKind kind) const
{
  if (kind == ViewKind::Box && isAlive()) return static_cast<const platform::Box*>(this);
  return View::role(kind);
}

} // namespace wayvane::sim
