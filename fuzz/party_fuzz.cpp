#include <algorithm>

#include "fuzz_support.h"
#include "referee/party.h"

using namespace veld;
using fuzz::Require;

namespace {

void RequireWhole(const Party& party) {
  Require(party.Rows[0].Name == kPartyName, "row 0 is the party");
  Require(party.Count >= 0 && party.Count <= kMostPartyMembers, "a party has 0 to 19 members");
  for (std::size_t row = 1; row < kPartyRows; ++row) {
    Require(party.Rows[row].Name.Empty() == (static_cast<int>(row) > party.Count), "the members stand without a gap");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes = fuzz::Bytes(data, size);
  Party party;
  Require(DecodeParty(bytes, party) == (size >= kPartyFileBytes), "a party is loaded unless its file is too short");
  if (size < kPartyFileBytes) return 0;
  RequireWhole(party);
  Party again;
  Require(DecodeParty(EncodeParty(party), again), "a saved party loads");
  Require(EncodeParty(again) == EncodeParty(party), "a saved party loads as it was");

  // What follows a party in a file says who leaves and joins it.
  for (const char step : bytes.substr(kPartyFileBytes)) {
    if (step % 2 != 0) {
      RemoveMember(party, step / 2);
    } else {
      AddMember(party, party.Rows[static_cast<std::size_t>(step & 0x7F) % kPartyRows]);
    }
    RequireWhole(party);
  }
  for (const PartyMember& member : party.Rows) Require(!MemberLine(member).empty(), "a member has a line");
  return 0;
}
