#pragma once

#include <wayvane/manager/GuideCache.h>
#include <wayvane/manager/StringTables.h>
#include <wayvane/model/WVGuide.h>
#include <wayvane/platform/Menu.h>
#include <wayvane/platform/Platform.h>
#include <wayvane/recording/WVRecorderDelegate.h>
#include <wayvane/targeting/TranslationSource.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace wayvane {

class WVPlayer;
class WVRecorder;

/// The framework's entry for a host: keeps the library of guides, offers them in the Help menu, plays the one
/// that the user chooses, records new ones and saves them.
///
/// Main thread only. Nothing is reported to the host as an error; what goes wrong is logged or left out.
class WVGuideManager : public WVRecorderDelegate, public TranslationSource {
public:
  /// The manager of the process. Made on first use, on whichever thread, and never destroyed.
  [[nodiscard]] static WVGuideManager& sharedManager();

  /// A manager with the process's player and recorder, or with those given, which it borrows. It becomes the
  /// current source of translations.
  WVGuideManager();
  WVGuideManager(WVPlayer& player, WVRecorder& recorder);
  ~WVGuideManager() override;

  // Start

  /// Makes the guides folder and, at the end of the Help menu, a separator, the guides and the entry that
  /// starts and stops a recording. To be called once, when the menu bar is there. A program without any menu
  /// gets the folder and nothing else.
  void install();

  // Library

  /// Where guides are kept: "<application support>/<bundle identifier>/Guides", with "com.unknown.app" for a
  /// program without identifier. Empty when the user has no folder for such things.
  [[nodiscard]] std::string guidesDirectory() const;
  /// Looks through the folder for guides of this program, in the folder's own order, and shows them in the
  /// Help menu. Those of other programs and of newer versions are logged and left out, files that are no
  /// guides are left out silently. A file that did not change is not read again and keeps its guide object.
  void reloadGuides();

  /// The guides found by the last reload. They are shared with the library: copy one before changing it.
  [[nodiscard]] std::vector<GuideHandle> savedGuides() const { return guides_; }

  /// Replaces the list until the next reload. The menu stays as it is.
  void setGuides(std::vector<GuideHandle> guides) { guides_ = std::move(guides); }

  /// To be called when a menu is about to open; reloads when it is the Help menu. Bindings that `install`
  /// could observe the menu of do so by themselves.
  void menuNeedsUpdate(const platform::MenuHandle& menu);

  // Translations

  /// The names of the host's string tables, without extension. None unless set.
  [[nodiscard]] const std::vector<std::string>& stringsFileNames() const { return stringTables_.names(); }

  /// Reads those tables in all languages, so that recorded targets carry every translation of their texts.
  /// An empty list turns that off.
  void setStringsFileNames(std::vector<std::string> names);

  /// The key that a text is of in the host's tables. A text that none of them has is its own key, as long as
  /// there are tables; nothing otherwise.
  [[nodiscard]] std::optional<std::string> localizationKeyForString(std::string_view text) const;
  /// The texts of a key by language code; nothing for an unknown key.
  [[nodiscard]] std::optional<LocalizationDictionary> allLocalizationsForKey(std::string_view key) const;
  /// The text in all languages; nothing when no table has it. Without tables, the text itself in the current
  /// language ("en" when that is unknown).
  [[nodiscard]] std::optional<LocalizationDictionary>
  allLocalizationsForString(std::string_view text) const override;

  // What the recorder reports

  void recorderDidCaptureStep(std::uint64_t stepIndex) override;
  /// Asks for a name, writes the guide into the guides folder and reloads the library. A guide without steps
  /// is dropped, and so is one whose author cancels. Returns when the author has answered.
  void recorderDidFinishWithGuide(const std::shared_ptr<WVGuide>& guide) override;

private:
  /// What the Help menu shows of a guide.
  struct GuideEntry {
    GuideHandle guide;
    std::string title;
    std::optional<std::string> toolTip;
    friend bool operator==(const GuideEntry&, const GuideEntry&) = default;
  };

  // Library
  [[nodiscard]] std::vector<GuideHandle> _loadGuides(const platform::Platform& platform);
  void _showGuides(const platform::MenuHandle& helpMenu);
  void _removeGuideItems(const platform::MenuHandle& helpMenu);
  void _insertGuideItems(platform::Menu& helpMenu);
  void _insertGuideSeparator(platform::Menu& helpMenu);
  [[nodiscard]] bool _guideItemsAreInPlace(const platform::Menu& helpMenu) const;

  // Help menu
  [[nodiscard]] platform::MenuHandle _helpMenu() const;
  void _addRecordItem(platform::Menu& helpMenu);
  void _toggleRecording(const platform::MenuItemHandle& sender);
  void _playGuide(const GuideHandle& guide);

  // Saving
  [[nodiscard]] bool _saveGuide(const WVGuide& guide, Error* error) const;

  WVPlayer& player_;
  WVRecorder& recorder_;
  GuideCache cache_;
  mutable StringTables stringTables_;
  std::vector<GuideHandle> guides_;
  std::vector<GuideEntry> shownGuides_;
  std::vector<platform::MenuItemHandle> guideMenuItems_;
  platform::MenuItemHandle separatorItem_;
  platform::MenuItemHandle guideSeparatorItem_;
  platform::MenuItemHandle recordItem_;
  /// Every entry of that kind ever added, for its command to find itself.
  std::vector<std::shared_ptr<platform::MenuItemHandle>> recordItems_;
  platform::MenuHandle observedMenu_;
  platform::Registration opening_;
  /// What menu entries and alerts hold instead of the manager: null in it once the manager is gone.
  std::shared_ptr<WVGuideManager*> self_;
  /// What the recorder holds weakly: owns nothing and ends with the manager.
  std::shared_ptr<WVRecorderDelegate> asDelegate_;
};

} // namespace wayvane
