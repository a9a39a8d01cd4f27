#pragma once

#include <QColor>

class QPalette;

namespace veld {

/// The colours of all that is drawn. By day the page is white paper written on in dark-blue ink. In a dark scheme it
/// stays ruled paper, on a dark sheet in light-blue ink: a white page on a dark desk would dazzle.
///
/// Every writing stands out from what it is written on by 4.5 to 1, what is disabled and the edges of what can be used
/// by 3 to 1.
struct PaperColors {
  QRgb Paper = 0;
  QRgb Rule = 0;
  QRgb Ink = 0;         ///< what the character has; the focus
  QRgb Text = 0;        ///< labels
  QRgb Hint = 0;        ///< in a field that is empty
  QRgb Faint = 0;       ///< what is disabled
  QRgb FaintEdge = 0;   ///< of boxes that are disabled
  QRgb Edge = 0;        ///< of boxes, lists and pages
  QRgb Button = 0;      ///< inside of a button
  QRgb Pressed = 0;     ///< inside of one that is held down
  QRgb Wash = 0;        ///< under the pointer, chosen without the focus
  QRgb Chosen = 0;      ///< the chosen row
  QRgb ChosenText = 0;  ///< on it
  QRgb Desk = 0;        ///< around the paper: menus, file dialogs
  QRgb OtherRow = 0;    ///< every second row of a table
  QRgb Done = 0;        ///< of a progress bar
  QRgb Groove = 0;      ///< of a scroll bar
  QRgb Slider = 0;
  QRgb SliderLit = 0;  ///< under the pointer
};

inline constexpr PaperColors kLightPaper{
    .Paper = 0xffffffff,
    .Rule = 0xffd7e1f1,
    .Ink = 0xff1c3d86,
    .Text = 0xff1f2126,
    .Hint = 0xff646b78,
    .Faint = 0xff7b828f,
    .FaintEdge = 0xffd7e1f1,
    .Edge = 0xff808da7,
    .Button = 0xfff8fafd,
    .Pressed = 0xffd7e1f1,
    .Wash = 0xffdfe8f7,
    .Chosen = 0xff2f5aa8,
    .ChosenText = 0xffffffff,
    .Desk = 0xfff7f9fc,
    .OtherRow = 0xfff3f6fb,
    .Done = 0xffb9cdef,
    .Groove = 0xfff5f7fb,
    .Slider = 0xff808da7,
    .SliderLit = 0xff5f6f8f,
};

inline constexpr PaperColors kDarkPaper{
    .Paper = 0xff1f232b,
    .Rule = 0xff2f3745,
    .Ink = 0xffa3c1fa,
    .Text = 0xffe4e7ed,
    .Hint = 0xff9aa3b3,
    .Faint = 0xff7e8798,
    .FaintEdge = 0xff39424f,
    .Edge = 0xff6f7d96,
    .Button = 0xff282d37,
    .Pressed = 0xff3a4456,
    .Wash = 0xff303c52,
    .Chosen = 0xff3562b3,
    .ChosenText = 0xffffffff,
    .Desk = 0xff16191f,
    .OtherRow = 0xff242933,
    .Done = 0xff3a568c,
    .Groove = 0xff1b1f26,
    .Slider = 0xff6f7d96,
    .SliderLit = 0xff93a2bd,
};

/// The colours of the scheme in use.
const PaperColors& Colors();

/// The toolkit's roles for these colours.
QPalette PaperPalette(const PaperColors& colors);

/// Uses the colours that go with what the system gives its windows, light or dark, from now on; turns `palette`, which
/// is the system's, into the toolkit's roles for them.
void FollowScheme(QPalette& palette);

}  // namespace veld
