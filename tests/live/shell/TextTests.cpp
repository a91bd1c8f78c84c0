#include <wayvane/platform/qt/QtImage.h>
#include <wayvane/platform/qt/QtTextMeasurer.h>

#include <QPixmap>

#include <gmock/gmock.h>

#include <limits>

namespace wayvane::qt::test {
namespace {

using platform::AttributedText;
using platform::Color;
using platform::Font;
using platform::Size;

constexpr double kUnbounded = std::numeric_limits<double>::infinity();

AttributedText text(const std::string& words, double size = 12)
{
  return {{{words, Font::system(size), Color::label(), nullptr, {}}}};
}

platform::ImageHandle picture()
{
  QPixmap pixmap(16, 16);
  pixmap.fill(Qt::red);
  return QtImage::make(pixmap);
}

class QtTextMeasurer : public testing::Test {
protected:
  [[nodiscard]] Size size(const AttributedText& of, double width = kUnbounded) const
  {
    return measurer.sizeOfText(of, width);
  }

  qt::QtTextMeasurer measurer;
};

TEST_F(QtTextMeasurer, EmptyTextHasNoSize)
{
  EXPECT_EQ(size({}), Size{});
  EXPECT_EQ(size(text("")), Size{});
}

TEST_F(QtTextMeasurer, LargerFontIsLarger)
{
  EXPECT_GT(size(text("Word", 24)).height, size(text("Word", 12)).height);
  EXPECT_GT(size(text("Word", 24)).width, size(text("Word", 12)).width);
}

TEST_F(QtTextMeasurer, WrapsBetweenWordsWithinTheWidth)
{
  const Size line = size(text("one two three four"));
  const Size wrapped = size(text("one two three four"), line.width / 2 + 5);
  EXPECT_LE(wrapped.width, line.width / 2 + 5);
  EXPECT_DOUBLE_EQ(wrapped.height, 2 * line.height);
}

TEST_F(QtTextMeasurer, WordLongerThanALineIsBroken)
{
  const Size line = size(text("Donaudampfschifffahrt"));
  const Size broken = size(text("Donaudampfschifffahrt"), line.width / 2 + 5);
  EXPECT_LE(broken.width, line.width / 2 + 5);
  EXPECT_DOUBLE_EQ(broken.height, 2 * line.height);
}

TEST_F(QtTextMeasurer, LineBreaksMakeLines)
{
  const double height = size(text("a")).height;
  EXPECT_DOUBLE_EQ(size(text("a\nb")).height, 2 * height);
  EXPECT_DOUBLE_EQ(size(text("a\r\n\r\nb")).height, 3 * height);
  EXPECT_DOUBLE_EQ(size(text("a\n")).height, 2 * height);
}

TEST_F(QtTextMeasurer, MarkupIsMeasuredAsText)
{
  EXPECT_GT(size(text("<b>a</b>")).width, size(text("a")).width * 3);
}

TEST_F(QtTextMeasurer, RunsAddUp)
{
  AttributedText both = text("one ");
  both.runs.push_back(text("two").runs.front());
  EXPECT_NEAR(size(both).width, size(text("one two")).width, 1);
}

TEST_F(QtTextMeasurer, PictureTakesItsRoom)
{
  AttributedText with = text("see ");
  with.runs.push_back({"\uFFFC", Font::system(12), Color::label(), picture(), {0, -3, 40, 16}});
  EXPECT_NEAR(size(with).width - size(text("see ")).width, 40, 3);
  with.runs.back().attachmentBounds = {0, -3, 16, 60};
  EXPECT_GE(size(with).height, 60);
}

TEST(QtImage, KeepsAspectAndCentres)
{
  QPixmap wide(32, 16);
  wide.fill(Qt::blue);
  const platform::ImageHandle image = QtImage::make(wide);
  EXPECT_EQ(image->size(), (Size{32, 16}));
  const platform::Bitmap bitmap = image->rendered({20, 20}, 2, platform::Appearance::Light);
  ASSERT_EQ(bitmap.width, 40);
  ASSERT_EQ(bitmap.height, 40);
  const auto at = [&](int x, int y) { return bitmap.pixels[static_cast<std::size_t>(y * 40 + x)]; };
  EXPECT_EQ(at(20, 20), 0xFF0000FFU);
  EXPECT_EQ(at(20, 2), 0U);
  EXPECT_EQ(at(20, 37), 0U);
}

TEST(QtImage, NothingIsMadeOfNothing)
{
  EXPECT_EQ(QtImage::make(QPixmap()), nullptr);
  EXPECT_EQ(QtImage::make(QIcon()), nullptr);
  EXPECT_EQ(picture()->rendered({0, 10}, 1, platform::Appearance::Light).pixels.size(), 0U);
  EXPECT_EQ(picture()->rendered({1e9, 1e9}, 1, platform::Appearance::Light).width, 4096);
}

TEST(QtImage, BitmapGoesThereAndBack)
{
  const platform::Bitmap bitmap = picture()->rendered({3, 2}, 1, platform::Appearance::Light);
  const platform::Bitmap again = toBitmap(toQImage(bitmap));
  EXPECT_EQ(again.pixels, bitmap.pixels);
  EXPECT_TRUE(toQImage({5, 5, {}}).isNull());
}

} // namespace
} // namespace wayvane::qt::test
