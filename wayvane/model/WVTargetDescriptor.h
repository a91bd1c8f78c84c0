#pragma once

#include <wayvane/model/LocalizationDictionary.h>
#include <wayvane/platform/Image.h>
#include <wayvane/platform/Menu.h>
#include <wayvane/platform/Window.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace wayvane {

namespace platform {
class TableView;
}

/// Describes one element of the host's interface by as many independent clues as are known, so that it can
/// be found again in a later run of the program. A plain value: copies are equal and independent. Texts are
/// UTF-8; an absent one means that the clue is not known, which is not the same as an empty one.
struct WVTargetDescriptor {
  /// The identifier that accessibility tools see, when it is one a programmer chose.
  std::optional<std::string> accessibilityIdentifier;
  /// For menu steps: the titles from the menu bar down, joined by " > ".
  std::optional<std::string> menuPath;
  /// For menu steps: the name of the command's action.
  std::optional<std::string> menuAction;
  std::optional<std::string> className;
  /// Components "Class[index]" joined by "/", topmost first.
  std::optional<std::string> hierarchyPath;
  /// The visible title in the language of the recording.
  std::optional<std::string> title;
  std::optional<LocalizationDictionary> titleLocalizations;
  /// The name of the control's action.
  std::optional<std::string> action;
  std::optional<std::string> toolTip;
  std::optional<LocalizationDictionary> toolTipLocalizations;
  std::optional<std::string> toolbarItemIdentifier;
  /// "binding:keyPath".
  std::optional<std::string> bindingInfo;
  /// Counted from 0 in the order shown; -1 for none.
  std::int64_t tableRow = -1;
  std::optional<std::string> tableColumnIdentifier;
  /// Counted from 0; -1 for none.
  std::int64_t tableColumn = -1;
  std::optional<std::string> tableIdentifier;
  std::optional<std::string> cellIdentifier;
  /// What stays the same about the model object shown in the row, wherever the row goes.
  std::optional<std::string> objectIdentifier;
  std::optional<std::string> windowTitle;

  /// A descriptor that knows nothing but the path of a menu command.
  [[nodiscard]] static WVTargetDescriptor descriptorForMenuPath(std::string menuPath);

  // Capture

  /// Everything that can be told about a view. Main thread, like all that follows about views.
  [[nodiscard]] static WVTargetDescriptor descriptorForView(const platform::View& view);
  /// The same, and the row, column and cell below a press. `clickLocation` is in window coordinates.
  [[nodiscard]] static WVTargetDescriptor descriptorForView(const platform::View& view,
                                                            platform::Point clickLocation);

  // Resolution

  /// The element, in `window` or, when that is null, in the first of the program's windows, front to back,
  /// that has it. Null when no clue leads to an element.
  [[nodiscard]] platform::ViewHandle resolveInWindow(const platform::WindowHandle& window) const;
  /// The frame of the element, or of its table cell or row, in screen coordinates; the zero rectangle when it
  /// cannot be found.
  [[nodiscard]] platform::Rect resolvedScreenRect() const;
  /// The menu command; null when there is none.
  [[nodiscard]] platform::MenuItemHandle resolveMenuItem() const;
  /// The row in which the table now shows what was recorded; -1 when it does not.
  [[nodiscard]] int resolveRowInTable(const platform::TableView& table) const;
  [[nodiscard]] int resolveColumnInTable(const platform::TableView& table) const;
  /// The picture of the target's table cell; null when it has none.
  [[nodiscard]] platform::ImageHandle iconForResolvedView(const platform::ViewHandle& view) const;

  // Description and archive

  /// One line for people: what the recorder shows while the pointer is over the element, and logs. "Unknown"
  /// when there is nothing to tell it by.
  [[nodiscard]] std::string displayDescription() const;

  /// The keyed archive, for carrying a descriptor within memory; the guide file has a form of its own.
  [[nodiscard]] std::string archivedData() const;
  /// Nothing when the bytes are no archive. An archive without "tableColumn" gives column -1, but one without
  /// "tableRow" gives row 0.
  [[nodiscard]] static std::optional<WVTargetDescriptor> unarchived(std::string_view archive);

  friend bool operator==(const WVTargetDescriptor&, const WVTargetDescriptor&) = default;
};

} // namespace wayvane
