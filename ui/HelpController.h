#pragma once

#include <cstdint>
#include <string>

#include "core/Comand.h"
#include "state/SavedState.h"
#include "ui/WindowViews.h"

namespace talvex {

// The help: which page shows, how large its text is, and where its links lead.
class HelpController {
  public:
    // Both have to outlive it.
    HelpController(HelpViews& views, Platform& platform);

    // Shows the page whose cell is selected.
    void showSelectedPage();
    // Shows the window with its selected page loaded afresh, or hides it.
    void takeToggleHelpWindowFrom();
    void show() { views_.window.makeKeyAndOrderFront(); }
    // Shows what the help says of the command of a key.
    void showHelpFor(const Comand& command);

    // Steps above the normal size of the text; they count on beyond the range of the view.
    void setHelpViewTextToSize(std::int32_t size);
    void takeMakeHelpTextLargerFrom();
    void takeMakeHelpTextSmallerFrom();
    void takeMakeHelpTextNormalFrom() { setHelpViewTextToSize(0); }

    // The window comes to the front unless it was away at the end of this very version.
    void restore(const SavedState& state, bool isThisVersion);
    void save(SavedState& state) const;

  private:
    void showPlace(const std::u16string& place);
    // Web and mail go to the user's own programs, all else stays in the view.
    void decidePolicyFor(const std::u16string& url, WebPolicyDecisionListener& listener);
    [[nodiscard]] NSRect firstFrame() const;

    HelpViews& views_;
    Platform& platform_;
    std::int32_t textSize_ = 0;
};

}  // namespace talvex
