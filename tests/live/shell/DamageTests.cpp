#include "ShellTest.h"

#include <wayvane/platform/qt/QtOverlayPanel.h>
#include <wayvane/platform/qt/QtSceneSnapshot.h>

#include <QPainter>

#include <cmath>

namespace wayvane::qt::test {
namespace {

using platform::Animation;
using platform::Color;
using platform::Layer;
using platform::LayerHandle;
using platform::LayerKind;
using platform::Path;
using platform::Rect;

constexpr Rect kCanvas{0, 0, 1000, 800};

qint64 areaOf(const QRegion& region)
{
  qint64 area = 0;
  for (const QRect& rect : region)
    area += qint64(rect.width()) * rect.height();
  return area;
}

LayerHandle shape(const Rect& frame)
{
  LayerHandle layer = Layer::make(LayerKind::Shape);
  layer->setFrame(frame);
  return layer;
}

Path withHole(const Rect& hole, double radius = 6)
{
  Path path;
  path.addRect(kCanvas);
  path.addRoundedRect(hole, radius);
  return path;
}

/// A scene as the overlay has it.
struct Scene {
  LayerHandle root = Layer::make();
  LayerHandle dim = Layer::make();
  LayerHandle mask = shape(kCanvas);
  LayerHandle ring;

  explicit Scene(const Rect& hole)
  {
    root->setFrame(kCanvas);
    dim->setFrame(kCanvas);
    dim->setBackgroundColor(Color::white(0, 0.15));
    mask->setFillRule(platform::FillRule::EvenOdd);
    mask->setPath(withHole(hole));
    dim->setMask(mask);
    root->addSublayer(dim);
    ring = shape(hole);
    ring->setFillColor(Color::clear());
    ring->setStrokeColor(Color::systemBlue());
    ring->setLineWidth(2);
    Path outline;
    outline.addRoundedRect({0, 0, hole.width, hole.height}, 6);
    ring->setPath(outline);
    root->addSublayer(ring);
  }

  [[nodiscard]] QtSceneSnapshot at(double time = 0) const
  {
    return {*root, time, QSizeF(kCanvas.width, kCanvas.height)};
  }
};

const Rect kHole{300, 300, 200, 100};
/// The same on the canvas, which runs downward.
const QRect kHoleOnCanvas(300, 400, 200, 100);

TEST(QtSceneSnapshot, NothingChangedDamagesNothing)
{
  const Scene scene(kHole);
  EXPECT_TRUE(scene.at().changesSince(scene.at()).isEmpty());
}

TEST(QtSceneSnapshot, FirstLookDamagesAllButTheHole)
{
  const Scene scene(kHole);
  const QRegion damage = scene.at().changesSince({});
  EXPECT_TRUE(damage.contains(QPoint(5, 5)));
  EXPECT_TRUE(damage.contains(QPoint(995, 795)));
  EXPECT_FALSE(damage.contains(kHoleOnCanvas.center()));
}

TEST(QtSceneSnapshot, MovingHoleDamagesBothPlacesButNotWhatStaysOpen)
{
  Scene scene(kHole);
  scene.ring->setHidden(true);
  const QtSceneSnapshot before = scene.at();
  scene.mask->setPath(withHole({310, 305, 200, 100}));
  const QRegion damage = scene.at().changesSince(before);
  EXPECT_TRUE(damage.contains(QRect(300, 400, 10, 100)));
  EXPECT_TRUE(damage.contains(QRect(500, 395, 10, 100)));
  EXPECT_FALSE(damage.contains(kHoleOnCanvas.center()));
  EXPECT_LT(areaOf(damage), 2 * (220 + 120) * 24);
}

TEST(QtSceneSnapshot, HoleThatJumpsDamagesTwoBoxes)
{
  Scene scene(kHole);
  scene.ring->setHidden(true);
  const QtSceneSnapshot before = scene.at();
  scene.mask->setPath(withHole({700, 100, 100, 50}));
  const QRegion damage = scene.at().changesSince(before);
  EXPECT_LT(areaOf(damage), 204 * 104 + 104 * 54 + 10);
  EXPECT_TRUE(damage.contains(kHoleOnCanvas));
  EXPECT_TRUE(damage.contains(QRect(700, 650, 100, 50)));
}

TEST(QtSceneSnapshot, PulsingRingDamagesOnlyItsBand)
{
  Scene scene(kHole);
  Animation pulse;
  pulse.from = 1.0;
  pulse.to = 0.2;
  pulse.duration = 0.9;
  pulse.autoreverses = true;
  pulse.repeatCount = Animation::kForever;
  scene.ring->addAnimation(pulse, "pulse");
  const double start = scene.ring->animations().front().beginTime;
  const QRegion damage = scene.at(start + 0.3).changesSince(scene.at(start + 0.2));
  EXPECT_EQ(damage.rectCount(), 4);
  EXPECT_FALSE(damage.contains(kHoleOnCanvas.center()));
  EXPECT_LT(areaOf(damage), 2 * (208 + 108) * 7);
  for (const QPoint corner : {kHoleOnCanvas.topLeft(), kHoleOnCanvas.bottomRight()})
    EXPECT_TRUE(damage.contains(corner));
}

TEST(QtSceneSnapshot, StepsTooSmallToBeSeenDamageNothing)
{
  Scene scene(kHole);
  const QtSceneSnapshot before = scene.at();
  scene.ring->setOpacity(0.9999);
  EXPECT_TRUE(scene.at().changesSince(before).isEmpty());
}

TEST(QtSceneSnapshot, DimmingAnewLeavesTheHoleAlone)
{
  Scene scene(kHole);
  const QtSceneSnapshot before = scene.at();
  scene.dim->setBackgroundColor(Color::white(0, 0.4));
  const QRegion damage = scene.at().changesSince(before);
  EXPECT_TRUE(damage.contains(QPoint(5, 5)));
  EXPECT_FALSE(damage.contains(kHoleOnCanvas.center()));
}

TEST(QtSceneSnapshot, LayerThatComesGoesOrHidesDamagesItsBox)
{
  Scene scene(kHole);
  const QtSceneSnapshot before = scene.at();
  const LayerHandle box = Layer::make();
  box->setFrame({50, 60, 40, 30});
  box->setBackgroundColor(Color::systemRed());
  scene.root->addSublayer(box);
  const QtSceneSnapshot with = scene.at();
  const QRect expected = QRect(50, 800 - 90, 40, 30).adjusted(-1, -1, 1, 1);
  EXPECT_EQ(with.changesSince(before), QRegion(expected));
  box->setHidden(true);
  EXPECT_EQ(scene.at().changesSince(with), QRegion(expected));
  box->removeFromSuperlayer();
  EXPECT_EQ(scene.at().changesSince(with), QRegion(expected));
}

TEST(QtSceneSnapshot, ReorderedLayersAreDamaged)
{
  Scene scene(kHole);
  LayerHandle boxes[2];
  for (int i = 0; i < 2; ++i) {
    boxes[i] = Layer::make();
    boxes[i]->setFrame({50.0 + 10 * i, 60, 40, 30});
    boxes[i]->setBackgroundColor(i == 0 ? Color::systemRed() : Color::systemBlue());
    scene.root->addSublayer(boxes[i]);
  }
  const QtSceneSnapshot before = scene.at();
  boxes[0]->removeFromSuperlayer();
  scene.root->addSublayer(boxes[0]);
  EXPECT_TRUE(scene.at().changesSince(before).contains(QRect(60, 711, 30, 28)));
}

TEST(QtSceneSnapshot, ChangedTextDamagesItsBox)
{
  Scene scene(kHole);
  const LayerHandle text = Layer::make(LayerKind::Text);
  text->setFrame({50, 60, 80, 20});
  text->setText({{{"one", platform::Font::system(12), Color::label(), nullptr, {}}}});
  scene.root->addSublayer(text);
  const QtSceneSnapshot before = scene.at();
  text->setText({{{"two", platform::Font::system(12), Color::label(), nullptr, {}}}});
  EXPECT_EQ(scene.at().changesSince(before), QRegion(QRect(49, 719, 82, 22)));
}

TEST(QtSceneSnapshot, GrowingGroupDamagesOldAndNewPlace)
{
  Scene scene(kHole);
  const LayerHandle box = Layer::make();
  box->setFrame({100, 100, 100, 100});
  box->setBackgroundColor(Color::systemRed());
  scene.root->addSublayer(box);
  const QtSceneSnapshot before = scene.at();
  box->setTransform(platform::Transform::scale(2, 2));
  const QRegion damage = scene.at().changesSince(before);
  EXPECT_TRUE(damage.contains(QRect(100, 500, 200, 200)));
  EXPECT_LT(areaOf(damage), 203 * 203);
}

TEST(HoleShape, IsFoundInARectangleWithARoundedHole)
{
  const std::optional<HoleShape> found = holeShape(withHole(kHole, 10));
  ASSERT_TRUE(found);
  EXPECT_EQ(found->outer, kCanvas);
  EXPECT_EQ(found->box, kHole);
  EXPECT_DOUBLE_EQ(found->corner, 10);
  // The rectangle's corners touch the curves.
  EXPECT_NEAR(found->interior.x - kHole.x, 10 * (1 - std::sqrt(0.5)), 0.01);
}

TEST(HoleShape, IsNotFoundInOtherOutlines)
{
  Path round;
  round.addRoundedRect(kCanvas, 40);
  round.addRect(kHole);
  EXPECT_FALSE(holeShape(round));
  Path one;
  one.addRect(kCanvas);
  EXPECT_FALSE(holeShape(one));
  EXPECT_FALSE(holeShape({}));
}

TEST(HoleShape, InteriorOfASlantedOutlineIsNone)
{
  Path slanted;
  slanted.moveTo({0, 0});
  slanted.lineTo({100, 30});
  slanted.lineTo({20, 80});
  slanted.close();
  EXPECT_TRUE(interiorOf(slanted.elements()).isEmpty());
}

/// Remembers what is painted of it.
struct Canvas : QWidget {
  using QWidget::QWidget;
  QRegion painted;
  int paints = 0;

  void paintEvent(QPaintEvent* event) override
  {
    painted += event->region();
    ++paints;
  }
};

class QtSceneDriver : public ShellTest {
protected:
  QtSceneDriver()
  {
    under = new Canvas(window.get());
    under->setGeometry(window->rect());
    under->show();
    panel = wayvane().panels.makeOverlayPanel(handle()->frame(), 0);
    panel->attachToWindow(handle());
    panel->orderFront();
    box = std::make_shared<platform::SurfaceView>(Rect{100, 100, 60, 40});
    box->layer()->setBackgroundColor(Color::systemRed());
    panel->contentView().addSubview(box);
    spin(60);
    under->painted = {};
    under->paints = 0;
  }

  [[nodiscard]] const qt::QtSceneDriver& driver() const
  {
    return *static_cast<qt::QtOverlayPanel*>(panel.get())->widget()->driver();
  }

  [[nodiscard]] static Animation fade(double seconds)
  {
    Animation fading;
    fading.from = 0.2;
    fading.to = 1.0;
    fading.duration = seconds;
    return fading;
  }

  Canvas* under = nullptr;
  std::unique_ptr<platform::OverlayPanel> panel;
  std::shared_ptr<platform::SurfaceView> box;
};

TEST_F(QtSceneDriver, RepaintsOnlyWhatChanged)
{
  box->setFrameOrigin({120, 100});
  ASSERT_TRUE(waitUntil([&] { return under->paints > 0; }));
  spin();
  EXPECT_EQ(under->painted.boundingRect(), QRect(100, 160, 80, 40).adjusted(-1, -1, 1, 1));
}

TEST_F(QtSceneDriver, SeveralChangesAreOneRepaint)
{
  box->setFrameOrigin({120, 100});
  box->setAlphaValue(0.5);
  box->layer()->setCornerRadius(4);
  spin(60);
  EXPECT_EQ(under->paints, 1);
}

TEST_F(QtSceneDriver, RunsNoTimerWhenNothingMoves)
{
  EXPECT_FALSE(driver().isAnimating());
  spin(80);
  EXPECT_EQ(under->paints, 0);
}

TEST_F(QtSceneDriver, RunsATimerOnlyAsLongAsSomethingMoves)
{
  box->layer()->addAnimation(fade(0.15), "fade");
  ASSERT_TRUE(waitUntil([&] { return driver().isAnimating(); }));
  EXPECT_TRUE(waitUntil([&] { return !driver().isAnimating(); }));
  EXPECT_GE(under->paints, 3);
  EXPECT_EQ(under->painted.boundingRect(), QRect(100, 160, 60, 40).adjusted(-1, -1, 1, 1));
  EXPECT_EQ(box->layer()->animations().size(), 0U);
}

TEST_F(QtSceneDriver, HiddenAnimationCostsNothing)
{
  box->setHidden(true);
  spin();
  Animation pulse = fade(0.1);
  pulse.repeatCount = Animation::kForever;
  box->layer()->addAnimation(pulse, "pulse");
  spin();
  EXPECT_FALSE(driver().isAnimating());
}

TEST_F(QtSceneDriver, RestsWhileTheWindowIsHiddenAndGoesOnAfterwards)
{
  Animation pulse = fade(0.1);
  pulse.repeatCount = Animation::kForever;
  box->layer()->addAnimation(pulse, "pulse");
  ASSERT_TRUE(waitUntil([&] { return driver().isAnimating(); }));
  window->hide();
  EXPECT_FALSE(driver().isAnimating());
  window->show();
  EXPECT_TRUE(driver().isAnimating());
}

TEST_F(QtSceneDriver, RestsWhileTheWindowIsMinimized)
{
  Animation pulse = fade(0.1);
  pulse.repeatCount = Animation::kForever;
  box->layer()->addAnimation(pulse, "pulse");
  ASSERT_TRUE(waitUntil([&] { return driver().isAnimating(); }));
  window->showMinimized();
  EXPECT_TRUE(waitUntil([&] { return !driver().isAnimating(); }));
  window->showNormal();
  EXPECT_TRUE(waitUntil([&] { return driver().isAnimating(); }));
}

TEST_F(QtSceneDriver, DisplayNowDrawsWithoutWaiting)
{
  box->setFrameOrigin({120, 100});
  panel->window()->displayIfNeeded();
  EXPECT_EQ(under->paints, 1);
}

} // namespace
} // namespace wayvane::qt::test
