#pragma once

#include <array>
#include <string_view>

namespace veld {

// The training tables of the Referee's Codex, which a character goes through to gain a level. Every table is rolled
// with 1d8 + 1d12 and modifiers, the events with 1d20. A roll takes the first row whose Low..High holds it; a roll that
// no row holds takes row 0.

/// A place where training is given. Cost modifiers are percentages, the others go to the rolls of their tables.
struct TrainingFacility {
  std::string_view Name;
  std::array<int, 2> CourseCostModifiers;
  int LocationModifier;
  std::string_view Pros;
  std::string_view Cons;
  int ClassSizeModifier;
  int CostModifier;
  int TeacherModifier;
};

struct TrainingLocation {
  int Low;
  int High;
  int TravelBase;
  int TravelSides;  ///< the distance is TravelBase + TravelCount dice of TravelSides, in Unit
  int TravelCount;
  std::string_view Unit;
  std::string_view Name;
};

struct TrainingTeacher {
  int Low;
  int High;
  std::array<int, 2> KeptModifiers;  ///< read by no rule
  int InstructionModifier;
  std::string_view Name;
};

struct TrainingClassSize {
  int Low;
  int High;
  int KeptModifier;  ///< read by no rule
  int InstructionModifier;
  std::string_view Name;
};

/// A result of the Basic Block of Instruction.
struct TrainingInstruction {
  int Low;
  int High;
  int MasteryDie;  ///< above 0: 1d + the number of its sides free mastery points
  int SkillDie;    ///< above 0: 1d free skills
  std::string_view Text;
};

struct TrainingEvent {
  int Low;
  int High;
  int ExperienceDie;  ///< above 0: 1d + the number of its sides experience points, which are only told
  int FreeSkills;     ///< above 0: the free skills, in place of what instruction gave
  int HonorDie;       ///< above 0: 1d Honor
  std::string_view Text;
};

extern const std::array<TrainingFacility, 6> TrainingFacilities;
extern const std::array<TrainingLocation, 4> TrainingLocations;
extern const std::array<TrainingTeacher, 6> TrainingTeachers;
extern const std::array<TrainingClassSize, 6> TrainingClassSizes;
extern const std::array<TrainingInstruction, 6> TrainingInstructions;
extern const std::array<TrainingEvent, 11> TrainingEvents;

/// The facility that every class trains at.
inline constexpr int kGuildTraining = 3;

/// What a Bard adds to the rolls for teacher, class size and instruction.
inline constexpr int kBardTeacherModifier = 3;
inline constexpr int kBardClassSizeModifier = -3;
inline constexpr int kBardInstructionModifier = 2;

/// The index of the row that a finished roll yields. Any roll has a row.
int TrainingLocationOf(int total);
int TrainingTeacherOf(int total);
int TrainingClassSizeOf(int total);
int TrainingInstructionOf(int total);
int TrainingEventOf(int roll);

/// The rolls with all that is added to their dice (1d8 + 1d12). Indexes outside their tables count as row 0.
int TrainingLocationTotal(int dice, int facility);
int TrainingTeacherTotal(int dice, int facility, bool bard);
int TrainingClassSizeTotal(int dice, int facility, bool bard);
int TrainingInstructionTotal(int dice, int teacher, int classSize, bool bard);

}  // namespace veld
