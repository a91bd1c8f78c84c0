#include <wayvane/platform/ViewRoles.h>
#include <wayvane/targeting/TranslationSource.h>
#include <wayvane/targeting/ViewProperties.h>

#include <cmath>

namespace wayvane {

using platform::Feature;
using platform::HostProperty;
using platform::View;
using platform::ViewKind;

namespace {

constexpr std::string_view kBoundValuePrefix = "binding:value:";
constexpr int kMostBorrowedEditors = 8;

using Text = std::optional<std::string>;

Text nonEmpty(std::string text)
{
  return text.empty() ? std::nullopt : Text(std::move(text));
}

// "Bold (⌘B)" names the command "Bold"; what follows is its shortcut.
std::string withoutShortcut(std::string toolTip)
{
  const auto shortcut = toolTip.rfind(" (");
  if (shortcut != std::string::npos) toolTip.resize(shortcut);
  return toolTip;
}

Text titleOfButton(const View& view)
{
  const auto* button = view.as<platform::Button>();
  if (!button) return std::nullopt;
  if (!button->isImageOnly()) {
    if (auto title = nonEmpty(button->title())) return title;
  }
  auto toolTip = view.toolTip();
  if (toolTip && !toolTip->empty()) return withoutShortcut(*std::move(toolTip));
  return std::nullopt;
}

bool hasSelectedSegment(const platform::SegmentedControl& control)
{
  return control.selectedSegment() >= 0 && control.selectedSegment() < control.segmentCount();
}

// The title that the view's role gives it; nothing when the general rule for views shall answer.
Text titleOfRole(const View& view)
{
  if (const auto* popUp = view.as<platform::PopUpButton>()) {
    if (auto title = popUp->titleOfSelectedItem()) return title;
  }
  if (const auto* field = view.as<platform::TextField>()) {
    return field->isEditable() ? std::nullopt : nonEmpty(field->stringValue());
  }
  if (const auto* text = view.as<platform::TextView>()) {
    return text->isEditable() ? std::nullopt : nonEmpty(text->string());
  }
  if (const auto* box = view.as<platform::Box>()) return nonEmpty(box->title());
  return titleOfButton(view);
}

bool isShownAsIcon(const View& view)
{
  const auto* button = view.as<platform::Button>();
  return button && button->isImageOnly() && button->image();
}

bool isText(const View& view)
{
  return view.as<platform::TextField>() || view.as<platform::TextView>();
}

Text keyPathOfValue(const View& view)
{
  auto keyPath = view.observedKeyPathForBinding("value");
  return keyPath && !keyPath->empty() && isText(view) ? std::move(keyPath) : std::nullopt;
}

// The text field that borrowed this view as its editor.
platform::ViewHandle editedField(const View& view)
{
  const auto* text = view.as<platform::TextView>();
  return text && text->isFieldEditor() ? text->delegate() : nullptr;
}

bool isFieldEditor(const View& view)
{
  const auto* text = view.as<platform::TextView>();
  return text && text->isFieldEditor();
}

// Editors that name each other as delegates would lead round in circles without the bound.
Text guideIdentifier(const View& view, int editorsLeft)
{
  if (auto given = view.hostString(HostProperty::GuideIdentifier)) return given;
  if (const auto keyPath = keyPathOfValue(view)) return std::string(kBoundValuePrefix) + *keyPath;
  if (!isFieldEditor(view)) return view.accessibilityIdentifier();
  const auto field = editedField(view);
  return field && editorsLeft > 0 ? guideIdentifier(*field, editorsLeft - 1) : std::nullopt;
}

std::optional<double> hostNumber(const View& view, HostProperty property)
{
  const auto number = view.hostNumber(property);
  return number && std::isfinite(*number) ? number : std::nullopt;
}

} // namespace

std::optional<std::string> wv_localizedTitle(const View& view)
{
  if (auto given = view.hostString(HostProperty::LocalizedTitle)) return given;
  const auto* segments = view.as<platform::SegmentedControl>();
  if (segments && hasSelectedSegment(*segments)) {
    return segments->labelForSegment(segments->selectedSegment());
  }
  if (auto title = titleOfRole(view)) return title;
  return view.accessibilityLabel();
}

std::optional<LocalizationDictionary> wv_titleLocalizations(const View& view)
{
  const auto title = wv_localizedTitle(view);
  return title ? TranslationSource::translationsOf(*title) : std::nullopt;
}

std::optional<std::string> wv_localizedToolTip(const View& view)
{
  return view.toolTip();
}

std::optional<LocalizationDictionary> wv_toolTipLocalizations(const View& view)
{
  const auto toolTip = wv_localizedToolTip(view);
  return toolTip ? TranslationSource::translationsOf(*toolTip) : std::nullopt;
}

std::optional<std::string> wv_actionString(const View& view)
{
  const auto* control = view.as<platform::Control>();
  return control ? control->action() : std::nullopt;
}

std::optional<std::string> wv_accessibilityLabel(const View& view)
{
  return view.accessibilityLabel();
}

std::optional<std::string> wv_displayString(const View& view)
{
  if (auto given = view.hostString(HostProperty::DisplayString)) return given;
  if (isShownAsIcon(view)) return std::string(kButtonIconToken);
  return wv_localizedTitle(view);
}

platform::ImageHandle wv_buttonIcon(const View& view)
{
  const auto* button = view.as<platform::Button>();
  return button ? button->image() : nullptr;
}

double wv_guidePadding(const View& view)
{
  if (const auto given = hostNumber(view, HostProperty::GuidePadding)) return *given;
  if (view.isKind(ViewKind::TokenField)) return 3;
  const bool hasOuterBezel = view.isKind(ViewKind::SegmentedControl) || view.isKind(ViewKind::PopUpButton);
  return hasOuterBezel ? -1 : 0;
}

double wv_guideCornerRadius(const View& view)
{
  if (const auto given = hostNumber(view, HostProperty::GuideCornerRadius)) return *given;
  return view.isKind(ViewKind::TokenField) ? 0 : 6;
}

std::optional<std::string> wv_guideIdentifier(const View& view)
{
  return guideIdentifier(view, kMostBorrowedEditors);
}

IdentifierQuery::IdentifierQuery(const platform::SearchText& text)
  : text_(text)
  , otherNames_{Feature::HostAnswers, Feature::FieldEditor}
{
  const auto utf8 = text.utf8();
  if (utf8.starts_with(kBoundValuePrefix) && utf8 != kBoundValuePrefix) {
    keyPathOfValue_.emplace(utf8.substr(kBoundValuePrefix.size()));
    otherNames_.add(Feature::Bindings);
  }
  features_ = otherNames_;
  features_.add(Feature::Identifier);
}

bool IdentifierQuery::matches(const View& view) const
{
  return view.accessibilityIdentifierEquals(text_) || (view.mayHave(otherNames_) && matchesOtherName(view));
}

bool IdentifierQuery::matchesOtherName(const View& view) const
{
  if (view.mayHave({Feature::HostAnswers, Feature::FieldEditor})) {
    if (const auto given = view.hostString(HostProperty::GuideIdentifier)) return *given == text_.utf8();
    if (isFieldEditor(view)) return wv_guideIdentifier(view) == text_.utf8();
  }
  return keyPathOfValue_ && view.observedKeyPathEquals("value", *keyPathOfValue_) && isText(view);
}

bool WVIsMeaningfulIdentifier(const std::optional<std::string>& identifier)
{
  return identifier && !identifier->empty() && !identifier->starts_with("_NS");
}

} // namespace wayvane
