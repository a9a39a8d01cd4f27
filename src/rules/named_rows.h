#pragma once

namespace veld {

// The catalogue rows that rules speak of. Row numbers are identities: they go to character files and never move.

namespace ClassRow {
inline constexpr int Druid = 2;
inline constexpr int Fighter = 3;
inline constexpr int Barbarian = 4;
inline constexpr int Berserker = 5;
inline constexpr int KnightErrant = 8;
inline constexpr int Monk = 9;
inline constexpr int Paladin = 10;
inline constexpr int BattleMage = 13;
inline constexpr int BloodMage = 14;
inline constexpr int Illusionist = 15;
inline constexpr int Thief = 16;
inline constexpr int Assassin = 17;
inline constexpr int Bard = 18;
inline constexpr int StandardIllusionist = 24;
inline constexpr int PowerSpeaker = 41;
inline constexpr int Hypnotist = 46;
inline constexpr int PaintedMage = 58;
inline constexpr int BountyHunter = 60;
inline constexpr int Gladiator = 61;
inline constexpr int Pirate = 62;  ///< of the Warmonger's Almanac
inline constexpr int Swashbuckler = 65;
inline constexpr int HolyKnight = 66;
inline constexpr int Expounder = 74;
inline constexpr int Droog = 77;
inline constexpr int Peacenik = 86;
inline constexpr int Scale = 91;
inline constexpr int Pangrite = 99;
inline constexpr int Shonite = 105;
inline constexpr int Toiler = 106;
inline constexpr int Ardorheart = 107;
inline constexpr int Thunorite = 108;
inline constexpr int Skite = 109;
inline constexpr int Gangite = 113;
inline constexpr int SeaDawg = 115;
inline constexpr int FirstSwindler = 116;  ///< 116..122: the thieves of the Swindler's Almanac
inline constexpr int SwindlingPirate = 121;
inline constexpr int LastSwindler = 122;
}  // namespace ClassRow

namespace QuirkRow {
inline constexpr int HearingImpaired = 9;
inline constexpr int LossOfEye = 14;
inline constexpr int Baldness = 15;
inline constexpr int MissingFinger = 17;
inline constexpr int BlindInOneEye = 29;
inline constexpr int OneArmLost = 35;
inline constexpr int BothArmsLost = 36;
inline constexpr int BothLegsLost = 37;
inline constexpr int OneLegLost = 38;
inline constexpr int Deaf = 40;
inline constexpr int NoDepthPerception = 46;
inline constexpr int NaggingConscience = 64;
inline constexpr int QuellFrenzy = 76;
inline constexpr int QuellLust = 77;
inline constexpr int Jerk = 91;
inline constexpr int LargeHandwriting = 308;  ///< doubles the pages of a spell
inline constexpr int ChintzyMentor = 322;     ///< gives fewer spells and cantrips
inline constexpr int GimpMentor = 323;        ///< teaches nothing with a somatic component
inline constexpr int OldSchoolMentor = 324;   ///< moves Table 7G one row down
inline constexpr int PacifistMentor = 325;    ///< teaches no spell of attack
inline constexpr int WussMentor = 327;        ///< the same, and fewer
}  // namespace QuirkRow

namespace SkillRow {
inline constexpr int DragonSpeak = 39;
inline constexpr int TrailMarkers = 41;
inline constexpr int Hunting = 112;
inline constexpr int IdentifyAnimalByTracks = 113;
inline constexpr int Interrogation = 115;
inline constexpr int MaplessTravel = 125;
inline constexpr int Pinch = 132;
inline constexpr int TrapSweep = 160;
inline constexpr int PegLegLeft = 198;
inline constexpr int PegLegRight = 199;
inline constexpr int FirstMartialStyle = 252;
inline constexpr int LastMartialStyle = 258;
inline constexpr int LastMartialTraining = 291;
inline constexpr int AdvancedTraps = 314;
}  // namespace SkillRow

/// Skills whose members the player names.
namespace SkillFamily {
inline constexpr int LocalHistory = 4;
inline constexpr int Language = 7;
inline constexpr int ReadingWriting = 17;
inline constexpr int LandRiding = 19;
}  // namespace SkillFamily

namespace TalentRow {
inline constexpr int AcuteAlertness = 2;
inline constexpr int PerfectGrooming = 21;
inline constexpr int HitPointBonus = 40;  ///< a hit point for each hit die and count
inline constexpr int KeenSight = 43;
inline constexpr int TouchedByYurgain = 70;  ///< of the dwarf who is a battle mage
inline constexpr int QuickMovement = 111;
inline constexpr int SimultaneousBackstab = 112;
inline constexpr int AfterSimultaneousBackstab = 113;  ///< no talent any more
inline constexpr int AcuteAlertnessAndKeenSight = 114;
}  // namespace TalentRow

/// Talents that are taken for something the player names.
namespace TalentFamily {
inline constexpr int TakeAfter = 2;
}  // namespace TalentFamily

namespace ProficiencyRow {
inline constexpr int SingleWeaponStyle = 94;  ///< a fighting style that is counted in multiples
}  // namespace ProficiencyRow

}  // namespace veld
