#pragma once

#include <filesystem>

namespace veld {

/// Files that ship beside the program and are copied to a user's data folder when missing there.
inline constexpr const char* kShippedFiles[] = {"equip.vlb", "spells.vld"};

/// The user's data folder: veld in the folder for application data.
std::filesystem::path UserDataFolder();

/// The folder of the shipped files that belongs to this program; empty if there is none.
std::filesystem::path ShippedDataFolder();

/// Makes `folder` (created if need be) the working directory and copies what is missing there from `shipped`. Started
/// inside a folder that already holds an options.vlb the program stays there. Returns false if the folder can't be used.
bool EnterDataFolder(const std::filesystem::path& folder, const std::filesystem::path& shipped);

}  // namespace veld
