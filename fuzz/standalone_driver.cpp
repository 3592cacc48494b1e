// Feeds a fuzz target with random bytes where no coverage-guided fuzzer drives it, or with files.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

struct Options {
    std::uint64_t runs = 10000;
    std::uint64_t seed = 1;
    std::uint64_t maxLength = 4096;
    std::vector<std::string> files;
};

Options readOptions(int argc, char** argv) {
    Options options;
    for (int index = 1; index < argc; ++index) {
        const std::string argument = argv[index];
        const auto number = [&] {
            return index + 1 < argc ? std::strtoull(argv[++index], nullptr, 10) : 0;
        };
        if (argument == "--runs") {
            options.runs = number();
        } else if (argument == "--seed") {
            options.seed = number();
        } else if (argument == "--max-length") {
            options.maxLength = number();
        } else {
            options.files.push_back(argument);
        }
    }
    return options;
}

void replay(const std::string& name) {
    std::ifstream file(name, std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(file)), {});
    const std::vector<std::uint8_t> data(bytes.begin(), bytes.end());
    LLVMFuzzerTestOneInput(data.data(), data.size());
}

void feedRandomBytes(const Options& options) {
    std::mt19937_64 random(options.seed);
    std::vector<std::uint8_t> data;
    for (std::uint64_t run = 0; run < options.runs; ++run) {
        data.resize(random() % (options.maxLength + 1));
        for (std::uint8_t& byte : data) {
            byte = static_cast<std::uint8_t>(random());
        }
        LLVMFuzzerTestOneInput(data.data(), data.size());
    }
}

}  // namespace

int main(int argc, char** argv) {
    const Options options = readOptions(argc, argv);
    for (const std::string& file : options.files) {
        replay(file);
    }
    if (options.files.empty()) {
        std::printf("seed %llu\n", static_cast<unsigned long long>(options.seed));
        std::fflush(stdout);
        feedRandomBytes(options);
        std::printf("%llu inputs done\n", static_cast<unsigned long long>(options.runs));
    }
    return 0;
}
