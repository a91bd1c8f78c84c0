#pragma once

#include <wayvane/platform/Panels.h>

#include <QPainterPath>
#include <QWidget>

#include <map>

class QLineEdit;
class QPushButton;

namespace wayvane::qt {

/// The form of a popover in a bubble whose arrow points at what it belongs to. It takes the keyboard; a press
/// outside closes it on a later turn, so that the program and our monitors meet the press while it is open.
class QtPopoverWidget final : public QWidget {
  Q_OBJECT
public:
  explicit QtPopoverWidget(const platform::PopoverSpec& spec);

  /// `anchor` in global coordinates; `owner` is the window it lies over.
  void showAt(const QRectF& anchor, QWidget& owner);
  [[nodiscard]] QString text(const std::string& identifier) const;
  void focusField(const std::string& identifier);

signals:
  void pressed(int button);
  void dismissed();

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

private:
  void addFields(const platform::PopoverSpec& spec);
  void addButtons(const platform::PopoverSpec& spec);
  /// The bubble with its arrow.
  [[nodiscard]] QPainterPath shape() const;
  [[nodiscard]] QRect toWidget(const platform::Rect& frame) const;
  [[nodiscard]] bool isOutside(QObject* receiver, QPoint global) const;
  /// `pressTime` is that of the press outside that is the reason; 0 for another one.
  void dismissLater(quint64 pressTime = 0);
  bool pressKey(platform::PopoverButton::Key key);

  platform::Size contentSize_;
  std::map<std::string, QLineEdit*, std::less<>> fields_;
  std::vector<std::pair<QPushButton*, platform::PopoverButton::Key>> buttons_;
  /// Above the content when the popover is below its anchor.
  bool isArrowOnTop_ = true;
  double arrowX_ = 0;
  /// How often it was shown: what ends one showing does not end the next.
  int showings_ = 0;
  quint64 doubleClickTime_ = 0;
};

} // namespace wayvane::qt
