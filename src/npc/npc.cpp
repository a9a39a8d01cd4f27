#include "npc/npc.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <utility>

#include "dice/dice.h"
#include "editors/class_progress.h"
#include "npc/npc_calling.h"
#include "npc/npc_class_rows.h"
#include "npc/npc_player.h"
#include "rules/ability_effects.h"
#include "rules/class_table.h"
#include "rules/proficiency_table.h"
#include "rules/race_table.h"
#include "steps/classes/class_totals.h"
#include "steps/finish/naming.h"
#include "steps/skills/free_skills.h"
#include "steps/skills/skill_lists.h"
#include "store/sheet_accessors.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr int kMostLives = 60;     ///< runs that he begins before he gives up
constexpr int kFinished = 20;      ///< CurrentStep
constexpr int kFullMastery = 100;  ///< percent

std::size_t At(int number) {
  return static_cast<std::size_t>(number);
}

/// True of two rows that sell the same.
bool IsSameGood(const EquipmentRecord& a, const EquipmentRecord& b) {
  return std::memcmp(&a, &b, offsetof(EquipmentRecord, Quantity)) == 0;
}

/// The seed with the wishes mixed in, so that a fighter and a mage of one seed are not alike.
std::uint32_t SeedOf(const NpcWishes& wishes) {
  std::uint32_t seed = 2166136261U ^ wishes.seed;
  const auto mix = [&](std::string_view text) {
    for (const char letter : text) seed = (seed ^ static_cast<unsigned char>(SmallLetter(letter))) * 16777619U;
    seed = (seed ^ 0xFFU) * 16777619U;
  };
  for (const std::string_view text : {wishes.race, wishes.gender, wishes.className, wishes.alignment}) mix(text);
  return seed;
}

/// The strength with which he carries the lightest weapon of his class and a shirt without a burden.
int LeastStrength(const Game& game, const NpcWants& wants) {
  constexpr int kOrdinary = 18;
  float lightest = std::numeric_limits<float>::max();
  for (const EquipmentRecord& good : game.EquipmentTable) {
    if (good.Category != kWeaponCategory || good.Weight >= lightest) continue;
    if (std::ranges::find(wants.Weapons, good.Name.View()) != wants.Weapons.end()) lightest = good.Weight;
  }
  constexpr float kShirt = 1;
  int strength = 1;
  while (strength < kOrdinary && lightest < 100 &&
         static_cast<float>(StrengthEffectOf({strength, 1}).WeightAllowance) <= lightest + kShirt) {
    ++strength;
  }
  return strength;
}

bool IsFinished(const Game& game, const NpcCalling& calling, const NpcWishes& wishes) {
  if (game.run.CurrentStep != kFinished || game.run.CharacterDead == 1) return false;
  const bool hasClasses = std::ranges::all_of(calling.Classes, [&](int row) { return HasClass(game.sheet, row); });
  const std::string_view alignment = TrimRight(game.sheet.Alignment);
  return hasClasses && (wishes.alignment.empty() || EqualsIgnoringCase(alignment, TrimRight(wishes.alignment)));
}

bool IsArmed(const Game& game) {
  const auto isWeapon = [](const EquipmentRecord& good) { return good.Category == kWeaponCategory; };
  if (std::ranges::none_of(game.EquipmentTable, isWeapon)) return true;  // where none are sold
  return std::ranges::any_of(game.EquipmentTable,
                             [&](const EquipmentRecord& good) { return isWeapon(good) && good.Quantity > 0; });
}

/// What a training gave him to choose: skills that his class lives by, and points of mastery for one of them, another
/// after each level.
void LearnFromTraining(Game& game, const NpcWants& wants, int level) {
  GenerationRun& run = game.run;
  run.FreeSkillPicks = 0;
  run.VeteranFreeSkills = std::exchange(run.TrainingFreeSkills, 0);
  std::vector<std::string_view> known;
  for (const std::string_view name : wants.Skills) {
    const SkillTarget target = FindTarget(game.sheet, name);
    if (target.Kind == SkillKind::None) continue;
    const bool isKnown = Mastery(game.sheet, target) > 0;
    if (isKnown || (run.VeteranFreeSkills > 0 && TakeAsFree(game, name))) known.push_back(name);
  }
  run.VeteranFreeSkills = 0;
  run.PackageBonusPoints = 0;
  run.BonusSkillPoints = std::exchange(run.TrainingFreeMastery, 0);
  for (std::size_t i = 0; i < known.size() && run.BonusSkillPoints > 0; ++i) {
    const SkillTarget target = FindTarget(game.sheet, known[(At(level) + i) % known.size()]);
    const std::string line = OwnedSkillLine(game.sheet, target);
    if (line.empty()) continue;
    for (int left = run.BonusSkillPoints; left > 0 && Mastery(game.sheet, target) < kFullMastery; --left) {
      ApplyBonusPoints(game, line);
    }
  }
  run.BonusSkillPoints = 0;
}

/// The levels asked for, one after the other, each with its training.
void GainLevels(Game& game, const NpcCalling& calling, const NpcWants& wants) {
  for (std::size_t i = 0; i < calling.Classes.size(); ++i) {
    const int row = calling.Classes[i];
    for (int level = 2; level <= calling.Levels[i]; ++level) {
      const auto held = static_cast<std::int64_t>(game.sheet.ClassExperience[At(row)]);
      const std::int64_t needed = ExperienceFor(row, level);
      if (needed <= held) continue;
      AwardExperience(game, row, needed - held);
      LearnFromTraining(game, wants, level);
    }
  }
}

/// What the class needs and no dice gave.
std::string NoRollText(const NpcCalling& calling) {
  const ClassRecord& record = ClassAt(calling.ClassRow);
  std::string needs;
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    const auto least = static_cast<int>(record.AbilityRange[At(ability)].Minimum);
    if (least > 0) needs += Format("%s%s %i", needs.empty() ? "" : ", ", AbilityName(ability), least);
  }
  return Format("No roll of the abilities brings a %s to the class %s: it needs %s.",
                RaceTable()[At(calling.RaceRow)].Name, record.Name, needs);
}

}  // namespace

struct NpcMaker::Workshop {
  NpcPlayer player;
  std::unique_ptr<Game> game = MakeGame(player);

  /// Books and catalogues of the game that he is made for.
  void Furnish(const Game& like, const NpcWishes& wishes) {
    game->dice.LogMode = DiceLogMode::Off;
    game->RuleSwitches = wishes.books.value_or(like.RuleSwitches);
    game->RuleSwitches[kCoreRules] = 1;
    game->RuleSwitches[kRollYourOwnDice] = 0;
    if (!std::ranges::equal(game->EquipmentTable, like.EquipmentTable, IsSameGood)) {
      game->EquipmentTable = like.EquipmentTable;
      player.LearnGoods(*game);
    }
    game->CustomEquipmentTable = like.CustomEquipmentTable;
    game->CameWithCharacter = like.CameWithCharacter;
    if (std::memcmp(&game->SpellTable, &like.SpellTable, sizeof like.SpellTable) != 0)
      game->SpellTable = like.SpellTable;
  }

  /// One life after the other, until one comes to its end as it was wished. Returns why none did.
  std::string Live(const NpcWishes& wishes, const NpcCalling& calling, const NpcWants& wants, NpcChance& chance) {
    const NpcAbilityNeeds needs = NeedsOf(*game, calling, LeastStrength(*game, wants));
    std::uint32_t dice = chance.Seed();
    std::string refusal;
    for (int life = 0; life < kMostLives; ++life) {
      ResetCharacter(*game);
      game->dice.RandomState = dice;
      NpcAbilityPlan plan;
      if (!SeekRoll(*game, calling, needs, plan)) {
        return NoRollText(calling);
      }
      player.Begin(*game, wishes, calling, wants, chance);
      player.SetPlan(plan);
      RollAbilityScores(*game);
      player.PlayStepThree();
      if (IsFinished(*game, calling, wishes) && IsArmed(*game)) return {};
      if (!player.Refusal().empty()) refusal = player.Refusal();
      dice = game->dice.RandomState;
    }
    return refusal.empty() ? std::string("He did not live to adventure.") : refusal;
  }

  void HandOver(Game& taker) {
    const std::uint32_t dice = taker.dice.RandomState;
    ResetCharacter(taker);
    taker.dice.RandomState = dice;
    const FixedText<200> playerName = taker.sheet.PlayerName;
    taker.sheet = game->sheet;
    taker.sheet.PlayerName = playerName;
    taker.run = game->run;
    taker.isFinished = true;
    for (std::size_t row = 0; row < kEquipmentRows; ++row) {
      taker.EquipmentTable[row].Quantity = game->EquipmentTable[row].Quantity;
      taker.CustomEquipmentTable[row].Quantity = game->CustomEquipmentTable[row].Quantity;
    }
  }
};

NpcMaker::NpcMaker() : workshop_(std::make_unique<Workshop>()) {}
NpcMaker::~NpcMaker() = default;

NpcResult NpcMaker::Make(Game& game, const NpcWishes& wishes) {
  Workshop& shop = *workshop_;
  shop.Furnish(game, wishes);
  if (EqualsIgnoringCase(TrimRight(wishes.name), kUnnamedCharacter)) return {false, "Nobody can be called that."};
  NpcChance chance(SeedOf(wishes));
  NpcCalling calling;
  if (std::string refusal = ChooseCalling(*shop.game, wishes, chance, calling); !refusal.empty())
    return {false, refusal};
  const NpcWants wants = NpcWantsOf(ClassAt(calling.ClassRow).Name);
  if (std::string refusal = shop.Live(wishes, calling, wants, chance); !refusal.empty()) return {false, refusal};
  const float cashed = shop.player.UnspentBP();
  GainLevels(*shop.game, calling, wants);
  shop.HandOver(game);
  return {true, {}, cashed};
}

NpcResult MakeNpc(Game& game, const NpcWishes& wishes) {
  return NpcMaker().Make(game, wishes);
}

std::string NpcLine(const Game& game) {
  const CharacterSheet& sheet = game.sheet;
  const ClassTexts classes = ClassTextsOf(sheet);
  std::string_view weapon = "unarmed";
  int best = -1;
  const auto consider = [&](int row) {
    const std::string_view name = TrimRight(ProficiencyTable()[At(row)].Name);
    const int skill = std::max(sheet.ProficiencyLevels[At(row)], 0);
    const auto isOwned = [&](const EquipmentRecord& good) {
      return good.Category == kWeaponCategory && good.Quantity > 0 && good.Name == name;
    };
    if (name.empty() || skill <= best) return;
    if (std::ranges::none_of(game.EquipmentTable, isOwned) &&
        std::ranges::none_of(game.CustomEquipmentTable, isOwned)) {
      return;
    }
    best = skill;
    weapon = name;
  };
  // Of several that he knows as well the one that his class likes best.
  for (const std::string_view name : NpcWantsOf(classes.Names).Weapons) consider(FindProficiencyRow(name));
  for (int row = 0; row < kProficiencyTableRows; ++row) consider(row);
  return Format("%s, %s, %s %s, %i HP, Honor %i, %s", sheet.CharacterName, sheet.RaceName, classes.Names,
                classes.Levels, sheet.HitPoints, sheet.Honor, weapon);
}

std::vector<std::string> NpcRaces(const RuleSwitchArray& books) {
  std::vector<std::string> names;
  for (int row = 0; row < kRacesFilled; row += 2) {  // the male row of each
    const RaceRecord& race = RaceTable()[At(row)];
    if (books[At(race.RuleSwitch)] == 1) names.emplace_back(race.Name);
  }
  return names;
}

std::vector<std::string> NpcClasses(const RuleSwitchArray& books, std::string_view race, std::string_view gender) {
  const int row = race.empty() ? -1 : FindRaceRow(race, gender.empty() ? "Male" : gender);
  std::vector<std::string> names;
  for (int classRow = 0; classRow < kClassRows; ++classRow) {
    const ClassRecord& record = ClassAt(classRow);
    if (record.Name.empty() || books[At(record.RuleSwitch)] != 1) continue;
    if (row < 0 || IsNpcClassOpen(row, classRow)) names.emplace_back(record.Name);
  }
  return names;
}

}  // namespace veld
