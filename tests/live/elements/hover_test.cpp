#include <tests/live/elements/Elements.h>
#include <wayvane/platform/qt/QtHover.h>

#include <QEnterEvent>
#include <QHoverEvent>
#include <QPushButton>
#include <QTableWidget>

namespace wayvane::qt {

namespace {

using platform::HoverEvent;

/// Notes what the pointer does to it.
class Feeling : public QWidget {
public:
  using QWidget::QWidget;
  std::vector<std::string> felt;
  QPointF where;
  QPointF whereGlobally;

protected:
  void enterEvent(QEnterEvent* event) override
  {
    felt.emplace_back("enter");
    where = event->position();
    whereGlobally = event->globalPosition();
  }

  void leaveEvent(QEvent* /*event*/) override { felt.emplace_back("leave"); }

  bool event(QEvent* event) override
  {
    switch (event->type()) {
    case QEvent::HoverEnter:
      felt.emplace_back("hover enter");
      break;
    case QEvent::HoverMove:
      felt.emplace_back("hover move");
      break;
    case QEvent::HoverLeave:
      felt.emplace_back("hover leave");
      break;
    default:
      break;
    }
    return QWidget::event(event);
  }
};

class Hover : public Elements {};

TEST_F(Hover, AnElementFeelsThePointerComeAndGo)
{
  auto* canvas = add<Feeling>(QRect(40, 60, 120, 30));
  const auto view = viewForWidget(canvas);
  ASSERT_TRUE(view->respondsToHover());
  view->sendHover({HoverEvent::Type::Entered, windowPointFromWidget({50, 70}, window()), 1});
  EXPECT_THAT(canvas->felt, ElementsAre("enter", "hover enter", "hover move"));
  EXPECT_EQ(canvas->where, QPointF(10, 10));
  EXPECT_EQ(canvas->whereGlobally, QPointF(window().mapToGlobal(QPoint(50, 70))));
  canvas->felt.clear();
  view->sendHover({HoverEvent::Type::Exited, {}, 2});
  EXPECT_THAT(canvas->felt, ElementsAre("leave", "hover leave"));
}

TEST_F(Hover, AButtonUnderThePointerKnowsIt)
{
  auto* button = add<QPushButton>(QRect(40, 60, 120, 30));
  const auto view = viewForWidget(button);
  view->sendHover({HoverEvent::Type::Entered, windowPointFromWidget({50, 70}, window()), 1});
  EXPECT_TRUE(button->underMouse());
  view->sendHover({HoverEvent::Type::Exited, {}, 2});
  EXPECT_FALSE(button->underMouse());
}

TEST_F(Hover, AnAncestorListensInItsBounds)
{
  auto* parent = add<Feeling>(QRect(40, 60, 200, 100));
  const auto areas = viewForWidget(parent)->trackingAreas();
  ASSERT_EQ(areas.size(), 1U);
  EXPECT_TRUE(areas[0].reportsEnteringAndLeaving);
  EXPECT_TRUE(areas[0].ownerIsView);
  EXPECT_EQ(areas[0].rect, (Rect{0, 0, 200, 100}));
  areas[0].mouseEntered({HoverEvent::Type::Entered, windowPointFromWidget({50, 70}, window()), 1});
  EXPECT_THAT(parent->felt, ElementsAre("enter", "hover enter", "hover move"));
  delete parent;
  areas[0].mouseExited({HoverEvent::Type::Exited, {}, 2});
}

TEST_F(Hover, ATablesViewportFeelsItToo)
{
  auto* table = add<QTableWidget>(QRect(40, 60, 200, 100), 2, 2);
  const auto view = viewForWidget(table);
  view->sendHover({HoverEvent::Type::Entered, windowPointFromWidget({80, 100}, window()), 1});
  EXPECT_TRUE(table->viewport()->underMouse());
  view->sendHover({HoverEvent::Type::Exited, {}, 2});
  EXPECT_FALSE(table->viewport()->underMouse());
}

/// Does away with itself when the pointer comes.
class Shy : public QWidget {
public:
  using QWidget::QWidget;

protected:
  void enterEvent(QEnterEvent* /*event*/) override { delete this; }
};

TEST_F(Hover, AnElementMayEndWhenThePointerComes)
{
  const QPointer<Shy> shy = add<Shy>(QRect(40, 60, 120, 30));
  viewForWidget(shy)->sendHover({HoverEvent::Type::Entered, {50, 330}, 1});
  EXPECT_TRUE(shy.isNull());
}

} // namespace

} // namespace wayvane::qt
