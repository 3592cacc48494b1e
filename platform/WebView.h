#pragma once

#include <functional>
#include <string>

namespace talvex {

class WebViewObserver {
  public:
    virtual void webViewDidLoad() = 0;
    virtual void webViewDidChangeTextSize() = 0;

  protected:
    ~WebViewObserver() = default;
};

// What a link may do: be followed in the view, or not.
class WebPolicyDecisionListener {
  public:
    virtual void use() = 0;
    virtual void ignore() = 0;

  protected:
    ~WebPolicyDecisionListener() = default;
};

// The record of a view of web pages: the page that it has to load, and how many steps its text
// stands above the normal size, within the range of the view.
class WebView {
  public:
    static constexpr int kLargestText = 10;
    static constexpr int kSmallestText = -5;

    [[nodiscard]] const std::u16string& requestedURL() const { return requestedURL_; }
    void loadRequest(std::u16string url);

    [[nodiscard]] int textSteps() const { return textSteps_; }
    // Steps beyond the range count as its end.
    void setTextSteps(int steps);

    using Policy = std::function<void(const std::u16string& url, WebPolicyDecisionListener&)>;
    void setPolicyDelegate(Policy policy) { policy_ = std::move(policy); }
    // Asks whether a link is to be followed in the view.
    void decidePolicy(const std::u16string& url, WebPolicyDecisionListener& listener) const;

    void setObserver(WebViewObserver* observer) { observer_ = observer; }

  private:
    std::u16string requestedURL_;
    int textSteps_ = 0;
    Policy policy_;
    WebViewObserver* observer_ = nullptr;
};

}  // namespace talvex
