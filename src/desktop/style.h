#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QString>
#include <string_view>

#include "platform/layout.h"

namespace veld {

inline constexpr QRgb kPaperColor = 0xffffffff;
inline constexpr QRgb kRuleColor = 0xffd7e1f1;
inline constexpr QRgb kInkColor = 0xff1c3d86;     ///< what the character has
inline constexpr QRgb kTextColor = 0xff1f2126;    ///< labels
inline constexpr QRgb kFaintColor = 0xff9a9fa9;   ///< what is disabled
inline constexpr QRgb kEdgeColor = 0xffaab6cb;    ///< of boxes, lists and pages
inline constexpr QRgb kWashColor = 0xffdfe8f7;    ///< under the pointer, pressed, chosen without the focus
inline constexpr QRgb kChosenColor = 0xff2f5aa8;  ///< the chosen row

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

/// A page with a die on it.
QIcon ProgramIcon();

/// A text as the toolkit has it. The second is for texts of one line: line ends and tabs become blanks.
QString ToQt(std::string_view text);
QString ToQtLine(std::string_view text);

/// A window's title; the toolkit gives "[*]" a meaning of its own, which is taken away here.
QString ToQtTitle(std::string_view title);

}  // namespace veld
