#pragma once

#include <wayvane/platform/Panels.h>

#include <QPointer>
#include <QWidget>

#include <memory>

namespace wayvane::qt {

class QtPopoverWidget;

class QtPopover final : public platform::Popover {
public:
  explicit QtPopover(platform::PopoverSpec spec);
  /// A popover whose owner drops it vanishes without another word.
  ~QtPopover() override;

  bool show(const platform::WindowHandle& window, const platform::Rect& anchor) override;
  void close() override;
  [[nodiscard]] bool isShown() const override;
  [[nodiscard]] std::string text(const std::string& fieldIdentifier) const override;
  void focusField(const std::string& fieldIdentifier) override;
  [[nodiscard]] platform::WindowHandle window() const override;

private:
  void press(std::size_t button);

  platform::PopoverSpec spec_;
  QPointer<QtPopoverWidget> widget_;
  /// The window it lies over, which gets the keyboard back.
  QPointer<QWidget> owner_;
  bool isShown_ = false;
  /// Ends with the popover: callbacks may drop it.
  std::shared_ptr<bool> life_ = std::make_shared<bool>(true);
};

} // namespace wayvane::qt
