#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <vector>

namespace wayvane::qt {

/// Remembers in which order windows were made and used, which the toolkit does not tell.
class QtWindowOrder : public QObject {
public:
  QtWindowOrder();
  ~QtWindowOrder() override;

  /// All windows of the program that users take for windows, in the order in which they were made.
  [[nodiscard]] std::vector<QWidget*> inOrderMade() const;
  /// The visible ones, front to back.
  [[nodiscard]] std::vector<QWidget*> frontToBack() const;

protected:
  bool eventFilter(QObject* receiver, QEvent* event) override;

private:
  void noteMade(QWidget* window);
  void noteUsed(QWidget* window);

  std::vector<QPointer<QWidget>> made_;
  /// The one used last comes first.
  std::vector<QPointer<QWidget>> used_;
};

} // namespace wayvane::qt
