#pragma once

#include <string>
#include <string_view>

#include "platform/platform.h"

namespace veld {

inline constexpr char kPrintFolder[] = "print";  ///< of the working directory
inline constexpr int kKeptPdfs = 5;

/// Writes a document into a new file of its own in the folder of those that are shown and printed, and removes all but
/// the last five there. Its whole path; empty if it can't be written.
std::string KeepPdf(std::string_view name, std::string_view bytes);

enum class PdfWay { View, Print };

/// Hands a document to the viewer or the printer, by a file that KeepPdf makes, and tells the player what came of it if
/// he can't see it. False if nothing took it; where it lies is told then.
bool SendPdf(Platform& platform, std::string_view name, std::string_view bytes, PdfWay way);

/// Asks for a path to save a PDF document to.
std::optional<std::string> AskPdfPath(Platform& platform, std::string_view name);

}  // namespace veld
