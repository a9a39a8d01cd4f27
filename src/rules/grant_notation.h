#pragma once

#include <array>
#include <cstddef>
#include <iterator>
#include <string_view>

#include "rules/notation.h"

namespace veld {

// What a class, a training, a school or a package gives a character, in one notation. Grants stand between '|':
//
//   Endurance                   buys the skill for nothing; "Endurance x2" twice
//   Tracking=50  >=50  +=5      sets its mastery, raises it to at least 50, adds to it
//   Spell Tattooing+1d6         adds a penetrating roll; "Arcane Lore=INT" starts it at the whole Intelligence
//   new Riding, Land-based: Horse    a new member of a family
//   pick F19                    the player picks a member of family 19; "pick F19>=50" and "pick F19+=25" change it
//   then choose A; B; C              the player picks one of these skills; "choose item A; B" does so on the page of
//   items talent Blind Fighting       the count of a talent becomes 1; "=2" sets it, "+=1" adds to it talent Attack
//   Bonus: Dart   an entry of a talent that is taken for something take talent Endurance       buys a talent for
//   nothing, with the refusals of a purchase prof Spear                  buys a proficiency for nothing, likewise quirk
//   54                    the count of a row of the quirk catalogue becomes 1; "quirk 13+=1", "quirk 97=0" mishap 6D
//   rolls on a table of quirks and flaws; "mishap 6D x2" twice Honor-=2  Charisma%+=1d8    changes a field of
//   GrantField by a number or dice ("2d4", "1d6-1"); "Field=1" sets it [sword pick, shoddy]        what has a name of
//   its own, see kGrantWords
//
// A name that on purpose finds no row, as a misspelling that has never granted anything, has a '?' before it.

/// What a grant can change besides skills, talents, proficiencies and quirks.
enum class GrantField {
  BuildingPoints,
  Honor,  ///< what the youth adds to Honor when it is rolled
  SchoolHonor,
  Age,
  Weight,
  Gold,
  MoneyPercent,
  MoneyRoll,
  Strength,  ///< the whole scores in the order of the abilities, then their percentiles
  Dexterity,
  Constitution,
  Intelligence,
  Wisdom,
  Charisma,
  Comeliness,
  StrengthPercentile,
  DexterityPercentile,
  ConstitutionPercentile,
  IntelligencePercentile,
  WisdomPercentile,
  CharismaPercentile,
  ComelinessPercentile,
  AcademicBP,
  ArcaneBP,
  LanguageBP,
  SocialBP,
  PackageBP,
  FreeSkillPicks,
  VeteranFreeSkills,
  BonusSkillPoints,
  PackageBonusPoints,
  ProficiencySlotsUsed,
  FreeWeaponProficiencySlots,
  MartialStyleDiscount,
  AmazonDoubleRoll,
  BowBonusDiscount,
  CrossbowBonusDiscount,
  SelfDisciplinePrice,
  StartingCantrips,
  StartingSpells,
  FreeLevel1Spells,
  FreeLevel3Spells,
  FreeAnySpells,
  SpellLearn,
  SpellLearnFirstLevel,
  EducationResult,
  HonorLimit,
  NonProficiencyPenalty,
  Count,
};

struct GrantFieldName {
  std::string_view Name;
  GrantField Field;
};

// Names of skills must not be among these.
inline constexpr GrantFieldName kGrantFields[] = {
    {"BP", GrantField::BuildingPoints},
    {"Honor", GrantField::Honor},
    {"SchoolHonor", GrantField::SchoolHonor},
    {"Age", GrantField::Age},
    {"Weight", GrantField::Weight},
    {"Gold", GrantField::Gold},
    {"MoneyPercent", GrantField::MoneyPercent},
    {"MoneyRoll", GrantField::MoneyRoll},
    {"Strength", GrantField::Strength},
    {"Dexterity", GrantField::Dexterity},
    {"Constitution", GrantField::Constitution},
    {"Intelligence", GrantField::Intelligence},
    {"Wisdom", GrantField::Wisdom},
    {"Charisma", GrantField::Charisma},
    {"Comeliness", GrantField::Comeliness},
    {"Strength%", GrantField::StrengthPercentile},
    {"Dexterity%", GrantField::DexterityPercentile},
    {"Constitution%", GrantField::ConstitutionPercentile},
    {"Intelligence%", GrantField::IntelligencePercentile},
    {"Wisdom%", GrantField::WisdomPercentile},
    {"Charisma%", GrantField::CharismaPercentile},
    {"Comeliness%", GrantField::ComelinessPercentile},
    {"AcademicBP", GrantField::AcademicBP},
    {"ArcaneBP", GrantField::ArcaneBP},
    {"LanguageBP", GrantField::LanguageBP},
    {"SocialBP", GrantField::SocialBP},
    {"PackageBP", GrantField::PackageBP},
    {"FreeSkillPicks", GrantField::FreeSkillPicks},
    {"VeteranFreeSkills", GrantField::VeteranFreeSkills},
    {"BonusSkillPoints", GrantField::BonusSkillPoints},
    {"PackageBonusPoints", GrantField::PackageBonusPoints},
    {"ProficiencySlotsUsed", GrantField::ProficiencySlotsUsed},
    {"FreeWeaponProficiencySlots", GrantField::FreeWeaponProficiencySlots},
    {"MartialStyleDiscount", GrantField::MartialStyleDiscount},
    {"AmazonDoubleRoll", GrantField::AmazonDoubleRoll},
    {"BowBonusDiscount", GrantField::BowBonusDiscount},
    {"CrossbowBonusDiscount", GrantField::CrossbowBonusDiscount},
    {"SelfDisciplinePrice", GrantField::SelfDisciplinePrice},
    {"StartingCantrips", GrantField::StartingCantrips},
    {"StartingSpells", GrantField::StartingSpells},
    {"FreeLevel1Spells", GrantField::FreeLevel1Spells},
    {"FreeLevel3Spells", GrantField::FreeLevel3Spells},
    {"FreeAnySpells", GrantField::FreeAnySpells},
    {"SpellLearn", GrantField::SpellLearn},
    {"SpellLearnFirstLevel", GrantField::SpellLearnFirstLevel},
    {"EducationResult", GrantField::EducationResult},
    {"HonorLimit", GrantField::HonorLimit},
    {"NonProficiencyPenalty", GrantField::NonProficiencyPenalty},
};
static_assert(std::size(kGrantFields) == static_cast<std::size_t>(GrantField::Count));

/// What one grant does. "Buys" is a purchase that costs nothing, with the refusals and dice of any other.
enum class GrantKind {
  Buy,               ///< buys the skill Name, Times times
  Score,             ///< changes the mastery of the plain skill Name
  AddDie,            ///< adds a penetrating roll of Amount to the mastery of the plain skill Name
  FromIntellect,     ///< the plain skill Name starts at the whole Intelligence if it is not held
  Pick,              ///< the pick of a member of family Row, whose mastery is then changed
  Choose,            ///< the pick of one of the skills in Name, ';' between them
  ChooseItem,        ///< the same on the page of items
  NewMember,         ///< buys the new member Name ("family: name")
  Talent,            ///< changes the count of the plain talent Name, unless the race has it for nothing
  NewTalent,         ///< the new entry Name ("talent: what") of a talent of the second table, count 1
  TakeTalent,        ///< buys the talent Name
  Proficiency,       ///< buys the proficiency Name
  Quirk,             ///< changes the count of row Row of the quirk catalogue
  Mishap,            ///< rolls Times times on the table of quirks and flaws with the letter Name
  Field,             ///< changes the field Row, a GrantField
  WeaponPick,        ///< the pick of a proficiency, Row is one of WeaponPick
  MaintenancePick,   ///< the pick of armor or weapon maintenance
  CombatPick,        ///< the pick of a combat procedure
  Mount,             ///< the riding of a new animal for one who rides, else the pick of one
  LancesUntaught,    ///< the lances that a class may learn are withheld
  NamedAttackBonus,  ///< the Attack Bonus talent for a weapon that the player names
  TrackingAside,     ///< the mastery of Tracking moves to the barbarian's own tracking, the skill returns to 0
  SurvivalPick,      ///< the pick of a survival skill
  LanguagePick,      ///< the pick of Reading & Writing in a language held
  BardLanguage,      ///< buys the reading and writing of the first language
  BardInstrument,    ///< the choice of a kind of instrument
  PirateSkills,      ///< the roll on "Table IL: Pirate Skills"
  FirstLanguage,     ///< the mastery of the first language is changed, if there is one
};

/// The picks of a proficiency. A shoddy one is marked -10, a missile one comes with its specialization.
enum class WeaponPick {
  Melee,
  MeleeShoddy,
  Sword,
  SwordShoddy,
  Polearm,
  PolearmShoddy,
  Lance,
  CrossbowShoddy,
  Bow,
  BowShoddy,
  Any,
  Missile,
};

/// How a grant changes a number.
enum class GrantChange { None, Set, Raise, Add, Take };

/// A number, or dice with a number added.
struct GrantAmount {
  int Count = 0;  ///< 0: no dice
  int Sides = 0;
  int Plus = 0;
};

struct Grant {
  GrantKind Kind = GrantKind::Buy;
  std::string_view Name = {};  ///< see GrantKind
  int Row = -1;                ///< see GrantKind; -1 where it has none
  GrantChange Change = GrantChange::None;
  GrantAmount Amount = {};
  int Times = 1;
  bool FindsNoRow = false;  ///< the name is known to find none: nothing is granted
};

/// Grants that have a word of their own; with `Takes`, a change follows the word before the bracket closes.
struct GrantWord {
  std::string_view Word;
  GrantKind Kind;
  int Row = -1;
  bool TakesChange = false;
};

constexpr int PickRow(WeaponPick pick) {
  return static_cast<int>(pick);
}

inline constexpr GrantWord kGrantWords[] = {
    {"melee pick", GrantKind::WeaponPick, PickRow(WeaponPick::Melee)},
    {"melee pick, shoddy", GrantKind::WeaponPick, PickRow(WeaponPick::MeleeShoddy)},
    {"sword pick", GrantKind::WeaponPick, PickRow(WeaponPick::Sword)},
    {"sword pick, shoddy", GrantKind::WeaponPick, PickRow(WeaponPick::SwordShoddy)},
    {"polearm pick", GrantKind::WeaponPick, PickRow(WeaponPick::Polearm)},
    {"polearm pick, shoddy", GrantKind::WeaponPick, PickRow(WeaponPick::PolearmShoddy)},
    {"lance pick", GrantKind::WeaponPick, PickRow(WeaponPick::Lance)},
    {"crossbow pick, shoddy", GrantKind::WeaponPick, PickRow(WeaponPick::CrossbowShoddy)},
    {"bow pick", GrantKind::WeaponPick, PickRow(WeaponPick::Bow)},
    {"bow pick, shoddy", GrantKind::WeaponPick, PickRow(WeaponPick::BowShoddy)},
    {"weapon pick", GrantKind::WeaponPick, PickRow(WeaponPick::Any)},
    {"missile pick", GrantKind::WeaponPick, PickRow(WeaponPick::Missile)},
    {"maintenance pick", GrantKind::MaintenancePick},
    {"combat pick", GrantKind::CombatPick},
    {"survival pick", GrantKind::SurvivalPick},
    {"language pick", GrantKind::LanguagePick},
    {"mount", GrantKind::Mount},
    {"lances untaught", GrantKind::LancesUntaught},
    {"named attack bonus", GrantKind::NamedAttackBonus},
    {"tracking aside", GrantKind::TrackingAside},
    {"bard language", GrantKind::BardLanguage},
    {"bard instrument", GrantKind::BardInstrument},
    {"pirate skills", GrantKind::PirateSkills},
    {"first language", GrantKind::FirstLanguage, -1, true},
};

/// Reads a notation grant by grant. A slip does not compile, as a GrantText is read when it is made.
class GrantReader {
 public:
  constexpr explicit GrantReader(std::string_view grants) : rest(grants) {}

  constexpr bool AtEnd() const { return rest.empty(); }

  /// The grant that stands next.
  constexpr Grant Next() {
    const std::size_t bar = rest.find('|');
    const Grant grant = Read(Trimmed(rest.substr(0, bar)));
    if (bar == std::string_view::npos) {
      rest = {};
    } else {
      rest.remove_prefix(bar + 1);
      if (Trimmed(rest).empty()) throw "a grant is expected after '|'";
    }
    return grant;
  }

  /// The next name of a list with ';' between the names, taken off it.
  static constexpr std::string_view NextName(std::string_view& names) {
    const std::size_t end = names.find(';');
    const std::string_view name = Trimmed(names.substr(0, end));
    names.remove_prefix(end == std::string_view::npos ? names.size() : end + 1);
    return name;
  }

 private:
  struct Mark {
    std::string_view Text;
    GrantChange Change;
  };
  // "=" is in all of them, and comes last.
  static constexpr Mark kMarks[] = {
      {">=", GrantChange::Raise}, {"+=", GrantChange::Add}, {"-=", GrantChange::Take}, {"=", GrantChange::Set}};

  static constexpr int kMostFamily = 49;
  static constexpr int kMostQuirk = 699;

  static constexpr std::string_view Trimmed(std::string_view text) {
    while (text.starts_with(' ')) text.remove_prefix(1);
    while (text.ends_with(' ')) text.remove_suffix(1);
    return text;
  }

  static constexpr bool SkipWord(std::string_view& text, std::string_view word) {
    if (!text.starts_with(word)) return false;
    text = Trimmed(text.substr(word.size()));
    return true;
  }

  /// A name of a catalogue: what is a sign of the notation is in none of them.
  static constexpr std::string_view Name(std::string_view text) {
    if (text.empty()) throw "a name is expected";
    if (text.find_first_of("[]=><|;?%{}") != std::string_view::npos) throw "a name holds a sign of the notation";
    return text;
  }

  static constexpr int Number(std::string_view text, int least, int most) {
    NotationReader reader(text);
    const int number = reader.Number();
    if (!reader.AtEnd()) throw "nothing is expected behind the number";
    if (number < least || number > most) throw "the number is outside its range";
    return number;
  }

  static constexpr GrantAmount Amount(std::string_view text) {
    NotationReader reader(text);
    GrantAmount amount;
    amount.Plus = reader.Number();
    if (reader.Skip("d")) {
      amount.Count = amount.Plus;
      amount.Sides = reader.Number();
      amount.Plus = 0;
      if (amount.Count < 1 || amount.Sides < 1) throw "dice have a count and sides";
      if (reader.Skip("+")) {
        amount.Plus = reader.Number();
      } else if (!reader.AtEnd()) {
        reader.Expect("-");
        amount.Plus = -reader.Number();
      }
    }
    if (!reader.AtEnd()) throw "nothing is expected behind an amount";
    return amount;
  }

  /// Takes a change ("+=25") off the end of a text; what is left is what changes.
  static constexpr std::string_view TakeChange(std::string_view text, Grant& grant) {
    for (const Mark& mark : kMarks) {
      const std::size_t at = text.find(mark.Text);
      if (at == std::string_view::npos) continue;
      grant.Change = mark.Change;
      grant.Amount = Amount(Trimmed(text.substr(at + mark.Text.size())));
      return Trimmed(text.substr(0, at));
    }
    return text;
  }

  /// Takes "x2" off the end of a text.
  static constexpr std::string_view TakeTimes(std::string_view text, Grant& grant) {
    const std::size_t at = text.rfind(" x");
    if (at == std::string_view::npos || at + 2 == text.size()) return text;
    const char digit = text[at + 2];
    if (digit < '0' || digit > '9') return text;
    grant.Times = Number(text.substr(at + 2), 1, 9);
    return Trimmed(text.substr(0, at));
  }

  static constexpr Grant Bracketed(std::string_view text) {
    if (!text.ends_with(']')) throw "a bracket is not closed";
    text = text.substr(1, text.size() - 2);
    Grant grant;
    const std::string_view sought = TakeChange(text, grant);
    for (const GrantWord& word : kGrantWords) {
      if (word.Word != sought) continue;
      if (word.TakesChange != (grant.Change != GrantChange::None)) throw "this word has a change, or must have one";
      grant.Kind = word.Kind;
      grant.Row = word.Row;
      return grant;
    }
    throw "there is no such word in brackets";
  }

  static constexpr Grant Picked(std::string_view text) {
    Grant grant{.Kind = GrantKind::Pick};
    grant.Row = Number(TakeChange(text, grant), 0, kMostFamily);
    return grant;
  }

  static constexpr Grant Chosen(std::string_view text) {
    Grant grant{.Kind = GrantKind::Choose};
    if (SkipWord(text, "item ")) grant.Kind = GrantKind::ChooseItem;
    grant.Name = text;
    if (text.empty()) throw "names to choose from are expected";
    while (!text.empty()) Name(NextName(text));
    return grant;
  }

  static constexpr Grant Talented(std::string_view text) {
    Grant grant{.Kind = GrantKind::Talent};
    grant.Name = Name(TakeChange(text, grant));
    const bool isNew = grant.Name.find(": ") != std::string_view::npos;
    if (isNew) grant.Kind = GrantKind::NewTalent;
    if (isNew && grant.Change != GrantChange::None) throw "a new entry of a talent has the count 1";
    if (!isNew && grant.Change == GrantChange::None) {
      grant.Change = GrantChange::Set;
      grant.Amount.Plus = 1;
    }
    return grant;
  }

  static constexpr Grant Quirk(std::string_view text) {
    Grant grant{.Kind = GrantKind::Quirk, .Change = GrantChange::Set, .Amount = {.Plus = 1}};
    grant.Row = Number(TakeChange(text, grant), 1, kMostQuirk);
    return grant;
  }

  static constexpr Grant Mishap(std::string_view text) {
    Grant grant{.Kind = GrantKind::Mishap};
    grant.Name = TakeTimes(text, grant);
    if (grant.Name.size() != 2 || grant.Name[0] != '6' || grant.Name[1] < 'B' || grant.Name[1] > 'R') {
      throw "a table of quirks and flaws has a letter from 6B to 6R";
    }
    return grant;
  }

  static constexpr Grant Skill(std::string_view text) {
    Grant grant;
    if (const std::size_t at = text.find("+1d"); at != std::string_view::npos) {
      grant.Kind = GrantKind::AddDie;
      grant.Name = Name(Trimmed(text.substr(0, at)));
      grant.Amount = Amount(text.substr(at + 1));
      return grant;
    }
    if (text.ends_with("=INT")) {
      grant.Kind = GrantKind::FromIntellect;
      grant.Name = Name(Trimmed(text.substr(0, text.size() - 4)));
      return grant;
    }
    const std::string_view changed = TakeChange(text, grant);
    if (grant.Change == GrantChange::None) {
      grant.Name = Name(TakeTimes(text, grant));
      return grant;
    }
    for (const GrantFieldName& field : kGrantFields) {
      if (field.Name != changed) continue;
      grant.Kind = GrantKind::Field;
      grant.Row = static_cast<int>(field.Field);
      return grant;
    }
    if (grant.Change == GrantChange::Take) throw "there is no such field, and nothing is taken off a skill";
    grant.Kind = GrantKind::Score;
    grant.Name = Name(changed);
    return grant;
  }

  static constexpr Grant ReadNamed(std::string_view text) {
    if (SkipWord(text, "pick F")) return Picked(text);
    if (SkipWord(text, "choose ")) return Chosen(text);
    if (SkipWord(text, "talent ")) return Talented(text);
    if (SkipWord(text, "take talent ")) return {.Kind = GrantKind::TakeTalent, .Name = Name(text)};
    if (SkipWord(text, "prof ")) return {.Kind = GrantKind::Proficiency, .Name = Name(text)};
    if (SkipWord(text, "quirk ")) return Quirk(text);
    if (SkipWord(text, "mishap ")) return Mishap(text);
    if (SkipWord(text, "new ")) {
      if (text.find(": ") == std::string_view::npos) throw "a member is written \"family: name\"";
      return {.Kind = GrantKind::NewMember, .Name = Name(text)};
    }
    return Skill(text);
  }

  static constexpr Grant Read(std::string_view text) {
    if (text.starts_with('[')) return Bracketed(text);
    const bool findsNoRow = SkipWord(text, "?");
    Grant grant = ReadNamed(text);
    grant.FindsNoRow = findsNoRow;
    if (findsNoRow && grant.Name.empty()) throw "only a name can find no row";
    return grant;
  }

  std::string_view rest;
};

/// Grants as a table holds them. One that is not well formed does not build.
class GrantText {
 public:
  constexpr GrantText() = default;  ///< nothing is granted
  consteval GrantText(const char* notation) : text(notation) {
    for (GrantReader reader(text); !reader.AtEnd();) reader.Next();
  }

  constexpr std::string_view View() const { return text; }
  constexpr bool IsEmpty() const { return text.empty(); }

 private:
  std::string_view text;
};

/// Calls `visit` with each grant of a text, in order.
template <typename Visit>
constexpr void ForEachGrant(const GrantText& grants, Visit visit) {
  for (GrantReader reader(grants.View()); !reader.AtEnd();) visit(reader.Next());
}

}  // namespace veld
