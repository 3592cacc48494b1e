#include "key_script.h"

#include <array>
#include <sstream>
#include <stdexcept>
#include <utility>

#include "display/ascii_text.h"
#include "display/utf8.h"

namespace talvex {
namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 32> kKeys{{
    {".", "data.   "},    {"EEX", "dataEEX "},  {"CHS", "dataCHS "},   {"ENTER", "dataENT "},
    {"CLR", "dataCLR "},  {"CLRG", "dataCLRG"}, {"CLAL", "dataCLAL"},  {"BACK", "dataBACK"},
    {"+", "bina+   "},    {"-", "bina-   "},    {"*", "bina*   "},     {"/", "bina/   "},
    {"^", "bina^   "},    {"~", "bina~   "},    {"x^y", "binax^y "},   {"y~x", "binay~x "},
    {"SQR", "unitSQR "},  {"ROOT", "unitROOT"}, {"SIN", "unitGSIN"},   {"PI", "consPI  "},
    {"ARC", "modiARC "},  {"HYP", "modiHYP "},  {"STO", "memoSTO "},   {"RCL", "memoRCL "},
    {"STOC", "memoSTOC"}, {"CLMM", "memoCLMM"}, {"X<>Y", "stacX<>Y"},  {"ROLD", "stacROLD"},
    {"ROLU", "stacROLU"}, {"RAND", "nullRAND"}, {"LASTX", "stacLSTX"}, {"STO+", "memoSTO+"},
}};

std::string commandOf(const std::string& key) {
    for (const auto& [name, command] : kKeys) {
        if (name == key) {
            return std::string(command);
        }
    }
    switch (key.size()) {
        case 1:
            return "dataN00" + key;
        case 3:
            return "memo" + key.substr(0, 1) + '0' + key.substr(1);
        case 4:
            return (key[0] == 'E' ? "data" : "memo") + key;
        case 8:
            return key;
        default:
            throw std::invalid_argument("no key " + key);
    }
}

std::string textOf(const TextSlot& slot) { return utf8(slot->stringValue()); }

}  // namespace

void KeyScript::press(std::string_view keys) {
    std::istringstream words{std::string(keys)};
    std::string key;
    while (words >> key) {
        run(commandOf(key));
    }
}

void KeyScript::run(std::string_view command) {
    calculator.doCommand(commandFromString(asciiText(command)));
}

std::string KeyScript::line() const {
    return textOf(entry().mantissaSignField()) + '|' + textOf(entry().mantissaField()) + '|' +
           textOf(entry().exponentSignField()) + '|' + textOf(entry().exponentField());
}

std::string KeyScript::status() const { return textOf(entry().statusField()); }

int KeyScript::beeps() { return std::exchange(platform.beeps, 0); }

}  // namespace talvex
