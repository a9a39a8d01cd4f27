#include "steps/classes/movement.h"

#include <cmath>

#include "rules/named_rows.h"
#include "rules/race_table.h"

namespace veld {

namespace {

/// The movement of the race after lost legs.
void SetBaseMovement(CharacterSheet& sheet, const RaceRecord& race) {
  const int left = sheet.SkillScores[SkillRow::PegLegLeft];
  const int right = sheet.SkillScores[SkillRow::PegLegRight];
  const bool noPegLeg = std::int64_t{left} + right == 0;
  int movement = race.BaseMovement;
  // The loss of one leg slows more than that of both: a slip of the book that is kept.
  if (sheet.QuirkCounts[QuirkRow::BothLegsLost] == 1 && noPegLeg) movement -= 3;
  if (sheet.QuirkCounts[QuirkRow::OneLegLost] == 1 && noPegLeg) movement = 4;
  if (sheet.QuirkCounts[QuirkRow::OneLegLost] == 1 && left > 0 && right > 0) movement -= 1;
  sheet.BaseMovement = movement;
  sheet.MovementRow2 = race.SecondMovement;
}

}  // namespace

void ComputeMovement(Game& game) {
  CharacterSheet& sheet = game.sheet;
  if (const int row = FindSearchedRaceRow(sheet.RaceName, sheet.Gender); row >= 0) {
    SetBaseMovement(sheet, RaceTable()[static_cast<std::size_t>(row)]);
  }
  sheet.MovementLight = static_cast<int>(std::lround(sheet.BaseMovement * 0.75));
  sheet.MovementModerate = sheet.BaseMovement / 2;
  sheet.MovementHeavy = sheet.BaseMovement / 4;
}

}  // namespace veld
