#include "print/send_pdf.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <vector>

#include "text/file_name.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/search.h"

namespace veld {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kEnding = ".pdf";
constexpr FileFilter kPdfFilters[] = {{"PDF Files (*.PDF)", kEnding}};

/// The number that a file of ours begins with, "12 Ada.pdf"; 0 for any other.
std::int64_t NumberOf(const std::string& name) {
  constexpr std::size_t kMostDigits = 9;
  const std::size_t digits = std::min(name.find_first_not_of("0123456789"), name.size());
  const bool isOurs =
      digits > 0 && digits <= kMostDigits && name.substr(digits).starts_with(' ') && name.ends_with(kEnding);
  return isOurs ? ReadNumberPrefix(name) : 0;
}

/// A new file, readable by its owner alone, that nobody else has made. Its path; the stream is null if there is none.
std::string MakeFile(std::int64_t after, const std::string& name, FILE*& file) {
  constexpr std::int64_t kTries = 1000;
  for (std::int64_t number = after + 1; number <= after + kTries; ++number) {
    const std::string path = Format("%s/%i %s%s", kPrintFolder, number, name, kEnding);
    const int made = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (made < 0 && errno == EEXIST) continue;
    file = made < 0 ? nullptr : fdopen(made, "w");
    return path;
  }
  return {};
}

}  // namespace

std::string KeepPdf(std::string_view name, std::string_view bytes) {
  struct stat folder {};
  mkdir(kPrintFolder, 0700);
  if (bytes.empty() || lstat(kPrintFolder, &folder) != 0 || !S_ISDIR(folder.st_mode)) return {};
  std::vector<std::pair<std::int64_t, fs::path>> kept;
  std::error_code error;
  for (fs::directory_iterator entry(kPrintFolder, error), end; !error && entry != end; entry.increment(error)) {
    if (const std::int64_t number = NumberOf(entry->path().filename().string()); number > 0) {
      kept.emplace_back(number, entry->path());
    }
  }
  std::ranges::sort(kept, std::ranges::greater{});

  FILE* file = nullptr;
  const std::string path = MakeFile(kept.empty() ? 0 : kept.front().first, FileNamePart(name), file);
  if (!file) return {};
  const bool isWritten = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
  if (std::fclose(file) != 0 || !isWritten) {
    fs::remove(path, error);
    return {};
  }
  for (std::size_t i = kKeptPdfs - 1; i < kept.size(); ++i) fs::remove(kept[i].second, error);
  return fs::absolute(path, error).string();
}

bool SendPdf(Platform& platform, std::string_view name, std::string_view bytes, PdfWay way) {
  const std::string path = KeepPdf(name, bytes);
  if (path.empty()) {
    platform.ShowMessage("Problem creating PDF file");
    return false;
  }
  const bool isPrinting = way == PdfWay::Print;
  if (isPrinting ? platform.PrintFile(path) : platform.OpenFile(path)) {
    if (isPrinting) platform.ShowMessage("The sheet is on its way to the printer.");
    return true;
  }
  platform.ShowMessage(Format(isPrinting ? "There is no printer that takes the sheet. It lies as a PDF file in %s"
                                         : "There is no program that shows the sheet. It lies as a PDF file in %s",
                              path));
  return false;
}

std::optional<std::string> AskPdfPath(Platform& platform, std::string_view name) {
  return platform.AskSavePath("Save as PDF", kPdfFilters, Format("%s%s", FileNamePart(name), kEnding));
}

}  // namespace veld
