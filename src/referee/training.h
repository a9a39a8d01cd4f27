#pragma once

#include <string_view>

#include "store/game.h"

namespace veld {

class Form;

/// What a character goes through to gain a level: location, teacher, class size, instruction and an event are rolled,
/// shown in the controls 200 to 204 of the window and written to Training.log. Changes Honor and the free mastery and
/// skills of the run.
void RunTrainingTables(Game& game, Form& window);

/// Appends a line to Training.log in the working directory. A failure is not told.
void LogTrainingLine(std::string_view text);

/// The Training dialog: rolls as it opens.
void RunTraining(Game& game);

}  // namespace veld
