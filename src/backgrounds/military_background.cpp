#include "backgrounds/military_background.h"

#include <cstdlib>

#include "backgrounds/chain_page.h"
#include "backgrounds/gambling.h"
#include "backgrounds/youth_quirks.h"
#include "dice/building_points.h"
#include "dice/dice.h"
#include "dice/keep_roll.h"
#include "rules/military_tables.h"
#include "rules/named_rows.h"
#include "steps/skills/grants.h"
#include "steps/skills/pick_dialogs.h"
#include "text/format.h"
#include "text/numbers.h"

namespace veld {

namespace {

// --- The page ------------------------------------------------------------------------------------------------------

namespace Line {
constexpr int Camp = 200;
constexpr int Quality = 201;
constexpr int Results = 202;
constexpr int FirstAccident = 203;
constexpr int Specialty = 205;
constexpr int Advanced = 206;
constexpr int Hostilities = 207;
constexpr int FirstWar = 208;
constexpr int Attitude = 211;
constexpr int Occupation = 212;
constexpr int FirstTour = 213;
}  // namespace Line

constexpr int kWarLines = 3;
constexpr int kTourLines = 3;

constexpr ChainGroup kGroups[] = {
    {"Type of Training Camp", Line::Camp},
    {"Quality of Basic Training", Line::Quality},
    {"Results of Basic Training", Line::Results},
    {"Training Accidents", Line::FirstAccident, 2},
    {"Specialty Assignment", Line::Specialty},
    {"Quality of Advanced\nIndividual Training", Line::Advanced},
    {"State of Hostilities", Line::Hostilities},
    {"War", Line::FirstWar, kWarLines},
    {"Local Attitude to\nOccupying Force", Line::Attitude},
    {"Notable Events During\nOccupation OR to Quell\nGuerilla Movement", Line::Occupation},
    {"Notable Events During\nNon-Combat Tour of Duty", Line::FirstTour, kTourLines},
};
constexpr auto kWMABackgroundControls =
    ChainControls<kGroups>("The Warmonger's Almanac to Slaughtering Foes: Training Tables");
constexpr std::string_view kWMABackgroundHelp =
    "How he became a fighter: the training camp, what it taught him, what broke there, his specialty, and the wars or "
    "dull garrisons of his first years under arms. Begin rolls one table after another; each result is shown beside "
    "its name, and What this brought lists every skill, proficiency, quirk, point of Honor and coin that came of "
    "it.\n\n"
    "Where you are asked whether to keep a result, keeping it is free and refusing it costs 1 BP, as often as you can "
    "pay. Pay when the result is a wound or worse: a soldier can die here, and then the run is over, with the "
    "character in memory. A bad camp is only a story. Close goes on when all has been rolled.";
constexpr FormTemplate kWMABackground{"WMABackground", "Warmonger's Almanac", kWMABackgroundControls,
                                      kWMABackgroundHelp};

// --- Dice ----------------------------------------------------------------------------------------------------------

constexpr int kPhobiaPercent = 25;
constexpr int kCriticalHit = 20;  // of 1d20
constexpr int kBurnPercent = 20;
constexpr int kDeathPercent = 50;
constexpr int kPoleArmSize = 2;  // WeaponSizeClass of who trains with pole arms

/// A die inside a table, that the player is told of and may refuse.
int Roll(ChainPage& page, std::string_view prompt, int sides, int count = 1) {
  page.game.dice.RollContextText = std::string(prompt);
  const int result = AskKeepRoll(page.game, page.form, sides, count);
  ShowChainBP(page);
  return result;
}

bool RollsAtMost(ChainPage& page, std::string_view prompt, int percent) {
  return Roll(page, prompt, 100) <= percent;
}

/// A saving throw; the prompt tells the number to reach.
bool MakesSave(ChainPage& page, std::string_view prompt, int target) {
  return Roll(page, Format(prompt, target), 20) >= target;
}

bool IsKept(ChainPage& page, std::string_view table, std::string_view result) {
  return IsResultKept(page.game, table, result);
}

void Add(int& number, int change) {
  number = AddSaturated(number, change);
}

// --- Tables 2C to 2E: the training ---------------------------------------------------------------------------------

/// Charm opens doors, and so does being disliked.
int CampModifierOfCharisma(const CharacterSheet& sheet) {
  return std::abs(SaturateToInt(ReadNumberPrefix(sheet.CharismaReactionAdj)) / 2);
}

bool TryCamp(ChainPage& page) {
  Game& game = page.game;
  const int total =
      RollDice(game, 6, 3) + CampModifierOfClass(game.sheet.SocialClassIndex) + CampModifierOfCharisma(game.sheet);
  const TrainingCamp& camp = TrainingCampOf(total);
  if (!IsKept(page, MilitaryTable::Camp, camp.Text)) return false;
  game.sheet.TrainingCampType = camp.Text;
  game.run.TrainingCampModifier = camp.QualityModifier;
  return true;
}

bool TryQuality(ChainPage& page) {
  Game& game = page.game;
  const TrainingQuality& quality = TrainingQualityOf(RollDice(game, 6, 3) + game.run.TrainingCampModifier);
  if (!IsKept(page, MilitaryTable::Quality, quality.Text)) return false;
  game.sheet.BasicTrainingQuality = quality.Text;
  game.run.BasicResultsModifier = quality.ResultsModifier;
  game.run.AccidentModifier = quality.AccidentModifier;
  game.run.WarModifier = quality.WarModifier;
  game.run.NonProficiencyPenalty = quality.NonProficiencyPenalty;
  return true;
}

bool TryResults(ChainPage& page) {
  Game& game = page.game;
  const TrainingResult& result = TrainingResultOf(RollDice(game, 6, 3) + game.run.BasicResultsModifier);
  if (!IsKept(page, MilitaryTable::Results, result.Offered)) return false;
  game.run.AdvancedQualityModifier = result.AdvancedModifier;
  game.sheet.BasicTrainingResults = result.Text;
  GiveGrants(game, result.Grants);
  if (result.PercentHigh == 0) return true;
  const bool isAtMost = RollsAtMost(page, result.Prompt, result.PercentHigh);
  if (isAtMost) game.sheet.BasicTrainingResults = result.TextAtMost;
  GiveGrants(game, isAtMost ? result.GrantsAtMost : result.GrantsAbove);
  return true;
}

// --- Table 2F: accidents -------------------------------------------------------------------------------------------

/// False if the character has the outcome already, or can not have it.
bool CanHappen(const Game& game, Accident accident) {
  switch (accident) {
    case Accident::HeatStroke:
      return game.run.HeatStrokeSuffered == 0;
    case Accident::Impaled:
      return game.sheet.ClassLevels[ClassRow::HolyKnight] == 0;
    case Accident::Trampled:
      return !HoldsQuirk(game, YouthQuirk::MulePhobia);
    case Accident::Shot:
      return !HoldsQuirk(game, YouthQuirk::Blind) && QuirksHeld(game, YouthQuirk::LossOfEye) <= 1 &&
             QuirksHeld(game, YouthQuirk::BlindInOneEye) <= 1;
    case Accident::Burned:
      return !HoldsQuirk(game, YouthQuirk::FacialBurns);
    case Accident::Ladder:
    case Accident::Trebuchet:
      return true;
  }
  return true;
}

/// The character loses an eye, and is blind if it was the last. Returns the text of it.
std::string_view LoseEye(Game& game, std::string_view text) {
  AddQuirk(game, YouthQuirk::LossOfEye);
  SetQuirk(game, YouthQuirk::NoDepthPerception);
  const int lost = QuirksHeld(game, YouthQuirk::LossOfEye) + QuirksHeld(game, YouthQuirk::BlindInOneEye);
  if (lost < 2) return text;
  for (const int row : {YouthQuirk::LossOfEye, YouthQuirk::BlindInOneEye, YouthQuirk::VisionImpaired,
                        YouthQuirk::FarVisionImpaired, YouthQuirk::NoDepthPerception}) {
    QuirkCount(game, row) = 0;
  }
  SetQuirk(game, YouthQuirk::Blind);
  return kBlindedByBolt;
}

/// Who is impaled takes up the weapon: a spear, or a pole arm where he can wield one.
std::string_view Impale(Game& game, const AccidentRow& row) {
  if (game.sheet.WeaponSizeClass < kPoleArmSize) {
    GiveGrants(game, "prof Spear");
    return row.Offered;
  }
  GiveGrants(game, "[polearm pick]");
  return kImpaledOnPoleArm;
}

/// Honor is lost by who laughed and who did not; only a player with BP left is put to the test at all.
std::string_view WatchFall(ChainPage& page, const AccidentRow& row) {
  if (!CanPay(page.game)) return row.Offered;
  const bool made = MakesSave(page, row.Prompt, page.game.sheet.SaveApology[kBestSave]);
  GiveGrants(page.game, "Honor-=1");
  return made ? row.Missed : row.Hit;
}

/// A row that percentile dice decide.
std::string_view SufferAtMost(ChainPage& page, const AccidentRow& row, int percent, int quirk) {
  if (!RollsAtMost(page, row.Prompt, percent)) return row.Missed;
  SetQuirk(page.game, quirk);
  return row.Hit;
}

std::string_view Suffer(ChainPage& page, const AccidentRow& row) {
  Game& game = page.game;
  switch (row.What) {
    case Accident::Ladder:
      return WatchFall(page, row);
    case Accident::HeatStroke:
      game.run.HeatStrokeSuffered = 1;
      return row.Offered;
    case Accident::Impaled:
      return Impale(game, row);
    case Accident::Trampled:
      return SufferAtMost(page, row, kPhobiaPercent, YouthQuirk::MulePhobia);
    case Accident::Shot:
      return Roll(page, row.Prompt, 20) == kCriticalHit ? LoseEye(game, row.Hit) : row.Missed;
    case Accident::Burned:
      return SufferAtMost(page, row, kBurnPercent, YouthQuirk::FacialBurns);
    case Accident::Trebuchet:
      if (!RollsAtMost(page, row.Prompt, kDeathPercent)) return row.Missed;
      game.run.CharacterDead = 1;
      return row.Hit;
  }
  return {};
}

bool TryAccident(ChainPage& page, std::size_t slot) {
  Game& game = page.game;
  const AccidentRow& row = AccidentOf(RollDice(game, 6, 2) + game.run.AccidentModifier);
  if (!CanHappen(game, row.What)) return false;
  const bool isBig = row.What == Accident::Impaled && game.sheet.WeaponSizeClass >= kPoleArmSize;
  if (!IsKept(page, MilitaryTable::Accidents, isBig ? kImpaledOnPoleArm : row.Offered)) return false;
  game.sheet.TrainingAccidents[slot] = Suffer(page, row);
  return true;
}

/// None after a horrific training: there was nothing left to go wrong.
int RollAccidentCount(ChainPage& page) {
  if (page.game.sheet.BasicTrainingQuality == "Horrific") return 0;
  const int roll = Roll(page, MilitaryPrompt::Accidents, 4);
  return roll <= 2 ? 0 : roll - 2;
}

void SufferAccidents(ChainPage& page) {
  for (int left = RollAccidentCount(page); left > 0 && page.game.run.CharacterDead == 0; --left) {
    const auto slot = static_cast<std::size_t>(left - 1);
    if (!RollChainTable(page, MilitaryTable::Accidents, [&] { return TryAccident(page, slot); })) continue;
    ShowChainLine(page, Line::Specialty - left, page.game.sheet.TrainingAccidents[slot]);
  }
}

// --- Tables 2G and 2H, and the quality ladders ---------------------------------------------------------------------

bool TrySpecialty(ChainPage& page) {
  Game& game = page.game;
  const std::string_view specialty = SpecialtyOf(game.sheet.RaceName, game.sheet.ClassName, RollDice(game, 100, 1));
  if (!specialty.empty() && !IsKept(page, MilitaryTable::Specialty, specialty)) return false;
  game.sheet.SpecialtyAssignment = specialty;
  return true;
}

bool TryAdvanced(ChainPage& page) {
  Game& game = page.game;
  const AdvancedTraining& training = AdvancedTrainingOf(RollDice(game, 6, 3) + game.run.AdvancedQualityModifier);
  if (!IsKept(page, MilitaryTable::Advanced, training.Text)) return false;
  game.sheet.AdvancedTrainingQuality = training.Text;
  Add(game.run.WarModifier, training.WarModifier);
  return true;
}

template <typename Training>
bool IsTrainedSo(const Game& game, const Training& training) {
  return game.sheet.SpecialtyAssignment == training.Specialty && game.sheet.AdvancedTrainingQuality == training.Quality;
}

void TrainSpecialty(ChainPage& page) {
  Game& game = page.game;
  for (const SpecialtyTraining& training : SpecialtyTrainings()) {
    if (IsTrainedSo(game, training)) GiveGrants(game, training.Grants);
  }
  for (const RolledTraining& training : RolledTrainings()) {
    if (!IsTrainedSo(game, training)) continue;
    const int roll = Roll(page, training.Prompt, training.Sides);
    for (const RolledTraining::Row& row : training.Rows) {
      if (roll > row.High) continue;
      GiveGrants(game, row.Grants);
      break;
    }
  }
}

// --- Table 2L: the tour of duty without combat ---------------------------------------------------------------------

std::string WasteMoney(ChainPage& page) {
  const int percent = Roll(page, MilitaryPrompt::WastedMoney, 4) * 10;
  Add(page.game.run.MoneyBonusPercent, -percent);
  return Format(kMoneyWasted, percent);
}

std::string TakeToDrink(ChainPage& page, std::string_view text) {
  if (MakesSave(page, MilitaryPrompt::Alcoholic, page.game.sheet.SavePoison[kBestSave])) return std::string(text);
  SetQuirk(page.game, YouthQuirk::Alcoholic);
  return std::string(text) + std::string(kStillAlcoholic);
}

void GainPercentile(ChainPage& page, std::string_view prompt, AbilityScore& score) {
  Add(score.Percentile, Roll(page, prompt, 20));
  NormalizeAbility(score);
}

std::string TakeTour(ChainPage& page, const TourRow& row) {
  Game& game = page.game;
  switch (row.What) {
    case TourEvent::DancingGirls:
      return WasteMoney(page);
    case TourEvent::Alcoholic:
      return TakeToDrink(page, row.Text);
    case TourEvent::Gambler:
      RunGambler(page, GamblerPrompts::Told);
      break;
    case TourEvent::GymRat:
      GainPercentile(page, MilitaryPrompt::GymStrength, game.sheet.Strength);
      GainPercentile(page, MilitaryPrompt::GymConstitution, game.sheet.Constitution);
      break;
    case TourEvent::Granted:
      GiveGrants(game, row.Grants);
      break;
  }
  return std::string(row.Text);
}

bool TryTour(ChainPage& page, std::string& text) {
  Game& game = page.game;
  const TourRow& row = TourOf(RollDice(game, 100, 1) + game.run.NonCombatEventModifier);
  if (row.What == TourEvent::Alcoholic && HoldsQuirk(game, YouthQuirk::Alcoholic)) return false;
  if (!IsKept(page, MilitaryTable::Tour, row.Text)) return false;
  text = TakeTour(page, row);
  return true;
}

/// One round, shown in one of the three lines if there is one for it. The last slot is remembered by nobody.
void RunTour(ChainPage& page, int slot, int line) {
  std::string text;
  if (!RollChainTable(page, MilitaryTable::Tour, [&] { return TryTour(page, text); })) return;
  auto& events = page.game.sheet.NonCombatTourEvents;
  if (slot + 1 < static_cast<int>(events.size())) events[static_cast<std::size_t>(slot)] = text;
  if (line < kTourLines) ShowChainLine(page, Line::FirstTour + line, text);
}

/// Rounds count down. `shift` is how far the slot is above the line.
void RunTours(ChainPage& page, std::string_view prompt, int sides, int shift = 0) {
  for (int left = Roll(page, prompt, sides); left > 0; --left) RunTour(page, left - 1 + shift, left - 1);
}

// --- Table 2J: war -------------------------------------------------------------------------------------------------

void GainExperience(CharacterSheet& sheet, float gain) {
  for (std::size_t row = 0; row < sheet.ClassLevels.size(); ++row) {
    if (sheet.ClassLevels[row] > 0) sheet.ClassExperience[row] += gain;
  }
}

std::string SurviveSiege(ChainPage& page, const WarRow& row) {
  Game& game = page.game;
  const int target = AddSaturated(game.sheet.Constitution.Whole, 5);
  if (Roll(page, Format(row.Prompt, target), 20) > target) return std::string(row.Failed);
  const int pounds = Roll(page, MilitaryPrompt::SiegePounds, 6, 2);
  Add(game.sheet.WeightLbs, -pounds);
  GiveGrants(game, "Honor-=2");
  return Format(row.Made, pounds);
}

/// A war that a save decides. Only the last stand kills for good; the other deaths are words.
std::string FightWithSave(ChainPage& page, const WarRow& row, std::string_view opponents) {
  Game& game = page.game;
  const bool made = MakesSave(page, row.Prompt, game.sheet.SaveDeathMagic[kBestSave] - row.SaveBonus);
  if (made && row.What == WarEvent::Routed) GiveGrants(game, "Honor-=2");
  std::string text = Format(std::string(row.Begins) + std::string(made ? row.Made : row.Failed), opponents);
  if (row.What == WarEvent::Routing) {
    text += kExperienceOfRouting;
    GainExperience(game.sheet, 300);
  }
  if (row.What == WarEvent::Lynchpin && !made) game.run.CharacterDead = 1;
  if (row.What == WarEvent::Lynchpin && made) {
    GiveGrants(game, "Honor+=4");
    GainExperience(game.sheet, 400);
  }
  return text;
}

std::string Fight(ChainPage& page, const WarRow& row, std::string_view opponents) {
  constexpr int kPortionPercent = 25;
  switch (row.What) {
    case WarEvent::Siege:
      return SurviveSiege(page, row);
    case WarEvent::Routed:
    case WarEvent::PyrrhicVictory:
    case WarEvent::Routing:
    case WarEvent::Lynchpin:
      return FightWithSave(page, row, opponents);
    case WarEvent::Flanking: {
      std::string text = Format(row.Begins, opponents);
      if (RollsAtMost(page, row.Prompt, kPortionPercent)) text += row.Made;
      return text;
    }
    case WarEvent::Report:
    case WarEvent::Prison:
      break;
  }
  return Format(row.Offered, opponents);
}

/// The years in a camp are known before the player is asked whether to keep them.
bool TryPrison(ChainPage& page, const WarRow& row, std::string& text) {
  Game& game = page.game;
  const int years = RollDice(game, 4, 1) + 1;
  text = Format(row.Offered, years, RollDice(game, 12, 2));
  if (!IsKept(page, MilitaryTable::War, text)) return false;
  Add(game.sheet.Age, years);
  GiveGrants(game, "Strength%-=5d20 | Constitution%-=5d20");
  return true;
}

std::string RollOpponents(ChainPage& page) {
  std::string_view opponents;
  RollChainTable(page, MilitaryTable::Opponents, [&] {
    opponents = OpponentsOf(RollDice(page.game, 100, 1));
    return IsKept(page, MilitaryTable::Opponents, opponents);
  });
  return std::string(opponents);
}

bool TryWar(ChainPage& page, std::string& text) {
  Game& game = page.game;
  const WarRow& row = WarOf(RollDice(game, 6, 3) + game.run.WarModifier);
  if (row.What == WarEvent::Prison) return TryPrison(page, row, text);
  const std::string opponents = row.NamesOpponents ? RollOpponents(page) : std::string();
  const std::string offered = row.NamesOpponents ? Format(row.Offered, opponents) : std::string(row.Offered);
  if (!IsKept(page, MilitaryTable::War, offered)) return false;
  text = Fight(page, row, opponents);
  return true;
}

void RunWar(ChainPage& page, int slot) {
  std::string text;
  if (!RollChainTable(page, MilitaryTable::War, [&] { return TryWar(page, text); })) return;
  page.game.sheet.Wars[static_cast<std::size_t>(slot)] = text;
  ShowChainLine(page, Line::FirstWar + slot, text);
}

// --- Tables 2K: the occupation -------------------------------------------------------------------------------------

bool TryOccupation(ChainPage& page) {
  Game& game = page.game;
  const OccupationRow& row = OccupationOf(RollDice(game, 100, 1));
  if (row.What == OccupationEvent::Pelted && HoldsQuirk(game, YouthQuirk::TemperTantrums)) return false;
  if (!IsKept(page, MilitaryTable::Occupation, row.Text)) return false;
  game.sheet.OccupationEvents = row.Text;
  switch (row.What) {
    case OccupationEvent::Vigil:
      game.run.VigilBuster = 1;
      break;
    case OccupationEvent::HeartsAndMinds:
      GiveGrants(game, "Parley");
      break;
    case OccupationEvent::Pelted:
      SetQuirk(game, YouthQuirk::TemperTantrums);
      break;
    case OccupationEvent::RiotVolunteer:
      game.run.RiotVolunteer = 1;
      break;
  }
  return true;
}

/// What being shot at or trapped so many times makes of a mind.
std::string SufferGuerilla(ChainPage& page, const GuerillaRow& row) {
  if (row.TimesSides == 0) return std::string(row.Text);
  const int times = Roll(page, row.TimesPrompt, row.TimesSides);
  const int percent = times * row.PercentEach;
  std::string text = Format(row.Text, times);
  if (!RollsAtMost(page, Format(row.ParanoiaPrompt, percent), percent)) return text;
  SetQuirk(page.game, YouthQuirk::Paranoid);
  return text + std::string(kBecameParanoid);
}

bool TryGuerilla(ChainPage& page) {
  Game& game = page.game;
  const GuerillaRow& row = GuerillaOf(RollDice(game, 100, 1));
  if (row.TimesSides > 0 && HoldsQuirk(game, YouthQuirk::Paranoid)) return false;
  if (!IsKept(page, MilitaryTable::Guerilla, row.Offered)) return false;
  game.sheet.GuerillaEvents = SufferGuerilla(page, row);
  return true;
}

void MeetLocals(ChainPage& page, Attitude attitude) {
  Game& game = page.game;
  switch (attitude) {
    case Attitude::Friendly:
      return RunTours(page, MilitaryPrompt::OccupationTours, 3);
    case Attitude::Ambivalent:
      game.run.NonCombatEventModifier = -10;
      return RunTours(page, MilitaryPrompt::AmbivalentTours, 3);
    case Attitude::Uppity:
      RollChainTable(page, MilitaryTable::Occupation, [&] { return TryOccupation(page); });
      return ShowChainLine(page, Line::Occupation, game.sheet.OccupationEvents);
    case Attitude::Hostile:
      RollChainTable(page, MilitaryTable::Guerilla, [&] { return TryGuerilla(page); });
      return ShowChainLine(page, Line::Occupation, game.sheet.GuerillaEvents);
  }
}

void Occupy(ChainPage& page) {
  Attitude attitude = Attitude::Friendly;
  RollChainTable(page, MilitaryTable::Attitude, [&] {
    const AttitudeRow& row = AttitudeOf(RollDice(page.game, 100, 1));
    if (!IsKept(page, MilitaryTable::Attitude, row.Text)) return false;
    page.game.sheet.OccupationAttitude = row.Text;
    attitude = row.What;
    return true;
  });
  ShowChainLine(page, Line::Attitude, page.game.sheet.OccupationAttitude);
  MeetLocals(page, attitude);
}

// --- Table 2I, and what it leads to --------------------------------------------------------------------------------

/// The rounds of a cold war without fighting lie one slot higher than they are shown.
std::string_view FightColdWar(ChainPage& page) {
  if (Roll(page, MilitaryPrompt::ColdWar, 10) <= kHighestUneventful) {
    RunTours(page, MilitaryPrompt::PeaceTours, 4, 1);
    return kUneventful;
  }
  RunWar(page, 0);
  return kColdWarFought;
}

/// What follows the state; returns what is appended to its text.
std::string_view LiveThrough(ChainPage& page, Hostilities state) {
  switch (state) {
    case Hostilities::ExtendedPeace:
      page.game.run.VeteranFreeSkills = Roll(page, MilitaryPrompt::FreeSkills, 3);
      break;
    case Hostilities::Peace:
      RunTours(page, MilitaryPrompt::PeaceTours, 4);
      break;
    case Hostilities::ColdWar:
      return FightColdWar(page);
    case Hostilities::War:
      for (int left = Roll(page, MilitaryPrompt::Wars, 3); left > 0; --left) RunWar(page, left - 1);
      Occupy(page);
      break;
    case Hostilities::PostWar:
      RunTour(page, 0, 0);
      break;
  }
  return {};
}

void RunTourOfDuty(ChainPage& page) {
  const HostilitiesRow* row = nullptr;
  const bool stands = RollChainTable(page, MilitaryTable::Hostilities, [&] {
    row = &HostilitiesOf(RollDice(page.game, 20, 1));
    return IsKept(page, MilitaryTable::Hostilities, row->Text);
  });
  if (!stands) return;
  ShowChainLine(page, Line::Hostilities, row->Text);
  RunChainPart(page, MilitaryTable::Hostilities, [&] {
    const std::string text = std::string(row->Text) + std::string(LiveThrough(page, row->State));
    ShowChainLine(page, Line::Hostilities, text);
    if (page.game.run.CharacterDead == 0) page.game.sheet.HostilitiesState = text;
  });
}

/// A table whose text is one field and one line.
template <typename Field>
void RollLine(ChainPage& page, std::string_view table, bool (*tryOnce)(ChainPage&), int line, const Field& text) {
  if (RollChainTable(page, table, [&] { return tryOnce(page); })) ShowChainLine(page, line, text);
}

void RunMilitaryBackground(ChainPage& page) {
  const CharacterSheet& sheet = page.game.sheet;
  RollLine(page, MilitaryTable::Camp, TryCamp, Line::Camp, sheet.TrainingCampType);
  RollLine(page, MilitaryTable::Quality, TryQuality, Line::Quality, sheet.BasicTrainingQuality);
  RollLine(page, MilitaryTable::Results, TryResults, Line::Results, sheet.BasicTrainingResults);
  SufferAccidents(page);
  if (page.game.run.CharacterDead != 0) return;
  RollLine(page, MilitaryTable::Specialty, TrySpecialty, Line::Specialty, sheet.SpecialtyAssignment);
  RollLine(page, MilitaryTable::Advanced, TryAdvanced, Line::Advanced, sheet.AdvancedTrainingQuality);
  const std::string training = Format("%s: %s", sheet.SpecialtyAssignment, sheet.AdvancedTrainingQuality);
  RunChainPart(page, training, [&] { TrainSpecialty(page); });
  RunTourOfDuty(page);
}

}  // namespace

void RunWMABackground(Game& game) {
  RunChainPage(game, kWMABackground, kGroups, RunMilitaryBackground);
}

}  // namespace veld
