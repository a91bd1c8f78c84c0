#pragma once

#include <tests/desktop/Application.h>
#include <tests/desktop/Clock.h>
#include <tests/desktop/Events.h>
#include <tests/desktop/Failures.h>
#include <tests/desktop/Files.h>
#include <tests/desktop/Image.h>
#include <tests/desktop/Localization.h>
#include <tests/desktop/Menu.h>
#include <tests/desktop/Model.h>
#include <tests/desktop/Panels.h>
#include <tests/desktop/Roles.h>
#include <tests/desktop/Scroll.h>
#include <tests/desktop/Table.h>
#include <tests/desktop/Text.h>
#include <tests/desktop/View.h>
#include <tests/desktop/Window.h>
#include <wayvane/platform/Platform.h>

namespace wayvane::sim {

/// An action that a control sent, by a press that reached it.
struct SentAction {
  std::string action;
  platform::ViewHandle sender;
};

/// What became of a press.
struct ClickResult {
  platform::EventVerdict verdict = platform::EventVerdict::PassOn;
  /// The view that received it; null when it was swallowed or hit none.
  platform::ViewHandle view;
};

/// A whole program on a desktop of its own, in memory, driven by verbs. It is Platform::current() while it
/// lives. The screen is 1440 x 900, of which a menu bar takes the top 25; time stands still at 1000 seconds.
class Desktop {
public:
  Desktop();
  ~Desktop();
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  [[nodiscard]] platform::Platform& platform() { return *platform_; }

  // Time

  /// Lets time pass: runs what falls due, in order.
  void advance(double seconds) { clock_.advance(seconds); }

  /// Runs what is due now, and what that adds.
  void runPending() { clock_.runPending(); }

  /// Runs what was due when the call began: one turn of the main loop.
  void runTurn() { clock_.runTurn(); }

  [[nodiscard]] double now() const { return clock_.now(); }

  // Program

  void setBundle(Text identifier, Text shortVersion, Text version);
  const ClassInfo& defineClass(const std::string& name, std::string_view parent = "NSView");

  [[nodiscard]] const std::vector<std::string>& log() const { return log_.lines; }

  void clearLog() { log_.lines.clear(); }

  void setScreen(const platform::Rect& frame, const platform::Rect& visibleFrame);
  void removeScreen();

  // Languages

  void setLanguage(std::optional<std::string> language) { localization_.setLanguage(std::move(language)); }

  void setFrameworkTable(const std::string& language, platform::StringTable texts);
  void setHostTable(const std::string& table, const std::string& language, platform::StringTable texts);
  void setHostLocalizations(std::vector<std::string> languages);

  // Windows

  /// A new window in front; it becomes main and key.
  std::shared_ptr<Window> addWindow(const std::string& title,
                                    const platform::Rect& frame = {100, 100, 800, 600});
  /// A small panel of the host's, in front; neither main nor key.
  std::shared_ptr<Window> addUtilityPanel(const std::string& title, const platform::Rect& frame);

  void setMainWindow(const std::shared_ptr<Window>& window) { application_.main = window; }

  void setKeyWindow(const std::shared_ptr<Window>& window) { application_.key = window; }

  // Mouse and keyboard

  /// A press at a point of the screen: moves the pointer there, asks the monitors and, unless one swallows
  /// it, gives it to the view that is there. A popover of ours closes when the press is outside of it.
  ClickResult click(platform::Point screenPoint);
  /// A press on the middle of the view's visible part.
  ClickResult clickView(const View& view);
  /// A press whose event names another place than the pointer is at.
  ClickResult clickAt(platform::Point screenPoint, platform::Point mouseLocation);
  /// A press in an open menu or pop-up list.
  platform::EventVerdict pressInMenu(platform::Point screenPoint);
  /// A press that the toolkit gives no window.
  platform::EventVerdict pressWithoutWindow(platform::Point screenPoint);
  /// No monitor sees these two.
  void rightClick(platform::Point screenPoint);
  void keyPress(const std::string& key);
  /// Moves the pointer; the window below it gets the movement, after the monitors.
  platform::EventVerdict moveMouse(platform::Point screenPoint);

  void setMouseLocation(platform::Point screenPoint) { events_.setMouseLocation(screenPoint); }

  [[nodiscard]] const std::vector<SentAction>& sentActions() const { return sentActions_; }

  /// The actions' names alone.
  [[nodiscard]] std::vector<std::string> sentActionNames() const;
  void recordAction(const std::string& action, platform::ViewHandle sender);

  // Menus

  /// The menu bar; must not be asked after `removeMainMenu`.
  [[nodiscard]] Menu& mainMenu() { return *application_.mainMenuOfHost; }

  void removeMainMenu() { application_.mainMenuOfHost.reset(); }

  void setHelpMenu(Menu& menu) { application_.helpMenuOfHost = menu.self(); }

  void removeHelpMenu() { application_.helpMenuOfHost.reset(); }

  /// A menu that belongs to no other; it lives as long as the desktop.
  Menu& makeContextMenu();

  /// The user opens the menu.
  void openMenu(Menu& menu) { menu.willOpen(); }

  /// The user chooses the entry: it does its work, then those who observe menu commands hear of it.
  void chooseItem(platform::MenuItem& item);

  // Panels of ours

  /// The newest overlay; null when there is none.
  [[nodiscard]] OverlayPanel* overlay() const;

  [[nodiscard]] const std::vector<OverlayPanel*>& overlays() const { return panels_->overlays; }

  [[nodiscard]] const std::vector<FloatingPanel*>& floatingPanels() const { return panels_->floatingPanels; }

  /// The newest popover that is shown; null when there is none.
  [[nodiscard]] Popover* popover() const;
  /// A press on the button: the monitors see it before the button does. False when the panel or the button is
  /// not there, or the press was swallowed.
  bool clickPanelButton(FloatingPanel& panel, const std::string& title);

  void setRefusesPopovers(bool refuses) { panels_->refusesPopovers = refuses; }

  // Alerts

  /// Queues the answer to an alert to come. One that nobody answers fails the test and ends with -1.
  void answerNextAlert(int button, Text fieldText = {});

  [[nodiscard]] const std::vector<platform::AlertSpec>& alerts() const { return panels_->alerts; }

  /// Runs while an alert is up, before it is answered.
  void setOnAlert(std::function<void(const platform::AlertSpec&)> handler);

  // Parts

  [[nodiscard]] Files& files() { return files_; }

  [[nodiscard]] Application& application() { return application_; }

  [[nodiscard]] Events& events() { return events_; }

  [[nodiscard]] Panels& panels() { return *panels_; }

  [[nodiscard]] const std::shared_ptr<Panels>& sharedPanels() const { return panels_; }

  [[nodiscard]] Clock& clock() { return clock_; }

  [[nodiscard]] Localization& localization() { return localization_; }

  [[nodiscard]] TextMeasurer& textMeasurer() { return textMeasurer_; }

  /// Windows report what happened to them.
  void windowMoved(const Window& window, double dx, double dy);
  void windowRaised(const Window& window);
  void windowClosed(const std::shared_ptr<Window>& window);

  /// Keeps the memory of a view that is gone, so that a test's references to it stay usable.
  void bury(std::shared_ptr<View> view) { buried_.push_back(std::move(view)); }

private:
  platform::MouseEvent eventAt(platform::MouseEvent::Type type, platform::Point screenPoint) const;
  ClickResult press(const platform::MouseEvent& event);
  void closePopoversOutside(const platform::WindowHandle& pressed);

  Clock clock_;
  Log log_;
  Screen screen_;
  Files files_;
  Localization localization_;
  TextMeasurer textMeasurer_;
  Events events_;
  Application application_;
  std::shared_ptr<Panels> panels_;
  std::unique_ptr<platform::Platform> platform_;
  platform::Platform* previous_;
  std::vector<SentAction> sentActions_;
  std::vector<std::shared_ptr<View>> buried_;
  std::vector<std::shared_ptr<Menu>> contextMenus_;
};

} // namespace wayvane::sim
