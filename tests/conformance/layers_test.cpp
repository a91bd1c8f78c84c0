#include <tests/conformance/Conformance.h>

namespace wayvane::conformance {

namespace {

using platform::Color;
using platform::Layer;
using platform::LayerHandle;
using platform::LayerKind;

const Color kRed = Color::rgba(1, 0, 0), kBlue = Color::rgba(0, 0, 1);

/// Layers drawn in an overlay over the window.
class Layers : public Conformance {
protected:
  void SetUp() override
  {
    Conformance::SetUp();
    overlay_ = platform().panels.makeOverlayPanel(window()->frame(), 0);
    overlay_->attachToWindow(window());
    overlay_->orderFront();
  }

  void TearDown() override { overlay_.reset(); }

  [[nodiscard]] Layer& root() { return *overlay_->contentView().layer(); }

  [[nodiscard]] platform::SurfaceView& content() { return overlay_->contentView(); }

  static LayerHandle plain(const Rect& frame, const Color& color)
  {
    const auto layer = Layer::make();
    layer->setFrame(frame);
    layer->setBackgroundColor(color);
    return layer;
  }

  static LayerHandle shape(const Rect& frame, const Rect& outline)
  {
    const auto layer = Layer::make(LayerKind::Shape);
    platform::Path path;
    path.addRect(outline);
    layer->setFrame(frame);
    layer->setPath(path);
    return layer;
  }

  LayerHandle add(const LayerHandle& layer)
  {
    root().addSublayer(layer);
    return layer;
  }

  /// What is seen once the toolkit had time to draw.
  [[nodiscard]] Picture shown()
  {
    stage().pass(0.03);
    return stage().picture(window());
  }

private:
  std::unique_ptr<platform::OverlayPanel> overlay_;
};

MATCHER_P(HasColor, color, "has that colour")
{
  const platform::Rgba wanted = color.resolved(platform::Appearance::Light);
  *result_listener << arg.red << " " << arg.green << " " << arg.blue;
  return std::abs(arg.red - wanted.red) < 0.03 && std::abs(arg.green - wanted.green) < 0.03 &&
         std::abs(arg.blue - wanted.blue) < 0.03;
}

TEST_F(Layers, ALayerFillsItsFrameAndNoMore)
{
  add(plain({20, 30, 40, 10}, kRed));
  const Picture picture = shown();
  EXPECT_THAT(picture({21, 31}), HasColor(kRed));
  EXPECT_THAT(picture({59, 39}), HasColor(kRed));
  for (const Point outside : {Point{18, 35}, Point{62, 35}, Point{40, 28}, Point{40, 42}})
    EXPECT_THAT(picture(outside), testing::Not(HasColor(kRed)));
}

TEST_F(Layers, LaterSublayersLieAboveEarlierOnes)
{
  add(plain({20, 20, 40, 40}, kRed));
  add(plain({40, 20, 40, 40}, kBlue));
  const Picture picture = shown();
  EXPECT_THAT(picture({30, 40}), HasColor(kRed));
  EXPECT_THAT(picture({50, 40}), HasColor(kBlue));
}

TEST_F(Layers, SublayersAreInTheCoordinatesOfTheirLayer)
{
  const auto outer = add(plain({100, 50, 100, 100}, kRed));
  outer->addSublayer(plain({10, 20, 30, 10}, kBlue));
  const Picture picture = shown();
  EXPECT_THAT(picture({112, 72}), HasColor(kBlue));
  EXPECT_THAT(picture({112, 82}), HasColor(kRed)) << "y grows upward";
}

TEST_F(Layers, InAFlippedLayerYGrowsDownward)
{
  const auto outer = add(plain({100, 50, 100, 100}, kRed));
  outer->setGeometryFlipped(true);
  outer->addSublayer(plain({10, 20, 30, 10}, kBlue));
  const Picture picture = shown();
  EXPECT_THAT(picture({112, 125}), HasColor(kBlue));
  EXPECT_THAT(picture({112, 75}), HasColor(kRed));
}

TEST_F(Layers, AHiddenLayerIsNotDrawn)
{
  add(plain({20, 20, 40, 40}, kRed));
  add(plain({20, 20, 40, 40}, kBlue))->setHidden(true);
  EXPECT_THAT(shown()({40, 40}), HasColor(kRed));
}

TEST_F(Layers, OpacityLetsThroughWhatIsBelow)
{
  add(plain({20, 20, 40, 40}, kRed));
  add(plain({20, 20, 40, 40}, kBlue))->setOpacity(0.5);
  EXPECT_THAT(shown()({40, 40}), HasColor(Color::rgba(0.5, 0, 0.5)));
}

TEST_F(Layers, AMaskShowsWhereItIsOpaque)
{
  const auto masked = add(plain({20, 20, 100, 40}, kRed));
  masked->setMask(shape({0, 0, 100, 40}, {50, 0, 50, 40}));
  const Picture picture = shown();
  EXPECT_THAT(picture({100, 40}), HasColor(kRed));
  EXPECT_THAT(picture({40, 40}), testing::Not(HasColor(kRed)));
}

TEST_F(Layers, ALayerMayCutOffWhatIsOutsideOfIt)
{
  const auto cutting = add(plain({20, 20, 40, 40}, kRed));
  cutting->setMasksToBounds(true);
  cutting->addSublayer(plain({20, 0, 40, 40}, kBlue));
  const Picture picture = shown();
  EXPECT_THAT(picture({50, 40}), HasColor(kBlue));
  EXPECT_THAT(picture({70, 40}), testing::Not(HasColor(kBlue)));
}

TEST_F(Layers, AStrokeLiesOnBothSidesOfTheOutline)
{
  const auto ring = add(shape({20, 20, 100, 100}, {20, 20, 60, 60}));
  ring->setFillColor(Color::clear());
  ring->setStrokeColor(kRed);
  ring->setLineWidth(8);
  const Picture picture = shown();
  EXPECT_THAT(picture({38, 70}), HasColor(kRed));
  EXPECT_THAT(picture({42, 70}), HasColor(kRed));
  EXPECT_THAT(picture({70, 70}), testing::Not(HasColor(kRed))) << "the inside";
}

TEST_F(Layers, ATransformMovesWhatIsDrawn)
{
  add(plain({20, 20, 20, 20}, kRed))->setTransform(platform::Transform::translation(100, 40));
  const Picture picture = shown();
  EXPECT_THAT(picture({130, 70}), HasColor(kRed));
  EXPECT_THAT(picture({30, 30}), testing::Not(HasColor(kRed)));
}

TEST_F(Layers, TextIsDrawnAtTheTopOfItsFrame)
{
  add(plain({20, 20, 200, 100}, Color::white(1)));
  const auto text = Layer::make(LayerKind::Text);
  text->setFrame({20, 20, 200, 100});
  text->setText({{{.text = "MMMMMM",
                   .font = platform::Font::boldSystem(30),
                   .color = Color::white(0),
                   .attachment = nullptr,
                   .attachmentBounds = {}}}});
  add(text);
  const Picture picture = shown();
  int inkAbove = 0, inkBelow = 0;
  for (int x = 22; x < 160; ++x) {
    for (int y = 22; y < 118; ++y) {
      const bool isInk = picture({x + 0.5, y + 0.5}).brightness() < 0.4;
      (y >= 70 ? inkAbove : inkBelow) += isInk ? 1 : 0;
    }
  }
  EXPECT_GT(inkAbove, 100);
  EXPECT_EQ(inkBelow, 0);
}

TEST_F(Layers, ASurfaceViewIsDrawnInItsPlace)
{
  const auto view = std::make_shared<platform::SurfaceView>(Rect{50, 60, 40, 20});
  view->layer()->setBackgroundColor(kRed);
  content().addSubview(view);
  EXPECT_THAT(shown()({70, 70}), HasColor(kRed));
  view->setFrameOrigin({150, 60});
  EXPECT_THAT(shown()({70, 70}), testing::Not(HasColor(kRed)));
  EXPECT_THAT(shown()({170, 70}), HasColor(kRed));
  view->removeFromSuperview();
  EXPECT_THAT(shown()({170, 70}), testing::Not(HasColor(kRed)));
}

} // namespace

} // namespace wayvane::conformance
