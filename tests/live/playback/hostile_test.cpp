#include "PlaybackTest.h"

#include <QDialog>
#include <QTimer>

#include <random>

namespace wayvane::qt::test {
namespace {

constexpr unsigned kRounds = 200;
constexpr int kLongestWaitMilliseconds = 130;

/// One run over a program whose widgets die at random moments. The number of the round decides everything but
/// the exact time.
class Round {
public:
  Round(unsigned seed, WVPlayer& player, Host& host)
    : random_(seed)
    , player_(player)
    , host_(host)
  {}

  void act()
  {
    QWidget* const victims[] = {host_.save,  host_.far,    host_.other, host_.scroll,
                                host_.table, host_.second, host_.main};
    switch (below(6)) {
    case 0:
      delete victims[below(7)];
      break;
    case 1:
      press(host_.save);
      break;
    case 2:
      press(host_.other);
      break;
    case 3:
      press(host_.far);
      break;
    case 4:
      if (host_.main) host_.main->resize(600 + below(400), 400 + below(300));
      break;
    default:
      player_.advanceToNextStep();
    }
  }

  int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

private:
  static void press(const QPointer<QPushButton>& button)
  {
    if (button && button->window()->windowHandle())
      QTest::mouseClick(button->window()->windowHandle(), Qt::LeftButton, {},
                        button->mapTo(button->window(), button->rect().center()));
  }

  std::mt19937 random_;
  WVPlayer& player_;
  Host& host_;
};

/// Answers whatever alert is up, sometimes after having destroyed something below it.
void answerAlerts(QTimer& timer, Round& round)
{
  QObject::connect(&timer, &QTimer::timeout, &timer, [&round] {
    auto* const box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!box) return;
    const QPointer<QDialog> alive = box;
    if (round.below(2) == 0) round.act();
    if (alive) alive->done(round.below(3));
  });
  timer.start(15);
}

TEST_F(PlaybackTest, RandomWidgetsDieDuringTwoHundredRunsAndTheProgramGoesOn)
{
  unsigned shown = 0;
  for (unsigned number = 0; number < kRounds; ++number) {
    host = std::make_unique<Host>();
    Round round(number, *player, *host);
    QTimer alerts;
    answerAlerts(alerts, round);
    player->playGuide(guideFor({"save", "far", "apply", "other", "far"}),
                      static_cast<std::uint64_t>(round.below(3)));
    for (int actions = 0; actions < 5; ++actions) {
      QTest::qWait(round.below(kLongestWaitMilliseconds));
      shown += player->currentBubble() != nullptr;
      round.act();
    }
    player->stop();
    ASSERT_FALSE(player->isPlaying());
  }
  EXPECT_GT(shown, 0U) << "some of the rounds came as far as a bubble";
}

} // namespace
} // namespace wayvane::qt::test
