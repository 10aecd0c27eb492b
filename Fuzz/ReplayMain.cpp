#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

void replay(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    const std::string input(std::istreambuf_iterator<char>(file), {});
    // Every prefix of an input is an input.
    for (std::size_t size = 0; size <= input.size(); ++size) {
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), size);
    }
}

}  // namespace

// Runs the target on each file that is named, or that stands in a directory that is named, and on all its prefixes.
int main(int argumentCount, char** arguments) {
    std::size_t count = 0;
    for (int index = 1; index < argumentCount; ++index) {
        if (std::filesystem::is_regular_file(arguments[index])) {
            replay(arguments[index]);
            ++count;
            continue;
        }
        for (const auto& entry : std::filesystem::directory_iterator(arguments[index])) {
            replay(entry.path());
            ++count;
        }
    }
    std::printf("%zu inputs replayed\n", count);
    return count == 0 ? 1 : 0;
}
