#pragma once

#include <QFont>
#include <QString>
#include <string_view>

#include "desktop/paper_colors.h"
#include "platform/layout.h"

namespace veld {

/// The fonts of a page and, from their size, all its distances.
struct PaperStyle {
  QFont Text;
  QFont Bold;
  QFont Title;
  PageMetrics Metrics;

  const QFont& FontOf(TextFace face) const {
    return face == TextFace::Title ? Title : face == TextFace::Bold ? Bold : Text;
  }
};

/// The style of pages written in `font`. At the usual font the rules are 20 pixels apart and the first is at y = 30.
PaperStyle MakePaperStyle(const QFont& font);

/// Gives the whole application the look of the paper: its font, its colours, flat controls, its icon. Puts numbers back
/// into the "C" locale, from which creating the application took them. Loads no font yet.
void SetUpLook();

/// A text as the toolkit has it. The second is for texts of one line: line ends and tabs become blanks.
QString ToQt(std::string_view text);
QString ToQtLine(std::string_view text);

/// A window's title; the toolkit gives "[*]" a meaning of its own, which is taken away here.
QString ToQtTitle(std::string_view title);

}  // namespace veld
