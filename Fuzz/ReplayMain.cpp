#include "FuzzTarget.hpp"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

void replay(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(file), {}};
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(content.data()), content.size());
}

}  // namespace

/// Runs the target on each file that is named, and on all files below each folder. No file at all is a failure: it
/// means that the seeds are not where they should be.
int main(int argumentCount, char** arguments) {
    std::size_t fileCount = 0;
    for (int index = 1; index < argumentCount; ++index) {
        const std::filesystem::path path = arguments[index];
        if (!std::filesystem::is_directory(path)) {
            replay(path);
            ++fileCount;
            continue;
        }
        for (const auto& entry : std::filesystem::recursive_directory_iterator(path)) {
            if (!entry.is_regular_file()) continue;
            replay(entry.path());
            ++fileCount;
        }
    }
    std::printf("%zu files replayed\n", fileCount);
    return fileCount > 0 ? 0 : 1;
}
