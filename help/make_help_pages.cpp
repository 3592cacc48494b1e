// Makes the pages of the help from their templates. Usage: make_help_pages TEMPLATES PAGES

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "help/PageMaker.h"
#include "ui/help_pages.h"

namespace {

namespace fs = std::filesystem;

bool makePage(talvex::PageMaker& maker, const fs::path& from, const fs::path& to) {
    std::ifstream source(from, std::ios::binary);
    const std::string page{std::istreambuf_iterator<char>(source), {}};
    const std::optional<std::string> made = maker.make(page);
    if (page.empty() || !made) {
        std::fprintf(stderr, "%s: %s\n", from.c_str(),
                     page.empty() ? "can't be read" : maker.complaint().c_str());
        return false;
    }
    std::ofstream target(to, std::ios::binary);
    target << *made;
    return target.good();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("Usage: make_help_pages TEMPLATES PAGES\n", stderr);
        return 2;
    }
    talvex::PageMaker maker;
    for (const talvex::HelpPage& page : talvex::helpPages()) {
        const std::string file =
            "Help" + std::string(page.title.begin(), page.title.end()) + ".html";
        if (!makePage(maker, fs::path(argv[1]) / file, fs::path(argv[2]) / file)) {
            return 1;
        }
    }
    return 0;
}
