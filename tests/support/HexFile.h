// SPDX-License-Identifier: MIT
// A file spelled byte by byte, in words: 0F, "text", ?? for a byte that means nothing, # to the end of the
// line.
#pragma once

#include <fstream>
#include <string>

struct HexFile {
    std::string bytes, means;  // with a filling for the bytes that mean nothing, and 0 at their places

    // `written`, which is to be equal to `bytes`, with the filling.
    std::string filled(std::string written) const {
        for (std::size_t i = 0; i < written.size() && i < means.size(); ++i) {
            written[i] = means[i] ? written[i] : bytes[i];
        }
        return written;
    }
};

inline HexFile hexFile(const std::string& path) {
    HexFile file;
    std::ifstream in(path);
    for (std::string word; in >> word;) {
        if (word[0] == '#') {
            std::getline(in, word);
        } else if (word[0] == '"') {
            file.bytes += word.substr(1, word.size() - 2);
        } else {
            file.bytes += static_cast<char>(word == "??" ? 0xAA : std::stoi(word, nullptr, 16));
        }
        file.means.resize(file.bytes.size(), static_cast<char>(word != "??"));
    }
    return file;
}
