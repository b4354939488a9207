// Hands a document to the program that the desktop has for its kind.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace platform {

// "file:///home/a%20b/Manual.htm" for the absolute path of that file.
std::string FileUrl(const std::filesystem::path& file);

// At a chapter of it, the name of a mark, or at its start. Returns at once. Nobody can tell whether a viewer really appears.
void OpenInViewer(const std::filesystem::path& file, std::string_view chapter);

}  // namespace platform
