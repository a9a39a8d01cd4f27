#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "store/game.h"

namespace veld {

/// Points for a member, and the line of Honor.log that tells of them.
struct HonorEntry {
  int Points = 0;
  std::string Line;
};

/// Works out the points of Temporal Honor that a standard award brings this member, and logs them. The amount of an
/// award with a note is asked for. The member is not changed. Nothing, and no line, if there is no such award or the
/// referee cancels.
std::optional<HonorEntry> ApplyHonorAward(Game& game, std::string_view awardName, const PartyMember& member);

enum class HonorKind { Honor, Temporal };

/// Adds an amount of the referee's own to a member, logs it and returns the line.
std::string GiveHonor(PartyMember& member, HonorKind kind, int amount, std::string_view reason);

/// Appends a line to Honor.log in the working directory. A failure is not told.
void LogHonorLine(std::string_view text);

}  // namespace veld
