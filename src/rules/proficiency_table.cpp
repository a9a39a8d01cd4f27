#include "rules/proficiency_table.h"

#include <cstddef>
#include <iterator>

#include "rules/find_row.h"

namespace veld {

namespace {

/// `Damage` holds the six damage texts with blanks between them.
struct WeaponLine {
  int Row;
  std::string_view Name;
  int SpecializationCost;
  int Book;
  int Kind;
  int HitModifier;
  std::string_view Damage;
  std::string_view DamageType;
  std::string_view WeaponSize;
};

// The damage follows a few habits: crushing weapons tell most on small bodies and fade on large ones; hacking blades
// hold level or, the longer they are, rise with the target; short points fade, long-hafted ones and lances rise. What
// is swung in two hands does more throughout, and what was never made to be a weapon is slow and soon spent. Garrotes,
// nets and the like do nothing ("-") to what they can't close around.

// clang-format off

// Row Name                                   Slot Bk Kd Hit  T      S      M      L      H      G         Type   Size
constexpr WeaponLine kWeapons[] = {
  {  0, "Battle axe",                             1,  0, 0,  2, "2d4    2d4    2d4    2d4    2d4    2d4",   "H",   "M"},
  {  1, "Blowgun",                                1,  0, 1,  2, "1d3    1d3    1d2    1      1      1",     "P",   "M"},
  {  2, "Bola",                                   1,  2, 1,  4, "1d6-2  1d6-3  1d6-3  1d6-3  1d6-4  1",     "C",   "M"},
  {  3, "Bow: Composite long",                    2,  0, 1,  2, "1d8+1  1d8    1d8    1d8    1d8-1  1d8-2", "P",   "L"},
  {  4, "Bow: Composite short",                   2,  0, 1,  2, "1d6+1  1d6+1  1d6    1d6    1d6-1  1d6-2", "P",   "M"},
  {  5, "Bow: Daikyu",                            2,  2, 1,  2, "1d8+2  1d8+1  1d8+1  1d8    1d8    1d8-1", "P",   "L"},
  {  6, "Bow: Great long (elven)",                2,  0, 1,  2, "1d10+1 1d10   1d10   1d10   1d8    1d8-1", "P",   "L"},
  {  7, "Bow: Long",                              2,  0, 1,  2, "1d8    1d8    1d8    1d8-1  1d8-1  1d8-2", "P",   "L"},
  {  8, "Bow: Short",                             2,  0, 1,  2, "1d6    1d6    1d6    1d6-1  1d6-2  1d6-3", "P",   "M"},
  {  9, "Club    ",                               1,  0, 0, -1, "1d10   1d8    1d6    1d6-2  1d6-4  1",     "C",   "M"},
  { 10, "Crossbow: Hand",                         1,  0, 1,  1, "1d6    1d4    1d4    1d3    1d6-4  1d6-4", "P",   "S"},
  { 11, "Crossbow: Heavy",                        1,  0, 1,  1, "2d6+1  2d6    2d6    2d4+1  2d4    1d6+1", "P",   "L"},
  { 12, "Crossbow: Light",                        1,  0, 1,  1, "1d8+1  1d8    1d8    1d6+1  1d6    1d6-1", "P",   "M"},
  { 13, "Crossbow: Peashooter",                   1,  0, 1,  2, "1d3    1d2    1d2    1      1      1",     "C",   "S"},
  { 14, "Dagger",                                 1,  0, 0, -1, "1d4    1d4    1d4    1d3    1d2    1",     "P",   "S"},
  { 15, "Dirk",                                   1,  0, 0,  0, "1d4+1  1d4    1d4    1d3    1d2    1",     "P",   "S"},
  { 16, "Dart",                                   1,  0, 1,  3, "1d3    1d3    1d3    1d2    1      1",     "P",   "S"},
  { 17, "Flail: Footman's    ",                   1,  0, 0,  2, "1d8+2  1d8+1  1d8    1d6+1  1d6    1d4+1", "C",   "L"},
  { 18, "Mace: Footman's    ",                    1,  0, 0,  0, "1d8+1  1d8    1d6+1  1d6    1d6-1  1d6-2", "C",   "M"},
  { 19, "Pick: Footman's",                        1,  0, 0,  1, "1d6+1  1d6+1  1d6+1  2d4    2d4    2d4",   "P",   "M"},
  { 20, "Hand or throwing axe",                   1,  0, 0,  0, "1d6    1d6    1d6    1d6    1d6    1d6",   "H",   "S"},
  { 21, "Harpoon",                                1,  0, 0,  3, "1d8    1d8    2d4    2d6    2d6    2d6+1", "P",   "L"},
  { 22, "Flail: Horseman's   ",                   1,  0, 0,  1, "1d6+1  1d6    1d4+1  1d4    1d4-1  1",     "C",   "M"},
  { 23, "Mace: Horseman's   ",                    1,  0, 0,  0, "1d6+1  1d6+1  1d6    1d4+1  1d4    1d4-1", "C",   "M"},
  { 24, "Pick: Horseman's    ",                   1,  0, 0,  0, "1d4+1  1d4+1  1d4+1  1d6    1d6    1d6",   "P",   "M"},
  { 25, "Rock: Hurled",                           1,  2, 1,  2, "1d4    1d4    1d3    1d2    1      1",     "C",   "S"},
  { 26, "Tankard: Hurled, Full",                  1,  0, 0,  3, "1d4+1  1d4    1d3    1d2    1      1",     "C",   "S"},
  { 27, "Javelin",                                1,  0, 1,  1, "1d6    1d6    1d6    1d6    1d6-1  1d6-2", "P",   "M"},
  { 28, "Knife",                                  1,  0, 0, -1, "1d4    1d3    1d3    1d2    1      1",     "H/P", "S"},
  { 29, "Lance: Heavy horse",                     1,  0, 0,  4, "1d8+2  1d8+2  2d6    3d6    3d6    3d6+2", "P",   "L"},
  { 30, "Lance: Light horse",                     1,  0, 0,  2, "1d6    1d6    1d6+1  1d8    1d8    1d8+1", "P",   "L"},
  { 31, "Lance: Jousting",                        1,  0, 0,  5, "1d4    1d4    1d3    1d2    1      1",     "C",   "L"},
  { 32, "Lance: Medium horse",                    1,  0, 0,  3, "1d6+1  1d6+1  1d8+1  2d6    2d6    2d6+1", "P",   "L"},
  { 33, "Main-gauche",                            1,  2, 0,  0, "1d4    1d4    1d4    1d3    1d2    1",     "H/P", "S"},
  { 34, "Mancatcher",                             1,  0, 0,  4, "1d3    1d3    1d2    1      -      -",     "C",   "L"},
  { 35, "Metal gauntlet",                         1,  2, 0, -1, "1d4    1d3    1d3    1d2    1      1",     "C",   "S"},
  { 36, "Morning Star    ",                       1,  0, 0,  1, "2d4+1  2d4    2d4    1d6+1  1d6    1d6-1", "C/P", "M"},
  { 37, "Polearm: Awl pike",                      1,  0, 0,  6, "1d6    1d6    1d6+1  1d12   2d6    2d8",   "P",   "H"},
  { 38, "Polearm: Bardiche",                      1,  0, 0,  4, "1d8    1d8    2d4    2d6    3d4    3d6",   "H",   "L"},
  { 39, "Polearm: Bec de corbin",                 1,  0, 0,  4, "1d8    1d8    1d8    1d8+1  1d8+1  1d10+1","C/P", "L"},
  { 40, "Polearm: Bill-guisarme",                 1,  0, 0,  5, "1d6+1  2d4    2d4    1d10   1d10   2d6",   "H/P", "L"},
  { 41, "Polearm: Fauchard",                      1,  0, 0,  4, "1d6    1d6    1d6    1d8    1d8    2d6",   "H",   "L"},
  { 42, "Polearm: Fauchard-fork",                 1,  0, 0,  4, "1d6    1d8    1d8    1d10   1d10   2d6",   "H/P", "L"},
  { 43, "Polearm: Glaive",                        1,  0, 0,  4, "1d6    1d6    1d6    1d10   1d10   2d6",   "H",   "L"},
  { 44, "Polearm: Glaive-guisarme",               1,  0, 0,  5, "2d4    2d4    2d4    2d6    2d6    2d8",   "H/P", "L"},
  { 45, "Polearm: Guisarme",                      1,  0, 0,  4, "1d6    1d8    2d4    2d4    1d10   2d6",   "H",   "L"},
  { 46, "Polearm: Guisarme-voulge",               1,  0, 0,  5, "1d8    1d8    2d4    2d4+1  2d6    2d6+1", "H/P", "L"},
  { 47, "Polearm: Halberd",                       1,  0, 0,  4, "1d8    1d10   1d10   2d6    2d6    3d6",   "H/P", "L"},
  { 48, "Polearm: Hook fauchard",                 1,  0, 0,  4, "1d4    1d4    1d4    1d6    1d6    1d8",   "H/P", "L"},
  { 49, "Polearm: Lucern hammer",                 1,  0, 0,  4, "2d4    2d4    2d4    1d8+1  1d8+1  1d8+2", "C/P", "L"},
  { 50, "Polearm: Military fork",                 1,  0, 0,  3, "1d8    1d8    1d8    2d4    2d4    2d6",   "P",   "L"},
  { 51, "Polearm: Partisan",                      1,  0, 0,  4, "1d6    1d6    1d6    1d6+1  1d8+1  2d6",   "P",   "L"},
  { 52, "Polearm: Ranseur",                       1,  0, 0,  4, "2d4    2d4    2d4    2d4+1  2d4+1  2d6",   "P",   "L"},
  { 53, "Polearm: Spetum",                        1,  0, 0,  4, "1d6+1  1d6+1  1d6+1  2d6    2d6    2d6+1", "P",   "L"},
  { 54, "Polearm: Voulge",                        1,  0, 0,  5, "2d4    2d4    2d4    2d4+1  2d6    2d8",   "H",   "L"},
  { 55, "Quarterstaff",                           1,  0, 0,  1, "1d8    1d6+1  1d6    1d6    1d4    1d4-1", "C",   "L"},
  { 56, "Sword: Rapier",                          1,  2, 0,  0, "1d6+1  1d6    1d6    1d6    1d4    1d4",   "P",   "M"},
  { 57, "Sword: Sabre   ",                        1,  2, 0,  0, "1d6    1d6+1  1d6+1  1d8    1d8    1d8",   "H",   "M"},
  { 58, "Sewing needle",                          1,  0, 0, -1, "1d3    1d2    1      1      1      1",     "P",   "S"},
  { 59, "Scourge",                                1,  0, 0,  2, "1d4    1d4    1d4    1d2    1      1",     "C/H", "S"},
  { 60, "Sickle",                                 1,  0, 0,  0, "1d4    1d4    1d4+1  1d4+1  1d4+1  1d4+1", "H",   "S"},
  { 61, "Sling    ",                              1,  0, 1,  1, "1d6+1  1d6    1d4    1d4-1  1d4-2  1",     "C",   "S"},
  { 62, "Spear    ",                              1,  0, 0,  2, "1d6    1d6    1d6    1d8    1d8    1d8+1", "P",   "M"},
  { 63, "Great Spear",                            1,  0, 0,  4, "1d8    1d8    1d8+1  2d6    2d6    2d8",   "P",   "L"},
  { 64, "Staff Sling",                            1,  0, 1,  1, "1d8    1d8    1d6    1d6-1  1d6-2  1d6-3", "C",   "M"},
  { 65, "Stiletto   ",                            1,  2, 0, -1, "1d4    1d4    1d3    1d3    1d2    1",     "P",   "S"},
  { 66, "Bloodthorn Stiletto",                    1,  0, 0, -1, "1d4+1  1d4+1  1d4    1d3    1d2    1",     "P",   "S"},
  { 67, "Sword: Bastard",                         1,  0, 0,  2, "1d8    2d4    2d4    1d12   1d12   2d8",   "H",   "L"},
  { 68, "Sword: Broad",                           1,  0, 0,  1, "1d6+1  2d4    2d4    2d4    1d8+1  1d8+1", "H",   "M"},
  { 69, "Sword: Katana",                          1,  2, 0,  0, "1d8    1d10   1d10   1d12   1d12   2d6",   "H",   "M"},
  { 70, "Sword: Khopesh",                         1,  0, 0,  3, "1d6+1  2d4    2d4    2d4    2d4    1d10",  "H",   "M"},
  { 71, "Sword: Long",                            1,  0, 0,  1, "1d6    1d8    1d8    1d12   1d12   2d6+1", "H",   "M"},
  { 72, "Sword: Petite rapier",                   1,  0, 0, -1, "1d6    1d4+1  1d4+1  1d4    1d3    1d2",   "P",   "S"},
  { 73, "Sword: Scimitar",                        1,  0, 0,  0, "1d6    1d8    1d8    1d8    1d8    1d10",  "H",   "M"},
  { 74, "Sword: Short",                           1,  0, 0,  0, "1d6    1d6    1d6    1d8    1d8    1d8",   "H/P", "S"},
  { 75, "Sword: Two-handed",                      1,  0, 0,  4, "1d8    1d10   1d10   3d6    3d6    3d8",   "H",   "L"},
  { 76, "Sword-breaker",                          1,  2, 0,  1, "1d4    1d4    1d4    1d3    1d2    1",     "P",   "S"},
  { 77, "Taichi/no-daichi",                       1,  2, 0,  3, "1d8    1d10   1d12   2d8    3d6    3d6+1", "H",   "L"},
  { 78, "Tanto",                                  1,  2, 0, -1, "1d4    1d4    1d4    1d4    1d3    1d2",   "H/P", "S"},
  { 79, "Trident",                                1,  0, 0,  3, "1d6    1d6+1  1d6+1  3d4    3d4    3d4+1", "P",   "L"},
  { 80, "Wakizashi",                              1,  2, 0,  0, "1d6    1d8    1d8    1d8    1d8    1d8",   "H",   "S"},
  { 81, "Warhammer",                              1,  0, 0,  1, "1d6+2  1d6+1  1d4+1  1d4+1  1d4    1d4",   "C",   "M"},
  { 82, "Whip",                                   1,  0, 0,  3, "1d3    1d2    1d2    1      1      1",     "C",   "M"},
  { 83, "Unconscious: pixie fairy",               1,  2, 0,  3, "1d4    1d3    1d2    1      1      1",     "C",   "S"},
  { 84, "Unconscious: halfling",                  1,  2, 0,  4, "1d6+1  1d6    1d6    1d4    1d3    1d2",   "C",   "M"},
  { 85, "Unconscious: human",                     1,  2, 0,  5, "1d10+1 1d10   1d8    1d6    1d6-1  1d4",   "C",   "L"},
  { 86, "Unconscious: half-ogre",                 1,  2, 0,  6, "2d8    2d6    2d6    2d4    1d8    1d6",   "C",   "H"},
  { 87, "Lasso",                                  1,  0, 0,  4, "1      1      1      1      -      -",     "C/S", "L"},
  { 88, "Club: Highland orc spiked",              1, 11, 0,  1, "1d10+1 1d10   1d8    1d6    1d6-1  1d6-2", "C/P", "M"},
  { 89, "Mace: Footman's, Large",                 1, 11, 0,  1, "1d10+2 1d10+1 1d8+1  1d8    1d6+1  1d6",   "C",   "L"},
  { 90, "Morning Star, Large",                    1, 11, 0,  2, "2d6+1  2d6    2d4+1  2d4+1  2d4    1d6+1", "C/P", "L"},
  { 91, "Obsidian blade",                         1, 11, 0,  1, "1d6+1  1d8    1d8    1d8    1d8    1d8+1", "H",   "M"},
  { 92, "Advanced Two-Weapon Fighting",        2000,  2, 2,  0, "",                                         "",    ""},
  { 93, "Advanced Two-Handed Fighting",        2000,  2, 2,  0, "",                                         "",    ""},
  { 94, "Advanced Single Weapon Fighting",     2000,  2, 2,  0, "",                                         "",    ""},
  { 95, "Advanced Weapon and Shield Fighting", 2000,  2, 2,  0, "",                                         "",    ""},
  { 96, "Shield Specialization",               2000,  2, 2,  0, "",                                         "",    ""},
  { 97, "Punching Specialization",             2000,  2, 3,  0, "",                                         "",    ""},
  { 98, "Wrestling Specialization",            2000,  2, 3,  0, "",                                         "",    ""},
  { 99, "Garrote",                                1,  3, 0,  2, "1d6-2  1d6-2  1d6-2  -      -      -",     "C/S", "S"},
  {100, "Big Rock",                               1,  3, 1,  1, "2d6    2d4+1  2d4    1d6+1  1d6    1d4",   "C",   "L"},
  {101, "Aklys",                                  1,  3, 0, -1, "1d8    1d8    1d6    1d6-2  1d6-2  1d6-3", "C",   "M"},
  {102, "Bill   ",                                1,  3, 0,  4, "1d6    1d6+1  2d4    2d4    1d10   1d10",  "H/P", "L"},
  {103, "Bottle, Empty",                          1,  3, 0,  4, "1d4-2  1d4-2  1d4-1  1      1      1",     "C",   "S"},
  {104, "Bottle, Full",                           1,  3, 0,  4, "1d4    1d4-1  1d4-1  1      1      1",     "C",   "S"},
  {105, "Chain, light",                           1,  3, 0,  3, "1d6    1d6    1d4    1d4-1  1d4-2  1",     "C",   "M"},
  {106, "Chair, wooden",                          1,  3, 0,  5, "1d8    1d6+1  1d6    1d4    1d3    1d2",   "C",   "L"},
  {107, "Chairleg",                               1,  3, 0,  2, "1d6    1d6    1d4    1d4-1  1d4-2  1",     "C",   "S"},
  {108, "Falchion",                               1,  3, 0,  1, "1d5    1d6    2d4    2d8    3d6+1  2d10+1","H",   "L"},
  {109, "Mace: Footman's, Huge",                  1,  3, 0,  2, "2d8+2  2d8    2d6+2  2d6    2d4+2  2d4",   "C",   "H"},
  {110, "Flail: Horseman's, Huge",                1,  3, 0,  3, "2d8    2d6+1  2d6    2d4+1  2d4    1d6+1", "C",   "H"},
  {111, "Flail: Horseman's, Large",               1,  3, 0,  2, "1d10+1 1d10   1d8    1d6+1  1d6    1d6-1", "C",   "L"},
  {112, "Holy Water Sprinkler, Iron",             1,  3, 0,  2, "1d8+1  1d8    1d6+1  1d6    1d6-1  1d6-2", "C/P", "M"},
  {113, "Shuriken (throwing stars)",              1,  4, 0, -1, "1d4    1d4    1d3    1d2    1      1",     "P",   "S"},
  {114, "Maul",                                   1,  3, 0,  4, "2d6+1  2d6    2d6    2d4+1  2d4    1d8",   "C",   "L"},
  {115, "Net",                                    1,  3, 0,  4, "1d2    1      1      -      -      -",     "C",   "L"},
  {116, "Nunchaku",                               1,  3, 0,  0, "1d8    1d6+1  1d6    1d4    1d4-1  1d4-2", "C",   "M"},
  {117, "Poolcue",                                1,  3, 0,  2, "1d6+1  1d6    1d4+1  1d4    1d4-1  1",     "C",   "M"},
  {118, "Pot",                                    1,  3, 0,  4, "1d4+1  1d4    1d4    1d3    1d2    1",     "C",   "S"},
  {119, "Prybar/crowbar",                         1,  3, 0,  2, "1d8    1d6+1  1d6    1d4+1  1d4    1d4-1", "C",   "M"},
  {120, "Tankard: Hurled, Empty",                 1,  3, 0,  3, "1d3    1d3    1d2    1      1      1",     "C",   "S"},
  {121, "Scythe",                                 1,  3, 0,  5, "1d6+1  1d8    1d8    2d4    2d6    2d6",   "H",   "L"},
  {122, "Stick",                                  1,  3, 0,  0, "1d4    1d4    1d3    1d2    1      1",     "C",   "S"},
  {123, "Table, Wooden",                          1,  3, 0,  6, "2d6    2d4    2d4    1d6    1d4    1d4-1", "C",   "H"},
  {124, "Talon Staff",                            1,  3, 0,  2, "1d6    1d8    1d8    1d8    1d8    1d10",  "H/P", "L"},
  {125, "Torch",                                  1,  3, 0,  3, "1d4+1  1d4    1d4    1d3    1d2    1",     "C",   "S"},
  {126, "Venison Leg",                            1,  3, 0,  3, "1d6    1d4+1  1d4    1d3    1d2    1",     "C",   "M"},
  {127, "Sword: Cutlass",                         1,  4, 0,  0, "1d6    1d6+1  1d6+1  1d6+1  1d8    1d8",   "H",   "M"},
  {128, "Kawanaga",                               1,  4, 0,  4, "1d4    1d4    1d3    1d2    1      1",     "P",   "M"},
  {129, "Kumade (Climbing Rake)",                 1,  3, 0,  4, "1d6    1d6    1d6    1d6    1d4+1  1d4+1", "H/P", "L"},
  {130, "Kusari-gama (Sickle on Chain)",          1,  4, 0,  3, "1d6    1d6    1d6    1d6    1d4    1d4",   "C/H", "M"},
  {131, "Kyoketsu-shogi (bladed whip-chain)",     1,  4, 0,  3, "1d6    1d6    1d6    1d4+1  1d4    1d4",   "H/P", "M"},
  {132, "Ninja-to",                               1,  4, 0,  0, "1d8    1d8    1d8    1d8    1d10   1d10",  "H",   "M"},
  {133, "Nekode, pair (Climbing claws)",          1,  4, 0,  0, "1d4    1d4    1d4    1d3    1d2    1",     "H/P", "S"},
  {134, "Sword: Sabre (SWA)",                     1,  4, 0,  0, "1d6    1d6    1d6+1  1d6+1  1d8    1d8",   "H",   "M"},
  {135, "Tetsu-bishi (caltrops)",                 1,  4, 0,  2, "1d2    1d2    1d2    1      1      1",     "P",   "S"},
};

// clang-format on

static_assert(std::size(kWeapons) == 136);

constexpr std::string_view NextWord(std::string_view& text) {
  while (text.starts_with(' ')) text.remove_prefix(1);
  const std::string_view word = text.substr(0, text.find(' '));
  text.remove_prefix(word.size());
  return word;
}

constexpr std::array<ProficiencyRecord, kProficiencyTableRows> BuildWeapons() {
  std::array<ProficiencyRecord, kProficiencyTableRows> table;
  for (std::size_t row = 0; row < std::size(kWeapons); ++row) {
    const WeaponLine& line = kWeapons[row];
    if (line.Row != static_cast<int>(row)) throw "the rows are out of order";
    ProficiencyRecord& weapon = table[row];
    weapon.Name = line.Name;
    weapon.SpecializationCost = line.SpecializationCost;
    weapon.Book = line.Book;
    weapon.Kind = line.Kind;
    weapon.HitModifier = line.HitModifier;
    std::string_view damage = line.Damage;
    for (std::string_view& text : weapon.Damage) text = NextWord(damage);
    if (!damage.empty()) throw "more than six damage texts";
    weapon.DamageType = line.DamageType;
    weapon.WeaponSize = line.WeaponSize;
  }
  return table;
}

constexpr std::array<ProficiencyRecord, kProficiencyTable2Rows> BuildAbilities() {
  std::array<ProficiencyRecord, kProficiencyTable2Rows> table;
  for (ProficiencyRecord& ability : table) ability.Kind = ProficiencyKind::Style;
  table[0].Name = "Quick Draw";
  table[0].Book = 2;
  return table;
}

constexpr std::array<ProficiencyRecord, kProficiencyTableRows> kProficiencyTable = BuildWeapons();
constexpr std::array<ProficiencyRecord, kProficiencyTable2Rows> kProficiencyTable2 = BuildAbilities();

}  // namespace

const std::array<ProficiencyRecord, kProficiencyTableRows>& ProficiencyTable() {
  return kProficiencyTable;
}

const std::array<ProficiencyRecord, kProficiencyTable2Rows>& ProficiencyTable2() {
  return kProficiencyTable2;
}

int FindProficiencyRow(std::string_view text) {
  return FindRow(ProficiencyTable(), text);
}

int FindProficiencyAbilityRow(std::string_view text) {
  return FindRow(ProficiencyTable2(), text);
}

}  // namespace veld
