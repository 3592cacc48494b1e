#include "help/KeyCaps.h"

#include <algorithm>
#include <array>
#include <utility>

#include "display/utf8.h"
#include "ui/simple_tex.h"
#include "ui/tables/panel_tables.h"

namespace talvex {
namespace {

// Keys that show a picture in place of a title.
constexpr auto kPictures = std::to_array<std::pair<Comand, std::u16string_view>>({
    {command("data", "E-03"), u"10^{\u22123}"},
    {command("data", "E-06"), u"10^{\u22126}"},
    {command("data", "E-09"), u"10^{\u22129}"},
    {command("data", "E+03"), u"10^{3}"},
    {command("data", "E+06"), u"10^{6}"},
    {command("data", "E+09"), u"10^{9}"},
    {command("bina", "^   "), u"y^x"},
    {command("bina", "~   "), u"log_{y}x"},
    {command("data", ".   "), u"."},
});

std::u16string pictureOf(const Comand& command) {
    for (const auto& [picture, tex] : kPictures) {
        if (picture == command) {
            return std::u16string(tex);
        }
    }
    return {};
}

constexpr std::string_view kTyped = "0123456789.";

}  // namespace

std::string htmlText(std::u16string_view text) {
    std::string result;
    for (const char16_t unit : text) {
        switch (unit) {
            case u'&':
                result += "&amp;";
                break;
            case u'<':
                result += "&lt;";
                break;
            case u'>':
                result += "&gt;";
                break;
            case u'"':
                result += "&quot;";
                break;
            default:
                appendUtf8(result, unit);
        }
    }
    return result;
}

namespace {

std::string htmlOf(const NSAttributedString& text) {
    std::string html;
    int raised = 0;
    const auto change = [&html, &raised](int wanted) {
        if (wanted != raised) {
            html += raised > 0 ? "</sup>" : raised < 0 ? "</sub>" : "";
            html += wanted > 0 ? "<sup>" : wanted < 0 ? "<sub>" : "";
            raised = wanted;
        }
    };
    for (std::size_t place = 0; place < text.string.size(); ++place) {
        change(text.attributes[place].superscript);
        html += htmlText({&text.string[place], 1});
    }
    change(0);
    return html;
}

}  // namespace

std::string htmlOfTex(std::u16string_view tex) { return htmlOf(simpleTexTitle(tex, {})); }

std::string htmlOfHint(std::u16string_view tex) { return htmlOf(simpleTexHint(tex)); }

KeyCaps::KeyCaps() {
    HeadlessPlatform platform;
    const WindowViews views(platform, hotKeys_);
    for (const std::vector<Key>* keys : {&views.keyPad.keys(), &views.memoryPanel.keys,
                                         &views.constantsPanel.keys, &views.functionsPanel.keys}) {
        for (const Key& key : *keys) {
            add(key, {});
        }
    }
    for (std::size_t page = 0; page < views.conversionPanel.pages.size(); ++page) {
        for (const Key& key : views.conversionPanel.pages[page]) {
            add(key, utf8(unitPages()[page].label) + '/');
        }
    }
}

// Of two keys with one name the first counts.
void KeyCaps::add(const Key& key, const std::string& prefix) {
    Cap cap{.command = key.button->command(),
            .title = key.button->title(),
            .hint = key.button->toolTip()};
    if (cap.title.empty()) {
        cap.title = pictureOf(cap.command);
    }
    std::string name = prefix + utf8(cap.title);
    std::replace(name.begin(), name.end(), ' ', '_');
    name.erase(std::remove_if(name.begin(), name.end(),
                              [](char character) { return character == '{' || character == '}'; }),
               name.end());
    byName_.insert({std::move(name), caps_.size()});
    caps_.push_back(std::move(cap));
}

const KeyCaps::Cap* KeyCaps::named(const std::string& name) const {
    const auto place = byName_.find(name);
    return place != byName_.end() ? &caps_[place->second] : nullptr;
}

const KeyCaps::Cap* KeyCaps::ofCommand(const Comand& command) const {
    const auto cap = std::find_if(caps_.begin(), caps_.end(), [&command](const Cap& candidate) {
        return candidate.command == command;
    });
    return cap != caps_.end() ? &*cap : nullptr;
}

KeyCaps::Step KeyCaps::step(const std::string& word) const {
    if (!word.empty() && word.find_first_not_of(kTyped) == std::string::npos) {
        Step step{.commands = {}, .html = "<span class='typed'>" + word + "</span>"};
        for (const char character : word) {
            step.commands.push_back(character == '.' ? command("data", ".   ")
                                                     : digitCommand(character));
        }
        return step;
    }
    const Cap* const cap = named(word);
    if (cap == nullptr) {
        return {};
    }
    return {.commands = {cap->command},
            .html = "<span class='key'>&nbsp;" + htmlOfTex(cap->title) + "&nbsp;</span>"};
}

}  // namespace talvex
