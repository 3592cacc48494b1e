// Feeds a fuzz target with random bytes where no coverage-guided fuzzer drives it, or with files.

#include <charconv>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

constexpr std::uint64_t kLongestInput = 1U << 24U;

struct Options {
    std::uint64_t runs = 10000;
    std::uint64_t seed = 1;
    std::uint64_t maxLength = 4096;
    std::vector<std::string> files;
};

bool readNumber(std::string_view text, std::uint64_t& number) {
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    return result.ec == std::errc() && result.ptr == end;
}

std::uint64_t* numberNamed(std::string_view name, Options& options) {
    if (name == "--runs") {
        return &options.runs;
    }
    if (name == "--seed") {
        return &options.seed;
    }
    return name == "--max-length" ? &options.maxLength : nullptr;
}

// False for what can't be understood: a test whose options were misread would run nothing and pass.
bool readOptions(const std::vector<std::string>& arguments, Options& options) {
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        if (!arguments[index].starts_with("--")) {
            options.files.push_back(arguments[index]);
            continue;
        }
        std::uint64_t* const number = numberNamed(arguments[index], options);
        ++index;
        if (number == nullptr || index == arguments.size() ||
            !readNumber(arguments[index], *number)) {
            return false;
        }
    }
    return options.maxLength <= kLongestInput;
}

bool replay(const std::string& name) {
    std::ifstream file(name, std::ios::binary);
    if (!file.is_open() || std::filesystem::is_directory(name)) {
        std::fprintf(stderr, "can't read %s\n", name.c_str());
        return false;
    }
    const std::string bytes((std::istreambuf_iterator<char>(file)), {});
    const std::vector<std::uint8_t> data(bytes.begin(), bytes.end());
    LLVMFuzzerTestOneInput(data.data(), data.size());
    return true;
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
    Options options;
    if (!readOptions({argv + 1, argv + argc}, options)) {
        std::fprintf(stderr, "usage: %s [--runs N] [--seed S] [--max-length L] [file...]\n",
                     argv[0]);
        return 2;
    }
    bool allRead = true;
    for (const std::string& file : options.files) {
        allRead = replay(file) && allRead;
    }
    if (options.files.empty()) {
        std::printf("seed %llu\n", static_cast<unsigned long long>(options.seed));
        std::fflush(stdout);
        feedRandomBytes(options);
        std::printf("%llu inputs done\n", static_cast<unsigned long long>(options.runs));
    }
    return allRead ? 0 : 1;
}
