#include <tests/playback/PlayerFixture.h>

#include <random>

namespace wayvane {
namespace {

struct Seen {
  int highlights = 0, scrolls = 0, prompts = 0, completions = 0, destructions = 0;
};

/// A program whose views and windows vanish at any moment while a careless user clicks about and a careless
/// host calls the player. Every round is decided by its number alone.
class HostileRound : public PlayerFixture {
public:
  void play(unsigned round, Seen& seen)
  {
    random_.seed(round);
    buildProgram();
    desktop.setOnAlert([this, &seen](const platform::AlertSpec&) {
      ++seen.prompts;
      if (chance(2)) act();
      desktop.answerNextAlert(below(3) - 1);
    });
    delegate->onShow = [this](std::uint64_t) { misbehave(); };
    delegate->onComplete = [this, &seen] {
      ++seen.completions;
      misbehave();
    };
    delegate->onSkip = [this] { misbehave(); };
    player->playGuide(randomGuide());
    for (int actions = 0; actions < 25; ++actions) {
      act();
      desktop.advance(below(12) * 0.1);
      if (player && player->currentBubble()) ++seen.highlights;
    }
    delegate->onShow = nullptr;
    delegate->onComplete = delegate->onSkip = nullptr;
    if (!player) ++seen.destructions;
    for (const sim::ScrollView* const scroll : scrollViews_)
      seen.scrolls += static_cast<int>(scroll->requests().size());
    if (player) {
      player->stop();
      expectIdle();
    }
    desktop.advance(5);
    expectNothingLeft();
    EXPECT_EQ(desktop.clock().pendingCount(), 0U);
  }

private:
  void TestBody() override {}

  int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

  bool chance(int oneIn) { return below(oneIn) == 0; }

  void buildProgram()
  {
    windows_.push_back(window);
    windows_.push_back(desktop.addWindow("Second", {950, 200, 400, 300}));
    desktop.setMainWindow(window);
    for (const auto& host : windows_) {
      for (const char* const name : {"a", "b"})
        views_.push_back(&addButton(*host, name, {10.0 + below(300), 10.0 + below(200), 80, 24}));
      addFarViews(*host);
    }
  }

  void addFarViews(sim::Window& host)
  {
    sim::ScrollView& scroll =
        host.content().addScrollView({.frame = {50, 50, 300, 200}, .documentSize = {300, 2000}});
    sim::Button& far = scroll.document().addButton({.frame = {10, 1500, 80, 24}, .identifier = "far"});
    views_.push_back(&far);
    views_.push_back(&scroll.document());
    views_.push_back(&scroll);
    scrollViews_.push_back(&scroll);
    sim::ScrollView& list = host.content().addScrollView({.frame = {50, 260, 300, 200}});
    sim::TableView& table = list.addTableDocument(
        {.columns = {{.identifier = "name"}}, .viewBased = chance(2), .identifier = "list"});
    for (int row = 0; row < 40; ++row)
      table.addRow({"row"});
    views_.push_back(&table);
    tables_.push_back(&table);
    scrollViews_.push_back(&list);
  }

  std::shared_ptr<WVGuide> randomGuide()
  {
    std::vector<WVStep> steps;
    for (int count = 1 + below(6); count > 0; --count) {
      WVStep step = stepFor(anyOf(names_));
      step.position = below(6);
      step.highlightStyle = below(4);
      if (step.target.accessibilityIdentifier == "list") step.target.tableRow = below(50);
      if (chance(3)) step.target.windowTitle = "Second";
      steps.push_back(step);
    }
    return guideOf(steps);
  }

  void act()
  {
    switch (below(12)) {
    case 0:
      anyOf(views_)->destroy();
      break;
    case 1:
      anyOf(views_)->setHidden(chance(2));
      break;
    case 2:
      if (chance(2)) anyOf(windows_)->close();
      break;
    case 3:
      anyOf(windows_)->setFrame({0, 0, 300.0 + below(500), 200});
      break;
    case 4:
      anyOf(tables_)->clearRows();
      break;
    case 5:
      if (player && chance(3)) player->stop();
      break;
    case 6:
      if (player) player->advanceToNextStep();
      break;
    case 7:
      if (player) player->playGuide(randomGuide());
      break;
    case 8:
      desktop.click({1.0 * below(1440), 1.0 * below(900)});
      break;
    default:
      if (player) desktop.click(player->currentTargetScreenRect().center());
    }
  }

  /// Not in every notice: what a host does in return for what the player does would never end.
  void misbehave()
  {
    if (chance(4)) act();
    if (chance(60)) player.reset();
  }

  template <class T>
  T& anyOf(std::vector<T>& things)
  {
    return things[static_cast<std::size_t>(below(static_cast<int>(things.size())))];
  }

  std::mt19937 random_;
  std::vector<std::shared_ptr<sim::Window>> windows_;
  std::vector<std::string> names_ = {"a", "b", "far", "list", "gone"};
  std::vector<sim::View*> views_;
  std::vector<sim::TableView*> tables_;
  std::vector<const sim::ScrollView*> scrollViews_;
};

TEST(PlayerInAHostileProgram, SurvivesTwoThousandRoundsAndEndsIdle)
{
  Seen seen;
  for (unsigned round = 0; round < 2000; ++round) {
    SCOPED_TRACE(round);
    HostileRound hostile;
    hostile.play(round, seen);
    if (::testing::Test::HasFailure()) return;
  }
  // The rounds got to the places where it is dangerous.
  EXPECT_GT(seen.highlights, 2000);
  EXPECT_GT(seen.scrolls, 1000);
  EXPECT_GT(seen.prompts, 500);
  EXPECT_GT(seen.completions, 200);
  EXPECT_GT(seen.destructions, 50);
}

} // namespace
} // namespace wayvane
