#pragma once

#include <array>
#include <string>
#include <vector>

#include "npc/npc.h"
#include "rules/ability.h"

namespace veld {

// What a character that plays itself sets out to be, and what its dice must show for it.

/// A race and a class that go together, and the levels that its classes can come to.
struct NpcCalling {
  int RaceRow = -1;
  int ClassRow = -1;
  std::string TakesAfter = {};    ///< the race that a half-blood must take after for the class; empty: nobody
  std::vector<int> Classes = {};  ///< the rows of the single classes, as the levels are kept
  std::vector<int> Levels = {};   ///< what each of them rises to
};

/// A source of chance for what the dice do not decide.
class NpcChance {
 public:
  explicit NpcChance(std::uint32_t seed) : state_(seed * 2654435761U + 40503U) {}
  /// A seed for the dice.
  std::uint32_t Seed() {
    return static_cast<std::uint32_t>(Pick(1U << 16U)) << 16U | static_cast<std::uint32_t>(Pick(1U << 16U));
  }
  /// 0 to below - 1; 0 for none.
  std::size_t Pick(std::size_t below);

 private:
  std::uint32_t state_;
};

/// What the wishes come to, with chance in the place of those that are left open. A refusal leaves the calling as it is
/// and tells which wish can't be met. `scratch` is a game with the books in use, whose character is lost.
std::string ChooseCalling(Game& scratch, const NpcWishes& wishes, NpcChance& chance, NpcCalling& calling);

/// The experience that lifts a class to a level. A ladder may dip: then a level asks for as much as those before it.
std::int64_t ExperienceFor(int classRow, int level);

/// True if a race, by itself or as a half-blood who takes after somebody, can have the class and rise in all of it.
bool IsNpcClassOpen(int raceRow, int classRow);

/// The alignments that a class (with its strokes) leaves, without the blanks at their ends. `scratch` as above.
std::vector<std::string> NpcAlignments(Game& scratch, std::string_view className);

/// What the abilities need: as hundredths of a point that the score must be above, and the highest whole score.
struct NpcAbilityNeeds {
  std::array<int, kAbilityCount> Above{};
  std::array<int, kAbilityCount> HighestWhole{};
  std::vector<int> Order;  ///< all abilities, the most needed first
  int SpareBP = 0;         ///< BP for birth and money, beside what the abilities take
};

NpcAbilityNeeds NeedsOf(const Game& game, const NpcCalling& calling, int leastStrength);

/// What to do with seven scores: how much of each to burn in Step 3, so that the race fits and the BP reach for what
/// Step 8 must raise.
struct NpcAbilityPlan {
  std::array<int, kAbilityCount> Burn{};
  int RaiseBP = 0;    ///< what Step 8 will take
  int ExtraBurn = 0;  ///< points burnt for their BP alone
};

/// False if these scores can't be made to do with at most `mostExtraBurn` points burnt for their BP.
bool PlanAbilities(const NpcCalling& calling, const NpcAbilityNeeds& needs,
                   const std::array<AbilityScore, kAbilityCount>& scores, int mostExtraBurn, NpcAbilityPlan& plan);

/// Rolls until the scores will do, as Roll again in Step 3 would: leaves the dice of the game just before the roll that
/// does. False if none of so many rolls did.
bool SeekRoll(Game& game, const NpcCalling& calling, const NpcAbilityNeeds& needs, NpcAbilityPlan& plan);

}  // namespace veld
