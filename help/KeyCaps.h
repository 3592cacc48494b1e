#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/HeadlessPlatform.h"
#include "ui/WindowViews.h"

namespace talvex {

// UTF-8 of a text, with what HTML gives a meaning to written otherwise.
std::string htmlText(std::u16string_view text);
// A title in simple TeX as HTML.
std::string htmlOfTex(std::u16string_view tex);
// A hint in simple TeX, where a backslash protects the next character.
std::string htmlOfHint(std::u16string_view tex);

// The keys of the calculator as the help names them: "ENTER", "x^2", "M_5", "y_mod_x",
// "Length/ft" for a key of a page of units. That is the title in simple TeX, without braces and
// with a low line for a blank.
class KeyCaps {
  public:
    KeyCaps();

    struct Cap {
        Comand command;
        std::u16string title;
        std::u16string hint;
    };
    // Null for a name that no key has.
    [[nodiscard]] const Cap* named(const std::string& name) const;
    [[nodiscard]] const Cap* ofCommand(const Comand& command) const;
    // The keys of the key pad, of the drawers or of a page of units, in their order.
    [[nodiscard]] const std::vector<Cap>& all() const { return caps_; }
    [[nodiscard]] const HotKeys& hotKeys() const { return hotKeys_; }

    // One step of a calculation as the help writes it: a number as it is typed, or a key by its
    // name.
    struct Step {
        std::vector<Comand> commands;
        std::string html;
    };
    // Nothing if there is neither such a key nor such a number.
    [[nodiscard]] Step step(const std::string& word) const;

  private:
    void add(const Key& key, const std::string& prefix);

    HotKeys hotKeys_;
    std::vector<Cap> caps_;
    std::map<std::string, std::size_t> byName_;
};

}  // namespace talvex
