// The help: which page shows, how large its text is, and where its links lead.

#include <algorithm>
#include <array>
#include <limits>

#include "ui/DYXWindowController.h"
#include "ui/help_pages.h"

namespace talvex {
namespace {

// What the user's own programs show; the names count to the letter.
constexpr auto kOutsideSchemes = std::to_array<std::u16string_view>({u"https", u"http", u"mailto"});

}  // namespace

void DYXWindowController::connectHelp() {
    HelpViews& help = views_->help;
    help.matrix->setAction([this](NSMatrix& matrix) { takeShowHelpFrame(&matrix); });
    help.webView.setPolicyDelegate(
        [this](const std::u16string& url, WebPolicyDecisionListener& listener) {
            webViewDecidePolicyForNavigationActionRequestFrameDecisionListener(url, listener);
        });
    help.window.setFrame(
        leftRectOnScreen(platform().visibleFramesOfScreens(), help.window.frame()));
}

void DYXWindowController::takeShowHelpFrame(const NSMatrix* sender) {
    const NSMatrix& matrix = sender != nullptr ? *sender : *views_->help.matrix;
    const int row = sender != nullptr ? std::max(0, matrix.selectedRow()) : 0;
    showHelpPlace(matrix.cellAt(row, 0).title);
}

void DYXWindowController::showHelpPlace(const std::u16string& place) {
    const std::size_t mark = std::min(place.find(u'#'), place.size());
    views_->help.webView.loadRequest(fileURL(platform().resourcePath()) + u"/Help" +
                                     place.substr(0, mark) + u".html" + place.substr(mark));
}

void DYXWindowController::takeToggleHelpWindowFrom() {
    NSWindow& window = views_->help.window;
    if (window.isVisible()) {
        window.orderOut();
        return;
    }
    takeShowHelpFrame(views_->help.matrix.get());
    window.makeKeyAndOrderFront();
}

void DYXWindowController::showHelpFor(const Comand& command) {
    const std::u16string place = helpPlaceOfCommand(command);
    const std::u16string title = place.substr(0, place.find(u'#'));
    for (const HelpPage& page : helpPages()) {
        if (page.title == title) {
            views_->help.matrix->selectCellWithTag(page.tag);
        }
    }
    showHelpPlace(place);
    views_->help.window.makeKeyAndOrderFront();
}

void DYXWindowController::setHelpViewTextToSize(std::int32_t size) {
    views_->help.webView.setTextSteps(size);
    helpViewTextSize_ = size;
}

void DYXWindowController::takeMakeHelpTextLargerFrom() {
    if (helpViewTextSize_ < std::numeric_limits<std::int32_t>::max()) {
        setHelpViewTextToSize(helpViewTextSize_ + 1);
    }
}

void DYXWindowController::takeMakeHelpTextSmallerFrom() {
    if (helpViewTextSize_ > std::numeric_limits<std::int32_t>::min()) {
        setHelpViewTextToSize(helpViewTextSize_ - 1);
    }
}

void DYXWindowController::takeMakeHelpTextNormalFrom() { setHelpViewTextToSize(0); }

void DYXWindowController::webViewDecidePolicyForNavigationActionRequestFrameDecisionListener(
    const std::u16string& url, WebPolicyDecisionListener& listener) {
    const std::u16string_view scheme = std::u16string_view(url).substr(0, url.find(u':'));
    const bool isOutside =
        std::find(kOutsideSchemes.begin(), kOutsideSchemes.end(), scheme) != kOutsideSchemes.end();
    if (isOutside) {
        listener.ignore();
        platform().openURL(url);
    } else {
        listener.use();
    }
}

// The help comes to the front unless it was away at the end of this very version.
void DYXWindowController::applyHelpState(const SavedState& state) {
    HelpViews& help = views_->help;
    help.matrix->selectCellWithTag(state.helpTag);
    takeShowHelpFrame(help.matrix.get());
    help.window.setFrame(state.helpFrame.value_or(
        leftRectOnScreen(platform().visibleFramesOfScreens(), help.window.frame())));
    if (state.helpPanelVisible || stateFile_.prevVersion() != StateFile::kLastVersion) {
        help.window.makeKeyAndOrderFront();
    }
    setHelpViewTextToSize(state.helpViewTextSize);
}

void DYXWindowController::storeHelpState(SavedState& state) const {
    const HelpViews& help = views_->help;
    state.helpPanelVisible = help.window.isVisible();
    state.helpTag = help.matrix->cellAt(std::max(0, help.matrix->selectedRow()), 0).tag;
    state.helpFrame = help.window.frame();
    state.helpViewTextSize = helpViewTextSize_;
}

}  // namespace talvex
