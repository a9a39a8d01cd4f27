#pragma once

#include <algorithm>
#include <map>

#include "rules/class_table.h"
#include "support/game_test.h"

namespace veld::testing {

/// A human of one class of the first level, whom neither birth nor abilities help much or hinder.
inline void MakeYouth(Game& game, int classRow) {
  CharacterSheet& sheet = game.sheet;
  sheet.RaceName = "Human";
  sheet.ClassName = ClassTable()[static_cast<std::size_t>(classRow)].Name;
  sheet.ClassLevels[static_cast<std::size_t>(classRow)] = 1;
  sheet.SocialClassIndex = 7;
  for (int ability = 0; ability < kAbilityCount; ++ability) AbilityAt(sheet, ability) = {15, 50};
  for (std::size_t save = 0; save < kSaves; ++save) SaveAt(sheet, save)[kBestSave] = 12;
  game.run.CurrentStep = 10;
}

/// Plays the page of a youth: it can't be left before its chain has run, and a second Begin does nothing.
template <typename Player>
class ChainTest : public GameTest<Player> {
 protected:
  /// Plays the whole chain with the dice given; `other` plays the other dialogs.
  void PlayChain(void (*run)(Game&), std::deque<int> dice, std::function<void(Form&)> other) {
    this->player.dice = std::move(dice);
    this->player.dialog = [&](Form& form) {
      if (!form.Name().ends_with("ABackground")) return other(form);
      form.PressCloseBox();
      EXPECT_FALSE(form.IsClosed()) << "left before the chain has run";
      form.Press(1);
      form.Press(1);
      for (const Control& control : form.Controls()) {
        lines[control.Template.Id] = control.Visible ? control.Text : "";
      }
      brought = form.Items(52);
      form.PressCloseBox();
      EXPECT_TRUE(form.IsClosed());
    };
    run(*this->game);
    EXPECT_TRUE(this->player.dice.empty()) << this->player.dice.size() << " dice left";
  }
  bool Brought(std::string_view line) const { return std::ranges::count(brought, line) > 0; }

  std::map<int, std::string> lines;  ///< what the page shows in the end, by the ids of its controls
  std::vector<std::string> brought;
};

}  // namespace veld::testing
