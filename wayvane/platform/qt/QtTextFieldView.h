#pragma once

#include <wayvane/platform/qt/QtControlView.h>

namespace wayvane::qt {

/// A QLabel: a text that nobody edits.
class QtLabelView : public QtControlView, private platform::TextField {
public:
  using QtControlView::QtControlView;

protected:
  [[nodiscard]] bool isEditable() const override { return false; }

  [[nodiscard]] std::string stringValue() const override;

  [[nodiscard]] std::optional<std::string> placeholderString() const override { return std::nullopt; }

  [[nodiscard]] const void* roleOfKind(platform::ViewKind kind) const override;
};

/// A QLineEdit. What stands in one for passwords is not told.
class QtLineEditView : public QtControlView, private platform::TextField {
public:
  using QtControlView::QtControlView;

protected:
  [[nodiscard]] bool isEditable() const override;
  [[nodiscard]] std::string stringValue() const override;
  [[nodiscard]] std::optional<std::string> placeholderString() const override;
  [[nodiscard]] QString derivedLabel(const QWidget& widget) const override;
  [[nodiscard]] bool derivedLabelEquals(const QWidget& widget,
                                        const platform::SearchText& text) const override;
  [[nodiscard]] const void* roleOfKind(platform::ViewKind kind) const override;
};

/// A QAbstractSpinBox: a field whose editor and arrows are parts of it.
class QtSpinBoxView : public QtControlView, private platform::TextField {
public:
  using QtControlView::QtControlView;

protected:
  [[nodiscard]] bool isEditable() const override;
  [[nodiscard]] std::string stringValue() const override;
  [[nodiscard]] std::optional<std::string> placeholderString() const override;
  [[nodiscard]] QString derivedLabel(const QWidget& widget) const override;
  [[nodiscard]] bool derivedLabelEquals(const QWidget& widget,
                                        const platform::SearchText& text) const override;
  [[nodiscard]] const void* roleOfKind(platform::ViewKind kind) const override;
};

} // namespace wayvane::qt
