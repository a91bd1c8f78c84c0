#include <wayvane/platform/Surface.h>

#include <gtest/gtest.h>

using namespace wayvane::platform;

namespace {

/// Counts the notices about windows, and frames it was given.
class NotedView : public SurfaceView {
public:
  using SurfaceView::SurfaceView;

  void viewDidMoveToWindow() override
  {
    ++notices;
    lastInWindow = isInWindow();
  }

  void setFrame(const Rect& frame) override
  {
    SurfaceView::setFrame(frame);
    ++frames;
  }

  int notices = 0;
  int frames = 0;
  bool lastInWindow = false;
};

std::shared_ptr<SurfaceView> contentView(const Rect& frame = {0, 0, 200, 100})
{
  auto view = std::make_shared<SurfaceView>(frame);
  view->setIsContentView(true);
  return view;
}

} // namespace

TEST(SurfaceView, IsInAWindowOnceItsAncestorIsAContentView)
{
  const auto content = contentView();
  const auto outer = std::make_shared<SurfaceView>(Rect{}), inner = std::make_shared<SurfaceView>(Rect{});
  outer->addSubview(inner);
  EXPECT_FALSE(inner->isInWindow());
  content->addSubview(outer);
  EXPECT_TRUE(inner->isInWindow());
  outer->removeFromSuperview();
  EXPECT_FALSE(inner->isInWindow());
}

TEST(SurfaceView, TellsTheWholeTreeWhenItEntersOrLeavesAWindow)
{
  const auto content = contentView();
  const auto outer = std::make_shared<NotedView>(Rect{}), inner = std::make_shared<NotedView>(Rect{});
  outer->addSubview(inner);
  EXPECT_EQ(inner->notices, 0);
  content->addSubview(outer);
  EXPECT_EQ(inner->notices, 1);
  EXPECT_TRUE(inner->lastInWindow);
  outer->removeFromSuperview();
  EXPECT_EQ(inner->notices, 2);
  EXPECT_FALSE(inner->lastInWindow);
}

TEST(SurfaceView, TellsNothingOutsideOfWindows)
{
  const auto outer = std::make_shared<SurfaceView>(Rect{});
  const auto inner = std::make_shared<NotedView>(Rect{});
  outer->addSubview(inner);
  inner->removeFromSuperview();
  EXPECT_EQ(inner->notices, 0);
}

TEST(SurfaceView, TellsItsSubviewsWhenThePanelEnds)
{
  const auto view = std::make_shared<NotedView>(Rect{});
  contentView()->addSubview(view);
  EXPECT_EQ(view->notices, 2);
  EXPECT_FALSE(view->lastInWindow);
  EXPECT_EQ(view->superview(), nullptr);
  EXPECT_EQ(view->layer()->superlayer(), nullptr);
}

TEST(SurfaceView, TellsItsSubviewsWhenItBecomesAContentView)
{
  const auto root = std::make_shared<SurfaceView>(Rect{});
  const auto view = std::make_shared<NotedView>(Rect{});
  root->addSubview(view);
  root->setIsContentView(true);
  EXPECT_TRUE(view->lastInWindow);
}

TEST(SurfaceView, ResizesItsSubviewsAndTellsThem)
{
  const auto root = contentView();
  const auto following = std::make_shared<NotedView>(Rect{0, 0, 200, 100});
  const auto fixed = std::make_shared<NotedView>(Rect{0, 0, 200, 100});
  following->setAutoresizingMask(kWidthSizable | kHeightSizable);
  root->addSubview(following);
  root->addSubview(fixed);
  root->setFrame({0, 0, 300, 150});
  EXPECT_EQ(following->frame(), (Rect{0, 0, 300, 150}));
  EXPECT_EQ(following->frames, 1);
  EXPECT_EQ(fixed->frame(), (Rect{0, 0, 200, 100}));
}

TEST(SurfaceView, MovesToAnotherSuperview)
{
  const auto first = contentView(), second = contentView();
  const auto view = std::make_shared<SurfaceView>(Rect{});
  first->addSubview(view);
  second->addSubview(view);
  EXPECT_TRUE(first->subviews().empty());
  EXPECT_EQ(view->superview(), second.get());
  EXPECT_EQ(view->layer()->superlayer(), second->layer().get());
}

TEST(SurfaceView, RefusesToContainItself)
{
  const auto outer = contentView(), inner = std::make_shared<SurfaceView>(Rect{});
  outer->addSubview(inner);
  inner->addSubview(outer);
  EXPECT_EQ(outer->superview(), nullptr);
}

TEST(SurfaceView, LiesAboveTheViewsAddedEarlier)
{
  const auto root = contentView();
  const auto below = std::make_shared<SurfaceView>(Rect{}), above = std::make_shared<SurfaceView>(Rect{});
  root->addSubview(below);
  root->addSubview(above);
  EXPECT_EQ(root->layer()->sublayers(), (std::vector{below->layer(), above->layer()}));
}

TEST(SurfaceView, OutlivesItsRemovalWhenOnlyItsSuperviewHeldIt)
{
  const auto root = contentView();
  root->addSubview(std::make_shared<NotedView>(Rect{}));
  root->subviews().front()->removeFromSuperview();
  EXPECT_TRUE(root->subviews().empty());
  EXPECT_TRUE(root->layer()->sublayers().empty());
}

TEST(SurfaceView, ConvertsPointsOfTheWindow)
{
  const auto root = contentView();
  const auto plain = std::make_shared<SurfaceView>(Rect{10, 20, 50, 40});
  const auto flipped = std::make_shared<SurfaceView>(Rect{10, 20, 50, 40}, true);
  root->addSubview(plain);
  root->addSubview(flipped);
  EXPECT_EQ(plain->convertPointFromWindow({15, 25}), (Point{5, 5}));
  EXPECT_EQ(flipped->convertPointFromWindow({15, 25}), (Point{5, 35}));
}

TEST(SurfaceView, ConvertsPointsThroughFlippedSuperviews)
{
  const auto root = contentView();
  const auto flipped = std::make_shared<SurfaceView>(Rect{0, 0, 200, 100}, true);
  const auto plain = std::make_shared<SurfaceView>(Rect{10, 20, 50, 40});
  const auto alsoFlipped = std::make_shared<SurfaceView>(Rect{10, 20, 50, 40}, true);
  root->addSubview(flipped);
  flipped->addSubview(plain);
  flipped->addSubview(alsoFlipped);
  // The views' top edges are 20 points below the top of the window.
  EXPECT_EQ(plain->convertPointFromWindow({10, 80}), (Point{0, 40}));
  EXPECT_EQ(alsoFlipped->convertPointFromWindow({10, 80}), (Point{0, 0}));
}

TEST(SurfaceLabel, ShowsItsTextInItsFontAndColor)
{
  SurfaceLabel label(Font::boldSystem(13), Color::secondaryLabel(), false);
  label.setStringValue("Save");
  ASSERT_EQ(label.attributedStringValue().runs.size(), 1U);
  EXPECT_EQ(label.attributedStringValue().runs[0].font, Font::boldSystem(13));
  EXPECT_EQ(label.attributedStringValue().runs[0].color, Color::secondaryLabel());
  EXPECT_EQ(label.stringValue(), "Save");
  EXPECT_EQ(label.layer()->kind(), LayerKind::Text);
  EXPECT_FALSE(label.layer()->wrapsText());
  label.setStringValue("");
  EXPECT_TRUE(label.attributedStringValue().isEmpty());
}
