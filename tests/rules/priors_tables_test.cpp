#include "rules/priors_tables.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace veld {
namespace {

// How many of the rolls 1..100 give each result.
template <typename Lookup>
std::map<std::string, int> Shares(Lookup lookup) {
  std::map<std::string, int> shares;
  for (int roll = 1; roll <= 100; ++roll) ++shares[std::string(lookup(roll))];
  return shares;
}

using Expected = std::map<std::string, int>;

TEST(PriorsTables, HandednessGoesByRaceAndDexterity) {
  const auto shares = [](std::string_view race, int dexterity) {
    return Shares([=](int roll) { return HandednessOf(race, dexterity, roll); });
  };
  EXPECT_EQ(shares("Human", 16), (Expected{{"Left", 7}, {"Ambidextrous", 20}, {"Right", 73}}));
  EXPECT_EQ(shares("Elf, High", 10), (Expected{{"Ambidextrous", 100}}));
  EXPECT_FALSE(IsBornAmbidextrous("Half-elf"));
}

TEST(PriorsTables, SocialClassesRunInOrderAndSlavesAreRolledAgain) {
  EXPECT_FALSE(SocialClassOf(1).has_value());
  EXPECT_FALSE(SocialClassOf(-40).has_value());
  int last = 4;
  for (int total = 2; total <= 140; ++total) {
    const auto found = SocialClassOf(total);
    ASSERT_TRUE(found.has_value());
    EXPECT_TRUE(found->Index == last || found->Index == last + 1) << total;
    EXPECT_TRUE(SocialClassLimits(found->Index).starts_with(std::string(found->Name) + ":")) << total;
    last = found->Index;
  }
  EXPECT_EQ(last, 12);
  EXPECT_EQ(SlaveClassOf(5).Index, 1);
  EXPECT_EQ(SlaveClassOf(6).Index, 2);
  EXPECT_EQ(SlaveClassOf(16).Name, "Slave Class, banished");
}

TEST(PriorsTables, InheritanceFollowsSocialClassAndBirthOrder) {
  for (int index = 2; index <= 12; ++index) {
    EXPECT_GE(SocialClassInheritance(index), SocialClassInheritance(index - 1)) << index;
  }
  EXPECT_EQ(SocialClassInheritance(8), 0);
  for (int outside : {-1, 0, 13}) {
    EXPECT_EQ(SocialClassInheritance(outside), 0);
    EXPECT_TRUE(SocialClassLimits(outside).empty());
  }
  EXPECT_EQ(BirthOrderInheritance(SiblingNumberOf(1)->Text), 10);  // "Only Child", in any case
  EXPECT_EQ(BirthOrderInheritance("Middle born (3rd)"), 0);
}

TEST(PriorsTables, IllegitimateBirthsTellWhichParentIsKnown) {
  EXPECT_EQ(LegitimacyOf(90).IllegitimacyNature, kPriorNotApplicable);
  EXPECT_TRUE(IsIllegitimate(LegitimacyOf(91).BirthCircumstance));
  for (int total = -20; total <= 130; ++total) {
    for (int second : {1, 25, 26, 75, 76, 100}) {
      const IllegitimacyNature nature = IllegitimacyNatureOf(total, second);
      const bool unknown = nature.MotherPresence == kParentUnknown || nature.FatherPresence == kParentUnknown;
      EXPECT_EQ(unknown, nature.Text.ends_with("unknown") || nature.IsOrphan == 1) << total << " " << second;
    }
  }
  EXPECT_EQ(SecondRollOfIllegitimacy(60), SecondBirthRoll::None);
}

TEST(PriorsTables, BirthOrdersComeInOrderForEveryNumberOfSiblings) {
  for (int siblings : {1, 2, 3, 4, 5, 6, 7, 8, 9, -1, -2, -3, -4}) {
    const auto shares = Shares([=](int roll) { return BirthOrderOf(siblings, roll).Text; });
    EXPECT_EQ(shares.size(), static_cast<std::size_t>(siblings < 0 ? 1 - siblings : siblings + 1)) << siblings;
    EXPECT_EQ(BirthOrderOf(siblings, 1).Text, "First born");
    EXPECT_EQ(BirthOrderOf(siblings, 100).Text, "Last born");
    for (int roll = 1; roll <= 100; ++roll) {
      const BirthOrder order = BirthOrderOf(siblings, roll);
      EXPECT_EQ(order.IsMiddleChild == 1, order.Text.starts_with("Middle born"));
    }
  }
  EXPECT_EQ(BirthOrderOf(4, 20).Text, "2nd born");
  for (int outside : {0, -5, 10}) EXPECT_TRUE(BirthOrderOf(outside, 50).Text.empty());
  EXPECT_FALSE(SiblingNumberOf(96).has_value());
}

}  // namespace
}  // namespace veld
