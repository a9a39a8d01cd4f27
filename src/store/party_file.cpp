#include "store/party_file.h"

#include <algorithm>
#include <functional>

#include "store/byte_writer.h"

namespace veld {

bool DecodeParty(std::string_view bytes, Party& party) {
  if (bytes.size() < kPartyFileBytes) return false;
  ByteReader file(bytes);
  file.Int();  // the count: the rows tell it themselves
  for (PartyMember& row : party.Rows) file.Pass(row.Name, row.Alignment, row.Honor, row.TemporalHonor);
  PartyMember& whole = party.Rows[0];
  if (whole.Name.Empty()) whole.Alignment = kPartyAlignment;
  whole.Name = kPartyName;
  const auto isFree = [](const PartyMember& row) { return row.Name.Empty(); };
  const auto end = std::stable_partition(party.Rows.begin() + 1, party.Rows.end(), std::not_fn(isFree));
  std::fill(end, party.Rows.end(), PartyMember());
  party.Count = static_cast<int>(end - party.Rows.begin()) - 1;
  return true;
}

std::string EncodeParty(const Party& party) {
  ByteWriter file(kPartyFileBytes);
  file.Pass(party.Count);
  for (const PartyMember& row : party.Rows) file.Pass(row.Name, row.Alignment, row.Honor, row.TemporalHonor);
  return file.TakeBytes();
}

}  // namespace veld
