#pragma once

#include <string>

namespace veld {

/// The whole text of the "skills.tsv" sheet: a head line and a line for each row of both skill tables, empty ones too,
/// with tabs between the columns.
std::string SkillsTsv();

}  // namespace veld
