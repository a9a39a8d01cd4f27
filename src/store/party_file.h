#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "text/fixed_text.h"

namespace veld {

/// Someone whose Honor a referee keeps; also the party as a whole. A free row has no name.
struct PartyMember {
  FixedText<200> Name;
  FixedText<28> Alignment;  ///< its code, "LG"
  int Honor = 0;
  int TemporalHonor = 0;
};
static_assert(sizeof(PartyMember) == 236);

inline constexpr std::size_t kPartyRows = 20;
inline constexpr int kMostPartyMembers = 19;
inline constexpr std::string_view kPartyName = "Party";
inline constexpr std::string_view kPartyAlignment = "LG";

/// A party: row 0 is the party itself, the members stand behind it without a gap. Lies in memory as in a file.
struct Party {
  Party() {
    Rows[0].Name = kPartyName;
    Rows[0].Alignment = kPartyAlignment;
  }

  int Count = 0;  ///< members, 0..19
  std::array<PartyMember, kPartyRows> Rows{};
};

// A party file (.vlp): the count and the rows, nothing else.
inline constexpr std::size_t kPartyFileBytes = 4724;
static_assert(sizeof(Party) == kPartyFileBytes);

/// Reads a party file into `party`, whatever that held. What follows behind its last row is ignored. Row 0 becomes the
/// party itself, gaps between the members close, and all who have a name count. False if the file is too short; then
/// `party` is of no use.
bool DecodeParty(std::string_view bytes, Party& party);

std::string EncodeParty(const Party& party);

}  // namespace veld
