#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/NSGeometry.h"

// The few things that only a real desktop can do, each behind a small port.
namespace talvex {

class AlertPort {
  public:
    virtual void NSBeep() = 0;

  protected:
    ~AlertPort() = default;
};

class NotificationPort {
  public:
    // Shows the user, in UTF-8, what went wrong; also while the program ends.
    virtual void deliverNotification(const std::string& text) = 0;

  protected:
    ~NotificationPort() = default;
};

class LogPort {
  public:
    virtual void NSLog(const std::u16string& line) = 0;

  protected:
    ~LogPort() = default;
};

class RandomPort {
  public:
    // Uniform over all 32-bit numbers.
    virtual std::uint32_t arc4random() = 0;

  protected:
    ~RandomPort() = default;
};

struct NSNumberFormat {
    std::u16string decimalSeparator = u".";
    std::uint32_t groupingSize = 3;
};

class LocalePort {
  public:
    // How the system's locale writes numbers at this moment.
    [[nodiscard]] virtual NSNumberFormat numberFormat() const = 0;

  protected:
    ~LocalePort() = default;
};

// How a request for the text on the pasteboard ended.
enum class PasteboardOutcome {
    text,
    none,  // there is no text
    late,  // whoever has the text doesn't hand it over in time
};

struct PasteboardText {
    PasteboardOutcome outcome = PasteboardOutcome::none;
    std::u16string text;
};

class PasteboardPort {
  public:
    // No more of a text is asked for, in bytes of UTF-8.
    static constexpr std::size_t kLongestPasteboardText = 65536;

    using PasteboardAnswer = std::function<void(const PasteboardText&)>;
    // Asks for the text on the general pasteboard. The answer comes once, at once or from the event
    // loop within half a second; that to an earlier request, if it is still to come, never does. On
    // Wayland it takes as long as the program that has the text.
    virtual void requestPasteboardString(PasteboardAnswer answer) = 0;
    // The request under way, if there is one, gets no answer.
    virtual void dropPasteboardRequest() = 0;
    virtual void setPasteboardString(const std::u16string& text) = 0;

  protected:
    ~PasteboardPort() = default;
};

class FilePort {
  public:
    // The user's home folder, in the file system's own bytes; empty if there is none, and nothing
    // is kept then.
    [[nodiscard]] virtual std::string NSHomeDirectory() const = 0;

  protected:
    ~FilePort() = default;
};

class ScreenPort {
  public:
    // What can be used of each screen, the first one being the user's main one; none if unknown.
    [[nodiscard]] virtual std::vector<NSRect> visibleFramesOfScreens() const = 0;

  protected:
    ~ScreenPort() = default;
};

class WindowLevelPort {
  public:
    // Whether the desktop can keep a window above all others, as it is at this moment.
    [[nodiscard]] virtual bool canFloatWindows() const = 0;

  protected:
    ~WindowLevelPort() = default;
};

class MousePort {
  public:
    // The mouse buttons that are down; the primary one is bit 0.
    [[nodiscard]] virtual std::uint32_t GetCurrentButtonState() const = 0;

  protected:
    ~MousePort() = default;
};

class WorkspacePort {
  public:
    // Hands the URL to the user's own program for it; a failure isn't reported.
    virtual void openURL(const std::u16string& url) = 0;

  protected:
    ~WorkspacePort() = default;
};

class BundlePort {
  public:
    // The folder of the pages and pictures that come with the program, in UTF-8.
    [[nodiscard]] virtual std::string resourcePath() const = 0;
    // The title in the user's language; the key itself where the table has no entry.
    [[nodiscard]] virtual std::u16string localizedString(std::u16string_view key) const = 0;

  protected:
    ~BundlePort() = default;
};

class ApplicationPort {
  public:
    // Ends the program; the controller still hears that it will.
    virtual void terminate() = 0;

  protected:
    ~ApplicationPort() = default;
};

// All ports of one desktop.
class Platform : public AlertPort,
                 public NotificationPort,
                 public LogPort,
                 public RandomPort,
                 public LocalePort,
                 public PasteboardPort,
                 public FilePort,
                 public ScreenPort,
                 public WindowLevelPort,
                 public MousePort,
                 public WorkspacePort,
                 public BundlePort,
                 public ApplicationPort {
  public:
    virtual ~Platform() = default;
};

}  // namespace talvex
