#pragma once

#include <string_view>

#include "store/game.h"

namespace veld {

/// What choosing a class goes back to, so that a change of mind adds no gift twice.
struct ClassChoiceBase {
  int BP = 0;
  int Wisdom = 0;  ///< whole
};

/// What a chosen class brings when it is accepted. Groups are -1 while none is chosen.
struct ClassNotes {
  int BackgroundModifier = 0;
  int IsThief = -1;
  int IsCleric = -1;
  int IsMage = -1;
  int IsFighter = -1;

  bool IsChosen() const { return IsThief >= 0; }
};

/// Takes the class of a name (case aside): its gift of BP on top of the base.
ClassNotes ChooseClass(Game& game, const ClassChoiceBase& base, std::string_view name);

/// Makes the choice final: the groups, the modifier of the inheritance roll, the levels, CurrentStep 10.
void AcceptClass(Game& game, const ClassNotes& notes);

/// Step 9: choose a class. OK leaves CurrentStep at 10, Abort at 0.
void RunStepNine(Game& game);

}  // namespace veld
