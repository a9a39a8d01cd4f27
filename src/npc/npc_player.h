#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "npc/npc_calling.h"
#include "npc/npc_class_rows.h"
#include "platform/form.h"
#include "platform/no_front_end.h"

namespace veld {

inline constexpr int kWeaponCategory = 20;  ///< of the goods
/// BP that he keeps for his purse where he is poor; a part of a BP may be left besides.
inline constexpr float kMostKeptBP = 2;

/// A weapon that he may use, as it is learned and as it is sold.
struct NpcWeapon {
  int Proficiency = -1;
  const EquipmentRecord* Good = nullptr;
};

/// Plays the generation of one character, form by form. A form that he does not know he answers with its first choices
/// and its OK, else he leaves it by its close box; every form is left in the end.
class NpcPlayer : public NoFrontEnd {
 public:
  /// Learns the names of the goods that are sold: once for a list, which must outlive its use.
  void LearnGoods(const Game& game);
  /// What he plays for from now on. The game is the one whose platform he is.
  void Begin(Game& game, const NpcWishes& wishes, const NpcCalling& calling, const NpcWants& wants, NpcChance& chance);
  /// The plan for the scores that the next roll gives.
  void SetPlan(const NpcAbilityPlan& plan) { plan_ = plan; }

  /// Step 3: burns, takes the race, and continues to the end of the run.
  void PlayStepThree();

  float UnspentBP() const { return unspentBP_; }           ///< what he left to be cashed
  const std::string& Refusal() const { return refusal_; }  ///< why the run did not come to its end, if he knows

  void RunForm(Form& form) override;
  void ShowWindow(std::shared_ptr<Form> form) override;
  std::int64_t Now() const override { return 1; }
  bool LeavesNoTrace() const override { return true; }

 protected:
  void DoShowMessage(const std::string&, const std::string&) override {}
  Answer DoAskYesNo(const std::string& caption, const std::string& text) override;

 private:
  // A page each.
  void PlayStepSix(Form& form);
  void PlayQuirks(Form& form);
  void PlayStepEight(Form& form);
  void PlayTakeAfter(Form& form);
  void PlayStepNine(Form& form);
  void PlayAllotment(Form& form);
  void PlayYouth(Form& form);
  void PlayCantrips(Form& form);
  void PlayFreeSpell(Form& form);
  void PlayStepTen(Form& form);
  void PlayMoneyBP(Form& form);
  void PlaySkills(Form& form);
  void PlayWeaponProf(Form& form);
  void PlayTalents(Form& form);
  void PlayAlignment(Form& form);
  void PlayNaming(Form& form);
  void PlayShop(Form& form);
  void PlayAskName(Form& form);
  void PlayUnknown(Form& form);
  void Leave(Form& form);
  void GiveUp(Form& form, std::string refusal);

  /// Chooses the line of this text. False if the list has none.
  static bool ChooseLine(Form& form, int list, std::string_view line);
  bool TakeProficiency(Form& form, std::string_view name);
  bool SelectSkill(Form& form, std::string_view name);
  void BuySkills(Form& form);
  void TakeFreeSkills(Form& form);
  std::vector<NpcWeapon> UsableWeapons() const;
  bool MayUse(int proficiency) const;
  bool MayUseAny() const;  ///< one of his classes has no list of weapons
  std::int64_t MoneyToCome() const;

  bool Buy(Form& form, std::string_view name, float keptRoom = 0, std::int64_t keptCopper = 0);
  bool BuyFirst(Form& form, const std::vector<std::string_view>& names, float keptRoom = 0,
                std::int64_t keptCopper = 0);
  void BuyWeapons(Form& form);
  void ChooseWeapons();
  float Allowance() const;
  const EquipmentRecord* GoodNamed(std::string_view name) const;
  bool WearsArmor() const { return !wants_->Armor.empty(); }

  Game* game_ = nullptr;
  const NpcWishes* wishes_ = nullptr;
  const NpcCalling* calling_ = nullptr;
  const NpcWants* wants_ = nullptr;
  NpcChance* chance_ = nullptr;
  NpcAbilityPlan plan_;
  std::shared_ptr<Form> window_;
  std::unordered_map<std::string_view, const EquipmentRecord*> goods_;
  std::vector<NpcWeapon> weapons_;  ///< those that he means to carry, the first one first
  std::string refusal_;
  float unspentBP_ = 0;
  int moneyRolls_ = 0;
};

}  // namespace veld
