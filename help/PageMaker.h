#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "help/KeyCaps.h"
#include "ui/DYXWindowController.h"

namespace talvex {

// Fills a template of the help. A line "{{name: text}}" is replaced:
//
//     {{steps: 2 ENTER 3 +}}                  each key with the stack that it leaves
//     {{example: FRC | 1.5 ENTER | 1  1/2}}   settings, keys, and what X shows then
//     {{keys: 5 ENTER}}                       the keys alone
//     {{constants}} {{units}} {{functions: key pad}} {{hot keys}} {{keyboard}}   tables
//
// In the tables each row is an anchor by the command of its key.
class PageMaker {
  public:
    // The finished page; nothing if the template asks for something that there isn't, which
    // `complaint` then says.
    std::optional<std::string> make(std::string_view page);

    [[nodiscard]] const std::string& complaint() const { return complaint_; }
    [[nodiscard]] const KeyCaps& caps() const { return caps_; }

  private:
    std::string expand(std::string_view directive);
    std::string steps(std::string_view keys);
    std::string example(std::string_view text);
    std::string keys(std::string_view words);
    std::string complain(const std::string& what);

    KeyCaps caps_;
    std::string complaint_;
};

// Tables, in page_tables.cpp.
std::string constantsTable();
std::string unitsTables(const KeyCaps& caps);
// The keys of a place: "key pad" or "drawer".
std::string functionsTable(const KeyCaps& caps, std::string_view place);
std::string hotKeysTable(const KeyCaps& caps);
// The keys of the key pad that no key of the keyboard presses.
std::string untypedKeys(const KeyCaps& caps);
std::string keyboardPicture(const KeyCaps& caps);

// The settings of an example, as "FRC" or "DEG HEX digits=2"; false if there is such a word.
bool applySettings(DYXWindowController& calculator, std::string_view settings);
// Clicks the keys of a step.
void press(DYXCalculator& calculator, const KeyCaps::Step& step);
// What X shows: sign, mantissa, exponent.
std::u16string shownX(DYXCalculator& calculator);

}  // namespace talvex
