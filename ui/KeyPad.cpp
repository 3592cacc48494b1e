#include "ui/KeyPad.h"

#include <algorithm>
#include <cassert>

#include "ui/window_layout.h"

namespace talvex {

KeyPad::KeyPad(LogPort& log) : view_(std::make_shared<NSView>(keyPadViewRect())) {
    view_->setAutoresizingMask(NSViewMinYMargin);
    for (const KeyRow& row : keyPadRows()) {
        buttons_.push_back(makeButton(row, log));
        view_->addSubview(buttons_.back());
    }
    const auto hexKeys = hexKeyRows();
    std::transform(hexKeys.begin(), hexKeys.end(), hexButtons_.begin(),
                   [this](const HexKeyRow& row) { return &button(row.command); });
    showHexDigits(false);
}

std::shared_ptr<NSButton> KeyPad::makeButton(const KeyRow& row, LogPort& log) const {
    const std::u16string title(row.title);
    std::shared_ptr<NSButton> button;
    if (row.keyClass == KeyClass::key) {
        button = std::make_shared<DYXButton>(keyFrame(row), title, log);
    } else {
        button = std::make_shared<ZUModifierButton>(keyFrame(row));
        button->setTitle(title);
        button->setToggles(row.keyClass == KeyClass::lock);
    }
    button->setAlternateTitle(std::u16string(row.command));
    button->setToolTip(std::u16string(row.hint));
    button->setAccessibilityLabel(std::u16string(row.hint));
    button->setAutoresizingMask(NSViewMinYMargin);
    return button;
}

NSButton& KeyPad::button(std::u16string_view command) const {
    const auto rows = keyPadRows();
    const auto row = std::find_if(rows.begin(), rows.end(), [command](const KeyRow& candidate) {
        return candidate.command == command;
    });
    assert(row != rows.end());
    return *buttons_.at(static_cast<std::size_t>(row - rows.begin()));
}

void KeyPad::setKeyAction(const std::function<void(NSButton&)>& action) {
    const auto rows = keyPadRows();
    for (std::size_t index = 0; index < buttons_.size(); ++index) {
        if (rows[index].keyClass != KeyClass::lock) {
            buttons_[index]->setAction(action);
        }
        buttons_[index]->setKeyEquivalent(u"");
    }
}

void KeyPad::showHexDigits(bool show) {
    const auto rows = hexKeyRows();
    for (std::size_t index = 0; index < hexButtons_.size(); ++index) {
        const HexKeyRow& row = rows[index];
        NSButton& button = *hexButtons_.at(index);
        button.setAlternateTitle(std::u16string(show ? row.hexCommand : row.command));
        button.setTitle(std::u16string(show ? row.hexTitle : u""));
        button.setImage(std::u16string(show ? u"" : row.image));
        button.setAlternateImage(std::u16string(show ? u"" : row.alternateImage));
        button.setImagePosition(show ? NSImagePosition::noImage : NSImagePosition::imageOnly);
        button.setToolTip(std::u16string(show ? row.hexHint : row.hint));
        button.setAccessibilityLabel(std::u16string(show ? row.hexHint : row.hint));
    }
}

}  // namespace talvex
