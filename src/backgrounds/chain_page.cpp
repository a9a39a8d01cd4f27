#include "backgrounds/chain_page.h"

#include <utility>

#include "dice/keep_roll.h"
#include "platform/form.h"
#include "platform/platform.h"
#include "steps/abilities/ability_effects_apply.h"
#include "text/format.h"
#include "text/numbers.h"

namespace veld {

namespace {

constexpr int kStepAfterDeath = 1;  ///< the run is over

/// Lists what has changed since the list was last written, under the name of what did it.
void NoteChanges(ChainPage& page) {
  const std::vector<std::string> changes = WhatItBrought(page.game, *page.before);
  if (changes.empty()) return;
  page.before = TakeSnapshot(page.game);
  page.brought.push_back(page.table);
  for (const std::string& change : changes) page.brought.push_back("  " + change);
  page.form.SetItems(ChainControl::Brought, page.brought);
  page.form.Select(ChainControl::Brought, static_cast<int>(page.brought.size()) - 1);  // the newest is in sight
}

/// Names what is being rolled; what an outer table has done so far is listed as its own.
std::string EnterTable(ChainPage& page, std::string_view table) {
  NoteChanges(page);
  page.form.SetText(ChainControl::Table, table);
  return std::exchange(page.table, std::string(table));
}

void LeaveTable(ChainPage& page, std::string outer) {
  NoteChanges(page);
  page.table = std::move(outer);
  page.form.SetText(ChainControl::Table, page.table);
  ShowChainBP(page);
}

/// The label of a group stands beside the first of its lines that has a text.
void LabelFirstLine(Form& form, const ChainGroup& group) {
  bool isLabelled = false;
  for (int id = group.FirstId; id < group.FirstId + group.LineCount; ++id) {
    const bool isFirst = !isLabelled && !form.Text(id).empty();
    form.SetVisible(id + ChainControl::LabelShift, isFirst);
    isLabelled |= isFirst;
  }
}

void RunChain(ChainPage& page, void (*chain)(ChainPage&)) {
  page.before = TakeSnapshot(page.game);
  chain(page);
  NoteChanges(page);
  RefreshAbilityEffects(page.game);
  page.form.SetText(ChainControl::Table, {});
  ShowChainBP(page);
  if (page.game.run.CharacterDead != 1) return;
  page.game.run.CurrentStep = kStepAfterDeath;
  page.game.platform.ShowMessage("Your character did not live to adventure.");
}

}  // namespace

void RunChainPage(Game& game, const FormTemplate& pageTemplate, std::span<const ChainGroup> groups,
                  void (*chain)(ChainPage&), ChainBP shownBP) {
  Form form(pageTemplate);
  ChainPage page{game, form, groups, shownBP};
  bool hasBegun = false;
  bool hasRun = false;
  form.onOpened = [&] { ShowChainBP(page); };
  form.onCommand = [&](int id) {
    if (id == ChainControl::Begin && !hasBegun) {
      hasBegun = true;
      form.SetEnabled(ChainControl::Begin, false);
      RunChain(page, chain);
      hasRun = true;
      form.Focus(ChainControl::Close);
    } else if (id == ChainControl::Close && hasRun) {
      form.Close();
    }
  };
  game.platform.RunForm(form);
}

bool RollChainTable(ChainPage& page, std::string_view table, const std::function<bool()>& tryOnce) {
  std::string outer = EnterTable(page, table);
  const bool stands = RollUntilItStands(page.game, table, [&] {
    page.game.dice.RollContextText = page.table;
    const std::string purpose = std::exchange(page.game.dice.RollPurpose, page.table);
    const bool isKept = tryOnce();
    page.game.dice.RollPurpose = purpose;
    ShowChainBP(page);
    return isKept;
  });
  LeaveTable(page, std::move(outer));
  return stands;
}

void RunChainPart(ChainPage& page, std::string_view name, const std::function<void()>& part) {
  std::string outer = EnterTable(page, name);
  part();
  LeaveTable(page, std::move(outer));
}

void ShowChainLine(ChainPage& page, int id, std::string_view text) {
  page.form.SetText(id, text);
  page.form.SetVisible(id, !text.empty());
  for (const ChainGroup& group : page.groups) LabelFirstLine(page.form, group);
  ShowChainBP(page);
}

void ShowChainBP(ChainPage& page) {
  const float bp = page.game.run.BuildingPoints;
  page.form.SetText(ChainControl::BuildingPoints,
                    page.shownBP == ChainBP::Whole ? Format("%i", TruncateToInt(bp)) : Format("%g", bp));
}

}  // namespace veld
