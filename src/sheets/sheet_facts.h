#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "rules/proficiency_table.h"
#include "rules/saving_throws.h"
#include "store/game.h"

namespace veld {

// What more than one kind of sheet asks of a character.

/// The first of the proficiency marks that count as Mastery on a sheet; see ProficiencyMark for the others.
inline constexpr int kMasteryMark = 3;

inline constexpr std::size_t kToursShown = 4;  ///< of NonCombatTourEvents: the fifth text is scratch

/// A typed text as one line: tabs and line ends are blanks.
std::string OneLine(std::string_view text);

/// A proficiency held, with its mark.
struct HeldWeapon {
  const ProficiencyRecord* Weapon;
  int Mark;
};

/// The proficiencies with a mark: pass after pass, so that those of one mark stand together.
std::vector<HeldWeapon> HeldWeapons(const CharacterSheet& sheet);

/// The adjustments that a mark brings with a weapon, empty for none: "-1" for a limited proficiency.
std::string_view HitAdjustment(const HeldWeapon& held);
std::string_view DamageAdjustment(const HeldWeapon& held);

/// "Basic"; empty for a mark that is none.
std::string_view MarkName(int mark);

/// Pounds from which a burden is none, light, moderate, heavy and severe, and at last the most that can be carried.
std::array<int, 6> EncumbranceLimits(const CharacterSheet& sheet);

/// The burden that is carried now: 1 is none, 2 light, 3 moderate, 4 heavy, 5 severe.
int PresentLoad(const CharacterSheet& sheet);

/// Boxes to tick for hit points: how many, and how many points each stands for.
struct TickBoxCount {
  int Boxes;
  std::int64_t PointsEach;
};
TickBoxCount HitPointBoxes(int hitPoints);

/// The best saving throws of the classes held, kNoSave without one, of a record that nobody has brought up to date.
std::array<int, kSaveCount> BestSaves(const CharacterSheet& sheet);
inline constexpr std::array<std::string_view, kSaveCount> kSaveNames{
    "Paralyzation", "Poison",      "Death Magic", "Petrification", "Polymorph", "Rod",   "Staff",
    "Wand",         "QuellFrenzy", "QuellLust",   "Breath Weapon", "Apology",   "Spells"};

/// The level that Honor is held against: the average of the classes.
int AverageLevel(const CharacterSheet& sheet);

/// The rows of the spells known, level by level.
std::vector<std::size_t> KnownSpells(const Game& game);

/// Where a spell stands in the character's books: "12", or "2: 12" from the second book on. Empty if in none.
std::string PageInBooks(const CharacterSheet& sheet, std::string_view spell);

/// What a spell book is made of: "Travelling, 100 pages, written from 1 to 12".
std::string BookMake(const SpellBook& book);

/// A spell that stands in a book.
struct BookEntry {
  int Page;
  std::string Name;
  const SpellRecord* Spell;  ///< null for one that the catalogue does not have
  int Pages;                 ///< that it takes; of no use without a record
};
std::vector<BookEntry> BookEntries(const Game& game, const SpellBook& book);

/// True if the sheets show what belongs to mages.
bool IsShownAsMage(const CharacterSheet& sheet);

/// A coin, as it is counted and told.
struct Coin {
  std::string_view Name;
  int CharacterSheet::*Count;
};
inline constexpr std::array<Coin, 6> kCoins{{
    {"Copper Pieces", &CharacterSheet::CopperPieces},
    {"Silver Pieces", &CharacterSheet::SilverPieces},
    {"Electrum Pieces", &CharacterSheet::ElectrumPieces},
    {"Gold Pieces", &CharacterSheet::GoldPieces},
    {"Hard Silver Pieces", &CharacterSheet::HardSilverPieces},
    {"Platinum Pieces", &CharacterSheet::PlatinumPieces},
}};

/// A talent or skill held. A member of a family is led by the family's name where its own does not say it.
struct HeldAbility {
  std::string Name;
  int Amount;                     ///< times taken; percent of mastery
  std::string_view Measure = {};  ///< how the amount of a talent is told, "x%i"; empty where there is no measure of it
  std::string_view Page = {};     ///< of the books, "ADC pg 337"
};
std::vector<HeldAbility> HeldTalents(const CharacterSheet& sheet);
std::vector<HeldAbility> HeldSkills(const CharacterSheet& sheet);

/// A percentile ability of a class, and what armor changes of it.
struct ClassAbilityRow {
  std::string_view Name;
  std::string_view Short;
  int NoArmor;
  int ElvenChain;
  int Studded;  ///< studded leather, ring mail, padded
};
struct ClassAbility {
  const ClassAbilityRow* Row;
  int Base;  ///< percent, without any thought of armor
};
struct ClassAbilityList {
  std::string_view Calling;  ///< "Monk"
  std::string_view Title;    ///< "Monk Abilities"
  std::vector<ClassAbility> Abilities;
};
/// The lists of those callings that the character has.
std::vector<ClassAbilityList> ClassAbilityLists(const CharacterSheet& sheet);

}  // namespace veld
