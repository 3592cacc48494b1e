#include "ui/HelpController.h"

#include <algorithm>
#include <array>
#include <limits>

#include "ui/help_pages.h"
#include "ui/window_layout.h"

namespace talvex {
namespace {

// What the user's own programs show; the names count to the letter.
constexpr auto kOutsideSchemes = std::to_array<std::u16string_view>({u"https", u"http", u"mailto"});

}  // namespace

HelpController::HelpController(HelpViews& views, Platform& platform)
    : views_(views), platform_(platform) {
    views_.matrix->setAction([this](NSMatrix& /*matrix*/) { showSelectedPage(); });
    views_.webView.setPolicyDelegate(
        [this](const std::u16string& url, WebPolicyDecisionListener& listener) {
            decidePolicyFor(url, listener);
        });
    views_.window.setFrame(firstFrame());
}

NSRect HelpController::firstFrame() const {
    return leftRectOnScreen(platform_.visibleFramesOfScreens(), views_.window.frame());
}

void HelpController::showSelectedPage() {
    showPlace(views_.matrix->cellAt(std::max(0, views_.matrix->selectedRow()), 0).title);
}

void HelpController::showPlace(const std::u16string& place) {
    const std::size_t mark = std::min(place.find(u'#'), place.size());
    views_.webView.loadRequest(fileURL(platform_.resourcePath()) + u"/Help" +
                               place.substr(0, mark) + u".html" + place.substr(mark));
}

void HelpController::takeToggleHelpWindowFrom() {
    if (views_.window.isVisible()) {
        views_.window.orderOut();
        return;
    }
    showSelectedPage();
    show();
}

void HelpController::showHelpFor(const Comand& command) {
    const std::u16string place = helpPlaceOfCommand(command);
    const std::u16string title = place.substr(0, place.find(u'#'));
    for (const HelpPage& page : helpPages()) {
        if (page.title == title) {
            views_.matrix->selectCellWithTag(page.tag);
        }
    }
    showPlace(place);
    show();
}

void HelpController::setHelpViewTextToSize(std::int32_t size) {
    views_.webView.setTextSteps(size);
    textSize_ = size;
}

void HelpController::takeMakeHelpTextLargerFrom() {
    if (textSize_ < std::numeric_limits<std::int32_t>::max()) {
        setHelpViewTextToSize(textSize_ + 1);
    }
}

void HelpController::takeMakeHelpTextSmallerFrom() {
    if (textSize_ > std::numeric_limits<std::int32_t>::min()) {
        setHelpViewTextToSize(textSize_ - 1);
    }
}

void HelpController::decidePolicyFor(const std::u16string& url,
                                     WebPolicyDecisionListener& listener) {
    const std::u16string_view scheme = std::u16string_view(url).substr(0, url.find(u':'));
    const bool isOutside =
        std::find(kOutsideSchemes.begin(), kOutsideSchemes.end(), scheme) != kOutsideSchemes.end();
    if (isOutside) {
        listener.ignore();
        platform_.openURL(url);
    } else {
        listener.use();
    }
}

void HelpController::restore(const SavedState& state, bool isThisVersion) {
    views_.matrix->selectCellWithTag(state.window.helpTag);
    showSelectedPage();
    views_.window.setFrame(state.helpFrame.value_or(firstFrame()));
    if (state.window.helpPanelVisible || !isThisVersion) {
        show();
    }
    setHelpViewTextToSize(state.window.helpViewTextSize);
}

void HelpController::save(SavedState& state) const {
    state.window.helpPanelVisible = views_.window.isVisible();
    state.window.helpTag = views_.matrix->cellAt(std::max(0, views_.matrix->selectedRow()), 0).tag;
    state.window.helpViewTextSize = textSize_;
    state.helpFrame = views_.window.frame();
}

}  // namespace talvex
