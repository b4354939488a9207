// Reads a file whole, or tells why not. Only a regular file is one: a pipe, a device, a socket or a folder in its
// place is refused at once, where reading it could wait for ever.
//
//     files::Result<std::string> content = files::ReadWhole(folder.Path("data/names"), "data/names");
#pragma once

#include "files/result.h"
#include "files/system_calls.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace files {

// A file larger than this is none of ours, whatever it is called.
inline constexpr std::uintmax_t kLargestFile = 1U << 20U;

Result<std::string> ReadWhole(const std::filesystem::path& path, std::string_view name);
Result<std::string> ReadWhole(SystemCalls& system, const std::filesystem::path& path, std::string_view name);

// For what a library reads by itself, pictures and sounds.
bool IsRegularFile(const std::filesystem::path& path);

// "Save/Save1: cannot be read (Input/output error)", the fault being the system's.
FileError SystemError(std::string_view name, const std::string& what, int reason);

}  // namespace files
