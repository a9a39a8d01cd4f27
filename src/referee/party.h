#pragma once

#include <string>

#include "store/game.h"
#include "store/safe_file.h"

namespace veld {

/// What became of a new member. One who is called "Party" gives his values to the party itself.
enum class AddedMember { Added, BecameParty, HasNoName, PartyIsFull };

/// Puts a member behind the others, and brings the party's Honor up to date.
AddedMember AddMember(Party& party, const PartyMember& member);

/// Takes the member of row 1..19 out; those behind move up. False if there is none in that row; the party itself stays.
bool RemoveMember(Party& party, int row);

/// The line of a member, or of the party, in the referee's list.
std::string MemberLine(const PartyMember& member);

/// Loads a party from a .vlp file, with a message if it can't be. The party that was in memory is kept as a recovery
/// copy; a failure leaves it there.
bool LoadParty(Game& game, const std::string& path);

/// Saves the party, with a message if it can't be.
bool SaveParty(Game& game, const std::string& path, SaveWay way = {});

}  // namespace veld
