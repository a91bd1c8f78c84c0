#pragma once

#include <QWidget>

#include <string>
#include <vector>

/// A widget of the host's own class that remembers what happened to it.
class HostCanvas : public QWidget {
  Q_OBJECT
public:
  using QWidget::QWidget;

  [[nodiscard]] int presses() const { return presses_; }

  [[nodiscard]] int mouseEvents() const { return mouseEvents_; }

  [[nodiscard]] int paints() const { return paints_; }

  [[nodiscard]] const std::vector<std::string>& hover() const { return hover_; }

protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

private:
  int presses_ = 0;
  int mouseEvents_ = 0;
  int paints_ = 0;
  std::vector<std::string> hover_;
};
