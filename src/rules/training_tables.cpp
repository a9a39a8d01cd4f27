#include "rules/training_tables.h"

#include <algorithm>
#include <cstddef>

namespace veld {

// clang-format off

// Name, course costs, location, pros, cons, class size, cost, teacher.
constexpr std::array<TrainingFacility, 6> TrainingFacilities{{
    {"Kobar",                        {  0,   0}, -3, "Never far away",         "Teachers of a sort",        0,   0, -2},
    {"University (native resident)", {-25, -25},  0, "Cheap for its own town", "Full halls, busy teachers", 3,  15, -1},
    {"University (non-resident)",    {-10, -25},  0, "Open to strangers",      "Full halls, busy teachers", 3,  15, -1},
    {"Guild Training",               {-25, -25},  0, "Cheap, small classes",   "Members only",             -1, -10,  0},
    {"Monastic Training",            {-10, -25},  4, "Few pupils, good minds", "A long way from anywhere", -2, -15,  1},
    {"Master Teacher",               {  0,   0},  0, "A teacher of one's own", "No fee is ever lowered",    0,   0,  0},
}};

//   low high base sides count unit  name
constexpr std::array<TrainingLocation, 4> TrainingLocations{{
    { 2,  4,  0,   12,   1, "hours travel", "Immediate"},
    { 5,  8,  0,    3,   1, "days travel",  "Local"},
    { 9, 16,  3,    4,   1, "days travel",  "Remote"},
    {17, 20,  7,    8,   1, "days travel",  "Distant"},
}};

//    low high   kept    instruction  name
constexpr std::array<TrainingTeacher, 6> TrainingTeachers{{
    {-99,  3, {-2,   5}, -10, "Apathetic"},
    {  4,  5, { 0,   0},  -5, "Below average"},
    {  6, 14, { 0,   0},   0, "Adequate"},
    { 15, 16, { 0,   0},   2, "Above average"},
    { 17, 18, { 0,  -5},   3, "Gifted"},
    { 19, 99, { 0, -10},   5, "Master"},
}};

//    low high kept instruction  name
constexpr std::array<TrainingClassSize, 6> TrainingClassSizes{{
    {-99,  2, -10,  5, "One-on-One"},
    {  3,  6,  -5,  2, "Small"},
    {  7, 11,  -5,  0, "Medium"},
    { 12, 15,   0,  0, "Large"},
    { 16, 19,   5, -2, "Crowded"},
    { 20, 99,  10, -5, "Overcrowded"},
}};

//    low high mastery skill  text
constexpr std::array<TrainingInstruction, 6> TrainingInstructions{{
    {-99,  1,  0, 0, "Did not pass BBI. Can not advance to next level"},
    {  2,  6,  0, 0, "Barely passed BBI minimum standards for level progression. Can advance to next level"},
    {  7, 11,  4, 0, "Passed BBI. "},
    { 12, 15,  6, 2, "Surpased BBI standards. "},
    { 16, 18,  8, 3, "Outstanding progress. "},
    { 19, 99, 10, 4, "Amazing progress. "},
}};

//    low high experience skills honor  text
constexpr std::array<TrainingEvent, 11> TrainingEvents{{
    {-99, 10,   0, 0, 0, "Nothing of great significance"},
    { 11, 11,   0, 0, 0, "New Friendship formed - Character makes friends with a fellow student of the same "
                         "class/level"},
    { 12, 12,   0, 0, 0, "Enemy Made - Character's competetive nature has made him an enemy. A fellow student "
                         "has it in for him"},
    { 13, 13,   0, 0, 0, "Useful knowledge or rumor learned"},
    { 14, 14,   0, 0, 0, "Potentially useful contracts or connections made"},
    { 15, 15, 100, 0, 0, "Local Crisis - Class/students were conscripted into service to handle a local crisis. "},
    { 16, 16,   0, 1, 0, "Learn a new skill from another student (player's choice)"},
    { 17, 17,   0, 0, 0, "Robbed - While at school, the character's home (or his relatives) were burgled"},
    { 18, 18,   0, 0, 6, "Won Duel of Honor - "},
    { 19, 19,   0, 0, 0, "Prophecy learned"},
    { 20, 20,   0, 0, 0, "Teacher's pet"},
}};

// clang-format on

namespace {

template <typename Row, std::size_t N>
int RowOf(const std::array<Row, N>& rows, int roll) {
  const auto row = std::ranges::find_if(rows, [&](const Row& each) { return each.Low <= roll && roll <= each.High; });
  return row == rows.end() ? 0 : static_cast<int>(row - rows.begin());
}

template <typename Row, std::size_t N>
const Row& At(const std::array<Row, N>& rows, int index) {
  return rows[index >= 0 && index < static_cast<int>(N) ? static_cast<std::size_t>(index) : 0];
}

}  // namespace

int TrainingLocationOf(int total) {
  return RowOf(TrainingLocations, total);
}

int TrainingTeacherOf(int total) {
  return RowOf(TrainingTeachers, total);
}

int TrainingClassSizeOf(int total) {
  return RowOf(TrainingClassSizes, total);
}

int TrainingInstructionOf(int total) {
  return RowOf(TrainingInstructions, total);
}

int TrainingEventOf(int roll) {
  return RowOf(TrainingEvents, roll);
}

int TrainingLocationTotal(int dice, int facility) {
  return dice + At(TrainingFacilities, facility).LocationModifier;
}

int TrainingTeacherTotal(int dice, int facility, bool bard) {
  return dice + At(TrainingFacilities, facility).TeacherModifier + (bard ? kBardTeacherModifier : 0);
}

int TrainingClassSizeTotal(int dice, int facility, bool bard) {
  return dice + At(TrainingFacilities, facility).ClassSizeModifier + (bard ? kBardClassSizeModifier : 0);
}

int TrainingInstructionTotal(int dice, int teacher, int classSize, bool bard) {
  return dice + At(TrainingTeachers, teacher).InstructionModifier +
         At(TrainingClassSizes, classSize).InstructionModifier + (bard ? kBardInstructionModifier : 0);
}

}  // namespace veld
