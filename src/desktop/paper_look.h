#pragma once

class QStyle;

namespace veld {

/// The look of controls: flat, drawn with a pen, ink for what is chosen or has the focus. The application owns it. In
/// its colours it follows the system.
QStyle* MakePaperLook();

}  // namespace veld
