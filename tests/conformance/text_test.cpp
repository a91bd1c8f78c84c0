#include <tests/conformance/Conformance.h>

#include <limits>

namespace wayvane::conformance {

namespace {

using platform::AttributedText;
using platform::Font;

constexpr double kUnlimited = std::numeric_limits<double>::infinity();

class TextMeasuring : public Conformance {
protected:
  [[nodiscard]] static AttributedText textOf(const std::string& text, const Font& font = Font::system(13))
  {
    return {{{.text = text, .font = font, .color = {}, .attachment = nullptr, .attachmentBounds = {}}}};
  }

  [[nodiscard]] Size measure(const std::string& text, double width = kUnlimited,
                             const Font& font = Font::system(13))
  {
    return platform().textMeasurer.sizeOfText(textOf(text, font), width);
  }
};

const std::string kSentence = "Click the button to plan a tour across the mountains with us";

TEST_F(TextMeasuring, NoTextTakesNoRoom)
{
  EXPECT_EQ(measure(""), Size{});
  EXPECT_EQ(platform().textMeasurer.sizeOfText({}, 100), Size{});
  EXPECT_EQ(measure("", 100), Size{});
}

TEST_F(TextMeasuring, LongerTextIsWider)
{
  EXPECT_GT(measure("Plan").width, 0);
  EXPECT_GT(measure("Plan").height, 0);
  EXPECT_GT(measure("Plan a tour").width, measure("Plan").width);
  EXPECT_EQ(measure("Plan a tour").height, measure("Plan").height) << "still one line";
}

TEST_F(TextMeasuring, LargerTextIsLarger)
{
  const Size small = measure("Plan", kUnlimited, Font::system(11)),
             large = measure("Plan", kUnlimited, Font::system(22));
  EXPECT_GT(large.width, small.width * 1.5);
  EXPECT_GT(large.height, small.height * 1.5);
}

TEST_F(TextMeasuring, TheSizeIsMeantInPoints)
{
  const double height = measure("Plan", kUnlimited, Font::system(20)).height;
  EXPECT_GE(height, 18);
  EXPECT_LE(height, 36);
}

TEST_F(TextMeasuring, ANarrowerWidthMakesMoreLines)
{
  const Size line = measure(kSentence), two = measure(kSentence, line.width * 0.6),
             more = measure(kSentence, line.width * 0.25);
  EXPECT_GE(two.height, line.height * 1.8);
  EXPECT_GT(more.height, two.height);
}

TEST_F(TextMeasuring, NoLineIsWiderThanAllowed)
{
  for (const double width : {60.0, 90.0, 150.0, 300.0})
    EXPECT_LE(measure(kSentence, width).width, width);
}

TEST_F(TextMeasuring, AWordLongerThanALineIsBroken)
{
  const std::string word(80, 'm');
  const Size size = measure(word, 100);
  EXPECT_LE(size.width, 100);
  EXPECT_GT(size.height, measure("m").height * 2);
}

TEST_F(TextMeasuring, EnoughWidthChangesNothing)
{
  const Size line = measure(kSentence);
  EXPECT_EQ(measure(kSentence, line.width + 1), line);
}

TEST_F(TextMeasuring, ALineBreakBeginsALine)
{
  EXPECT_GE(measure("Plan\nTour").height, measure("Plan Tour").height * 1.8);
  EXPECT_LT(measure("Plan\nTour").width, measure("Plan Tour").width);
}

TEST_F(TextMeasuring, MarkupIsText)
{
  EXPECT_GT(measure("<b>Plan</b>").width, measure("Plan").width * 1.5);
}

TEST_F(TextMeasuring, RunsFollowEachOtherInALine)
{
  AttributedText text = textOf("Plan ");
  text.runs.push_back(textOf("a tour", Font::boldSystem(20)).runs[0]);
  const Size both = platform().textMeasurer.sizeOfText(text, kUnlimited);
  EXPECT_GT(both.width, measure("Plan ").width);
  EXPECT_GE(both.height, measure("a tour", kUnlimited, Font::boldSystem(20)).height - 1);
}

TEST_F(TextMeasuring, APictureTakesItsBounds)
{
  const auto button = stage().addIconButton(window(), {.frame = {10, 10, 32, 32}});
  AttributedText text = textOf("Plan");
  platform::AttributedText::Run picture;
  picture.text = "\uFFFC";
  picture.font = Font::system(13);
  picture.attachment = button->as<platform::Button>()->image();
  picture.attachmentBounds = {0, -3, 40, 40};
  text.runs.push_back(picture);
  const Size size = platform().textMeasurer.sizeOfText(text, kUnlimited);
  EXPECT_NEAR(size.width, measure("Plan").width + 40, 1);
  EXPECT_GE(size.height, 40);
}

} // namespace

} // namespace wayvane::conformance
