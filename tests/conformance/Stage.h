#pragma once

#include <tests/conformance/Pieces.h>
#include <wayvane/platform/Platform.h>

#include <functional>
#include <memory>

namespace wayvane::conformance {

/// A host program on one toolkit that builds itself piece by piece, and its user. All it builds ends with it.
class Stage {
public:
  Stage() = default;
  virtual ~Stage() = default;
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;

  [[nodiscard]] virtual platform::Platform& platform() = 0;

  // Windows

  /// In front, with the keyboard, with a menu bar. What lies below the upper 120 points is free for elements.
  virtual platform::WindowHandle makeWindow(const std::string& title, const platform::Rect& frame) = 0;
  virtual void setFrame(const platform::WindowHandle& window, const platform::Rect& frame) = 0;
  virtual void raise(const platform::WindowHandle& window) = 0;
  virtual void orderOut(const platform::WindowHandle& window) = 0;
  /// The window and everything in it are gone afterwards.
  virtual void closeWindow(const platform::WindowHandle& window) = 0;
  virtual void addToolbarItem(const platform::WindowHandle& window, const ToolbarPiece& piece) = 0;

  // Elements

  /// Nothing but an element, of the host's class "HostCanvas"; what is added later lies above.
  virtual platform::ViewHandle addPlain(const platform::WindowHandle& window, const Look& look) = 0;
  virtual platform::ViewHandle addButton(const platform::WindowHandle& window, const Look& look,
                                         const ButtonPiece& piece) = 0;
  /// A button that shows a picture of 16 x 16 and no title.
  virtual platform::ViewHandle addIconButton(const platform::WindowHandle& window, const Look& look) = 0;
  virtual platform::ViewHandle addLabel(const platform::WindowHandle& window, const Look& look,
                                        const std::string& text) = 0;
  virtual platform::ViewHandle addField(const platform::WindowHandle& window, const Look& look,
                                        const FieldPiece& piece) = 0;
  virtual platform::ViewHandle addTextView(const platform::WindowHandle& window, const Look& look,
                                           const TextViewPiece& piece) = 0;
  virtual platform::ViewHandle addPopUp(const platform::WindowHandle& window, const Look& look,
                                        const PopUpPiece& piece) = 0;
  virtual platform::ViewHandle addSegments(const platform::WindowHandle& window, const Look& look,
                                           const SegmentsPiece& piece) = 0;
  virtual platform::ViewHandle addGroupBox(const platform::WindowHandle& window, const Look& look,
                                           const std::string& title) = 0;
  virtual platform::ViewHandle addTable(const platform::WindowHandle& window, const Look& look,
                                        const TablePiece& piece) = 0;
  /// Shows the upper left part of a document of that size; without one when the size is zero.
  virtual platform::ViewHandle addScrollArea(const platform::WindowHandle& window, const Look& look,
                                             platform::Size document) = 0;

  virtual void hide(const platform::ViewHandle& view) = 0;
  virtual void destroy(const platform::ViewHandle& view) = 0;

  /// The class that all elements of the toolkit are of.
  [[nodiscard]] virtual std::string baseClassName() const = 0;

  // What the elements experienced

  /// Presses with the mouse that the element got; a double press is two.
  [[nodiscard]] virtual int pressesReceived(const platform::ViewHandle& view) = 0;
  /// Everything that the mouse's button did to a plain element: presses, movements while it was down,
  /// releases.
  [[nodiscard]] virtual int mouseEventsReceived(const platform::ViewHandle& view) = 0;
  /// Of a plain element, "entered" and "exited" in turn.
  [[nodiscard]] virtual std::vector<std::string> hoverReceived(const platform::ViewHandle& view) = 0;
  /// How often a plain element was drawn.
  [[nodiscard]] virtual int timesDrawn(const platform::ViewHandle& view) = 0;
  /// What the window shows now, our overlay included, by points in window coordinates.
  [[nodiscard]] virtual Picture picture(const platform::WindowHandle& window) = 0;

  // The user, with the mouse in screen coordinates

  virtual void press(platform::Point screenPoint) = 0;
  virtual void doublePress(platform::Point screenPoint) = 0;
  /// A press, a movement with the button down and the release elsewhere.
  virtual void drag(platform::Point from, platform::Point to) = 0;
  virtual void moveMouse(platform::Point screenPoint) = 0;

  // Menus

  /// An entry of the host's at the end of a menu, with the menus above it. One named "Help" in the menu bar
  /// is the program's Help menu.
  virtual void addMenuEntry(const platform::WindowHandle& window, const MenuPath& path,
                            const std::string& action) = 0;
  /// Opens the menu; the titles that the user reads in it, "-" for separators.
  virtual std::vector<std::string> openMenu(const MenuPath& path) = 0;
  virtual void closeMenus() = 0;
  /// The user opens the menu and clicks the entry.
  virtual void chooseMenuEntry(const MenuPath& path) = 0;
  /// The host removes a menu of its own with all its entries.
  virtual void removeMenu(const MenuPath& path) = 0;

  // Panels of ours

  /// Clicks the button of the next alert, after typing the text into its field; without a title it is closed
  /// in another way. `meanwhile` runs before that, while the alert is up.
  virtual void answerNextAlert(const Text& buttonTitle, const Text& fieldText = {},
                               std::function<void()> meanwhile = {}) = 0;
  virtual void typeIntoPopover(platform::Popover& popover, const std::string& field,
                               const std::string& text) = 0;
  virtual void clickPopoverButton(platform::Popover& popover, const std::string& title) = 0;
  virtual void pressKeyInPopover(platform::Popover& popover, platform::PopoverButton::Key key) = 0;
  /// What assistive technology reads of an alert in the overlay; nothing when there is none.
  [[nodiscard]] virtual Text spokenAlert(platform::OverlayPanel& overlay) = 0;

  // Surroundings

  /// Lets time pass, on the toolkit's own clock.
  virtual void pass(double seconds) = 0;
  /// Lines of the framework, oldest first.
  [[nodiscard]] virtual std::vector<std::string> loggedLines() const = 0;
  /// The path of an empty folder.
  [[nodiscard]] virtual std::string emptyFolder() = 0;
  /// Ships a table of the host's.
  virtual void addHostTable(const std::string& table, const std::string& language,
                            const platform::StringTable& texts) = 0;

  // Made of the above

  /// Lets time pass until `condition` holds; whether it came to hold within two seconds.
  bool waitUntil(const std::function<bool()>& condition);
  /// The middle of an element on the screen.
  [[nodiscard]] static platform::Point screenCenter(const platform::ViewHandle& view);

  void pressView(const platform::ViewHandle& view) { press(screenCenter(view)); }
};

/// The stage of the toolkit that this suite is linked with. The program calls itself org.example.Notes,
/// version 1.4, and runs in English.
[[nodiscard]] std::unique_ptr<Stage> makeStage();

/// What a toolkit cannot show, and why.
struct NotOnThisToolkit {
  std::string test;
  std::string reason;
};

/// Starts the toolkit, once and before all stages; what is returned ends it.
[[nodiscard]] std::shared_ptr<void> startToolkit(int& argc, char** argv);
extern const std::vector<NotOnThisToolkit> kNotOnThisToolkit;

} // namespace wayvane::conformance
