// SPDX-License-Identifier: MIT
// Runs a fuzz entry over the files of the given folders: NAMESeeds folder...
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <system_error>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        std::error_code error;
        for (const auto& entry : std::filesystem::directory_iterator(argv[i], error)) {
            if (!entry.is_regular_file()) {
                continue;
            }
            std::ifstream in(entry.path(), std::ios::binary);
            const std::string bytes{std::istreambuf_iterator<char>(in), {}};
            std::fprintf(stderr, "%s\n", entry.path().filename().string().c_str());
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
            // Cut short, it is another file.
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size() / 2);
            ++count;
        }
    }
    std::fprintf(stderr, "%d inputs\n", count);
    return count > 0 ? 0 : 1;
}
