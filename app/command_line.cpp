#include "command_line.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace talvex {
namespace {

constexpr int kWrongUsage = 2;

constexpr auto kHelp = R"(Usage: talvex [OPTION]...
Scientific calculator in Reverse Polish notation. F1 opens the help, F10 the menu.

  -h, --help      Show the options, and exit.
  -v, --version   Show the version, and exit.
  -display NAME   Open the window on the X server NAME.
  -platform NAME  Open the window by way of xcb or wayland, instead of the first that is there.
  -style NAME     Draw menus and the help in a style of the toolkit, such as fusion or windows.

Other options of the toolkit, such as -name, are handed to it.
)";

constexpr auto kVersion = "talvex " TALVEX_VERSION "\n";

enum class Value { none, nextArgument, nextArgumentOrBehindEqualSign };

struct ToolkitOption {
    std::string_view name;
    Value value;
};

// With one dash or two.
constexpr auto kToolkitOptions = std::to_array<ToolkitOption>({
    {"display", Value::nextArgument},
    {"dograb", Value::none},
    {"geometry", Value::nextArgument},
    {"icon", Value::nextArgument},
    {"name", Value::nextArgument},
    {"nograb", Value::none},
    {"platform", Value::nextArgument},
    {"platformpluginpath", Value::nextArgument},
    {"platformtheme", Value::nextArgument},
    {"plugin", Value::nextArgument},
    {"qwindowgeometry", Value::nextArgument},
    {"qwindowicon", Value::nextArgument},
    {"qwindowtitle", Value::nextArgument},
    {"reverse", Value::none},
    {"session", Value::nextArgument},
    {"style", Value::nextArgumentOrBehindEqualSign},
    {"stylesheet", Value::nextArgumentOrBehindEqualSign},
    {"title", Value::nextArgument},
    {"visual", Value::nextArgument},
    {"widgetcount", Value::none},
});

// How many arguments the toolkit will take for this one: none if it doesn't know it.
std::size_t takenByToolkit(std::string_view argument) {
    if (!argument.starts_with('-')) {
        return 0;
    }
    argument.remove_prefix(argument.starts_with("--") ? 2 : 1);
    const auto equalSign = argument.find('=');
    const std::string_view name = argument.substr(0, equalSign);
    const bool isBehindEqualSign = equalSign != std::string_view::npos;
    const auto* const option =
        std::find_if(kToolkitOptions.begin(), kToolkitOptions.end(),
                     [&](const ToolkitOption& each) { return each.name == name; });
    if (option == kToolkitOptions.end() ||
        (isBehindEqualSign && option->value != Value::nextArgumentOrBehindEqualSign)) {
        return 0;
    }
    return option->value == Value::none || isBehindEqualSign ? 1 : 2;
}

int say(const char* text) {
    const bool isWritten = std::fputs(text, stdout) >= 0 && std::fflush(stdout) == 0;
    return isWritten ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

std::optional<int> answerCommandLine(std::span<const char* const> arguments) {
    for (std::size_t index = 1; index < arguments.size();) {
        const std::string_view argument = arguments[index];
        if (argument == "-h" || argument == "--help") {
            return say(kHelp);
        }
        if (argument == "-v" || argument == "--version") {
            return say(kVersion);
        }
        const std::size_t count = takenByToolkit(argument);
        if (count == 0 || index + count > arguments.size()) {
            const std::string sentence = "talvex: there is no option \"" + std::string(argument) +
                                         "\"; talvex --help shows the options\n";
            std::fputs(sentence.c_str(), stderr);
            return kWrongUsage;
        }
        if (argument.ends_with("-display")) {
            ::setenv("DISPLAY", arguments[index + 1], 1);
        }
        index += count;
    }
    return std::nullopt;
}

}  // namespace talvex
