#include "key_script.h"

#include <array>
#include <sstream>
#include <stdexcept>
#include <utility>

#include "display/ascii_text.h"
#include "display/utf8.h"

namespace talvex {
namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 56> kKeys{{
    {".", "data.   "},     {"EEX", "dataEEX "},   {"CHS", "dataCHS "},   {"ENTER", "dataENT "},
    {"BACK", "dataBACK"},  {"CLR", "dataCLR "},   {"CLRG", "dataCLRG"},  {"CLAL", "dataCLAL"},
    {"E-03", "dataE-03"},  {"E-06", "dataE-06"},  {"E-09", "dataE-09"},  {"E+03", "dataE+03"},
    {"E+06", "dataE+06"},  {"E+09", "dataE+09"},  {"+", "bina+   "},     {"-", "bina-   "},
    {"*", "bina*   "},     {"/", "bina/   "},     {"^", "bina^   "},     {"~", "bina~   "},
    {"x^y", "binax^y "},   {"y~x", "binay~x "},   {"SQR", "unitSQR "},   {"ROOT", "unitROOT"},
    {"INV", "unitINV "},   {"EXP", "unitEXP "},   {"LN", "unitNLOG"},    {"ABS", "unitABS "},
    {"SIN", "unitGSIN"},   {"COS", "unitGCOS"},   {"TAN", "unitGTAN"},   {"ARC", "modiARC "},
    {"HYP", "modiHYP "},   {"STO", "memoSTO "},   {"STO+", "memoSTO+"},  {"STO-", "memoSTO-"},
    {"STO*", "memoSTO*"},  {"STO/", "memoSTO/"},  {"RCL", "memoRCL "},   {"STOC", "memoSTOC"},
    {"CLMM", "memoCLMM"},  {"X<>Y", "stacX<>Y"},  {"ROLD", "stacROLD"},  {"ROLU", "stacROLU"},
    {"LASTX", "stacLSTX"}, {"PI", "consPI  "},    {"RAND", "nullRAND"},  {"NULL?", "nullELSE"},
    {"TRIN?", "trinABCD"}, {"QUAD?", "quadABCD"}, {"UNIT?", "unitABCD"}, {"BINA?", "binaABCD"},
    {"CONS?", "consABCD"}, {"STAC?", "stacABCD"}, {"WHAT?", "whatABCD"}, {"DATA?", "dataABCD"},
}};

constexpr std::string_view kRegisterPrefixes = "MRS+-*/";

std::string commandOf(std::string_view key) {
    for (const auto& [name, command] : kKeys) {
        if (name == key) {
            return std::string(command);
        }
    }
    if (key.size() == 1) {
        return "dataN00" + std::string(key);
    }
    if (key.size() == 3 && kRegisterPrefixes.find(key[0]) != std::string_view::npos) {
        return "memo" + std::string(1, key[0]) + "0" + std::string(key.substr(1));
    }
    throw std::invalid_argument("no key " + std::string(key));
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
