#include "terminal/path_form.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "platform/form.h"
#include "text/format.h"
#include "text/search.h"
#include "text/utf8.h"

namespace veld {

namespace fs = std::filesystem;

namespace {

enum : int { kName = 10, kType = 11, kFolder = 12, kEntries = 13, kOk = 1, kCancel = 2 };
constexpr int kNameBytes = 4000;

constexpr ControlTemplate PathControl(ControlTemplate control, int columnSpan = 1) {
  control.ColumnSpan = columnSpan;
  return control;
}

constexpr ControlTemplate kPathControls[] = {
    LabelAt(0, 0, "&Name"),
    EditAt(0, 1, kName, 56, kNameBytes),
    LabelAt(1, 0, "&Type"),
    ComboAt(1, 1, kType, 40),
    LabelAt(2, 0, "In folder"),
    ResultAt(2, 1, kFolder, 56),
    LabelAt(3, 0, "&Files"),
    ListAt(3, 1, kEntries, 56, 10),
    PathControl(LabelAt(4, 1, "Tab completes a name; .. is the folder above.")),
    ButtonAt(5, 1, kOk, "&OK", ButtonRole::Default),
    ButtonAt(5, 1, kCancel, "&Cancel", ButtonRole::Cancel),
};
constexpr std::string_view kPathTemplateHelp =
    "Type the file's name and press Enter; Tab completes it as far as it is clear. Or choose in Files, where .. is "
    "the folder above and a name with a stroke is a folder. Type shows one kind of file at a time, and tells what a "
    "new one becomes: a name that ends in none of the kinds gets that one's ending. A file that is there already is "
    "never replaced unasked.";
constexpr FormTemplate kPathTemplate{"Path", "VELD", kPathControls, kPathTemplateHelp};

bool IsFolder(const fs::path& path) {
  std::error_code ignored;
  return fs::is_directory(path, ignored);
}

bool IsThere(const fs::path& path) {
  std::error_code ignored;
  return fs::exists(path, ignored);
}

/// A name as a player types it: "~" is the home folder.
fs::path TypedPath(const fs::path& folder, const std::string& name) {
  const char* home = std::getenv("HOME");
  if (home && (name == "~" || name.starts_with("~/")))
    return fs::path(home) / name.substr(std::min<std::size_t>(name.size(), 2));
  return folder / name;
}

/// The names in a folder, folders first and with a '/', each in the order of the alphabet. Hidden ones are left out
/// unless `start` asks for them.
std::vector<std::string> NamesIn(const fs::path& folder, std::string_view extension, std::string_view start) {
  std::vector<std::string> folders;
  std::vector<std::string> files;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    const std::string name = entry->path().filename().string();
    if (!name.starts_with(start) || (name.starts_with('.') && !start.starts_with('.'))) continue;
    if (IsFolder(entry->path())) {
      folders.push_back(name + "/");
    } else if (extension.empty() || EndsIgnoringCase(name, extension)) {
      files.push_back(name);
    }
  }
  std::ranges::sort(folders);
  std::ranges::sort(files);
  folders.insert(folders.end(), files.begin(), files.end());
  return folders;
}

/// The longest start that all the names have.
std::string CommonStart(const std::vector<std::string>& names) {
  std::string start = names.front();
  for (const std::string& name : names) {
    const auto end = std::ranges::mismatch(start, name);
    start.erase(end.in1, start.end());
  }
  return std::string(CutToBytes(start, start.size()));
}

/// The open page: the folder whose names it lists.
struct PathPage {
  Platform& platform;
  std::span<const FileFilter> filters;
  bool isForSaving;
  Form form{kPathTemplate};
  fs::path folder = {};
  std::vector<std::string> names = {};  ///< as they are on disk, one for each row
  std::size_t filter = 0;
  std::optional<ChosenPath> chosen = std::nullopt;

  std::string_view Extension() const { return filter < filters.size() ? filters[filter].Extension : ""; }
};

void ListFolder(PathPage& page) {
  page.names = NamesIn(page.folder, page.Extension(), {});
  page.names.insert(page.names.begin(), "../");
  page.form.SetItems(kEntries, page.names);
  page.form.SetText(kFolder, page.folder.string());
}

void EnterFolder(PathPage& page, const fs::path& folder) {
  std::error_code error;
  const fs::path whole = fs::canonical(folder, error);
  if (error) return page.platform.ShowMessage(Format("The folder %s can not be opened.", folder.string()));
  page.folder = whole;
  page.form.SetText(kName, "");
  ListFolder(page);
  page.form.Focus(kName);
}

/// Completes the name that is typed as far as it is clear. Returns false if there is nothing to add.
bool CompleteName(PathPage& page) {
  const std::string typed = page.form.Text(kName);
  if (typed.empty()) return false;
  const std::size_t slash = typed.rfind('/');
  const std::string before = slash == std::string::npos ? std::string() : typed.substr(0, slash + 1);
  const std::string start = typed.substr(before.size());
  const std::vector<std::string> names = NamesIn(TypedPath(page.folder, before), page.Extension(), start);
  if (names.empty()) return false;
  const std::string completed = before + CommonStart(names);
  if (completed == typed) return false;
  page.form.SetText(kName, completed);
  return true;
}

/// Gives a name in a save dialog the extension of the type just chosen, if it had that of another one.
void FollowType(PathPage& page) {
  page.filter = static_cast<std::size_t>(std::max(page.form.Selection(kType), 0));
  std::string name = page.form.Text(kName);
  for (const FileFilter& filter : page.filters) {
    if (!page.isForSaving || filter.Extension.empty() || !EndsIgnoringCase(name, filter.Extension)) continue;
    name.resize(name.size() - filter.Extension.size());
    page.form.SetText(kName, name + std::string(page.Extension()));
    break;
  }
  ListFolder(page);
}

void TakePath(PathPage& page) {
  const std::string name = page.form.Text(kName);
  if (name.empty()) return;
  fs::path path = TypedPath(page.folder, name);
  if (IsFolder(path)) return EnterFolder(page, path);
  const fs::path whole = WithExtension(path.string(), page.filters, page.filter);
  if (page.isForSaving) {
    path = whole;
    const std::string question = Format("%s is there already. Do you want to replace it?", path.filename().string());
    if (IsThere(path) && !page.platform.Confirms("Save", question)) return;
    if (!IsFolder(path.parent_path())) {
      return page.platform.ShowMessage(Format("There is no folder %s.", path.parent_path().string()));
    }
  } else {
    if (!IsThere(path) && IsThere(whole)) path = whole;
    if (!IsThere(path)) return page.platform.ShowMessage(Format("There is no file %s.", path.string()));
  }
  page.chosen = ChosenPath{path.string(), page.filter};
  page.form.Close();
}

}  // namespace

std::optional<ChosenPath> RunPathForm(Platform& platform, const RunWithTab& run, const std::string& caption,
                                      std::span<const FileFilter> filters, const std::string& suggestedName,
                                      bool isForSaving) {
  PathPage page{platform, filters, isForSaving};
  Form& form = page.form;
  form.SetTitle(caption);
  form.onOpened = [&] {
    std::vector<std::string> types;
    for (const FileFilter& filter : filters) types.emplace_back(filter.Name);
    if (types.empty()) types.emplace_back("All files");
    form.SetItems(kType, std::move(types));
    form.Select(kType, 0);
    std::error_code error;
    page.folder = fs::current_path(error);
    ListFolder(page);
    form.SetText(kName, suggestedName);
  };
  form.onSelect = [&](int id) {
    if (id == kType) return FollowType(page);
    const auto row = static_cast<std::size_t>(form.Selection(kEntries));
    if (id == kEntries && row < page.names.size()) form.SetText(kName, page.names[row]);
  };
  form.onCommand = [&](int id) {
    if (id == kCancel) return form.Close();
    TakePath(page);
  };
  run(form, [&] { return CompleteName(page); });
  return page.chosen;
}

}  // namespace veld
