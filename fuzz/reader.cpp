#include "reader.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr std::string_view kOption = "-reader=";

const Reader* chosen = nullptr;

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* count, char*** words)
{
    const std::string_view name = *count > 1 ? (*words)[1] : "";
    const auto* const end = Readers().data() + Readers().size();
    chosen = std::find_if(Readers().data(), end, [name](const Reader& reader) {
        return name.starts_with(kOption) && name.substr(kOption.size()) == reader.name;
    });
    if (chosen == end) {
        std::fprintf(stderr, "expected -reader= and one of:");
        for (const Reader& reader : Readers()) {
            std::fprintf(stderr, " %s", reader.name.data());
        }
        std::fprintf(stderr, "\n");
        std::exit(2);
    }
    std::rotate(*words + 1, *words + 2, *words + *count);  // libFuzzer does not know the word
    --*count;
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    chosen->take({reinterpret_cast<const char*>(data), size});
    return 0;
}
