#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <deque>

#include "support/scripted_platform.h"

namespace veld::testing {

/// A player who throws real dice: types the results of `dice` in order and fails the test when they run out, or asks
/// `thrower` for each. All other dialogs are opened and closed at once, messages and questions as in ScriptedPlatform.
class DicePlayer : public ScriptedPlatform {
 public:
  std::deque<int> dice;
  std::function<int(int sides, int count)> thrower;
  std::function<void(Form&)> dialog;  ///< plays the other dialogs

  void RunForm(Form& form) override {
    form.Open();
    if (form.Name() == "GetDice") {
      int count = 0;
      int sides = 0;
      ASSERT_EQ(std::sscanf(form.Text(10).c_str(), "VELD needs a roll of: %dd%d.", &count, &sides), 2) << form.Text(10);
      form.Type(3000, std::to_string(Throw(sides, count)));
      form.Press(1);
      return;
    }
    forms.emplace_back(form.Name());
    if (dialog && !form.IsClosed()) dialog(form);
    form.Close();
  }

 private:
  int Throw(int sides, int count) {
    if (thrower) return thrower(sides, count);
    if (dice.empty()) {
      ADD_FAILURE() << "no die left for " << count << "d" << sides;
      return count;
    }
    const int result = dice.front();
    dice.pop_front();
    EXPECT_TRUE(result >= count && result <= sides * count) << result << " on " << count << "d" << sides;
    return result >= count && result <= sides * count ? result : count;
  }
};

}  // namespace veld::testing
