#include "help/PageMaker.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <sstream>
#include <utility>
#include <vector>

#include "core/DYXCalculator.h"

namespace talvex {
namespace {

constexpr char16_t kThinSpace = u'\u2009';
constexpr char16_t kUnbrokenThinSpace = u'\u202F';
constexpr int kStepsInARow = 6;

std::vector<std::string> wordsOf(std::string_view text) {
    std::istringstream stream{std::string(text)};
    std::vector<std::string> words;
    for (std::string word; stream >> word;) {
        words.push_back(word);
    }
    return words;
}

std::string_view trimmed(std::string_view text) {
    const std::size_t start = std::min(text.find_first_not_of(' '), text.size());
    const std::size_t end = text.find_last_not_of(' ');
    return end == std::string_view::npos ? "" : text.substr(start, end + 1 - start);
}

bool choose(const NSPopUpButton& popUp, std::string_view word) {
    const std::vector<NSMenuItem>& items = popUp.menu().items;
    const auto item = std::find_if(items.begin(), items.end(), [word](const NSMenuItem& each) {
        return std::equal(each.title.begin(), each.title.end(), word.begin(), word.end());
    });
    if (item == items.end()) {
        return false;
    }
    item->action(*item);
    return true;
}

bool setDigits(DYXWindowController& calculator, std::string_view word) {
    constexpr std::string_view kDigits = "digits=";
    int digits = 0;
    if (!word.starts_with(kDigits)) {
        return false;
    }
    const std::string_view number = word.substr(kDigits.size());
    std::from_chars(number.data(), number.data() + number.size(), digits);
    calculator.choose(settingRow<&Settings::digits>(), digits);
    return true;
}

// The window shows a hyphen as a minus sign.
std::u16string signText(const TextSlot& slot) {
    return slot->stringValue() == u"-" ? u"\u2212" : slot->stringValue();
}

std::string stackTable(DYXCalculator& calculator) {
    std::string rows;
    const std::array<std::pair<const char*, DYXOutputDisplay*>, 4> lines{
        {{"T", &calculator.tDisplay()},
         {"Z", &calculator.zDisplay()},
         {"Y", &calculator.yDisplay()},
         {"X", &calculator.xDisplay()}}};
    for (const auto& [name, line] : lines) {
        std::u16string text =
            signText(line->mantissaSignField()) + line->mantissaField()->stringValue();
        std::replace(text.begin(), text.end(), kThinSpace, kUnbrokenThinSpace);
        rows += std::string("<tr><td class='label'>") + name + "</td><td class='number'>" +
                htmlText(text) + "</td></tr>";
    }
    return "<table class='stack' cellspacing='0' cellpadding='2'>" + rows + "</table>";
}

}  // namespace

bool applySettings(DYXWindowController& calculator, std::string_view settings) {
    for (const std::string& word : wordsOf(settings)) {
        const WindowViews& views = calculator.views();
        if (!choose(*views.inputModePopUp, word) && !choose(*views.angleModePopUp, word) &&
            !setDigits(calculator, word)) {
            return false;
        }
    }
    return true;
}

void press(DYXCalculator& calculator, const KeyCaps::Step& step) {
    for (const Comand& command : step.commands) {
        calculator.press(command);
    }
}

std::u16string shownX(DYXCalculator& calculator) {
    const DYXInputDisplay& line = calculator.xDisplay();
    std::u16string text = signText(line.mantissaSignField()) + line.mantissaField()->stringValue();
    const std::u16string exponent =
        signText(line.exponentSignField()) + line.exponentField()->stringValue();
    return exponent.empty() ? text : text + u"  " + exponent;
}

std::string PageMaker::complain(const std::string& what) {
    complaint_ = what;
    return {};
}

std::optional<std::string> PageMaker::make(std::string_view page) {
    complaint_.clear();
    std::string result;
    for (;;) {
        const std::size_t start = page.find("{{");
        result += page.substr(0, start);
        if (start == std::string_view::npos) {
            break;
        }
        page.remove_prefix(start + 2);
        const std::size_t end = page.find("}}");
        if (end == std::string_view::npos) {
            complain("a directive without an end");
            break;
        }
        result += expand(page.substr(0, end));
        page.remove_prefix(end + 2);
    }
    return complaint_.empty() ? std::optional(result) : std::nullopt;
}

std::string PageMaker::expand(std::string_view directive) {
    const std::size_t colon = std::min(directive.find(':'), directive.size());
    const std::string_view name = trimmed(directive.substr(0, colon));
    const std::string_view text =
        colon < directive.size() ? trimmed(directive.substr(colon + 1)) : "";
    if (name == "steps") {
        return steps(text);
    }
    if (name == "example") {
        return example(text);
    }
    if (name == "keys") {
        return keys(text);
    }
    if (name == "constants") {
        return constantsTable();
    }
    if (name == "units") {
        return unitsTables(caps_);
    }
    if (name == "functions") {
        return functionsTable(caps_, text);
    }
    if (name == "hot keys") {
        return hotKeysTable(caps_);
    }
    if (name == "untyped keys") {
        return untypedKeys(caps_);
    }
    if (name == "keyboard") {
        return keyboardPicture(caps_);
    }
    return complain("no directive " + std::string(name));
}

std::string PageMaker::keys(std::string_view words) {
    std::string html;
    for (const std::string& word : wordsOf(words)) {
        const KeyCaps::Step step = caps_.step(word);
        if (step.commands.empty()) {
            return complain("no key " + word);
        }
        html += (html.empty() ? "" : " ") + step.html;
    }
    return html;
}

std::string PageMaker::steps(std::string_view keys) {
    HeadlessPlatform platform;
    DYXWindowController calculator(platform);
    std::string html = "<table class='steps' cellspacing='0' cellpadding='4'><tr>";
    int count = 0;
    for (const std::string& word : wordsOf(keys)) {
        const KeyCaps::Step step = caps_.step(word);
        if (step.commands.empty()) {
            return complain("no key " + word);
        }
        html += count > 0 && count % kStepsInARow == 0 ? "</tr><tr>" : "";
        ++count;
        press(calculator.calculator(), step);
        html += "<td align='center'><p class='press'>" + step.html + "</p>" +
                stackTable(calculator.calculator()) + "</td>\n";
    }
    return html + "</tr></table>";
}

std::string PageMaker::example(std::string_view text) {
    const std::size_t first = text.find('|');
    const std::size_t last = text.rfind('|');
    if (first == std::string_view::npos || first == last) {
        return complain("an example without two bars: " + std::string(text));
    }
    const std::string settings(trimmed(text.substr(0, first)));
    return "<tr class='example'><td class='settings'>" + settings + "</td><td class='keys'>" +
           keys(text.substr(first + 1, last - first - 1)) + "</td><td class='shows'>" +
           std::string(trimmed(text.substr(last + 1))) + "</td></tr>";
}

}  // namespace talvex
