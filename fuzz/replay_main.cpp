// Runs a fuzz target over every file of the folders (or files) given on the
// command line, so that the seed corpus is replayed by the ordinary tests.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv)
{
    namespace fs = std::filesystem;
    std::vector<fs::path> files;
    for (int i = 1; i < argc; ++i) {
        fs::path p(argv[i]);
        if (fs::is_directory(p)) {
            for (const auto& e : fs::recursive_directory_iterator(p))
                if (e.is_regular_file())
                    files.push_back(e.path());
        } else if (fs::exists(p)) {
            files.push_back(p);
        } else {
            std::fprintf(stderr, "no such corpus: %s\n", argv[i]);
            return 1;
        }
    }
    if (files.empty()) {
        std::fprintf(stderr, "empty corpus\n");
        return 1;
    }
    for (const auto& f : files) {
        std::ifstream in(f, std::ios::binary);
        std::vector<char> bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    }
    std::printf("replayed %zu inputs\n", files.size());
    return 0;
}
