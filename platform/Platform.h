#pragma once

#include <cstdint>
#include <optional>
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

class PasteboardPort {
  public:
    // The text on the general pasteboard, if there is text.
    [[nodiscard]] virtual std::optional<std::u16string> pasteboardString() const = 0;
    virtual void setPasteboardString(const std::u16string& text) = 0;

  protected:
    ~PasteboardPort() = default;
};

class FilePort {
  public:
    // The user's home folder; empty if there is none, and nothing is kept then.
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

class MousePort {
  public:
    // The mouse buttons that are down; the primary one is bit 0.
    [[nodiscard]] virtual std::uint32_t GetCurrentButtonState() const = 0;

  protected:
    ~MousePort() = default;
};

class WorkspacePort {
  public:
    // Hands the URL to the user's own program for it; a failure isn't told.
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
                 public LogPort,
                 public RandomPort,
                 public LocalePort,
                 public PasteboardPort,
                 public FilePort,
                 public ScreenPort,
                 public MousePort,
                 public WorkspacePort,
                 public BundlePort,
                 public ApplicationPort {
  public:
    virtual ~Platform() = default;
};

}  // namespace talvex
