#include "platform/scale_picture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

namespace platform {

namespace {

using Pixel = std::array<float, 4>;  // colours weighted by the opacity, then the opacity

// Which source pixels make a target pixel, and with which weight.
struct Share {
    int first = 0;
    std::vector<float> weights;
};

// A tent as wide as a target pixel, or as a source pixel where the picture grows.
std::vector<Share> Shares(int from, int to)
{
    const double step = static_cast<double>(from) / to;
    const double reach = std::max(step, 1.0);
    std::vector<Share> shares(static_cast<std::size_t>(to));
    for (int i = 0; i < to; ++i) {
        const double middle = (i + 0.5) * step - 0.5;
        const int first = std::max(0, static_cast<int>(std::ceil(middle - reach)));
        const int last = std::min(from - 1, static_cast<int>(std::floor(middle + reach)));
        Share& share = shares[static_cast<std::size_t>(i)];
        share.first = first;
        float sum = 0;
        for (int at = first; at <= last; ++at) {
            const auto weight = static_cast<float>(std::max(0.0, 1.0 - std::abs(at - middle) / reach));
            share.weights.push_back(weight);
            sum += weight;
        }
        for (float& weight : share.weights) {
            weight /= sum;
        }
    }
    return shares;
}

const std::uint32_t* Row(const SDL_Surface& surface, int y)
{
    const auto* bytes =
        static_cast<const std::uint8_t*>(surface.pixels) + static_cast<std::ptrdiff_t>(y) * surface.pitch;
    return reinterpret_cast<const std::uint32_t*>(bytes);
}

Pixel Unpack(std::uint32_t packed, std::uint32_t opaque)
{
    packed |= opaque;
    const auto opacity = static_cast<float>(packed >> 24U);
    const float part = opacity / 255.0F;
    return {static_cast<float>((packed >> 16U) & 0xFFU) * part,
            static_cast<float>((packed >> 8U) & 0xFFU) * part, static_cast<float>(packed & 0xFFU) * part,
            opacity};
}

std::uint32_t Pack(const Pixel& pixel)
{
    const float opacity = std::min(pixel[3], 255.0F);
    const float whole = opacity > 0 ? 255.0F / opacity : 0;
    const auto byte = [](float value) {
        return static_cast<std::uint32_t>(std::clamp(value + 0.5F, 0.0F, 255.0F));
    };
    return (byte(opacity) << 24U) | (byte(pixel[0] * whole) << 16U) | (byte(pixel[1] * whole) << 8U) |
           byte(pixel[2] * whole);
}

}  // namespace

void ScalePicture(const SDL_Surface& from, SDL_Surface& to)
{
    const std::uint32_t opaque = from.format->Amask == 0 ? 0xFF000000U : 0U;
    const std::vector<Share> across = Shares(from.w, to.w);
    const std::vector<Share> down = Shares(from.h, to.h);
    // Rows scaled across are kept as long as the next target row may need them.
    std::vector<std::vector<Pixel>> rows(static_cast<std::size_t>(from.h));
    const auto scaleRow = [&](int y) {
        std::vector<Pixel>& row = rows[static_cast<std::size_t>(y)];
        const std::uint32_t* source = Row(from, y);
        row.assign(static_cast<std::size_t>(to.w), Pixel{});
        for (std::size_t x = 0; x < row.size(); ++x) {
            const std::uint32_t* pixel = source + across[x].first;
            for (const float weight : across[x].weights) {
                const Pixel color = Unpack(*pixel++, opaque);
                for (std::size_t i = 0; i < color.size(); ++i) {
                    row[x][i] += color[i] * weight;
                }
            }
        }
    };
    for (int y = 0; y < to.h; ++y) {
        const Share& share = down[static_cast<std::size_t>(y)];
        std::vector<Pixel> sum(static_cast<std::size_t>(to.w), Pixel{});
        for (std::size_t i = 0; i < share.weights.size(); ++i) {
            const int line = share.first + static_cast<int>(i);
            if (rows[static_cast<std::size_t>(line)].empty()) {
                scaleRow(line);
            }
            const std::vector<Pixel>& row = rows[static_cast<std::size_t>(line)];
            for (std::size_t x = 0; x < sum.size(); ++x) {
                for (std::size_t c = 0; c < 4; ++c) {
                    sum[x][c] += row[x][c] * share.weights[i];
                }
            }
        }
        auto* bytes = static_cast<std::uint8_t*>(to.pixels) + static_cast<std::ptrdiff_t>(y) * to.pitch;
        std::transform(sum.begin(), sum.end(), reinterpret_cast<std::uint32_t*>(bytes), Pack);
        for (int done = 0; done < share.first; ++done) {
            std::vector<Pixel>().swap(rows[static_cast<std::size_t>(done)]);
        }
    }
}

}  // namespace platform
