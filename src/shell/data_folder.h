#pragma once

#include <filesystem>
#include <string>

namespace veld {

/// Files that ship beside the program and are copied to a user's data folder when missing there.
inline constexpr const char* kShippedFiles[] = {"equip.vlb", "spells.vld"};

/// The user's data folder: veld in the folder for application data.
std::filesystem::path UserDataFolder();

/// The folder of the shipped files that belongs to this program; empty if there is none.
std::filesystem::path ShippedDataFolder();

/// Makes the first of these folders in which files can be made the working directory: that of the program's start, if
/// it holds an options.vlb; `folder`, which is made if need be; that of the start in any case. What a killed program
/// has left there is removed, and what is missing from `shipped` is copied, but not to a start folder with options of
/// its own. Returns what the player is to be told of folders that can not be written; nothing if all is well.
std::string EnterDataFolder(const std::filesystem::path& folder, const std::filesystem::path& shipped);

}  // namespace veld
