#include "editors/proficiency_source.h"

#include <algorithm>

#include "rules/proficiency_table.h"
#include "steps/skills/proficiency_purchase.h"
#include "store/sheet_accessors.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr int kAbilityBase = kProficiencyTableRows;  ///< the abilities taken for a weapon stand behind the weapons
constexpr int kMostSteps = 20;                       ///< of Mastery, or times that a row is taken, in the box
constexpr int kMostSingleWeapon = 4;
constexpr int kMasteryLevel = 5;
constexpr int kDearestForAbilities = 10;
constexpr int kEmptyPick = -1;

std::size_t At(int number) {
  return static_cast<std::size_t>(number);
}

const ProficiencyRecord& WeaponAt(int row) {
  return ProficiencyTable()[At(row)];
}
std::string WeaponName(int row) {
  return NameOrRow(WeaponAt(row).Name, row);
}
int LevelOf(const Game& game, int row) {
  return game.sheet.ProficiencyLevels[At(row)];
}
bool IsAbility(const HeldPlace& place) {
  return place.Row >= kAbilityBase;
}
const ProficiencyRecord& AbilityAt(const HeldPlace& place) {
  return ProficiencyTable2()[At(place.Row - kAbilityBase)];
}
/// What the character has, of an ability the weapon that it was taken for.
int& PickAt(Game& game, const HeldPlace& place) {
  return game.sheet.ProficiencyPicks[At(place.Row - kAbilityBase)][At(place.Item)];
}

bool IsCounted(int row) {
  return row == ProficiencyRow::SingleWeaponStyle || WeaponAt(row).Kind == ProficiencyKind::Repeatable;
}

std::string MarkText(int row, int level) {
  if (level == ProficiencyMark::Untaught) return "Withheld";
  if (level == ProficiencyMark::Limited) return "Limited";
  if (level < ProficiencyMark::Proficient) return Format("Mark %i", level);
  if (IsCounted(row)) return Format("x%i", level);
  if (level == ProficiencyMark::Proficient) return "Proficient";
  if (level == ProficiencyMark::Specialized) return "Specialized";
  return Format("Mastery, step %i", std::int64_t{level} - ProficiencyMark::Specialized);
}

/// The slots that a mark has taken, as purchases charge them.
std::int64_t SlotsOf(const Game& game, int row, int level) {
  const std::int64_t step = ProficiencySlotCost(game, row);
  if (level == ProficiencyMark::Limited) return step;
  if (level < ProficiencyMark::Proficient) return 0;
  if (IsCounted(row)) return level * step;
  std::int64_t slots = step;
  const int special = SpecializationPrice(game, row);
  if (level >= ProficiencyMark::Specialized && special < kUnspecializable) slots += special;
  return slots + std::max(level - ProficiencyMark::Specialized, 0);
}

void MoveSlotsUsed(Game& game, std::int64_t change) {
  int& used = game.sheet.ProficiencySlotsUsed;
  used = std::max(SaturateToInt(used + change), std::min(used, 0));
}

/// Weapons that abilities are taken for, those that the character is proficient in first.
std::vector<HeldChoice> WeaponChoices(const Game& game) {
  std::vector<HeldChoice> choices;
  for (int row = 0; row < kProficiencyTableRows; ++row) {
    const ProficiencyRecord& weapon = WeaponAt(row);
    if (weapon.Name.empty() || weapon.SpecializationCost >= kDearestForAbilities) continue;
    choices.push_back({row, WeaponName(row)});
  }
  std::stable_partition(choices.begin(), choices.end(), [&](const HeldChoice& choice) {
    return LevelOf(game, choice.Value) >= ProficiencyMark::Proficient;
  });
  return choices;
}

std::vector<HeldChoice> MarkChoices(int row) {
  std::vector<HeldChoice> choices;
  const int last = kMostSteps + (IsCounted(row) ? 0 : ProficiencyMark::Specialized);
  for (const int mark : {ProficiencyMark::Untaught, ProficiencyMark::Limited}) choices.push_back({mark, {}});
  for (int level = ProficiencyMark::Proficient; level <= last; ++level) choices.push_back({level, {}});
  for (HeldChoice& choice : choices) choice.Text = MarkText(row, choice.Value);
  return choices;
}

class Proficiencies : public HeldSource {
 public:
  std::string_view Name() const override { return "Proficiencies"; }

  std::string State(const Game& game) const override {
    return Format("Slots used: %i of %i", game.sheet.ProficiencySlotsUsed, game.sheet.ProficiencySlots);
  }

  std::vector<HeldLine> Catalogue(const Game&) const override {
    std::vector<HeldLine> lines;
    const auto append = [&](const auto& table, int base) {
      for (std::size_t row = 0; row < table.size(); ++row) {
        const std::string_view name = TrimRight(table[row].Name);
        if (!name.empty()) lines.push_back({{.Row = base + static_cast<int>(row)}, std::string(name)});
      }
    };
    append(ProficiencyTable(), 0);
    append(ProficiencyTable2(), kAbilityBase);
    return lines;
  }

  std::vector<HeldLine> Held(const Game& game) const override {
    std::vector<HeldLine> lines;
    for (int row = 0; row < kProficiencyTableRows; ++row) {
      const int level = LevelOf(game, row);
      if (level != 0) lines.push_back({{.Row = row}, Format("%s - %s", WeaponName(row), MarkText(row, level))});
    }
    for (int ability = 0; ability < kProficiencyTable2Rows; ++ability) {
      const auto& picks = game.sheet.ProficiencyPicks[At(ability)];
      const std::string name = NameOrRow(ProficiencyTable2()[At(ability)].Name, ability);
      for (std::size_t item = 0; item < picks.size(); ++item) {
        if (picks[item] < 0 || picks[item] >= kProficiencyTableRows) continue;
        lines.push_back(
            {{kAbilityBase + ability, static_cast<int>(item)}, Format("%s: %s", name, WeaponName(picks[item]))});
      }
    }
    return lines;
  }

  HeldField Field(const Game& game, const HeldPlace& place) const override {
    HeldField field{.Label = "&Level", .First = ProficiencyMark::Proficient};
    const bool isHeld = !IsAbility(place) || place.Item >= 0;
    if (IsAbility(place)) {
      field.Label = "&For";
      field.Choices = WeaponChoices(game);
      field.First = field.Choices.front().Value;
    } else {
      field.Choices = MarkChoices(place.Row);
    }
    const int value = isHeld ? Value(game, place) : 0;
    const bool isListed = std::ranges::find(field.Choices, value, &HeldChoice::Value) != field.Choices.end();
    if (isHeld && !isListed && (IsAbility(place) || value != 0)) {
      field.Choices.push_back({value, IsAbility(place) ? WeaponName(value) : MarkText(place.Row, value)});
    }
    return field;
  }

  int Value(const Game& game, const HeldPlace& place) const override {
    if (!IsAbility(place)) return LevelOf(game, place.Row);
    return game.sheet.ProficiencyPicks[At(place.Row - kAbilityBase)][At(place.Item)];
  }

  HeldNote Note(const Game& game, const HeldPlace& place) const override {
    HeldNote note;
    if (IsAbility(place)) {
      note.Tell("It is taken for a weapon and takes 1 slot.");
      note.ObjectToBook(game, AbilityAt(place).Book);
      if (!ClassMayLearn(game, {.Ability = place.Row - kAbilityBase})) note.Object("It is not open to the class.");
      if (place.Item >= 0 && LevelOf(game, Value(game, place)) < ProficiencyMark::Proficient) {
        note.Object("The character is not proficient in the weapon.");
      }
    } else {
      TellOfWeapon(game, place.Row, note);
    }
    if (game.sheet.ProficiencySlotsUsed > game.sheet.ProficiencySlots) {
      note.Object("More slots are used than the character has.");
    }
    return note;
  }

  HeldChange Add(Game& game, const HeldPlace& place, int value) const override {
    if (!IsAbility(place)) return Set(game, place, value);
    auto& picks = game.sheet.ProficiencyPicks[At(place.Row - kAbilityBase)];
    const auto slot = std::ranges::find(picks, value);
    const auto found = slot != picks.end() ? slot : std::ranges::find(picks, kEmptyPick);
    if (found == picks.end()) {
      return {.Refusal = Format("There is no room for another %s.", TrimRight(AbilityAt(place).Name))};
    }
    if (*found == kEmptyPick) MoveSlotsUsed(game, 1);
    *found = value;
    return {{place.Row, static_cast<int>(found - picks.begin())}};
  }

  HeldChange Set(Game& game, const HeldPlace& place, int value) const override {
    if (IsAbility(place)) {
      PickAt(game, place) = value;
    } else {
      int& level = game.sheet.ProficiencyLevels[At(place.Row)];
      MoveSlotsUsed(game, SlotsOf(game, place.Row, value) - SlotsOf(game, place.Row, level));
      level = value;
    }
    return {place};
  }

  HeldChange Remove(Game& game, const HeldPlace& place) const override {
    if (!IsAbility(place)) return Set(game, place, ProficiencyMark::None);
    PickAt(game, place) = kEmptyPick;
    MoveSlotsUsed(game, -1);
    return {place};
  }

 private:
  static void TellOfWeapon(const Game& game, int row, HeldNote& note) {
    const ProficiencyRecord& weapon = WeaponAt(row);
    const int level = LevelOf(game, row);
    const bool canSpecialize = weapon.SpecializationCost < kUnspecializable;
    const int slots = ProficiencySlotCost(game, row);
    note.Tell(Format("It takes %i slot%s", slots, slots > 1 ? "s" : ""));
    if (canSpecialize) note.Tell(Format("Specialization takes %i more", SpecializationPrice(game, row)));
    note.Tell("The slots used follow; BP stay.");
    note.ObjectToBook(game, weapon.Book);
    if (!ClassMayLearn(game, {.Row = row})) note.Object("It is not open to the class.");
    if (row == ProficiencyRow::SingleWeaponStyle) {
      if (level > kMostSingleWeapon) note.Object(Format("It has %i steps.", kMostSingleWeapon));
    } else if (level >= ProficiencyMark::Specialized && !IsCounted(row)) {
      if (!canSpecialize) note.Object("It can not be specialized.");
      if (level > ProficiencyMark::Specialized && game.sheet.ClassLevels[ClassRow::Fighter] < kMasteryLevel) {
        note.Object("Mastery needs the 5th level as a Fighter.");
      }
    }
  }
};

}  // namespace

const HeldSource& ProficiencySource() {
  static const Proficiencies source;
  return source;
}

}  // namespace veld
