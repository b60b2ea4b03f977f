// Runs a fuzz target over every file of the folders (or files) given, the way
// libFuzzer replays a corpus, for builds without libFuzzer.

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace {

int replayFile(const std::filesystem::path &path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        std::fprintf(stderr, "cannot read %s\n", path.string().c_str());
        return 1;
    }
    std::vector<std::uint8_t> bytes((std::istreambuf_iterator<char>(in)),
                                    std::istreambuf_iterator<char>());
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    int failures = 0;
    int replayed = 0;
    for (int i = 1; i < argc; ++i) {
        const std::filesystem::path path(argv[i]);
        if (std::filesystem::is_directory(path)) {
            for (const auto &entry : std::filesystem::directory_iterator(path)) {
                if (entry.is_regular_file()) {
                    failures += replayFile(entry.path());
                    ++replayed;
                }
            }
        } else {
            failures += replayFile(path);
            ++replayed;
        }
    }
    std::printf("replayed %d inputs\n", replayed);
    return failures == 0 && replayed > 0 ? 0 : 1;
}
