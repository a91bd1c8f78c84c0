#include <tests/desktop/Desktop.h>
#include <wayvane/platform/Layer.h>

#include <gtest/gtest.h>

using namespace wayvane::platform;

namespace {

Animation fade(double to)
{
  Animation animation;
  animation.from = 0.0;
  animation.to = to;
  return animation;
}

} // namespace

TEST(Layer, StacksSublayersInTheOrderInWhichTheyCame)
{
  const LayerHandle root = Layer::make(), below = Layer::make(), above = Layer::make();
  root->addSublayer(below);
  root->addSublayer(above);
  EXPECT_EQ(root->sublayers(), (std::vector{below, above}));
  root->addSublayer(below);
  EXPECT_EQ(root->sublayers(), (std::vector{above, below})) << "added again, it comes to the front";
}

TEST(Layer, IsInOneSuperlayerOnly)
{
  const LayerHandle first = Layer::make(), second = Layer::make(), layer = Layer::make();
  first->addSublayer(layer);
  second->addSublayer(layer);
  EXPECT_TRUE(first->sublayers().empty());
  EXPECT_EQ(layer->superlayer(), second.get());
}

TEST(Layer, RefusesToContainItself)
{
  const LayerHandle root = Layer::make(), inner = Layer::make();
  root->addSublayer(inner);
  inner->addSublayer(root);
  inner->addSublayer(inner);
  inner->setMask(root);
  EXPECT_EQ(root->superlayer(), nullptr);
  EXPECT_TRUE(inner->sublayers().empty());
  EXPECT_EQ(inner->mask(), nullptr);
}

TEST(Layer, LetsGoOfItsSublayersWhenItEnds)
{
  const LayerHandle layer = Layer::make(), mask = Layer::make();
  {
    const LayerHandle root = Layer::make();
    root->addSublayer(layer);
    root->setMask(mask);
  }
  EXPECT_EQ(layer->superlayer(), nullptr);
  EXPECT_EQ(mask->superlayer(), nullptr);
}

TEST(Layer, GivesUpAMaskThatIsTakenElsewhere)
{
  const LayerHandle first = Layer::make(), second = Layer::make(), mask = Layer::make();
  first->setMask(mask);
  second->setMask(mask);
  EXPECT_EQ(first->mask(), nullptr);
  mask->removeFromSuperlayer();
  EXPECT_EQ(second->mask(), nullptr);
}

TEST(Layer, ResizesSublayersAndMaskByTheirAutoresizingBits)
{
  const LayerHandle root = Layer::make();
  root->setFrame({0, 0, 100, 50});
  const auto add = [&](unsigned bits) {
    const LayerHandle layer = Layer::make();
    layer->setFrame({10, 5, 80, 40});
    layer->setAutoresizingMask(bits);
    root->addSublayer(layer);
    return layer;
  };
  const LayerHandle fixed = add(0), wide = add(2), high = add(16), both = add(18);
  const LayerHandle mask = Layer::make();
  mask->setFrame(root->bounds());
  mask->setAutoresizingMask(18);
  root->setMask(mask);

  root->setFrame({7, 7, 130, 60});

  EXPECT_EQ(fixed->frame(), (Rect{10, 5, 80, 40}));
  EXPECT_EQ(wide->frame(), (Rect{10, 5, 110, 40}));
  EXPECT_EQ(high->frame(), (Rect{10, 5, 80, 50}));
  EXPECT_EQ(both->frame(), (Rect{10, 5, 110, 50}));
  EXPECT_EQ(mask->frame(), (Rect{0, 0, 130, 60}));
}

TEST(Layer, ResizesThroughSeveralLevels)
{
  const LayerHandle root = Layer::make(), middle = Layer::make(), inner = Layer::make();
  root->setFrame({0, 0, 100, 100});
  middle->setFrame({0, 0, 100, 100});
  inner->setFrame({0, 0, 100, 100});
  middle->setAutoresizingMask(18);
  inner->setAutoresizingMask(2);
  root->addSublayer(middle);
  middle->addSublayer(inner);
  root->setFrame({0, 0, 150, 150});
  EXPECT_EQ(inner->frame(), (Rect{0, 0, 150, 100}));
}

TEST(Layer, KeepsAPathWhereItIsWhenResized)
{
  const LayerHandle shape = Layer::make(LayerKind::Shape);
  Path path;
  path.addRect({1, 2, 3, 4});
  shape->setPath(path);
  shape->setFrame({0, 0, 500, 500});
  EXPECT_EQ(shape->path(), path);
}

TEST(Layer, ReplacesAnAnimationOfTheSameKey)
{
  const LayerHandle layer = Layer::make();
  layer->addAnimation(fade(0.1), "fade");
  layer->addAnimation(fade(0.2), "other");
  layer->addAnimation(fade(0.3), "fade");
  ASSERT_EQ(layer->animations().size(), 2U);
  EXPECT_EQ(layer->animationForKey("fade")->animation, fade(0.3));
  EXPECT_EQ(layer->animations().back().key, "fade");
}

TEST(Layer, RemovesAnimationsByKeyOrAllAtOnce)
{
  const LayerHandle layer = Layer::make();
  layer->addAnimation(fade(0.1), "a");
  layer->addAnimation(fade(0.1), "b");
  layer->removeAnimation("a");
  EXPECT_EQ(layer->animationForKey("a"), nullptr);
  EXPECT_NE(layer->animationForKey("b"), nullptr);
  layer->removeAllAnimations();
  EXPECT_TRUE(layer->animations().empty());
}

TEST(LayerObserver, HearsOnceUntilTheChangeIsTaken)
{
  const LayerHandle root = Layer::make(), inner = Layer::make();
  root->addSublayer(inner);
  static_cast<void>(root->takeChange());
  int notices = 0;
  root->setChangeObserver([&] { ++notices; });
  inner->setOpacity(0.5);
  inner->setHidden(true);
  EXPECT_EQ(notices, 1);
  EXPECT_TRUE(root->takeChange());
  EXPECT_FALSE(root->takeChange());
  inner->setFrame({0, 0, 1, 1});
  EXPECT_EQ(notices, 2);
}

TEST(LayerObserver, HearsOfMasksAndAnimations)
{
  const LayerHandle root = Layer::make(), mask = Layer::make(LayerKind::Shape);
  root->setMask(mask);
  static_cast<void>(root->takeChange());
  mask->setPath(Path());
  EXPECT_TRUE(root->takeChange());
  mask->addAnimation(fade(1), "fade");
  EXPECT_TRUE(root->takeChange());
  mask->removeAnimation("fade");
  EXPECT_TRUE(root->takeChange());
}

TEST(LayerObserver, DoesNotHearOfValuesThatStayTheSame)
{
  const LayerHandle root = Layer::make();
  root->setOpacity(0.5);
  static_cast<void>(root->takeChange());
  root->setOpacity(0.5);
  root->setFrame(root->frame());
  root->removeAnimation("none");
  EXPECT_FALSE(root->takeChange());
}

TEST(LayerObserver, HearsOfALayerThatLeaves)
{
  const LayerHandle root = Layer::make(), inner = Layer::make();
  root->addSublayer(inner);
  static_cast<void>(root->takeChange());
  inner->removeFromSuperlayer();
  EXPECT_TRUE(root->takeChange());
  inner->setOpacity(0.1);
  EXPECT_FALSE(root->takeChange()) << "what left is no longer of interest";
}

TEST(Layer, StartsAnimationsAtTheMainQueuesTime)
{
  wayvane::sim::Desktop desktop;
  desktop.advance(2.5);
  const LayerHandle layer = Layer::make();
  layer->addAnimation(fade(1), "fade");
  EXPECT_EQ(layer->animationForKey("fade")->beginTime, desktop.now());
}

TEST(Layer, StartsAnimationsAtZeroWithoutAPlatform)
{
  const LayerHandle layer = Layer::make();
  layer->addAnimation(fade(1), "fade");
  EXPECT_EQ(layer->animationForKey("fade")->beginTime, 0);
}
