#pragma once

#include <wayvane/model/LocalizationDictionary.h>
#include <wayvane/platform/Image.h>
#include <wayvane/platform/View.h>

#include <optional>
#include <string>
#include <string_view>

namespace wayvane {

/// The questions that capture, resolution, the player and the bubble ask of every view. The answer depends on
/// what the view is, the most specific role first; a host's own answer (see platform::HostProperty) wins over
/// the built-in rule. Nothing is remembered between calls. A view whose element is gone answers with nothing,
/// padding 0 and corner radius 6. Main thread only.

/// The visible title in the current language. Never the contents of an editable text.
[[nodiscard]] std::optional<std::string> wv_localizedTitle(const platform::View& view);
/// That title in every language the host provides; nothing without a title or a translation.
[[nodiscard]] std::optional<LocalizationDictionary> wv_titleLocalizations(const platform::View& view);

[[nodiscard]] std::optional<std::string> wv_localizedToolTip(const platform::View& view);
[[nodiscard]] std::optional<LocalizationDictionary> wv_toolTipLocalizations(const platform::View& view);

/// The name of the action a control sends; nothing for anything else.
[[nodiscard]] std::optional<std::string> wv_actionString(const platform::View& view);
[[nodiscard]] std::optional<std::string> wv_accessibilityLabel(const platform::View& view);

/// What stands for the view in a message: its title, or `kButtonIconToken` for a button that is only a
/// picture.
[[nodiscard]] std::optional<std::string> wv_displayString(const platform::View& view);
/// In a displayed text this token is replaced by the button's icon.
inline constexpr std::string_view kButtonIconToken = "[ICON:button]";

/// The picture of a button; null for anything else.
[[nodiscard]] platform::ImageHandle wv_buttonIcon(const platform::View& view);

/// How far the highlight stands off the view's frame, in points; negative values shrink it.
[[nodiscard]] double wv_guidePadding(const platform::View& view);
/// The corner radius of the highlight, in points.
[[nodiscard]] double wv_guideCornerRadius(const platform::View& view);

/// The identifier the view is named by: for a text bound to a key path "binding:value:" and that path, for
/// the editor of a text field the field's, otherwise the accessibility identifier.
[[nodiscard]] std::optional<std::string> wv_guideIdentifier(const platform::View& view);

/// Asks view after view whether `wv_guideIdentifier` or the accessibility identifier is a text, and builds no
/// texts while it does. Borrows the text. A view that has none of the features need not be asked.
class IdentifierQuery {
public:
  explicit IdentifierQuery(const platform::SearchText& text);

  [[nodiscard]] platform::Features features() const { return features_; }

  [[nodiscard]] bool matches(const platform::View& view) const;

private:
  [[nodiscard]] bool matchesOtherName(const platform::View& view) const;

  const platform::SearchText& text_;
  /// Where the text is one that names a view by its binding.
  std::optional<platform::SearchText> keyPathOfValue_;
  platform::Features otherNames_;
  platform::Features features_;
};

/// Whether an identifier is worth keeping: not empty, and not one that the toolkit made up ("_NS...").
[[nodiscard]] bool WVIsMeaningfulIdentifier(const std::optional<std::string>& identifier);

} // namespace wayvane
