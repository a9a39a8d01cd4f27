#include "editors/person_pages.h"

#include <algorithm>

#include "editors/class_progress.h"
#include "editors/field_page.h"
#include "editors/purse.h"
#include "rules/class_table.h"
#include "rules/priors_tables.h"
#include "rules/race_table.h"
#include "steps/classes/class_choice.h"
#include "steps/finish/alignment.h"
#include "steps/race/race_choice.h"
#include "steps/skills/tattoo.h"
#include "store/sheet_accessors.h"
#include "text/search.h"

namespace veld {

namespace {

// --- What F1 tells of each page ---

constexpr std::string_view kHelpOfPerson =
    "Who he is, as the top of the sheet has it. The line below tells what it does "
    "elsewhere: another race, for example, changes which classes are open to him, but not the scores that he rolled. "
    "A text or number that a field can not hold is refused by OK. Cancel puts everything back.";
constexpr std::string_view kHelpOfAbilities =
    "The seven scores as they stand today, whole points and percentiles. What an injury, a wish or the years have "
    "changed is written in here, and bonuses that follow from a score follow by themselves. Gains of a level stand "
    "with the level, under Hit points. Cancel puts everything back.";
constexpr std::string_view kHelpOfMoney =
    "The purse. Type an amount, choose its coin and press Found or Spent: change is made from other coins, and what "
    "he can not pay is refused. Or write the coins down as they are. Debts and the inheritance are what Step 10 "
    "rolled. Cancel puts everything back.";
constexpr std::string_view kHelpOfPrior =
    "Birth and kin as Step 6 rolled them: class, parents, brothers and sisters. They are texts of the sheet for the "
    "most part; the social class decides which classes are open to him, which the line below tells. Use it for what "
    "comes to light in play, such as a father after all. Cancel puts everything back.";
constexpr std::string_view kHelpOfMilitary =
    "A fighter's years of service, as the tables told them. These are the sheet's words alone: a war written in here "
    "brings no skill, and none is lost with one deleted. The mark above says whether he has this youth at all. Cancel "
    "puts everything back.";
constexpr std::string_view kHelpOfSchool =
    "A mage's schooling, as the tables told it, and the rolls behind it. These are the sheet's words and numbers "
    "alone: a better master written in here teaches nothing more. The mark above says whether he has this youth at "
    "all. Cancel puts everything back.";
constexpr std::string_view kHelpOfSeminary =
    "A priest's training, as the tables told it. These are the sheet's words alone: what is changed here gives no "
    "skill and takes no quirk. The mark above says whether he has this youth at all. Cancel puts everything back.";
constexpr std::string_view kHelpOfTattoos =
    "The magic tattoos of a pixie fairy and where each one is. The marks say which places of the body are taken. "
    "Nothing is charged here, in BP or in Constitution; change the abilities on their own page. Cancel puts "
    "everything back.";
constexpr std::string_view kHelpOfStanding =
    "Honor, and the counts that are kept behind the sheet. Honor is what changes in play; the others follow from "
    "race, class and level and are here to be mended when a table was overruled. A barbarian's numbers stand here "
    "too. Cancel puts everything back.";

using Sheet = CharacterSheet;

constexpr int kMostYears = 99'999;
constexpr int kMostInches = 9'999;
constexpr int kMostPounds = 99'999;
constexpr int kMostWhole = 99;
constexpr int kMostCount = 9'999;
constexpr int kCountWidth = 6;  // where two columns of long names stand side by side

// ---- What a value does elsewhere ----

void AddSentence(std::string& text, std::string_view sentence) {
  if (!text.empty()) text += ' ';
  text += sentence;
}

/// Why the character could not take the classes that he holds, if he were to take them now.
std::string ToldOfClasses(Game& game) {
  BindRaceRow(game);
  std::string told;
  for (const int row : ClassesHeld(game.sheet)) {
    const std::string why = WhyClassIsMissing(game, row);
    if (!why.empty()) AddSentence(told, Format("%s: %s", ClassAt(row).Name, why));
  }
  return told;
}

std::string ToldOfAlignment(const Game& game) {
  const std::vector<std::string_view> open = OpenAlignmentNames(game);
  const bool isOpen = std::ranges::find(open, game.sheet.Alignment.View()) != open.end();
  if (isOpen || ClassesHeld(game.sheet).empty()) return {};
  return Format("%s is not an alignment of a %s.", WithoutPadding(game.sheet.Alignment), game.sheet.ClassName);
}

// ---- Fields that are more than a member ----

std::vector<std::string> RaceNames() {
  std::vector<std::string> names;
  for (const RaceRecord& race : RaceTable()) {
    const std::string name(race.Name);
    if (!name.empty() && std::ranges::find(names, name) == names.end()) names.push_back(name);
  }
  return names;
}

constexpr std::string_view kNobody = "nobody";

/// The race that a half-blood takes after.
EditField TakesAfterField() {
  std::vector<std::string> names = RaceNames();
  names.insert(names.begin(), std::string(kNobody));
  return ChoiceField(
      "Takes after", 20, std::move(names),
      [](const Game& game) {
        const std::string_view race = RaceTakenAfter(game.sheet);
        return std::string(race.empty() ? kNobody : race);
      },
      [](Game& game, const std::string& race) {
        if (race != kNobody) return TakeAfterRace(game.sheet, race);
        game.sheet.TalentDetailNames[TalentFamily::TakeAfter][0].Clear();
        game.sheet.TalentDetailCounts[TalentFamily::TakeAfter][0] = 0;
      });
}

EditField AlignmentField() {
  std::vector<std::string> names(kAlignmentNames.begin(), kAlignmentNames.end());
  return TextChoiceField("Alignment", &Sheet::Alignment, 18, std::move(names));
}

/// The text of the social class and its rank go together: rules read the one or the other.
EditField SocialClassField() {
  std::vector<SocialClass> classes;
  constexpr int kLowestTotal = 2;
  constexpr int kHighestTotal = 140;
  constexpr int kSlaveRolls = 20;
  const auto add = [&](const SocialClass& social) {
    if (std::ranges::find(classes, social.Name, &SocialClass::Name) == classes.end()) classes.push_back(social);
  };
  for (int roll = 1; roll <= kSlaveRolls; ++roll) add(SlaveClassOf(roll));
  for (int total = kLowestTotal; total <= kHighestTotal; ++total) add(*SocialClassOf(total));
  std::vector<std::string> names;
  for (const SocialClass& social : classes) names.emplace_back(social.Name);
  return ChoiceField(
      "Social class", 26, std::move(names),
      [](const Game& game) { return std::string(game.sheet.SocialClassName.View()); },
      [classes](Game& game, const std::string& name) {
        const auto found = std::ranges::find(classes, name, &SocialClass::Name);
        game.sheet.SocialClassName = found->Name;
        game.sheet.SocialClassIndex = found->Index;
      });
}

EditField PresenceField(std::string_view label, int Sheet::*presence) {
  return NamedNumberField(label, presence, 18,
                          {{kParentUnknown, "unknown"},
                           {kParentDead, "dead"},
                           {kParentLiving, "alive"},
                           {kStepParentFound, "step parent found"}});
}

constexpr std::size_t kMostSiblings = std::tuple_size_v<decltype(Sheet::SiblingLines)>;
constexpr std::size_t kSiblingBytes = decltype(Sheet::SiblingLines)::value_type::kWidth - 1;

/// One sibling a line.
EditField SiblingsField() {
  const auto forEachLine = [](std::string_view text, auto act) {
    std::size_t number = 0;
    while (!text.empty()) {
      const std::size_t end = std::min(text.find('\n'), text.size());
      act(number++, text.substr(0, end));
      text.remove_prefix(std::min(end + 1, text.size()));
    }
  };
  return {.Label = "Siblings, a line each",
          .What = EditField::Kind::Lines,
          .Width = 72,
          .Height = 4,
          .Most = static_cast<int>(kMostSiblings * (kSiblingBytes + 1)),
          .Read =
              [](const Game& game) {
                std::string text;
                std::size_t last = 0;
                for (std::size_t i = 0; i < kMostSiblings; ++i) {
                  if (game.sheet.SiblingLines[i].Length() > 1) last = i + 1;
                }
                for (std::size_t i = 0; i < last; ++i) text += WithoutPadding(game.sheet.SiblingLines[i]) + '\n';
                return text;
              },
          .Write =
              [forEachLine](Game& game, const std::string& text) {
                for (auto& line : game.sheet.SiblingLines) line = " ";
                forEachLine(text, [&](std::size_t i, std::string_view line) { game.sheet.SiblingLines[i] = line; });
              },
          .Refuse =
              [forEachLine](const std::string& text) {
                std::string refusal;
                forEachLine(text, [&](std::size_t i, std::string_view line) {
                  if (i == kMostSiblings) refusal = Format("Siblings: at most %i lines.", kMostSiblings);
                  if (line.size() > kSiblingBytes && refusal.empty()) {
                    refusal = Format("Siblings: line %i has %i letters and there is room for %i.", i + 1, line.size(),
                                     kSiblingBytes);
                  }
                });
                return refusal;
              }};
}

/// A text of a youth, which may run to a paragraph.
template <typename Access>
EditField YouthText(std::string_view label, Access access) {
  return TextField(label, access, 54);
}

// ---- Money found and spent ----

/// An amount of one coin that changes hands.
struct Amount {
  int Coins = 0;
  std::size_t Coin = 0;
};

EditField AmountField(Amount& amount) {
  return {.Label = "&Amount found or spent",
          .What = EditField::Kind::Number,
          .Width = 10,
          .Least = 0,
          .Most = kMostCoins,
          .EnterPresses = 0,
          .Read = [&amount](const Game&) { return Format("%i", amount.Coins); },
          .Write = [&amount](Game&,
                             const std::string& text) { amount.Coins = WholeNumber(text, 0, kMostCoins).value_or(0); }};
}

EditField AmountCoinField(Amount& amount) {
  std::vector<std::string> names;
  for (const CoinKind& coin : kCoinKinds) names.emplace_back(coin.Name);
  return ChoiceField(
      "Coin", 18, names, [&amount](const Game&) { return std::string(kCoinKinds[amount.Coin].Name); },
      [&amount, names](Game&, const std::string& text) {
        amount.Coin = static_cast<std::size_t>(std::ranges::find(names, text) - names.begin());
      });
}

}  // namespace

void RunEditPerson(Game& game) {
  FieldPage page{.Name = "EditPerson", .Title = "The person", .Help = kHelpOfPerson, .Rows = 9};
  page.Fields = {
      TextField("Name", &Sheet::CharacterName, 24),
      TextChoiceField("Race", &Sheet::RaceName, 20, RaceNames()),
      TextChoiceField("Gender", &Sheet::Gender, 10, {"Male", "Female"}),
      TakesAfterField(),
      TextField(
          "Native language", [](auto& sheet) -> auto& { return NativeLanguageName(sheet); }, 24),
      AlignmentField(),
      TextField("Package", &Sheet::PackageName, 20),
      TextField("Hermit: second text", &Sheet::HermitField, 20),
      TextField("Hermit: taboo", &Sheet::HermitTaboo, 20),
      TextField("Handedness", &Sheet::Handedness, 14),
      TextField("Hair", &Sheet::HairColor, 14),
      TextField("Eyes", &Sheet::EyeColor, 14),
      NumberField("Age, years", &Sheet::Age, 0, kMostYears),
      NumberField("Height, inches", &Sheet::HeightInches, 0, kMostInches),
      NumberField("Weight, pounds", &Sheet::WeightLbs, 0, kMostPounds),
      NumberField("Languages known", &Sheet::LanguagesKnown, 0, kMostCount),
      NamedNumberField("Weapon size", &Sheet::WeaponSizeClass, 10,
                       {{0, "tiny"}, {1, "small"}, {2, "medium"}, {3, "large"}}),
      LinesField("Notes", &Sheet::Notes, 72, 4),
  };
  page.Told = [](Game& owner) {
    std::string told = ToldOfClasses(owner);
    const std::string alignment = ToldOfAlignment(owner);
    if (!alignment.empty()) AddSentence(told, alignment);
    return told;
  };
  RunFieldPage(game, page);
}

void RunEditAbilities(Game& game) {
  constexpr std::array<std::string_view, kAbilityCount> kPercent = {
      "Strength, percent", "Dexterity, percent", "Constitution, percent", "Intelligence, percent",
      "Wisdom, percent",   "Charisma, percent",  "Comeliness, percent"};
  FieldPage page{.Name = "EditAbilities", .Title = "Abilities", .Help = kHelpOfAbilities, .Rows = kAbilityCount};
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    page.Fields.push_back(NumberField(
        AbilityName(ability), [ability](auto& sheet) -> auto& { return AbilityAt(sheet, ability).Whole; }, 1,
        kMostWhole));
  }
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    page.Fields.push_back(NumberField(
        kPercent[static_cast<std::size_t>(ability)],
        [ability](auto& sheet) -> auto& { return AbilityAt(sheet, ability).Percentile; }, 0, 100));
  }
  page.Told = ToldOfClasses;
  RunFieldPage(game, page);
}

void RunEditMoney(Game& game) {
  Amount amount;
  FieldPage page{.Name = "EditMoney", .Title = "Money and inheritance", .Help = kHelpOfMoney, .Rows = 8};
  page.Fields = {AmountField(amount), AmountCoinField(amount)};
  for (const CoinKind& coin : kCoinKinds) page.Fields.push_back(NumberField(coin.Name, coin.Count, 0, kMostCoins));
  const EditField rest[] = {
      NumberField("Hereditary debt, gold", &Sheet::HereditaryDebt, 0, kMostCoins),
      NumberField("Inheritance, tier 0 to 5", &Sheet::InheritanceTier, 0, 5),
      TextField("Inherited weapon", &Sheet::InheritedWeapon, 24),
      TextField("Inherited armor", &Sheet::InheritedArmor, 24),
      TextField("Shield or helmet", &Sheet::InheritedShieldHelmet, 24),
      TextField("Inherited mount", &Sheet::InheritedMount, 24),
      TextField("Inherited deed", &Sheet::InheritedDeed, 24),
      TextField("Starting money", &Sheet::StartingMoneyText, 24),
  };
  page.Fields.insert(page.Fields.end(), std::begin(rest), std::end(rest));
  page.Actions = {
      {"&Found", [&](Game& owner) { return FindMoney(owner.sheet, kCoinKinds[amount.Coin], amount.Coins); }},
      {"&Spent", [&](Game& owner) { return SpendMoney(owner.sheet, kCoinKinds[amount.Coin], amount.Coins); }}};
  RunFieldPage(game, page);
}

void RunPriorEdit(Game& game) {
  FieldPage page{.Name = "PriorEdit", .Title = "Birth and family", .Help = kHelpOfPrior, .Rows = 9};
  page.Fields = {
      SocialClassField(),
      TextField("Circumstance of birth", &Sheet::BirthCircumstance, 24),
      TextField("Nature of illegitimacy", &Sheet::IllegitimacyNature, 24),
      TextField("Family heritage", &Sheet::FamilyHeritage, 24),
      TextField("Number of siblings", &Sheet::SiblingCountText, 24),
      NumberField("Siblings counted", &Sheet::SiblingCount, -99, 99),
      TextField("Order of birth", &Sheet::BirthOrder, 24),
      TextField("Step parent", &Sheet::StepParent, 24),
      MarkField("An orphan", &Sheet::IsOrphan),
      TextField("Father", &Sheet::FatherStatus, 24),
      TextField("Quality of father", &Sheet::FatherQuality, 24),
      PresenceField("Father is", &Sheet::FatherPresence),
      TextField("Mother", &Sheet::MotherStatus, 24),
      TextField("Quality of mother", &Sheet::MotherQuality, 24),
      PresenceField("Mother is", &Sheet::MotherPresence),
      SiblingsField(),
  };
  page.Told = ToldOfClasses;
  RunFieldPage(game, page);
}

void RunEditMilitary(Game& game) {
  FieldPage page{.Name = "EditMilitary", .Title = "Youth of a fighter", .Help = kHelpOfMilitary};
  page.Fields = {
      MarkField("Has this youth (else none of it is saved)", &Sheet::UsesFighterBackground),
      YouthText("Training camp", &Sheet::TrainingCampType),
      YouthText("Basic training", &Sheet::BasicTrainingQuality),
      YouthText("Its results", &Sheet::BasicTrainingResults),
      YouthText(
          "Accident", [](auto& sheet) -> auto& { return sheet.TrainingAccidents[0]; }),
      YouthText(
          "Second accident", [](auto& sheet) -> auto& { return sheet.TrainingAccidents[1]; }),
      YouthText("Specialty", &Sheet::SpecialtyAssignment),
      YouthText("Advanced training", &Sheet::AdvancedTrainingQuality),
      YouthText("State of hostilities", &Sheet::HostilitiesState),
      YouthText(
          "War", [](auto& sheet) -> auto& { return sheet.Wars[0]; }),
      YouthText(
          "Second war", [](auto& sheet) -> auto& { return sheet.Wars[1]; }),
      YouthText(
          "Third war", [](auto& sheet) -> auto& { return sheet.Wars[2]; }),
      YouthText("Occupation", &Sheet::OccupationAttitude),
      YouthText("Events in it", &Sheet::OccupationEvents),
      YouthText("Guerillas", &Sheet::GuerillaEvents),
      YouthText(
          "Tour event", [](auto& sheet) -> auto& { return sheet.NonCombatTourEvents[0]; }),
      YouthText(
          "Second event", [](auto& sheet) -> auto& { return sheet.NonCombatTourEvents[1]; }),
      YouthText(
          "Third event", [](auto& sheet) -> auto& { return sheet.NonCombatTourEvents[2]; }),
      YouthText(
          "Fourth event", [](auto& sheet) -> auto& { return sheet.NonCombatTourEvents[3]; }),
  };
  RunFieldPage(game, page);
}

void RunEditSchool(Game& game) {
  FieldPage page{.Name = "EditSchool", .Title = "Youth of a mage", .Help = kHelpOfSchool, .Rows = 8};
  page.Fields = {
      MarkField("Has this youth (else none of it is saved)", &Sheet::UsesMageBackground),
      TextField("School's location", &Sheet::SchoolLocation, 24),
      TextField("Type of school", &Sheet::SchoolType, 24),
      TextField("Master's nurture", &Sheet::MasterNurture, 24),
      TextField("Master's education", &Sheet::MasterEducation, 24),
      TextField("Graduating class", &Sheet::GraduatingClassSize, 24),
      TextField("Classroom", &Sheet::ClassroomEquipment, 24),
      TextField("Graduating rank", &Sheet::GraduatingRank, 24),
      NumberField("Location, rolled", &Sheet::SchoolLocationRoll, -999, 999),
      NumberField("School, rolled", &Sheet::SchoolQualityRoll, -999, 999),
      NumberField("Nurture, rolled", &Sheet::MasterNurtureRoll, -999, 999),
      NumberField("Education, rolled", &Sheet::MasterEducationRoll, -999, 999),
      NumberField("Class, rolled", &Sheet::GraduatingClassRoll, -999, 999),
      NumberField("Classroom, rolled", &Sheet::ClassroomRoll, -999, 999),
      NumberField("Rank, rolled", &Sheet::GraduatingRankRoll, -999, 999),
  };
  RunFieldPage(game, page);
}

void RunEditSeminary(Game& game) {
  FieldPage page{.Name = "EditSeminary", .Title = "Youth of a priest", .Help = kHelpOfSeminary};
  page.Fields = {
      MarkField("Has this youth (else none of it is saved)", &Sheet::UsesClericBackground),
      YouthText("The call", &Sheet::TheCall),
      YouthText("Ecclesiastical training", &Sheet::EcclesiasticalTraining),
      YouthText("Superior's competency", &Sheet::SuperiorCompetency),
      YouthText("Superior's personality", &Sheet::SuperiorPersonality),
      YouthText("Accoutrements", &Sheet::ReligiousAccoutrements),
      YouthText("Place of residency", &Sheet::ResidencyLocation),
      YouthText("Its results", &Sheet::ResidencyResults),
      YouthText("Results of education", &Sheet::EducationResults),
  };
  RunFieldPage(game, page);
}

void RunEditTattoos(Game& game) {
  FieldPage page{.Name = "EditTattoos", .Title = "Tattoos", .Help = kHelpOfTattoos, .Rows = 10};
  std::vector<NamedNumber> places{{kNoPlace, "none"}};
  for (int place = kForehead; place <= kBothLowerArms; ++place) places.push_back({place, TattooPlaceName(place)});
  for (const TattooRecord& tattoo : TattooTable()) {
    page.Fields.push_back(NamedNumberField(tattoo.Name, tattoo.Location, 16, places));
  }
  for (std::size_t place = kForehead; place <= kBothLowerArms; ++place) {
    page.Fields.push_back(MarkField(
        TattooPlaceName(static_cast<int>(place)), [place](auto& sheet) -> auto& {
          return sheet.TattooChoices[place];
        }));
  }
  page.Told = [](Game& owner) {
    return HasTrait(owner.sheet.RaceName, RaceTrait::Tattooed)
               ? std::string(
                     "A mark says that the place is taken. What a tattoo changes of abilities is written in "
                     "under Abilities.")
               : Format("%s bears no tattoos by the rules; the sheets print those of a Pixie Fairy only.",
                        owner.sheet.RaceName);
  };
  RunFieldPage(game, page);
}

void RunEditStanding(Game& game) {
  FieldPage page{.Name = "EditStanding", .Title = "Honor and other counts", .Help = kHelpOfStanding, .Rows = 9};
  page.Fields = {
      NumberField("Honor", &Sheet::Honor, -kMostCount, kMostCount),
      NumberField("Hit dice", &Sheet::HitDiceCount, 0, kMostCount),
      NumberField("Proficiency slots used", &Sheet::ProficiencySlotsUsed, 0, kMostCount),
      NumberField("Free specialization steps", &Sheet::FreeWeaponProficiencySlots, 0, kMostCount),
      NumberField("Minor flaws left to pick", &Sheet::MinorFlawPicksLeft, 0, kMostCount),
      NumberField("Major flaws left to pick", &Sheet::MajorFlawPicksLeft, 0, kMostCount),
      NumberField("Base movement", &Sheet::BaseMovement, 0, kMostCount),
      NumberField("Second movement", &Sheet::MovementRow2, 0, kMostCount),
      NumberField("Barbarian: tracking", &Sheet::BarbarianTracking, -kMostCount, kMostCount),
      NumberField("Barbarian: climbing", &Sheet::BarbarianClimb, -kMostCount, kMostCount),
      NumberField("Barbarian: hiding", &Sheet::BarbarianHide, -kMostCount, kMostCount),
      NumberField("Barbarian: back protection", &Sheet::BarbarianBackProtection, -kMostCount, kMostCount),
      NumberField("Barbarian: detect illusion", &Sheet::BarbarianDetectIllusion, -kMostCount, kMostCount),
      MarkField("Counts as a fighter", &Sheet::IsFighterClass),
      MarkField("Counts as a mage", &Sheet::IsMageClass),
      MarkField("Counts as a thief", &Sheet::IsThiefClass),
      MarkField("Counts as a cleric", &Sheet::IsClericClass),
  };
  for (EditField& field : page.Fields) field.Width = kCountWidth;
  page.Told = [](Game&) {
    return std::string(
        "Honor Die, slots, movement and a Barbarian's numbers follow from race, class and level wherever their tables "
        "know the race or the class.");
  };
  RunFieldPage(game, page);
}

}  // namespace veld
