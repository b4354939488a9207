// Runs a fuzzer's function over the files of folders, once each, so that every input that once broke something
// is tried by the ordinary tests.
//
//     records_fuzz -reader=cards fuzz/corpus/cards assets/Actions
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
extern "C" int LLVMFuzzerInitialize(int* count, char*** words);

int main(int argc, char** argv)
{
    LLVMFuzzerInitialize(&argc, &argv);
    int tried = 0;
    for (int i = 1; i < argc; ++i) {
        for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
            if (!entry.is_regular_file()) {
                continue;
            }
            std::ifstream in(entry.path(), std::ios::binary);
            const std::vector<char> bytes(std::istreambuf_iterator<char>(in), {});
            std::printf("%s\n", entry.path().c_str());
            std::fflush(stdout);  // so that a crash is seen under its file's name
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
            ++tried;
        }
    }
    std::printf("%d inputs tried\n", tried);
    return tried > 0 ? 0 : 1;
}
