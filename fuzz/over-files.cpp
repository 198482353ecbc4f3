// Runs a target over each file of the named directories. It takes the place of libFuzzer.

#include "fuzz.h"

#include <filesystem>
#include <fstream>
#include <iterator>

int main(int argc, char **argv) {
    int runs = 0;
    for (int i = 1; i < argc; ++i)
        for (const auto &entry : std::filesystem::directory_iterator(argv[i])) {
            std::ifstream file(entry.path(), std::ios::binary);
            const std::string bytes{std::istreambuf_iterator<char>(file), {}};
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.data()), bytes.size());
            ++runs;
        }
    std::printf("%d seeds\n", runs);
    return runs > 0 ? 0 : 1;
}
