#pragma once

namespace veld {

/// Rows of the table of classes, and of all that a character keeps by class.
inline constexpr int kClassRows = 200;

}  // namespace veld
