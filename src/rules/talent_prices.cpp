#include "rules/talent_prices.h"

#include <cstddef>

#include "rules/rule_switches.h"
#include "rules/talent_table.h"
#include "text/numbers.h"

namespace veld {

namespace {

constexpr std::string_view kOracleTalents =
    "Detect Evil | Detect Poison | Detect Secret Doors | Determine Age | Determine Stability | Magic Identification | "
    "Potion Identification | Seeking Grasping Hands | Sixth Sense | Sibling Empathy | Prophesy";
constexpr std::string_view kDetectiveTalents =
    "Detect Evil | Detect Poison | Detect Secret Doors | Determine Age | Determine Stability | Mining Sense | "
    "Potion Identification";
constexpr std::string_view kKeyholderTalents =
    "Concentration | Curse Resistance | Death Magic Bonus | Precision Casting | Quick Casting";
constexpr std::string_view kKeyholderMagic =
    "Fast Cast | High Spell-Jacker | Spell Razor | Voiceless Casting | Still Casting | School Resistant";
constexpr std::string_view kStoutRaces = "Dwarf | Half-ogre | Half-orc | Human";

// clang-format off

// Who, which talents, what it does to the price. From the top, each rule on what those before it left.
constexpr PriceRule kTalentPriceRules[] = {
  {{},                                                      {.Names = "Bow Bonus"}, kBowBonusDiscount},
  {{.NotRace = "Dwarf"},                                    {.Names = "Crossbow Bonus"}, kCrossbowBonusDiscount},
  {{.Package = "Militaristic Magic-User"},                  {}, kDoubled},
  {{.Package = "Militaristic Magic-User"},
   {.Names = "Acute (high) Alertness | Astute Observation | Constitution/Health Bonus | Determine Age | Endurance | "
             "Engineering Bonus | Experience Bonus | Grace Under Pressure | Photographic Memory | Sibling Empathy | "
             "Resistance | Spell Abilities | Stone Tell"}, kHalved},
  {{.Package = "Amazon"},
   {.Names = "Acrobatic Skill Suite | Acute (high) Alertness"}, Becomes(4)},
  {{.Package = "Archer"},                                   {.Names = "Keen Sight (Long Distance)"}, Becomes(3)},
  {{.Package = "Falconer"},
   {.Names = "Keen Sight (Long Distance) | Acute (high) Alertness | Endurance"}, Becomes(3)},
  {{.Package = "Myrmidon"},                                 {.Names = "Blind Fighting"}, Becomes(6)},
  {{.Package = "Myrmidon", .Race = kStoutRaces},            {.Names = "Endurance"}, Becomes(3)},
  {{.Package = "Myrmidon", .NotRace = kStoutRaces},         {.Names = "Endurance"}, Becomes(5)},
  {{.Package = "Noble Warrior"},                            {.Names = "Blind Fighting"}, Becomes(8)},
  {{.Package = "Savage"},                                   {}, Plus(2)},
  {{.ClassHolding = "Chosen"},                              {.Names = "Sixth Sense"}, Becomes(2)},
  {{.ClassHolding = "Sniper | Demolitionist"},              {.Names = "Precise Targeting"}, Becomes(2)},
  {{.ClassHolding = "Anti-Mage"},                           {.Names = "Counter Speller"}, Becomes(10)},
  {{.ClassHolding = "Detective"},                           {.Names = kDetectiveTalents}, Becomes(2)},
  {{.ClassHolding = "Zealot of Sumar-Fareen (Ardorheart)"},
   {.Names = "Divine Shield | Divine Smite | Follow-Through Healing"}, Less(2)},
  {{.ClassHolding = "Zealot of Grawdyng (Charnelist)"},     {.Names = "Death Magic Bonus"}, Less(2)},
  {{.ClassHolding = "Zealot of Skraad (Toiler)"},           {.Names = "Concentration"}, Less(2)},
  {{.ClassHolding = "Zealot of P'Rakeke (Purger)"},         {.Names = "Divine Smite | Burst of Speed"}, Less(2)},
  {{.ClassHolding = "Zealot of Markovia (Sopie)"},          {.Names = "Divine Smite | Divine Shield"}, Less(2)},
  {{.ClassHolding = "Zealot of Nudor (Flagellant)"},        {.Names = "Thick Blood"}, Less(2)},
  {{.ClassHolding = "Zealot of Francor'Dieus (Earther)"},   {.Names = "Defensive Bonus"}, Less(2)},
  {{.ClassHolding = "Zealot of Kishijoten (Fortune)"},      {.Names = "Opportunist (skill/trait)"}, Becomes(2)},
  {{.ClassHolding = "Zealot of Hokalas (Keyholder)"},       {.Names = kKeyholderTalents}, kHalved},
  {{.ClassHolding = "Zealot of Hokalas (Keyholder)"},       {.Names = kKeyholderMagic}, Plus(10)},
  {{.ClassHolding = "Zealot of Camaxtli (Expounder)"},      {.Names = kOracleTalents}, Less(2)},
  {{.ClassHolding = "Zealot of Shona (Shonite)"},
   {.Names = "Axe Bonus | Blind Fighting | Bow Bonus | Called Shot Bonus | Crossbow Bonus | Dagger Bonus | "
             "Dart Bonus | Defensive Bonus | Dense Skin | Faerie Kind Martial Arts | Hit Point Bonus | Javelin Bonus | "
             "Mace Bonus | Pick Bonus | Shortsword Bonus | Sling Bonus | Spear Bonus | Sword Bonus | "
             "Attack Higher Bonus | Critical Hit Bonus | Defend Bigger Bonus | Multiattack Bonus | Damage Cap Bonus | "
             "Damage Bonus | Deadeye"}, kHalved},
};

enum class Offered { Always, IfClosedToRace, IfClosedToRaceOrNoMageBook };

struct TalentOffer {
  Who For;
  std::string_view Talents;
  Offered When = Offered::Always;
};

// Talents beyond the race's own.
constexpr TalentOffer kTalentOffers[] = {
  {{.BowDiscount = true},                                   "Bow Bonus", Offered::IfClosedToRace},
  {{.CrossbowDiscount = true},                              "Crossbow Bonus", Offered::IfClosedToRace},
  {{.IsCleric = 1, .BookOn = kDevoteesAlmanac},             "Divine Smite"},
  {{.Package = "Trailblazer"},                              "Acute Alertness & Keen Sight"},
  {{.ClassHolding = "Sniper"},                              "Precise Targeting"},
  {{.ClassHolding = "Zealot of Francor'Dieus (Earther)"},   "Defensive Bonus"},
  {{.ClassHolding = "Zealot of Zeus (Astrapie)"},           "Dart Bonus | Javelin Bonus"},
  {{.ClassHolding = "Zealot of Hokalas (Keyholder)"},       kKeyholderTalents},
  {{.ClassHolding = "Zealot of Hokalas (Keyholder)"},       kKeyholderMagic, Offered::IfClosedToRaceOrNoMageBook},
  {{.ClassHolding = "Zealot of Camaxtli (Expounder)"},      kOracleTalents},
  {{.ClassHolding = "Detective"},                           kDetectiveTalents},
};

// clang-format on

/// A talent of either table and the race's flag for it; no record if the name finds no row.
struct FoundTalent {
  const TalentRecord* Record = nullptr;
  int Row = -1;
  int Flag = 0;
};

FoundTalent Find(std::string_view name, const SkillBuyer& buyer) {
  if (const int row = FindTalentRow(name); row >= 0) {
    return {&TalentTable()[static_cast<std::size_t>(row)], row, ValueAt(buyer.TalentFlags, row)};
  }
  if (const int row = FindTalentFamilyRow(name); row >= 0) {
    return {&TalentTable2()[static_cast<std::size_t>(row)], row, ValueAt(buyer.Talent2Flags, row)};
  }
  return {};
}

bool IsOpen(const TalentRecord& talent, int flag, const SkillBuyer& buyer) {
  return flag > 0 && !talent.Name.empty() && ValueAt(buyer.RuleSwitches, talent.Book) == 1;
}

bool IsOffered(Offered when, int flag, const SkillBuyer& buyer) {
  switch (when) {
    case Offered::Always:
      return true;
    case Offered::IfClosedToRace:
      return flag == 0;
    case Offered::IfClosedToRaceOrNoMageBook:
      return flag == 0 || ValueAt(buyer.RuleSwitches, kHexwrightsAlmanac) != 1;
  }
  return false;
}

template <typename Table>
void AppendOpen(const Table& table, std::span<const int> flags, const SkillBuyer& buyer,
                std::vector<std::string_view>& names) {
  for (std::size_t row = 0; row < table.size(); ++row) {
    if (IsOpen(table[row], ValueAt(flags, static_cast<int>(row)), buyer)) names.push_back(table[row].Name);
  }
}

}  // namespace

int TalentPrice(std::string_view name, const SkillBuyer& buyer) {
  const FoundTalent talent = Find(name, buyer);
  if (talent.Record == nullptr) return 0;
  const auto basic = static_cast<float>(talent.Record->BP);
  return TruncateToInt(PriceAfter(kTalentPriceRules, basic, talent.Row, talent.Record->Name, 0, buyer));
}

std::vector<int> TalentsOfRace(const SkillBuyer& buyer) {
  std::vector<int> rows;
  for (int row = 0; row < kTalentTableRows; ++row) {
    const TalentRecord& talent = TalentTable()[static_cast<std::size_t>(row)];
    const bool given = ValueAt(buyer.TalentFlags, row) == -1 && ValueAt(buyer.RuleSwitches, talent.Book) == 1;
    if (given && !talent.Name.empty()) rows.push_back(row);
  }
  return rows;
}

std::vector<std::string_view> TalentsOpenToRace(const SkillBuyer& buyer) {
  std::vector<std::string_view> names;
  AppendOpen(TalentTable(), buyer.TalentFlags, buyer, names);
  AppendOpen(TalentTable2(), buyer.Talent2Flags, buyer, names);
  return names;
}

std::vector<std::string_view> FurtherTalents(const SkillBuyer& buyer) {
  std::vector<std::string_view> names;
  for (const TalentOffer& offer : kTalentOffers) {
    if (!IsMeant(offer.For, buyer)) continue;
    ForEachName(offer.Talents, [&](std::string_view name) {
      const FoundTalent talent = Find(name, buyer);
      if (talent.Record == nullptr || IsOpen(*talent.Record, talent.Flag, buyer)) return;
      if (IsOffered(offer.When, talent.Flag, buyer)) names.push_back(talent.Record->Name);
    });
  }
  return names;
}

}  // namespace veld
