#pragma once

#include <wayvane/platform/qt/QtView.h>

namespace wayvane::qt {

/// A QTextEdit or QPlainTextEdit. Fields have editors of their own here, so none is ever borrowed.
class QtTextView : public QtView, private platform::TextView {
public:
  using QtView::QtView;

protected:
  [[nodiscard]] bool isEditable() const override;
  [[nodiscard]] std::string string() const override;

  [[nodiscard]] bool isFieldEditor() const override { return false; }

  [[nodiscard]] platform::ViewHandle delegate() const override { return nullptr; }

  [[nodiscard]] QString derivedLabel(const QWidget& widget) const override;
  [[nodiscard]] bool derivedLabelEquals(const QWidget& widget,
                                        const platform::SearchText& text) const override;
  [[nodiscard]] const void* roleOfKind(platform::ViewKind kind) const override;
};

} // namespace wayvane::qt
