// SPDX-License-Identifier: MIT
// Runs a fuzzer's function on the files of a folder: works with compilers without a fuzzer.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argumentCount, char** arguments)
{
    int inputs = 0;
    for (int i = 1; i < argumentCount; ++i) {
        for (const auto& entry : std::filesystem::directory_iterator(arguments[i])) {
            std::ifstream file(entry.path(), std::ios::binary);
            const std::vector<char> bytes(std::istreambuf_iterator<char>(file), {});
            std::printf("%s\n", entry.path().c_str());
            std::fflush(stdout);  // So that the last line names the input that crashed the program.
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
            ++inputs;
        }
    }
    std::printf("%d inputs\n", inputs);
    return inputs > 0 ? 0 : 1;  // A missing corpus proves nothing.
}
