// Writes pictures as PNG files, for screenshots. The pixels are stored, not packed: small code, large files.
//
//     png::Picture picture{800, 600, pixels};          // 3 bytes a pixel: red, green, blue
//     if (auto problem = png::Write("title.png", picture)) { Tell(*problem); }
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace png {

struct Picture {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::vector<std::uint8_t> pixels;  // row by row from the top
};

// The whole file as bytes.
std::string Encode(const Picture& picture);
// Empty when the file is written, else what went wrong.
std::optional<std::string> Write(const std::filesystem::path& path, const Picture& picture);

}  // namespace png
