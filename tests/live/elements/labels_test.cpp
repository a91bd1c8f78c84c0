#include <tests/live/elements/Elements.h>
#include <wayvane/targeting/ViewFinding.h>

#include <QGroupBox>

namespace wayvane::qt {

namespace {

class Labels : public Elements {
protected:
  [[nodiscard]] ViewHandle titled(const char* title)
  {
    return wv_viewWithTitle(*viewForWidget(&window()), SearchText(title));
  }
};

TEST_F(Labels, AGroupBoxIsLabelledByItsTitle)
{
  auto* box = add<QGroupBox>(QRect(0, 0, 200, 100), QStringLiteral("&Page"));
  EXPECT_EQ(viewForWidget(box)->accessibilityLabel(), "Page");
  EXPECT_THAT(titled("Page"), Shows(box));
  EXPECT_THAT(titled("&Page"), IsNull());
  box->setAccessibleName(QStringLiteral("Paper"));
  EXPECT_EQ(viewForWidget(box)->accessibilityLabel(), "Paper");
}

} // namespace

} // namespace wayvane::qt
