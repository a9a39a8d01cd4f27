#include "steps/classes/experience_ladder.h"

#include "rules/class_table.h"

namespace veld {

int EarnedLevel(int classRow, float experience) {
  if (classRow < 1 || classRow > kLastSingleClass) return 0;
  const auto& ladder = ClassAt(classRow).ExperienceForLevel;
  const double earned = experience > 0 ? experience : 0;
  int level = 0;
  while (level < kHighestLadderLevel && earned >= ladder[static_cast<std::size_t>(level + 1)]) ++level;
  return level;
}

}  // namespace veld
