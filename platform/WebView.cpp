#include "platform/WebView.h"

#include <algorithm>
#include <utility>

namespace talvex {

void WebView::loadRequest(std::u16string url) {
    requestedURL_ = std::move(url);
    if (observer_ != nullptr) {
        observer_->webViewDidLoad();
    }
}

void WebView::setTextSteps(int steps) {
    const int wanted = std::clamp(steps, kSmallestText, kLargestText);
    if (wanted != std::exchange(textSteps_, wanted) && observer_ != nullptr) {
        observer_->webViewDidChangeTextSize();
    }
}

void WebView::decidePolicy(const std::u16string& url, WebPolicyDecisionListener& listener) const {
    if (policy_) {
        policy_(url, listener);
    } else {
        listener.use();
    }
}

}  // namespace talvex
