// The pages of the help: their examples, their links, and the window that shows them.

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

#include "help/PageMaker.h"
#include "help/function_notes.h"
#include "ui/help_pages.h"
#include "window_fixture.h"

namespace talvex {
namespace {

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
    for (const HelpPage& page : helpPages()) {
        const std::string text = textOf(kTemplates / fileOf(page));
        EXPECT_EQ(matches(text, example).size(), matches(text, std::regex("example:")).size());
        for (const std::smatch& match : matches(text, example)) {
            SCOPED_TRACE(fileOf(page) + match.str());
            HeadlessPlatform platform;
            DYXWindowController controller(platform);
            ASSERT_TRUE(applySettings(controller, match.str(1)));
            std::istringstream keys(match.str(2));
            for (std::string key; keys >> key;) {
                press(controller.calculator(), caps.step(key));
            }
            controller.calculator().updateDisplay();
            const std::string shown = htmlText(shownX(controller.calculator()));
            EXPECT_EQ(std::regex_replace(shown, thinSpace, " "),
                      std::regex_replace(match.str(3), std::regex("\""), "&quot;"));
            EXPECT_EQ(platform.beeps, 0);
        }
    }
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
        const std::string place = htmlText(helpPlaceOfCommand(cap.command));
        const std::size_t hash = std::min(place.find('#'), place.size());
        const std::string file = "Help" + place.substr(0, hash) + ".html";
        EXPECT_EQ(pages.count(file), 1U) << file;
        // What is said of one register holds for all.
        const std::string command = htmlText(stringFromCommand(cap.command));
        const std::string anchor = command.starts_with("memoM") ? "memoM000" : command;
        EXPECT_TRUE(hash == place.size() || anchors[file].count(anchor) == 1) << file << anchor;
    }
}

class Help : public WindowTest {
  protected:
    [[nodiscard]] const std::u16string& url() const { return view.requestedURL(); }

    HelpController& help = controller.help();
    NSWindow& window = views.help.window;
    WebView& view = views.help.webView;
};

TEST_F(Help, SpeaksOfCommandsThatAreKnownAsAllTablesDo) {
    std::vector<Comand> commands;
    for (const Key& key : views.allKeys()) {
        commands.push_back(key.button->command());
    }
    for (const HotKey& row : hotKeyRows()) {
        commands.push_back(row.command);
    }
    for (const FunctionNote& note : functionNotes()) {
        commands.push_back(note.command);
    }
    for (const Comand& command : commands) {
        EXPECT_TRUE(command == Comand() || calculator.doCommand(command))
            << testing::PrintToString(stringFromCommand(command));
    }
}

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
    help.takeToggleHelpWindowFrom();
    EXPECT_FALSE(window.isVisible());
    views.help.matrix->performClickAt(1, 0);
    view.loadRequest(u"elsewhere");
    help.takeToggleHelpWindowFrom();  // loads the selected page afresh
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(url(), u"file:///resources/HelpStack.html");
    platform.resources = "/a b/\u00E4";
    help.showHelpFor(command("unit", "SQR "));
    EXPECT_EQ(url(), u"file:///a%20b/%C3%A4/HelpFunctions.html#unitSQR%20");
    EXPECT_EQ(views.help.matrix->selectedRow(), 5);
}

TEST_F(Help, KeepsTheSizeOfItsTextWithinBounds) {
    help.setHelpViewTextToSize(2'000'000'000);  // as a damaged file has it
    EXPECT_EQ(view.textSteps(), WebView::kLargestText);
    SavedState state;
    help.save(state);
    EXPECT_EQ(state.window.helpViewTextSize, 2'000'000'000);
    help.setHelpViewTextToSize(-2'147'483'647 - 1);
    help.takeMakeHelpTextSmallerFrom();
    EXPECT_EQ(view.textSteps(), WebView::kSmallestText);
}

}  // namespace
}  // namespace talvex
