#include "ui/help_pages.h"

#include <array>

namespace talvex {
namespace {

constexpr auto kPages = std::to_array<HelpPage>({
    {u"Start", 0},
    {u"Stack", 1},
    {u"Numbers", 2},
    {u"Display", 3},
    {u"Angles", 4},
    {u"Functions", 5},
    {u"Memory", 6},
    {u"Constants", 7},
    {u"Units", 8},
    {u"Thermocouples", 9},
    {u"Keyboard", 10},
    {u"Settings", 11},
    {u"Clipboard", 12},
    {u"Files", 13},
});

struct CategoryPage {
    std::uint32_t category;
    std::u16string_view title;
};

constexpr auto kPagesOfCategories = std::to_array<CategoryPage>({
    {fourCC("unit"), u"Functions"},
    {fourCC("bina"), u"Functions"},
    {fourCC("null"), u"Functions"},
    {fourCC("modi"), u"Functions"},
    {fourCC("cons"), u"Constants"},
    {fourCC("conv"), u"Units"},
    {fourCC("memo"), u"Memory"},
    {fourCC("stac"), u"Stack"},
    {fourCC("data"), u"Numbers"},
});

constexpr std::string_view kUnreserved =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
constexpr std::u16string_view kHexDigits = u"0123456789ABCDEF";

void appendEscaped(std::u16string& text, unsigned char byte) {
    if (kUnreserved.find(static_cast<char>(byte)) != std::string_view::npos) {
        text += static_cast<char16_t>(byte);
        return;
    }
    text += u'%';
    text += kHexDigits[byte / 16U];
    text += kHexDigits[byte % 16U];
}

}  // namespace

std::span<const HelpPage> helpPages() { return kPages; }

std::u16string helpPlaceOfCommand(const Comand& command) {
    // What the help says of one register or digit holds for all.
    if (command.category == fourCC("memo") && characterOf(command.action, 0) == 'M') {
        return u"Memory#memoM000";
    }
    if (command.category == fourCC("data") && characterOf(command.action, 0) == 'N') {
        return u"Numbers";
    }
    for (const CategoryPage& row : kPagesOfCategories) {
        if (command.category == row.category) {
            std::u16string place = std::u16string(row.title) + u'#';
            for (const char16_t unit : stringFromCommand(command)) {
                appendEscaped(place, static_cast<unsigned char>(unit));
            }
            return place;
        }
    }
    return u"Start";
}

std::u16string fileURL(std::string_view path) {
    std::u16string url = u"file://";
    for (const char character : path) {
        appendEscaped(url, static_cast<unsigned char>(character));
    }
    return url;
}

}  // namespace talvex
