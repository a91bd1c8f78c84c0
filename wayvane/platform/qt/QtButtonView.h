#pragma once

#include <wayvane/platform/qt/QtControlView.h>

class QAbstractButton;

namespace wayvane::qt {

/// A QAbstractButton: push and tool buttons, check boxes, radio buttons.
class QtButtonView : public QtControlView, private platform::Button {
public:
  using QtControlView::QtControlView;

protected:
  [[nodiscard]] std::string title() const override;
  [[nodiscard]] bool isTitled(const platform::SearchText& text) const override;
  [[nodiscard]] bool isImageOnly() const override;
  [[nodiscard]] platform::ImageHandle image() const override;
  /// An image-only button is read by the text that it does not show.
  [[nodiscard]] QString derivedLabel(const QWidget& widget) const override;

  /// Where there is one, it is the title.
  [[nodiscard]] bool derivedLabelEquals(const QWidget& /*widget*/,
                                        const platform::SearchText& /*text*/) const override
  {
    return false;
  }

  /// Without the tip that actions make of their text.
  [[nodiscard]] QString ownToolTip(const QWidget& widget) const override;
  [[nodiscard]] QString actionName(const QWidget& widget) const override;
  [[nodiscard]] const void* roleOfKind(platform::ViewKind kind) const override;

private:
  [[nodiscard]] const QAbstractButton* button() const;
};

} // namespace wayvane::qt
