#include <tests/conformance/Conformance.h>

namespace wayvane::conformance {

namespace {

using platform::AlertSpec;

class Alerts : public Conformance {
protected:
  [[nodiscard]] static AlertSpec question()
  {
    return {.style = AlertSpec::Style::Informational,
            .messageText = "Leave the guide?",
            .informativeText = "Step 2 of <b>5</b> & more",
            .buttons = {"Leave", "Go On", "Start Again"},
            .field = {}};
  }
};

TEST_F(Alerts, TheAnswerIsTheIndexOfTheButton)
{
  int index = 0;
  for (const char* title : {"Leave", "Go On", "Start Again"}) {
    stage().answerNextAlert(title);
    EXPECT_EQ(platform().panels.runAlert(question()).button, index++) << title;
  }
}

TEST_F(Alerts, AnAlertThatIsClosedHasNoButton)
{
  stage().answerNextAlert({});
  EXPECT_EQ(platform().panels.runAlert(question()).button, -1);
}

TEST_F(Alerts, AFieldHandsBackWhatWasTyped)
{
  AlertSpec spec = question();
  spec.field = platform::AlertField{.size = {240, 24}, .value = "Tour", .placeholder = "Name"};
  stage().answerNextAlert("Leave", "Alps in a week");
  const auto answer = platform().panels.runAlert(spec);
  EXPECT_EQ(answer.button, 0);
  EXPECT_EQ(answer.fieldText, "Alps in a week");
}

TEST_F(Alerts, AFieldThatNobodyTouchedKeepsItsText)
{
  AlertSpec spec = question();
  spec.field = platform::AlertField{.size = {240, 24}, .value = "Tour", .placeholder = "Name"};
  stage().answerNextAlert("Go On");
  const auto answer = platform().panels.runAlert(spec);
  EXPECT_EQ(answer.button, 1);
  EXPECT_EQ(answer.fieldText, "Tour");
}

TEST_F(Alerts, WithoutFieldThereIsNoText)
{
  stage().answerNextAlert("Go On");
  EXPECT_EQ(platform().panels.runAlert(question()).fieldText, "");
}

TEST_F(Alerts, TimeGoesOnWhileAnAlertIsUp)
{
  bool ran = false;
  platform().mainQueue.after(0.02, [&] { ran = true; });
  bool ranMeanwhile = false;
  stage().answerNextAlert("Leave", {}, [&] {
    stage().pass(0.06);
    ranMeanwhile = ran;
  });
  std::ignore = platform().panels.runAlert(question());
  EXPECT_TRUE(ranMeanwhile);
}

TEST_F(Alerts, TheProgramsWindowMayCloseWhileAnAlertIsUp)
{
  const auto other = stage().makeWindow("Packing list", {720, 150, 300, 300});
  stage().answerNextAlert("Go On", {}, [&] { stage().closeWindow(window()); });
  EXPECT_EQ(platform().panels.runAlert(question()).button, 1);
  EXPECT_FALSE(window()->isAlive());
}

TEST_F(Alerts, TheLastWindowMayCloseWhileAnAlertIsUp)
{
  stage().answerNextAlert("Go On", {}, [&] { stage().closeWindow(window()); });
  EXPECT_EQ(platform().panels.runAlert(question()).button, 1);
}

TEST_F(Alerts, AfterAnAlertTheWindowHasTheKeyboardAgain)
{
  stage().answerNextAlert("Leave");
  std::ignore = platform().panels.runAlert(question());
  EXPECT_TRUE(stage().waitUntil([&] { return isSameWindow(platform().application.keyWindow(), window()); }));
}

TEST_F(Alerts, OneAlertMayFollowAnother)
{
  stage().answerNextAlert("Leave");
  EXPECT_EQ(platform().panels.runAlert(question()).button, 0);
  stage().answerNextAlert("Start Again");
  EXPECT_EQ(platform().panels.runAlert(question()).button, 2);
}

} // namespace

} // namespace wayvane::conformance
