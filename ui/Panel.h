#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "platform/Platform.h"
#include "ui/DYXButton.h"
#include "ui/DYXStatusLineView.h"
#include "ui/DYXTabView.h"

// The panels in the drawers, made from their tables.
namespace talvex {

struct Key {
    std::shared_ptr<CommandButton> button;
    KeyGroup group;
    KeyClass keyClass;
};

struct KeyDescription {
    NSRect frame;
    Comand command;
    std::u16string title;  // simple TeX
    std::u16string hint;   // simple TeX
    KeyGroup group = KeyGroup::function;
    KeyClass keyClass = KeyClass::key;
};

// The title of a key in the user's language; a key with an image has none.
std::u16string localizedTitle(std::u16string_view title, const BundlePort& titles);

// The record of a key: of a command key its title is rich text, of the others it's plain.
Key makeKey(const KeyDescription& description, Platform& platform);

// Puts a field into the view that says what the control under the pointer does.
void addStatusField(NSView& view, DYXStatusLineTracker& tracker, const NSRect& frame,
                    std::uint32_t autoresizingMask);

// What a click on a key does with its command.
using KeyAction = std::function<void(const Comand&)>;

// A view with its keys and a status field.
struct Panel {
    std::shared_ptr<DYXStatusLineView> view;
    std::vector<Key> keys;

    void setKeyAction(const KeyAction& action) const;
};

Panel makeMemoryPanel(Platform& platform);
Panel makeConstantsPanel(Platform& platform);
Panel makeFunctionsPanel(Platform& platform);

// The conversion drawer: the tab view with the keys of each page, and a status field.
struct ConversionPanel {
    std::shared_ptr<NSView> view;
    std::shared_ptr<DYXTabView> tabView;
    std::vector<std::vector<Key>> pages;

    void setKeyAction(const KeyAction& action) const;
};

ConversionPanel makeConversionPanel(Platform& platform, const HotKeys& hotKeys);

}  // namespace talvex
