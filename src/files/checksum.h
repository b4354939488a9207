// Checksums of files whose own form is fixed, each kept in a file beside it: Save/Save1 has Save/Save1.sum.
//
//     files::ReplaceChecked(written, *lock, "Save/Save1", content)
//     files::Agrees(written, "Save/Save1", content)      // false: not as the game left it
//
// A sum is 64 bits, sixteen hexadecimal digits in a line of its own; every change of one byte changes it. While
// a file is being replaced its sums are two, the old content's and the new one's: a kill between the two files
// leaves a file that agrees with one of them. A file that comes from elsewhere has no sum, and nothing is said.
#pragma once

#include "files/written_files.h"

#include <string>
#include <string_view>

namespace files {

std::string SumFile(std::string_view file);
std::string ChecksumOf(std::string_view content);

Failure ReplaceChecked(const WrittenFiles& files, const FolderLock& lock, std::string_view file,
                       std::string_view content);
// Whether `content`, just read from the file, is what the game wrote there; also when nobody knows.
bool Agrees(const WrittenFiles& files, std::string_view file, std::string_view content);

}  // namespace files
