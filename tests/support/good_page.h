#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/layout.h"

namespace veld::testing {

inline bool Overlap(const PageRect& a, const PageRect& b) {
  return a.X < b.Right() && b.X < a.Right() && a.Y < b.Bottom() && b.Y < a.Bottom();
}

/// What holds for every page: nothing overlaps, all is on the page, every line stands on a rule.
inline void ExpectGoodPage(const Form& form, const PageLayout& page, const PageMetrics& m) {
  std::vector<PageRect> areas;
  if (m.CornerWidth > 0) areas.push_back(page.Corner);
  for (const PlacedControl& placed : page.Controls) {
    const std::string which =
        form.Controls()[placed.Control].Text + "/" + std::to_string(form.Controls()[placed.Control].Template.Id);
    const PageRect& area = placed.Area;
    EXPECT_EQ((placed.Baseline - m.MarginTop - m.Baseline) % m.Pitch, 0) << which;
    EXPECT_GE(area.X, m.MarginLeft) << which;
    EXPECT_GE(area.Y, 0) << which;
    EXPECT_LE(area.Right(), page.Page.Width - m.MarginRight) << which;
    EXPECT_LE(area.Bottom(), page.Page.Height) << which;
    EXPECT_GT(area.Width, 0) << which;
    EXPECT_GT(area.Height, 0) << which;
    EXPECT_TRUE(area.Y <= placed.Baseline && placed.Baseline <= area.Bottom()) << which;
    for (const PageRect& other : areas) EXPECT_FALSE(Overlap(area, other)) << which;
    areas.push_back(area);
    if (placed.Scrolls) areas.back().Height -= m.FrameAbove;  // two frames may share an edge
  }
}

}  // namespace veld::testing
