#include "rules/training_tables.h"

#include <gtest/gtest.h>

namespace veld {
namespace {

template <typename Rows>
void ExpectNoHoles(const Rows& rows) {
  for (std::size_t i = 1; i < rows.size(); ++i) EXPECT_EQ(rows[i].Low, rows[i - 1].High + 1) << i;
}

TEST(TrainingTables, RangesHaveNoHoles) {
  ExpectNoHoles(TrainingLocations);
  ExpectNoHoles(TrainingTeachers);
  ExpectNoHoles(TrainingClassSizes);
  ExpectNoHoles(TrainingInstructions);
  ExpectNoHoles(TrainingEvents);
}

TEST(TrainingTables, ARollThatNoRowHoldsTakesTheFirst) {
  EXPECT_EQ(TrainingLocations[static_cast<std::size_t>(TrainingLocationOf(20))].Name, "Distant");
  EXPECT_EQ(TrainingLocationOf(TrainingLocationTotal(20, 4)), 0);  // the monastery's way is too far for the table
  EXPECT_EQ(TrainingEventOf(21), 0);
}

TEST(TrainingTables, BardsAreTaughtBetter) {
  EXPECT_EQ(TrainingTeacherOf(TrainingTeacherTotal(14, kGuildTraining, true)), 4);
  EXPECT_EQ(TrainingTeacherOf(TrainingTeacherTotal(14, kGuildTraining, false)), 2);
  EXPECT_EQ(TrainingClassSizeTotal(10, kGuildTraining, true), 6);
  EXPECT_EQ(TrainingInstructionTotal(10, 5, 0, true), 22);
  EXPECT_EQ(TrainingInstructionTotal(10, 0, 5, false), -5);
  EXPECT_EQ(TrainingInstructionTotal(10, -1, 99, false), 5);  // no such rows: the first ones
}

}  // namespace
}  // namespace veld
