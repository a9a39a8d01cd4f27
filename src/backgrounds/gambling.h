#pragma once

#include "backgrounds/chain_page.h"

namespace veld {

// The gambler of a youth, soldier or pupil: what he learns, wins and loses.

/// Whether the player is told what the dice are for, and may refuse them for a BP.
enum class GamblerPrompts { Told, None };

/// What becomes of a gambler: Gaming for nothing with up to four further steps, a check that wins or loses money, and
/// for who loses the way down, which ends after 100 turns at most.
void RunGambler(ChainPage& page, GamblerPrompts prompts);

/// The Gambling Subtable: one flaw. False if it was refused, or one that can't be had (again) came up: there is none
/// then.
bool RollGamblingSubtable(ChainPage& page);

}  // namespace veld
