#pragma once

#include <wayvane/platform/qt/QtControlView.h>

class QComboBox;

namespace wayvane::qt {

/// A QComboBox. Of an editable one, too, the chosen entry counts and never what was typed.
class QtPopUpView : public QtControlView, private platform::Button, private platform::PopUpButton {
public:
  using QtControlView::QtControlView;

protected:
  [[nodiscard]] std::string title() const override;
  [[nodiscard]] bool isTitled(const platform::SearchText& text) const override;
  [[nodiscard]] bool isImageOnly() const override;
  [[nodiscard]] platform::ImageHandle image() const override;
  [[nodiscard]] std::optional<std::string> titleOfSelectedItem() const override;
  [[nodiscard]] QString derivedLabel(const QWidget& widget) const override;
  [[nodiscard]] bool derivedLabelEquals(const QWidget& widget,
                                        const platform::SearchText& text) const override;
  [[nodiscard]] const void* roleOfKind(platform::ViewKind kind) const override;

private:
  [[nodiscard]] const QComboBox* box() const;
};

} // namespace wayvane::qt
