// The pages of the help: their examples, their links, and the window that shows them.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "core/DYXCalculator.h"
#include "help/PageMaker.h"
#include "help/function_notes.h"
#include "platform/HeadlessPlatform.h"
#include "ui/DYXWindowController.h"
#include "ui/help_pages.h"

namespace talvex {
namespace {

bool isRegister(const Comand& command) {
    return command.category == fourCC("memo") && characterOf(command.action, 0) == 'M';
}

namespace fs = std::filesystem;

const fs::path kTemplates = TALVEX_RESOURCES;

std::string textOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::string fileOf(const HelpPage& page) {
    return "Help" + std::string(page.title.begin(), page.title.end()) + ".html";
}

std::vector<std::smatch> matches(const std::string& text, const std::regex& pattern) {
    return {std::sregex_iterator(text.begin(), text.end(), pattern), {}};
}

TEST(HelpPages, HaveExamplesThatCalculateSo) {
    const KeyCaps caps;
    const std::regex example(R"(\{\{example:([^|]*)\|(.*?)\| *([^|}]*?) *\}\})");
    const std::regex thinSpace("\u2009");  // which may be typed as a plain one
    const std::regex quote("\"");
    std::size_t count = 0;
    for (const HelpPage& page : helpPages()) {
        const std::string text = textOf(kTemplates / fileOf(page));
        for (const std::smatch& match : matches(text, example)) {
            SCOPED_TRACE(fileOf(page) + match.str());
            HeadlessPlatform platform;
            DYXWindowController calculator(platform);
            ASSERT_TRUE(applySettings(calculator, match.str(1)));
            std::istringstream keys(match.str(2));
            for (std::string key; keys >> key;) {
                press(calculator.calculator(), caps.step(key));
            }
            calculator.calculator().updateDisplay();
            EXPECT_EQ(std::regex_replace(htmlText(shownX(calculator.calculator())), thinSpace, " "),
                      std::regex_replace(match.str(3), quote, "&quot;"));
            EXPECT_EQ(platform.beeps, 0);
            ++count;
        }
    }
    EXPECT_GT(count, 60U);
}

TEST(HelpPages, HaveLinksThatLeadSomewhere) {
    PageMaker maker;
    std::map<std::string, std::set<std::string>> anchors;
    std::map<std::string, std::string> pages;
    for (const HelpPage& page : helpPages()) {
        const auto made = maker.make(textOf(kTemplates / fileOf(page)));
        ASSERT_TRUE(made) << fileOf(page) << ": " << maker.complaint();
        EXPECT_EQ(made->find("{{"), std::string::npos);
        pages[fileOf(page)] = *made;
        for (const std::smatch& match : matches(*made, std::regex(R"re(<a name="([^"]*)">)re"))) {
            EXPECT_TRUE(anchors[fileOf(page)].insert(match.str(1)).second) << match.str();
        }
    }
    for (const auto& [file, text] : pages) {
        for (const std::smatch& match :
             matches(text, std::regex(R"re((href|src)="([^"#]*)#?([^"]*)")re"))) {
            SCOPED_TRACE(file + ": " + match.str());
            const std::string target = match.str(2).empty() ? file : match.str(2);
            EXPECT_TRUE(pages.count(target) == 1 || fs::exists(kTemplates / target));
            EXPECT_TRUE(match.str(3).empty() || anchors[target].count(match.str(3)) == 1);
        }
    }
    // The help on a key, for all keys that have a command.
    for (const KeyCaps::Cap& cap : maker.caps().all()) {
        const std::u16string place = helpPlaceOfCommand(cap.command);
        const std::string file =
            "Help" + htmlText(std::u16string_view(place).substr(0, place.find(u'#'))) + ".html";
        EXPECT_EQ(pages.count(file), 1U) << file;
        const bool hasAnchor = place.find(u'#') != std::u16string::npos;
        // What is told of one register holds for all.
        const std::string anchor =
            isRegister(cap.command) ? "memoM000" : htmlText(stringFromCommand(cap.command));
        EXPECT_TRUE(!hasAnchor || anchors[file].count(anchor) == 1) << file << ' ' << anchor;
    }
}

TEST(HelpPages, TellOfEveryFunctionForWhichNumbersItIs) {
    std::set<std::u16string> noted;
    for (const FunctionNote& note : functionNotes()) {
        EXPECT_TRUE(noted.insert(stringFromCommand(note.command)).second);
    }
    const KeyCaps caps;
    for (const KeyCaps::Cap& cap : caps.all()) {
        const std::u16string text = stringFromCommand(cap.command);
        const std::u16string category = text.substr(0, 4);
        if (category == u"unit" || category == u"bina" || category == u"null") {
            EXPECT_EQ(noted.count(text), 1U) << htmlText(text);
        }
    }
}

class Help : public testing::Test {
  protected:
    [[nodiscard]] const std::u16string& url() const {
        return controller.views().help.webView.requestedURL();
    }

    HeadlessPlatform platform;
    DYXWindowController controller{platform};
    NSWindow& window = controller.views().help.window;
    WebView& view = controller.views().help.webView;
};

class Decision final : public WebPolicyDecisionListener {
  public:
    void use() override { isUsed = true; }
    void ignore() override {}
    bool isUsed = false;
};

TEST_F(Help, SendsWebAndMailOutAndKeepsTheRest) {
    const std::vector<std::u16string> outside{u"http://example.org/", u"https://example.org/",
                                              u"mailto:a@example.org"};
    const std::vector<std::u16string> inside{u"file:///a/HelpStack.html", u"HTTP://example.org/",
                                             u"httpx://example.org/", u"ftp://example.org/",
                                             u"HelpStack.html"};
    for (const auto& [urls, isInside] : {std::pair(outside, false), std::pair(inside, true)}) {
        for (const std::u16string& each : urls) {
            Decision decision;
            view.decidePolicy(each, decision);
            EXPECT_EQ(decision.isUsed, isInside) << testing::PrintToString(each);
        }
    }
    EXPECT_EQ(platform.openedURLs, outside);
}

TEST_F(Help, ShowsItselfAtTheFirstStartAndTogglesAfterwards) {
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(url(), u"file:///resources/HelpStart.html");
    EXPECT_EQ(window.frame(), (NSRect{0, 0, 760, 1080}));
    controller.help().takeToggleHelpWindowFrom();
    EXPECT_FALSE(window.isVisible());
    controller.views().help.matrix->performClickAt(1, 0);
    view.loadRequest(u"elsewhere");
    controller.help().takeToggleHelpWindowFrom();  // loads the selected page afresh
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(url(), u"file:///resources/HelpStack.html");
    controller.help().showFirstPage();
    EXPECT_EQ(url(), u"file:///resources/HelpStart.html");
    platform.resources = "/a b/\u00E4";
    controller.help().showHelpFor(command("unit", "SQR "));
    EXPECT_EQ(url(), u"file:///a%20b/%C3%A4/HelpFunctions.html#unitSQR%20");
    EXPECT_EQ(controller.views().help.matrix->selectedRow(), 5);
}

TEST_F(Help, CountsTheStepsOfItsText) {
    for (int step = 1; step < 20; ++step) {
        controller.help().takeMakeHelpTextLargerFrom();
        EXPECT_EQ(view.textSteps(), std::min(step, WebView::kLargestText));
    }
    controller.help().takeMakeHelpTextNormalFrom();
    EXPECT_EQ(view.textSteps(), 0);
    controller.help().setHelpViewTextToSize(2'000'000'000);  // as a damaged file has it
    EXPECT_EQ(view.textSteps(), WebView::kLargestText);
    EXPECT_EQ(controller.help().textSize(), 2'000'000'000);
    controller.help().setHelpViewTextToSize(-2'147'483'647 - 1);
    controller.help().takeMakeHelpTextSmallerFrom();
    EXPECT_EQ(view.textSteps(), WebView::kSmallestText);
}

}  // namespace
}  // namespace talvex
