// Hands a document to the program that the desktop has for its kind.
#pragma once

#include <filesystem>
#include <string>

namespace platform {

// "file:///home/a%20b/Manual.htm" for the absolute path of that file.
std::string FileUrl(const std::filesystem::path& file);

// Returns at once. Nobody can tell whether a viewer really appears.
void OpenInViewer(const std::filesystem::path& file);

}  // namespace platform
