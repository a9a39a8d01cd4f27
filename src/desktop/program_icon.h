#pragma once

#include <QIcon>

namespace veld {

/// A page with a die on it.
QIcon ProgramIcon();

}  // namespace veld
