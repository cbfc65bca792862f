// SPDX-License-Identifier: MIT
// A file spelled byte by byte: pairs of digits, "text", ?? for a byte that means nothing, # for a comment.
#pragma once

#include <cctype>
#include <fstream>
#include <string>

struct HexFile {
    std::string bytes;  // with a filling for those that mean nothing
    std::string means;  // 1 where a byte means something

    // `written`, with the filling where bytes mean nothing; to be equal to `bytes`.
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
    const auto add = [&](char byte, bool means) {
        file.bytes += byte;
        file.means += static_cast<char>(means);
    };
    for (std::string line; std::getline(in, line);) {
        for (std::size_t i = 0; i < line.size() && line[i] != '#';) {
            if (line[i] == '"') {
                while (++i < line.size() && line[i] != '"') {
                    add(line[i], true);
                }
                ++i;
            } else if (std::isspace(static_cast<unsigned char>(line[i]))) {
                ++i;
            } else {
                const std::string pair = line.substr(i, 2);
                const bool means = pair != "??";
                add(static_cast<char>(means ? std::stoi(pair, nullptr, 16) : 0xAA), means);
                i += 2;
            }
        }
    }
    return file;
}
