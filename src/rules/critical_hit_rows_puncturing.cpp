#include "rules/critical_hit_notation.h"
#include "rules/critical_hit_rows.h"

namespace veld {

// What arrows, spears and daggers do: they go deep. Blood and organs first, then tendons and nerves; feet and hands are
// nailed to what is behind them, and a bone breaks only when the point meets it square. Hardly anything comes off.
// Not formatted by the tool: one record a place, its ladder broken where the page breaks it.
// clang-format off
constexpr std::array<CriticalHitLadder, 50> kPuncturingHits = {{
    {"Foot, top",
     "1:1 | 2:2 | 3:3 | 4:3, m1 | 5:4, m1 | 6:4, m2 | 7:6, m2, t1 | 8:8, m3, t1 | 9:8, f, m4, t1 | 10:10, f, m4, t1 | "
     "11:x2, f, m4, t1 | 12:x2, d1, f, m5, t1 | 13-14:x2, d1, f, m5, t2 | 15:x2, d1, f, m6, t2, mt1 | "
     "16:x2, d2, f, m6, t2, mt1 | 17:x2, d2, f, m6, t2, mt1, pb | 18:x2, d2, f, m7, b1, t2, mt1, pb | "
     "19:x2, d3, f, m7, b1, t3, mt2, pb | 20:x2, d3, f, m8, b1, t3, mt2, pb | 21:x2, d3, f, m8, b2, t3, mt2, pb | "
     "22:x2, d4, f, m9, bf2, t3, mt2, pb | 23:x2, d4, f, m9, bf2, t4, mt2, pb | 24:x2, d4, f, m10, bf2, t4, mt3, pb"},
    {"Heel",
     "1:1 | 2:1, m1 | 3:2, m1 | 4-5:3, m1 | 6:4, f, m1 | 7:4, f, m2 | 8:6, f, m2, b1 | 9:8, f, m3, b1 | "
     "10:8, f, m4, b1 | 11:10, f, m4, b1, t1 | 12:10, f, m5, b1, t1 | 13:x2, f, m5, b1, t1 | "
     "14:x2, d1, f, m5, b1, t1 | 15:x2, d1, f, m5, b1, t2 | 16-17:x2, d1, f, m6, b1, t2 | 18:x2, d2, f, m6, bf1, t2 | "
     "19:x2, d2, f, m7, bf1, t2 | 20:x2, d2, f, m7, bf1, t3 | 21:x2, d2, f, m7, bf1, t3, pb | "
     "22:x2, d3, f, m8, bf1, t3, pb | 23:x2, d3, f, m8, bm1, t3, pb | 24:x2, d4, f, m9, bm1, t4, pb"},
    {"Toe(s)",
     "1-2:1 | 3:1, m1 | 4:2, m1 | 5:3, m1 | 6:3, m1, t1 | 7:3, m1, b1, t1 | 8:4, m1, b1, t1 | 9:4, m2, b1, t1 | "
     "10:4, m2, b1, t2 | 11:6, m2, b1, t2 | 12:6, m2, bf1, t2 | 13:6, m3, bf1, t2 | 14:8, m3, bf1, t2 | "
     "15:8, d1, m3, bf1, t2 | 16:8, d1, f, m3, bf1, t2 | 17:10, d1, f, m3, bf1, t3 | 18:10, d1, f, m4, bf1, t3 | "
     "19:10, d1, f, m4, bf2, t3 | 20:12, d1, f, m4, bf2, t3 | 21:12, d2, f, m4, bf2, t3 | 22:x2, d2, f, m5, bf2, t4 | "
     "23:x2, ls, d2, f, m5 | 24:x2, ls, d2, f, m6"},
    {"Foot, arch",
     "1:1, f | 2:2, f | 3:2, f, m1 | 4:3, f, m1 | 5:4, f, m1 | 6:6, f, m2 | 7:6, f, m3 | 8:8, f, m3, mt1 | "
     "9:10, f, m3, mt1 | 10:10, f, m4, mt1 | 11:x2, f, m4, mt2, pb | 12:x2, f, m5, mt2, pb | "
     "13:x2, d1, f, m5, mt2, pb | 14:x2, d1, f, m5, t1, mt2, pb | 15-16:x2, d1, f, m6, t1, mt2, pb | "
     "17:x2, d1, f, m6, t1, mt3, pb | 18:x2, d2, f, m7, t2, mt3, pb | 19:x2, d2, f, m8, t2, mt3, pb | "
     "20:x2, d2, f, m8, t2, mt4, pb | 21:x2, d3, f, m8, t3, mt4, pb | 22:x2, d3, f, m9, t3, mt4, pb | "
     "23:x2, d4, f, m9, b1, t3, mt5, pb | 24:x2, d4, f, m10, b1, t4, mt5, pb"},
    {"Ankle, inner",
     "1:1 | 2:1, f | 3:2, f | 4:2, f, m1 | 5:3, f, m2 | 6:4, f, m2, t1 | 7:6, f, m2, t1 | 8:6, f, m3, t1 | "
     "9:8, f, m4, t1 | 10:10, f, m4, t2 | 11:x2, f, m4, t2 | 12:x2, f, m4, t2, pb | 13:x2, d1, f, m5, t2, pb | "
     "14-15:x2, d1, f, m5, t3, pb | 16:x2, d2, f, m5, t3, pb | 17:x2, d2, f, m6, t3, pb | 18:x2, d3, f, m6, t3, pb | "
     "19:x2, d3, f, m7, t4, pb | 20:x2, d3, f, m7, b1, t4, pb | 21:x2, d4, f, m8, b1, t4, pb | "
     "22:x2, d4, f, m9, b1, t4, pb | 23:x2, d5, f, m9, b1, t5, pb | 24:x2, d6, f, m10, bf1, t5, pb"},
    {"Ankle, outer",
     "1:1 | 2:2 | 3:2, f | 4:3, f | 5:4, f, m1 | 6:4, f, m1, b1 | 7:6, f, m2, b1 | 8:8, f, m2, b1 | "
     "9:8, d1, f, m3, b1 | 10:8, d1, f, m4, b1, t1 | 11:10, d1, f, m4, b1, t1 | 12:x2, d1, f, m4, b1, t1 | "
     "13:x2, d1, f, m5, b1, t1 | 14:x2, d1, f, m5, b1, t2 | 15:x2, d2, f, m5, b1, t2 | 16-17:x2, d2, f, m6, bf1, t2 | "
     "18:x2, d2, f, m7, bf1, t2 | 19:x2, d3, f, m7, bf1, t2 | 20:x2, d3, f, m7, bf1, t3 | 21:x2, d3, f, m8, bf1, t3 | "
     "22:x2, d4, f, m8, bm1, t3, pb | 23:x2, d4, f, m9, bm1, t4, pb | 24:x2, d5, f, m9, bm1, t5, pb"},
    {"Ankle, upper/Achilles",
     "1:1 | 2:2, t1 | 3:2, m1, t1 | 4:3, f, m1, t1 | 5:4, f, m2, t1 | 6:6, f, m3, t1 | 7:6, f, m4, t2 | "
     "8:8, f, m4, t2 | 9:8, d1, f, m4, t2 | 10:x2, d1, f, m5, t2 | 11:x2, d1, f, m5, t3 | 12:x2, d2, f, m5, t3 | "
     "13-14:x2, d2, f, m6, t3 | 15:x2, d2, f, m6, t3, mt1 | 16:x2, d3, f, m6, t4, mt1 | 17:x2, d3, f, m7, t4, mt1 | "
     "18:x2, d3, f, m7, t4, mt2, pb | 19:x2, d4, f, m7, t4, mt2, pb | 20:x2, d4, f, m8, t5, mt2, pb | "
     "21:x2, d4, f, m9, t5, mt2, pb | 22:x2, d5, f, m9, b1, t5, mt2, pb | 23:x2, d5, f, m10, b1, t6, mt3, pb | "
     "24:x2, d6, f, m10, bf1, t6, mt3, pb"},
    {"Shin",
     "1:1 | 2:2 | 3:3 | 4:4 | 5:4, m1 | 6:6, m1 | 7:6, m2, mt1 | 8:8, m2, mt1 | 9:10, m3, mt1 | 10:10, m4, b1, mt1 | "
     "11:x2, m4, b1, mt1 | 12:x2, f, m4, b1, mt1 | 13:x2, f, m5, b1, mt2 | 14-15:x2, d1, f, m5, b1, mt2 | "
     "16:x2, d1, f, m6, b1, mt2, pb | 17:x2, d2, f, m6, b1, mt2, pb | 18:x2, d2, f, m6, bf1, mt3, pb | "
     "19:x2, d3, f, m7, bf1, mt3, pb | 20:x2, d3, f, m8, bf1, mt3, pb | 21:x2, d4, f, m8, bf1, mt3, pb | "
     "22:x2, d4, f, m9, bm1, mt4, pb | 23:x2, d5, f, m9, bm1, mt4, pb | 24:x2, d5, f, u, m10, bs1, mt4, pb"},
    {"Calf",
     "1:1 | 2:3 | 3:3, mt1 | 4:4, mt1 | 5:6, m1, mt1 | 6:8, m1, mt1 | 7:8, m2, mt1 | 8:10, m2, mt2 | 9:x2, m3, mt2 | "
     "10:x2, m4, mt2 | 11:x2, f, m4, mt2 | 12:x2, f, m4, mt3, pb | 13:x2, f, m5, mt3, pb | 14:x2, d1, f, m5, mt3, pb | "
     "15-16:x2, d1, f, m6, mt3, pb | 17:x2, d2, f, m6, mt4, pb | 18:x2, d2, f, m7, mt4, pb | "
     "19:x2, d3, f, m7, mt4, pb | 20:x2, d3, f, m7, s1, mt5, pb | 21:x2, d3, f, m8, s1, mt5, pb | "
     "22:x2, d4, f, m9, s1, mt5, pb | 23:x2, d5, f, m9, s2, mt6, pb | 24:x3, d5, f, m10, s2, mt6, pb"},
    {"Knee",
     "1:1, f | 2:1, f, m1 | 3:2, f, m1 | 4:3, f, m1, t1 | 5:4, f, m2, t1 | 6:4, f, m3, t1 | 7:6, f, m3, t1 | "
     "8:8, d1, f, m4, t1 | 9:8, d1, f, m4, t2 | 10:10, d1, f, m4, b1, t2 | 11:x2, d1, f, m5, b1, t2 | "
     "12:x2, d2, f, m5, b1, t2 | 13:x2, d2, f, m6, b1, t3 | 14:x2, d3, f, m6, b1, t3 | 15-16:x2, d3, f, m7, bf1, t3 | "
     "17:x2, d3, f, m7, bf1, t4 | 18:x2, d4, f, m7, bf1, t4 | 19:x2, d4, f, m8, bf1, t4 | 20:x2, d4, f, m8, bm1, t4 | "
     "21:x2, d5, f, m9, bm1, t4, pb | 22:x2, d5, f, m9, bm1, t5, pb | 23:x2, d6, f, m10, bm1, t5, pb | "
     "24:x3, d7, f, u, m10, bs1, t6, pb"},
    {"Knee, back",
     "1:1 | 2:2, f | 3:2, f, t1 | 4:3, f, t1 | 5:4, f, m1, t1 | 6:4, f, m2, t1, mt1 | 7:6, f, m2, t1, mt1 | "
     "8:6, f, m3, t1, mt1, pb | 9:8, f, m4, t1, mt1, pb | 10:8, d1, f, m4, t1, mt1, pb | "
     "11:x2, d1, f, m4, t2, mt1, pb | 12:x2, d1, f, m5, t2, mt1, pb | 13-14:x2, d2, f, m5, t2, mt2, pb | "
     "15:x2, d2, f, m6, t2, mt2, pb | 16:x2, d2, f, m6, t3, mt2, pb | 17:x2, d3, f, m6, t3, mt2, pb | "
     "18:x2, d3, f, m7, t3, mt2, pb | 19:x2, d3, f, m7, t4, mt3, pb | 20:x2, d4, f, m8, t4, mt3, pb | "
     "21:x2, d4, f, u, m8, t4, mt3, pb | 22:x2, d5, f, u, m8, t5, mt3, pb | 23:x2, d5, f, u, m9, b1, t5, mt3, pb | "
     "24:x3, d6, f, u, m10, b1, t5, mt4, pb"},
    {"Hamstring",
     "1:1 | 2:2 | 3:4 | 4:4, t1 | 5:6, m1, t1 | 6:6, m2, t1 | 7:8, f, m2, t1 | 8:8, f, m3, t1, mt1 | "
     "9:10, f, m4, t1, mt1 | 10:x2, f, m4, t1, mt1 | 11:x2, f, m5, t2, mt1 | 12:x2, d1, f, m5, t2, mt2 | "
     "13:x2, d1, f, m6, t2, mt2 | 14:x2, d1, f, m6, t2, mt2, pb | 15:x2, d2, f, m6, t2, mt3, pb | "
     "16:x2, d2, f, m6, t3, mt3, pb | 17:x2, d2, f, m7, t3, mt3, pb | 18-19:x2, d3, f, m7, t3, mt4, pb | "
     "20:x2, d4, f, m8, t3, mt4, pb | 21:x2, d4, f, m8, t4, mt5, pb | 22:x2, d5, f, m9, t4, mt5, pb | "
     "23:x2, d5, f, m10, s1, t5, mt5, pb | 24:x3, d6, f, m10, s2, t5, mt6, pb"},
    {"Thigh",
     "1:1 | 2:3 | 3:3, m1 | 4:6, m1 | 5:6, m2 | 6:6, f, m3 | 7:10, d1, f, m4 | 8-9:x2, d2, f, m4 | "
     "10-11:x2, d2, f, m5 | 12:x2, d2, f, m5, mt1 | 13:x2, d2, f, m5, mt2 | 14:x2, d3, f, m5, mt2 | "
     "15:x2, d3, f, m6, mt2 | 16:x2, d3, f, m6, mt3, pb | 17:x2, d3, f, m7, mt3, pb | 18:x2, d4, f, m7, mt3, pb | "
     "19:x2, d5, f, m7, mt4, pb | 20:x2, d6, f, m8, pb, b1 | 21:x2, d7, f, m8, pb, b1 | 22:x2, d7, f, m9, pb, bf1 | "
     "23:x3, d8, f, m9, pb, bm1 | 24:x3, d8, ls, u, m10"},
    {"Hip",
     "1:1 | 2:3 | 3:3, f | 4:4, f | 5:6, f | 6:6, f, m1 | 7:8, f, m1, b1 | 8:8, f, m3, b1 | 9:10, f, m4, b1 | "
     "10:x2, f, m4, b1 | 11:x2, f, m4, b1, t1 | 12:x2, d1, f, m5, b1, t1 | 13:x2, d1, f, m5, b1, t1, mt1 | "
     "14:x2, d1, f, m5, b1, t1, mt1, ib | 15-16:x2, d2, f, m6, b1, t1, mt1, ib | 17:x2, d2, f, m6, bf1, t2, mt1, ib | "
     "18:x2, d3, f, m6, bf1, t2, mt2, ib | 19:x2, d3, f, m7, bf1, t2, mt2, ib, pb | "
     "20:x2, d4, f, m7, bf1, t2, mt2, ib, pb | 21:x2, d4, f, m8, bf1, t3, mt2, ib, pb | "
     "22:x3, d5, f, m8, bm1, t3, mt3, ib, pb | 23:x3, d5, f, m9, bm1, t3, mt3, ib, pb | "
     "24:x3, d6, f, u, m10, bm1, t4, mt3, ib, pb"},
    {"Groin (Male only)",
     "1:1, f, h1 | 2:1, f, h1, m1 | 3:2, f, w, h1, m1 | 4:3, f, w, h1, m1 | 5:4, f, w, h2, m1 | 6:6, f, w, h2, m1 | "
     "7:6, f, w, h2, m2, mt1 | 8:8, f, w, h3, m2, mt1 | 9:10, f, w, h3, m2, mt1, pb | 10:x2, f, w, h3, m3, mt1, pb | "
     "11:x2, f, w, h4, m4, mt1, pb | 12:x2, f, u, w, h4, m4, mt2, pb | 13:x2, d1, f, u, w, h4, m4, mt2, pb | "
     "14:x2, d1, f, u, w, h5, m5, mt2, pb | 15:x2, d1, f, u, w, h5, m5, s1, mt2, pb | "
     "16:x2, d1, f, u, w, h6, m5, s1, mt3, pb | 17:x2, d2, f, u, w, h6, m6, s1, mt3, pb | "
     "18:x2, d2, f, u, w, h7, m6, s1, mt3, ib, pb | 19:x2, d2, f, u, w, h7, m7, s2, mt3, ib, pb | "
     "20:x2, d3, f, u, w, h8, m7, s2, mt3, ib, pb | 21:x3, d3, f, u, w, h8, m8, s2, mt4, ib, pb | "
     "22:x3, d3, f, u, w, h9, m8, s2, mt4, ib, pb | 23:x3, d4, f, u, w, h10, m9, s3, mt4, ib, pb | "
     "24:x3, d4, f, u, w, h12, m10, s3, mt5, ib, pb"},
    {"Buttock",
     "1:1 | 2:3 | 3:3, mt1 | 4:4, mt1 | 5:4, m1, mt1 | 6:6, m1, mt1 | 7:8, m1, mt1 | 8:8, m2, mt1 | 9:10, m2, mt2 | "
     "10:10, f, m2, mt2 | 11:12, f, m2, mt2 | 12:x2, f, m3, mt2 | 13:x2, f, m3, mt3 | 14:x2, f, m4, mt3 | "
     "15:x2, d1, f, m4, mt3 | 16:x2, d1, f, m5, mt3 | 17:x2, d1, f, m5, mt4, pb | 18:x2, d1, f, m5, b1, mt4, pb | "
     "19-20:x2, d2, f, m6, b1, mt4, pb | 21:x2, d2, f, m7, b1, mt5, pb | 22:x2, d3, f, m7, b1, mt5, ib, pb | "
     "23:x2, d3, f, m8, bf1, mt6, ib, pb | 24:x3, d4, f, u, m8, bf1, mt6, ib, pb"},
    {"Abdomen, lower",
     "1:1 | 2:2 | 3:4 | 4:4, f | 5:6, f | 6:8, f | 7:8, f, w | 8:x2, f, w | 9:x2, f, w, ib | 10:x2, f, w, m1, ib | "
     "11:x2, f, w, m1, s1, ib | 12:x2, f, w, m2, s1, v1 | 13:x2, d1, f, w, m2, s1, v1 | "
     "14:x2, d1, f, w, m2, s1, mt1, v1 | 15:x2, d1, f, w, m3, s1, mt1, v2 | 16:x2, d1, f, u, w, m3, s2, mt1, v2 | "
     "17:x2, d2, f, u, w, m4, s2, mt1, v2, pb | 18:x2, d2, f, u, w, m4, s2, mt2, v3, pb | "
     "19:x3, d2, f, u, w, m4, s3, mt2, v3, pb | 20:x3, d3, f, u, w, m5, s3, mt2, v3, pb | "
     "21:x3, d3, f, u, w, m5, s4, mt3, v4, pb | 22:x3, d4, f, u, w, m6, s4, mt3, v4, pb | "
     "23:run through the bowels and soured from inside | 24:gut pinned to the backbone like a moth to a board"},
    {"Side, lower",
     "1:1 | 2:3 | 3:4 | 4:6 | 5:6, mt1 | 6:8, mt1 | 7:8, f, mt1 | 8:10, f, mt1 | 9:x2, f, mt1, ib | "
     "10:x2, f, w, mt1, ib | 11:x2, f, w, s1, mt1, ib | 12:x2, f, w, m1, s1, mt1, v1 | "
     "13:x2, d1, f, w, m1, s1, mt2, v1 | 14:x2, d1, f, w, m2, s1, mt2, v1 | 15:x2, d1, f, w, m2, s1, mt2, v1, pb | "
     "16:x2, d1, f, w, m3, s1, b1, mt2, v1, pb | 17:x2, d2, f, w, m3, s2, b1, mt2, v2, pb | "
     "18:x2, d2, f, w, m4, s2, b1, mt2, v2, pb | 19:x2, d2, f, u, w, m4, s2, b1, mt3, v2, pb | "
     "20:x2, d3, f, u, w, m5, s2, b1, mt3, v3, pb | 21:x2, d3, f, u, w, m5, s3, b1, mt3, v3, pb | "
     "22:x3, d3, f, u, w, m6, s3, b1, mt4, v3, pb | 23:x3, d4, f, u, w, m6, s3, bf1, mt4, v4, pb | "
     "24:x3, d4, f, u, w, m7, s4, bf1, mt4, v5, pb"},
    {"Abdomen, upper",
     "1:1 | 2:2 | 3:2, f | 4:3, f | 5:4, f | 6:6, f, w | 7:8, f, w | 8:10, f, w, ib | 9:x2, f, w, ib | "
     "10:x2, f, w, s1, ib | 11:x2, d1, f, w, s1, ib | 12:x2, d1, f, w, s1, v1 | 13:x2, d1, f, w, m1, s1, v1 | "
     "14:x2, d1, f, w, m1, s2, v2 | 15:x2, d2, f, u, w, m2, s2, v2 | 16:x2, d2, f, u, w, m2, s2, v2, pb | "
     "17:x2, d2, f, u, w, m3, s2, mt1, v2, pb | 18:x3, d2, f, u, w, m3, s3, mt1, v3, pb | "
     "19:x3, d3, f, u, w, m3, s3, mt1, v3, pb | 20:x3, d3, f, u, w, m4, s3, mt2, v4, pb | "
     "21:x3, d4, f, u, w, m4, s4, mt2, v4, pb | 22:spleen pierced and the belly filled to the ribs | "
     "23:liver threaded on the shaft like meat on a skewer | 24:stomach and spine nailed together"},
    {"Back, small of",
     "1:1 | 2:2 | 3:4 | 4:6 | 5:6, f | 6:6, f, m1 | 7:8, f, m1, ib | 8:10, f, m1, ib | 9:x2, f, w, m2, ib | "
     "10:x2, f, w, m2, p, ib | 11:x2, d1, f, w, m3, p, ib | 12:x2, d1, f, w, m3, p, v1 | "
     "13:x2, d1, f, w, m4, b1, p, v1 | 14:x2, d2, f, w, m4, b1, p, v1 | 15:x2, d2, f, w, m4, s1, b1, p, v1, pb | "
     "16:x2, d2, f, w, m5, s1, b1, p, v2, pb | 17:x2, d3, f, w, m5, s1, b1, mt1, p, v2, pb | "
     "18:x2, d3, f, u, w, m6, s2, b1, mt1, p, v2, pb | 19:x3, d3, f, u, w, m6, s2, b1, mt1, p, v2, pb | "
     "20:x3, d4, f, u, w, m7, s2, bf1, mt1, p, v2, pb | 21:x3, d4, f, u, w, m8, s3, bf1, mt1, p, v3, pb | "
     "22:x3, d5, f, u, w, m8, s3, bf1, mt2, p, v3, pb | 23:x3, d5, f, u, w, m9, s4, bm1, mt2, p, v3, pb | "
     "24:x3, d6, f, u, w, m10, s4, bm1, mt2, p, v4, pb"},
    {"Back, lower",
     "1:1 | 2:3 | 3:4 | 4:4, f | 5:6, f | 6:6, f, mt1 | 7:8, f, mt1 | 8:8, f, m1, mt1 | 9:10, f, m2, mt1, ib | "
     "10:x2, f, m2, mt1, ib | 11:x2, f, m2, mt2, ib | 12:x2, f, m3, mt2, p, ib | 13:x2, d1, f, m3, mt2, p, ib | "
     "14:x2, d1, f, m4, s1, mt2, p, v1 | 15:x2, d1, f, w, m4, s1, mt2, p, v1 | "
     "16:x2, d1, f, w, m4, s1, b1, mt3, p, v1 | 17:x2, d2, f, w, m5, s1, b1, mt3, p, v1, pb | "
     "18:x2, d2, f, w, m5, s2, b1, mt3, p, v2, pb | 19:x2, d3, f, w, m6, s2, b1, mt3, p, v2, pb | "
     "20:x2, d3, f, u, w, m6, s2, b1, mt4, p, v2, pb | 21:x2, d3, f, u, w, m7, s3, b1, mt4, p, v3, pb | "
     "22:x3, d4, f, u, w, m7, s3, bf1, mt4, p, v3, pb | 23:x3, d4, f, u, w, m8, s4, bf1, mt5, p, v3, pb | "
     "24:x3, d5, f, u, w, m9, s5, bm1, mt5, p, v4, pb"},
    {"Chest",
     "1:1 | 2:2 | 3:4 | 4:6 | 5:8 | 6:8, f | 7:10, f | 8:x2, f | 9:x2, f, w, ib | 10:x2, f, w, mt1, ib | "
     "11:x2, f, w, b1, mt1, ib | 12:x2, f, w, b1, mt1, v1 | 13:x2, d1, f, w, b1, mt1, v1 | "
     "14:x2, d1, f, w, s1, b1, mt1, v2 | 15:x2, d1, f, w, s1, b1, mt2, v2, pb | 16:x3, d1, f, w, s1, b1, mt2, v2, pb | "
     "17:x3, d2, f, u, w, s2, b1, mt2, v2, pb | 18:x3, d2, f, u, w, s2, b1, mt2, v3, pb | "
     "19:x3, d3, f, u, w, s3, b1, mt2, v3, pb | 20:x3, d3, f, u, w, s3, bf1, mt3, v4, pb | "
     "21:x3, d4, f, u, w, s4, bf1, mt3, v5, pb | 22:both lungs skewered and the last word a whistle | "
     "23:heart split on the point like a ripe fig | 24:heart carried out through the back"},
    {"Side, upper",
     "1:1 | 2:2 | 3:3 | 4:4 | 5:6 | 6:6, ws | 7:8, ws | 8:8, ws, ib | 9:10, ws, ib | 10:x2, ws, ib | "
     "11:x2, w, mt1, ib | 12:x2, f, w, mt1, ib | 13:x2, f, w, mt1, v1 | 14:x2, f, w, b1, mt1, v1 | "
     "15:x2, d1, f, w, b1, mt1, v1 | 16:x2, d1, f, w, b1, mt1, v2 | 17:x2, d1, f, w, b1, mt2, v2, pb | "
     "18-19:x2, d1, f, w, s1, b1, mt2, v2, pb | 20:x2, d2, f, u, w, s1, b1, mt2, v2, pb | "
     "21:x2, d2, f, u, w, s2, b2, mt2, v3, pb | 22:x3, d2, f, u, w, s2, b2, mt3, v3, pb | "
     "23:x3, d3, f, u, w, s3, b2, mt3, v4, pb | 24:x3, d4, f, u, w, s3, bf2, mt3, v4, pb"},
    {"Back, upper",
     "1:1 | 2:2 | 3:4 | 4:4, ws | 5:6, ws | 6:6, ws, b1 | 7:8, ws, b1 | 8:10, f, ws, b1 | 9:x2, f, ws, b1 | "
     "10:x2, f, w, b1, mt1 | 11:x2, f, w, b1, mt1, ib | 12:x2, d1, f, w, b1, mt1, ib | "
     "13:x2, d1, f, w, s1, b1, mt1, ib | 14:x2, d1, f, w, s1, b1, mt2, v1 | 15:x2, d2, f, w, s1, b1, mt2, v1 | "
     "16:x2, d2, f, w, s2, b1, mt2, v1 | 17:x2, d2, f, w, s2, b1, mt2, p, v1, pb | "
     "18:x2, d2, f, w, s2, b2, mt3, p, v1, pb | 19:x2, d3, f, w, s2, b2, mt3, p, v2, pb | "
     "20:x2, d3, f, u, w, s3, b2, mt3, p, v2, pb | 21:x3, d3, f, u, w, s3, bf1, mt3, p, v2, pb | "
     "22:x3, d4, f, u, w, s3, bf1, mt4, p, v3, pb | 23:x3, d4, f, u, w, s4, bf2, mt4, p, v3, pb | "
     "24:x3, d5, f, u, w, s4, bm1, mt5, p, v4, pb"},
    {"Back, upper middle",
     "1:1 | 2:3 | 3:3, f | 4:4, f | 5:6, f | 6:6, f, w | 7:8, f, w, p | 8:8, d1, f, w, p | 9:x2, d1, f, w, p | "
     "10:x2, d1, f, w, p, ib | 11:x2, d2, f, w, p, ib | 12:x2, d2, f, w, b1, p, ib | 13:x2, d2, f, w, b1, p, v1 | "
     "14:x2, d2, f, w, s1, b1, p, v1 | 15:x2, d3, f, w, s1, b1, p, v1 | 16:x2, d3, f, u, w, s1, b1, p, v1 | "
     "17:x2, d3, f, u, w, s2, b1, p, v2, pb | 18:x3, d4, f, u, w, s2, b1, p, v2, pb | "
     "19:x3, d4, f, u, w, s2, bf1, p, v2, pb | 20:x3, d5, f, u, w, s3, bf1, p, v3, pb | "
     "21:x3, d5, f, u, w, s3, bf1, mt1, p, v3, pb | 22:x3, d6, f, u, w, s4, bf1, mt1, p, v3, pb | "
     "23:x3, d7, f, u, w, s4, bm1, mt1, p, v4, pb | 24:x3, d8, f, u, w, s5, bm1, mt2, p, v5, pb"},
    {"Armpit",
     "1:1 | 2:2 | 3:3, w | 4:4, w | 5:6, w | 6:6, w, a1 | 7:8, w, a1, t1 | 8:8, w, a1, t1, pb | "
     "9:10, d1, w, a1, t1, pb | 10:x2, d1, w, a1, t1, pb | 11:x2, d1, w, a2, t1, pb | 12:x2, d1, w, a2, t1, mt1, pb | "
     "13:x2, d2, w, a2, t2, mt1, pb | 14:x2, d2, f, w, a2, t2, mt1, pb | 15:x2, d2, f, w, a2, t2, mt1, ib, pb | "
     "16:x2, d2, f, w, a3, t2, mt1, ib, pb | 17:x2, d3, f, w, a3, t3, mt1, ib, pb | "
     "18:x2, d3, f, w, a3, s1, t3, mt2, ib, pb | 19:x2, d4, f, w, a4, s1, t3, mt2, v1, pb | "
     "20:x2, d4, f, u, w, a4, s1, t3, mt2, v1, pb | 21:x3, d4, f, u, w, a4, s2, t4, mt2, v1, pb | "
     "22:x3, d5, f, u, w, a5, s2, t4, mt2, v2, pb | 23:x3, d5, f, u, w, a5, s2, b1, t4, mt3, v2, pb | "
     "24:x3, d6, f, u, w, a6, s3, b1, t5, mt3, v3, pb"},
    {"Arm, upper outer",
     "1:1 | 2:3 | 3:3, ws | 4:4, ws | 5:4, ws, mt1 | 6:6, ws, mt1 | 7:6, w, mt1 | 8:8, w, mt1 | 9:10, w, mt2 | "
     "10:x2, w, mt2 | 11:x2, w, a1, mt2 | 12:x2, w, a1, b1, mt2 | 13:x2, d1, w, a1, b1, mt2 | "
     "14:x2, d1, w, a1, b1, mt3 | 15:x2, d1, w, a2, b1, mt3 | 16:x2, d1, w, a2, s1, b1, mt3 | "
     "17:x2, d2, w, a2, s1, b1, mt3, pb | 18:x2, d2, w, a3, s1, b1, mt3, pb | 19:x2, d2, w, a3, s1, b1, mt4, pb | "
     "20:x2, d3, w, a3, s2, bf1, mt4, pb | 21:x2, d3, w, a4, s2, bf1, mt4, pb | 22:x2, d4, w, a4, s2, bf1, mt5, pb | "
     "23:x2, d4, f, w, a5, s3, bm1, mt5, pb | 24:x2, d5, f, w, a5, s3, bm1, mt6, pb"},
    {"Arm, upper inner",
     "1:1 | 2:1, ws | 3:2, w | 4:3, w | 5:4, w | 6:6, w, pb | 7:6, d1, w, pb | 8:8, d1, w, pb | 9:8, d1, w, a1, pb | "
     "10:10, d1, w, a1, mt1, pb | 11:x2, d1, w, a1, mt1, pb | 12:x2, d2, w, a1, mt1, pb | 13:x2, d2, w, a2, mt1, pb | "
     "14:x2, d2, w, a2, mt2, pb | 15:x2, d3, w, a2, mt2, pb | 16:x2, d3, w, a3, mt2, pb | "
     "17:x2, d3, f, w, a3, mt2, pb | 18:x2, d3, f, w, a3, s1, mt3, pb | 19:x2, d4, f, w, a3, s1, mt3, pb | "
     "20:x2, d4, f, w, a4, s1, mt3, pb | 21:x2, d4, f, u, w, a4, s1, mt3, pb | 22:x2, d5, f, u, w, a4, s2, mt4, pb | "
     "23:x2, d5, f, u, w, a5, s2, b1, mt4, pb | 24:x2, d6, f, u, w, a6, s2, b1, mt5, pb"},
    {"Elbow",
     "1:1, ws | 2:1, w | 3:2, w | 4:2, d1, w | 5:3, d1, w | 6:4, d1, w, t1 | 7:4, d1, w, b1, t1 | 8:6, d1, w, b1, t1 | "
     "9:8, d1, w, a1, b1, t1 | 10:8, d2, w, a1, b1, t1 | 11:10, d2, w, a1, b1, t1 | 12:x2, d2, w, a1, b1, t2 | "
     "13:x2, d2, w, a2, b1, t2 | 14:x2, d3, w, a2, b1, t2 | 15:x2, d3, w, a2, bf1, t2 | 16:x2, d3, w, a3, bf1, t3 | "
     "17:x2, d4, w, a3, bf1, t3 | 18:x2, d4, w, a3, s1, bf1, t3 | 19:x2, d4, w, a4, s1, bf1, t3, mt1 | "
     "20:x2, d5, w, a4, s1, bf1, t4, mt1 | 21:x2, d5, w, a4, s1, bm1, t4, mt1, pb | "
     "22:x2, d5, w, a5, s2, bm1, t4, mt1, pb | 23:x2, d6, w, a5, s2, bm1, t5, mt1, pb | "
     "24:x2, d7, f, w, a6, s2, bs1, t5, mt2, pb"},
    {"Inner joint",
     "1:1 | 2:2 | 3:2, w | 4:3, w, t1 | 5:4, w, t1 | 6:4, w, t1, pb | 7:6, w, t1, pb | 8:6, w, a1, t1, pb | "
     "9:8, w, a1, t2, pb | 10:10, w, a1, t2, pb | 11:10, d1, w, a1, t2, pb | 12:x2, d1, w, a1, t2, pb | "
     "13:x2, d1, w, a2, t2, pb | 14:x2, d1, w, a2, t3, pb | 15:x2, d2, w, a2, t3, pb | 16:x2, d2, w, a2, t3, mt1, pb | "
     "17:x2, d2, w, a3, t3, mt1, pb | 18:x2, d3, w, a3, t4, mt1, pb | 19:x2, d3, w, a3, s1, t4, mt1, pb | "
     "20:x2, d3, w, a4, s1, t4, mt2, pb | 21:x2, d4, w, a4, s1, t4, mt2, pb | 22:x2, d4, f, w, a4, s1, t5, mt2, pb | "
     "23:x2, d5, f, w, a5, s2, t5, mt2, pb | 24:x2, d5, f, u, w, a5, s2, b1, t6, mt3, pb"},
    {"Forarm, back",
     "1:1 | 2:2 | 3:3 | 4:4 | 5:4, ws | 6:6, ws | 7:6, ws, b1 | 8:8, ws, b1 | 9:8, w, b1 | 10:10, w, b1, mt1 | "
     "11:12, w, a1, b1, mt1 | 12:x2, w, a1, b1, mt1 | 13:x2, w, a1, b1, mt2 | 14:x2, d1, w, a1, b1, mt2 | "
     "15:x2, d1, w, a2, b1, mt2 | 16:x2, d1, w, a2, b2, mt2 | 17:x2, d1, w, a2, b2, mt3 | 18:x2, d2, w, a2, bf1, mt3 | "
     "19:x2, d2, w, a3, bf1, mt3, pb | 20:x2, d2, w, a3, s1, bf1, mt3, pb | 21:x2, d3, w, a3, s1, bf1, mt4, pb | "
     "22:x2, d3, w, a4, s1, bf2, mt4, pb | 23:x2, d4, w, a4, s2, bm1, mt4, pb | 24:x2, d4, w, a5, s2, bm1, mt5, pb"},
    {"Forarm, inner",
     "1:1 | 2:2 | 3:2, ws | 4:3, ws | 5:4, ws | 6:6, w | 7:6, w, mt1 | 8:8, w, mt1, pb | 9:8, w, a1, mt1, pb | "
     "10:10, w, a1, mt1, pb | 11:x2, w, a1, mt1, pb | 12:x2, w, a1, mt2, pb | 13:x2, d1, w, a1, mt2, pb | "
     "14:x2, d1, w, a2, mt2, pb | 15:x2, d1, w, a2, mt3, pb | 16:x2, d2, w, a2, mt3, pb | 17:x2, d2, w, a3, mt3, pb | "
     "18:x2, d2, w, a3, s1, mt3, pb | 19:x2, d3, w, a3, s1, mt3, pb | 20:x2, d3, w, a3, s1, mt4, pb | "
     "21:x2, d3, w, a4, s1, mt4, pb | 22:x2, d4, w, a4, s2, b1, mt4, pb | 23:x2, d4, w, a5, s2, b1, mt5, pb | "
     "24:x2, d5, f, w, a5, s2, b1, mt5, pb"},
    {"Wrist, back",
     "1:1 | 2:1, ws | 3:2, ws | 4:2, w | 5:3, w, t1 | 6:3, w, b1, t1 | 7:4, w, b1, t1 | 8:4, w, a1, b1, t1 | "
     "9:6, w, a1, b1, t1 | 10:6, d1, w, a1, b1, t1 | 11:8, d1, w, a1, b1, t2 | 12:10, d1, w, a1, b1, t2 | "
     "13:x2, d1, w, a1, b1, t2 | 14:x2, d1, w, a2, b1, t2 | 15:x2, d2, w, a2, b1, t2 | 16:x2, d2, w, a2, b2, t3 | "
     "17:x2, d2, w, a3, b2, t3 | 18:x2, d3, w, a3, bf1, t3 | 19:x2, d3, w, a3, bf2, t3 | 20:x2, d3, w, a4, bf2, t4 | "
     "21:x2, d4, w, a4, bf2, t4 | 22:x2, d4, w, a5, bm1, t4, pb | 23:x2, d5, w, a5, bm2, t5, pb | "
     "24:x2, d6, w, a6, bm2, t5, pb"},
    {"Wrist, front",
     "1:1, w | 2:1, w, t1 | 3:2, w, t1 | 4:3, w, t1 | 5:3, w, t1, pb | 6:4, w, t1, pb | 7:4, d1, w, t1, pb | "
     "8:4, d1, w, a1, t1, pb | 9:6, d1, w, a1, t1, pb | 10:6, d1, w, a1, t2, pb | 11:8, d1, w, a1, t2, pb | "
     "12:8, d2, w, a1, t2, pb | 13:10, d2, w, a2, t2, pb | 14-15:x2, d2, w, a2, t3, pb | 16:x2, d3, w, a2, t3, pb | "
     "17:x2, d3, w, a3, t3, pb | 18:x2, d3, w, a3, t4, pb | 19:x2, d3, w, a3, b1, t4, pb | "
     "20:x2, d4, w, a3, b1, t4, pb | 21:x2, d4, w, a4, b1, t5, pb | 22:x2, d5, f, w, a4, b1, t5, pb | "
     "23:x2, d5, f, w, a5, bf1, t5, pb | 24:x2, d6, f, u, w, a5, bf1, t6, pb"},
    {"Hand, back",
     "1:1 | 2:1, w | 3:2, w | 4:3, w | 5:3, w, t1 | 6:4, w, t1 | 7:4, d1, w, t1 | 8:6, d1, w, t1 | "
     "9:6, d1, w, b1, t1 | 10:8, d1, w, b1, t1 | 11:8, d1, w, b1, t2 | 12:10, d1, w, a1, b1, t2 | "
     "13:10, d2, w, a1, b1, t2 | 14:x2, d2, w, a1, b1, t2 | 15:x2, d2, w, a2, b2, t2 | 16:x2, d2, w, a2, b2, t3, mt1 | "
     "17:x2, d3, w, a2, b2, t3, mt1 | 18:x2, d3, w, a3, b2, t3, mt1 | 19:x2, d3, w, a3, b2, t4, mt1 | "
     "20:x2, d4, w, a3, b2, t4, mt1 | 21:x2, d4, w, a4, bf2, t4, mt1 | 22:x2, d5, w, a4, bf2, t4, mt2 | "
     "23:x2, d5, w, a5, bf2, t5, mt2, pb | 24:x2, d6, w, a5, bm2, t5, mt2, pb"},
    {"Palm",
     "1:1, w | 2:2, w | 3:2, d1, w | 4:3, d1, w | 5:3, d1, w, mt1 | 6:4, d1, w, mt1 | 7:4, d1, w, t1, mt1 | "
     "8:6, d1, w, t1, mt1 | 9:6, d1, w, a1, t1, mt1 | 10:6, d1, w, a1, t2, mt1 | 11:8, d1, w, a1, t2, mt1 | "
     "12:8, d2, w, a1, t2, mt1 | 13:10, d2, w, a1, t2, mt2 | 14:12, d2, w, a1, t2, mt2 | 15:x2, d2, w, a2, t2, mt2 | "
     "16:x2, d2, w, a2, t3, mt2 | 17:x2, d3, w, a2, t3, mt2 | 18:x2, d3, w, a2, b1, t3, mt2 | "
     "19:x2, d3, w, a3, b1, t3, mt3 | 20:x2, d4, w, a3, b1, t4, mt3 | 21:x2, d4, w, a3, b1, t4, mt3, pb | "
     "22:x2, d5, w, a4, b1, t4, mt3, pb | 23:x2, d5, w, a4, b2, t5, mt4, pb | 24:x2, d6, w, a5, b2, t5, mt4, pb"},
    {"Finger(s)",
     "1:1 | 2:1, ws | 3:1, w | 4:1, w, t1 | 5:2, w, t1 | 6:2, d1, w, t1 | 7:3, d1, w, t1 | 8:3, d1, w, b1, t1 | "
     "9:3, d1, w, b1, t2 | 10:4, d1, w, b1, t2 | 11:4, d2, w, b1, t2 | 12:4, d2, w, bf1, t2 | 13:6, d2, w, bf1, t2 | "
     "14:6, d2, w, a1, bf1, t2 | 15:6, d2, w, a1, bf1, t3 | 16:8, d2, w, a1, bf1, t3 | 17:8, d3, w, a1, bf1, t3 | "
     "18:8, d3, w, a1, bf2, t3 | 19:10, d3, w, a2, bf2, t3 | 20:10, d3, w, a2, bf2, t4 | 21:12, d4, w, a2, bf2, t4 | "
     "22:x2, d4, w, a2, bm2, t4 | 23:x2, ls, d4, w, a3 | 24:x2, ls, d5, w, a4"},
    {"Shoulder, side",
     "1:1 | 2:3 | 3:4 | 4:4, ws | 5:6, ws | 6:6, ws, t1 | 7:8, ws, t1 | 8:10, w, t1 | 9:10, w, a1, t1 | "
     "10:x2, w, a1, t1 | 11:x2, w, a1, b1, t1 | 12:x2, d1, w, a1, b1, t1 | 13:x2, d1, w, a1, b1, t2 | "
     "14:x2, d1, w, a2, b1, t2 | 15:x2, d1, w, a2, b1, t2, mt1 | 16:x2, d2, w, a2, b1, t2, mt1 | "
     "17:x2, d2, w, a2, b1, t2, mt1, pb | 18:x2, d2, w, a3, b1, t3, mt1, pb | 19:x2, d3, w, a3, s1, b1, t3, mt1, pb | "
     "20:x2, d3, f, w, a3, s1, bf1, t3, mt2, pb | 21:x2, d3, f, w, a4, s1, bf1, t3, mt2, pb | "
     "22:x2, d4, f, w, a4, s2, bf1, t4, mt2, pb | 23:x2, d4, f, w, a4, s2, bm1, t4, mt3, pb | "
     "24:x2, d5, f, u, w, a5, s3, bm1, t5, mt3, pb"},
    {"Shoulder, top",
     "1:1 | 2:2 | 3:3 | 4:4, ws | 5:4, ws, mt1 | 6:6, w, mt1 | 7:8, w, mt1 | 8:8, w, a1, mt1 | 9:x2, w, a1, mt1 | "
     "10:x2, f, w, a1, mt1 | 11:x2, f, w, a1, mt2 | 12:x2, f, w, a1, mt2, pb | 13:x2, d1, f, w, a1, mt2, pb | "
     "14:x2, d1, f, w, a2, mt2, pb | 15:x2, d1, f, w, a2, b1, mt2, pb | 16:x2, d1, f, w, a2, b1, mt3, pb | "
     "17:x2, d2, f, w, a2, b1, mt3, pb | 18:x2, d2, f, w, a3, s1, b1, mt3, pb | 19:x2, d3, f, w, a3, s1, b1, mt3, pb | "
     "20:x2, d3, f, w, a3, s1, bf1, t1, mt3, pb | 21:x2, d3, f, u, w, a4, s2, bf1, t1, mt4, pb | "
     "22:x2, d4, f, u, w, a4, s2, bf1, t1, mt4, pb | 23:x3, d4, f, u, w, a5, s2, bm1, t2, mt4, pb | "
     "24:x3, d5, f, u, w, a5, s3, bm1, t2, mt5, pb"},
    {"Neck, front",
     "1:1 | 2:2 | 3:4, w | 4:6, w | 5:6, f, w | 6:8, f, w | 7:10, f, w, pb | 8:x2, f, w, pb | 9:x2, f, w, a1, pb | "
     "10:x2, d1, f, w, a1, pb | 11:x2, d1, f, w, a1, mt1, pb | 12:x2, d1, f, u, w, a1, mt1, pb | "
     "13:x2, d2, f, u, w, a1, mt1, pb | 14:x2, d2, f, u, w, a2, mt1, pb | 15:x3, d2, f, u, w, a2, mt2, pb | "
     "16:x3, d2, f, u, w, a2, mt2, ib, pb | 17:x3, d3, f, u, w, a2, mt2, ib, pb | "
     "18:x3, d3, f, u, w, a3, s1, mt2, ib, pb | 19:x3, d4, f, u, w, a3, s1, mt2, ib, pb | "
     "20:x3, d4, f, u, w, a4, s2, mt3, ib, pb | 21:x3, d5, f, u, w, a4, s2, mt3, ib, pb | "
     "22:apple of the throat cored and the war cry a gargle | 23:windpipe and backbone threaded on one shaft | "
     "24:chin nailed to the breastbone"},
    {"Neck, back",
     "1:1 | 2:2 | 3:3, w | 4:4, w | 5:6, w | 6:6, f, w, p | 7:8, f, w, p | 8:8, d1, f, w, p | 9:x2, d1, f, w, p | "
     "10:x2, d2, f, w, p | 11:x2, d2, f, w, mt1, p | 12:x2, d2, f, u, w, mt1, p | 13:x2, d3, f, u, w, mt1, p | "
     "14:x2, d3, f, u, w, b1, mt1, p | 15:x2, d4, f, u, w, b1, mt1, p | 16:x3, d4, f, u, w, b1, mt1, p | "
     "17:x3, d4, f, u, w, s1, b1, mt1, p, pb | 18:x3, d5, f, u, w, s1, b1, mt2, p, pb | "
     "19:x3, d6, f, u, w, s2, b1, mt2, p, pb | 20:x3, d6, f, u, w, s2, bf1, mt2, p, pb | "
     "21:x3, d7, f, u, w, s3, bf1, mt2, p, pb | 22:x3, d8, f, u, w, s4, bm1, mt2, p, pb | "
     "23:pith of the spine picked out like a winkle | 24:point comes out of the mouth like a second tongue"},
    {"Neck, side",
     "1:1 | 2:3 | 3:4 | 4:4, w | 5:6, w, pb | 6:8, w, pb | 7:8, f, w, pb | 8:10, f, w, pb | 9:x2, f, w, pb | "
     "10:x2, f, w, mt1, pb | 11:x2, d1, f, w, mt1, pb | 12:x2, d1, f, w, a1, mt1, pb | "
     "13:x2, d1, f, u, w, a1, mt1, pb | 14:x2, d1, f, u, w, a1, mt2, pb | 15:x2, d2, f, u, w, a1, mt2, pb | "
     "16:x2, d2, f, u, w, a2, mt2, pb | 17:x3, d2, f, u, w, a2, mt2, pb | 18:x3, d3, f, u, w, a2, s1, mt2, pb | "
     "19:x3, d3, f, u, w, a3, s1, mt3, pb | 20:x3, d3, f, u, w, a3, s1, mt3, ib, pb | "
     "21:x3, d4, f, u, w, a3, s2, mt3, ib, pb | 22:both great veins opened with one thrust | "
     "23:gullet stitched to the far side of the neck | 24:neck spitted crosswise like a dove on a twig"},
    {"Head, side",
     "1:1 | 2:3 | 3:4 | 4:6 | 5:8, a1 | 6:8, a1, mc | 7:10, a1, mc | 8:x2, a1, mc | 9:x2, f, a1, mc | "
     "10:x2, f, w, a1, mc | 11:x2, f, w, a1, b1, mc | 12:x2, d1, f, w, a1, b1, mc | 13:x2, d1, f, u, w, a1, b1, mc | "
     "14:x2, d1, f, u, w, a2, b1, sc | 15:x2, d1, f, u, w, a2, b1, sc, pb | 16:x3, d1, f, u, w, a2, b1, sc, pb | "
     "17:x3, d2, f, u, w, a2, b1, sc, pb | 18:x3, d2, f, u, w, a3, b1, sc, pb | 19:x3, d3, f, u, w, a3, b1, sc, pb | "
     "20:x3, d3, f, u, w, a3, bf1, sc, pb | 21:x3, d4, f, u, w, a4, bf1, sc, pb | "
     "22:in at one ear and out at the other | 23:temple punched through and all wits let out | "
     "24:head left on the shaft like an apple on a stick"},
    {"Head, back lower",
     "1:1 | 2:2, f | 3:3, f | 4:4, f | 5:6, f | 6:6, f, mc | 7:8, f, mc | 8:8, d1, f, mc | 9:x2, d1, f, mc | "
     "10:x2, d2, f, w, mc | 11:x2, d2, f, u, w, mc | 12:x2, d2, f, u, w, sc | 13:x2, d2, f, u, w, b1, sc | "
     "14:x2, d3, f, u, w, b1, sc | 15:x2, d3, f, u, w, b1, sc, pb | 16:x3, d3, f, u, w, b1, sc, pb | "
     "17:x3, d4, f, u, w, b1, sc, pb | 18:x3, d4, f, u, w, s1, b1, sc, pb | 19:x3, d5, f, u, w, s1, b1, sc, pb | "
     "20:x3, d5, f, u, w, s1, bf1, sc, pb | 21:x3, d6, f, u, w, s2, bf1, sc, pb | "
     "22:x3, d7, f, u, w, s2, bf1, sc, pb | 23:thread of life cut where the skull sits | "
     "24:point looks out between the eyes"},
    {"Face, lower side",
     "1:1 | 2:2 | 3:3, a1 | 4:4, a1 | 5:4, a1, mt1 | 6:6, a1, mt1 | 7:8, a1, mt1 | 8:8, a1, b1, mt1 | "
     "9:10, a1, b1, mt1 | 10:10, f, a1, b1, mt1 | 11:x2, f, a1, b1, mt1 | 12:x2, f, a2, b1, mt1 | "
     "13:x2, f, a2, b1, mt2 | 14:x2, f, u, a2, b1, mt2 | 15:x2, d1, f, u, a2, b1, mt2 | 16:x2, d1, f, u, a3, b1, mt2 | "
     "17:x2, d1, f, u, a3, b1, mt2, pb | 18:x2, d1, f, u, a3, b1, mt3, mc, pb | 19:x2, d2, f, u, a4, b1, mt3, mc, pb | "
     "20:x2, d2, f, u, a4, bf1, mt3, mc, pb | 21:x3, d2, f, u, a4, bf1, mt3, mc, pb | "
     "22:x3, d3, f, u, a5, bf1, mt4, mc, pb | 23:cheeks pinned together with the tongue between | "
     "24:jaw hinge pierced and the brain stirred"},
    {"Face, lower center",
     "1:1 | 2:3 | 3:3, a1 | 4:4, a1, b1 | 5:6, a1, b1 | 6:6, a1, b2 | 7:8, f, a1, b2 | 8:10, f, a1, b2 | "
     "9:x2, f, a1, b2 | 10:x2, f, a2, b2 | 11:x2, f, w, a2, b2 | 12:x2, f, w, a2, b2, mt1 | "
     "13:x2, f, u, w, a2, b2, mt1 | 14:x2, d1, f, u, w, a2, b2, mt1 | 15:x2, d1, f, u, w, a3, b2, mt1, pb | "
     "16:x2, d1, f, u, w, a3, b2, mt1, mc, pb | 17:x2, d2, f, u, w, a3, b2, mt2, mc, pb | "
     "18:x3, d2, f, u, w, a3, b3, mt2, mc, pb | 19:x3, d2, f, u, w, a4, b3, mt2, mc, pb | "
     "20:x3, d3, f, u, w, a4, bf1, mt2, mc, pb | 21:x3, d3, f, u, w, a4, bf2, mt2, sc, pb | "
     "22:x3, d4, f, u, w, a5, bf2, mt3, sc, pb | 23:tongue nailed to the back of the skull | "
     "24:swallows the blade to the hilt and dies of it"},
    {"Head, back upper",
     "1:1 | 2:2 | 3:4 | 4:6 | 5:6, f | 6:8, f | 7:8, f, mc | 8:x2, f, mc | 9:x2, f, w, mc | 10:x2, f, w, b1, mc | "
     "11:x2, f, u, w, b1, mc | 12:x2, d1, f, u, w, b1, mc | 13:x2, d1, f, u, w, b1, sc | 14:x2, d2, f, u, w, b1, sc | "
     "15:x3, d2, f, u, w, b1, sc | 16:x3, d2, f, u, w, b1, sc, pb | 17:x3, d3, f, u, w, b1, sc, pb | "
     "18:x3, d3, f, u, w, s1, b1, sc, pb | 19:x3, d4, f, u, w, s1, b1, sc, pb | 20:x3, d4, f, u, w, s1, bf1, sc, pb | "
     "21:x3, d5, f, u, w, s2, bf1, sc, pb | 22:last sight on earth is the point coming out ahead | "
     "23:memory let out through a neat round hole | 24:skull cored from back to front"},
    {"Face, upper side",
     "1:1 | 2:2, a1 | 3:3, a2 | 4:4, a2 | 5:6, a3 | 6:6, f, a3 | 7:8, f, a3 | 8:8, f, a4 | 9:10, f, a4 | "
     "10:x2, f, a4 | 11:x2, f, a4, mc | 12:x2, f, a5, mc | 13:x2, f, u, a5, mc | 14:x2, f, u, a5, b1, mc | "
     "15:x2, d1, f, u, a5, b1, mc | 16:x2, d1, f, u, a6, b1, sc | 17:x2, d1, f, u, a6, b1, sc, pb | "
     "18:x3, d1, f, u, a6, b1, mt1, sc, pb | 19:x3, d2, f, u, a7, b1, mt1, sc, pb | "
     "20:x3, d2, f, u, a7, bf1, mt1, sc, pb | 21:x3, d3, f, u, a8, bf1, mt1, sc, pb | "
     "22:eye put out and the mind behind it likewise | 23:cheekbone holed and the point lodged behind the nose | "
     "24:one eye in front and the other on the point behind"},
    {"Face, upper center",
     "1:1 | 2:3, a1 | 3:4, a1 | 4:6, a2 | 5:8, a2 | 6:8, f, a2 | 7:10, f, a3 | 8:x2, f, a3 | 9:x2, f, u, a3 | "
     "10:x2, f, u, a4 | 11:x2, f, u, a4, mc | 12:x2, d1, f, u, a4, mc | 13:x2, d1, f, u, a4, b1, mc | "
     "14:x2, d1, f, u, w, a5, b1, mc | 15:x3, d1, f, u, w, a5, b1, sc | 16:x3, d2, f, u, w, a5, b1, sc | "
     "17:x3, d2, f, u, w, a5, b1, sc, pb | 18:x3, d2, f, u, w, a6, b1, sc, pb | 19:x3, d3, f, u, w, a6, b1, sc, pb | "
     "20:x3, d3, f, u, w, a7, bf1, sc, pb | 21:x3, d4, f, u, w, a8, bf1, sc, pb | "
     "22:third eye opened right between the other two | 23:pierced between the brows and dead before the blink | "
     "24:brow and nape joined by one straight line"},
    {"Head, top",
     "1:1 | 2:3 | 3:4, f | 4:6, f | 5:8, f | 6:8, f, mc | 7:10, f, mc | 8:x2, f, u, mc | 9:x2, f, u, w, mc | "
     "10:x2, f, u, w, b1, mc | 11:x2, d1, f, u, w, b1, mc | 12:x2, d1, f, u, w, b1, sc | 13:x2, d2, f, u, w, b1, sc | "
     "14:x3, d2, f, u, w, b1, sc | 15:x3, d2, f, u, w, b1, sc, pb | 16:x3, d3, f, u, w, b1, sc, pb | "
     "17:x3, d3, f, u, w, s1, b1, sc, pb | 18:x3, d4, f, u, w, s1, b1, sc, pb | 19:x3, d4, f, u, w, s1, bf1, sc, pb | "
     "20:x3, d5, f, u, w, s2, bf1, sc, pb | 21:x3, d6, f, u, w, s2, bf1, sc, pb | "
     "22:crown pierced down to the palate | 23:spiked from crown to chin like a note on a nail | "
     "24:brain pinned in place in the middle of a thought"},
}};
// clang-format on

constexpr CriticalHitIndex kPuncturingIndex = ReadCriticalHits(kPuncturingHits, 0);

}  // namespace veld
