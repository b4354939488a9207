#include "files/checksum.h"

#include <cstdint>

namespace files {

namespace {

// Fowler, Noll and Vo's sum: each step is reversible, so no change of one byte can be lost on the way.
constexpr std::uint64_t kBasis = 0xcbf29ce484222325;
constexpr std::uint64_t kPrime = 0x100000001b3;

}  // namespace

std::string SumFile(std::string_view file)
{
    return std::string(file) + ".sum";
}

std::string ChecksumOf(std::string_view content)
{
    std::uint64_t sum = kBasis;
    for (const char c : content) {
        sum = (sum ^ static_cast<unsigned char>(c)) * kPrime;
    }
    std::string digits;
    for (int shift = 60; shift >= 0; shift -= 4) {
        digits += "0123456789abcdef"[(sum >> static_cast<unsigned>(shift)) & 15U];
    }
    return digits;
}

bool Agrees(const WrittenFiles& files, std::string_view file, std::string_view content)
{
    const std::string name = SumFile(file);
    if (const Result<bool> there = files.Has(name); there && !*there) {
        return true;
    }
    const Result<std::string> sums = files.ReadWhole(name);
    return sums && ("\n" + *sums).find("\n" + ChecksumOf(content) + "\n") != std::string::npos;
}

// The old content's sum is kept only while it agrees: damage must not become good by a kill in between.
Failure ReplaceChecked(const WrittenFiles& files, const FolderLock& lock, std::string_view file,
                       std::string_view content)
{
    std::string sums;
    if (const Result<std::string> old = files.ReadWhole(file); old && Agrees(files, file, *old)) {
        sums = ChecksumOf(*old) + "\n";
    }
    sums += ChecksumOf(content) + "\n";
    if (Failure failure = files.Replace(lock, SumFile(file), sums)) {
        return failure;
    }
    return files.Replace(lock, file, content);
}

}  // namespace files
