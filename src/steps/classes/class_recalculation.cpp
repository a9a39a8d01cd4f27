#include "steps/classes/class_recalculation.h"

#include <string>
#include <vector>

#include "steps/classes/allotments.h"
#include "steps/classes/class_chain.h"
#include "steps/classes/class_extras.h"
#include "steps/classes/class_saves.h"
#include "steps/classes/class_totals.h"
#include "steps/classes/honor.h"
#include "steps/classes/movement.h"
#include "steps/race/race_choice.h"

namespace veld {

bool RecomputeFromClasses(Game& game, const LevelWay& way, GainsTakenOut gains) {
  CharacterSheet& sheet = game.sheet;
  const std::string classText(sheet.ClassName.View());
  if (!NamesKnownClass(classText)) return false;
  const ClassNumbers before = sheet.ClassLevels;

  BindRaceRow(game);
  HoldLevels(sheet);
  SumLevelGains(sheet);
  TakeOutLevelGains(game, gains);
  ClearSavesAndSlots(sheet);
  const std::vector<NamedClass> classes = AdvanceNamedClasses(game, classText, way);

  SumHitPoints(game);
  SumLevelGains(sheet);
  SetClassTexts(sheet);
  JoinMages(sheet);
  JoinSavesAndSlots(game);
  const ClassTotals totals = SumClasses(game);
  SetHitPoints(game, totals);
  ComputeMovement(game);
  AddLevelGains(game, totals);

  // What reads the abilities comes when the gains are in them.
  for (const NamedClass& held : classes) SetClassExtras(game, held);
  if (totals.Classes > 0) ComputeHonorDie(game, static_cast<int>(totals.Levels / totals.Classes));
  SetThiefBaseScores(game);
  SumThiefAbilities(game);
  return sheet.ClassLevels != before;
}

}  // namespace veld
