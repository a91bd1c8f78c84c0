#pragma once

#include <wayvane/platform/ViewRoles.h>
#include <wayvane/platform/Window.h>
#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtView.h>
#include <wayvane/platform/qt/QtWindow.h>

#include <QElapsedTimer>
#include <QMainWindow>
#include <QTest>
#include <QWidget>

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace wayvane::qt {

using platform::Point;
using platform::Rect;
using platform::SearchText;
using platform::Size;
using platform::ViewHandle;
using platform::ViewKind;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsNull;
using testing::NotNull;
using testing::Optional;

inline void PrintTo(const platform::Rect& rect, std::ostream* out)
{
  *out << platform::stringFromRect(rect);
}

MATCHER_P(Shows, widget, "stands for the widget")
{
  return arg != nullptr && widgetOf(*arg) == widget;
}

/// A main window of 600 x 400 whose content is empty; what a test puts there has the content's coordinates,
/// which are the window's.
class Elements : public testing::Test {
protected:
  void SetUp() override
  {
    window_ = std::make_unique<QMainWindow>();
    window_->setWindowTitle(QStringLiteral("Trails"));
    auto* content = new QWidget;
    window_->setCentralWidget(content);
    window_->setGeometry(200, 150, 600, 400);
    window_->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window_.get()));
  }

  void TearDown() override
  {
    window_.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  [[nodiscard]] QMainWindow& window() { return *window_; }

  [[nodiscard]] QWidget& content() { return *window_->centralWidget(); }

  void closeWindow() { window_.reset(); }

  /// A shown widget in the window's content.
  template <class Widget, class... Args>
  Widget* add(QRect place, Args&&... args)
  {
    auto* widget = new Widget(std::forward<Args>(args)..., &content());
    widget->setGeometry(place);
    widget->show();
    return widget;
  }

  [[nodiscard]] static std::vector<QWidget*> subviewsOf(QWidget* widget)
  {
    std::vector<QWidget*> subviews;
    viewForWidget(widget)->visitSubviews([&](const platform::View& view) {
      subviews.push_back(widgetOf(view));
      return true;
    });
    return subviews;
  }

  /// The element at a point of the window, downward from its upper left corner.
  [[nodiscard]] ViewHandle hitAt(QPointF point)
  {
    return viewForWidget(window_.get())->hitTest(windowPointFromWidget(point, *window_));
  }

  /// Where the element's widget shows the rectangle, downward from the window's upper left corner.
  [[nodiscard]] static QRectF placeOf(const ViewHandle& view, const Rect& rect)
  {
    return widgetRectFromWindow(view->convertRectToWindow(rect), *widgetOf(*view)->window());
  }

  [[nodiscard]] static QRectF placeOf(const ViewHandle& view) { return placeOf(view, view->bounds()); }

private:
  std::unique_ptr<QMainWindow> window_;
};

} // namespace wayvane::qt

inline void PrintTo(const QRectF& rect, std::ostream* out)
{
  *out << rect.x() << ", " << rect.y() << ", " << rect.width() << " x " << rect.height();
}
