// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// Runs a fuzz target once over each file given (or each file in each folder
// given): the seed inputs and every input that once broke the program, kept
// as regression tests in every build, with or without libFuzzer.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size);

int main(int argc, char** argv) {
    namespace fs = std::filesystem;
    std::vector<fs::path> inputs;
    for (int i = 1; i < argc; ++i) {
        if (fs::is_directory(argv[i])) {
            for (const auto& entry : fs::directory_iterator(argv[i])) {
                inputs.push_back(entry.path());
            }
        } else {
            inputs.emplace_back(argv[i]);
        }
    }
    for (const fs::path& path : inputs) {
        std::ifstream file(path, std::ios::binary);
        const std::vector<unsigned char> bytes{std::istreambuf_iterator<char>(file), {}};
        LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    }
    std::printf("%zu inputs ran\n", inputs.size());
    return inputs.empty() ? 1 : 0;
}
