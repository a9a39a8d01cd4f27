#include "referee/party.h"

#include <algorithm>

#include "platform/platform.h"
#include "store/recovery.h"
#include "text/format.h"
#include "text/numbers.h"

namespace veld {

namespace {

/// The party's Honor is the mean of its members', cut toward zero; without members it stays. Only who comes and goes
/// moves it, not what they earn.
void UpdatePartyHonor(Party& party) {
  if (party.Count == 0) return;
  std::int64_t sum = 0;
  for (std::size_t row = 1; row < kPartyRows; ++row) {
    if (!party.Rows[row].Name.Empty()) sum += party.Rows[row].Honor;
  }
  party.Rows[0].Honor = SaturateToInt(sum / party.Count);
}

}  // namespace

AddedMember AddMember(Party& party, const PartyMember& member) {
  if (member.Name.Empty()) return AddedMember::HasNoName;
  const bool isParty = member.Name == kPartyName;
  if (!isParty && party.Count >= kMostPartyMembers) return AddedMember::PartyIsFull;
  if (!isParty) ++party.Count;
  party.Rows[isParty ? 0 : static_cast<std::size_t>(party.Count)] = member;
  UpdatePartyHonor(party);
  return isParty ? AddedMember::BecameParty : AddedMember::Added;
}

bool RemoveMember(Party& party, int row) {
  if (row < 1 || row > party.Count) return false;
  const auto gone = party.Rows.begin() + row;
  std::move(gone + 1, party.Rows.end(), gone);
  party.Rows.back() = PartyMember();
  --party.Count;
  UpdatePartyHonor(party);
  return true;
}

std::string MemberLine(const PartyMember& member) {
  return Format("Name %s   Alignment %s    Honor= %i    Temporal Honor= %i", member.Name, member.Alignment,
                member.Honor, member.TemporalHonor);
}

bool LoadParty(Game& game, const std::string& path) {
  std::string bytes;
  Party party;
  if (ReadWholeFile(path, bytes, kPartyFileBytes) != FileRead::Done || !DecodeParty(bytes, party)) {
    game.platform.ShowMessage("Problem Loading Party");
    return false;
  }
  KeepPartyCopy(game);
  game.party = party;
  game.partyCopy.clear();
  KeepPartyCopy(game);
  return true;
}

bool SaveParty(Game& game, const std::string& path, SaveWay way) {
  if (SaveWholeFile(path, EncodeParty(game.party), way)) return true;
  game.platform.ShowMessage("Problem Saving Party");
  return false;
}

}  // namespace veld
