#pragma once

#include <tests/conformance/Stage.h>
#include <tests/desktop/Desktop.h>

namespace wayvane::conformance {

/// A program on the simulated desktop.
class SimStage : public Stage {
public:
  SimStage();

  [[nodiscard]] platform::Platform& platform() override { return desktop_.platform(); }

  platform::WindowHandle makeWindow(const std::string& title, const platform::Rect& frame) override;
  void setFrame(const platform::WindowHandle& window, const platform::Rect& frame) override;
  void raise(const platform::WindowHandle& window) override;
  void orderOut(const platform::WindowHandle& window) override;
  void closeWindow(const platform::WindowHandle& window) override;
  void addToolbarItem(const platform::WindowHandle& window, const ToolbarPiece& piece) override;

  platform::ViewHandle addPlain(const platform::WindowHandle& window, const Look& look) override;
  platform::ViewHandle addButton(const platform::WindowHandle& window, const Look& look,
                                 const ButtonPiece& piece) override;
  platform::ViewHandle addIconButton(const platform::WindowHandle& window, const Look& look) override;
  platform::ViewHandle addLabel(const platform::WindowHandle& window, const Look& look,
                                const std::string& text) override;
  platform::ViewHandle addField(const platform::WindowHandle& window, const Look& look,
                                const FieldPiece& piece) override;
  platform::ViewHandle addTextView(const platform::WindowHandle& window, const Look& look,
                                   const TextViewPiece& piece) override;
  platform::ViewHandle addPopUp(const platform::WindowHandle& window, const Look& look,
                                const PopUpPiece& piece) override;
  platform::ViewHandle addSegments(const platform::WindowHandle& window, const Look& look,
                                   const SegmentsPiece& piece) override;
  platform::ViewHandle addGroupBox(const platform::WindowHandle& window, const Look& look,
                                   const std::string& title) override;
  platform::ViewHandle addTable(const platform::WindowHandle& window, const Look& look,
                                const TablePiece& piece) override;
  platform::ViewHandle addScrollArea(const platform::WindowHandle& window, const Look& look,
                                     platform::Size document) override;
  void hide(const platform::ViewHandle& view) override;
  void destroy(const platform::ViewHandle& view) override;

  [[nodiscard]] std::string baseClassName() const override { return "NSView"; }

  [[nodiscard]] int pressesReceived(const platform::ViewHandle& view) override;
  [[nodiscard]] int mouseEventsReceived(const platform::ViewHandle& view) override;
  [[nodiscard]] std::vector<std::string> hoverReceived(const platform::ViewHandle& view) override;

  /// The simulation draws nothing of the program.
  [[nodiscard]] int timesDrawn(const platform::ViewHandle&) override { return 0; }

  [[nodiscard]] Picture picture(const platform::WindowHandle& window) override;

  void press(platform::Point screenPoint) override;
  void doublePress(platform::Point screenPoint) override;
  void drag(platform::Point from, platform::Point to) override;
  void moveMouse(platform::Point screenPoint) override;

  void addMenuEntry(const platform::WindowHandle& window, const MenuPath& path,
                    const std::string& action) override;
  std::vector<std::string> openMenu(const MenuPath& path) override;

  /// Menus here open for a moment only.
  void closeMenus() override {}

  void chooseMenuEntry(const MenuPath& path) override;
  void removeMenu(const MenuPath& path) override;

  void answerNextAlert(const Text& buttonTitle, const Text& fieldText,
                       std::function<void()> meanwhile) override;
  void typeIntoPopover(platform::Popover& popover, const std::string& field,
                       const std::string& text) override;
  void clickPopoverButton(platform::Popover& popover, const std::string& title) override;
  void pressKeyInPopover(platform::Popover& popover, platform::PopoverButton::Key key) override;
  [[nodiscard]] Text spokenAlert(platform::OverlayPanel& overlay) override;

  void pass(double seconds) override { desktop_.advance(seconds); }

  [[nodiscard]] std::vector<std::string> loggedLines() const override { return desktop_.log(); }

  [[nodiscard]] std::string emptyFolder() override;
  void addHostTable(const std::string& table, const std::string& language,
                    const platform::StringTable& texts) override;

private:
  /// Where the new element goes, and its frame there.
  struct Place {
    sim::View& parent;
    platform::Rect frame;
  };

  [[nodiscard]] static Place placeFor(const platform::WindowHandle& window, const Look& look);
  static platform::ViewHandle finish(sim::View& view, const Look& look);
  [[nodiscard]] static std::vector<std::string> namesOf(const std::vector<platform::HoverEvent>& events);
  bool pressPanelButton(platform::Point screenPoint);

  sim::Desktop desktop_;
  std::map<const platform::View*, sim::TrackingRecord*> tracking_;
};

} // namespace wayvane::conformance
