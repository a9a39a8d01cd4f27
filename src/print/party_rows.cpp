#include "print/party_rows.h"

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <span>

#include "rules/honor_tables.h"
#include "rules/named_rows.h"
#include "rules/quirk_table.h"
#include "rules/race_table.h"
#include "rules/talent_table.h"
#include "sheets/sheet_facts.h"
#include "steps/classes/class_totals.h"
#include "store/character_file.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

std::string Trimmed(std::string_view text) {
  return OneLine(TrimRight(text));
}

void AddToList(std::string& list, std::string_view item) {
  if (!list.empty()) list += "; ";
  list += item;
}

constexpr std::string_view kNoAlignment = "Please Pick";  // as a record is made

// Of the eyes, ears and nose: the race's own sight, then talents, then what is wanting.
constexpr std::size_t kKeenTalents[] = {1, 2, 43, 60, 77, 114, 140};
constexpr int kImpairments[] = {QuirkRow::HearingImpaired,
                                QuirkRow::LossOfEye,
                                QuirkRow::BlindInOneEye,
                                QuirkRow::Deaf,
                                QuirkRow::NoDepthPerception,
                                5,   // blind to colours
                                27,  // deaf to tones
                                28,
                                30,   // sees badly what is near, what is far
                                39};  // blind

std::string SensesOf(const CharacterSheet& sheet) {
  std::string senses;
  if (const RaceRecord* race = FindRace(sheet.RaceName)) {
    for (const std::string_view note : race->Notes) {
      if (Contains(note, "nfravision")) AddToList(senses, note.substr(0, note.find_last_not_of(". ") + 1));
    }
  }
  for (const std::size_t talent : kKeenTalents) {
    if (sheet.TalentCounts[talent] > 0) AddToList(senses, Trimmed(TalentTable()[talent].Name));
  }
  for (const int quirk : kImpairments) {
    if (sheet.QuirkCounts[static_cast<std::size_t>(quirk)] > 0) AddToList(senses, Trimmed(ShownQuirkName(quirk)));
  }
  return senses.empty() ? "nothing out of the common" : senses;
}

/// The languages are skills of the families that say so in their names.
std::string LanguagesOf(const CharacterSheet& sheet) {
  std::string languages;
  for (const HeldAbility& skill : HeldSkills(sheet)) {
    if (!skill.Name.starts_with("Language, ")) continue;
    const std::size_t colon = skill.Name.find(": ");
    const std::string name = colon == std::string::npos ? skill.Name.substr(10) : skill.Name.substr(colon + 2);
    AddToList(languages, Format("%s %i%%", name, skill.Amount));
  }
  return languages;
}

std::vector<std::string> WeaponsOf(const CharacterSheet& sheet) {
  constexpr std::array<std::pair<std::string_view, std::size_t>, 3> kSizes{{{"S", 1}, {"M", 2}, {"L", 3}}};
  std::vector<std::string> weapons;
  for (const HeldWeapon& held : HeldWeapons(sheet)) {
    if (held.Weapon->Kind > ProficiencyKind::Missile) continue;  // a style of fighting
    std::string told = Trimmed(held.Weapon->Name);
    const auto add = [&](const char* pattern, std::string_view value) {
      if (!TrimRight(value).empty()) told += Format(pattern, TrimRight(value));
    };
    add(", hit %s", HitAdjustment(held));
    add(", damage %s", DamageAdjustment(held));
    for (const auto& [size, column] : kSizes) {
      if (const auto damage = TrimRight(held.Weapon->Damage[column]); !damage.empty()) {
        told += Format(", %s %s", size, damage);
      }
    }
    const char* const speed = held.Weapon->Kind == ProficiencyKind::Missile ? ", rate %i" : ", speed %i";
    weapons.push_back(told + Format(speed, held.Weapon->HitModifier));
  }
  return weapons;
}

}  // namespace

PartyRow PartyRowOf(const CharacterSheet& sheet) {
  const ClassTexts classes = ClassTextsOf(sheet);
  PartyRow row{.Name = Trimmed(sheet.CharacterName),
               .Calling = Format("%s %s %s", Trimmed(sheet.RaceName), Trimmed(classes.Names), classes.Levels),
               .Alignment = sheet.Alignment == kNoAlignment ? std::string() : Trimmed(sheet.Alignment),
               .HitPoints = Format("%i", HitPointsOf(sheet)),
               .Honor = Format("%i", sheet.Honor),
               .HonorCategory = HonorCategoryText(sheet.Honor, AverageLevel(sheet)),
               .Movement = Format("%i/%i/%i/%i/1", sheet.BaseMovement, sheet.MovementLight, sheet.MovementModerate,
                                  sheet.MovementHeavy),
               .Senses = SensesOf(sheet),
               .Languages = LanguagesOf(sheet),
               .Weapons = WeaponsOf(sheet)};
  const auto saves = BestSaves(sheet);
  for (std::size_t save = 0; save < saves.size(); ++save) {
    if (saves[save] < kNoSave) row.Saves[save] = Format("%i", saves[save]);
  }
  return row;
}

PartyRow PartyRowOf(const PartyMember& member) {
  return {.Name = Trimmed(member.Name),
          .Alignment = Trimmed(member.Alignment),
          .Honor = Format("%i", member.Honor),
          .TemporalHonor = Format("%i", member.TemporalHonor)};
}

std::optional<std::vector<PartyRow>> ReadPartyRows(const std::string& path) {
  std::string bytes;
  std::vector<PartyRow> rows;
  if (EndsIgnoringCase(path, ".vlp")) {
    Party party;
    if (ReadWholeFile(path, bytes, kPartyFileBytes) != FileRead::Done || !DecodeParty(bytes, party)) return {};
    for (const PartyMember& member : std::span(party.Rows).subspan(1, static_cast<std::size_t>(party.Count))) {
      rows.push_back(PartyRowOf(member));
    }
    return rows;
  }
  const auto draft = std::make_unique<CharacterDraft>();
  if (ReadWholeFile(path, bytes, kLargestCharacterBytes) != FileRead::Done ||
      DecodeCharacter(bytes, *draft) != LoadResult::Loaded) {
    return {};
  }
  rows.push_back(PartyRowOf(draft->sheet));
  return rows;
}

void AddPartyRow(std::vector<PartyRow>& rows, const PartyRow& row) {
  const auto known = std::ranges::find(rows, row.Name, &PartyRow::Name);
  if (known == rows.end()) return rows.push_back(row);
  const bool isCharacter = !row.HitPoints.empty();
  if (isCharacter) {
    const std::string temporal = known->TemporalHonor;
    *known = row;
    known->TemporalHonor = temporal;
    return;
  }
  if (known->Honor != row.Honor) known->HonorCategory.clear();
  known->Honor = row.Honor;
  known->TemporalHonor = row.TemporalHonor;
}

}  // namespace veld
