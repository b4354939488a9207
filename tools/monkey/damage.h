// Spoils one of the files that the game writes, as a broken disk, a careless editor or a mischief-maker would.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string_view>

namespace monkey {

// Every file that may be spoilt, below the program folder.
std::span<const std::string_view> WrittenFiles();

// What is done follows from the seed and from what the file holds.
void Damage(const std::filesystem::path& file, std::uint64_t seed);

}  // namespace monkey
