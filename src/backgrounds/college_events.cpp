#include "backgrounds/college_events.h"

#include <algorithm>
#include <cstddef>
#include <string>

#include "backgrounds/gambling.h"
#include "backgrounds/youth_quirks.h"
#include "dice/building_points.h"
#include "dice/dice.h"
#include "platform/ask_name.h"
#include "platform/form.h"
#include "platform/platform.h"
#include "rules/school_tables.h"
#include "rules/skill_table.h"
#include "steps/skills/grants.h"
#include "steps/skills/skill_target.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr std::string_view kTitle = "Table 5L: Notable Collegiate Events During Apprenticeship";
constexpr std::string_view kCustoms = "Customs and Etiquette";
constexpr int kInstrumentBase = 45;  ///< and 1d20: a band geek's mastery

void ChangeSchoolHonor(Game& game, int change) {
  game.run.SchoolHonorModifier = AddSaturated(game.run.SchoolHonorModifier, change);
}

bool RollsOverIntelligence(Game& game) {
  return RollDice(game, 20, 1) > game.sheet.Intelligence.Whole;
}

// --- New members of families of skills -----------------------------------------------------------------------------

int RollHonorGain(Game& game) {
  const int die = game.sheet.HonorDie;
  return die == 1 ? 1 : RollPenetratingDicePlus(game, die, 1, game.run.HonorDieBonus);
}

/// Gives a member of a family of skills at a mastery, or that mastery to the one of this name. False if there is no
/// name, or no room.
bool GiveMember(Game& game, std::string_view familyName, std::string_view item, int mastery) {
  const int family = FindSkillFamilyRow(familyName);
  const std::string_view name = TrimRight(item);
  if (family < 0 || name.empty()) return false;
  const int held = FindMemberNamed(game.sheet, family, std::string(familyName) + ": " + std::string(name));
  const int slot = held >= 0 ? held : FreeMemberSlot(game.sheet, family);
  if (slot < 0) return false;
  if (held < 0) NameMember(game.sheet, family, slot, name);
  int& score = game.sheet.SkillDetailCounts[static_cast<std::size_t>(family)][static_cast<std::size_t>(slot)];
  score = std::max(score, mastery);
  return true;
}

int RollCustoms(Game& game) {
  const int mastery = game.sheet.Wisdom.Whole + RollPenetratingDice(game, 8, 1);
  return mastery + RollHonorGain(game);
}

std::string AskInstrument(Game& game, std::string_view instrument) {
  return AskName(game.platform, Format("Enter the name of your free %s", instrument));
}

/// The member that a row of a subtable brings: a custom, or an instrument of the student corps.
void GiveNamedMember(Game& game, std::string_view family) {
  if (family == kCustoms) {
    const std::string name = AskName(game.platform, Format("Choose the name of the Item for your %s Skill.", family));
    if (!name.empty()) GiveMember(game, family, name, RollCustoms(game));
    return;
  }
  const std::string name = AskInstrument(game, family);
  const int start = (game.sheet.Wisdom.Whole + game.sheet.Dexterity.Whole) / 2;
  if (!name.empty()) GiveMember(game, family, name, start + RollHonorGain(game));
}

// --- Subtables -----------------------------------------------------------------------------------------------------

bool TrySubTable(Game& game, const CollegeSubTable& table) {
  const int kept = TruncateToInt(game.run.BuildingPoints);
  const CollegeSubRow* const row = FindCollegeSubRow(table, RollDice(game, table.Die, 1));
  if (row == nullptr || (row->Bar > 0 && HoldsQuirk(game, row->Bar))) return false;
  if (!AskKeep(game, Format(table.Question, row->Name))) return false;
  GiveGrants(game, row->Grants);
  if (!row->Family.empty()) GiveNamedMember(game, row->Family);
  game.run.BuildingPoints = static_cast<float>(kept);
  return true;
}

void RollSubTable(ChainPage& page, const CollegeSubTable& table, int rolls = 1) {
  for (; rolls > 0; --rolls) {
    RollChainTable(page, table.Title, [&] { return TrySubTable(page.game, table); });
  }
}

// --- Events --------------------------------------------------------------------------------------------------------

constexpr int kFirstInstrument = 4001;
constexpr ControlTemplate kBandGeekControls[] = {
    TitleAt(0, 0, "Choose your kind of instrument"),
    ButtonAt(1, 0, kFirstInstrument, "&Brass Instrument"),
    ButtonAt(2, 0, kFirstInstrument + 1, "&Percussion Instrument"),
    ButtonAt(3, 0, kFirstInstrument + 2, "&Wind Instrument"),
};
constexpr std::string_view kBandGeekHelp =
    "His school years put him into a band, and he learned an instrument there at no cost. Press its kind; you are "
    "then asked which it is. It is a skill like any other afterwards, and can be bought again in Step 12.";
constexpr FormTemplate kBandGeek{"BandGeek", "Pick and instrument, Band Geek!", kBandGeekControls, kBandGeekHelp};

void RunBandGeek(Game& game) {
  Form form(kBandGeek);
  int picked = -1;
  form.onCommand = [&](int id) {
    picked = id - kFirstInstrument;
    form.Close();
  };
  game.platform.RunForm(form);
  if (picked < 0 || picked >= static_cast<int>(kBandInstruments.size())) return;
  const std::string_view instrument = kBandInstruments[static_cast<std::size_t>(picked)];
  const std::string name = AskInstrument(game, instrument);
  if (!name.empty()) GiveMember(game, instrument, name, kInstrumentBase + RollDice(game, 20, 1));
}

void CheatAtExams(Game& game) {
  if (RollsOverIntelligence(game)) ChangeSchoolHonor(game, -RollDice(game, 4, 2));
  if (RollsOverIntelligence(game)) SetQuirk(game, YouthQuirk::NaggingConscience);
}

/// Each round is over with its roll, whatever came of it.
void JoinFraternity(ChainPage& page) {
  for (int rounds = RollDice(page.game, 3, 1); rounds > 0; --rounds) {
    RunChainPart(page, kFraternalTable.Title, [&] { TrySubTable(page.game, kFraternalTable); });
  }
}

void PlayPrank(Game& game) {
  const bool isSorry = RollDice(game, 20, 1) >= game.sheet.SaveApology[kBestSave];
  if (!isSorry) ChangeSchoolHonor(game, -RollDice(game, 3, 1));
}

/// The roommate teaches the customs of the culture, and its language if there is room for one.
void LiveWithForeigner(Game& game) {
  const std::string culture =
      AskName(game.platform, "Enter the name of the Foreign Culture from which your roommate hails");
  if (TrimRight(culture).empty()) return;
  GiveMember(game, kCustoms, culture, RollCustoms(game));
  CharacterSheet& sheet = game.sheet;
  if (sheet.LanguagesKnown >= sheet.LanguageSlots) return;
  const std::string_view language = TrimRight(SkillTable2()[SkillFamily::Language].Name);
  const int mastery = sheet.Intelligence.Whole + RollPenetratingDice(game, 10, 1);
  if (GiveMember(game, language, culture, mastery + RollHonorGain(game))) ++sheet.LanguagesKnown;
}

void PlayOut(ChainPage& page, CollegeEventKind kind) {
  switch (kind) {
    case CollegeEventKind::Plain:
      return;
    case CollegeEventKind::Internship:
      return ChangeSchoolHonor(page.game, RollHonorDice(page.game, 4, 1));
    case CollegeEventKind::BandGeek:
      return RunBandGeek(page.game);
    case CollegeEventKind::Bohemian:
      return RollSubTable(page, kBohemianTable, 2);
    case CollegeEventKind::CheatingScandal:
      return CheatAtExams(page.game);
    case CollegeEventKind::Gambler:
      return RunGambler(page, GamblerPrompts::None);
    case CollegeEventKind::FraternalSociety:
      return JoinFraternity(page);
    case CollegeEventKind::PartTimeJob:
      return RollSubTable(page, kPartTimeJobTable);
    case CollegeEventKind::Prankster:
      return PlayPrank(page.game);
    case CollegeEventKind::ForeignRoommate:
      return LiveWithForeigner(page.game);
    case CollegeEventKind::LandGrant:
      return RollSubTable(page, kLandGrantTable);
  }
}

}  // namespace

void RollCollegeEvent(ChainPage& page) {
  Game& game = page.game;
  RollChainTable(page, kTitle, [&] {
    const int kept = TruncateToInt(game.run.BuildingPoints);
    const int at = CollegeEventOf(RollDice(game, 100, 1));
    if (at < 0) return false;
    int& isSeen = game.run.CollegeEventSeen[static_cast<std::size_t>(at)];
    const CollegeEvent& event = CollegeEvents()[static_cast<std::size_t>(at)];
    if (isSeen != 0 || !AskKeep(game, Format("%s: %s?", kTitle, event.Name))) return false;
    isSeen = 1;
    RunChainPart(page, event.Name, [&] {
      GiveGrants(game, event.Grants);
      PlayOut(page, event.Kind);
    });
    game.run.BuildingPoints = static_cast<float>(kept);
    return true;
  });
}

}  // namespace veld
