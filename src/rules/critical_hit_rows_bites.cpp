#include "rules/critical_hit_notation.h"
#include "rules/critical_hit_rows.h"

namespace veld {

// What teeth and jaws do: they hold and drag down, tear muscle and open veins, and crack a bone only where it lies near
// the skin. What is small enough comes off early, a limb at the very top; from there on nothing is left of it to break.
// Not formatted by the tool: one record a place, its ladder broken where the page breaks it.
// clang-format off
constexpr std::array<CriticalHitLadder, 50> kMonsterBiteHits = {{
    {"Foot, top",
     "1:1 | 2:1, m1 | 3-4:2, m1 | 5:3, f, m1 | 6:4, f, m2 | 7:4, f, m3 | 8:6, f, m3, mt1 | 9:8, f, m4, mt1 | "
     "10:8, d1, f, m4, mt1 | 11-12:x2, d1, f, m4, mt1 | 13:x2, d1, f, m5, mt2 | 14:x2, d1, f, m5, mt2, pb | "
     "15-16:x2, d2, f, m6, mt2, pb | 17:x2, d2, f, m6, b1, mt2, pb | 18:x2, d3, f, m7, b1, mt3, pb | "
     "19:x2, d3, f, m7, b2, mt3, pb | 20:x2, d3, f, m8, bf2, mt3, pb | 21:x2, d4, f, m9, bf3, mt3, pb | "
     "22:x2, ls, d4, f, m9, pb | 23:x2, ls, d4, f, m10, pb | 24:x2, ls, d5, f, m10, pb"},
    {"Heel",
     "1-2:1 | 3:2, f | 4:3, f | 5:3, f, m1 | 6:4, f, m1 | 7:6, f, m1, t1 | 8:6, f, m2, t1 | 9:8, f, m3, t1 | "
     "10:10, f, m3, t1 | 11:10, f, m4, t1 | 12:10, d1, f, m4, t2 | 13-14:x2, d1, f, m4, t2 | 15:x2, d1, f, m5, t2 | "
     "16:x2, d2, f, m5, t2, pb | 17:x2, d2, f, m6, t2, pb | 18:x2, d2, f, m6, t3, pb | 19:x2, d2, f, m7, t3, pb | "
     "20-21:x2, d3, f, m7, b1, t3, pb | 22:x2, d3, f, m8, bf1, t4, pb | 23:x2, d4, f, m9, bm1, t4, pb | "
     "24:x2, ls, d4, f, m9, pb"},
    {"Toe(s)",
     "1:1 | 2-3:2 | 4:3 | 5:3, m1 | 6:3, m1, b1 | 7:4, m1, b1 | 8:4, m1, bf1 | 9:4, m2, bf1 | 10:6, m2, bf1 | "
     "11:6, ls, m2 | 12:6, ls, m3 | 13:8, ls, m3 | 14:8, ls, d1, m3 | 15-16:10, ls, d1, m4 | 17:10, ls, d1, f, m4 | "
     "18:12, ls, d1, f, m4 | 19:x2, ls, d1, f, m4 | 20:x2, ls, d1, f, m5 | 21:x2, ls, d2, f, m5 | "
     "22:x2, ls, d2, f, m6 | 23:x2, ls, d3, f, m6 | 24:x2, ls, d3, f, m7"},
    {"Foot, arch",
     "1:1 | 2:2 | 3:3 | 4:3, m1 | 5:4, m1 | 6:6, m2 | 7:6, m2, mt1 | 8:8, f, m2, mt1 | 9:8, f, m4, mt1 | "
     "10:x2, f, m4, mt1 | 11:x2, f, m4, mt2 | 12-13:x2, d1, f, m5, mt2 | 14:x2, d1, f, m5, t1, mt2 | "
     "15:x2, d1, f, m6, t1, mt2, pb | 16:x2, d2, f, m6, t1, mt3, pb | 17:x2, d2, f, m7, t1, mt3, pb | "
     "18:x2, d2, f, m7, t2, mt4, pb | 19-20:x2, d3, f, m8, t2, mt4, pb | 21:x2, d3, f, m8, b1, t2, mt4, pb | "
     "22:x2, d4, f, m9, b2, t3, mt5, pb | 23:x2, ls, d4, f, m9, pb | 24:x2, ls, d5, f, m10, pb"},
    {"Ankle, inner",
     "1:1 | 2:2 | 3:2, m1 | 4:3, m1 | 5-6:4, f, m1 | 7:6, f, m2 | 8:8, f, m3 | 9:x2, f, m3 | 10:x2, f, m4, t1 | "
     "11:x2, d1, f, m4, t1 | 12:x2, d1, f, m5, t1 | 13:x2, d2, f, m5, t1 | 14:x2, d2, f, m5, t1, pb | "
     "15-16:x2, d2, f, m6, t2, pb | 17:x2, d3, f, m6, t2, pb | 18:x2, d3, f, m7, t2, pb | "
     "19:x2, d3, f, m7, b1, t3, pb | 20:x2, d4, f, m8, b1, t3, pb | 21:x2, d4, f, m8, bf1, t3, pb | "
     "22:x2, d5, f, m9, bf1, t4, pb | 23:x2, ls, d5, f, m9, pb | 24:x2, ls, d5, f, u, m10, pb"},
    {"Ankle, outer",
     "1:1, f | 2:1, f, m1 | 3:2, f, m1 | 4:3, f, m1 | 5:4, f, m2 | 6:6, f, m2 | 7:6, d1, f, m2 | 8:6, d1, f, m3, t1 | "
     "9-10:8, d1, f, m4, t1 | 11:x2, d1, f, m4, b1, t1 | 12-13:x2, d2, f, m4, b1, t1 | 14:x2, d2, f, m5, b1, t2 | "
     "15:x2, d2, f, m6, bf1, t2 | 16:x2, d3, f, m6, bf1, t2 | 17:x2, d3, f, m6, bf1, t2, pb | "
     "18:x2, d3, f, m7, bf1, t3, pb | 19:x2, d4, f, m7, bf1, t3, pb | 20-21:x2, d4, f, m8, bm1, t3, pb | "
     "22:x2, d4, f, m9, bm1, t4, pb | 23:x2, d5, f, m9, bs1, t4, pb | 24:x2, ls, d5, f, m10, pb"},
    {"Ankle, upper/Achilles",
     "1:1 | 2:2, m1 | 3:3, m1 | 4:3, m1, t1 | 5:4, m2, t1 | 6:4, f, m2, t1 | 7:6, f, m3, t1 | 8:8, d1, f, m4, t1 | "
     "9:x2, d1, f, m4, t1 | 10:x2, d1, f, m4, t2 | 11:x2, d2, f, m5, t2 | 12:x2, d2, f, m6, t2 | "
     "13-14:x2, d2, f, m6, t3, pb | 15:x2, d3, f, m6, t3, mt1, pb | 16:x2, d3, f, m7, t3, mt1, pb | "
     "17-18:x2, d3, f, m7, t4, mt2, pb | 19:x2, d4, f, m8, t4, mt2, pb | 20:x2, d4, f, m8, t4, mt3, pb | "
     "21:x2, d5, f, m9, t5, mt3, pb | 22:x2, d5, f, m10, t5, mt4, pb | 23:x2, ls, d5, f, m10, pb | "
     "24:x2, ls, d6, f, u, m10, pb"},
    {"Shin",
     "1:1 | 2:3 | 3:3, m1 | 4:4, m1 | 5:6, m1 | 6:6, m1, b1 | 7:8, m2, b1 | 8:10, f, m2, b1 | 9:x2, f, m3, b1 | "
     "10:x2, f, m4, b1 | 11:x2, d1, f, m4, b1 | 12:x2, d1, f, m5, b1, mt1 | 13:x2, d2, f, m5, b1, mt1 | "
     "14-15:x2, d2, f, m5, bf1, mt1 | 16:x2, d2, f, m6, bf1, mt1, pb | 17:x2, d3, f, m6, bf1, mt2, pb | "
     "18:x2, d3, f, m7, bf1, mt2, pb | 19:x2, d4, f, m7, bf2, mt2, pb | 20:x2, d4, f, m8, bm1, mt2, pb | "
     "21:x2, d5, f, m8, bm1, mt3, pb | 22-23:x2, d5, f, m9, bm2, mt3, pb | 24:x2, ls, d6, f, u, m10, pb"},
    {"Calf",
     "1:1 | 2:2 | 3:4 | 4:4, mt1 | 5:6, m1, mt1 | 6:8, m1, mt1 | 7:8, m2, mt1 | 8:x2, m2, mt1 | 9:x2, f, m2, mt2 | "
     "10:x2, f, m4, mt2 | 11:x2, d1, f, m4, mt2 | 12:x2, d1, f, m4, mt3 | 13:x2, d1, f, m5, mt3, pb | "
     "14:x2, d2, f, m5, mt3, pb | 15:x2, d2, f, m6, mt3, pb | 16:x2, d2, f, m6, mt4, pb | "
     "17-18:x2, d3, f, m6, mt4, pb | 19:x2, d3, f, m7, s1, mt4, pb | 20:x2, d4, f, m7, s1, mt5, pb | "
     "21:x2, d4, f, m8, s2, mt5, pb | 22:x2, d5, f, m9, s2, mt6, pb | 23:x2, d5, f, m9, s3, mt6, pb | "
     "24:x3, d6, f, m10, s3, mt7, pb"},
    {"Knee",
     "1:1 | 2:2 | 3:2, f | 4:3, f | 5:4, f, m1 | 6:6, f, m1 | 7:6, f, m2, t1 | 8:8, f, m3, t1 | 9:x2, f, m4, t1 | "
     "10:x2, d1, f, m4, b1, t1 | 11:x2, d2, f, m4, b1, t1 | 12:x2, d2, f, m5, b1, t1 | 13:x2, d2, f, m5, b1, t2 | "
     "14:x2, d3, f, m5, b1, t2 | 15:x2, d3, f, m6, bf1, t2 | 16:x2, d3, f, m7, bf1, t2 | "
     "17-18:x2, d4, f, m7, bf1, t3 | 19:x2, d4, f, m8, bf1, t3, pb | 20:x2, d5, f, m8, bm1, t3, pb | "
     "21:x2, d5, f, m9, bm1, t4, pb | 22:x2, d6, f, m9, bs1, t4, pb | 23:x2, ls, d6, f, m10, pb | "
     "24:x3, ls, d6, f, u, m10, pb"},
    {"Knee, back",
     "1:1, f | 2:2, f | 3:3, f, m1 | 4-5:4, f, m1 | 6:6, f, m2, t1 | 7:8, f, m2, t1 | 8:8, f, m3, t1, mt1 | "
     "9:10, f, m4, t1, mt1 | 10:x2, d1, f, m4, t1, mt1 | 11:x2, d1, f, m4, t2, mt1 | 12:x2, d1, f, m5, t2, mt2, pb | "
     "13:x2, d2, f, m5, t2, mt2, pb | 14:x2, d2, f, m6, t2, mt2, pb | 15:x2, d2, f, m6, t3, mt2, pb | "
     "16-17:x2, d3, f, m6, t3, mt3, pb | 18:x2, d3, f, m7, t3, mt3, pb | 19:x2, d4, f, m7, t4, mt3, pb | "
     "20:x2, d4, f, m8, s1, t4, mt4, pb | 21:x2, d5, f, m8, s1, t4, mt4, pb | 22:x2, d5, f, m9, s2, t5, mt4, pb | "
     "23:x2, d6, f, m10, s2, t5, mt5, pb | 24:x2, ls, d7, f, m10, pb"},
    {"Hamstring",
     "1:1 | 2:2 | 3:2, mt1 | 4:3, mt1 | 5:4, mt1 | 6:4, m1, mt1 | 7:6, m2, mt2 | 8:8, f, m2, mt2 | 9:10, f, m3, mt2 | "
     "10:x2, f, m4, mt2, pb | 11:x2, d1, f, m4, mt2, pb | 12:x2, d1, f, m5, mt3, pb | 13:x2, d2, f, m5, t1, mt3, pb | "
     "14-15:x2, d2, f, m6, t1, mt3, pb | 16:x2, d3, f, m6, t1, mt4, pb | 17:x2, d3, f, m7, t2, mt4, pb | "
     "18:x2, d4, f, m7, t2, mt5, pb | 19-20:x2, d4, f, m8, t2, mt5, pb | 21:x2, d5, f, m8, s1, t3, mt5, pb | "
     "22:x2, d5, f, m9, s1, t3, mt6, pb | 23:x2, d6, f, m10, s2, t3, mt6, pb | 24:x3, d6, f, u, m10, s3, t4, mt7, pb"},
    {"Thigh",
     "1:1 | 2-3:3 | 4:6 | 5:6, m2 | 6:8, m2 | 7:8, d1, f, m3 | 8:x2, d2, f, m4 | 9-11:x2, d2, f, m4, mt1 | "
     "12-13:x2, d2, f, m5, mt1 | 14:x2, d2, f, m5, mt2 | 15:x2, d3, f, m5, mt3 | 16:x2, d3, f, m6, mt3, pb | "
     "17:x2, d4, f, m6, mt3, pb | 18:x2, d4, f, m7, mt4, pb | 19:x2, d5, f, m8, mt5, pb | 20:x2, d6, f, m8, pb, b1 | "
     "21:x2, d6, f, m9, pb, b1 | 22:x2, d6, f, m9, pb, bf1 | 23:x2, d6, f, m10, pb, bm1 | 24:x2, ls, d6, f, m10, pb"},
    {"Hip",
     "1:1 | 2:2 | 3:3 | 4:4 | 5:4, f | 6:6, f | 7:8, f, m1 | 8:8, f, m2, mt1 | 9:x2, f, m2, mt1 | 10:x2, f, m3, mt1 | "
     "11:x2, f, m4, mt1 | 12:x2, d1, f, m4, mt2 | 13:x2, d1, f, m5, b1, mt2 | 14:x2, d2, f, m5, b1, mt2 | "
     "15-16:x2, d2, f, m5, b1, mt3, pb | 17:x2, d3, f, m6, b1, mt3, pb | 18:x2, d3, f, m7, bf1, mt3, pb | "
     "19:x2, d4, f, m7, bf1, mt4, pb | 20:x2, d4, f, m8, s1, bf1, mt4, pb | 21:x2, d5, f, m8, s1, bm1, mt4, ib, pb | "
     "22:x3, d5, f, m9, s2, bm1, mt5, ib, pb | 23:x3, d6, f, m9, s2, bm1, mt5, ib, pb | "
     "24:x3, d6, f, u, m10, s3, bs1, mt6, ib, pb"},
    {"Groin (Male only)",
     "1:1, f, h1 | 2:2, f, w, h1 | 3:3, f, w, h1 | 4:4, f, w, h2 | 5:6, f, w, h2, m1 | 6:8, f, w, h2, m1 | "
     "7:8, f, w, h3, m2 | 8:x2, f, w, h3, m3 | 9:x2, f, w, h4, m3 | 10:x2, f, w, h4, m4, mt1 | "
     "11:x2, d1, f, u, w, h4, m4, mt1 | 12:x2, d1, f, u, w, h5, m4, mt1 | 13-14:x2, d1, f, u, w, h5, m5, mt1, pb | "
     "15:x2, d1, f, u, w, h6, m5, mt2, pb | 16:x2, d2, f, u, w, h6, m6, s1, mt2, pb | "
     "17:x2, d2, f, u, w, h7, m6, s1, mt2, pb | 18:x2, d2, f, u, w, h7, m7, s2, mt3, pb | "
     "19:x2, d3, f, u, w, h8, m7, s2, mt3, pb | 20:x3, d3, f, u, w, h8, m8, s2, mt3, ib, pb | "
     "21:x3, d3, f, u, w, h9, m8, s3, mt4, ib, pb | 22:x3, d4, f, u, w, h10, m9, s3, mt4, ib, pb | "
     "23:x3, d4, f, u, w, h12, m9, s4, mt4, ib, pb | 24:x3, d5, f, u, w, h15, m10, s5, mt5, ib, pb"},
    {"Buttock",
     "1:1 | 2:2 | 3:3 | 4:3, f | 5:4, f | 6:6, f, mt1 | 7:6, f, m1, mt1 | 8:8, f, m1, mt1 | 9:8, f, m2, mt2 | "
     "10:10, f, m2, mt2 | 11:12, f, m3, mt2 | 12:x2, f, m3, mt2 | 13:x2, d1, f, m4, mt3 | 14:x2, d1, f, m4, mt3, pb | "
     "15:x2, d1, f, m5, mt3, pb | 16-17:x2, d1, f, m5, mt4, pb | 18:x2, d2, f, m6, mt4, pb | "
     "19:x2, d2, f, m6, mt5, pb | 20:x2, d2, f, m7, mt5, pb | 21:x2, d3, f, m7, s1, mt6, pb | "
     "22:x2, d3, f, m8, s2, mt6, pb | 23:x3, d4, f, m8, s2, mt7, pb | 24:x3, d4, f, u, m9, s3, mt8, pb"},
    {"Abdomen, lower",
     "1:1 | 2:2 | 3:3 | 4:4 | 5:4, s1 | 6:6, f, s1 | 7:8, f, s1, mt1 | 8:10, f, s1, mt1 | 9:12, f, w, s1, mt1 | "
     "10:x2, f, w, s2, mt1 | 11:x2, f, w, m1, s2, mt2 | 12:x2, f, w, m2, s2, mt2, ib | "
     "13:x2, d1, f, w, m2, s2, mt2, ib | 14:x2, d1, f, w, m4, s2, mt3, ib | 15:x2, d1, f, w, m4, s3, mt3, v1 | "
     "16:x2, d1, f, u, w, m4, s3, mt3, v1 | 17:x2, d2, f, u, w, m5, s3, mt4, v1 | "
     "18:x2, d2, f, u, w, m5, s3, mt4, v1, pb | 19:x2, d3, f, u, w, m6, s4, mt4, v2, pb | "
     "20:x3, d3, f, u, w, m6, s4, mt5, v2, pb | 21:x3, d4, f, u, w, m7, s5, mt5, v3, pb | "
     "22:x3, d5, f, u, w, m8, s5, mt6, v3, pb | 23:guts pulled out in one long string and fought over | "
     "24:bitten open and emptied like a feed sack"},
    {"Side, lower",
     "1:1 | 2:2 | 3:4 | 4:4, f | 5:6, f | 6:8, f | 7:8, f, mt1 | 8:x2, f, mt1 | 9:x2, f, s1, mt1 | 10:x2, f, s1, mt2 | "
     "11:x2, d1, f, s1, mt2 | 12:x2, d1, f, s1, b1, mt2 | 13-14:x2, d1, f, m4, s2, b1, mt3 | "
     "15:x2, d1, f, m4, s2, b2, mt3, ib | 16:x2, d2, f, m4, s2, b2, mt3, ib, pb | "
     "17:x2, d2, f, m5, s2, b2, mt4, ib, pb | 18:x2, d2, f, m5, s3, bf1, mt4, ib, pb | "
     "19:x2, d3, f, m5, s3, bf1, mt4, v1, pb | 20:x2, d3, f, u, m6, s3, bf2, mt5, v1, pb | "
     "21:x2, d4, f, u, m6, s4, bf2, mt5, v1, pb | 22:x3, d4, f, u, m7, s4, bf3, mt5, v2, pb | "
     "23:x3, d5, f, u, m7, s5, bm1, mt6, v2, pb | 24:x3, d5, f, u, m8, s5, bm2, mt6, v3, pb"},
    {"Abdomen, upper",
     "1:1 | 2:3 | 3:3, f | 4:4, f | 5:4, f, w | 6:6, f, w, mt1 | 7:8, f, w, s1, mt1 | 8:x2, f, w, s1, mt1 | "
     "9:x2, f, w, m1, s1, mt2 | 10:x2, d1, f, w, m1, s1, mt2 | 11:x2, d1, f, w, m2, s2, mt2 | "
     "12:x2, d1, f, u, w, m2, s2, mt2, ib | 13:x2, d1, f, u, w, m3, s2, mt3, ib | "
     "14-15:x2, d2, f, u, w, m3, s2, mt3, v1 | 16:x2, d2, f, u, w, m4, s3, mt3, v1, pb | "
     "17:x2, d2, f, u, w, m4, s3, mt4, v2, pb | 18:x2, d3, f, u, w, m4, s3, mt4, v2, pb | "
     "19:x3, d3, f, u, w, m5, s4, mt4, v2, pb | 20:x3, d3, f, u, w, m5, s4, mt5, v3, pb | "
     "21:x3, d4, f, u, w, m6, s4, mt5, v3, pb | 22:x3, d4, f, u, w, m6, s5, mt5, v4, pb | "
     "23:liver eaten before its owner's eyes | 24:bitten in two at the waist"},
    {"Back, small of",
     "1:1 | 2:2 | 3:3, f | 4:4, f | 5:6, f, m1 | 6:6, f, m1, mt1 | 7:8, f, m1, mt1 | 8:10, f, m2, mt1 | "
     "9:x2, f, m2, mt2 | 10:x2, f, m3, b1, mt2 | 11:x2, d1, f, m3, b1, mt2 | 12:x2, d1, f, m4, b1, mt2, p | "
     "13:x2, d1, f, m4, s1, b1, mt2, p | 14:x2, d2, f, m4, s1, b1, mt3, p | 15:x2, d2, f, m5, s1, b1, mt3, p, pb | "
     "16-17:x2, d2, f, m5, s2, bf1, mt3, p, pb | 18:x2, d3, f, m6, s2, bf1, mt4, p, pb | "
     "19:x2, d3, f, m7, s3, bf1, mt4, p, pb | 20:x2, d4, f, m7, s3, bf2, mt4, p, v1, pb | "
     "21:x2, d4, f, m8, s4, bf2, mt5, p, v1, pb | 22:x3, d5, f, m9, s4, bm1, mt5, p, v1, pb | "
     "23:x3, d5, f, u, m9, s5, bm2, mt5, p, v2, pb | 24:x3, d6, f, u, m10, s5, bs1, mt6, p, v2, pb"},
    {"Back, lower",
     "1:1 | 2:3 | 3:4 | 4:4, m1 | 5:4, m1, mt1 | 6:6, m1, mt1 | 7:6, f, m1, mt1 | 8:8, f, m1, s1, mt1 | "
     "9:8, f, m2, s1, mt2 | 10:10, f, m2, s1, mt2 | 11:x2, f, m4, s1, mt2 | 12:x2, d1, f, m4, s1, mt3 | "
     "13:x2, d1, f, m4, s2, mt3, ib | 14:x2, d1, f, m5, s2, b1, mt3, ib | 15:x2, d1, f, m5, s2, b1, mt3, p, ib | "
     "16:x2, d2, f, m5, s2, b1, mt4, p, ib | 17:x2, d2, f, m6, s3, b1, mt4, p, v1 | "
     "18:x2, d2, f, m6, s3, b2, mt4, p, v1, pb | 19-20:x2, d3, f, m7, s3, bf1, mt5, p, v1, pb | "
     "21:x2, d3, f, u, m7, s4, bf2, mt5, p, v2, pb | 22:x2, d4, f, u, m8, s4, bf2, mt6, p, v2, pb | "
     "23:x3, d4, f, u, m8, s5, bm1, mt6, p, v3, pb | 24:x3, d5, f, u, m9, s6, bm2, mt7, p, v3, pb"},
    {"Chest",
     "1:1 | 2:3 | 3:4 | 4:6 | 5:6, f | 6:6, f, mt1 | 7:8, f, mt1 | 8:x2, f, mt1 | 9:x2, f, mt2 | 10:x2, f, b1, mt2 | "
     "11:x2, d1, f, b1, mt2 | 12:x2, d1, f, w, b1, mt3 | 13:x2, d1, f, w, s1, b2, mt3 | "
     "14:x2, d2, f, w, s1, b2, mt3, ib | 15:x2, d2, f, w, s1, bf1, mt3, ib, pb | "
     "16:x2, d2, f, w, s2, bf2, mt4, ib, pb | 17:x2, d3, f, w, s2, bf2, mt4, v1, pb | "
     "18:x3, d3, f, w, s3, bf3, mt4, v1, pb | 19:x3, d3, f, u, w, s3, bf4, mt5, v2, pb | "
     "20:x3, d4, f, u, w, s4, bm2, mt5, v2, pb | 21:x3, d4, f, u, w, s5, bm3, mt6, v3, pb | "
     "22:lung torn out and shaken like a rag | 23:ribs cracked open and the heart plucked like a plum | "
     "24:swallowed down to the belt"},
    {"Side, upper",
     "1:1 | 2:2 | 3:3 | 4:3, ws | 5:4, ws | 6:6, ws | 7:8, ws | 8:8, ws, mt1 | 9:10, f, ws, mt1 | "
     "10:12, f, ws, b1, mt1 | 11:x2, f, ws, b1, mt1 | 12:x2, f, w, b1, mt2 | 13:x2, f, w, b2, mt2 | "
     "14:x2, d1, f, w, b2, mt2 | 15:x2, d1, f, w, s1, b3, mt2 | 16:x2, d1, f, w, s1, bf1, mt3, ib | "
     "17-18:x2, d2, f, w, s1, bf2, mt3, ib | 19:x2, d2, f, w, s2, bf2, mt4, ib, pb | "
     "20:x2, d3, f, w, s2, bf3, mt4, ib, pb | 21:x2, d3, f, u, w, s3, bf4, mt4, v1, pb | "
     "22:x2, d4, f, u, w, s3, bm2, mt5, v1, pb | 23:x3, d4, f, u, w, s4, bm3, mt5, v2, pb | "
     "24:x3, d5, f, u, w, s4, bs2, mt6, v2, pb"},
    {"Back, upper",
     "1:1 | 2:2 | 3:2, f | 4:3, f | 5:4, f, ws | 6:6, f, ws, mt1 | 7:8, f, ws, mt1 | 8:x2, f, ws, mt1 | "
     "9:x2, f, ws, mt2 | 10:x2, f, w, mt2 | 11:x2, d1, f, w, mt3 | 12:x2, d1, f, w, s1, mt3 | "
     "13:x2, d1, f, w, s1, b1, mt3 | 14:x2, d1, f, w, s1, b1, mt4 | 15:x2, d2, f, w, s2, b1, mt4, pb | "
     "16:x2, d2, f, w, s2, b2, mt4, pb | 17:x2, d2, f, w, s2, b2, mt5, p, pb | 18:x2, d3, f, w, s3, bf1, mt5, p, pb | "
     "19:x2, d3, f, w, s3, bf1, mt6, p, pb | 20-21:x2, d4, f, w, s4, bf2, mt6, p, pb | "
     "22:x2, d4, f, u, w, s4, bm1, mt6, p, ib, pb | 23:x3, d5, f, u, w, s5, bm1, mt7, p, ib, pb | "
     "24:x3, d6, f, u, w, s6, bm2, mt8, p, v1, pb"},
    {"Back, upper middle",
     "1:1 | 2:1, f | 3:3, f | 4:4, f, w | 5:6, f, w | 6:8, f, w | 7:8, f, w, b1 | 8:10, f, w, b1, mt1 | "
     "9:x2, f, w, b1, mt1 | 10:x2, d1, f, w, b1, mt1 | 11:x2, d1, f, w, b1, mt1, p | 12:x2, d2, f, w, b1, mt2, p | "
     "13:x2, d2, f, w, s1, b2, mt2, p | 14:x2, d2, f, w, s1, bf1, mt2, p | 15:x2, d3, f, w, s2, bf1, mt2, p | "
     "16:x2, d3, f, w, s2, bf1, mt3, p, pb | 17:x2, d4, f, w, s2, bf2, mt3, p, pb | "
     "18:x2, d4, f, u, w, s3, bf2, mt3, p, pb | 19:x3, d4, f, u, w, s3, bm1, mt3, p, pb | "
     "20:x3, d5, f, u, w, s3, bm1, mt4, p, ib, pb | 21:x3, d5, f, u, w, s4, bm2, mt4, p, ib, pb | "
     "22:x3, d6, f, u, w, s5, bm2, mt4, p, v1, pb | 23:x3, d7, f, u, w, s5, bs1, mt5, p, v1, pb | "
     "24:x3, d8, f, u, w, s6, bs2, mt5, p, v2, pb"},
    {"Armpit",
     "1:1 | 2:2 | 3:2, ws | 4:4, ws | 5:4, ws, mt1 | 6:6, ws, mt1 | 7:6, w, mt1 | 8:8, w, a1, mt1 | 9:x2, w, a1, mt2 | "
     "10:x2, w, a1, mt2, pb | 11:x2, d1, w, a1, mt2, pb | 12:x2, d1, w, a2, t1, mt2, pb | "
     "13:x2, d1, w, a2, s1, t1, mt3, pb | 14-15:x2, d2, w, a2, s1, t1, mt3, pb | 16:x2, d2, w, a3, s2, t2, mt3, pb | "
     "17:x2, d3, f, w, a3, s2, t2, mt4, pb | 18:x2, d3, f, w, a4, s2, t2, mt4, pb | "
     "19:x2, d3, f, w, a4, s3, b1, t3, mt4, pb | 20:x2, d4, f, w, a4, s3, b2, t3, mt5, pb | "
     "21:x2, d4, f, w, a5, s3, b2, t3, mt5, ib, pb | 22:x2, d5, f, w, a5, s4, bf2, t4, mt6, ib, pb | "
     "23:x3, d5, f, u, w, a6, s4, bf3, t4, mt6, v1, pb | 24:x3, ls, d6, f, u, w, a6, s5, v1, pb"},
    {"Arm, upper outer",
     "1:1 | 2:2 | 3:3 | 4:4, ws | 5:6, ws | 6:6, ws, mt1 | 7:8, ws, mt1 | 8:x2, ws, mt1 | 9:x2, w, mt2 | "
     "10:x2, w, a1, mt2 | 11-12:x2, d1, w, a1, mt2 | 13:x2, d1, w, a1, mt3 | 14:x2, d1, w, a2, s1, mt3 | "
     "15:x2, d2, w, a2, s1, mt3, pb | 16:x2, d2, w, a2, s1, mt4, pb | 17:x2, d3, w, a2, s1, mt4, pb | "
     "18:x2, d3, f, w, a3, s2, mt4, pb | 19:x2, d3, f, w, a3, s2, b1, mt5, pb | 20:x2, d4, f, w, a3, s2, b1, mt5, pb | "
     "21:x2, d4, f, w, a4, s3, bf1, mt5, pb | 22:x2, d5, f, w, a4, s3, bf1, mt6, pb | "
     "23:x2, d5, f, w, a5, s4, bm1, mt6, pb | 24:x2, ls, d6, f, w, a5, s4, pb"},
    {"Arm, upper inner",
     "1:1 | 2:1, ws | 3:2, ws | 4:3, ws | 5:4, ws, mt1 | 6:4, w, mt1 | 7:6, w, mt1 | 8:6, w, mt1, pb | "
     "9:8, w, mt2, pb | 10:10, w, a1, mt2, pb | 11:x2, w, a1, mt2, pb | 12:x2, d1, w, a1, mt3, pb | "
     "13:x2, d1, w, a2, mt3, pb | 14:x2, d2, w, a2, mt3, pb | 15:x2, d2, w, a2, s1, mt4, pb | "
     "16:x2, d2, w, a3, s1, mt4, pb | 17:x2, d2, f, w, a3, s2, mt4, pb | 18:x2, d3, f, w, a3, s2, mt5, pb | "
     "19-20:x2, d3, f, w, a4, s3, mt5, pb | 21:x2, d4, f, w, a4, s3, mt6, pb | 22:x2, d4, f, w, a5, s4, b1, mt6, pb | "
     "23:x2, d5, f, u, w, a5, s4, bf1, mt6, pb | 24:x2, ls, d5, f, u, w, a6, s5, pb"},
    {"Elbow",
     "1:1 | 2:1, w | 3:2, w | 4:3, w | 5:3, w, a1 | 6:4, w, a1 | 7:6, w, a1, t1 | 8:8, w, a1, t1 | "
     "9:8, w, a1, b1, t1 | 10:x2, w, a1, b1, t1 | 11:x2, d1, w, a1, b1, t1 | 12:x2, d1, w, a2, b1, t2 | "
     "13:x2, d2, w, a2, b1, t2 | 14:x2, d2, w, a2, bf1, t2 | 15:x2, d2, w, a3, bf1, t2, mt1 | "
     "16:x2, d3, w, a3, bf1, t2, mt1 | 17:x2, d3, w, a3, s1, bf1, t3, mt1 | 18:x2, d3, w, a4, s1, bm1, t3, mt1 | "
     "19:x2, d4, w, a4, s1, bm1, t3, mt2, pb | 20:x2, d4, w, a4, s2, bm2, t3, mt2, pb | "
     "21:x2, d5, w, a5, s2, bm2, t4, mt2, pb | 22:x2, d5, w, a5, s3, bs1, t4, mt3, pb | 23:x2, ls, d5, w, a5, s3, pb | "
     "24:x2, ls, d6, f, w, a6, s3, pb"},
    {"Inner joint",
     "1:1 | 2:2, ws | 3:3, ws | 4:3, w | 5:4, w, t1 | 6:6, w, t1 | 7:6, w, t1, mt1 | 8:8, w, a1, t1, mt1 | "
     "9:10, w, a1, t1, mt1 | 10:x2, w, a1, t2, mt1 | 11:x2, w, a1, t2, mt1, pb | 12:x2, d1, w, a2, t2, mt1, pb | "
     "13:x2, d1, w, a2, t2, mt2, pb | 14:x2, d1, w, a2, s1, t2, mt2, pb | 15:x2, d2, w, a2, s1, t3, mt2, pb | "
     "16-17:x2, d2, w, a3, s1, t3, mt2, pb | 18:x2, d3, w, a3, s1, t3, mt3, pb | 19:x2, d3, w, a3, s2, t4, mt3, pb | "
     "20:x2, d3, w, a4, s2, t4, mt3, pb | 21:x2, d4, w, a4, s2, t4, mt4, pb | 22:x2, d4, w, a5, s3, t5, mt4, pb | "
     "23:x2, d5, w, a5, s3, b1, t5, mt4, pb | 24:x2, ls, d5, w, a6, s3, pb"},
    {"Forarm, back",
     "1:1 | 2:2 | 3:2, ws | 4:3, ws | 5:4, ws | 6:4, w | 7:6, w, b1 | 8:6, w, b1, mt1 | 9:8, w, b1, mt1 | "
     "10:8, w, a1, b1, mt1 | 11-12:x2, w, a1, b1, mt1 | 13:x2, d1, w, a1, b1, mt2 | 14:x2, d1, w, a2, bf1, mt2 | "
     "15:x2, d2, w, a2, bf1, mt2 | 16:x2, d2, w, a2, bf1, mt2, pb | 17:x2, d2, w, a2, s1, bf1, mt3, pb | "
     "18:x2, d3, w, a3, s1, bf1, mt3, pb | 19:x2, d3, w, a3, s1, bf2, mt3, pb | 20:x2, d3, w, a3, s2, bf2, mt4, pb | "
     "21:x2, d4, w, a4, s2, bm1, mt4, pb | 22:x2, d4, w, a4, s2, bm2, mt4, pb | 23:x2, ls, d5, w, a4, s2, pb | "
     "24:x2, ls, d5, f, w, a5, s3, pb"},
    {"Forarm, inner",
     "1:1 | 2:1, ws | 3:3, ws | 4:4, ws | 5:4, w | 6:4, w, mt1 | 7:6, w, mt1 | 8:8, w, mt2 | 9:8, w, mt2, pb | "
     "10:10, w, a1, mt2, pb | 11:12, w, a1, mt2, pb | 12:x2, w, a1, mt3, pb | 13:x2, d1, w, a1, mt3, pb | "
     "14:x2, d1, w, a2, s1, mt3, pb | 15:x2, d1, w, a2, s1, mt4, pb | 16:x2, d2, w, a3, s1, mt4, pb | "
     "17:x2, d2, w, a3, s2, mt4, pb | 18:x2, d3, w, a3, s2, mt4, pb | 19-20:x2, d3, w, a4, s2, mt5, pb | "
     "21:x2, d3, w, a4, s3, mt6, pb | 22:x2, d4, w, a5, s3, mt6, pb | 23:x2, d4, w, a5, s3, b1, mt6, pb | "
     "24:x2, ls, d4, w, a6, s4, pb"},
    {"Wrist, back",
     "1:1 | 2:1, w | 3:2, w | 4:2, w, a1 | 5:3, w, a1 | 6:4, w, a1 | 7:4, w, a1, b1 | 8:6, w, a1, b1 | "
     "9:6, d1, w, a2, b1 | 10:8, d1, w, a2, b1, t1 | 11:8, d1, w, a2, bf1, t1 | 12:10, d1, w, a2, bf1, t1 | "
     "13:x2, d2, w, a2, bf1, t1 | 14:x2, d2, w, a3, bf2, t1 | 15:x2, d2, w, a3, bf2, t2 | 16:x2, d3, w, a3, bf2, t2 | "
     "17:x2, d3, w, a3, bm1, t2 | 18:x2, d3, w, a4, bm1, t2, pb | 19:x2, d4, w, a4, bm2, t3, pb | "
     "20:x2, d4, w, a4, s1, bm2, t3, pb | 21:x2, d5, w, a5, s1, bm3, t3, pb | 22:x2, ls, d5, w, a5, pb | "
     "23:x2, ls, d5, w, a6, pb | 24:x2, ls, d6, f, w, a6, pb"},
    {"Wrist, front",
     "1:1, w | 2:2, w | 3:2, w, t1 | 4:3, w, t1 | 5:4, w, t1 | 6:4, w, a1, t1 | 7:4, w, a1, t1, pb | "
     "8:6, w, a1, t1, pb | 9:6, w, a1, t2, pb | 10:8, w, a2, t2, pb | 11:10, d1, w, a2, t2, pb | "
     "12:x2, d1, w, a2, t2, pb | 13-14:x2, d1, w, a2, t3, pb | 15:x2, d2, w, a3, t3, pb | "
     "16:x2, d2, w, a3, b1, t3, pb | 17:x2, d2, w, a4, b1, t3, pb | 18:x2, d3, w, a4, b1, t4, pb | "
     "19-20:x2, d3, w, a4, bf1, t4, pb | 21:x2, d4, w, a4, bf1, t5, pb | 22:x2, d4, w, a5, s1, bm1, t5, pb | "
     "23:x2, ls, d4, w, a5, s1, pb | 24:x2, ls, d5, f, u, w, a6, s1, pb"},
    {"Hand, back",
     "1:1, ws | 2:2, ws | 3:2, w | 4:3, w | 5:3, w, b1 | 6:4, w, b1 | 7:4, w, a1, b1 | 8:6, w, a1, b2 | "
     "9:6, d1, w, a1, b2 | 10:8, d1, w, a1, b2, mt1 | 11:10, d1, w, a2, bf1, mt1 | 12:10, d2, w, a2, bf1, mt1 | "
     "13:x2, d2, w, a2, bf2, mt1 | 14:x2, d2, w, a3, bf2, mt2 | 15:x2, d3, w, a3, bf3, mt2 | "
     "16:x2, d3, w, a3, bf3, t1, mt2 | 17:x2, d3, w, a4, bm1, t1, mt2 | 18-19:x2, d4, w, a4, bm2, t2, mt3 | "
     "20:x2, d4, w, a4, bm3, t2, mt3, pb | 21:x2, ls, d4, w, a5, pb | 22:x2, ls, d5, w, a5, pb | "
     "23:x2, ls, d6, w, a5, s1, pb | 24:x2, ls, d6, w, a6, s2, pb"},
    {"Palm",
     "1:1 | 2:1, w | 3:2, w | 4:2, w, mt1 | 5:3, w, mt1 | 6:3, w, a1, mt1 | 7:4, w, a1, mt1 | 8:4, d1, w, a1, mt1 | "
     "9:6, d1, w, a1, mt2 | 10:6, d1, w, a1, t1, mt2 | 11:8, d1, w, a2, t1, mt2 | 12:8, d1, w, a2, t1, mt2, pb | "
     "13:10, d2, w, a2, t1, mt3, pb | 14:12, d2, w, a3, t2, mt3, pb | 15-16:x2, d2, w, a3, t2, mt3, pb | "
     "17:x2, d3, w, a3, b1, t2, mt4, pb | 18:x2, d3, w, a4, b1, t3, mt4, pb | 19:x2, d4, w, a4, b2, t3, mt4, pb | "
     "20:x2, d4, w, a5, bf1, t3, mt5, pb | 21:x2, d5, w, a5, bf2, t4, mt5, pb | 22:x2, ls, d5, w, a5, pb | "
     "23:x2, ls, d6, w, a6, pb | 24:x2, ls, d6, u, w, a6, pb"},
    {"Finger(s)",
     "1-2:1 | 3:1, ws | 4:2, ws | 5:2, w | 6:3, w, b1 | 7:3, w, bf1 | 8:4, w, bf1 | 9:4, d1, w, bf1 | "
     "10:4, d1, w, bf2 | 11:4, ls, d1, w | 12:6, ls, d1, w | 13:6, ls, d1, w, a1 | 14:8, ls, d1, w, a1 | "
     "15:8, ls, d2, w, a1 | 16-17:10, ls, d2, w, a2 | 18:10, ls, d3, w, a2 | 19:12, ls, d3, w, a2 | "
     "20:x2, ls, d3, w, a3 | 21:x2, ls, d4, w, a3 | 22:x2, ls, d4, w, a4 | 23:x2, ls, d5, w, a4 | "
     "24:x2, ls, d6, w, a5"},
    {"Shoulder, side",
     "1:1 | 2:2 | 3:3 | 4:4 | 5:4, ws | 6:6, ws, mt1 | 7:8, w, mt1 | 8:8, w, a1, mt1 | 9:x2, w, a1, mt1 | "
     "10:x2, w, a1, t1, mt1 | 11:x2, d1, w, a1, t1, mt2 | 12:x2, d1, w, a2, t1, mt2 | 13:x2, d1, w, a2, s1, t1, mt2 | "
     "14-15:x2, d2, w, a2, s1, t1, mt3 | 16:x2, d2, w, a2, s1, t2, mt3, pb | 17:x2, d2, f, w, a3, s1, t2, mt3, pb | "
     "18:x2, d3, f, w, a3, s2, t2, mt4, pb | 19:x2, d3, f, w, a4, s2, b1, t2, mt4, pb | "
     "20:x2, d4, f, w, a4, s2, b1, t3, mt4, pb | 21:x2, d4, f, w, a4, s3, bf1, t3, mt5, pb | "
     "22:x2, d5, f, w, a5, s3, bf1, t3, mt5, pb | 23:x2, d5, f, w, a6, s4, bm1, t4, mt6, pb | "
     "24:x2, ls, d6, f, w, a6, s4, pb"},
    {"Shoulder, top",
     "1:1 | 2:3 | 3:4 | 4:4, f | 5:6, f | 6:6, f, ws | 7:8, f, ws | 8:8, f, ws, mt1 | 9:10, f, w, mt1 | "
     "10:x2, f, w, b1, mt1 | 11:x2, f, w, b1, mt2 | 12:x2, d1, f, w, b1, mt2 | 13:x2, d1, f, w, a1, b1, mt2 | "
     "14:x2, d1, f, w, a1, b1, mt3 | 15:x2, d2, f, w, a1, s1, b1, mt3 | 16:x2, d2, f, w, a2, s1, bf1, mt3 | "
     "17:x2, d2, f, w, a2, s1, bf1, mt4, pb | 18:x2, d3, f, w, a2, s2, bf1, mt4, pb | "
     "19:x2, d3, f, w, a3, s2, bf2, mt5, pb | 20:x2, d3, f, w, a3, s3, bf2, mt5, pb | "
     "21:x2, d4, f, w, a4, s3, bm1, mt5, pb | 22:x2, d4, f, w, a4, s4, bm1, mt6, pb | "
     "23:x2, d5, f, u, w, a5, s4, bm2, mt6, pb | 24:x3, ls, d5, f, u, w, a5, s5, pb"},
    {"Neck, front",
     "1:1 | 2:2, f | 3:4, f | 4:6, f, w | 5:8, f, w | 6:8, f, w, mt1 | 7:x2, f, w, mt1 | 8:x2, f, w, a1, mt1 | "
     "9:x2, f, w, a1, mt2 | 10:x2, d1, f, w, a1, mt2, pb | 11:x2, d1, f, w, a2, mt2, pb | "
     "12:x2, d2, f, u, w, a2, mt3, pb | 13:x2, d2, f, u, w, a2, s1, mt3, pb | 14:x2, d2, f, u, w, a3, s1, mt3, pb | "
     "15:x3, d2, f, u, w, a3, s1, mt3, pb | 16:x3, d3, f, u, w, a3, s2, mt4, pb | "
     "17:x3, d3, f, u, w, a4, s2, mt4, pb | 18:x3, d4, f, u, w, a4, s3, mt4, pb | "
     "19:x3, d4, f, u, w, a5, s3, mt5, pb | 20:x3, d5, f, u, w, a5, s4, mt5, ib, pb | "
     "21:x3, d6, f, u, w, a6, s4, mt6, ib, pb | 22:throat torn out | 23:windpipe pulled loose and swallowed whole | "
     "24:head hangs by a strip of skin"},
    {"Neck, back",
     "1:1 | 2:2 | 3:3, f | 4:4, f | 5:6, f, w | 6:6, f, w, mt1 | 7:8, f, w, mt1 | 8:x2, f, w, b1, mt1 | "
     "9:x2, f, w, b1, mt1, p | 10:x2, d1, f, w, b1, mt1, p | 11:x2, d1, f, w, b1, mt2, p | "
     "12:x2, d2, f, w, s1, b1, mt2, p | 13:x2, d2, f, w, s1, b2, mt2, p, pb | 14:x2, d3, f, u, w, s1, b2, mt3, p, pb | "
     "15:x2, d3, f, u, w, s2, bf1, mt3, p, pb | 16:x2, d4, f, u, w, s2, bf1, mt3, p, pb | "
     "17:x3, d4, f, u, w, s3, bf1, mt4, p, pb | 18:x3, d5, f, u, w, s3, bf2, mt4, p, pb | "
     "19:x3, d5, f, u, w, s4, bf2, mt4, p, pb | 20:x3, d6, f, u, w, s4, bm1, mt5, p, pb | "
     "21:x3, d7, f, u, w, s5, bm2, mt5, p, pb | 22:x3, d8, f, u, w, s6, bs1, mt5, p, pb | "
     "23:neck bones crunched like a rabbit's | 24:head bitten clean off"},
    {"Neck, side",
     "1:1 | 2:3 | 3:3, ws | 4:4, ws | 5:4, ws, mt1 | 6:6, f, ws, mt1 | 7:8, f, w, mt1 | 8:x2, f, w, mt2 | "
     "9:x2, f, w, mt2, pb | 10:x2, f, w, a1, mt2, pb | 11:x2, d1, f, w, a1, mt3, pb | "
     "12:x2, d1, f, w, a1, s1, mt3, pb | 13:x2, d1, f, u, w, a2, s1, mt3, pb | 14:x2, d2, f, u, w, a2, s1, mt4, pb | "
     "15:x2, d2, f, u, w, a3, s2, mt4, pb | 16:x2, d3, f, u, w, a3, s2, mt4, pb | "
     "17:x2, d3, f, u, w, a3, s3, mt5, pb | 18:x3, d3, f, u, w, a4, s3, mt5, pb | "
     "19:x3, d4, f, u, w, a4, s3, mt5, ib, pb | 20:x3, d4, f, u, w, a4, s4, mt6, ib, pb | "
     "21:x3, d5, f, u, w, a5, s4, b1, mt6, ib, pb | 22:x3, d5, f, u, w, a5, s5, bf1, mt7, ib, pb | "
     "23:great vein opened and the ceiling painted red | 24:neck chewed through and the head rolls away"},
    {"Head, side",
     "1:1 | 2:2 | 3:3, a1 | 4:4, a1 | 5:6, a1 | 6:6, a2 | 7:8, f, a2 | 8:x2, f, a2 | 9:x2, f, a2, mc | "
     "10:x2, f, a2, b1, mc | 11:x2, d1, f, a2, b1, mc | 12:x2, d1, f, a3, b1, mc | 13:x2, d1, f, u, a3, b1, mc | "
     "14:x2, d1, f, u, a3, b1, mc, pb | 15:x2, d2, f, u, a3, bf1, mc, pb | 16:x2, d2, f, u, a4, bf1, mc, pb | "
     "17:x2, d2, f, u, a4, bf1, sc, pb | 18:x3, d3, f, u, a4, bf1, sc, pb | 19:x3, d3, f, u, a4, bm1, sc, pb | "
     "20:x3, d3, f, u, a5, s1, bm1, sc, pb | 21:x3, d4, f, u, a5, s1, bm1, sc, pb | "
     "22:x3, d5, f, u, a6, s2, bs1, sc, pb | 23:ear and temple gone with a mouthful of brain | "
     "24:skull cracked in the jaws like a walnut"},
    {"Head, back lower",
     "1:1 | 2:1, f | 3:2, f | 4:3, f, mc | 5:4, f, mc | 6:6, f, w, mc | 7:8, f, w, mc | 8:10, f, w, mc | "
     "9:x2, f, w, mc | 10:x2, d1, f, w, mc | 11:x2, d1, f, u, w, mc | 12:x2, d1, f, u, w, b1, mc | "
     "13:x2, d2, f, u, w, b1, mc | 14:x2, d2, f, u, w, b1, sc | 15:x2, d2, f, u, w, s1, b1, sc | "
     "16:x2, d3, f, u, w, s1, b1, sc, pb | 17:x2, d3, f, u, w, s1, bf1, sc, pb | 18:x3, d3, f, u, w, s2, bf1, sc, pb | "
     "19:x3, d4, f, u, w, s2, bf1, sc, pb | 20:x3, d4, f, u, w, s3, bm1, sc, pb | "
     "21:x3, d5, f, u, w, s3, bm1, sc, pb | 22:teeth meet in the brain stem | "
     "23:back of the neck and head gone in one bite | 24:head wrenched off with the spine in tow"},
    {"Face, lower side",
     "1:1 | 2:2 | 3:2, a1 | 4:3, a1 | 5:4, a1 | 6:4, a1, mt1 | 7:6, f, a1, mt1 | 8:8, f, a2, mt1 | 9:10, f, a2, mt1 | "
     "10:x2, f, a2, mt1 | 11:x2, f, a2, mt2 | 12:x2, f, a3, b1, mt2 | 13:x2, d1, f, a3, b1, mt2 | "
     "14:x2, d1, f, a3, b1, mt2, pb | 15:x2, d1, f, a4, b1, mt3, pb | 16:x2, d1, f, u, a4, bf1, mt3, pb | "
     "17:x2, d2, f, u, a4, bf1, mt3, pb | 18:x2, d2, f, u, a5, bf1, mt4, pb | 19:x2, d2, f, u, a5, bm1, mt4, pb | "
     "20:x3, d3, f, u, a5, s1, bm1, mt4, pb | 21:x3, d3, f, u, a6, s1, bm1, mt5, pb | "
     "22:x3, d4, f, u, a6, s2, bs1, mt5, pb | 23:cheek and tongue torn out and chewed | "
     "24:jaw ripped off and carried home to the den"},
    {"Face, lower center",
     "1:1 | 2:2, a1 | 3:3, a1 | 4:4, a1 | 5:4, a2 | 6:6, a2, mt1 | 7:6, a2, b1, mt1 | 8:8, f, a2, b1, mt1 | "
     "9:8, f, a3, b1, mt1 | 10:10, f, a3, b1, mt2 | 11:x2, f, a3, b2, mt2 | 12:x2, d1, f, a3, b2, mt2 | "
     "13:x2, d1, f, u, a4, b2, mt2 | 14:x2, d1, f, u, a4, bf1, mt3, pb | 15:x2, d2, f, u, a4, bf1, mt3, pb | "
     "16:x2, d2, f, u, a5, bf1, mt3, pb | 17:x2, d2, f, u, a5, bf2, mt4, pb | 18:x3, d2, f, u, a5, bf2, mt4, pb | "
     "19:x3, d3, f, u, a6, s1, bm1, mt4, pb | 20:x3, d3, f, u, a6, s2, bm1, mt5, pb | "
     "21:x3, d4, f, u, a7, s2, bm2, mt5, pb | 22:x3, d4, f, u, a7, s3, bm2, mt6, pb | "
     "23:jaws and nose gone at a gulp | 24:everything below the eyes bitten away"},
    {"Head, back upper",
     "1:1 | 2:3 | 3:4 | 4:4, f | 5:6, f | 6:6, f, mc | 7:8, f, mc | 8:10, f, mc | 9:12, f, mc | 10:x2, f, mc | "
     "11:x2, f, w, mc | 12:x2, d1, f, w, mc | 13:x2, d1, f, w, b1, mc | 14:x2, d1, f, u, w, b1, mc | "
     "15:x2, d1, f, u, w, b1, sc | 16:x2, d2, f, u, w, b1, sc | 17:x2, d2, f, u, w, bf1, sc | "
     "18:x2, d3, f, u, w, bf1, sc, pb | 19:x2, d3, f, u, w, s1, bf1, sc, pb | 20:x3, d3, f, u, w, s1, bm1, sc, pb | "
     "21:x3, d4, f, u, w, s2, bm1, sc, pb | 22:x3, d5, f, u, w, s3, bm1, sc, pb | "
     "23:back of the head scooped out like a melon | 24:brain lapped up like porridge"},
    {"Face, upper side",
     "1:1 | 2:1, a1 | 3:3, a1 | 4:3, a2 | 5:4, a2 | 6:6, a2 | 7:6, f, a2, mt1 | 8:8, f, a3, mt1 | 9:x2, f, a3, mt1 | "
     "10:x2, f, a3, b1, mt1 | 11:x2, f, a4, b1, mt1 | 12:x2, f, a4, b1, mt1, mc | 13:x2, d1, f, a4, b1, mt2, mc | "
     "14:x2, d1, f, u, a4, b1, mt2, mc | 15:x2, d1, f, u, a5, bf1, mt2, mc | 16:x2, d1, f, u, a5, bf1, mt2, mc, pb | "
     "17:x2, d2, f, u, a5, bf1, mt3, mc, pb | 18:x2, d2, f, u, a6, bf2, mt3, sc, pb | "
     "19:x2, d3, f, u, a6, bf2, mt3, sc, pb | 20:x3, d3, f, u, a7, bm1, mt3, sc, pb | "
     "21:x3, d4, f, u, a7, s1, bm1, mt4, sc, pb | 22:x3, d4, f, u, a8, s2, bm2, mt4, sc, pb | "
     "23:eye sucked out and the brain after it | 24:head bitten off to the middle line"},
    {"Face, upper center",
     "1:1, a1 | 2:2, a1 | 3:4, a1 | 4:4, a2 | 5:6, a2 | 6:8, a2 | 7:8, f, a3 | 8:x2, f, a3 | 9:x2, f, a4 | "
     "10:x2, f, a4, b1 | 11:x2, d1, f, a4, b1 | 12:x2, d1, f, u, a4, b1 | 13:x2, d1, f, u, a5, b1, mc | "
     "14:x2, d2, f, u, a5, b1, mc | 15:x2, d2, f, u, a5, bf1, mc | 16:x2, d2, f, u, a6, bf1, mc, pb | "
     "17:x3, d2, f, u, a6, bf1, sc, pb | 18:x3, d3, f, u, a7, bf2, sc, pb | 19:x3, d3, f, u, a7, bm1, sc, pb | "
     "20:x3, d4, f, u, a8, s1, bm1, sc, pb | 21:x3, d5, f, u, a8, s1, bm2, sc, pb | "
     "22:nose bitten off and the breath with it | 23:both eyes gone and the fangs still going in | "
     "24:face peeled like an onion"},
    {"Head, top",
     "1:1 | 2:2 | 3:4 | 4:6 | 5:6, mc | 6:8, f, mc | 7:10, f, mc | 8:x2, f, mc | 9:x2, f, a1, mc | "
     "10:x2, d1, f, a1, mc | 11:x2, d1, f, a1, b1, mc | 12:x2, d1, f, u, a1, b1, mc | 13:x2, d1, f, u, a2, b1, sc | "
     "14:x2, d2, f, u, a2, b1, sc | 15:x2, d2, f, u, a2, bf1, sc | 16:x3, d2, f, u, a2, bf1, sc | "
     "17:x3, d2, f, u, a2, s1, bf1, sc, pb | 18:x3, d3, f, u, a3, s1, bm1, sc, pb | "
     "19:x3, d4, f, u, a3, s2, bm1, sc, pb | 20:x3, d4, f, u, a3, s3, bm1, sc, pb | "
     "21:x3, d5, f, u, a3, s3, bs1, sc, pb | 22:scalp and crown of the skull torn off together | "
     "23:fangs meet inside the skull | 24:head swallowed whole and the helm spat out"},
}};
// clang-format on

constexpr CriticalHitIndex kMonsterBiteIndex = ReadCriticalHits(kMonsterBiteHits, 3);

}  // namespace veld
