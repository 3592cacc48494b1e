// The tables in the pages of the help, made from the tables of the program.

#include <algorithm>
#include <array>
#include <string>

#include "core/function_tables.h"
#include "help/PageMaker.h"
#include "help/function_notes.h"
#include "platform/NSEvent.h"
#include "ui/printed_number.h"
#include "ui/tables/panel_tables.h"

namespace talvex {
namespace {

constexpr const char* kTable = "<table class='facts' cellspacing='0' cellpadding='4'>\n";

// An anchor by the command of a key, its blanks as they stand in a URL.
std::string anchor(const Comand& command) {
    std::string name;
    for (const char16_t unit : stringFromCommand(command)) {
        const std::string text = htmlText({&unit, 1});
        name += text;
    }
    return R"(<a name=")" + name + R"("></a>)";
}

std::string cell(const std::string& html, const std::string& kind = "plain") {
    return "<td class='" + kind + "'>" + html + "</td>";
}

std::string row(const std::string& cells) { return "<tr>" + cells + "</tr>\n"; }

std::string head(std::initializer_list<const char*> titles) {
    std::string cells;
    for (const char* const title : titles) {
        cells += std::string("<th align='left'>") + title + "</th>";
    }
    return row(cells);
}

std::string keyCap(std::u16string_view title) {
    return "<span class='key'>&nbsp;" + htmlOfTex(title) + "&nbsp;</span>";
}

bool isOnPad(const KeyCaps& caps, const KeyCaps::Cap& cap) {
    const auto rows = keyPadRows();
    return static_cast<std::size_t>(&cap - caps.all().data()) < rows.size();
}

// The keys are written as signs, of which Clear and the backspace share one.
std::u16string hotKeyText(const KeyCaps& caps, const KeyCaps::Cap& cap) {
    for (const HotKey& row : caps.hotKeys().rows()) {
        if (row.command == cap.command && row.key == NSClearLineFunctionKey) {
            return u"[Clear]";
        }
    }
    return caps.hotKeys().hotKeyStringForCommand(cap.command);
}

}  // namespace

std::string constantsTable() {
    std::string table = kTable + head({"Key", "Constant", "Value", "Unit"});
    for (const ConstantKeyRow& constant : constantKeyRows()) {
        const double value = findConstant(constant.command.action)->value;
        table +=
            row(cell(anchor(constant.command) + keyCap(constant.title)) +
                cell(htmlText(constant.name)) + cell(htmlOfTex(printedNumber(value)), "number") +
                cell(htmlOfTex(constant.unit)));
    }
    return table + "</table>\n";
}

std::string unitsTables(const KeyCaps& caps) {
    std::string tables;
    for (const UnitPage& page : unitPages()) {
        tables += "<h3>" + htmlText(page.label) + "</h3>\n" + kTable;
        for (const UnitKeyRow& unit : page.units) {
            const Comand command = page.commandOf(unit);
            const KeyCaps::Cap* const cap = caps.ofCommand(command);
            tables += row(cell(anchor(command) + keyCap(cap->title)) + cell(htmlOfHint(cap->hint)));
        }
        tables += "</table>\n";
    }
    return tables;
}

std::string functionsTable(const KeyCaps& caps, std::string_view place) {
    std::string table = kTable + head({"Key", "Function", "Keyboard", "For", "Otherwise"});
    for (const FunctionNote& note : functionNotes()) {
        const KeyCaps::Cap* const cap = caps.ofCommand(note.command);
        if (cap == nullptr || isOnPad(caps, *cap) != (place == "key pad")) {
            continue;
        }
        table += row(cell(anchor(note.command) + keyCap(cap->title)) + cell(htmlOfHint(cap->hint)) +
                     cell(htmlOfHint(hotKeyText(caps, *cap)), "hot") +
                     cell(htmlOfTex(note.domain)) + cell(htmlText(note.failure), "failure"));
    }
    return table + "</table>\n";
}

std::string hotKeysTable(const KeyCaps& caps) {
    std::string table = kTable + head({"Keyboard", "Key", ""});
    for (const KeyCaps::Cap& cap : caps.all()) {
        const std::u16string keys = hotKeyText(caps, cap);
        const bool isSecond = caps.ofCommand(cap.command) != &cap;
        if (!keys.empty() && !isSecond) {
            table += row(cell(htmlOfHint(keys), "hot") + cell(keyCap(cap.title)) +
                         cell(htmlOfHint(cap.hint)));
        }
    }
    return table + "</table>\n";
}

std::string untypedKeys(const KeyCaps& caps) {
    std::string keys;
    for (const KeyRow& row : keyPadRows()) {
        const KeyCaps::Cap* const cap = caps.ofCommand(row.command);
        if (row.keyClass == KeyClass::key && hotKeyText(caps, *cap).empty()) {
            keys += (keys.empty() ? "" : " ") + keyCap(cap->title);
        }
    }
    return keys;
}

// A picture of a keyboard: on each key what it does by itself.
std::string keyboardPicture(const KeyCaps& caps) {
    static constexpr auto kRows = std::to_array<std::u16string_view>(
        {u"`1234567890-=", u"qwertyuiop[]\\", u"asdfghjkl;'", u"zxcvbnm,./"});
    std::string picture;
    int indent = 0;
    for (const std::u16string_view keys : kRows) {
        std::string cells;
        for (const char16_t key : keys) {
            const HotKey* const hotKey = caps.hotKeys().find(key, {});
            const KeyCaps::Cap* cap = nullptr;
            for (const KeyCaps::Cap& candidate : caps.all()) {
                const bool isIt = hotKey != nullptr && candidate.command == hotKey->command;
                cap = cap == nullptr && isIt ? &candidate : cap;
            }
            cells += "<td class='" + std::string(cap != nullptr ? "cap" : "blank") +
                     "' align='center' width='36'><span class='keyname'>" + htmlText({&key, 1}) +
                     "</span><br>" + (cap != nullptr ? htmlOfTex(cap->title) : "&nbsp;") + "</td>";
        }
        picture += "<table class='keyboard' cellspacing='3' cellpadding='3'><tr><td width='" +
                   std::to_string(1 + indent) + "'></td>" + cells + "</tr></table>\n";
        indent += 18;
    }
    return picture;
}

}  // namespace talvex
