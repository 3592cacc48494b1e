#pragma once

#include <optional>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/Platform.h"

namespace talvex {

// A desktop kept in memory, for tests, benchmarks and fuzzers.
class HeadlessPlatform final : public Platform {
  public:
    void NSBeep() override { ++beeps; }
    void deliverNotification(const std::string& text) override { notifications.push_back(text); }
    void NSLog(const std::u16string& line) override { log.push_back(line); }
    std::uint32_t arc4random() override { return static_cast<std::uint32_t>(random()); }
    [[nodiscard]] NSNumberFormat numberFormat() const override { return format; }

    void requestPasteboardString(PasteboardAnswer answer) override {
        pasteboardAnswer = std::move(answer);
        if (pasteboardAnswersAtOnce) {
            answerPasteboardRequest(
                {.outcome = pasteboard ? PasteboardOutcome::text : PasteboardOutcome::none,
                 .text = pasteboard.value_or(u"")});
        }
    }
    void dropPasteboardRequest() override { pasteboardAnswer = nullptr; }
    // To whoever waits for it.
    void answerPasteboardRequest(const PasteboardText& text) {
        if (const auto answer = std::exchange(pasteboardAnswer, nullptr)) {
            answer(text);
        }
    }
    void setPasteboardString(const std::u16string& text) override { pasteboard = text; }
    [[nodiscard]] std::string NSHomeDirectory() const override { return home; }
    [[nodiscard]] std::vector<NSRect> visibleFramesOfScreens() const override { return screens; }
    [[nodiscard]] bool canFloatWindows() const override { return floatsWindows; }
    [[nodiscard]] std::uint32_t GetCurrentButtonState() const override { return mouseButtons; }
    void openURL(const std::u16string& url) override { openedURLs.push_back(url); }
    [[nodiscard]] std::string resourcePath() const override { return resources; }
    [[nodiscard]] std::u16string localizedString(std::u16string_view key) const override {
        titlesAskedFor.insert(std::u16string(key));
        return std::u16string(key);
    }
    void terminate() override { isTerminated = true; }

    int beeps = 0;
    std::vector<std::string> notifications;
    std::vector<std::u16string> log;
    std::mt19937 random;  // always the same numbers, so that a test can be run again
    NSNumberFormat format;
    std::optional<std::u16string> pasteboard;
    bool pasteboardAnswersAtOnce = true;
    PasteboardAnswer pasteboardAnswer;
    std::string home;  // none, unless a test gives one
    std::vector<NSRect> screens{{.width = 1920.0, .height = 1080.0}};
    bool floatsWindows = true;
    std::uint32_t mouseButtons = 0;
    std::vector<std::u16string> openedURLs;
    std::string resources = "/resources";
    mutable std::set<std::u16string> titlesAskedFor;
    bool isTerminated = false;
};

}  // namespace talvex
