// Writes inputs for the fuzz targets to begin with: the worked examples of the modes and of the
// help. Usage: make_seeds FOLDER TEMPLATES, with the templates of the help.

#include <array>
#include <bit>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "calculator_actions.h"
#include "display/display_modes.h"
#include "display/utf8.h"
#include "display_format_tables.h"
#include "help/KeyCaps.h"
#include "numeric/decimal_text.h"

namespace talvex {
namespace {

namespace fs = std::filesystem;

template <class Number>
void append(std::string& bytes, Number number) {
    for (const char byte : std::bit_cast<std::array<char, sizeof number>>(number)) {
        bytes += byte;
    }
}

struct Corpora {
    fs::path folder;
    int count = 0;

    void add(const std::string& target, const std::string& bytes) {
        fs::create_directories(folder / target);
        std::ofstream(folder / target / ("seed-" + std::to_string(count++)), std::ios::binary)
            << bytes;
    }
};

// The bytes that make `display_fuzz` show the row.
std::string displayInput(const FormatTable& table, const Row& row) {
    std::string bytes;
    append(bytes, static_cast<std::uint8_t>(table.settings.outputMode));
    append(bytes, row.digits * 4 + 1);
    const LineSettings& settings = table.settings;
    for (const int choice :
         {settings.decimalSeparator == u'.' ? 0 : 1, 1, 1, 3,
          settings.reduceCarpentryFractions ? 0 : 1, settings.displayIrrationals ? 0 : 1, 0}) {
        append(bytes, static_cast<std::uint8_t>(choice));
    }
    append(bytes, row.number);
    return bytes;
}

void addModes(Corpora& corpora) {
    for (const FormatTable& table : kFormatTables) {
        for (const Row& row : table.rows) {
            corpora.add("display_fuzz", displayInput(table, row));
            std::string text(1, '\0');
            append(text, row.number);
            corpora.add("text_fuzz", text + shortestText(row.number));
        }
    }
}

// "{{example:settings|keys|result}}"
void addExamples(Corpora& corpora, const fs::path& templates) {
    constexpr std::string_view kMark = "{{example:";
    const KeyCaps caps;
    for (const fs::directory_entry& file : fs::directory_iterator(templates)) {
        if (file.path().extension() != ".html") {
            continue;
        }
        std::ifstream stream(file.path(), std::ios::binary);
        const std::string page{std::istreambuf_iterator<char>(stream), {}};
        for (std::size_t place = page.find(kMark); place != std::string::npos;
             place = page.find(kMark, place + 1)) {
            const std::size_t keys = page.find('|', place) + 1;
            std::istringstream words(page.substr(keys, page.find('|', keys) - keys));
            std::string actions;
            for (std::string word; words >> word;) {
                for (const Comand& command : caps.step(word).commands) {
                    appendCommand(actions, stringFromCommand(command));
                }
            }
            corpora.add("calculator_fuzz", actions);
            corpora.add("restart_fuzz", std::string(2, '\0') + actions);
        }
    }
    for (const KeyCaps::Cap& cap : caps.all()) {
        corpora.add("text_fuzz", std::string(9, '\0') + utf8(cap.title));
    }
}

}  // namespace
}  // namespace talvex

int main(int argc, char** argv) {
    using namespace talvex;
    if (argc != 3) {
        return 2;
    }
    Corpora corpora{argv[1]};
    addModes(corpora);
    addExamples(corpora, argv[2]);
    return 0;
}
