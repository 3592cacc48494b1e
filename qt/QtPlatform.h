#pragma once

#include <QTranslator>
#include <functional>
#include <memory>
#include <utility>

#include "platform/Platform.h"

namespace talvex {

class SelectionReader;

// The real desktop behind the ports.
class QtPlatform final : public Platform {
  public:
    // Needs the application. Takes the titles of the desktop's language where there are such.
    QtPlatform();
    ~QtPlatform() override;

    void NSBeep() override;
    // Is called with every beep.
    void setShowAlert(std::function<void()> showAlert) { showAlert_ = std::move(showAlert); }
    // On standard error, and by the desktop where it shows notifications.
    void deliverNotification(const std::string& text) override;
    // Shown when the logging category "talvex" is switched on.
    void NSLog(const std::u16string& line) override;
    std::uint32_t arc4random() override;
    [[nodiscard]] NSNumberFormat numberFormat() const override;
    // The clipboard; the primary selection is left alone. Without an X server the toolkit reads it,
    // which waits for the program that has the text.
    void requestPasteboardString(PasteboardAnswer answer) override;
    void dropPasteboardRequest() override;
    void setPasteboardString(const std::u16string& text) override;
    [[nodiscard]] std::string NSHomeDirectory() const override;
    [[nodiscard]] std::vector<NSRect> visibleFramesOfScreens() const override;
    [[nodiscard]] bool canFloatWindows() const override;
    [[nodiscard]] std::uint32_t GetCurrentButtonState() const override;
    void openURL(const std::u16string& url) override;
    [[nodiscard]] std::string resourcePath() const override;
    [[nodiscard]] std::u16string localizedString(std::u16string_view key) const override;
    void terminate() override;

  private:
    // Null where there is no X server.
    SelectionReader* selectionReader();

    QTranslator titles_;
    std::function<void()> showAlert_;
    std::unique_ptr<SelectionReader> selectionReader_;
};

}  // namespace talvex
