#include "npc/npc_player.h"

#include <algorithm>

#include "backgrounds/chain_page.h"
#include "generation/sequencer.h"
#include "npc/npc_names.h"
#include "platform/ask_name.h"
#include "platform/control_kinds.h"
#include "rules/ability_effects.h"
#include "rules/class_table.h"
#include "rules/proficiency_table.h"
#include "rules/race_table.h"
#include "rules/skill_table.h"
#include "steps/abilities/step_eight.h"
#include "steps/classes/allotments.h"
#include "steps/classes/class_choice.h"
#include "steps/classes/take_after.h"
#include "steps/family/prior_gates.h"
#include "steps/family/step_six.h"
#include "steps/finish/alignment.h"
#include "steps/finish/equipment_purchase.h"
#include "steps/finish/naming.h"
#include "steps/money/money_bp.h"
#include "steps/money/step_ten.h"
#include "steps/quirks/quirks_and_flaws.h"
#include "steps/race/step_three.h"
#include "steps/race/step_three_menu.h"
#include "steps/skills/pick_dialogs.h"
#include "steps/skills/proficiency_purchase.h"
#include "steps/skills/skill_target.h"
#include "steps/skills/skills.h"
#include "steps/skills/talents.h"
#include "steps/skills/weapon_prof.h"
#include "steps/spells/spell_dealing.h"
#include "steps/spells/spell_selection.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr int kOk = 1;  ///< of the pages with an OK or an Accept

std::size_t At(int number) {
  return static_cast<std::size_t>(number);
}

/// What a named skill or talent is for: by a word of the question, from the top.
struct ItemName {
  std::string_view Question;
  std::string_view Item;
};
constexpr ItemName kItemNames[] = {
    {"Riding, Land-based", "Horse"},
    {"Riding, Airborne", "Pegasus"},
    {"Riding, Sea-based", "Sea Horse"},
    {"Ancient History", "First Kings"},
    {"Local History", "Home County"},
    {"Religion Specific", "Own Faith"},
    {"Culture", "Neighbors"},
    {"Customs and Etiquette", "Nobility"},
    {"Ancient/Dead", "Old Erdran"},
    {"Language", "Orc"},
    {"Brass", "Bugle"},
    {"Exotic", "Jaw Harp"},
    {"Percussion", "Hand Drum"},
    {"Stringed", "Lute"},
    {"Wind", "Flute"},
    {"Artistic Ability", "Carving"},
    {"Animal Training", "Dog"},
    {"Forage", "Woodland"},
    {"Reading Lips", "Common"},
    {"Military History", "Border Wars"},
    {"Anatomy", "Human"},
    {"human dialect", "Valley"},
    {"School Resistant", "Evocation"},
    {"Elemental Resistance", "Fire"},
    {"number of sides", "6"},
};

/// Skills for one BP that anybody can use, for what is left at the end.
constexpr std::string_view kPlainSkills[] = {
    "Weather Sense", "Fire-building", "Swimming: Dog Paddle", "Map Sense",   "Running",  "Resist Persuasion", "Fishing",
    "Rope Use",      "Brewing",       "Current Affairs",      "Idle Gossip", "Bartering"};

}  // namespace

void NpcPlayer::Begin(Game& game, const NpcWishes& wishes, const NpcCalling& calling, const NpcWants& wants,
                      NpcChance& chance) {
  game_ = &game;
  wishes_ = &wishes;
  calling_ = &calling;
  wants_ = &wants;
  chance_ = &chance;
  weapons_.clear();
  refusal_.clear();
  unspentBP_ = 0;
  moneyRolls_ = 0;
}

bool NpcPlayer::ChooseLine(Form& form, int list, std::string_view line) {
  if (form.SelectedText(list) == line) return true;  // a search chose it
  const std::vector<std::string>& items = form.Items(list);
  return form.Choose(list, static_cast<int>(std::ranges::find(items, line) - items.begin()));
}

// --- The ways of a player ------------------------------------------------------------------------------------------

void NpcPlayer::ShowWindow(std::shared_ptr<Form> form) {
  window_ = std::move(form);
  window_->Open();
}

Answer NpcPlayer::DoAskYesNo(const std::string& caption, const std::string& text) {
  if (caption == "Save") return Answer::No;
  if (text.ends_with("Tables?")) return wishes_->hasYouth ? Answer::Yes : Answer::No;
  return Answer::Yes;
}

void NpcPlayer::RunForm(Form& form) {
  using Play = void (NpcPlayer::*)(Form&);
  struct Page {
    std::string_view Name;
    Play How;
  };
  constexpr Page kPages[] = {
      {"StepSix", &NpcPlayer::PlayStepSix},
      {"QuirksandFlaws", &NpcPlayer::PlayQuirks},
      {"QuirksandFlawsMage", &NpcPlayer::PlayQuirks},
      {"StepEight", &NpcPlayer::PlayStepEight},
      {"TakeAfter", &NpcPlayer::PlayTakeAfter},
      {"StepNine", &NpcPlayer::PlayStepNine},
      {"ThiefAbilities", &NpcPlayer::PlayAllotment},
      {"BardAbilities", &NpcPlayer::PlayAllotment},
      {"BountyHunterAbilities", &NpcPlayer::PlayAllotment},
      {"WMABackground", &NpcPlayer::PlayYouth},
      {"HXABackground", &NpcPlayer::PlayYouth},
      {"DVABackground", &NpcPlayer::PlayYouth},
      {"PackageSelect", &NpcPlayer::Leave},
      {"SpellSellection", &NpcPlayer::PlayCantrips},
      {"FreeSpellSellection", &NpcPlayer::PlayFreeSpell},
      {"StepTen", &NpcPlayer::PlayStepTen},
      {"MoneyBP", &NpcPlayer::PlayMoneyBP},
      {"Skills", &NpcPlayer::PlaySkills},
      {"WeaponProf", &NpcPlayer::PlayWeaponProf},
      {"Talents", &NpcPlayer::PlayTalents},
      {"StepFourteen", &NpcPlayer::PlayAlignment},
      {"StepEightteen", &NpcPlayer::PlayNaming},
      {"Equip", &NpcPlayer::PlayShop},
      {"GetName", &NpcPlayer::PlayAskName},
  };
  form.Open();
  const auto page = std::ranges::find(kPages, form.Name(), &Page::Name);
  if (page != std::end(kPages)) {
    (this->*(page->How))(form);
  } else {
    PlayUnknown(form);
  }
  if (!form.IsClosed()) Leave(form);
  if (!form.IsClosed()) form.Close();
}

/// By the close box; a page that asks once more, or that lets nobody out before its OK, gets both.
void NpcPlayer::Leave(Form& form) {
  constexpr int kTries = 4;
  for (int tries = 0; tries < kTries && !form.IsClosed(); ++tries) {
    form.PressCloseBox();
    if (!form.IsClosed()) form.Press(kOk);
  }
}

void NpcPlayer::GiveUp(Form& form, std::string refusal) {
  refusal_ = std::move(refusal);
  form.PressCloseBox();
}

/// A row of each list that has nothing chosen, then OK; where there is none, the first button.
void NpcPlayer::PlayUnknown(Form& form) {
  constexpr int kRounds = 12;  // a page that wants several picks
  for (int round = 0; round < kRounds && !form.IsClosed(); ++round) {
    int button = 0;
    for (std::size_t i = 0; i < form.Controls().size() && !form.IsClosed(); ++i) {
      const Control& control = form.Controls()[i];
      const int id = control.Template.Id;
      if (IsChosenFrom(control.Template.Kind) && control.Selection < 0 && !control.Items.empty()) {
        form.Choose(id, static_cast<int>(chance_->Pick(control.Items.size())));
      } else if (control.Template.Kind == ControlKind::Button && button == 0 && control.Enabled && control.Visible) {
        button = id;
      }
    }
    if (form.IsClosed() || form.Press(kOk) || form.PressDefault()) continue;
    form.Press(button);
  }
}

void NpcPlayer::PlayAskName(Form& form) {
  const std::string question = form.Text(AskNameControl::Prompt);
  std::string answer = "Common";
  const auto found =
      std::ranges::find_if(kItemNames, [&](const ItemName& name) { return Contains(question, name.Question); });
  if (Contains(question, "Talent") && !weapons_.empty()) {
    answer = TrimRight(ProficiencyTable()[At(weapons_.front().Proficiency)].Name);
  } else if (found != std::end(kItemNames)) {
    answer = found->Item;
  }
  form.Type(AskNameControl::Entry, answer);
  form.Press(kOk);
}

// --- Steps 3 to 9 --------------------------------------------------------------------------------------------------

void NpcPlayer::PlayStepThree() {
  OpenStepThree(*game_, RunGeneration);
  const std::shared_ptr<Form> form = window_;
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    for (int point = 0; point < plan_.Burn[At(ability)]; ++point) form->ChooseMenuItem(kFirstBurn + ability);
  }
  if (ChooseLine(*form, StepThreeControl::Races, RaceListText(calling_->RaceRow))) {
    form->Press(StepThreeControl::Continue);
  }
  CloseStepThree(*game_);
  window_.reset();
}

/// Presses each table once, in their order; those that are closed do nothing. Rolls again what the plan can't do with,
/// while its BP are left.
void NpcPlayer::PlayStepSix(Form& form) {
  constexpr int kMostRolls = 40;
  const CharacterSheet& sheet = game_->sheet;
  const int neededClass = game_->IsOn(kSocialClassRestrictions) ? ClassAt(calling_->ClassRow).MinSocialClass : 0;
  const float kept = static_cast<float>(plan_.RaiseBP) + (calling_->TakesAfter.empty() ? 0 : kTakeAfterCost);
  const auto press = [&](Prior prior) { form.Press(StepSixControl::FirstTable + static_cast<int>(prior)); };
  const auto canRoll = [&] { return game_->run.BuildingPoints >= kept + 1; };
  for (std::size_t i = 0; i < kPriorCount && !form.IsClosed(); ++i) {
    const auto prior = static_cast<Prior>(i);
    press(prior);
    if (prior == kSocialClass) {
      for (int rolls = 0; rolls < kMostRolls && sheet.SocialClassIndex < neededClass && canRoll(); ++rolls)
        press(prior);
      if (sheet.SocialClassIndex < neededClass) {
        return GiveUp(form, Format("Needs social class %i, his is %i.", neededClass, sheet.SocialClassIndex));
      }
    }
    // A loving parent brings 5 BP, a bad one a quirk.
    if (prior == kMotherQuality || prior == kFatherQuality) {
      const auto& quality = prior == kMotherQuality ? sheet.MotherQuality : sheet.FatherQuality;
      for (int rolls = 0; rolls < 3 && Contains(quality, "quirk") && canRoll(); ++rolls) press(prior);
    }
  }
  form.Press(kOk);
  // What another order opened comes in further rounds.
  for (int round = 0; round < 3 && !form.IsClosed(); ++round) {
    for (std::size_t i = 0; i < kPriorCount; ++i) press(static_cast<Prior>(i));
    form.Press(kOk);
  }
}

void NpcPlayer::PlayQuirks(Form& form) {
  constexpr int kMostRolls = 200;
  for (int rolls = 0; rolls < kMostRolls && !form.Items(QuirksControl::Owed).empty(); ++rolls) {
    ChooseLine(form, QuirksControl::Table, form.Items(QuirksControl::Owed).front());
    form.Press(QuirksControl::Roll);
  }
  form.Press(kOk);
}

/// Raises what the class needs, in the order of the abilities, and its first ability where there is plenty.
void NpcPlayer::PlayStepEight(Form& form) {
  constexpr int kPlenty = 18;
  constexpr int kGift = 4;
  const RaiseBase base = TakeRaiseBase(*game_);
  const auto& ranges = ClassAt(calling_->ClassRow).AbilityRange;
  RaiseEntries entries{};
  int left = base.BP - (calling_->TakesAfter.empty() ? 0 : static_cast<int>(kTakeAfterCost));
  const auto numberOf = [&](int ability) {
    RaiseAbilities(*game_, base, entries);
    AbilityScore score = AbilityAt(game_->sheet, ability);
    if (ability == kComeliness) score.Whole += ComelinessChange(game_->sheet.Charisma);
    return AbilityAsNumber(score);
  };
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    // Without a wisdom of 6 the alignment would be no choice.
    const float least = ability == kWisdom ? std::max(ranges[At(ability)].Minimum, 6.0F) : ranges[At(ability)].Minimum;
    while (numberOf(ability) < least && left > 0) {
      ++entries[At(ability)];
      --left;
    }
  }
  const int first = wants_->Abilities.empty() ? kStrength : [&] {
    const auto found = std::ranges::find(kAbilityShortNames, wants_->Abilities.front());
    return found == kAbilityShortNames.end() ? 0 : static_cast<int>(found - kAbilityShortNames.begin());
  }();
  if (left >= kPlenty && ranges[At(first)].Maximum >= 99) entries[At(first)] += kGift;
  RaiseAbilities(*game_, base, {});
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    form.Type(StepEightControl::FirstEntry + ability, std::to_string(entries[At(ability)]));
  }
  form.Press(kOk);
}

void NpcPlayer::PlayTakeAfter(Form& form) {
  if (calling_->TakesAfter.empty() || !ChooseLine(form, TakeAfterControl::Races, calling_->TakesAfter))
    return Leave(form);
  form.Press(TakeAfterControl::Yes);
}

void NpcPlayer::PlayStepNine(Form& form) {
  if (!ChooseLine(form, kClassList, ClassAt(calling_->ClassRow).Name)) {
    return GiveUp(form, WhyClassIsMissing(*game_, calling_->ClassRow));
  }
  form.Press(kOk);
}

/// The same to each, the first ones a point more.
void NpcPlayer::PlayAllotment(Form& form) {
  std::vector<int> fields;
  for (const Control& control : form.Controls()) {
    if (control.Template.Kind == ControlKind::Number) fields.push_back(control.Template.Id);
  }
  int left = game_->run.ThiefPointsToSpend;
  for (auto without = static_cast<int>(fields.size()); without > 0; --without) {
    const int share = left / without;
    form.Type(fields[At(without - 1)], std::to_string(share));
    left -= share;
  }
  form.Press(kOk);
}

void NpcPlayer::PlayYouth(Form& form) {
  form.Press(ChainControl::Begin);
  form.Press(ChainControl::Close);
}

// --- Spells and money ----------------------------------------------------------------------------------------------

/// All that he may have, from lists of chance.
void NpcPlayer::PlayCantrips(Form& form) {
  std::vector<int> boxes;
  for (int box = 0; box < static_cast<int>(form.Items(SpellControl::MasterBox).size()); ++box) boxes.push_back(box);
  while (!boxes.empty() && KnownCantrips(*game_) < CantripsToChoose(*game_)) {
    const std::size_t place = chance_->Pick(boxes.size());
    form.Choose(SpellControl::MasterBox, boxes[place]);
    const std::size_t spells = form.Items(SpellControl::MasterList).size();
    const int known = KnownCantrips(*game_);
    if (spells > 0) {
      form.Choose(SpellControl::MasterList, static_cast<int>(chance_->Pick(spells)));
      form.Press(SpellControl::Add);
    }
    if (KnownCantrips(*game_) == known) boxes.erase(boxes.begin() + static_cast<std::ptrdiff_t>(place));
  }
  Leave(form);
}

/// One of the highest list that has any.
void NpcPlayer::PlayFreeSpell(Form& form) {
  for (int box = static_cast<int>(form.Items(SpellControl::MasterBox).size()) - 1; box >= 0 && !form.IsClosed();
       --box) {
    form.Choose(SpellControl::MasterBox, box);
    const std::size_t spells = form.Items(SpellControl::MasterList).size();
    if (spells == 0) continue;
    form.Choose(SpellControl::MasterList, static_cast<int>(chance_->Pick(spells)));
    form.Press(SpellControl::Add);
  }
}

/// Rolls again for who could buy no more than his shirt.
void NpcPlayer::PlayStepTen(Form& form) {
  constexpr int kMostRolls = 3;
  constexpr float kWorthARoll = 5;
  const std::int64_t wanted = WearsArmor() ? 4'500 : 2'000;
  form.Press(StepTenControl::Age);
  form.Press(StepTenControl::Money);
  const auto isPoor = [&] { return PurseWorth(game_->sheet) < wanted && game_->run.BuildingPoints >= kWorthARoll; };
  for (int rolls = 1; rolls < kMostRolls && !form.IsClosed() && isPoor(); ++rolls) form.Press(StepTenControl::Money);
  form.Press(kOk);
}

void NpcPlayer::PlayMoneyBP(Form& form) {
  const bool isAgain = moneyRolls_++ > 0;
  form.Type(MoneyBPControl::Entry, isAgain ? "2" : "0");
  form.Press(kOk);
}

// --- Skills, proficiencies, talents --------------------------------------------------------------------------------

bool NpcPlayer::TakeProficiency(Form& form, std::string_view name) {
  const int used = game_->sheet.ProficiencySlotsUsed;
  return ChooseLine(form, WeaponProfControl::Offered, name) && form.Press(WeaponProfControl::Take) &&
         game_->sheet.ProficiencySlotsUsed != used;
}

void NpcPlayer::PlayWeaponProf(Form& form) {
  constexpr float kShare = 0.35F;
  if (MayUseAny()) form.Mark(WeaponProfControl::AllMode, true);
  const float before = game_->run.BuildingPoints;
  const auto mayPay = [&](float bp) {
    return before - game_->run.BuildingPoints + bp <= std::max(1.0F, before * kShare);
  };
  for (const NpcWeapon& weapon : weapons_) {
    if (ProficiencySlotsAreOut(*game_) || !mayPay(1)) break;
    TakeProficiency(form, TrimRight(ProficiencyTable()[At(weapon.Proficiency)].Name));
  }
  for (const std::string_view style : wants_->Styles) {
    if (!ProficiencySlotsAreOut(*game_) && mayPay(1)) TakeProficiency(form, style);
  }
  if (!weapons_.empty()) {
    const int first = weapons_.front().Proficiency;
    const bool isOpen = SpecializationObstacle(*game_, first, 1).empty();
    const auto cost = static_cast<float>(SpecializationPrice(*game_, first));
    const bool hasSlots = game_->sheet.ProficiencySlotsUsed + static_cast<int>(cost) <= game_->sheet.ProficiencySlots;
    if (isOpen && hasSlots && mayPay(cost) &&
        ChooseLine(form, WeaponProfControl::Held, TrimRight(ProficiencyTable()[At(first)].Name))) {
      form.Press(WeaponProfControl::Specialize);
    }
  }
  Leave(form);
}

void NpcPlayer::PlayTalents(Form& form) {
  constexpr float kShare = 0.45F;  // talents are dear beside skills
  constexpr float kEnough = 14;
  const float before = game_->run.BuildingPoints;
  for (const std::string_view name : wants_->Talents) {
    const float spent = before - game_->run.BuildingPoints;
    if (before < kEnough || !ChooseLine(form, TalentsControl::Offered, name)) continue;
    const int price = TalentPriceNow(*game_, FindTalent(*game_, name));
    if (price > 0 && spent + static_cast<float>(price) <= before * kShare) form.Press(TalentsControl::Add);
  }
  Leave(form);
}

/// Selects a skill, or what is held of a family of skills. False if it is not on sale.
bool NpcPlayer::SelectSkill(Form& form, std::string_view name) {
  if (form.Selection(SkillsControl::Category) != 0) form.Choose(SkillsControl::Category, 0);
  form.Type(SkillsControl::Search, name);
  const std::vector<std::string>& items = form.Items(SkillsControl::Available);
  const std::string member = std::string(name) + ": ";
  const auto held = std::ranges::find_if(items, [&](const std::string& item) { return item.starts_with(member); });
  const int place = static_cast<int>((held != items.end() ? held : std::ranges::find(items, name)) - items.begin());
  return form.Choose(SkillsControl::Available, place);
}

/// Spends the BP on what the class lives by: each skill once, then each again and again, then what anybody can use.
void NpcPlayer::BuySkills(Form& form) {
  constexpr int kMostRounds = 12;
  constexpr int kWellKnown = 80;
  const auto price = [&] { return static_cast<float>(ReadDecimalPrefix(form.Text(SkillsControl::Price))); };
  // Who could not buy armor and a pack keeps some BP for his purse.
  const std::int64_t purse = PurseWorth(game_->sheet);
  const std::int64_t enough = WearsArmor() ? 6'000 : 2'500;
  const float kept = purse >= enough ? 0 : purse >= enough / 2 ? 1 : kMostKeptBP;
  std::vector<std::string_view> names = wants_->Skills;
  bool arePlain = false;
  for (int round = 0; round < kMostRounds && game_->run.BuildingPoints - kept >= 0.5F; ++round) {
    const float before = game_->run.BuildingPoints;
    for (const std::string_view name : names) {
      const float left = game_->run.BuildingPoints - kept;
      if (left < 0.5F) break;
      const SkillTarget target = FindTarget(game_->sheet, name);
      const int mastery = Mastery(game_->sheet, target);
      if (mastery >= kWellKnown || (round == 0 && mastery > 0) || PriceOf(*game_, target) > left) continue;
      if (!SelectSkill(form, name)) continue;
      // Who betters a skill takes two steps at once.
      for (int steps = round == 0 ? 1 : 2; steps > 0; --steps) {
        if (price() > game_->run.BuildingPoints - kept || !form.Text(SkillsControl::Refusal).empty()) break;
        form.Press(SkillsControl::Add);
      }
    }
    if (round == 0 || game_->run.BuildingPoints < before) continue;
    if (arePlain) break;
    arePlain = true;
    names.assign(std::begin(kPlainSkills), std::end(kPlainSkills));
  }
}

/// The picks and points that a youth has earned.
void NpcPlayer::TakeFreeSkills(Form& form) {
  const auto picks = [&] { return game_->run.FreeSkillPicks + game_->run.VeteranFreeSkills; };
  for (const std::string_view name : wants_->Skills) {
    if (picks() <= 0) break;
    if (SelectSkill(form, name)) form.Press(SkillsControl::TakeAsFree);
  }
  for (int points = game_->run.BonusSkillPoints + game_->run.PackageBonusPoints; points > 0; --points) {
    const std::size_t owned = form.Items(SkillsControl::Owned).size();
    if (owned == 0 || game_->run.BonusSkillPoints + game_->run.PackageBonusPoints <= 0) break;
    form.Choose(SkillsControl::Owned, static_cast<int>(chance_->Pick(owned)));
    form.Press(SkillsControl::BonusPoints);
  }
}

void NpcPlayer::PlaySkills(Form& form) {
  ChooseWeapons();
  form.Press(SkillsControl::Proficiencies);
  form.Press(SkillsControl::Talents);
  TakeFreeSkills(form);
  BuySkills(form);
  unspentBP_ = game_->run.BuildingPoints;
  form.Press(kOk);
}

// --- Alignment and name -------------------------------------------------------------------------------------------

void NpcPlayer::PlayAlignment(Form& form) {
  const std::vector<std::string>& names = form.Items(AlignmentControl::Alignments);
  std::size_t place = chance_->Pick(names.size());
  for (std::size_t i = 0; i < names.size() && !wishes_->alignment.empty(); ++i) {
    if (EqualsIgnoringCase(TrimRight(names[i]), TrimRight(wishes_->alignment))) place = i;
  }
  form.Choose(AlignmentControl::Alignments, static_cast<int>(place));
  form.Press(kOk);
}

void NpcPlayer::PlayNaming(Form& form) {
  std::string name(TrimRight(wishes_->name));
  const NpcNames& names = NamesOfRace(game_->sheet.RaceName, chance_->Pick(2) == 0);
  const auto& first = game_->sheet.Gender == "Female" ? names.Women : names.Men;
  if (name.empty()) {
    name = first[chance_->Pick(first.size())];
    if (!names.Surnames.empty()) (name += ' ') += names.Surnames[chance_->Pick(names.Surnames.size())];
  }
  form.Type(NamingControl::CharacterName, name);
  form.Press(kOk);
}

}  // namespace veld
