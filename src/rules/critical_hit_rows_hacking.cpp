#include "rules/critical_hit_notation.h"
#include "rules/critical_hit_rows.h"

namespace veld {

// What swords and axes do: the edge opens muscle, cuts sinews on its way to the bone and cleaves the bone behind them.
// Limbs come off at the top of a ladder, fingers and toes far below it. A result with "ls" names no bone, muscle, sinew
// or bleeding of the limb: the limb is gone, and "ls" bleeds by itself.
// Not formatted by the tool: one record a place, its ladder broken where the page breaks it.
// clang-format off
constexpr std::array<CriticalHitLadder, 50> kHackingHits = {{
    {"Foot, top",
     "1:1 | 2:2 | 3:3 | 4:3, m1 | 5:4, m1 | 6:4, m2 | 7:6, m2, t1 | 8:6, m3, t1 | 9:8, m4, t1 | 10-11:8, m4, t1, b1 | "
     "12:x2, m4, t2, b1 | 13:x2, m5, t2, b1 | 14:x2, m5, t2, b2 | 15:x2, m5, t2, bf2 | 16:x2, m6, t2, bf2 | "
     "17:x2, m6, t3, bf3 | 18:x2, m7, t3, bf3 | 19:x2, m7, t3, bm3, pb | 20:x2, m8, t4, bm3, pb | "
     "21:x2, m8, t4, bs4, pb | 22:x2, ls, m8 | 23:x2, ls, m9 | 24:x2, ls, m10"},
    {"Heel",
     "1:1 | 2:1, m1 | 3:2, m1 | 4:3, m1 | 5:4, m1, b1 | 6:4, m2, b1 | 7:6, m2, b1 | 8:6, f, m3, b1 | 9:8, f, m3, b1 | "
     "10:8, f, m4, b1 | 11:10, d1, f, m4, bf1 | 12:10, d1, f, m4, t1, bf1 | 13:12, d1, f, m5, t1, bf1 | "
     "14:x2, d1, f, m5, t1, bf1 | 15-16:x2, d2, f, m5, t2, bf1 | 17:x2, d2, f, m6, t2, bf1, pb | "
     "18:x2, d2, f, m6, t2, bm1, pb | 19:x2, d2, f, m7, t3, bm1, pb | 20:x2, d3, f, m7, t3, bm1, pb | "
     "21:x2, d3, f, m8, t3, bs1, pb | 22:x2, ls, d3, f, m8 | 23:x2, ls, d3, f, m9 | 24:x2, ls, d4, f, m10"},
    {"Toe(s)",
     "1:1 | 2:1, b1 | 3:2, b1 | 4:2, m1, b1 | 5:3, m1, bf1 | 6:3, m1, t1, bf1 | 7:3, ls, m1 | 8:4, ls, m1 | "
     "9:4, ls, m2 | 10:6, ls, m2 | 11:6, ls, d1, m2 | 12-13:6, ls, d1, m3 | 14:8, ls, d1, m3 | 15:8, ls, d1, f, m3 | "
     "16:8, ls, d1, f, m4 | 17:10, ls, d1, f, m4 | 18:12, ls, d1, f, m4 | 19:12, ls, d2, f, m4 | "
     "20:12, ls, d2, f, m5 | 21:x2, ls, d2, f, m5 | 22:x2, ls, d2, f, m6 | 23:x2, ls, d3, f, m7 | "
     "24:x2, ls, d4, f, m8"},
    {"Foot, arch",
     "1:1 | 2:2 | 3:2, m1 | 4:3, m1, mt1 | 5:4, m1, mt1 | 6:4, f, m2, mt1 | 7:6, f, m2, mt1 | 8:6, f, m3, mt1 | "
     "9:8, f, m4, mt2 | 10:8, f, m4, t1, mt2 | 11:10, d1, f, m4, t1, mt2 | 12:x2, d1, f, m4, t1, mt2 | "
     "13:x2, d1, f, m5, t1, mt2, pb | 14:x2, d1, f, m5, t2, mt2, pb | 15:x2, d2, f, m6, t2, mt3, pb | "
     "16-17:x2, d2, f, m6, t2, mt3, b1, pb | 18:x2, d2, f, m7, t3, mt3, b1, pb | 19:x2, d2, f, m7, t3, mt4, b2, pb | "
     "20:x2, d3, f, m8, t3, mt4, bf2, pb | 21:x2, d3, f, m9, t3, mt4, bf2, pb | 22:x2, d3, f, m9, t4, mt4, bm3, pb | "
     "23:x2, ls, d4, f, m9 | 24:x2, ls, d5, f, m10"},
    {"Ankle, inner",
     "1:1 | 2:1, f | 3:2, f | 4:3, f, m1 | 5:4, f, m1 | 6:4, f, m2 | 7:6, f, m2, t1 | 8:8, f, m3, t1 | "
     "9:8, d1, f, m3, t1 | 10:10, d1, f, m4, t1, b1 | 11:x2, d1, f, m4, t1, b1 | 12:x2, d1, f, m4, t2, b1 | "
     "13:x2, d2, f, m5, t2, b1 | 14:x2, d2, f, m5, t2, b1, pb | 15:x2, d2, f, m6, t2, bf1, pb | "
     "16:x2, d2, f, m6, t3, bf1, pb | 17:x2, d3, f, m7, t3, bf1, pb | 18:x2, d3, f, m7, t3, bm1, pb | "
     "19-20:x2, d3, f, m8, t4, bm1, pb | 21:x2, d4, f, m8, t4, bs1, pb | 22:x2, ls, d4, f, m8 | 23:x2, ls, d4, f, m9 | "
     "24:x2, ls, d5, f, u, m10"},
    {"Ankle, outer",
     "1:1 | 2:2 | 3:3, m1 | 4:3, f, m1 | 5:4, f, m1, b1 | 6:6, f, m1, b1 | 7:6, f, m2, b1 | 8:8, f, m2, t1, b1 | "
     "9:x2, f, m3, t1, b1 | 10:x2, f, m4, t1, b1 | 11:x2, d1, f, m4, t1, bf1 | 12:x2, d1, f, m5, t1, bf1 | "
     "13:x2, d2, f, m5, t1, bf1 | 14:x2, d2, f, m5, t2, bf1 | 15:x2, d2, f, m6, t2, bm1 | "
     "16-17:x2, d3, f, m6, t2, bm1 | 18:x2, d3, f, m6, t2, bm1, pb | 19:x2, d3, f, m7, t3, bm2, pb | "
     "20:x2, d4, f, m7, t3, bs1, pb | 21:x2, d4, f, m8, t3, bs2, pb | 22:x2, ls, d4, f, m9 | 23:x2, ls, d5, f, m9 | "
     "24:x2, ls, d5, f, m10"},
    {"Ankle, upper/Achilles",
     "1:1 | 2:2, t1 | 3:2, f, t1 | 4:3, f, m1, t1 | 5:4, f, m2, t1 | 6:6, f, m2, t1 | 7:6, d1, f, m3, t2 | "
     "8:8, d1, f, m4, t2 | 9:x2, d1, f, m4, t2 | 10:x2, d2, f, m4, t2, mt1 | 11:x2, d2, f, m5, t2, mt1 | "
     "12:x2, d2, f, m5, t3, mt1 | 13:x2, d2, f, m6, t3, mt1 | 14-15:x2, d3, f, m6, t3, mt2 | "
     "16:x2, d3, f, m7, t3, mt2, pb | 17:x2, d3, f, m7, t4, mt2, pb | 18:x2, d4, f, m8, t4, mt2, b1, pb | "
     "19:x2, d4, f, m8, t4, mt3, bf1, pb | 20:x2, d5, f, m8, t4, mt3, bf1, pb | 21:x2, d5, f, m9, t5, mt3, bm1, pb | "
     "22:x2, ls, d5, f, m9 | 23:x2, ls, d5, f, m10 | 24:x3, ls, d6, f, m10"},
    {"Shin",
     "1:1 | 2:2 | 3:4 | 4:4, m1, b1 | 5:6, m1, b1 | 6:6, m2, b1 | 7:8, f, m2, b1 | 8:x2, f, m2, b1 | "
     "9:x2, f, m3, mt1, b1 | 10:x2, d1, f, m4, mt1, b1 | 11:x2, d1, f, m4, mt1, bf1 | 12:x2, d2, f, m5, mt1, bf1 | "
     "13-14:x2, d2, f, m6, mt2, bf1 | 15:x2, d3, f, m6, mt2, bf2 | 16:x2, d3, f, m6, mt2, bm1 | "
     "17:x2, d3, f, m7, mt3, bm1, pb | 18:x2, d4, f, m7, mt3, bm1, pb | 19:x2, d4, f, m8, mt3, bm2, pb | "
     "20:x2, d5, f, m8, mt3, bs1, pb | 21:x2, d5, f, m9, mt4, bs2, pb | 22:x2, ls, d5, f, m9 | 23:x2, ls, d6, f, m10 | "
     "24:x3, ls, d7, f, u, m10"},
    {"Calf",
     "1:1 | 2:3 | 3:3, mt1 | 4:4, mt1 | 5:6, mt1 | 6:8, m1, mt1 | 7:8, m2, mt2 | 8:10, f, m2, mt2 | 9:x2, f, m3, mt2 | "
     "10:x2, f, m4, mt3 | 11:x2, d1, f, m4, mt3 | 12:x2, d1, f, m5, mt3 | 13:x2, d1, f, m5, mt4, pb | "
     "14:x2, d2, f, m6, mt4, pb | 15:x2, d2, f, m6, mt5, pb | 16-17:x2, d3, f, m6, mt5, pb | "
     "18:x2, d3, f, m7, mt5, b1, pb | 19:x2, d4, f, m7, mt6, b1, pb | 20:x2, d4, f, m8, mt6, bf1, pb | "
     "21:x2, d5, f, m8, s1, mt6, bf1, pb | 22:x2, d5, f, m9, s1, mt7, bm1, pb | 23:x2, ls, d5, f, m10, s2 | "
     "24:x3, ls, d6, f, m10, s2"},
    {"Knee",
     "1:1 | 2:2, f | 3:3, f, m1 | 4:4, f, m1 | 5:4, f, m2, b1 | 6:6, f, m2, b1 | 7:6, f, m3, t1, b1 | "
     "8:8, d1, f, m3, t1, b1 | 9:x2, d1, f, m4, t1, b1 | 10:x2, d2, f, m4, t1, bf1 | 11:x2, d2, f, m5, t1, bf1 | "
     "12:x2, d2, f, m5, t2, bf1 | 13:x2, d3, f, m6, t2, bf1 | 14:x2, d3, f, m6, t2, bm1 | 15:x2, d3, f, m7, t3, bm1 | "
     "16:x2, d4, f, m7, t3, bm1 | 17:x2, d4, f, m8, t3, bm1, pb | 18-19:x2, d5, f, m8, t4, bs1, pb | "
     "20:x2, d5, f, m9, t4, bs1, pb | 21:x2, d6, f, m9, t5, bs2, pb | 22:x2, ls, d6, f, m9 | 23:x2, ls, d7, f, m10 | "
     "24:x3, ls, d8, f, u, m10"},
    {"Knee, back",
     "1:1, f | 2:2, f | 3:2, f, t1 | 4:3, f, m1, t1 | 5:4, f, m1, t1 | 6:6, f, m1, t1, mt1 | 7:6, f, m2, t1, mt1 | "
     "8:8, f, m3, t2, mt1 | 9:10, f, m4, t2, mt1, pb | 10:x2, f, m4, t2, mt1, pb | 11:x2, d1, f, m4, t2, mt2, pb | "
     "12:x2, d1, f, m5, t3, mt2, pb | 13:x2, d2, f, m5, t3, mt2, pb | 14:x2, d2, f, m6, t3, mt3, pb | "
     "15-16:x2, d3, f, m6, t3, mt3, pb | 17:x2, d3, f, m7, t4, mt3, b1, pb | 18:x2, d4, f, m8, t4, mt4, b1, pb | "
     "19:x2, d4, f, m8, t4, mt4, bf1, pb | 20:x2, d5, f, m8, t5, mt4, bf1, pb | 21:x2, d5, f, m9, t5, mt5, bm1, pb | "
     "22:x2, d6, f, m9, t5, mt5, bs1, pb | 23:x2, ls, d6, f, m10 | 24:x3, ls, d7, f, m10"},
    {"Hamstring",
     "1:1 | 2:2 | 3:3, t1 | 4:4, f, t1 | 5:4, f, m1, t1 | 6:6, f, m2, t1 | 7:8, f, m2, t2 | 8:8, f, m3, t2, mt1 | "
     "9:x2, f, m4, t2, mt1 | 10:x2, d1, f, m4, t2, mt2 | 11:x2, d1, f, m5, t2, mt2 | 12:x2, d2, f, m5, t3, mt2 | "
     "13:x2, d2, f, m6, t3, mt3 | 14:x2, d2, f, m6, t3, mt3, pb | 15:x2, d3, f, m7, t3, mt3, pb | "
     "16-17:x2, d3, f, m7, t4, mt4, pb | 18:x2, d4, f, m8, s1, t4, mt4, pb | 19:x2, d4, f, m8, s1, t4, mt5, pb | "
     "20:x2, d5, f, m8, s2, t5, mt5, pb | 21:x2, d5, f, m9, s2, t5, mt6, b1, pb | "
     "22:x2, d6, f, m9, s3, t5, mt6, bf1, pb | 23:x2, d7, f, m10, s3, t6, mt7, bm1, pb | 24:x3, ls, d7, f, u, m10, s4"},
    {"Thigh",
     "1:1 | 2:3 | 3:4 | 4:6, m1 | 5:6, m2 | 6:8, m2 | 7:10, d1, f, m2 | 8:x2, d2, f, m4 | 9:x2, d2, f, m4, mt1 | "
     "10-11:x2, d2, f, m5, mt1 | 12-13:x2, d2, f, m5, mt2 | 14:x2, d2, f, m6, mt2, b1 | 15:x2, d3, f, m6, mt3, b1 | "
     "16:x2, d3, f, m6, mt3, bf1 | 17:x2, d4, f, m6, mt3, bf1 | 18:x2, d4, f, m7, mt4, bf1 | "
     "19:x2, d5, f, m7, mt4, bm1 | 20:x2, d6, f, m8, mt5, bm1 | 21:x2, d6, f, m9, mt5, bm1, pb | "
     "22:x2, d7, f, m9, mt6, bs1, pb | 23:x3, ls, d7, f, m10 | 24:x3, ls, d8, u, m10"},
    {"Hip",
     "1:1 | 2:3 | 3:3, f | 4:4, f | 5:6, f | 6:6, f, m1, mt1 | 7:8, f, m1, mt1 | 8:10, f, m2, mt1 | "
     "9:x2, f, m2, mt1, b1 | 10:x2, f, m3, mt2, b1 | 11:x2, d1, f, m4, mt2, b1 | 12:x2, d1, f, m4, t1, mt2, b1 | "
     "13:x2, d1, f, m5, t1, mt2, bf1 | 14:x2, d2, f, m5, t1, mt2, bf1 | 15:x2, d2, f, m6, t2, mt3, bf1 | "
     "16:x2, d2, f, m6, t2, mt3, bf1, ib | 17:x2, d3, f, m7, t2, mt3, bf1, ib | "
     "18-19:x2, d3, f, m7, t2, mt4, bm1, ib | 20:x2, d4, f, m8, t3, mt4, bm1, ib | "
     "21:x2, d4, f, m8, s1, t3, mt4, bm1, ib, pb | 22:x2, d5, f, m9, s2, t3, mt5, bs1, ib, pb | "
     "23:x3, d5, f, m10, s3, t3, mt5, bs1, ib, pb | 24:x3, d6, f, u, m10, s4, t4, mt6, bs2, ib, pb"},
    {"Groin (Male only)",
     "1:1, f, h1 | 2:2, f, h1 | 3:2, f, w, h1 | 4:3, f, w, h2 | 5:4, f, w, h2, m1 | 6:6, f, w, h3, m1 | "
     "7:8, f, w, h3, m2, mt1 | 8:8, f, w, h4, m3, mt1 | 9:x2, f, w, h4, m3, mt1 | 10:x2, f, w, h5, m4, mt1, pb | "
     "11:x2, f, w, h5, m4, mt2, pb | 12:x2, d1, f, w, h6, m4, mt2, pb | 13:x2, d1, f, u, w, h6, m5, mt2, pb | "
     "14:x2, d1, f, u, w, h7, m5, mt2, pb | 15:x2, d1, f, u, w, h7, m6, s1, mt3, pb | "
     "16-17:x2, d2, f, u, w, h8, m6, s1, mt3, pb | 18:x2, d2, f, u, w, h9, m7, s2, mt3, pb | "
     "19:x2, d2, f, u, w, h10, m7, s2, mt4, ib, pb | 20:x2, d3, f, u, w, h12, m8, s3, mt4, ib, pb | "
     "21:x3, d3, f, u, w, h12, m8, s3, mt4, ib, pb | 22:x3, d3, f, u, w, h15, m9, s4, mt5, ib, pb | "
     "23:x3, d4, f, u, w, h18, m9, s4, mt5, ib, pb | 24:x3, d5, f, u, w, h20, m10, s5, mt6, ib, pb"},
    {"Buttock",
     "1:1 | 2:2 | 3:3 | 4:4, mt1 | 5:4, f, mt1 | 6:6, f, mt1 | 7:8, f, mt1 | 8:8, f, m1, mt2 | 9:10, f, m1, mt2 | "
     "10:12, f, m2, mt2 | 11:x2, f, m2, mt3 | 12:x2, f, m3, mt3 | 13:x2, d1, f, m3, mt3 | 14:x2, d1, f, m4, mt4 | "
     "15:x2, d1, f, m4, mt4, pb | 16:x2, d1, f, m5, mt4, pb | 17:x2, d1, f, m5, mt5, b1, pb | "
     "18:x2, d2, f, m6, mt5, b1, pb | 19-20:x2, d2, f, m6, mt6, bf1, pb | 21:x2, d3, f, m7, mt6, bf1, pb | "
     "22:x2, d3, f, m8, mt7, bm1, pb | 23:x2, d4, f, m8, mt7, bm1, ib, pb | 24:x3, d4, f, u, m9, mt8, bs1, ib, pb"},
    {"Abdomen, lower",
     "1:1 | 2:2 | 3:4 | 4:4, mt1 | 5:6, mt1 | 6:8, f, mt1 | 7:8, f, mt1, ib | 8:10, f, mt2, ib | 9:x2, f, mt2, ib | "
     "10:x2, f, w, mt2, ib | 11:x2, f, w, m1, mt2, v1 | 12:x2, d1, f, w, m2, mt3, v1 | "
     "13:x2, d1, f, w, m2, s1, mt3, v1 | 14-15:x2, d1, f, w, m4, s1, mt3, v1, pb | "
     "16:x2, d2, f, w, m4, s2, mt4, v1, pb | 17:x2, d2, f, w, m5, s2, mt4, v2, pb | "
     "18:x2, d2, f, u, w, m5, s3, mt5, v2, pb | 19:x3, d3, f, u, w, m6, s3, mt5, v2, pb | "
     "20:x3, d3, f, u, w, m7, s4, mt6, v3, pb | 21:x3, d4, f, u, w, m8, s4, mt6, v3, pb | "
     "22:belly slit from hip to hip | 23:guts spill out and are tripped over | "
     "24:cut in two below the navel and both halves surprised"},
    {"Side, lower",
     "1:1 | 2:3 | 3:4 | 4:6 | 5:6, mt1 | 6:8, mt1 | 7:8, f, mt1, b1 | 8:10, f, mt1, b1 | 9:12, f, mt2, b1 | "
     "10:x2, f, mt2, b1 | 11:x2, f, mt2, b2 | 12:x2, d1, f, mt2, b2, ib | 13:x2, d1, f, mt3, bf1, ib | "
     "14:x2, d1, f, s1, mt3, bf1, ib | 15:x2, d1, f, s1, mt3, bf2, ib | 16:x2, d2, f, s1, mt4, bf2, v1 | "
     "17:x2, d2, f, m4, s2, mt4, bm1, v1 | 18-19:x2, d2, f, m4, s2, mt5, bm1, v1, pb | "
     "20:x2, d3, f, w, m5, s3, mt5, bm2, v2, pb | 21:x2, d3, f, w, m6, s3, mt5, bs1, v2, pb | "
     "22:x3, d4, f, u, w, m6, s4, mt6, bs1, v2, pb | 23:x3, d4, f, u, w, m7, s4, mt6, bs2, v3, pb | "
     "24:x3, d5, f, u, w, m8, s5, mt7, bs3, v3, pb"},
    {"Abdomen, upper",
     "1:1 | 2:2, f | 3:3, f | 4:4, f, mt1 | 5:6, f, mt1 | 6:6, f, w, mt1 | 7:8, f, w, mt2 | 8:x2, f, w, mt2 | "
     "9:x2, f, w, mt2, ib | 10:x2, d1, f, w, mt2, ib | 11:x2, d1, f, w, mt3, ib | 12:x2, d1, f, w, s1, mt3, v1 | "
     "13:x2, d1, f, w, m2, s1, mt3, v1 | 14:x2, d2, f, w, m3, s1, mt3, v1 | 15:x2, d2, f, u, w, m3, s2, mt4, v1, pb | "
     "16:x2, d2, f, u, w, m4, s2, mt4, v2, pb | 17-18:x2, d3, f, u, w, m4, s2, mt5, v2, pb | "
     "19:x3, d3, f, u, w, m5, s3, mt5, v2, pb | 20:x3, d3, f, u, w, m5, s3, mt5, v3, pb | "
     "21:x3, d4, f, u, w, m6, s3, mt6, v4, pb | 22:liver hewn in two and bile on the blade | "
     "23:stomach laid open and the last meal on show | 24:hewn through at the waist and the legs walk on"},
    {"Back, small of",
     "1:1 | 2:2 | 3:3, mt1 | 4:4, mt1 | 5:6, m1, mt1 | 6:8, m1, mt1 | 7:8, f, m1, mt1, b1 | 8:x2, f, m2, mt1, b1 | "
     "9:x2, f, m2, mt2, b1 | 10:x2, f, m3, mt2, b1, p | 11:x2, d1, f, m4, mt2, b1, p | 12:x2, d1, f, m4, mt2, bf1, p | "
     "13:x2, d2, f, m5, mt2, bf1, p | 14:x2, d2, f, m5, s1, mt3, bf1, p | 15:x2, d2, f, m6, s1, mt3, bf1, p, ib | "
     "16:x2, d3, f, m6, s2, mt3, bm1, p, ib | 17:x2, d3, f, w, m7, s2, mt4, bm1, p, ib | "
     "18-19:x2, d4, f, w, m7, s3, mt4, bm1, p, v1 | 20:x2, d4, f, w, m8, s3, mt4, bs1, p, v1, pb | "
     "21:x3, d5, f, w, m9, s4, mt5, bs1, p, v1, pb | 22:x3, d6, f, u, w, m9, s5, mt5, bs1, p, v2, pb | "
     "23:x3, d6, f, u, w, m10, s6, mt5, bs2, p, v2, pb | 24:x3, d8, f, u, w, m10, s7, mt6, bs2, p, v3, pb"},
    {"Back, lower",
     "1:1 | 2:3 | 3:3, f | 4:4, f, mt1 | 5:4, f, m1, mt1 | 6:6, f, m1, mt1 | 7:6, f, m2, mt2 | 8:8, f, m2, mt2 | "
     "9:10, f, m3, mt2 | 10:12, f, m3, mt2, b1 | 11:x2, f, m4, mt3, b1 | 12:x2, d1, f, m4, mt3, b1 | "
     "13:x2, d1, f, m4, s1, mt3, b1, p | 14:x2, d1, f, m5, s1, mt3, b1, p, ib | "
     "15-16:x2, d2, f, m5, s1, mt4, bf1, p, ib | 17:x2, d2, f, m6, s2, mt4, bf1, p, v1 | "
     "18:x2, d3, f, m6, s2, mt5, bf1, p, v1, pb | 19:x2, d3, f, w, m7, s3, mt5, bm1, p, v1, pb | "
     "20:x2, d3, f, w, m8, s3, mt5, bm1, p, v2, pb | 21:x2, d4, f, w, m8, s4, mt6, bm1, p, v2, pb | "
     "22:x2, d4, f, u, w, m9, s4, mt6, bs1, p, v2, pb | 23:x3, d5, f, u, w, m9, s5, mt7, bs1, p, v3, pb | "
     "24:x3, d6, f, u, w, m10, s6, mt7, bs2, p, v3, pb"},
    {"Chest",
     "1:1 | 2:3 | 3:4 | 4:6, mt1 | 5:8, mt1 | 6:8, f, mt1 | 7:10, f, mt1, b1 | 8:x2, f, mt1, b1 | 9:x2, f, mt2, b1 | "
     "10:x2, f, mt2, b2 | 11:x2, f, w, mt2, bf1 | 12:x2, d1, f, w, mt2, bf2 | 13:x2, d1, f, w, mt3, bf2, ib | "
     "14:x2, d1, f, w, s1, mt3, bm1, ib | 15:x2, d2, f, w, s1, mt3, bm1, v1 | 16:x2, d2, f, w, s2, mt4, bm1, v1, pb | "
     "17:x2, d3, f, w, s2, mt4, bm2, v1, pb | 18-19:x3, d3, f, u, w, s3, mt4, bm2, v2, pb | "
     "20:x3, d4, f, u, w, s4, mt5, bs1, v2, pb | 21:x3, d5, f, u, w, s4, mt5, bs2, v3, pb | "
     "22:breastbone split like cordwood and a lung with it | 23:heart cleft in two and beating on both sides | "
     "24:cloven from collarbone to belt"},
    {"Side, upper",
     "1:1 | 2:2 | 3:4 | 4:4, ws | 5:6, ws | 6:6, ws, mt1 | 7:8, ws, mt1, b1 | 8:10, ws, mt1, b1 | 9:x2, ws, mt1, b1 | "
     "10:x2, ws, mt1, b2 | 11:x2, f, ws, mt2, b2 | 12:x2, f, w, mt2, bf1 | 13:x2, d1, f, w, mt2, bf1 | "
     "14:x2, d1, f, w, mt2, bf2 | 15:x2, d1, f, w, mt3, bf2, ib | 16:x2, d1, f, w, a1, mt3, bf3, ib | "
     "17:x2, d2, f, w, a1, s1, mt3, bm1, ib | 18:x2, d2, f, w, a2, s1, mt3, bm2, v1 | "
     "19:x2, d2, f, w, a2, s2, mt4, bm2, v1, pb | 20-21:x2, d3, f, w, a3, s2, mt4, bs1, v1, pb | "
     "22:x2, d4, f, u, w, a3, s3, mt5, bs2, v2, pb | 23:x3, d4, f, u, w, a4, s4, mt5, bs3, v2, pb | "
     "24:x3, d5, f, u, w, a4, s5, mt6, bs4, v3, pb"},
    {"Back, upper",
     "1:1 | 2:3 | 3:4 | 4:4, mt1 | 5:6, ws, mt1 | 6:8, ws, mt1 | 7:8, f, ws, mt2 | 8:10, f, ws, mt2 | "
     "9:x2, f, ws, mt2 | 10:x2, f, ws, mt3, b1 | 11:x2, f, w, mt3, b1 | 12:x2, d1, f, w, a1, mt3, b1 | "
     "13:x2, d1, f, w, a1, mt4, b1 | 14:x2, d1, f, w, a1, s1, mt4, bf1 | 15:x2, d2, f, w, a2, s1, mt4, bf1 | "
     "16:x2, d2, f, w, a2, s2, mt5, bf1, pb | 17:x2, d2, f, w, a2, s2, mt5, bf2, p, pb | "
     "18:x2, d3, f, w, a3, s3, mt5, bm1, p, pb | 19:x2, d3, f, w, a3, s3, mt6, bm1, p, ib, pb | "
     "20-21:x2, d4, f, w, a4, s4, mt6, bm2, p, ib, pb | 22:x2, d4, f, u, w, a4, s4, mt7, bs1, p, ib, pb | "
     "23:x3, d5, f, u, w, a5, s5, mt7, bs2, p, v1, pb | 24:x3, d6, f, u, w, a6, s6, mt8, bs3, p, v2, pb"},
    {"Back, upper middle",
     "1:1 | 2:2 | 3:3, f | 4:4, f | 5:4, f, b1 | 6:6, f, b1 | 7:8, f, w, b1 | 8:x2, f, w, b1, p | "
     "9:x2, f, w, mt1, b1, p | 10:x2, d1, f, w, mt1, b1, p | 11:x2, d1, f, w, mt1, bf1, p | "
     "12:x2, d2, f, w, mt2, bf1, p | 13:x2, d2, f, w, s1, mt2, bf1, p | 14:x2, d3, f, w, s1, mt2, bf1, p | "
     "15:x2, d3, f, w, s2, mt2, bm1, p | 16:x2, d3, f, w, s2, mt3, bm1, p, ib | 17:x2, d4, f, w, s3, mt3, bm1, p, ib | "
     "18:x2, d4, f, u, w, s3, mt3, bm1, p, ib, pb | 19-20:x3, d5, f, u, w, s4, mt3, bs1, p, ib, pb | "
     "21:x3, d6, f, u, w, s4, mt4, bs1, p, v1, pb | 22:x3, d6, f, u, w, s5, mt4, bs2, p, v1, pb | "
     "23:x3, d7, f, u, w, s6, mt4, bs2, p, v2, pb | 24:x3, d8, f, u, w, s7, mt5, bs3, p, v2, pb"},
    {"Armpit",
     "1:1 | 2:2 | 3:3, ws | 4:4, ws | 5:6, ws | 6:6, w, mt1 | 7:8, w, mt1 | 8:8, w, t1, mt1 | 9:x2, w, t1, mt1, pb | "
     "10:x2, w, a1, t1, mt1, pb | 11:x2, w, a1, t1, mt2, pb | 12:x2, d1, w, a1, t2, mt2, pb | "
     "13:x2, d1, w, a2, t2, mt2, pb | 14:x2, d1, w, a2, s1, t2, mt3, pb | 15:x2, d2, w, a2, s1, t2, mt3, pb | "
     "16:x2, d2, f, w, a3, s1, t3, mt3, pb | 17:x2, d2, f, w, a3, s2, t3, mt4, pb | "
     "18-19:x2, d3, f, w, a4, s2, t3, mt4, b1, pb | 20:x2, d4, f, w, a4, s3, t4, mt4, bf1, pb | "
     "21:x2, d4, f, w, a5, s3, t4, mt5, bf1, ib, pb | 22:x2, d5, f, w, a5, s4, t5, mt5, bm2, ib, pb | "
     "23:x2, ls, d5, f, w, a6, s4, ib | 24:x3, ls, d6, f, u, w, a6, s5, v1"},
    {"Arm, upper outer",
     "1:1 | 2:3 | 3:4 | 4:4, ws | 5:6, ws, mt1 | 6:8, ws, mt1 | 7:8, w, mt1 | 8:10, w, mt2 | 9:x2, w, mt2 | "
     "10:x2, w, a1, mt2 | 11:x2, w, a1, mt2, b1 | 12:x2, d1, w, a1, mt3, b1 | 13:x2, d1, w, a2, mt3, b1 | "
     "14:x2, d1, w, a2, s1, mt3, bf1 | 15:x2, d2, w, a2, s1, mt4, bf1 | 16:x2, d2, w, a2, s2, mt4, bf1, pb | "
     "17:x2, d3, w, a3, s2, mt4, bf1, pb | 18:x2, d3, w, a3, s2, mt5, bm1, pb | "
     "19-20:x2, d3, f, w, a3, s3, mt5, bm1, pb | 21:x2, d4, f, w, a4, s3, mt6, bs1, pb | 22:x2, ls, d4, f, w, a4, s3 | "
     "23:x2, ls, d5, f, w, a5, s4 | 24:x3, ls, d6, f, u, w, a5, s4"},
    {"Arm, upper inner",
     "1:1 | 2:2 | 3:2, ws | 4:3, ws, mt1 | 5:4, ws, mt1 | 6:4, w, mt1 | 7:6, w, mt1, pb | 8:8, w, mt1, pb | "
     "9:8, w, a1, mt2, pb | 10:10, w, a1, mt2, pb | 11:x2, w, a1, mt3, pb | 12:x2, d1, w, a2, mt3, pb | "
     "13:x2, d1, w, a2, s1, mt3, pb | 14:x2, d1, w, a2, s1, mt4, pb | 15:x2, d2, w, a3, s1, mt4, pb | "
     "16:x2, d2, w, a3, s2, mt4, b1, pb | 17:x2, d2, w, a3, s2, mt5, b1, pb | 18-19:x2, d3, w, a4, s2, mt5, bf1, pb | "
     "20:x2, d3, f, w, a4, s3, mt5, bf1, pb | 21:x2, d4, f, w, a4, s3, mt6, bm1, pb | "
     "22:x2, d4, f, w, a5, s4, mt6, bs1, pb | 23:x2, ls, d4, f, w, a5, s4 | 24:x2, ls, d5, f, u, w, a6, s5"},
    {"Elbow",
     "1:1 | 2:1, ws | 3:2, ws | 4:3, w | 5:4, w, b1 | 6:6, w, b1 | 7:6, w, t1, b1 | 8:8, w, t1, b1 | "
     "9:8, w, a1, t1, b1 | 10:x2, w, a1, t1, bf1 | 11:x2, d1, w, a1, t1, bf1 | 12:x2, d1, w, a2, t2, bf1 | "
     "13:x2, d2, w, a2, t2, bf1 | 14:x2, d2, w, a3, t2, bf1 | 15:x2, d2, w, a3, t2, mt1, bm1 | "
     "16:x2, d3, w, a3, t3, mt1, bm1 | 17-18:x2, d3, w, a4, t3, mt1, bm1, pb | 19:x2, d4, w, a4, t3, mt1, bs1, pb | "
     "20:x2, d5, w, a4, s1, t4, mt2, bs1, pb | 21:x2, ls, d5, w, a4, s1 | 22:x2, ls, d5, w, a5, s2 | "
     "23:x2, ls, d6, f, w, a5, s2 | 24:x3, ls, d7, f, w, a6, s3"},
    {"Inner joint",
     "1:1 | 2:2 | 3:2, w | 4:3, w, t1 | 5:3, w, t1, mt1 | 6:4, w, t1, mt1 | 7:6, w, a1, t1, mt1 | "
     "8:6, w, a1, t2, mt1 | 9:8, w, a1, t2, mt1, pb | 10:10, w, a1, t2, mt2, pb | 11:12, w, a2, t2, mt2, pb | "
     "12:x2, w, a2, t2, mt2, pb | 13:x2, d1, w, a2, t3, mt2, pb | 14:x2, d1, w, a2, s1, t3, mt3, pb | "
     "15-16:x2, d2, w, a3, s1, t3, mt3, pb | 17:x2, d2, w, a3, s2, t4, mt3, pb | "
     "18:x2, d3, w, a3, s2, t4, mt3, b1, pb | 19:x2, d3, w, a4, s2, t4, mt4, b1, pb | "
     "20:x2, d3, w, a4, s3, t5, mt4, bf1, pb | 21:x2, d4, w, a5, s3, t5, mt4, bm1, pb | 22:x2, ls, d4, w, a5, s3 | "
     "23:x2, ls, d5, w, a5, s4 | 24:x2, ls, d5, f, u, w, a6, s4"},
    {"Forarm, back",
     "1:1 | 2:2 | 3:3 | 4:3, ws, mt1 | 5:4, ws, mt1 | 6:6, ws, mt1 | 7:6, ws, mt1, b1 | 8:8, w, mt1, b1 | "
     "9:10, w, mt1, b1 | 10:x2, w, mt2, b1 | 11:x2, w, a1, mt2, b1 | 12:x2, w, a1, mt2, bf1 | "
     "13:x2, d1, w, a1, mt2, bf1 | 14:x2, d1, w, a1, mt3, bf1 | 15:x2, d1, w, a2, mt3, bf2 | "
     "16-17:x2, d2, w, a2, mt3, bm1 | 18:x2, d2, w, a3, s1, mt3, bm2, pb | 19:x2, d3, w, a3, s1, mt4, bm2, pb | "
     "20:x2, d3, w, a3, s1, mt4, bs2, pb | 21:x2, ls, d3, w, a3, s1 | 22:x2, ls, d4, w, a4, s2 | "
     "23:x2, ls, d5, w, a4, s2 | 24:x2, ls, d5, f, w, a5, s2"},
    {"Forarm, inner",
     "1:1 | 2:1, ws | 3:2, ws | 4:4, ws | 5:4, w, mt1 | 6:6, w, mt1 | 7:8, w, mt2 | 8:8, w, a1, mt2 | "
     "9:10, w, a1, mt2 | 10:10, w, a1, mt3 | 11:x2, w, a1, mt3, pb | 12:x2, d1, w, a1, mt3, pb | "
     "13:x2, d1, w, a2, mt4, pb | 14:x2, d1, w, a2, s1, mt4, pb | 15:x2, d1, w, a3, s1, mt4, pb | "
     "16:x2, d2, w, a3, s1, mt5, pb | 17:x2, d2, w, a3, s1, mt5, b1, pb | 18-19:x2, d3, w, a3, s2, mt5, b1, pb | "
     "20:x2, d3, w, a4, s2, mt6, bf1, pb | 21:x2, d3, w, a4, s3, mt6, bm1, pb | 22:x2, ls, d4, w, a4, s3 | "
     "23:x2, ls, d4, w, a5, s3 | 24:x2, ls, d5, f, w, a6, s3"},
    {"Wrist, back",
     "1:1 | 2:1, w | 3:2, w | 4:3, w | 5:3, w, t1 | 6:4, w, t1 | 7:4, w, a1, t1, b1 | 8:6, w, a1, t1, b1 | "
     "9:8, w, a1, t1, b1 | 10:8, d1, w, a1, t2, b1 | 11:10, d1, w, a2, t2, bf1 | 12:12, d1, w, a2, t2, bf1 | "
     "13:x2, d1, w, a2, t2, bf1 | 14:x2, d2, w, a3, t2, bf2 | 15:x2, d2, w, a3, t3, bm1 | "
     "16-17:x2, d3, w, a3, t3, bm2 | 18:x2, d3, w, a4, t4, bs2, pb | 19:x2, ls, d3, w, a4 | 20:x2, ls, d4, w, a4 | "
     "21:x2, ls, d4, w, a5 | 22:x2, ls, d5, w, a5 | 23:x2, ls, d6, f, w, a5 | 24:x2, ls, d7, f, w, a6"},
    {"Wrist, front",
     "1:1, ws | 2:1, w | 3:2, w, t1 | 4:2, w, a1, t1 | 5:3, w, a1, t1 | 6:4, w, a1, t1, pb | 7:6, w, a1, t1, pb | "
     "8:6, w, a1, t2, pb | 9:6, d1, w, a1, t2, pb | 10:8, d1, w, a2, t2, pb | 11:8, d1, w, a2, t3, pb | "
     "12:10, d2, w, a2, t3, pb | 13:x2, d2, w, a2, t3, pb | 14:x2, d2, w, a3, t3, pb | 15:x2, d2, w, a3, t4, b1, pb | "
     "16:x2, d3, w, a3, t4, b1, pb | 17:x2, d3, w, a4, t4, bf1, pb | 18-19:x2, d4, w, a4, t5, bm1, pb | "
     "20:x2, d4, w, a5, t5, bs1, pb | 21:x2, ls, d5, w, a5 | 22:x2, ls, d5, f, w, a5 | 23:x2, ls, d6, f, w, a6 | "
     "24:x2, ls, d6, f, u, w, a6"},
    {"Hand, back",
     "1:1 | 2:2 | 3:2, ws | 4:2, w, b1 | 5:3, w, b1 | 6:4, w, t1, b1 | 7:4, d1, w, t1, b1 | 8:6, d1, w, t1, b2 | "
     "9:6, d1, w, a1, t1, bf1 | 10:8, d1, w, a1, t1, bf2 | 11:10, d1, w, a1, t2, bf2 | 12:10, d2, w, a2, t2, bf2 | "
     "13:x2, d2, w, a2, t2, bf3 | 14:x2, d2, w, a2, t2, bm2 | 15:x2, d3, w, a3, t3, bm2 | "
     "16:x2, d3, w, a3, t3, mt1, bm3 | 17:x2, d3, w, a3, t3, mt1, bs3, pb | 18:x2, ls, d3, w, a3 | "
     "19:x2, ls, d3, w, a4 | 20-21:x2, ls, d4, w, a4 | 22:x2, ls, d5, w, a4 | 23:x2, ls, d6, w, a5 | "
     "24:x2, ls, d7, f, w, a6"},
    {"Palm",
     "1:1, w | 2:2, w | 3:2, w, mt1 | 4:3, w, mt1 | 5:3, w, a1, mt1 | 6:3, w, a1, t1, mt1 | 7:4, w, a1, t1, mt1 | "
     "8:4, d1, w, a1, t1, mt2 | 9:6, d1, w, a1, t2, mt2 | 10:6, d1, w, a2, t2, mt2 | 11:8, d2, w, a2, t2, mt2 | "
     "12:10, d2, w, a2, t2, mt2, pb | 13:12, d2, w, a3, t3, mt3, pb | 14:x2, d2, w, a3, t3, mt3, pb | "
     "15:x2, d3, w, a3, t3, mt3, b1, pb | 16:x2, d3, w, a4, t4, mt3, b1, pb | 17:x2, d4, w, a4, t4, mt4, b2, pb | "
     "18-19:x2, d4, w, a4, t4, mt4, bf2, pb | 20:x2, ls, d4, w, a5 | 21:x2, ls, d5, w, a5 | 22:x2, ls, d6, w, a5 | "
     "23:x2, ls, d6, w, a6 | 24:x2, ls, d7, w, a7"},
    {"Finger(s)",
     "1:1 | 2:1, ws | 3:2, ws | 4:2, w, t1 | 5:2, w, t1, b1 | 6:3, w, t1, bf1 | 7:3, ls, w | 8:4, ls, w | "
     "9:4, ls, d1, w | 10:4, ls, d1, w, a1 | 11:6, ls, d1, w, a1 | 12:6, ls, d2, w, a1 | 13:8, ls, d2, w, a1 | "
     "14:8, ls, d2, w, a2 | 15-16:8, ls, d3, w, a2 | 17:10, ls, d3, w, a2 | 18:10, ls, d3, w, a3 | "
     "19:12, ls, d4, w, a3 | 20:x2, ls, d4, w, a3 | 21:x2, ls, d5, w, a4 | 22:x2, ls, d6, w, a4 | "
     "23:x2, ls, d6, w, a5 | 24:x2, ls, d7, w, a5"},
    {"Shoulder, side",
     "1:1 | 2:2 | 3:3, mt1 | 4:4, mt1 | 5:4, ws, mt1 | 6:6, ws, mt1 | 7:8, ws, mt2 | 8:x2, w, mt2 | 9:x2, w, a1, mt2 | "
     "10:x2, w, a1, t1, mt2 | 11:x2, w, a1, t1, mt2, b1 | 12:x2, d1, w, a2, t1, mt3, b1 | "
     "13:x2, d1, w, a2, s1, t1, mt3, b1 | 14:x2, d1, w, a2, s1, t2, mt3, bf1 | 15:x2, d2, w, a3, s1, t2, mt3, bf1 | "
     "16-17:x2, d2, f, w, a3, s2, t2, mt4, bf1 | 18:x2, d3, f, w, a3, s2, t3, mt4, bm1, pb | "
     "19:x2, d3, f, w, a4, s3, t3, mt4, bm1, pb | 20:x2, d4, f, w, a4, s3, t3, mt5, bm1, pb | "
     "21:x2, d4, f, w, a5, s4, t4, mt5, bs1, pb | 22:x2, d5, f, w, a5, s4, t4, mt6, bs1, pb | "
     "23:x2, ls, d5, f, w, a6, s4 | 24:x3, ls, d6, f, u, w, a6, s5"},
    {"Shoulder, top",
     "1:1 | 2:3 | 3:4 | 4:6, ws | 5:6, ws, b1 | 6:8, ws, b1 | 7:8, f, ws, b1 | 8:10, f, w, b1 | 9:x2, f, w, mt1, b1 | "
     "10:x2, f, w, mt1, bf1 | 11:x2, f, w, a1, mt1, bf1 | 12:x2, d1, f, w, a1, mt2, bf1 | "
     "13:x2, d1, f, w, a1, mt2, bf2 | 14:x2, d2, f, w, a1, s1, mt2, bf2 | 15:x2, d2, f, w, a2, s1, mt3, bm1 | "
     "16:x2, d2, f, w, a2, s1, t1, mt3, bm1, pb | 17:x2, d3, f, w, a2, s2, t1, mt3, bm1, pb | "
     "18-19:x2, d3, f, w, a3, s2, t1, mt4, bm2, pb | 20:x2, d4, f, w, a3, s3, t2, mt4, bs1, pb | "
     "21:x3, d4, f, w, a4, s3, t2, mt5, bs1, pb | 22:x3, d5, f, u, w, a4, s4, t3, mt5, bs2, pb | "
     "23:x3, ls, d6, f, u, w, a5, s4 | 24:x3, ls, d7, f, u, w, a6, s5"},
    {"Neck, front",
     "1:1 | 2:2 | 3:3, f | 4:4, f, w | 5:6, f, w, mt1 | 6:8, f, w, mt1 | 7:10, f, w, mt1 | 8:x2, f, w, mt1, pb | "
     "9:x2, f, w, mt2, pb | 10:x2, d1, f, w, mt2, pb | 11:x2, d1, f, w, a1, mt2, pb | 12:x2, d1, f, w, a1, mt3, pb | "
     "13:x2, d2, f, u, w, a1, mt3, pb | 14:x2, d2, f, u, w, a2, mt3, ib, pb | "
     "15:x2, d2, f, u, w, a2, s1, mt4, ib, pb | 16:x3, d2, f, u, w, a2, s1, mt4, ib, pb | "
     "17:x3, d3, f, u, w, a3, s2, mt4, ib, pb | 18:x3, d3, f, u, w, a3, s2, mt4, b1, ib, pb | "
     "19-20:x3, d4, f, u, w, a4, s3, mt5, b1, ib, pb | 21:x3, d5, f, u, w, a5, s4, mt6, bf1, ib, pb | "
     "22:throat opened from ear to ear | 23:windpipe hewn through and the last words whistle out of it | "
     "24:head struck off and still looking for the culprit"},
    {"Neck, back",
     "1:1 | 2:2 | 3:4 | 4:4, f | 5:6, f, mt1 | 6:8, f, mt1, b1 | 7:8, f, w, mt1, b1 | 8:x2, f, w, mt1, b1 | "
     "9:x2, f, w, mt1, b1, p | 10:x2, d1, f, w, mt2, b1, p | 11:x2, d2, f, w, mt2, b1, p | "
     "12:x2, d2, f, w, mt2, bf1, p | 13:x2, d3, f, w, mt2, bf1, p | 14:x2, d3, f, u, w, s1, mt3, bf1, p | "
     "15:x2, d4, f, u, w, s1, mt3, bf1, p, pb | 16:x3, d4, f, u, w, s2, mt3, bm1, p, pb | "
     "17:x3, d5, f, u, w, s2, mt3, bm1, p, pb | 18-19:x3, d5, f, u, w, s3, mt4, bm1, p, pb | "
     "20:x3, d6, f, u, w, s4, mt4, bs1, p, pb | 21:x3, d7, f, u, w, s4, mt5, bs1, p, pb | "
     "22:x3, d8, f, u, w, s5, mt5, bs2, p, pb | 23:neck hewn through to the windpipe | "
     "24:beheaded as neatly as on the block"},
    {"Neck, side",
     "1:1 | 2:3 | 3:4, mt1 | 4:4, ws, mt1 | 5:6, ws, mt1 | 6:6, f, ws, mt1 | 7:8, f, w, mt2 | 8:8, f, w, mt2, pb | "
     "9:x2, f, w, mt2, pb | 10:x2, f, w, a1, mt3, pb | 11:x2, d1, f, w, a1, mt3, pb | 12:x2, d1, f, w, a2, mt3, pb | "
     "13:x2, d1, f, w, a2, mt4, pb | 14:x2, d2, f, w, a2, s1, mt4, b1, pb | 15:x2, d2, f, u, w, a3, s1, mt4, b1, pb | "
     "16:x2, d3, f, u, w, a3, s2, mt5, b1, pb | 17:x3, d3, f, u, w, a3, s2, mt5, bf1, pb | "
     "18-19:x3, d4, f, u, w, a4, s3, mt5, bf1, pb | 20:x3, d4, f, u, w, a5, s3, mt6, bm1, pb | "
     "21:x3, d5, f, u, w, a5, s4, mt6, bm1, ib, pb | 22:x3, d6, f, u, w, a6, s5, mt7, bs1, ib, pb | "
     "23:neck cut half through and the head folds over like a lid | 24:head lopped off like a thistle"},
    {"Head, side",
     "1:1 | 2:2 | 3:4 | 4:4, a1 | 5:6, a1 | 6:6, f, a1 | 7:8, f, a1 | 8:10, f, a1, mc | 9:x2, f, a1, mc | "
     "10:x2, f, a2, mc | 11:x2, d1, f, a2, b1, mc | 12:x2, d1, f, w, a2, b1, mc | 13:x2, d1, f, w, a3, b1, mc, pb | "
     "14:x2, d1, f, u, w, a3, b1, sc, pb | 15:x2, d2, f, u, w, a3, bf1, sc, pb | 16:x3, d2, f, u, w, a4, bf1, sc, pb | "
     "17:x3, d3, f, u, w, a4, bf1, sc, pb | 18-19:x3, d3, f, u, w, a4, bm1, sc, pb | "
     "20:x3, d4, f, u, w, a5, s1, bm1, sc, pb | 21:x3, d5, f, u, w, a5, s1, bs1, sc, pb | "
     "22:ear sheared off with the skull still on it | 23:blade lodged between the ears | "
     "24:skull sliced slantwise and the upper half slides off"},
    {"Head, back lower",
     "1:1 | 2:2, f | 3:3, f | 4:3, f, w | 5:4, f, w | 6:6, f, w, mc | 7:8, f, w, mc | 8:8, f, w, b1, mc | "
     "9:x2, f, w, b1, mc | 10:x2, d1, f, w, b1, mc | 11:x2, d1, f, w, b1, mc, pb | 12:x2, d2, f, u, w, b1, mc, pb | "
     "13:x2, d2, f, u, w, b1, sc, pb | 14:x2, d2, f, u, w, bf1, sc, pb | 15:x2, d3, f, u, w, bf1, sc, pb | "
     "16:x2, d3, f, u, w, s1, bf1, sc, pb | 17:x3, d3, f, u, w, s1, bm1, sc, pb | "
     "18:x3, d4, f, u, w, s2, bm1, sc, pb | 19-20:x3, d5, f, u, w, s2, bm1, sc, pb | "
     "21:x3, d6, f, u, w, s3, bs1, sc, pb | 22:x3, d7, f, u, w, s4, bs2, sc, pb | "
     "23:skull and spine parted by a hand's breadth of steel | 24:brain stem cut and the body drops like a puppet"},
    {"Face, lower side",
     "1:1 | 2:1, a1 | 3:2, a1 | 4:3, a1, mt1 | 5:4, a1, mt1 | 6:6, a1, mt1 | 7:6, a2, mt1, b1 | 8:8, f, a2, mt1, b1 | "
     "9:10, f, a2, mt2, b1 | 10:x2, f, a2, mt2, b1 | 11:x2, f, a3, mt2, bf1 | 12:x2, f, w, a3, mt2, bf1 | "
     "13:x2, d1, f, w, a3, mt3, bf1 | 14:x2, d1, f, w, a3, mt3, bf2 | 15:x2, d1, f, w, a4, mt3, bm1 | "
     "16:x2, d1, f, u, w, a4, mt3, bm1, pb | 17:x2, d2, f, u, w, a4, mt4, bm1, pb | "
     "18-19:x2, d2, f, u, w, a5, mt4, bm2, pb | 20:x3, d3, f, u, w, a5, s1, mt4, bs1, pb | "
     "21:x3, d3, f, u, w, a6, s1, mt5, bs1, pb | 22:x3, d4, f, u, w, a6, s2, mt5, bs2, pb | "
     "23:cheek and jaw hewn off and still clenched | 24:cloven from ear to ear and grinning about it"},
    {"Face, lower center",
     "1:1 | 2:2, a1 | 3:2, a1, b1 | 4:3, a1, b1 | 5:4, a2, b1 | 6:4, a2, mt1, b1 | 7:6, f, a2, mt1, b2 | "
     "8:8, f, a3, mt1, b2 | 9:8, f, w, a3, mt1, bf1 | 10:10, f, w, a3, mt1, bf1 | 11:12, f, w, a3, mt2, bf2 | "
     "12:x2, f, w, a4, mt2, bf2 | 13:x2, d1, f, w, a4, mt2, bf3 | 14:x2, d1, f, w, a4, mt2, bm1, pb | "
     "15:x2, d1, f, u, w, a4, mt3, bm1, pb | 16:x2, d2, f, u, w, a5, mt3, bm2, pb | "
     "17:x2, d2, f, u, w, a5, s1, mt3, bm2, pb | 18:x3, d2, f, u, w, a6, s1, mt3, bm3, pb | "
     "19-20:x3, d3, f, u, w, a6, s2, mt4, bs1, pb | 21:x3, d4, f, u, w, a7, s2, mt4, bs2, pb | "
     "22:x3, d4, f, u, w, a7, s3, mt5, bs3, pb | 23:tongue and teeth scattered and the chin in two | "
     "24:head cleft upward from the chin and the hat falls in"},
    {"Head, back upper",
     "1:1 | 2:2 | 3:3 | 4:4, f | 5:6, f | 6:8, f | 7:10, f, mc | 8:x2, f, mc | 9:x2, f, b1, mc | 10:x2, f, w, b1, mc | "
     "11:x2, d1, f, w, b1, mc | 12:x2, d1, f, w, b1, sc | 13:x2, d1, f, u, w, b1, sc | 14:x2, d2, f, u, w, bf1, sc | "
     "15:x2, d2, f, u, w, s1, bf1, sc | 16:x2, d2, f, u, w, s1, bf1, sc, pb | 17:x3, d3, f, u, w, s1, bf1, sc, pb | "
     "18-19:x3, d3, f, u, w, s2, bm1, sc, pb | 20:x3, d4, f, u, w, s2, bm1, sc, pb | "
     "21:x3, d5, f, u, w, s3, bm1, sc, pb | 22:x3, d6, f, u, w, s3, bs1, sc, pb | "
     "23:skull opened at the back and nobody home | 24:brain sliced thin as for a stew"},
    {"Face, upper side",
     "1:1 | 2:2 | 3:2, a1 | 4:3, a1 | 5:4, a2 | 6:6, f, a2 | 7:8, f, a2, mt1 | 8:8, f, a2, mt1, b1 | "
     "9:10, f, a3, mt1, b1 | 10:x2, f, a3, mt1, b1 | 11:x2, f, a3, mt1, b1, mc | 12:x2, d1, f, a4, mt1, b1, mc | "
     "13:x2, d1, f, a4, mt2, bf1, mc | 14:x2, d1, f, w, a4, mt2, bf1, mc, pb | "
     "15:x2, d1, f, u, w, a5, mt2, bf1, sc, pb | 16:x2, d2, f, u, w, a5, mt2, bf1, sc, pb | "
     "17:x2, d2, f, u, w, a5, mt3, bm1, sc, pb | 18:x3, d2, f, u, w, a6, mt3, bm1, sc, pb | "
     "19-20:x3, d3, f, u, w, a6, s1, mt3, bm1, sc, pb | 21:x3, d4, f, u, w, a7, s1, mt3, bs1, sc, pb | "
     "22:x3, d5, f, u, w, a7, s2, mt4, bs2, sc, pb | 23:eye halved and the other sees it happen | "
     "24:face shorn off from brow to jaw"},
    {"Face, upper center",
     "1:1 | 2:1, a1 | 3:3, a1 | 4:4, a1 | 5:6, a1, b1 | 6:8, a2, b1 | 7:8, f, a2, b1 | 8:10, f, a3, b1 | "
     "9:x2, f, a3, b1 | 10:x2, f, a4, b1 | 11:x2, f, w, a4, b1, mc | 12:x2, d1, f, w, a4, bf1, mc | "
     "13:x2, d1, f, u, w, a5, bf1, mc | 14:x2, d1, f, u, w, a5, bf1, mc, pb | 15:x2, d2, f, u, w, a5, bf2, sc, pb | "
     "16:x2, d2, f, u, w, a6, bf2, sc, pb | 17:x3, d2, f, u, w, a6, bm1, sc, pb | "
     "18:x3, d3, f, u, w, a7, bm1, sc, pb | 19-20:x3, d4, f, u, w, a7, s1, bm2, sc, pb | "
     "21:x3, d5, f, u, w, a8, s2, bs1, sc, pb | 22:nose split and the blade stops at the brain | "
     "23:cleft between the eyes which now look both ways | 24:hewn from brow to chin and folded open like a book"},
    {"Head, top",
     "1:1 | 2:3 | 3:4 | 4:6 | 5:8 | 6:8, f, mc | 7:10, f, mc | 8:x2, f, w, mc | 9:x2, f, w, b1, mc | "
     "10:x2, d1, f, w, b1, mc | 11:x2, d1, f, w, b1, mc, pb | 12:x2, d1, f, u, w, b1, sc, pb | "
     "13:x2, d2, f, u, w, bf1, sc, pb | 14:x2, d3, f, u, w, bf1, sc, pb | 15:x3, d3, f, u, w, bf1, sc, pb | "
     "16:x3, d3, f, u, w, s1, bm1, sc, pb | 17:x3, d4, f, u, w, s1, bm1, sc, pb | "
     "18-19:x3, d4, f, u, w, s2, bm1, sc, pb | 20:x3, d5, f, u, w, s3, bs1, sc, pb | "
     "21:x3, d6, f, u, w, s4, bs1, sc, pb | 22:helm and skull split together | 23:cloven to the teeth | "
     "24:parted in the middle down to the breastbone"},
}};
// clang-format on

constexpr CriticalHitIndex kHackingIndex = ReadCriticalHits(kHackingHits, 1);

}  // namespace veld
