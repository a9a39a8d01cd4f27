#include "referee/critical_hits.h"

#include <gtest/gtest.h>

#include "rules/critical_hit_table.h"
#include "support/game_test.h"

namespace veld {
namespace {

TEST(CriticalHitsTest, TheSeverityDieIsOpenBothWaysAndEnds) {
  testing::DicePlayer player;
  const auto game = testing::QuietGame(player);
  const std::pair<std::deque<int>, int> chains[] = {
      {{5}, 5}, {{8, 1, 5}, 4}, {{1, 8, 8, 2}, 2}, {{8, 8, 3}, 17}, {{1, 1, 1, 7}, -5}};
  for (const auto& [dice, total] : chains) {
    player.dice = dice;
    EXPECT_EQ(RollOpenEndedD8(*game), total);
    EXPECT_TRUE(player.dice.empty());
  }
  player.thrower = [](int, int) { return 8; };
  EXPECT_EQ(RollOpenEndedD8(*game), 701);
}

TEST(CriticalHitsTest, ARefereeRollsLooksUpAndComesBack) {
  testing::ScriptedPlatform platform;
  const auto game = testing::QuietGame(platform);
  game->RuleSwitches[kBeastGrid] = 0;
  const auto open = [&](std::function<void(Form&)> act) {
    platform.ExpectForm("CRITICALHITS", [&](Form& form) {
      act(form);
      form.PressCloseBox();
    });
    RunCriticalHits(*game);
  };
  open([&](Form& form) {
    EXPECT_EQ(form.Items(3115).size(), 3U);
    form.Type(3001, "1000");
    form.Press(3046);
    EXPECT_NE(form.Number(3002), 0);
    EXPECT_NEAR(static_cast<double>(form.Number(3002)), 1000, 50);
    form.Press(3043);
    EXPECT_TRUE(form.Number(3000) >= 1 && form.Number(3000) <= 10'000);
    form.Choose(3115, 1);
    form.Type(3000, "1500 or so");
    form.Type(3002, "25");
    form.Press(3047);
    EXPECT_EQ(form.Text(100), "Thigh: x3, ls, d8, u, m10");
    EXPECT_EQ(form.Text(3002), "25");
    EXPECT_EQ(form.Text(90),
              "xX = X times the damage\nls = limb severed; pb unless finger or toe\ndX = reduce Deterity by X\n"
              "u = unconscious\nm10 = 75% for 1 week, 50% for 1d6 months");
    form.Type(3000, "-1");
    form.Press(3047);
    EXPECT_EQ(form.Text(100), "Error, incomplete data in program");
    form.Type(3002, "-2");
    form.Press(3047);
    EXPECT_EQ(form.Text(100), "Severity level below 1; Critical Hit negated");
    EXPECT_EQ(form.Text(90), "");
    for (int i = 0; i < 8; ++i) form.Press(3047);
    EXPECT_EQ(form.Items(3021).size(), 10U);
    EXPECT_TRUE(form.Items(3021).back().starts_with("Error")) << "the newest first, ten of them";
  });
  game->RuleSwitches[kBeastGrid] = 1;
  open([](Form& form) {
    EXPECT_EQ(form.Items(3115).size(), 4U);
    EXPECT_EQ(form.Text(3000) + " " + form.Text(3001) + " " + form.Text(3002), "-1 1000 -2");
    EXPECT_EQ(form.Text(100), "");
    EXPECT_EQ(form.Items(3021).size(), 10U);
  });
}

}  // namespace
}  // namespace veld
