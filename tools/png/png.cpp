#include "png/png.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <string_view>

namespace png {

namespace {

std::string BigEndian(std::uint32_t value)
{
    std::string bytes;
    for (const unsigned shift : {24U, 16U, 8U, 0U}) {
        bytes += static_cast<char>(value >> shift & 0xFFU);
    }
    return bytes;
}

std::string LittleEndian(std::uint16_t value)
{
    return {static_cast<char>(value & 0xFFU), static_cast<char>(value >> 8U)};
}

// The remainder of each byte by the polynomial of the check sum, bits reversed.
constexpr std::array<std::uint32_t, 256> Remainders()
{
    std::array<std::uint32_t, 256> remainders{};
    for (std::uint32_t byte = 0; byte < remainders.size(); ++byte) {
        std::uint32_t rest = byte;
        for (int bit = 0; bit < 8; ++bit) {
            rest = (rest & 1U) != 0 ? 0xEDB88320U ^ (rest >> 1U) : rest >> 1U;
        }
        remainders[byte] = rest;
    }
    return remainders;
}

// The cyclic check sum that ends each chunk.
std::uint32_t Crc(std::string_view bytes)
{
    constexpr std::array<std::uint32_t, 256> kRemainders = Remainders();
    std::uint32_t sum = 0xFFFFFFFFU;
    for (const char c : bytes) {
        sum = kRemainders[(sum ^ static_cast<std::uint8_t>(c)) & 0xFFU] ^ (sum >> 8U);
    }
    return ~sum;
}

// The check sum that ends the packed data: two sums modulo the largest prime below 2^16.
std::uint32_t Adler(std::string_view bytes)
{
    constexpr std::uint32_t kPrime = 65521;
    std::uint32_t a = 1;
    std::uint32_t b = 0;
    for (const char c : bytes) {
        a = (a + static_cast<std::uint8_t>(c)) % kPrime;
        b = (b + a) % kPrime;
    }
    return b << 16U | a;
}

std::string Chunk(std::string_view type, std::string_view content)
{
    std::string body(type);
    body += content;
    return BigEndian(static_cast<std::uint32_t>(content.size())) + body + BigEndian(Crc(body));
}

// A packed stream of blocks that are not packed: each says its length twice, the second time inverted.
std::string Stored(std::string_view bytes)
{
    constexpr std::size_t kLongest = 0xFFFF;
    std::string stream("\x78\x01", 2);
    std::string_view rest = bytes;
    do {
        const std::string_view block = rest.substr(0, kLongest);
        rest.remove_prefix(block.size());
        const auto length = static_cast<std::uint16_t>(block.size());
        stream += rest.empty() ? '\1' : '\0';  // whether it is the last
        stream += LittleEndian(length) + LittleEndian(static_cast<std::uint16_t>(~length));
        stream += block;
    } while (!rest.empty());
    return stream + BigEndian(Adler(bytes));
}

}  // namespace

std::string Encode(const Picture& picture)
{
    constexpr std::string_view kTrueColour("\x08\x02\x00\x00\x00", 5);  // 8 bits each of red, green, blue
    const std::size_t stride = std::size_t{picture.width} * 3;
    std::string rows;
    rows.reserve((stride + 1) * picture.height);
    for (std::size_t y = 0; y < picture.height; ++y) {
        rows += '\0';  // this row is not filtered
        const auto first = picture.pixels.begin() + static_cast<std::ptrdiff_t>(y * stride);
        rows.append(first, first + static_cast<std::ptrdiff_t>(stride));
    }
    std::string header = BigEndian(picture.width) + BigEndian(picture.height);
    header += kTrueColour;
    return std::string("\x89PNG\r\n\x1A\n") + Chunk("IHDR", header) + Chunk("IDAT", Stored(rows)) +
           Chunk("IEND", "");
}

std::optional<std::string> Write(const std::filesystem::path& path, const Picture& picture)
{
    std::ofstream out(path, std::ios::binary);
    out << Encode(picture);
    if (!out.flush()) {
        return path.string() + " cannot be written (" + std::strerror(errno) + ")";
    }
    return std::nullopt;
}

}  // namespace png
