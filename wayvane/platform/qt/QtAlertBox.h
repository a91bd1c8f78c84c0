#pragma once

#include <wayvane/platform/Panels.h>

#include <QMessageBox>

#include <vector>

class QLineEdit;

namespace wayvane::qt {

/// A message box whose texts are always literal, with an optional field, and which can be left without
/// choosing a button.
class QtAlertBox final : public QMessageBox {
  Q_OBJECT
public:
  explicit QtAlertBox(const platform::AlertSpec& spec);

  [[nodiscard]] platform::AlertAnswer answer() const;

protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

private:
  void addButtons(const std::vector<std::string>& titles);
  void addField(const platform::AlertField& field);

  std::vector<QAbstractButton*> buttons_;
  QLineEdit* field_ = nullptr;
};

} // namespace wayvane::qt
