#include "referee/honor_award.h"

#include "platform/ask_name.h"
#include "rules/honor_awards.h"
#include "store/log_file.h"
#include "text/format.h"
#include "text/numbers.h"

namespace veld {

namespace {

/// The amount that the referee sets by an award's note, its usual one standing there; nothing if he cancels.
std::optional<int> AskAmount(Game& game, const HonorAward& award, int usual) {
  const auto typed =
      AskText(game.platform,
              Format("NOTE: %s. Current Value of this Honor Award is: %i. Please enter the amount to award below.",
                     HonorNote(award), usual),
              Format("%i", usual));
  if (!typed) return std::nullopt;
  return SaturateToInt(ReadNumberPrefix(*typed));
}

}  // namespace

void LogHonorLine(std::string_view text) {
  AppendLine("Honor.log", text);
}

std::optional<HonorEntry> ApplyHonorAward(Game& game, std::string_view awardName, const PartyMember& member) {
  const HonorAward* award = FindHonorAward(awardName);
  if (!award) return std::nullopt;
  HonorEntry entry{HonorPoints(*award, member.Alignment), {}};
  if (award->NoteIndex > 0) {
    const std::optional<int> amount = AskAmount(game, *award, entry.Points);
    if (!amount) return std::nullopt;
    entry.Points = *amount;
  }
  entry.Line = Format("%s was awarded %i Points of Temporal Honor for: %s.", member.Name, entry.Points, award->Name);
  if (award->NoteIndex == 0) {
    entry.Line += Format(" New Total: %i", AddSaturated(member.TemporalHonor, entry.Points));
  }
  LogHonorLine(entry.Line);
  return entry;
}

std::string GiveHonor(PartyMember& member, HonorKind kind, int amount, std::string_view reason) {
  const bool isTemporal = kind == HonorKind::Temporal;
  int& honor = isTemporal ? member.TemporalHonor : member.Honor;
  honor = AddSaturated(honor, amount);
  const std::string line = Format("%s was awarded %i Points of %s for: %s. New Total: %i", member.Name, amount,
                                  isTemporal ? "Temporal Honor" : "Honor", reason, honor);
  LogHonorLine(line);
  return line;
}

}  // namespace veld
