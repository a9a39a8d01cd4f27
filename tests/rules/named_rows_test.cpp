#include <gtest/gtest.h>

#include <string_view>

#include "rules/class_table.h"
#include "rules/named_rows.h"
#include "rules/proficiency_table.h"
#include "rules/quirk_table.h"
#include "rules/skill_table.h"
#include "rules/talent_table.h"

namespace veld {
namespace {

/// A row and what the catalogue's name of it begins or, for one of a sect, ends with.
struct NamedRow {
  int Row;
  std::string_view Name;
};

template <typename Table, std::size_t N>
void ExpectNames(const Table& table, const NamedRow (&rows)[N]) {
  for (const auto& [row, name] : rows) {
    const std::string_view own = table.at(static_cast<std::size_t>(row)).Name;
    EXPECT_TRUE(!name.empty() && (own.starts_with(name) || own.ends_with(name))) << row << ": " << own;
  }
}

// clang-format off

TEST(NamedRows, NameTheRowsThatTheRulesMean) {
  ExpectNames(ClassTable(), {
      {ClassRow::Druid, "Druid"}, {ClassRow::Fighter, "Fighter"}, {ClassRow::Barbarian, "Barbarian"},
      {ClassRow::Berserker, "Berserker"}, {ClassRow::KnightErrant, "Knight Errant"}, {ClassRow::Monk, "Monk"},
      {ClassRow::Paladin, "Paladin"}, {ClassRow::BattleMage, "Battle Mage"}, {ClassRow::BloodMage, "Blood Mage"},
      {ClassRow::Illusionist, "Illusionist"}, {ClassRow::Thief, "Thief"}, {ClassRow::Assassin, "Assassin"},
      {ClassRow::Bard, "Bard"}, {ClassRow::StandardIllusionist, "Standard Specialist: Illusionist"},
      {ClassRow::PowerSpeaker, "Power Speaker"}, {ClassRow::Hypnotist, "Hypnotist"},
      {ClassRow::PaintedMage, "Painted Mage"}, {ClassRow::BountyHunter, "Bounty Hunter"},
      {ClassRow::Gladiator, "Gladiator"}, {ClassRow::Pirate, "Pirate (WMA)"},
      {ClassRow::Swashbuckler, "Swashbuckler"}, {ClassRow::HolyKnight, "Holy Knight"}, {ClassRow::Expounder, "(Expounder)"}, {ClassRow::Droog, "(Droog)"},
      {ClassRow::Peacenik, "(Peacenik)"}, {ClassRow::Scale, "(Scale)"}, {ClassRow::Pangrite, "(Pangrite)"},
      {ClassRow::Shonite, "(Shonite)"}, {ClassRow::Toiler, "(Toiler)"}, {ClassRow::Ardorheart, "(Ardorheart)"},
      {ClassRow::Thunorite, "(Thunorite)"}, {ClassRow::Skite, "(Skite)"}, {ClassRow::Gangite, "Gangites)"},
      {ClassRow::SeaDawg, "(Sea Dawgs)"}, {ClassRow::FirstSwindler, "Acrobat"},
      {ClassRow::SwindlingPirate, "Pirate (SWA)"}, {ClassRow::LastSwindler, "Yakuza"}});
  ExpectNames(QuirkTable(), {
      {QuirkRow::LossOfEye, "Loss of Eye"}, {QuirkRow::Baldness, "Male Pattern Baldness"},
      {QuirkRow::MissingFinger, "Missing Finger"}, {QuirkRow::BlindInOneEye, "Blind, One Eye"},
      {QuirkRow::OneArmLost, "Amputee, Arm"}, {QuirkRow::BothArmsLost, "Amputee, Double, Arm"},
      {QuirkRow::BothLegsLost, "Amputee, Double, Leg"}, {QuirkRow::OneLegLost, "Amputee, Leg"},
      {QuirkRow::HearingImpaired, "Hearing Impaired"}, {QuirkRow::Deaf, "Deaf"},
      {QuirkRow::NoDepthPerception, "No Depth Perception"}, {QuirkRow::NaggingConscience, "Nagging Conscience"},
      {QuirkRow::QuellFrenzy, "QuellFrenzy"}, {QuirkRow::QuellLust, "QuellLust"}, {QuirkRow::Jerk, "Jerk"},
      {QuirkRow::LargeHandwriting, "Large Handwriting"}, {QuirkRow::ChintzyMentor, "Chintzy Mentor"},
      {QuirkRow::GimpMentor, "Gimp Mentor"}, {QuirkRow::OldSchoolMentor, "Old School Mentor"},
      {QuirkRow::PacifistMentor, "Pacifist Mentor"}, {QuirkRow::WussMentor, "Wuss Mentor"}});
  ExpectNames(SkillTable(), {
      {SkillRow::DragonSpeak, "Dragon Speak"}, {SkillRow::TrailMarkers, "Glersee (Trail Markers)"},
      {SkillRow::Hunting, "Hunting"}, {SkillRow::IdentifyAnimalByTracks, "Identify Animal by Tracks"},
      {SkillRow::Interrogation, "Interrogation"}, {SkillRow::MaplessTravel, "Mapless Travel"},
      {SkillRow::Pinch, "Pinch"}, {SkillRow::TrapSweep, "Trap Sweep"}, {SkillRow::PegLegLeft, "Peg Leg (left)"},
      {SkillRow::PegLegRight, "Peg Leg (right)"}, {SkillRow::FirstMartialStyle, "Fung-Chi"},
      {SkillRow::LastMartialStyle, "Chi-Star"}, {SkillRow::LastMartialTraining, "Mental and Physical Training 5"},
      {SkillRow::AdvancedTraps, "Set Traps, Advanced"}});
  ExpectNames(SkillTable2(), {
      {SkillFamily::LocalHistory, "Local History"}, {SkillFamily::Language, "Language, Modern"},
      {SkillFamily::ReadingWriting, "Reading/Writing"}, {SkillFamily::LandRiding, "Riding, Land-based"}});
  ExpectNames(TalentTable(), {
      {TalentRow::AcuteAlertness, "Acute (high) Alertness"}, {TalentRow::PerfectGrooming, "Perfect Grooming"},
      {TalentRow::HitPointBonus, "Hit Point Bonus"}, {TalentRow::KeenSight, "Keen Sight"},
      {TalentRow::TouchedByYurgain, "Touched by Yurgain"}, {TalentRow::QuickMovement, "Quick Movement"},
      {TalentRow::SimultaneousBackstab, "Simultaneous Backstab Attacks"},
      {TalentRow::AcuteAlertnessAndKeenSight, "Acute Alertness & Keen Sight"}});
  ExpectNames(TalentTable2(), {
      {TalentFamily::TakeAfter, "Take After"}});
  ExpectNames(ProficiencyTable(), {
      {ProficiencyRow::SingleWeaponStyle, "Advanced Single Weapon Fighting"}});
}

// clang-format on

}  // namespace
}  // namespace veld
