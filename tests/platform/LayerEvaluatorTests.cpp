#include <tests/platform/Scene.h>
#include <wayvane/platform/LayerEvaluator.h>

#include <gtest/gtest.h>

#include <limits>

using namespace wayvane::platform;
using namespace wayvane::tests;

namespace {

constexpr double kNever = std::numeric_limits<double>::infinity();

} // namespace

TEST(LayerEvaluator, ShowsTheModelWithoutAnimations)
{
  const LayerHandle layer = Layer::make(LayerKind::Shape);
  layer->setOpacity(0.4);
  layer->setTransform(Transform::scale(2, 3));
  layer->setLineDashPhase(7);
  PresentedValues values;
  evaluateLayer(*layer, 5, values);
  EXPECT_EQ(values.opacity, 0.4);
  EXPECT_EQ(values.transform, Transform::scale(2, 3));
  EXPECT_EQ(values.lineDashPhase, 7);
  EXPECT_EQ(values.path, nullptr);
}

TEST(LayerEvaluator, MovesAlongTheWay)
{
  const LayerHandle layer = Layer::make();
  layer->addAnimation(fade(0, 1, 2), "fade");
  EXPECT_DOUBLE_EQ(opacityAt(*layer, 0), 0);
  EXPECT_DOUBLE_EQ(opacityAt(*layer, 0.5), 0.25);
  EXPECT_DOUBLE_EQ(opacityAt(*layer, 1.5), 0.75);
}

TEST(LayerEvaluator, FollowsTheTimingCurve)
{
  const LayerHandle layer = Layer::make();
  Animation animation = fade(0, 1, 1);
  animation.timing = TimingCurve::easeInEaseOut();
  layer->addAnimation(animation, "fade");
  EXPECT_DOUBLE_EQ(opacityAt(*layer, 0.2), TimingCurve::easeInEaseOut().progress(0.2));
}

TEST(LayerEvaluator, ReturnsToTheModelAfterTheEnd)
{
  const LayerHandle layer = Layer::make();
  layer->setOpacity(0.7);
  layer->addAnimation(fade(0, 1, 1), "fade");
  EXPECT_EQ(opacityAt(*layer, 1), 0.7);
}

TEST(LayerEvaluator, KeepsTheEndValueWhenItFillsForwardsAndStays)
{
  const LayerHandle layer = Layer::make();
  Animation animation = fade(0, 0.3, 1);
  animation.fillForwards = true;
  layer->addAnimation(animation, "fade");
  EXPECT_EQ(opacityAt(*layer, 10), 1) << "an animation that is removed fills nothing";
  animation.removedOnCompletion = false;
  layer->addAnimation(animation, "fade");
  EXPECT_DOUBLE_EQ(opacityAt(*layer, 10), 0.3);
}

TEST(LayerEvaluator, ComesBackWhenItAutoreverses)
{
  const LayerHandle layer = Layer::make();
  Animation animation = fade(1, 0.2, 0.9);
  animation.autoreverses = true;
  animation.repeatCount = Animation::kForever;
  layer->addAnimation(animation, "pulse");
  EXPECT_NEAR(opacityAt(*layer, 0.9), 0.2, 1e-9);
  EXPECT_NEAR(opacityAt(*layer, 1.125), 0.4, 1e-9);
  EXPECT_NEAR(opacityAt(*layer, 1.8), 1, 1e-9);
  EXPECT_NEAR(opacityAt(*layer, 1800.9), 0.2, 1e-6) << "and does so without end";
}

TEST(LayerEvaluator, EndsWhereItStartedWhenItAutoreverses)
{
  const LayerHandle layer = Layer::make();
  Animation animation = fade(0.1, 0.9, 1);
  animation.autoreverses = true;
  animation.fillForwards = true;
  animation.removedOnCompletion = false;
  layer->addAnimation(animation, "fade");
  EXPECT_DOUBLE_EQ(opacityAt(*layer, 2), 0.1);
}

TEST(LayerEvaluator, RepeatsAsOftenAsToldAlsoInPart)
{
  const LayerHandle layer = Layer::make();
  Animation animation = fade(0, 1, 1);
  animation.repeatCount = 2.5;
  animation.fillForwards = true;
  animation.removedOnCompletion = false;
  layer->addAnimation(animation, "fade");
  EXPECT_DOUBLE_EQ(opacityAt(*layer, 1.25), 0.25);
  EXPECT_DOUBLE_EQ(opacityAt(*layer, 2.25), 0.25);
  EXPECT_DOUBLE_EQ(opacityAt(*layer, 3), 0.5);
}

TEST(LayerEvaluator, LetsTheLaterAnimationWin)
{
  const LayerHandle layer = Layer::make();
  layer->addAnimation(fade(0, 1, 10), "first");
  layer->addAnimation(fade(0.5, 0.5, 1), "second");
  EXPECT_EQ(opacityAt(*layer, 0.1), 0.5);
  EXPECT_DOUBLE_EQ(opacityAt(*layer, 2), 0.2) << "the earlier one shows again when the later is over";
}

TEST(LayerEvaluator, StaysWithinOpacityZeroToOneWhenASpringOvershoots)
{
  const LayerHandle layer = Layer::make();
  Animation animation = fade(0, 1, 1.15);
  animation.kind = Animation::Kind::Spring;
  animation.spring = {1, 200, 12, 5};
  layer->addAnimation(animation, "spring");
  for (double t = 0; t < 1.15; t += 0.01)
    EXPECT_LE(opacityAt(*layer, t), 1);
}

TEST(LayerEvaluator, MovesASpringInItsOwnTime)
{
  const LayerHandle layer = Layer::make();
  Animation animation;
  animation.kind = Animation::Kind::Spring;
  animation.keyPath = KeyPath::LineDashPhase;
  animation.to = 100.0;
  animation.spring = {1, 200, 12, 5};
  animation.duration = animation.spring.settlingDuration();
  layer->addAnimation(animation, "spring");
  PresentedValues values;
  evaluateLayer(*layer, 0.3, values);
  EXPECT_DOUBLE_EQ(values.lineDashPhase, 100 * animation.spring.position(0.3));
}

TEST(LayerEvaluator, AppliesTheMembersOfAGroupForAsLongAsEachLasts)
{
  const LayerHandle layer = Layer::make();
  layer->addAnimation(group({fade(0, 0.5, 0.2), stretch(3, 1)}, 1), "group");
  PresentedValues early, late, over;
  evaluateLayer(*layer, 0.1, early);
  EXPECT_DOUBLE_EQ(early.opacity, 0.25);
  EXPECT_DOUBLE_EQ(early.transform.a, 1.2);
  evaluateLayer(*layer, 0.5, late);
  EXPECT_EQ(late.opacity, 1);
  EXPECT_DOUBLE_EQ(late.transform.a, 2);
  evaluateLayer(*layer, 1, over);
  EXPECT_TRUE(over.transform.isIdentity());
}

TEST(LayerEvaluator, PacesTheMembersOfAGroupByItsTimingCurve)
{
  const LayerHandle layer = Layer::make();
  Animation both = group({fade(0, 1, 1)}, 1);
  both.timing = TimingCurve::easeOut();
  layer->addAnimation(both, "group");
  EXPECT_DOUBLE_EQ(opacityAt(*layer, 0.3), TimingCurve::easeOut().progress(0.3));
}

TEST(LayerEvaluator, KeepsTheEndOfAGroupThatFillsForwards)
{
  const LayerHandle layer = Layer::make();
  Animation both = group({fade(0, 0.5, 1), fade(0, 0.1, 0.5)}, 1);
  both.fillForwards = true;
  both.removedOnCompletion = false;
  layer->addAnimation(both, "group");
  EXPECT_DOUBLE_EQ(opacityAt(*layer, 5), 0.5);
}

TEST(LayerEvaluator, IgnoresAValueOfTheWrongKind)
{
  const LayerHandle layer = Layer::make(LayerKind::Shape);
  for (const KeyPath keyPath : {KeyPath::Opacity, KeyPath::Path}) {
    Animation wrong;
    wrong.keyPath = keyPath;
    wrong.from = Transform{};
    wrong.to = 1.0;
    layer->addAnimation(wrong, "wrong");
    PresentedValues values;
    evaluateLayer(*layer, 0.1, values);
    EXPECT_EQ(values.opacity, 1);
    EXPECT_EQ(values.path, nullptr);
  }
}

TEST(LayerEvaluator, MovesAPathBetweenItsEnds)
{
  const LayerHandle layer = Layer::make(LayerKind::Shape);
  Animation move;
  move.keyPath = KeyPath::Path;
  move.from = rectPath({0, 0, 10, 10});
  move.to = rectPath({100, 0, 10, 10});
  move.duration = 1;
  layer->addAnimation(move, "path");
  PresentedValues values;
  evaluateLayer(*layer, 0.5, values);
  ASSERT_NE(values.path, nullptr);
  EXPECT_EQ(values.path->bounds(), (Rect{50, 0, 10, 10}));
}

TEST(FinishedAnimations, GoWhenTheyAreOverAndAreToBeRemoved)
{
  const LayerHandle root = box({0, 0, 10, 10}), inner = box({0, 0, 5, 5}), mask = box({0, 0, 5, 5});
  root->addSublayer(inner);
  root->setMask(mask);
  Animation staying = fade(0, 1, 1);
  staying.removedOnCompletion = false;
  inner->addAnimation(fade(0, 1, 1), "short");
  inner->addAnimation(fade(0, 1, 2), "long");
  inner->addAnimation(staying, "staying");
  mask->addAnimation(fade(0, 1, 1), "mask");
  removeFinishedAnimations(*root, 1);
  EXPECT_EQ(inner->animationForKey("short"), nullptr);
  EXPECT_NE(inner->animationForKey("long"), nullptr);
  EXPECT_NE(inner->animationForKey("staying"), nullptr);
  EXPECT_EQ(mask->animationForKey("mask"), nullptr);
}

TEST(NextVisibleChange, IsNeverWhenNothingMoves)
{
  EXPECT_EQ(nextVisibleChange(*box({0, 0, 10, 10}), 3), kNever);
}

TEST(NextVisibleChange, IsNowWhileSomethingMovesAnywhereInTheTree)
{
  const LayerHandle root = box({0, 0, 10, 10}), inner = box({0, 0, 10, 10}), mask = box({0, 0, 10, 10});
  root->addSublayer(inner);
  inner->addAnimation(fade(0.5, 1, 1), "fade");
  EXPECT_EQ(nextVisibleChange(*root, 0.5), 0.5);
  EXPECT_EQ(nextVisibleChange(*root, 1), kNever);
  inner->setMask(mask);
  mask->addAnimation(fade(0.5, 1, 5), "fade");
  EXPECT_EQ(nextVisibleChange(*root, 2), 2);
}

TEST(NextVisibleChange, DoesNotCountWhatIsHidden)
{
  const LayerHandle root = box({0, 0, 10, 10}), inner = box({0, 0, 10, 10});
  root->addSublayer(inner);
  inner->addAnimation(stretch(2, 10), "stretch");
  inner->setHidden(true);
  EXPECT_EQ(nextVisibleChange(*root, 1), kNever);
  inner->setHidden(false);
  root->setOpacity(0);
  EXPECT_EQ(nextVisibleChange(*root, 1), kNever);
}

TEST(NextVisibleChange, CountsALayerThatFadesIn)
{
  const LayerHandle root = box({0, 0, 10, 10});
  root->setOpacity(0);
  root->addAnimation(fade(0, 1, 1), "fade");
  EXPECT_EQ(nextVisibleChange(*root, 0), 0);
}

TEST(NextVisibleChange, DoesNotCountAnimationsThatRestOnTheirEnd)
{
  const LayerHandle root = box({0, 0, 10, 10});
  Animation filling = fade(0, 0.5, 1);
  filling.fillForwards = true;
  filling.removedOnCompletion = false;
  root->addAnimation(filling, "fade");
  EXPECT_EQ(nextVisibleChange(*root, 2), kNever);
}

TEST(NextVisibleChange, IsTheEndOfAnAnimationThatStandsStill)
{
  const LayerHandle root = box({0, 0, 10, 10});
  root->addAnimation(fade(0.5, 0.5, 2), "still");
  EXPECT_EQ(nextVisibleChange(*root, 1), 2);
}

TEST(LayerGeometry, PutsFlippedLayersFromTheTop)
{
  const LayerHandle root = box({0, 0, 100, 100}), flipped = box({10, 20, 50, 40}),
                    inner = box({5, 3, 10, 10});
  flipped->setGeometryFlipped(true);
  root->addSublayer(flipped);
  flipped->addSublayer(inner);
  EXPECT_EQ(transformToRoot(*flipped, 0).apply(Point{0, 0}), (Point{10, 60}));
  EXPECT_EQ(transformToRoot(*flipped, 0).apply(Point{0, 40}), (Point{10, 20}));
  // Three points below the top edge of the flipped layer, and itself y up.
  EXPECT_EQ(transformToRoot(*inner, 0).apply(inner->bounds()), (Rect{15, 47, 10, 10}));
}

TEST(LayerGeometry, FlipsTwiceBackToUpright)
{
  const LayerHandle root = box({0, 0, 100, 100}), outer = box({0, 0, 100, 100}), inner = box({0, 0, 100, 30});
  outer->setGeometryFlipped(true);
  inner->setGeometryFlipped(true);
  root->addSublayer(outer);
  outer->addSublayer(inner);
  EXPECT_EQ(transformToRoot(*inner, 0).apply(Point{0, 0}), (Point{0, 100}));
  EXPECT_EQ(transformToRoot(*inner, 0).apply(Point{0, 30}), (Point{0, 70}));
}

TEST(LayerGeometry, TransformsAboutTheBottomLeft)
{
  const LayerHandle root = box({0, 0, 100, 100}), layer = box({20, 30, 40, 20});
  layer->setGeometryFlipped(true);
  root->addSublayer(layer);
  layer->setTransform(Transform::scale(0.5, 0.5));
  EXPECT_EQ(transformToRoot(*layer, 0).apply(layer->bounds()), (Rect{20, 30, 20, 10}));
}

TEST(LayerGeometry, FollowsAnAnimatedTransform)
{
  const LayerHandle root = box({0, 0, 100, 100}), layer = box({10, 10, 10, 10});
  root->addSublayer(layer);
  layer->addAnimation(stretch(3, 1), "stretch");
  EXPECT_EQ(transformToRoot(*layer, 0.5).apply(layer->bounds()), (Rect{10, 10, 20, 20}));
}

TEST(PaintedBounds, IsNothingForWhatPaintsNothing)
{
  const LayerHandle root = Layer::make();
  root->setFrame({0, 0, 100, 100});
  EXPECT_EQ(paintedBounds(*root, 0), Rect{});
  const LayerHandle inner = box({10, 10, 20, 20});
  root->addSublayer(inner);
  inner->setHidden(true);
  EXPECT_EQ(paintedBounds(*root, 0), Rect{});
  inner->setHidden(false);
  inner->setOpacity(0);
  EXPECT_EQ(paintedBounds(*root, 0), Rect{});
}

TEST(PaintedBounds, HoldsShadowAndStroke)
{
  const LayerHandle root = Layer::make(), shape = Layer::make(LayerKind::Shape);
  root->setFrame({0, 0, 100, 100});
  shape->setFrame({10, 10, 20, 20});
  shape->setPath(rectPath(shape->bounds()));
  shape->setStrokeColor(Color::label());
  shape->setLineWidth(2);
  root->addSublayer(shape);
  EXPECT_EQ(paintedBounds(*root, 0), (Rect{8, 8, 24, 24}));
  shape->setShadow(Shadow{Color::label(), {0, -4}, 5});
  EXPECT_EQ(paintedBounds(*root, 0), (Rect{3, -1, 34, 34}));
}

TEST(PaintedBounds, EndsAtMasksAndClippingLayers)
{
  const LayerHandle root = Layer::make(), inner = box({-50, 0, 200, 20});
  root->setFrame({0, 0, 100, 100});
  root->addSublayer(inner);
  EXPECT_EQ(paintedBounds(*root, 0), (Rect{-50, 0, 200, 20}));
  root->setMasksToBounds(true);
  EXPECT_EQ(paintedBounds(*root, 0), (Rect{0, 0, 100, 20}));
  inner->setMask(box({60, 5, 20, 100}));
  EXPECT_EQ(paintedBounds(*root, 0), (Rect{10, 5, 20, 15}));
  inner->setMask(Layer::make(LayerKind::Shape));
  EXPECT_EQ(paintedBounds(*root, 0), Rect{}) << "a mask without a path hides everything";
}
