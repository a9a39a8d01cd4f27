#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "steps/classes/class_levels.h"
#include "store/game.h"

namespace veld {

// The classes of a character in play: experience awarded, levels gained and lost, classes added and given up. Each
// routine brings all that hangs on levels and abilities up to date; what it opens are the dialogs of the levels gained.

/// The most experience a class can be written to have.
inline constexpr int kMostExperience = 999'999'999;

/// Levels that a referee writes in: nobody trains for them, and no race holds them back.
inline constexpr LevelWay kWrittenLevels{.HasTraining = false, .IsRolled = true, .IsHeldToRace = false};
/// Levels copied from a paper sheet: hit points and scores stand there already.
inline constexpr LevelWay kPaperLevels{.HasTraining = false, .IsRolled = false, .IsHeldToRace = false};

/// Brings all that follows from abilities and classes up to date, each ability gain counted once.
void BringClassesUpToDate(Game& game, const LevelWay& way = {});

/// The class rows in which the character has a level, in the order of the table.
std::vector<int> ClassesHeld(const CharacterSheet& sheet);

/// Adds experience (a loss is below 0) to a class held. It stays within 0 and kMostExperience.
void AwardExperience(Game& game, int classRow, std::int64_t points);

/// Splits experience over all classes held; what can't be split goes to the first.
void AwardExperienceToAll(Game& game, std::int64_t points);

/// Writes in the experience of a class held, and the levels that it earns within what the race allows.
void SetExperience(Game& game, int classRow, std::int64_t experience, const LevelWay& way = kWrittenLevels);

/// Writes in the level of a class held, 1 to HighestLevelOf; experience that doesn't earn just that level becomes the
/// least that does.
void SetLevel(Game& game, int classRow, int level, const LevelWay& way = kWrittenLevels);

/// Adds a class at its first level, whatever race and abilities say. Returns why not, or an empty text.
std::string AddClass(Game& game, int classRow, const LevelWay& way = kWrittenLevels);

/// Gives a class up with all that it gave. Returns why not, or an empty text: the last class stays.
std::string GiveUpClass(Game& game, int classRow);

/// Changes the tables of what levels brought, with their gains taken out of the abilities before and put back after.
void ChangeLevelTables(Game& game, const std::function<void()>& change);

/// Writes in the hit points of the character as the sheet shows them: the difference is spread over the levels.
void WriteHitPoints(Game& game, int hitPoints);

/// What is different from `before`, a line each: levels, hit points, abilities, slots, saves, thief abilities, spells,
/// Honor, and what training gave.
std::vector<std::string> WhatLevelsBrought(const CharacterSheet& before, const Game& game);

}  // namespace veld
