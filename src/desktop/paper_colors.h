#pragma once

#include <QColor>

namespace veld {

inline constexpr QRgb kPaperColor = 0xffffffff;
inline constexpr QRgb kRuleColor = 0xffd7e1f1;
inline constexpr QRgb kInkColor = 0xff1c3d86;     ///< what the character has
inline constexpr QRgb kTextColor = 0xff1f2126;    ///< labels
inline constexpr QRgb kFaintColor = 0xff9a9fa9;   ///< what is disabled
inline constexpr QRgb kEdgeColor = 0xffaab6cb;    ///< of boxes, lists and pages
inline constexpr QRgb kWashColor = 0xffdfe8f7;    ///< under the pointer, pressed, chosen without the focus
inline constexpr QRgb kChosenColor = 0xff2f5aa8;  ///< the chosen row

}  // namespace veld
