#include "ui/KeyPad.h"

#include <algorithm>
#include <cassert>

#include "ui/key_pad_geometry.h"
#include "ui/window_layout.h"

namespace talvex {
KeyPad::KeyPad(Platform& platform)
    : titles_(platform),
      panel_{.view = std::make_shared<DYXStatusLineView>(keyPadViewRect()), .keys = {}} {
    view()->setAutoresizingMask(NSViewMinYMargin);
    addStatusField(*view(), *view(), statusLineFieldRect(), NSViewNotSizable);
    for (const KeyRow& row : keyPadRows()) {
        panel_.keys.push_back(makeKey({.frame = padKeyFrame(row.column, row.row, row.rowSpan),
                                       .command = row.command,
                                       .title = localizedTitle(row.title, platform),
                                       .hint = platform.localizedString(row.hint),
                                       .group = row.group,
                                       .keyClass = row.keyClass},
                                      platform));
        if (row.keyClass == KeyClass::lock) {
            lockButton_ = panel_.keys.back().button.get();
        }
    }
    std::size_t place = 0;
    for (const DrawerKeyRow& row : drawerKeyRows()) {
        panel_.keys.push_back(makeKey({.frame = drawerKeyFrame(place++, drawerKeyRows().size()),
                                       .command = {},
                                       .title = localizedTitle(row.title, platform),
                                       .hint = platform.localizedString(row.hint),
                                       .group = KeyGroup::flat,
                                       .keyClass = KeyClass::drawer},
                                      platform));
        drawerButtons_.at(static_cast<std::size_t>(row.drawer)) = panel_.keys.back().button.get();
    }
    for (const Key& key : keys()) {
        key.button->setAutoresizingMask(NSViewMinYMargin);
        view()->addSubview(key.button);
    }
    const auto hexKeys = hexKeyRows();
    std::transform(hexKeys.begin(), hexKeys.end(), hexButtons_.begin(),
                   [this](const HexKeyRow& row) { return &button(row.command); });
    showHexDigits(false);
}

CommandButton& KeyPad::button(const Comand& command) const {
    const auto rows = keyPadRows();
    const auto row = std::find_if(rows.begin(), rows.end(), [&command](const KeyRow& candidate) {
        return candidate.command == command;
    });
    assert(row != rows.end());
    return *keys().at(static_cast<std::size_t>(row - rows.begin())).button;
}

bool KeyPad::showHexDigits(bool show) {
    if (show == showsHexDigits_) {
        return false;
    }
    showsHexDigits_ = show;
    const auto rows = hexKeyRows();
    for (std::size_t index = 0; index < hexButtons_.size(); ++index) {
        const HexKeyRow& row = rows[index];
        CommandButton& button = *hexButtons_.at(index);
        button.setCommand(show ? row.hexCommand : row.command);
        button.setTitle(std::u16string(show ? row.hexTitle : u""));
        button.setImage(std::u16string(show ? u"" : row.image));
        button.setAlternateImage(std::u16string(show ? u"" : row.alternateImage));
        const std::u16string hint = titles_.localizedString(show ? row.hexHint : row.hint);
        button.setToolTip(hint);
        button.setAccessibilityLabel(hint);
    }
    return true;
}

}  // namespace talvex
