#pragma once

#include <tests/conformance/Stage.h>

#include <QHash>
#include <QPointer>
#include <QTemporaryDir>

class QAction;
class QMainWindow;
class QMenu;
class QMenuBar;
class QWidget;
class QWindow;

namespace wayvane::conformance {

/// A program of real widgets in real windows.
class QtStage : public Stage {
public:
  QtStage();
  ~QtStage() override;

  [[nodiscard]] platform::Platform& platform() override { return *platform::Platform::current(); }

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

  [[nodiscard]] std::string baseClassName() const override { return "QWidget"; }

  [[nodiscard]] int pressesReceived(const platform::ViewHandle& view) override;
  [[nodiscard]] int mouseEventsReceived(const platform::ViewHandle& view) override;
  [[nodiscard]] std::vector<std::string> hoverReceived(const platform::ViewHandle& view) override;
  [[nodiscard]] int timesDrawn(const platform::ViewHandle& view) override;
  [[nodiscard]] Picture picture(const platform::WindowHandle& window) override;

  void press(platform::Point screenPoint) override;
  void doublePress(platform::Point screenPoint) override;
  void drag(platform::Point from, platform::Point to) override;
  void moveMouse(platform::Point screenPoint) override;

  void addMenuEntry(const platform::WindowHandle& window, const MenuPath& path,
                    const std::string& action) override;
  std::vector<std::string> openMenu(const MenuPath& path) override;
  void closeMenus() override;
  void chooseMenuEntry(const MenuPath& path) override;
  void removeMenu(const MenuPath& path) override;

  void answerNextAlert(const Text& buttonTitle, const Text& fieldText,
                       std::function<void()> meanwhile) override;
  void typeIntoPopover(platform::Popover& popover, const std::string& field,
                       const std::string& text) override;
  void clickPopoverButton(platform::Popover& popover, const std::string& title) override;
  void pressKeyInPopover(platform::Popover& popover, platform::PopoverButton::Key key) override;
  [[nodiscard]] Text spokenAlert(platform::OverlayPanel& overlay) override;

  void pass(double seconds) override;
  [[nodiscard]] std::vector<std::string> loggedLines() const override;
  [[nodiscard]] std::string emptyFolder() override;
  void addHostTable(const std::string& table, const std::string& language,
                    const platform::StringTable& texts) override;

private:
  /// Puts the new widget where the look says, shows it and gives it what the look gives.
  platform::ViewHandle place(QWidget* widget, const platform::WindowHandle& window, const Look& look);
  [[nodiscard]] QWindow* windowAt(QPoint global) const;
  [[nodiscard]] QMenuBar* menuBarOfProgram() const;
  [[nodiscard]] QMenu* menuAt(const MenuPath& path) const;
  void bringToFront(QMainWindow* window);

  /// Back to front.
  std::vector<QPointer<QMainWindow>> windows_;
  QHash<QWidget*, int> clicks_;
  QTemporaryDir folder_;
};

} // namespace wayvane::conformance
