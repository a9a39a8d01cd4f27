#pragma once

#include <QPalette>

class QStyle;

namespace veld {

/// The look of controls: flat, drawn with a pen, ink for what is chosen or has the focus. The application owns it.
QStyle* MakePaperLook();

/// The colours of controls.
QPalette PaperPalette();

}  // namespace veld
