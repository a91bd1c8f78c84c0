#include "ShellTest.h"

#include <wayvane/platform/qt/QtScenePainter.h>

#include <QPainter>

#include <cmath>

namespace wayvane::qt::test {
namespace {

using platform::Appearance;
using platform::AttributedText;
using platform::Color;
using platform::Font;
using platform::Layer;
using platform::LayerHandle;
using platform::LayerKind;
using platform::Path;
using platform::Rect;

constexpr Rect kCanvas{0, 0, 200, 100};

class QtScenePainter : public testing::Test {
protected:
  QtScenePainter() { root->setFrame(kCanvas); }

  [[nodiscard]] QImage drawn(double scale = 1, Appearance appearance = Appearance::Light,
                             const QRegion& damage = QRect(0, 0, 200, 100))
  {
    QImage image((QSizeF(kCanvas.width, kCanvas.height) * scale).toSize(),
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setClipRegion(damage);
    qt::QtScenePainter().paint(painter, *root, 0, QSizeF(kCanvas.width, kCanvas.height), damage, appearance);
    return image;
  }

  LayerHandle add(LayerKind kind, const Rect& frame)
  {
    LayerHandle layer = Layer::make(kind);
    layer->setFrame(frame);
    root->addSublayer(layer);
    return layer;
  }

  LayerHandle dimWithHole(const Rect& hole, double alpha, double radius = 6)
  {
    const LayerHandle dim = add(LayerKind::Plain, kCanvas);
    dim->setBackgroundColor(Color::white(0, alpha));
    const LayerHandle mask = Layer::make(LayerKind::Shape);
    mask->setFrame(kCanvas);
    mask->setFillColor(Color::white(1));
    mask->setFillRule(platform::FillRule::EvenOdd);
    Path path;
    path.addRect(kCanvas);
    path.addRoundedRect(hole, radius);
    mask->setPath(path);
    dim->setMask(mask);
    return dim;
  }

  LayerHandle root = Layer::make();
};

const QColor kRed(255, 0, 0);

TEST_F(QtScenePainter, PlacesFramesWithYUpward)
{
  add(LayerKind::Plain, {10, 20, 30, 10})->setBackgroundColor(Color::rgba(1, 0, 0));
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(10, 70), kRed);
  EXPECT_EQ(image.pixelColor(39, 79), kRed);
  EXPECT_EQ(image.pixelColor(10, 69), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(10, 80), QColor(Qt::white));
}

TEST_F(QtScenePainter, PlacesFramesDownwardInAFlippedLayer)
{
  const LayerHandle flipped = add(LayerKind::Plain, {100, 0, 100, 100});
  flipped->setGeometryFlipped(true);
  const LayerHandle inner = Layer::make();
  inner->setFrame({5, 10, 20, 20});
  inner->setBackgroundColor(Color::rgba(1, 0, 0));
  flipped->addSublayer(inner);
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(105, 10), kRed);
  EXPECT_EQ(image.pixelColor(124, 29), kRed);
  EXPECT_EQ(image.pixelColor(105, 9), QColor(Qt::white));
}

TEST_F(QtScenePainter, DimsAllButTheHole)
{
  dimWithHole({50, 30, 60, 40}, 0.4);
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(5, 5), QColor(153, 153, 153));
  EXPECT_EQ(image.pixelColor(80, 50), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(50, 50), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(49, 50), QColor(153, 153, 153));
  EXPECT_EQ(image.pixelColor(50, 30), QColor(153, 153, 153)) << "a rounded corner stays dimmed";
}

TEST_F(QtScenePainter, HoleOutsideTheAreaLeavesAllDimmed)
{
  dimWithHole({500, 500, 60, 40}, 0.4);
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(0, 0), QColor(153, 153, 153));
  EXPECT_EQ(image.pixelColor(199, 99), QColor(153, 153, 153));
}

TEST_F(QtScenePainter, MaskWithoutAPathHidesEverything)
{
  dimWithHole({50, 30, 60, 40}, 0.4)->mask()->removePath();
  EXPECT_EQ(drawn().pixelColor(5, 5), QColor(Qt::white));
}

TEST_F(QtScenePainter, DimIsTheSameInPartsAndInOne)
{
  dimWithHole({50.5, 30.25, 60, 40}, 0.4);
  const QImage whole = drawn();
  QImage parts = drawn(1, Appearance::Light, QRect(0, 0, 60, 100));
  QPainter painter(&parts);
  painter.drawImage(60, 0, drawn(1, Appearance::Light, QRect(60, 0, 140, 100)), 60, 0);
  painter.end();
  EXPECT_EQ(parts, whole);
}

/// The largest difference between two pictures in any channel of any pixel.
int difference(const QImage& one, const QImage& other)
{
  int most = 0;
  for (int y = 0; y < one.height(); ++y)
    for (int x = 0; x < one.width(); ++x) {
      const QColor a = one.pixelColor(x, y), b = other.pixelColor(x, y);
      most = std::max({most, std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                       std::abs(a.blue() - b.blue())});
    }
  return most;
}

QImage reference(const std::function<void(QPainter&)>& draw)
{
  QImage image(200, 100, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  draw(painter);
  return image;
}

TEST_F(QtScenePainter, HoleLooksAsIfFilledInOnePiece)
{
  for (const Rect& hole :
       {Rect{50, 30, 60, 40}, Rect{50.5, 30.25, 60.3, 40.7}, Rect{20, 20, 12, 60}, Rect{-5, 80, 50, 40}}) {
    root = Layer::make();
    root->setFrame(kCanvas);
    dimWithHole(hole, 0.4);
    const QImage expected = reference([&](QPainter& painter) {
      QPainterPath path;
      path.addRect(0, 0, 200, 100);
      path.addRoundedRect(QRectF(hole.x, 100 - hole.maxY(), hole.width, hole.height), 6, 6);
      painter.setClipRect(0, 0, 200, 100);
      painter.fillPath(path, QColor(0, 0, 0, 102));
    });
    EXPECT_LE(difference(drawn(), expected), 3) << hole.x;
  }
}

TEST_F(QtScenePainter, RingLooksAsIfDrawnInOnePiece)
{
  for (const Rect& frame : {Rect{50, 30, 60, 40}, Rect{50.5, 30.25, 60.3, 40.7}, Rect{20, 20, 11, 60}}) {
    root = Layer::make();
    root->setFrame(kCanvas);
    const LayerHandle ring = add(LayerKind::Shape, frame);
    ring->setFillColor(Color::clear());
    ring->setStrokeColor(Color::rgba(1, 0, 0, 0.5));
    ring->setLineWidth(2);
    Path path;
    path.addRoundedRect({0, 0, frame.width, frame.height}, 6);
    ring->setPath(path);
    const QImage expected = reference([&](QPainter& painter) {
      painter.setPen(QPen(QColor(255, 0, 0, 128), 2));
      const double radius = std::min(6.0, frame.width / 2);
      painter.drawRoundedRect(QRectF(frame.x, 100 - frame.maxY(), frame.width, frame.height), radius, radius);
    });
    EXPECT_LE(difference(drawn(), expected), 6) << frame.x;
  }
}

TEST_F(QtScenePainter, MaskOfALayerWithSublayersCutsAllOfIt)
{
  const LayerHandle group = add(LayerKind::Plain, kCanvas);
  group->setBackgroundColor(Color::rgba(0, 0, 1));
  const LayerHandle inner = Layer::make();
  inner->setFrame({0, 0, 100, 100});
  inner->setBackgroundColor(Color::rgba(1, 0, 0));
  group->addSublayer(inner);
  const LayerHandle mask = Layer::make(LayerKind::Shape);
  mask->setFrame(kCanvas);
  Path path;
  path.addRect({80, 0, 40, 100});
  mask->setPath(path);
  group->setMask(mask);
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(70, 50), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(90, 50), kRed);
  EXPECT_EQ(image.pixelColor(110, 50), QColor(0, 0, 255));
  EXPECT_EQ(image.pixelColor(130, 50), QColor(Qt::white));
}

TEST_F(QtScenePainter, FadedGroupDoesNotShowItsOwnOverlaps)
{
  const LayerHandle group = add(LayerKind::Plain, kCanvas);
  group->setOpacity(0.5);
  for (const double x : {0.0, 50.0}) {
    const LayerHandle box = Layer::make();
    box->setFrame({x, 0, 100, 100});
    box->setBackgroundColor(Color::rgba(1, 0, 0));
    group->addSublayer(box);
  }
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(75, 50), image.pixelColor(25, 50));
  EXPECT_NEAR(image.pixelColor(75, 50).green(), 127, 1);
}

TEST_F(QtScenePainter, RoundedBoundsCutTheSublayers)
{
  root->setCornerRadius(10);
  root->setMasksToBounds(true);
  add(LayerKind::Plain, kCanvas)->setBackgroundColor(Color::rgba(1, 0, 0));
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(199, 99), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(0, 50), kRed);
  EXPECT_EQ(image.pixelColor(100, 0), kRed);
  EXPECT_EQ(image.pixelColor(9, 9), kRed);
}

TEST_F(QtScenePainter, TransformScalesAboutTheBottomLeft)
{
  const LayerHandle box = add(LayerKind::Plain, {20, 20, 40, 40});
  box->setBackgroundColor(Color::rgba(1, 0, 0));
  box->setTransform(platform::Transform::scale(0.5, 0.5));
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(21, 78), kRed);
  EXPECT_EQ(image.pixelColor(38, 62), kRed);
  EXPECT_EQ(image.pixelColor(45, 50), QColor(Qt::white));
}

TEST_F(QtScenePainter, ShadowFallsBelowAndFadesOut)
{
  const LayerHandle box = add(LayerKind::Plain, {60, 40, 80, 40});
  box->setBackgroundColor(Color::white(1));
  box->setShadow(platform::Shadow{Color::white(0, 0.3), {0, -2}, 12});
  const QImage image = drawn();
  const int nearby = image.pixelColor(100, 62).lightness();
  const int farther = image.pixelColor(100, 68).lightness();
  EXPECT_LT(nearby, 240);
  EXPECT_GT(farther, nearby);
  EXPECT_EQ(image.pixelColor(100, 85), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(100, 40), QColor(Qt::white)) << "the shadow lies below the box";
  EXPECT_LT(image.pixelColor(100, 62).lightness(), image.pixelColor(100, 17).lightness());
}

TEST_F(QtScenePainter, SemanticColoursFollowTheAppearance)
{
  add(LayerKind::Plain, kCanvas)->setBackgroundColor(Color::controlBackground());
  EXPECT_EQ(drawn(1, Appearance::Light).pixelColor(5, 5), QColor(255, 255, 255));
  EXPECT_EQ(drawn(1, Appearance::Dark).pixelColor(5, 5), QColor(0x1E, 0x1E, 0x1E));
}

TEST_F(QtScenePainter, StrokesSharpAtTwoPixelsAPoint)
{
  const LayerHandle ring = add(LayerKind::Shape, {50, 30, 60, 40});
  ring->setFillColor(Color::clear());
  ring->setStrokeColor(Color::rgba(1, 0, 0));
  ring->setLineWidth(2);
  Path path;
  path.addRoundedRect({0, 0, 60, 40}, 6);
  ring->setPath(path);
  const QImage image = drawn(2);
  EXPECT_EQ(image.size(), QSize(400, 200));
  EXPECT_EQ(image.pixelColor(98, 100), kRed);
  EXPECT_EQ(image.pixelColor(101, 100), kRed);
  EXPECT_EQ(image.pixelColor(97, 100), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(102, 100), QColor(Qt::white));
}

TEST_F(QtScenePainter, DashesFollowThePhase)
{
  const LayerHandle line = add(LayerKind::Shape, {0, 40, 200, 20});
  line->setFillColor(Color::clear());
  line->setStrokeColor(Color::rgba(1, 0, 0));
  line->setLineWidth(4);
  line->setLineDashPattern({20, 10});
  Path path;
  path.moveTo({0, 10});
  path.lineTo({200, 10});
  line->setPath(path);
  QImage image = drawn();
  EXPECT_EQ(image.pixelColor(10, 50), kRed);
  EXPECT_EQ(image.pixelColor(25, 50), QColor(Qt::white));
  line->setLineDashPhase(15);
  image = drawn();
  EXPECT_EQ(image.pixelColor(10, 50), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(20, 50), kRed);
}

TEST_F(QtScenePainter, MarkupInATextIsTextAndRightToLeftEndsAtTheRight)
{
  const LayerHandle text = add(LayerKind::Text, {10, 10, 180, 80});
  text->setText({{{"<h1>big</h1>", Font::system(12), Color::rgba(0, 0, 0), nullptr, {}}}});
  const QImage plain = drawn();
  text->setText({{{"\u05E9\u05DC\u05D5\u05DD", Font::system(12), Color::rgba(0, 0, 0), nullptr, {}}}});
  const QImage hebrew = drawn();
  const auto columns = [](const QImage& image) {
    int first = image.width(), last = -1;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        if (image.pixelColor(x, y).lightness() < 128) first = std::min(first, x), last = std::max(last, x);
    return std::pair(first, last);
  };
  EXPECT_LT(columns(plain).first, 20);
  EXPECT_GT(columns(plain).second, 60) << "the tags are shown";
  EXPECT_GT(columns(hebrew).first, 100);
}

TEST_F(QtScenePainter, SingleLineStandsInTheMiddleAndAParagraphAtTheTop)
{
  const LayerHandle text = add(LayerKind::Text, {10, 10, 180, 80});
  text->setText({{{"H", Font::system(20), Color::rgba(0, 0, 0), nullptr, {}}}});
  const auto middle = [](const QImage& image) {
    int first = image.height(), last = -1;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        if (image.pixelColor(x, y).lightness() < 128) first = std::min(first, y), last = std::max(last, y);
    return (first + last) / 2.0 / image.devicePixelRatio();
  };
  EXPECT_LT(middle(drawn()), 30);
  text->setWrapsText(false);
  EXPECT_NEAR(middle(drawn()), 50, 1.5);
  EXPECT_NEAR(middle(drawn(2)), 50, 1.5);
}

TEST_F(QtScenePainter, PaintsNothingOutsideTheDamage)
{
  add(LayerKind::Plain, kCanvas)->setBackgroundColor(Color::rgba(1, 0, 0));
  const QImage image = drawn(1, Appearance::Light, QRect(10, 10, 20, 20));
  EXPECT_EQ(image.pixelColor(15, 15), kRed);
  EXPECT_EQ(image.pixelColor(40, 15), QColor(Qt::white));
}

} // namespace
} // namespace wayvane::qt::test
