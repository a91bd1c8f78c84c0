#include <tests/desktop/Raster.h>
#include <tests/platform/Scene.h>

#include <gtest/gtest.h>

using namespace wayvane::platform;
using namespace wayvane::tests;
using wayvane::sim::pixelAt;
using wayvane::sim::renderLayer;

namespace {

LayerHandle canvas()
{
  LayerHandle root = Layer::make();
  root->setFrame({0, 0, 40, 40});
  return root;
}

LayerHandle shape(const Path& path)
{
  LayerHandle layer = Layer::make(LayerKind::Shape);
  layer->setFrame({0, 0, 40, 40});
  layer->setPath(path);
  return layer;
}

double alphaAt(const LayerHandle& root, Point point, double scale = 1)
{
  return pixelAt(renderLayer(*root, 0, scale), point, scale).alpha;
}

} // namespace

TEST(Raster, DrawsBackgroundsWhereTheyAre)
{
  const LayerHandle root = canvas();
  root->addSublayer(box({10, 20, 10, 10}, Color::rgba(1, 0, 0)));
  const Bitmap picture = renderLayer(*root, 0);
  EXPECT_EQ(picture.pixels.size(), 1600U);
  EXPECT_EQ(pixelAt(picture, {15, 25}), (Rgba{1, 0, 0, 1}));
  EXPECT_EQ(pixelAt(picture, {15, 15}), (Rgba{}));
}

TEST(Raster, CoversPixelsInPart)
{
  const LayerHandle root = canvas();
  root->addSublayer(box({10.25, 10.5, 10, 10}));
  EXPECT_NEAR(alphaAt(root, {10, 15}), 0.75, 0.01);
  EXPECT_NEAR(alphaAt(root, {15, 10}), 0.5, 0.01);
}

TEST(Raster, FillsByTheRule)
{
  const LayerHandle root = canvas();
  Path path = rectPath({5, 5, 30, 30});
  path.addRect({10, 10, 10, 10});
  const LayerHandle layer = shape(path);
  root->addSublayer(layer);
  EXPECT_EQ(alphaAt(root, {15, 15}), 1);
  layer->setFillRule(FillRule::EvenOdd);
  EXPECT_EQ(alphaAt(root, {15, 15}), 0);
  EXPECT_EQ(alphaAt(root, {30, 30}), 1);
}

TEST(Raster, StrokesHalfToEachSide)
{
  const LayerHandle root = canvas();
  const LayerHandle layer = shape(rectPath({10, 10, 20, 20}));
  layer->setFillColor(Color::clear());
  layer->setStrokeColor(Color::white(0));
  layer->setLineWidth(4);
  root->addSublayer(layer);
  EXPECT_EQ(alphaAt(root, {8.5, 20}), 1);
  EXPECT_EQ(alphaAt(root, {11.5, 20}), 1);
  EXPECT_EQ(alphaAt(root, {7.5, 20}), 0);
  EXPECT_EQ(alphaAt(root, {12.5, 20}), 0);
  EXPECT_EQ(alphaAt(root, {8.5, 8.5}), 1) << "a mitred corner";
}

TEST(Raster, LeavesTheGapsOfADashedLine)
{
  const LayerHandle root = canvas();
  Path line;
  line.moveTo({0, 20});
  line.lineTo({40, 20});
  const LayerHandle layer = shape(line);
  layer->setStrokeColor(Color::white(0));
  layer->setLineWidth(2);
  layer->setLineDashPattern({6, 4});
  root->addSublayer(layer);
  EXPECT_EQ(alphaAt(root, {3, 20}), 1);
  EXPECT_EQ(alphaAt(root, {8, 20}), 0);
  EXPECT_EQ(alphaAt(root, {13, 20}), 1);
  layer->setLineDashPhase(6);
  EXPECT_EQ(alphaAt(root, {2, 20}), 0);
  EXPECT_EQ(alphaAt(root, {8, 20}), 1);
}

TEST(Raster, AppliesOpacityToTheWholeTree)
{
  const LayerHandle root = canvas();
  const LayerHandle group = box({0, 0, 40, 40});
  group->addSublayer(box({0, 0, 20, 20}));
  group->setOpacity(0.5);
  root->addSublayer(group);
  EXPECT_NEAR(alphaAt(root, {10, 10}), 0.5, 0.01);
}

TEST(Raster, ShowsWhereTheMaskIsOpaque)
{
  const LayerHandle root = canvas();
  const LayerHandle layer = box({0, 0, 40, 40});
  layer->setMask(box({10, 10, 10, 10}, Color::white(1, 0.5)));
  root->addSublayer(layer);
  EXPECT_NEAR(alphaAt(root, {15, 15}), 0.5, 0.01);
  EXPECT_EQ(alphaAt(root, {25, 15}), 0);
}

TEST(Raster, ClipsToRoundedBounds)
{
  const LayerHandle root = canvas();
  root->setMasksToBounds(true);
  root->setCornerRadius(10);
  root->addSublayer(box({-10, -10, 60, 60}));
  EXPECT_EQ(alphaAt(root, {1, 1}), 0);
  EXPECT_EQ(alphaAt(root, {20, 1}), 1);
}

TEST(Raster, BlursAShadowBelowItsCaster)
{
  const LayerHandle root = canvas();
  const LayerHandle layer = box({10, 20, 20, 10}, Color::white(1));
  layer->setShadow(Shadow{Color::white(0), {0, -6}, 4});
  root->addSublayer(layer);
  const Bitmap picture = renderLayer(*root, 0);
  EXPECT_GT(pixelAt(picture, {20, 17}).alpha, 0.5);
  EXPECT_GT(pixelAt(picture, {20, 12}).alpha, 0);
  EXPECT_EQ(pixelAt(picture, {20, 32}).alpha, 0);
  EXPECT_EQ(pixelAt(picture, {20, 25}).red, 1) << "the caster lies above its shadow";
}

TEST(Raster, DrawsTextInItsColorFromTheTop)
{
  const LayerHandle root = canvas();
  const LayerHandle text = Layer::make(LayerKind::Text);
  text->setFrame({0, 0, 40, 40});
  text->setText({{{"W", Font::system(10), Color::rgba(0, 1, 0), nullptr, {}}}});
  root->addSublayer(text);
  const Bitmap picture = renderLayer(*root, 0);
  EXPECT_EQ(pixelAt(picture, {2, 35}), (Rgba{0, 1, 0, 1}));
  EXPECT_EQ(pixelAt(picture, {2, 10}), (Rgba{}));
}

TEST(Raster, DrawsMorePixelsAtAHigherScale)
{
  const LayerHandle root = canvas();
  root->addSublayer(box({10.5, 10, 10, 10}));
  const Bitmap picture = renderLayer(*root, 0, 2);
  EXPECT_EQ(picture.width, 80);
  EXPECT_EQ(alphaAt(root, {10.25, 15}, 2), 0);
  EXPECT_EQ(alphaAt(root, {10.75, 15}, 2), 1);
}

TEST(Raster, ResolvesColorsForTheAppearance)
{
  const LayerHandle root = canvas();
  root->addSublayer(box({0, 0, 40, 40}, Color::controlBackground()));
  EXPECT_EQ(pixelAt(renderLayer(*root, 0, 1, Appearance::Light), {5, 5}).red, 1);
  EXPECT_NEAR(pixelAt(renderLayer(*root, 0, 1, Appearance::Dark), {5, 5}).red, 30 / 255.0, 1e-9);
}
