#include <tests/live/elements/Elements.h>

#include <QGuiApplication>
#include <QScreen>

namespace wayvane::qt {

namespace {

TEST(Conversions, TextsSurviveTheWayThereAndBack)
{
  const std::string text = "Höhe \xF0\x9F\x8F\x94 \xE6\x97\xA5";
  EXPECT_EQ(toUtf8(toQString(text)), text);
}

TEST(Conversions, InvalidUtf8BecomesReplacementCharacters)
{
  EXPECT_EQ(toQString("a\xFFz"), QStringLiteral("a\uFFFDz"));
}

TEST(Conversions, AnInvalidSearchTextEqualsNothing)
{
  EXPECT_FALSE(equals(u"a\uFFFDz", SearchText("a\xFFz")));
}

TEST(Conversions, TheEmptyTextIsNothing)
{
  EXPECT_FALSE(toOptional(QString()));
  EXPECT_THAT(toOptional(u"a"), Optional(std::string("a")));
}

struct Caption {
  QString written;
  QString shown;
};

class Captions : public testing::TestWithParam<Caption> {};

TEST_P(Captions, AreReadWithoutMnemonics)
{
  EXPECT_EQ(withoutMnemonic(GetParam().written), GetParam().shown);
}

TEST_P(Captions, AreComparedWithoutMnemonics)
{
  EXPECT_TRUE(captionEquals(GetParam().written, SearchText(toUtf8(GetParam().shown))));
  EXPECT_FALSE(captionEquals(GetParam().written, SearchText(toUtf8(GetParam().shown) + "x")));
  EXPECT_FALSE(captionEquals(GetParam().written, SearchText("x" + toUtf8(GetParam().shown))));
}

INSTANTIATE_TEST_SUITE_P(
    All, Captions,
    testing::Values(Caption{"&Save", "Save"}, Caption{"Save &As", "Save As"},
                    Caption{"Huts && Peaks", "Huts & Peaks"}, Caption{"Plain", "Plain"},
                    Caption{QStringLiteral("\u4FDD\u5B58(&S)"), QStringLiteral("\u4FDD\u5B58")},
                    Caption{"Open (&O)...", "Open ..."}, Caption{"Trailing&", "Trailing"}, Caption{"&&", "&"},
                    Caption{"A &&&B", "A &B"}));

TEST(Conversions, RichTextIsReadWithoutItsMarkup)
{
  EXPECT_EQ(withoutMarkup(QStringLiteral("<b>Bold</b> move")), QStringLiteral("Bold move"));
  EXPECT_EQ(withoutMarkup(QStringLiteral("a < b")), QStringLiteral("a < b"));
}

TEST(Conversions, TheScreenGrowsUpwardsFromTheBottomLeftOfThePrimaryOne)
{
  const QRect screen = QGuiApplication::primaryScreen()->geometry();
  const double bottom = screen.y() + screen.height();
  EXPECT_EQ(screenPointFromGlobal(QPointF(screen.x(), bottom)), (Point{0, 0}));
  EXPECT_EQ(screenRectFromGlobal(QRectF(screen.x() + 10, bottom - 50, 30, 20)), (Rect{10, 30, 30, 20}));
}

TEST(Conversions, ScreenPlacesComeBack)
{
  const QRectF global(12.5, 40.25, 100, 60);
  EXPECT_EQ(globalFromScreenRect(screenRectFromGlobal(global)), global);
  EXPECT_EQ(globalFromScreenPoint(screenPointFromGlobal({7, 9})), QPointF(7, 9));
}

TEST(Conversions, AWindowGrowsUpwardsFromTheBottomLeftOfItsClientArea)
{
  QWidget window;
  window.resize(300, 200);
  EXPECT_EQ(windowRectFromWidget(QRectF(10, 20, 30, 40), window), (Rect{10, 140, 30, 40}));
  EXPECT_EQ(widgetRectFromWindow({10, 140, 30, 40}, window), QRectF(10, 20, 30, 40));
  EXPECT_EQ(windowPointFromWidget({0, 0}, window), (Point{0, 200}));
  EXPECT_EQ(widgetPointFromWindow({0, 200}, window), QPointF(0, 0));
}

TEST(Conversions, WholePixelsCoverTheRectangle)
{
  EXPECT_EQ(toQRect({0.5, 1.5, 2, 2}), QRect(0, 1, 3, 3));
}

TEST(Conversions, ColoursKeepTheirComponents)
{
  const QColor color = toQColor(platform::Rgba{1, 0.5, 0, 0.25});
  EXPECT_EQ(color.red(), 255);
  EXPECT_NEAR(color.greenF(), 0.5, 0.01);
  EXPECT_EQ(color.blue(), 0);
  EXPECT_NEAR(color.alphaF(), 0.25, 0.01);
  EXPECT_EQ(toQColor(platform::Rgba{2, -1, 0, 1}).red(), 255) << "out of range";
}

TEST(Conversions, FontsHaveTheirHeightInPixels)
{
  EXPECT_EQ(toQFont(platform::Font::system(13)).pixelSize(), 13);
  EXPECT_EQ(toQFont(platform::Font::boldSystem(13)).weight(), QFont::Bold);
  EXPECT_EQ(toQFont(platform::Font::system(0)).pixelSize(), 1) << "the smallest there is";
}

TEST(Conversions, ADarkPaletteIsADarkAppearance)
{
  QWidget widget;
  QPalette palette;
  palette.setColor(QPalette::Window, Qt::white);
  palette.setColor(QPalette::WindowText, Qt::black);
  widget.setPalette(palette);
  EXPECT_EQ(appearanceOf(&widget), platform::Appearance::Light);
  palette.setColor(QPalette::Window, Qt::black);
  palette.setColor(QPalette::WindowText, Qt::white);
  widget.setPalette(palette);
  EXPECT_EQ(appearanceOf(&widget), platform::Appearance::Dark);
}

} // namespace

} // namespace wayvane::qt
