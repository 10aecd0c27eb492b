#pragma once

#include "Support/Subprocess.hpp"

#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vellark::testing {

/// CPython as the model that a routine is compared with.
namespace PythonPeer {

inline std::string hexadecimal(std::string_view bytes) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    text.reserve(2 * bytes.size());
    for (const char byte : bytes) {
        text += digits[static_cast<unsigned char>(byte) >> 4];
        text += digits[static_cast<unsigned char>(byte) & 0xF];
    }
    return text;
}

inline std::string fromHexadecimal(std::string_view text) {
    std::string bytes;
    for (std::size_t index = 0; index + 1 < text.size(); index += 2) {
        bytes += static_cast<char>(std::stoi(std::string(text.substr(index, 2)), nullptr, 16));
    }
    return bytes;
}

/// Answers of one python3 process to all cases, in their order. `script` defines `answer(case)`, which takes the case's
/// bytes and returns bytes. Nothing when there is no python3, or when it is not of the minor version that is asked for;
/// a script that fails throws, with what Python printed.
inline std::optional<std::vector<std::string>> answers(std::string_view script, const std::vector<std::string>& cases,
                                                       int minorVersion = 0) {
    std::string program = "import sys\n";
    if (minorVersion > 0) {
        program += "if sys.version_info[:2] != (3, " + std::to_string(minorVersion) + "): sys.exit(77)\n";
    }
    program += script;
    program +=
        "\nfor line in sys.stdin.buffer:\n"
        "    sys.stdout.buffer.write(answer(bytes.fromhex(line.decode())).hex().encode() + b'\\n')\n";
    std::string input;
    for (const std::string& one : cases) {
        input += hexadecimal(one) + "\n";
    }
    const char* path = std::getenv("PATH");
    const auto result = runProcess({.arguments = {"python3", "-c", program},
                                    .input = input,
                                    .environment = {{"PATH", path == nullptr ? "" : path}, {"PYTHONUTF8", "1"}},
                                    .directory = "/"});
    if (!result || result->status == 77 || result->status == 127) return std::nullopt;
    if (result->status != 0) throw std::runtime_error(result->errors);

    std::vector<std::string> lines;
    for (std::size_t start = 0; start < result->output.size();) {
        const std::size_t end = result->output.find('\n', start);
        lines.push_back(fromHexadecimal(std::string_view(result->output).substr(start, end - start)));
        start = end + 1;
    }
    return lines;
}

}  // namespace PythonPeer

}  // namespace vellark::testing
