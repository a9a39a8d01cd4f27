#include "rules/critical_hit_notation.h"
#include "rules/critical_hit_rows.h"

namespace veld {

// What maces, hammers and falls do: bones first, then strength, and the head reels. The number behind b, bf, bm and bs
// counts the bones. Hardly anything comes off; only fingers and toes are beaten to a pulp past saving.
// Not formatted by the tool: one record a place, its ladder broken where the page breaks it.
// clang-format off
constexpr std::array<CriticalHitLadder, 50> kCrushingHits = {{
    {"Foot, top",
     "1:1 | 2:2 | 3:2, m1 | 4:3, m1 | 5:4, m2 | 6:6, m2 | 7:6, m3, b1 | 8:8, m3, b1 | 9:8, d1, m4, b1 | "
     "10:x2, d1, m4, b2 | 11:x2, d1, f, m4, b2 | 12-13:x2, d1, f, m5, bf2 | 14:x2, d2, f, m5, bf2 | "
     "15:x2, d2, f, m6, bf3 | 16-17:x2, d2, f, m6, bm1 | 18:x2, d3, f, m7, bm2 | 19:x2, d3, f, m7, bm3 | "
     "20:x2, d3, f, m8, bm4 | 21:x2, d4, f, m8, bs2 | 22:x2, d4, f, m9, bs3 | 23:x2, d5, f, m9, bs4 | "
     "24:x2, d5, f, m10, bs5"},
    {"Heel",
     "1:1, m1 | 2:2, m1 | 3:3, m1 | 4:4, m1 | 5:4, f, m1 | 6:6, f, m2 | 7:6, f, m3 | 8-9:8, f, m3, b1 | "
     "10:10, f, m4, b1 | 11:10, d1, f, m4, b1 | 12:12, d1, f, m4, bf1 | 13:x2, d1, f, m4, bf1 | "
     "14:x2, d1, f, m5, bf1 | 15:x2, d2, f, m5, bf1 | 16-17:x2, d2, f, m6, bf1 | 18:x2, d2, f, m6, bm1 | "
     "19-20:x2, d3, f, m7, bm1 | 21:x2, d3, f, m8, bs1 | 22:x2, d4, f, m8, bs1, t1 | 23:x2, d4, f, m9, bs1, t1 | "
     "24:x2, d5, f, m9, bs1, t2"},
    {"Toe(s)",
     "1-2:1 | 3:2 | 4:2, m1 | 5:2, m1, b1 | 6:3, m1, b1 | 7:4, m1, b1 | 8:4, m2, b1 | 9:4, m2, b2 | 10:6, m2, b2 | "
     "11:6, m3, bf1 | 12:6, m3, bf2 | 13:8, m3, bf2 | 14:8, m4, bf3 | 15:8, d1, m4, bm1 | 16:10, d1, m4, bm2 | "
     "17:10, d1, f, m4, bm2 | 18:10, d1, f, m5, bm3 | 19:12, d1, f, m5, bs1 | 20:12, d2, f, m5, bs2 | "
     "21:x2, d2, f, m5, bs3 | 22:x2, ls, d2, f, m5, bs3 | 23:x2, ls, d2, f, m6, bs4 | 24:x2, ls, d3, f, m6, bs5"},
    {"Foot, arch",
     "1:1 | 2:1, m1 | 3:2, m2 | 4:3, m2 | 5:3, f, m2 | 6:4, f, m2 | 7:4, f, m3 | 8:6, f, m4 | 9:6, d1, f, m4 | "
     "10:8, d1, f, m4, b1 | 11:8, d1, f, m5, b1 | 12-13:10, d1, f, m5, b2 | 14:x2, d1, f, m5, bf1 | "
     "15:x2, d1, f, m6, bf2 | 16:x2, d2, f, m6, bf2, mt1 | 17:x2, d2, f, m7, bf2, mt1 | "
     "18-19:x2, d3, f, m7, bm1, mt1 | 20:x2, d3, f, m7, bm2, mt2 | 21:x2, d3, f, m8, bm3, mt2 | "
     "22:x2, d4, f, m9, bs1, mt2 | 23:x2, d4, f, m9, bs2, mt3 | 24:x2, d4, f, m10, bs3, mt3"},
    {"Ankle, inner",
     "1:1 | 2:2, m1 | 3:2, f, m1 | 4:3, f, m1 | 5:4, f, m2 | 6:6, d1, f, m2 | 7:6, d1, f, m3 | 8:x2, d1, f, m3 | "
     "9-10:x2, d1, f, m4, b1 | 11:x2, d1, f, m4, b1, t1 | 12:x2, d2, f, m5, b1, t1 | 13:x2, d2, f, m5, bf1, t1 | "
     "14-15:x2, d2, f, m6, bf1, t1 | 16:x2, d2, f, m6, bf1, t2 | 17:x2, d3, f, m7, bf1, t2 | "
     "18:x2, d3, f, m7, bm1, t2 | 19-20:x2, d3, f, m8, s1, bm1, t2 | 21:x2, d4, f, m8, s1, bm1, t3 | "
     "22:x2, d4, f, m9, s1, bs1, t3 | 23:x2, d5, f, m9, s1, bs2, t3 | 24:x2, d5, f, m10, s2, bs2, t4"},
    {"Ankle, outer",
     "1:1, f | 2:2, f | 3:3, f, m1 | 4:4, f, m1 | 5:4, f, m2, t1 | 6:6, f, m2, t1 | 7:6, f, m4, t1 | 8:8, f, m4, t1 | "
     "9:8, d1, f, m4, t1 | 10:x2, d1, f, m4, t2 | 11:x2, d1, f, m5, t2 | 12:x2, d1, f, m5, b1, t2 | "
     "13-14:x2, d2, f, m5, b1, t2 | 15:x2, d2, f, m6, bf1, t2 | 16:x2, d3, f, m6, bf1, t2 | "
     "17-18:x2, d3, f, m6, bm1, t2 | 19:x2, d3, f, m7, bm1, t3 | 20:x2, d4, f, m7, bm1, t3 | "
     "21:x2, d4, f, m8, bs1, t3 | 22:x2, d5, f, m8, bs1, t4 | 23:x2, d6, f, m9, bs1, t4 | 24:x3, d6, f, m10, bs2, t4"},
    {"Ankle, upper/Achilles",
     "1:1 | 2:2 | 3:3, m1 | 4:3, m2 | 5:4, m2, t1 | 6:6, m3, t1 | 7:8, f, m3, t1 | 8:x2, f, m4, t1 | "
     "9:x2, d1, f, m4, t2 | 10:x2, d2, f, m4, t2 | 11-12:x2, d2, f, m5, t2 | 13:x2, d2, f, m6, t2 | "
     "14:x2, d2, f, m6, t2, mt1 | 15:x2, d3, f, m6, t2, mt1 | 16:x2, d3, f, m7, t3, mt1 | "
     "17:x2, d3, f, m7, b1, t3, mt1 | 18:x2, d4, f, m7, b1, t3, mt2 | 19:x2, d4, f, m8, bf1, t3, mt2 | "
     "20:x2, d4, f, m8, s1, bf1, t3, mt2 | 21-22:x2, d5, f, m9, s1, bm1, t4, mt2 | "
     "23:x2, d5, f, m9, s2, bm2, t4, mt3 | 24:x2, d6, f, m10, s2, bs1, t4, mt3"},
    {"Shin",
     "1:1 | 2:3 | 3:4, m1 | 4:4, f, m1 | 5:6, f, m1 | 6:6, f, m2, b1 | 7:8, f, m3, b1 | 8:x2, f, m3, b1 | "
     "9:x2, d1, f, m4, b1 | 10:x2, d1, f, m4, bf1 | 11:x2, d2, f, m4, bf1 | 12:x2, d2, f, m5, bf1 | "
     "13-14:x2, d2, f, m6, bf2 | 15:x2, d3, f, m6, bf2 | 16:x2, d3, f, m7, bm1 | 17:x2, d3, f, m7, s1, bm1 | "
     "18-19:x2, d4, f, m8, s1, bm2 | 20:x2, d4, f, m8, s2, bm2 | 21:x2, d5, f, m9, s2, bs1 | "
     "22:x2, d6, f, m9, s2, bs1, pb | 23:x3, d6, f, m10, s3, bs2, pb | 24:x3, d7, f, u, m10, s3, bs2, pb"},
    {"Calf",
     "1:1 | 2:2 | 3:3 | 4:3, m1 | 5:4, m1 | 6:6, m2, mt1 | 7:6, f, m2, mt1 | 8:8, f, m4, mt1 | 9:x2, f, m4, mt1 | "
     "10:x2, d1, f, m4, mt2 | 11:x2, d1, f, m5, mt2 | 12:x2, d2, f, m5, mt2 | 13:x2, d2, f, m5, s1, mt2 | "
     "14:x2, d2, f, m6, s1, mt3 | 15-16:x2, d3, f, m6, s1, mt3 | 17:x2, d3, f, m6, s1, b1, mt3 | "
     "18:x2, d3, f, m7, s2, b1, mt3 | 19:x2, d4, f, m7, s2, bf1, mt4 | 20:x2, d4, f, m8, s2, bf1, mt4 | "
     "21:x2, d5, f, m8, s2, bf2, mt4 | 22:x2, d5, f, m9, s3, bm1, mt4 | 23:x2, d6, f, m9, s3, bm2, mt5 | "
     "24:x3, d6, f, m10, s3, bs1, mt5"},
    {"Knee",
     "1:1, m1 | 2:2, f, m1 | 3:3, f, m1 | 4:4, f, m2 | 5:6, f, m2 | 6:6, f, m3, t1 | 7:8, f, m4, t1 | "
     "8:x2, d1, f, m4, t1 | 9:x2, d2, f, m4, b1, t1 | 10:x2, d2, f, m5, b1, t1 | 11:x2, d2, f, m5, b1, t2 | "
     "12:x2, d2, f, m6, bf1, t2 | 13:x2, d3, f, m6, bf1, t2 | 14:x2, d3, f, m7, bf1, t2 | 15:x2, d3, f, m7, bm1, t3 | "
     "16:x2, d4, f, m7, s1, bm1, t3 | 17:x2, d4, f, m8, s1, bm1, t3 | 18:x2, d5, f, m8, s1, bs1, t3 | "
     "19-20:x2, d5, f, m9, s2, bs1, t3 | 21:x3, d6, f, m9, s2, bs1, t4 | 22:x3, d6, f, m10, s3, bs2, t4 | "
     "23:x3, d7, f, u, m10, s3, bs2, t4 | 24:x3, d8, f, u, m10, s3, bs3, t5"},
    {"Knee, back",
     "1:1, f | 2:1, f, m1 | 3:2, f, m1 | 4:3, f, m1 | 5:4, f, m1 | 6:4, f, m2, t1 | 7:6, f, m3, t1 | "
     "8:8, d1, f, m3, t1 | 9:10, d1, f, m4, t1 | 10:x2, d1, f, m4, t1, mt1 | 11-12:x2, d2, f, m4, t2, mt1 | "
     "13:x2, d2, f, m5, t2, mt1 | 14:x2, d2, f, m5, b1, t2, mt1 | 15:x2, d3, f, m6, b1, t2, mt2 | "
     "16:x2, d3, f, m6, s1, b1, t3, mt2 | 17-18:x2, d3, f, m7, s1, bf1, t3, mt2 | 19:x2, d4, f, m7, s1, bf1, t3, mt3 | "
     "20:x2, d4, f, m8, s2, bf1, t4, mt3 | 21:x2, d5, f, m8, s2, bm1, t4, mt3 | "
     "22:x2, d5, f, m9, s2, bm1, t4, mt3, pb | 23:x2, d6, f, m9, s3, bm2, t4, mt4, pb | "
     "24:x3, d7, f, m10, s3, bs1, t5, mt4, pb"},
    {"Hamstring",
     "1:1 | 2:2, m1 | 3:3, m1, mt1 | 4:3, m2, mt1 | 5:4, m2, mt1 | 6:6, f, m2, mt1 | 7:8, f, m2, mt1 | "
     "8:8, d1, f, m4, mt2 | 9:x2, d1, f, m4, mt2 | 10:x2, d2, f, m4, mt2 | 11:x2, d2, f, m5, mt2 | "
     "12:x2, d2, f, m5, s1, mt3 | 13-14:x2, d2, f, m5, s2, mt3 | 15:x2, d3, f, m6, s2, mt3 | "
     "16:x2, d3, f, m6, s2, mt4 | 17:x2, d4, f, m7, s2, mt4 | 18:x2, d4, f, m7, s3, b1, mt4 | "
     "19:x2, d5, f, m7, s3, b1, mt4 | 20-21:x2, d5, f, m8, s3, b1, mt5 | 22:x2, d6, f, m9, s4, bf1, mt5 | "
     "23:x2, d6, f, m9, s4, bf1, mt5, pb | 24:x3, d7, f, m10, s4, bm1, mt5, pb"},
    {"Thigh",
     "1:1 | 2:3 | 3:4 | 4:4, m1 | 5:6, m2 | 6:8, f, m2 | 7:10, d1, f, m3 | 8-10:x2, d2, f, m4 | 11:x2, d2, f, m5 | "
     "12-13:x2, d2, f, m5, b1 | 14:x2, d3, f, m5, s1, bf1 | 15:x2, d3, f, m6, s1, bf1 | 16:x2, d3, f, m6, s2, bm1 | "
     "17:x2, d4, f, m6, s2, bm1, mt1 | 18:x2, d4, f, m7, s2, bm1, mt2 | 19:x2, d5, f, m7, s3, bm1, mt3 | "
     "20:x2, d6, f, m8, s3, bm1, mt4 | 21:x2, d6, f, m9, s3, bm1, mt4 | 22:x2, d7, f, m9, s4, bs1, mt4 | "
     "23:x3, s4, d7, f, m10, bs1, mt5 | 24:x3, s5, d8, f, m10, bs1, mt5"},
    {"Hip",
     "1:1 | 2:2 | 3:3, f | 4:4, f | 5:4, f, m1 | 6:6, f, m2 | 7:8, f, m2 | 8:8, d1, f, m4 | 9:10, d1, f, m4 | "
     "10:x2, d1, f, m4 | 11:x2, d2, f, m4, b1 | 12:x2, d2, f, m6, b1 | 13:x2, d2, f, m6, s1, b1 | "
     "14:x2, d3, f, m6, s1, bf1 | 15:x2, d3, f, m6, s2, bf1 | 16:x2, d3, f, m7, s2, bf1 | 17:x2, d4, f, m7, s2, bm1 | "
     "18:x2, d4, f, m8, s3, bm1 | 19-20:x2, d5, f, m8, s3, bm1, ib | 21:x3, d5, f, m9, s3, bm2, ib | "
     "22:x3, d6, f, m9, s4, bs1, ib | 23:x3, d7, f, u, m10, s5, bs2, ib | 24:x3, d8, f, u, m10, s6, bs3, ib, pb"},
    {"Groin (Male only)",
     "1:1, f, h1 | 2:2, f, h1 | 3:3, f, h1, m1 | 4:4, f, w, h1, m1 | 5:4, f, w, h2, m2 | 6:6, f, w, h2, m2 | "
     "7:8, f, w, h2, m3, s1 | 8:x2, f, w, h2, m4, s1 | 9:x2, f, w, h3, m4, s1 | 10-11:x2, d1, f, w, h3, m4, s2 | "
     "12:x2, d1, f, u, w, h3, m5, s2 | 13:x2, d2, f, u, w, h4, m5, s2 | 14:x2, d2, f, u, w, h4, m5, s3 | "
     "15:x2, d2, f, u, w, h4, m6, s3, mt1 | 16:x2, d3, f, u, w, h5, m6, s3, mt1 | "
     "17:x2, d3, f, u, w, h5, m7, s4, mt1 | 18:x2, d3, f, u, w, h6, m7, s4, mt2 | "
     "19:x2, d4, f, u, w, h6, m8, s4, mt2, ib | 20:x2, d4, f, u, w, h7, m8, s5, mt2, ib | "
     "21:x3, d4, f, u, w, h8, m9, s5, mt3, ib | 22:x3, d5, f, u, w, h8, m9, s5, mt3, ib | "
     "23:x3, d5, f, u, w, h9, m10, s6, mt4, ib | 24:x3, d6, f, u, w, h10, m10, s7, mt4, ib, pb"},
    {"Buttock",
     "1:1 | 2:1, f | 3:2, f | 4:3, f | 5:4, f | 6:4, f, m1 | 7:6, f, m1 | 8:6, f, m2 | 9:8, f, m2, mt1 | "
     "10:8, f, m3, mt1 | 11:10, d1, f, m3, mt1 | 12:12, d1, f, m4, mt1 | 13:x2, d1, f, m4, mt2 | "
     "14:x2, d1, f, m4, s1, mt2 | 15-16:x2, d2, f, m5, s1, mt2 | 17:x2, d2, f, m5, s1, b1, mt3 | "
     "18:x2, d2, f, m6, s2, b1, mt3 | 19:x2, d3, f, m6, s2, b1, mt4 | 20:x2, d3, f, m7, s2, bf1, mt4 | "
     "21:x2, d4, f, m7, s3, bf1, mt4 | 22:x2, d4, f, m8, s3, bm1, mt5 | 23:x2, d5, f, m8, s3, bm1, mt5, ib | "
     "24:x3, d5, f, u, m9, s4, bs1, mt5, ib"},
    {"Abdomen, lower",
     "1:1 | 2:2, s1 | 3:3, s1 | 4:3, f, s1 | 5:4, f, s1 | 6:6, f, m1, s1 | 7:8, f, m1, s2 | 8:10, f, w, m1, s2 | "
     "9:x2, f, w, m2, s2 | 10:x2, f, w, m2, s2, mt1 | 11:x2, d1, f, w, m4, s2, mt1 | 12:x2, d1, f, w, m4, s3, mt2 | "
     "13-14:x2, d1, f, w, m4, s3, mt2, ib | 15:x2, d2, f, w, m5, s3, mt2, ib | 16:x2, d2, f, u, m5, s3, mt2, v1 | "
     "17:x2, d2, f, u, m5, s4, mt3, v1 | 18:x2, d3, f, u, m6, s4, mt3, v1 | 19:x2, d3, f, u, m6, s4, mt4, v2 | "
     "20:x3, d3, f, u, m7, s5, mt4, v2 | 21:x3, d4, f, u, m7, s5, mt5, v2 | 22:x3, d4, f, u, m8, s6, mt5, v3, pb | "
     "23:bowels burst and supper leaves by the nearest exit | 24:bladder pops like a wineskin under a wagon wheel"},
    {"Side, lower",
     "1:1 | 2:2 | 3:4 | 4:4, s1 | 5:6, s1 | 6:6, s1, b1 | 7:8, f, s1, b1 | 8:10, f, s1, b1 | 9:12, f, s1, b2 | "
     "10:x2, f, s1, b2 | 11:x2, f, s2, b2 | 12:x2, d1, f, s2, bf1 | 13:x2, d1, f, m4, s2, bf1 | "
     "14:x2, d1, f, m4, s2, bf2, ib | 15-16:x2, d2, f, m4, s3, bf2, ib | 17:x2, d2, f, m5, s3, bm1, ib | "
     "18:x2, d2, f, m5, s3, bm2, v1 | 19:x2, d3, f, m6, s4, bm2, v1 | 20:x2, d3, f, u, m6, s4, bm3, v1 | "
     "21:x2, d4, f, u, m7, s4, bs1, v2 | 22:x3, d4, f, u, m7, s5, bs2, v2 | 23:x3, d5, f, u, m8, s5, bs2, v3, pb | "
     "24:x3, d6, f, u, m9, s6, bs3, v4, pb"},
    {"Abdomen, upper",
     "1:1, f | 2:2, f | 3:3, f, w | 4:4, f, w | 5:6, f, w | 6:6, f, w, s1 | 7:8, f, w, m1, s1 | 8:x2, f, w, m1, s1 | "
     "9:x2, d1, f, w, m2, s1 | 10:x2, d1, f, w, m2, s2 | 11:x2, d1, f, u, w, m2, s2 | 12:x2, d1, f, u, w, m3, s2, ib | "
     "13:x2, d2, f, u, w, m3, s3, ib | 14-15:x2, d2, f, u, w, m4, s3, mt1, ib | 16:x2, d2, f, u, m4, s3, mt1, v1 | "
     "17:x2, d3, f, u, m4, s4, mt1, v1 | 18:x2, d3, f, u, m5, s4, mt2, v2 | 19:x3, d3, f, u, m5, s4, mt2, v2 | "
     "20:x3, d4, f, u, m5, s5, mt2, v2 | 21:x3, d4, f, u, m6, s5, mt3, v3 | 22:x3, d5, f, u, m6, s6, mt3, v3, pb | "
     "23:liver pounded to a fine paste | 24:stomach driven up into the throat"},
    {"Back, small of",
     "1:1 | 2:2 | 3:3, m1 | 4:4, m1 | 5:4, m2, s1 | 6:6, f, m2, s1 | 7:8, f, m2, s1 | 8:x2, f, m3, s1 | "
     "9:x2, f, m4, s1, b1 | 10:x2, d1, f, m4, s2, b1 | 11:x2, d1, f, m5, s2, b1 | 12:x2, d2, f, m5, s2, b1, p | "
     "13:x2, d2, f, m5, s3, b2, p | 14:x2, d2, f, m6, s3, b2, p | 15-16:x2, d3, f, m6, s3, bf1, p | "
     "17:x2, d3, f, m7, s4, bf1, p | 18:x2, d4, f, m7, s4, bf2, p, ib | 19:x3, d4, f, m8, s4, bm1, p, ib | "
     "20:x3, d5, f, m8, s5, bm1, p, ib | 21:x3, d5, f, u, m9, s5, bm2, p, v1 | 22:x3, d6, f, u, m9, s6, bs1, p, v1 | "
     "23:x3, d6, f, u, m10, s6, bs2, p, v2 | 24:x3, d7, f, u, m10, s7, bs2, p, v3"},
    {"Back, lower",
     "1:1 | 2:3 | 3:3, s1 | 4:4, s1 | 5:6, s1 | 6:6, m1, s1 | 7:6, f, m1, s1 | 8:8, f, m1, s2 | 9:10, f, m2, s2, b1 | "
     "10:x2, f, m3, s2, b1 | 11:x2, f, m4, s2, b1 | 12:x2, d1, f, m4, s3, b1, p | 13-14:x2, d1, f, m4, s3, bf1, p | "
     "15:x2, d2, f, m5, s3, bf1, p | 16:x2, d2, f, m5, s3, bf2, p, ib | 17:x2, d2, f, m6, s4, bf2, p, ib | "
     "18:x2, d3, f, m6, s4, bm1, p, v1 | 19:x2, d3, f, m6, s5, bm2, p, v1 | 20:x2, d4, f, u, m7, s5, bm2, p, v1 | "
     "21:x3, d4, f, u, m8, s5, bm3, p, v2 | 22:x3, d5, f, u, m8, s6, bs2, p, v2 | "
     "23:x3, d6, f, u, m9, s7, bs3, p, v2 | 24:x3, d7, f, u, m10, s8, bs3, p, v3, pb"},
    {"Chest",
     "1:1 | 2:3 | 3:4 | 4:6 | 5:6, f | 6:8, f | 7:8, f, b1 | 8:x2, f, b1 | 9:x2, f, s1, b2 | 10:x2, f, s1, bf1 | "
     "11:x2, d1, f, s1, bf2 | 12:x2, d1, f, s2, bf2 | 13:x2, d1, f, w, s2, bf2, ib | 14:x2, d2, f, w, s2, bf3, ib | "
     "15:x2, d2, f, w, s3, bm1, ib | 16:x2, d2, f, u, s3, bm2, v1 | 17:x2, d3, f, u, s3, bm3, v1 | "
     "18:x3, d3, f, u, s4, bm3, v1 | 19:x3, d4, f, u, s4, bm4, v2 | 20:x3, d4, f, u, s5, bs1, v2 | "
     "21:x3, d5, f, u, s5, bs3, v3, pb | 22:ribs folded round the heart like a fist | "
     "23:heart stops mid-beat and never finds its place again | 24:breastbone introduced to backbone"},
    {"Side, upper",
     "1:1 | 2:2 | 3:2, b1 | 4:3, b1 | 5:4, b1 | 6:6, b2 | 7:8, b2 | 8:8, ws, b2 | 9:10, ws, bf1 | 10:x2, ws, bf1 | "
     "11:x2, f, ws, bf2 | 12:x2, f, ws, s1, bf2 | 13:x2, f, w, s1, bf3 | 14-15:x2, d1, f, w, s1, bm1 | "
     "16:x2, d1, f, w, s2, bm1, ib | 17:x2, d1, f, w, s2, bm2, ib | 18:x2, d2, f, w, s2, bm3, ib | "
     "19:x2, d2, f, w, s3, bm4, ib | 20:x2, d3, f, w, s3, bs1, v1 | 21:x2, d3, f, u, w, s4, bs2, v1 | "
     "22:x3, d4, f, u, w, s4, bs3, v2 | 23:x3, d4, f, u, w, s5, bs4, v2, pb | 24:x3, d5, f, u, w, s6, bs5, v3, pb"},
    {"Back, upper",
     "1:1 | 2:2, f | 3:3, f | 4:4, f | 5:6, f | 6:6, f, ws | 7:8, f, ws | 8:10, f, ws, s1 | 9:x2, f, ws, s1 | "
     "10:x2, f, ws, s1, b1 | 11:x2, d1, f, ws, s1, b2 | 12:x2, d1, f, w, s2, b2 | 13:x2, d1, f, w, s2, bf1, mt1 | "
     "14:x2, d1, f, w, s2, bf2, mt1 | 15:x2, d2, f, w, s3, bf2, mt2, p | 16:x2, d2, f, w, s3, bm1, mt2, p | "
     "17-18:x2, d3, f, w, s3, bm1, mt3, p | 19:x2, d3, f, w, s4, bm2, mt3, p | 20:x2, d3, f, w, s4, bm3, mt4, p, ib | "
     "21:x2, d4, f, u, w, s5, bs1, mt4, p, ib | 22:x3, d4, f, u, w, s5, bs2, mt4, p, v1 | "
     "23:x3, d5, f, u, w, s6, bs3, mt5, p, v2 | 24:x3, d6, f, u, w, s7, bs4, mt5, p, v2, pb"},
    {"Back, upper middle",
     "1:1, f | 2:2, f | 3:2, f, ws | 4:3, f, ws | 5:4, f, ws, b1 | 6:6, f, w, b1 | 7:8, f, w, b1 | 8:x2, f, w, b1 | "
     "9:x2, d1, f, w, b1, p | 10:x2, d1, f, w, s1, b1, p | 11:x2, d2, f, w, s1, b2, p | 12:x2, d2, f, w, s2, bf1, p | "
     "13:x2, d3, f, w, s2, bf1, p | 14:x2, d3, f, w, s2, bf2, p | 15:x2, d3, f, w, s3, bf2, p, ib | "
     "16:x2, d4, f, w, s3, bm1, p, ib | 17:x2, d4, f, u, w, s4, bm1, p, ib | 18:x3, d4, f, u, w, s4, bm2, p, ib | "
     "19:x3, d5, f, u, w, s5, bm2, p, v1 | 20:x3, d5, f, u, w, s5, bs1, p, v1 | 21:x3, d6, f, u, w, s6, bs2, p, v1 | "
     "22-23:x3, d7, f, u, w, s6, bs3, p, v2 | 24:x3, d8, f, u, w, s7, bs4, p, v3"},
    {"Armpit",
     "1:1 | 2:2, ws | 3:3, ws | 4:4, ws | 5:4, w | 6:6, w | 7:6, w, s1 | 8:8, w, a1, s1 | 9:10, w, a1, s1 | "
     "10:x2, w, a1, s1, t1 | 11:x2, d1, w, a2, s1, t1 | 12:x2, d1, w, a2, s2, t1 | 13:x2, d1, w, a2, s2, b1, t1 | "
     "14:x2, d1, w, a3, s2, b1, t2 | 15:x2, d2, w, a3, s2, b2, t2 | 16:x2, d2, w, a3, s3, bf1, t2 | "
     "17:x2, d3, w, a3, s3, bf2, t2 | 18-19:x2, d3, f, w, a4, s3, bf3, t3 | 20:x2, d3, f, w, a4, s4, bm1, t3, ib | "
     "21:x2, d4, f, w, a4, s4, bm2, t3, ib | 22:x2, d5, f, w, a5, s5, bs1, t3, ib | "
     "23:x3, d5, f, w, a5, s5, bs2, t4, ib | 24:x3, d6, f, u, w, a6, s6, bs3, t4, v1"},
    {"Arm, upper outer",
     "1:1 | 2:2 | 3:3, ws | 4:4, ws | 5:6, ws | 6:6, w, mt1 | 7:8, w, mt1 | 8:x2, w, s1, mt1 | 9:x2, w, s1, mt2 | "
     "10:x2, d1, w, s1, mt2 | 11:x2, d1, w, a1, s1, mt2 | 12:x2, d1, w, a1, s2, b1, mt2 | "
     "13:x2, d2, w, a1, s2, b1, mt2 | 14:x2, d2, w, a2, s2, b1, mt3 | 15:x2, d2, w, a2, s2, bf1, mt3 | "
     "16:x2, d2, w, a2, s3, bf1, mt3 | 17:x2, d3, w, a3, s3, bf1, mt4 | 18:x2, d3, w, a3, s3, bm1, mt4 | "
     "19-20:x2, d4, w, a3, s4, bm1, mt4 | 21:x2, d5, w, a4, s4, bm1, mt5 | 22:x2, d5, w, a4, s5, bs1, mt5 | "
     "23:x2, d6, f, w, a5, s5, bs1, mt5 | 24:x3, d6, f, w, a5, s6, bs1, mt5, pb"},
    {"Arm, upper inner",
     "1:1 | 2:2, ws | 3:2, ws, a1 | 4:3, ws, a1 | 5:4, w, a1 | 6:4, w, a1, mt1 | 7:6, w, a1, mt1 | "
     "8:8, w, a1, s1, mt1 | 9:10, w, a2, s1, mt1 | 10:x2, w, a2, s1, mt1 | 11:x2, d1, w, a2, s1, mt2 | "
     "12:x2, d1, w, a2, s2, mt2 | 13:x2, d1, w, a2, s2, b1, mt2 | 14:x2, d1, w, a3, s2, b1, mt3 | "
     "15-16:x2, d2, w, a3, s2, b1, mt3 | 17:x2, d2, w, a3, s3, bf1, mt3 | 18:x2, d3, w, a3, s3, bf1, mt3 | "
     "19:x2, d3, w, a4, s3, bf1, mt4, pb | 20:x2, d3, w, a4, s4, bm1, mt4, pb | 21:x2, d4, w, a4, s4, bm1, mt4, pb | "
     "22:x2, d4, f, w, a5, s4, bs1, mt4, pb | 23:x2, d5, f, w, a5, s5, bs1, mt5, pb | "
     "24:x2, d6, f, w, a6, s5, bs1, mt5, pb"},
    {"Elbow",
     "1:1, ws | 2:2, ws | 3:3, w | 4:4, w | 5:4, w, a1 | 6:6, w, a1, b1 | 7:8, w, a1, b1 | 8:8, d1, w, a1, b1, t1 | "
     "9:x2, d1, w, a1, b1, t1 | 10:x2, d1, w, a2, b1, t1 | 11:x2, d2, w, a2, bf1, t1 | 12:x2, d2, w, a2, bf1, t2 | "
     "13:x2, d2, w, a2, s1, bf1, t2 | 14:x2, d3, w, a3, s1, bf2, t2 | 15:x2, d3, w, a3, s1, bm1, t2 | "
     "16:x2, d3, w, a3, s2, bm1, t3 | 17-18:x2, d4, w, a4, s2, bm2, t3 | 19:x2, d4, w, a4, s2, bs1, t3 | "
     "20:x2, d5, w, a4, s3, bs1, t3 | 21:x2, d5, w, a5, s3, bs2, t4 | 22:x2, d6, w, a5, s3, bs2, t4 | "
     "23:x3, d6, f, w, a6, s4, bs3, t4 | 24:x3, d7, f, w, a6, s4, bs3, t5, pb"},
    {"Inner joint",
     "1:1 | 2:1, ws | 3:2, ws | 4:3, w | 5:4, w, t1 | 6:4, w, a1, t1 | 7:6, w, a1, t1 | 8:6, w, a1, s1, t1 | "
     "9:8, w, a2, s1, t1 | 10:8, d1, w, a2, s1, t2 | 11:10, d1, w, a2, s1, t2 | 12:x2, d1, w, a2, s1, t2 | "
     "13:x2, d1, w, a2, s1, t2, mt1 | 14:x2, d2, w, a2, s2, t2, mt1 | 15:x2, d2, w, a3, s2, t3, mt1 | "
     "16:x2, d2, w, a3, s2, b1, t3, mt1 | 17:x2, d3, w, a3, s2, b1, t3, mt2 | 18:x2, d3, w, a4, s3, b1, t3, mt2 | "
     "19:x2, d3, w, a4, s3, bf1, t3, mt2 | 20:x2, d4, w, a4, s3, bf1, t4, mt2 | 21:x2, d4, w, a5, s3, bf2, t4, mt3 | "
     "22:x2, d5, w, a5, s4, bm1, t4, mt3 | 23:x2, d5, w, a5, s4, bm1, t4, mt3, pb | "
     "24:x2, d6, f, w, a6, s4, bm2, t5, mt3, pb"},
    {"Forarm, back",
     "1:1 | 2:2 | 3:3 | 4:3, ws | 5:4, ws | 6:6, ws, b1 | 7:6, w, b1 | 8:8, w, b1 | 9:8, w, a1, b1 | "
     "10:x2, w, a1, b1 | 11:x2, w, a1, bf1 | 12:x2, d1, w, a1, bf1 | 13:x2, d1, w, a2, s1, bf1 | "
     "14:x2, d1, w, a2, s1, bf2 | 15:x2, d2, w, a2, s1, bf2 | 16:x2, d2, w, a3, s1, bm1 | 17:x2, d2, w, a3, s2, bm1 | "
     "18:x2, d3, w, a3, s2, bm1 | 19:x2, d3, w, a3, s2, bm2 | 20:x2, d4, w, a4, s3, bm2 | "
     "21-22:x2, d4, w, a4, s3, bs1, mt1 | 23:x2, d5, w, a5, s3, bs2, mt2 | 24:x2, d6, f, w, a5, s4, bs2, mt3"},
    {"Forarm, inner",
     "1:1 | 2:1, ws | 3:3, ws | 4:4, ws | 5:4, w | 6:4, w, mt1 | 7:6, w, mt1 | 8:8, w, a1, mt1 | 9:10, w, a1, mt1 | "
     "10:12, w, a1, mt2 | 11:x2, w, a1, mt2 | 12:x2, d1, w, a1, s1, mt2 | 13:x2, d1, w, a1, s1, b1, mt2 | "
     "14:x2, d1, w, a2, s1, b1, mt3 | 15:x2, d1, w, a2, s2, b1, mt3 | 16:x2, d2, w, a2, s2, b2, mt3 | "
     "17-18:x2, d2, w, a3, s2, bf1, mt3 | 19:x2, d3, w, a3, s3, bf1, mt4 | 20:x2, d3, w, a3, s3, bf2, mt4 | "
     "21:x2, d3, w, a4, s3, bm1, mt4, pb | 22:x2, d4, w, a4, s4, bm1, mt4, pb | 23:x2, d4, w, a4, s4, bm2, mt5, pb | "
     "24:x2, d5, w, a5, s5, bs1, mt5, pb"},
    {"Wrist, back",
     "1:1, ws | 2:1, w | 3:2, w | 4:2, w, a1 | 5:3, w, a1 | 6:4, w, a1, b1 | 7:4, d1, w, a1, b1 | 8:6, d1, w, a1, b1 | "
     "9:6, d1, w, a2, b2 | 10:8, d1, w, a2, b2, t1 | 11:10, d2, w, a2, b2, t1 | 12:x2, d2, w, a2, bf1, t1 | "
     "13:x2, d2, w, a3, bf1, t1 | 14:x2, d3, w, a3, bf2, t1 | 15:x2, d3, w, a3, bf2, t2 | 16:x2, d3, w, a4, bm1, t2 | "
     "17:x2, d4, w, a4, bm2, t2 | 18:x2, d4, w, a4, s1, bm2, t3 | 19-20:x2, d5, w, a5, s1, bm3, t3 | "
     "21:x2, d5, w, a5, s1, bs1, t3 | 22:x2, d6, w, a5, s2, bs2, t3 | 23:x2, d6, w, a6, s2, bs3, t4 | "
     "24:x2, d7, w, a6, s2, bs4, t4"},
    {"Wrist, front",
     "1:1 | 2:1, ws | 3:2, ws | 4:3, w | 5:3, w, t1 | 6:4, w, t1 | 7:4, w, a1, t1 | 8:4, d1, w, a1, t1 | "
     "9:6, d1, w, a1, t2 | 10:6, d2, w, a1, t2 | 11:8, d2, w, a2, t2 | 12:8, d2, w, a2, b1, t2 | "
     "13:x2, d2, w, a2, b1, t2 | 14:x2, d2, w, a2, b1, t3 | 15:x2, d3, w, a3, b2, t3 | 16:x2, d3, w, a3, b2, t3, pb | "
     "17:x2, d3, w, a3, bf1, t3, pb | 18:x2, d4, w, a3, bf2, t3, pb | 19:x2, d4, w, a4, s1, bf2, t4, pb | "
     "20:x2, d4, w, a4, s1, bm1, t4, pb | 21:x2, d5, w, a4, s1, bm2, t4, pb | 22:x2, d5, w, a5, s2, bm2, t4, pb | "
     "23:x2, d6, w, a5, s2, bs1, t5, pb | 24:x2, d6, w, a6, s3, bs2, t5, pb"},
    {"Hand, back",
     "1:1, w | 2:2, w | 3:2, w, b1 | 4:3, w, b1 | 5:3, w, a1, b1 | 6:4, w, a1, b2 | 7:6, w, a1, b2 | "
     "8:6, d1, w, a1, b2 | 9:8, d1, w, a1, bf1 | 10:8, d1, w, a2, bf2 | 11:x2, d1, w, a2, bf2 | "
     "12:x2, d1, w, a2, bf3 | 13:x2, d2, w, a2, bf3 | 14:x2, d2, w, a3, bm1 | 15:x2, d2, w, a3, bm2 | "
     "16:x2, d3, w, a3, bm2 | 17:x2, d3, w, a3, bm3 | 18:x2, d3, w, a4, s1, bm3 | 19:x2, d4, w, a4, s1, bm4 | "
     "20:x2, d4, w, a4, s1, bs2 | 21:x2, d5, w, a5, s2, bs3 | 22:x2, d5, w, a5, s2, bs4 | 23:x2, d6, w, a6, s2, bs4 | "
     "24:x2, d7, w, a6, s3, bs5"},
    {"Palm",
     "1:1 | 2:1, w | 3:2, w | 4:2, w, a1 | 5:3, w, a1 | 6:3, d1, w, a1 | 7:4, d1, w, a1 | 8:4, d1, w, a2 | "
     "9:6, d1, w, a2, mt1 | 10:6, d1, w, a2, s1, mt1 | 11:8, d1, w, a2, s1, mt1 | 12:8, d2, w, a2, s1, b1, mt1 | "
     "13:10, d2, w, a3, s1, b1, mt1 | 14:10, d2, w, a3, s1, b2, mt2 | 15:x2, d2, w, a3, s1, b2, mt2 | "
     "16-17:x2, d3, w, a3, s2, bf1, mt2 | 18:x2, d3, w, a4, s2, bf2, mt2 | 19:x2, d3, w, a4, s2, bf3, mt3 | "
     "20:x2, d4, w, a4, s3, bm1, mt3 | 21:x2, d4, w, a5, s3, bm2, mt3 | 22:x2, d5, w, a5, s3, bm3, mt4 | "
     "23:x2, d5, w, a5, s3, bs2, mt4 | 24:x2, d6, w, a6, s4, bs3, mt4"},
    {"Finger(s)",
     "1:1 | 2:1, ws | 3:1, w | 4:2, w | 5:2, w, b1 | 6:3, w, b1 | 7:3, d1, w, b1 | 8:3, d1, w, b2 | 9:4, d1, w, bf1 | "
     "10:4, d1, w, a1, bf1 | 11:4, d1, w, a1, bf2 | 12:6, d1, w, a1, bf2 | 13:6, d2, w, a1, bf3 | "
     "14:6, d2, w, a2, bm1 | 15:8, d2, w, a2, bm2 | 16:8, d3, w, a2, bm2 | 17:8, d3, w, a2, bm3 | "
     "18:10, d3, w, a3, bm4 | 19:10, d3, w, a3, bs1 | 20:10, d4, w, a3, bs2 | 21:x2, d4, w, a3, bs2 | "
     "22:x2, ls, d4, w, a4, bs3 | 23:x2, ls, d5, w, a4, bs4 | 24:x2, ls, d5, w, a5, bs5"},
    {"Shoulder, side",
     "1:1 | 2:2 | 3:3, ws | 4:3, w | 5:4, w | 6:6, w, a1 | 7:8, w, a1 | 8:8, w, a1, t1 | 9:x2, w, a1, t1 | "
     "10:x2, w, a1, s1, t1 | 11:x2, d1, w, a2, s1, t1 | 12:x2, d1, w, a2, s1, t2 | 13:x2, d1, w, a2, s2, b1, t2 | "
     "14:x2, d2, w, a2, s2, b1, t2 | 15:x2, d2, w, a3, s2, bf1, t2 | 16:x2, d2, f, w, a3, s3, bf1, t2 | "
     "17:x2, d3, f, w, a3, s3, bf1, t3 | 18:x2, d3, f, w, a4, s3, bm1, t3 | 19:x2, d4, f, w, a4, s3, bm1, t3 | "
     "20:x2, d4, f, w, a4, s4, bm2, t3 | 21:x2, d5, f, w, a5, s4, bm2, t4 | 22:x2, d5, f, w, a5, s5, bs1, t4 | "
     "23:x2, d6, f, w, a6, s5, bs2, t4, pb | 24:x3, d7, f, u, w, a6, s6, bs2, t5, pb"},
    {"Shoulder, top",
     "1:1 | 2:3 | 3:4, ws | 4:4, w | 5:6, w, b1 | 6:6, f, w, b1 | 7:8, f, w, b1 | 8:x2, f, w, b1 | "
     "9:x2, f, w, s1, b1 | 10:x2, f, w, s1, bf1 | 11:x2, d1, f, w, s1, bf1 | 12:x2, d1, f, w, a1, s2, bf1 | "
     "13-14:x2, d2, f, w, a1, s2, bf2 | 15:x2, d2, f, w, a2, s2, bm1 | 16:x2, d3, f, w, a2, s3, bm1 | "
     "17:x2, d3, f, w, a2, s3, bm2 | 18:x2, d3, f, w, a3, s4, bm2, mt1 | 19:x2, d4, f, w, a3, s4, bm2, mt2 | "
     "20:x2, d4, f, w, a4, s4, bs1, mt2 | 21:x2, d5, f, w, a4, s5, bs1, mt3 | 22:x3, d5, f, w, a5, s5, bs2, mt3 | "
     "23:x3, d6, f, u, w, a5, s6, bs2, mt4 | 24:x3, d7, f, u, w, a6, s7, bs3, mt5, pb"},
    {"Neck, front",
     "1:1, w | 2:2, w | 3:3, f, w | 4:4, f, w | 5:6, f, w, a1 | 6:8, f, w, a1 | 7:x2, f, w, a1 | 8:x2, d1, f, w, a1 | "
     "9:x2, d1, f, w, a2, mt1 | 10:x2, d1, f, u, a2, mt1 | 11:x2, d2, f, u, a2, mt2 | 12:x2, d2, f, u, a2, s1, mt2 | "
     "13:x2, d2, f, u, a3, s1, b1, mt2 | 14:x2, d3, f, u, a3, s2, b1, mt3 | 15:x2, d3, f, u, a3, s2, b1, mt3, ib | "
     "16:x3, d3, f, u, a3, s2, bf1, mt3, ib | 17:x3, d4, f, u, a4, s3, bf1, mt4, ib | "
     "18:x3, d4, f, u, a4, s3, bm1, mt4, ib | 19:x3, d5, f, u, a4, s4, bm1, mt5, ib | "
     "20:x3, d5, f, u, a5, s4, bm1, mt5, ib, pb | 21:x3, d6, f, u, a5, s5, bs1, mt5, ib, pb | "
     "22:windpipe crushed flat | 23:larynx bursts with the sound of a stepped-on frog | "
     "24:throat beaten flat to the neck bone and no last words"},
    {"Neck, back",
     "1:1, f | 2:2, f, w | 3:3, f, w | 4:4, f, w, b1 | 5:6, f, w, b1 | 6:8, d1, f, w, b1 | 7:x2, d1, f, w, b1 | "
     "8:x2, d1, f, w, b1, p | 9:x2, d2, f, u, w, b1, p | 10:x2, d2, f, u, w, s1, b1, p | 11:x2, d2, f, u, s1, b2, p | "
     "12:x2, d3, f, u, s2, b2, p | 13:x2, d3, f, u, s2, bf1, p | 14:x2, d4, f, u, s2, bf1, p | "
     "15:x3, d4, f, u, s3, bf1, p | 16:x3, d4, f, u, s3, bf2, p | 17:x3, d5, f, u, s3, bm1, p | "
     "18:x3, d5, f, u, s4, bm1, p | 19:x3, d6, f, u, s4, bm2, p | 20:x3, d7, f, u, s5, bs1, p | "
     "21-22:x3, d8, f, u, s6, bs2, p | 23:neck snapped like kindling | 24:head lolls on a bag of loose bones"},
    {"Neck, side",
     "1:1 | 2:2, ws | 3:3, w | 4:4, w | 5:6, w, mt1 | 6:8, w, mt1 | 7:8, f, w, mt1 | 8:x2, f, w, a1, mt1 | "
     "9:x2, f, w, a1, mt2 | 10:x2, d1, f, w, a1, s1, mt2 | 11:x2, d1, f, u, w, a2, s1, mt2 | "
     "12:x2, d1, f, u, w, a2, s1, b1, mt3 | 13:x2, d2, f, u, w, a2, s2, b1, mt3 | 14:x2, d2, f, u, a3, s2, bf1, mt3 | "
     "15:x2, d2, f, u, a3, s2, bf1, mt4 | 16:x2, d3, f, u, a3, s3, bf1, mt4 | 17:x3, d3, f, u, a4, s3, bf1, mt4 | "
     "18:x3, d3, f, u, a4, s4, bm1, mt4 | 19:x3, d4, f, u, a4, s4, bm1, mt5 | 20:x3, d4, f, u, a5, s4, bm2, mt5, pb | "
     "21:x3, d5, f, u, a5, s5, bm2, mt5, pb | 22:x3, d6, f, u, a6, s5, bs1, mt5, pb | "
     "23:neck broken and one ear resting on the shoulder | 24:head knocked round to face the way it came"},
    {"Head, side",
     "1:1 | 2:3 | 3:4, a1 | 4:6, a1 | 5:6, f, a1 | 6:8, f, a1, mc | 7:x2, f, a1, mc | 8:x2, f, u, a1, mc | "
     "9:x2, d1, f, u, a2, mc | 10:x2, d1, f, u, a2, b1, mc | 11:x2, d1, f, u, a2, b1, sc | "
     "12:x2, d2, f, u, a2, b1, sc | 13:x2, d2, f, u, a3, bf1, sc | 14:x2, d2, f, u, a3, s1, bf1, sc | "
     "15:x3, d2, f, u, a3, s1, bf1, sc | 16:x3, d3, f, u, a3, s2, bf1, sc | 17:x3, d3, f, u, a4, s2, bm1, sc | "
     "18:x3, d4, f, u, a4, s3, bm1, sc | 19:x3, d5, f, u, a5, s3, bm1, sc, pb | 20:x3, d5, f, u, a5, s4, bs1, sc, pb | "
     "21:x3, d6, f, u, a6, s4, bs1, sc, pb | 22:temple staved in | 23:one ear hammered through to meet the other | "
     "24:head bursts like a dropped melon"},
    {"Head, back lower",
     "1:1, f | 2:2, f | 3:4, f | 4:4, f, mc | 5:6, f, mc | 6:8, f, w, mc | 7:8, f, u, mc | 8:x2, f, u, mc | "
     "9:x2, d1, f, u, b1, mc | 10:x2, d1, f, u, b1, sc | 11:x2, d2, f, u, b1, sc | 12:x2, d2, f, u, s1, b1, sc | "
     "13:x2, d2, f, u, s1, bf1, sc | 14:x2, d3, f, u, s1, bf1, sc | 15:x2, d3, f, u, s2, bf1, sc | "
     "16:x3, d3, f, u, s2, bf1, sc | 17:x3, d4, f, u, s3, bm1, sc | 18:x3, d5, f, u, s3, bm1, sc | "
     "19:x3, d5, f, u, s4, bm1, sc | 20:x3, d6, f, u, s4, bs1, sc | 21:x3, d6, f, u, s5, bs1, sc, pb | "
     "22:x3, d7, f, u, s6, bs1, sc, pb | 23:skull knocked clean off the top of the spine | "
     "24:brain stem mashed and the lights go out for good"},
    {"Face, lower side",
     "1:1 | 2:2 | 3:3 | 4:4, a1 | 5:4, a1, b1 | 6:6, a1, b1 | 7:8, f, a1, b1 | 8:10, f, a2, b1 | 9:x2, f, a2, b1 | "
     "10:x2, f, u, a2, b1 | 11:x2, f, u, a2, bf1 | 12:x2, d1, f, u, a2, bf1 | 13:x2, d1, f, u, a3, bf1 | "
     "14:x2, d1, f, u, a3, bf2 | 15:x2, d1, f, u, a3, bm1 | 16:x2, d2, f, u, a4, bm1 | 17:x2, d2, f, u, a4, s1, bm1 | "
     "18:x2, d3, f, u, a4, s1, bm2 | 19:x2, d3, f, u, a5, s1, bs1 | 20:x3, d3, f, u, a5, s2, bs1 | "
     "21:x3, d4, f, u, a5, s2, bs2, pb | 22:x3, d4, f, u, a6, s3, bs2, pb | "
     "23:jaw torn off its hinge and knocked across the room | "
     "24:jaw driven through the far cheek and the neck with it"},
    {"Face, lower center",
     "1:1, a1 | 2:2, a1 | 3:3, a1 | 4:3, a1, b1 | 5:4, a1, b2 | 6:6, f, a1, b2 | 7:6, f, a2, b3 | 8:8, f, u, a2, b3 | "
     "9:10, f, u, a2, bf1 | 10:x2, f, u, a2, bf1 | 11:x2, f, u, a3, bf2 | 12:x2, f, u, w, a3, bf2 | "
     "13:x2, d1, f, u, w, a3, bf3 | 14:x2, d1, f, u, w, a3, bm1 | 15:x2, d2, f, u, w, a4, bm1 | "
     "16:x2, d2, f, u, w, a4, s1, bm2 | 17:x2, d3, f, u, w, a4, s1, bm2 | 18:x3, d3, f, u, w, a5, s2, bm3 | "
     "19:x3, d3, f, u, w, a5, s2, bs1 | 20:x3, d4, f, u, w, a5, s2, bs2 | 21:x3, d4, f, u, w, a6, s3, bs2, pb | "
     "22:x3, d5, f, u, w, a6, s4, bs3, pb | 23:teeth swallowed and the jaw rammed up after them | 24:skull caved-in"},
    {"Head, back upper",
     "1:1 | 2:3 | 3:3, f | 4:4, f | 5:6, f, mc | 6:6, f, w, mc | 7:8, f, w, mc | 8:x2, f, w, mc | 9:x2, f, u, w, mc | "
     "10:x2, d1, f, u, w, b1, mc | 11:x2, d1, f, u, w, b1, sc | 12:x2, d1, f, u, w, s1, b1, sc | "
     "13:x2, d2, f, u, w, s1, b1, sc | 14:x2, d2, f, u, w, s1, bf1, sc | 15:x2, d3, f, u, w, s2, bf1, sc | "
     "16:x2, d3, f, u, w, s2, bm1, sc | 17:x3, d3, f, u, w, s2, bm1, sc | 18:x3, d4, f, u, w, s3, bm1, sc | "
     "19:x3, d4, f, u, w, s4, bm1, sc | 20:x3, d5, f, u, w, s4, bs1, sc | 21:x3, d5, f, u, w, s5, bs1, sc | "
     "22:x3, d6, f, u, w, s5, bs1, sc, pb | 23:back of the skull opened like a boiled egg | "
     "24:eyes pop out and the brain comes to see why"},
    {"Face, upper side",
     "1:1 | 2:2, a1 | 3:3, a1 | 4:4, a1 | 5:6, a2 | 6:6, a2, b1 | 7:8, f, a2, b1 | 8:x2, f, a2, b1 | 9:x2, f, a3, b1 | "
     "10:x2, f, a3, b1, mc | 11:x2, f, a3, bf1, mc | 12:x2, f, u, a3, bf1, mc | 13:x2, d1, f, u, a4, bf1, mc | "
     "14:x2, d1, f, u, a4, bf2, mc | 15:x2, d1, f, u, a4, bm1, sc | 16:x2, d2, f, u, a4, bm1, sc | "
     "17:x2, d2, f, u, a5, bm2, sc | 18:x3, d2, f, u, a5, bm2, sc | 19:x3, d3, f, u, a5, s1, bs1, sc | "
     "20:x3, d3, f, u, a6, s2, bs1, sc | 21:x3, d4, f, u, a6, s2, bs2, sc | 22:x3, d5, f, u, a7, s3, bs2, sc, pb | "
     "23:cheekbone and eye driven into the brain | 24:half a face left and not the better half"},
    {"Face, upper center",
     "1:1, a1 | 2:3, a1 | 3:4, a1 | 4:4, a2 | 5:6, f, a2 | 6:8, f, a2 | 7:8, f, a2, b1 | 8:x2, f, a3, b1 | "
     "9:x2, f, u, a3, b1 | 10:x2, f, u, a3, b1, mc | 11:x2, d1, f, u, a3, bf1, mc | 12:x2, d1, f, u, a4, bf1, mc | "
     "13:x2, d1, f, u, w, a4, bf1, sc | 14:x2, d2, f, u, w, a4, bf2, sc | 15:x2, d2, f, u, w, a5, bm1, sc | "
     "16:x3, d2, f, u, w, a5, bm1, sc | 17:x3, d3, f, u, w, a5, s1, bm1, sc | 18:x3, d3, f, u, w, a6, s1, bm2, sc | "
     "19:x3, d4, f, u, w, a6, s2, bm2, sc | 20:x3, d4, f, u, w, a6, s2, bs1, sc | "
     "21:x3, d5, f, u, w, a7, s3, bs2, sc, pb | 22:nose bone hammered into the brain | "
     "23:eyes meet where the nose had been | 24:face turned inside out"},
    {"Head, top",
     "1:1, mc | 2:2, mc | 3:4, mc | 4:6, mc | 5:6, f, mc | 6:8, f, mc | 7:x2, f, u, mc | 8:x2, f, u, w, mc | "
     "9:x2, d1, f, u, w, mc | 10:x2, d1, f, u, w, b1, sc | 11:x2, d2, f, u, w, b1, sc | "
     "12:x2, d2, f, u, w, s1, b1, sc | 13:x2, d2, f, u, w, s1, bf1, sc | 14:x3, d3, f, u, w, s1, bf1, sc | "
     "15:x3, d3, f, u, w, s2, bf1, sc | 16:x3, d4, f, u, w, s2, bm1, sc | 17:x3, d4, f, u, w, s3, bm1, sc | "
     "18:x3, d5, f, u, w, s3, bm1, sc | 19:x3, d5, f, u, w, s4, bs1, sc | 20:x3, d6, f, u, w, s5, bs1, sc | "
     "21:x3, d7, f, u, w, s5, bs1, sc, pb | 22:skull split from crown to brow | "
     "23:head driven down between the shoulders | 24:brain goo"},
}};
// clang-format on

constexpr CriticalHitIndex kCrushingIndex = ReadCriticalHits(kCrushingHits, 2);

}  // namespace veld
