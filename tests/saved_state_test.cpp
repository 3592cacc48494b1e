// What a calculator brings back after its end, and what it makes of files that it never wrote.

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <tuple>
#include <utility>

#include "PrivateHome.h"
#include "edit_state.h"
#include "numeric/DYXnan.h"
#include "platform/HeadlessPlatform.h"
#include "platform/NSEvent.h"
#include "same_bits.h"
#include "state/DYXDataExtensions.h"
#include "state/StateFile.h"
#include "ui/DYXWindowController.h"

namespace talvex {
namespace {

namespace fs = std::filesystem;

class SavedFile : public testing::Test {
  protected:
    SavedFile() { platform.home = home.string(); }

    void put(const fs::path& path, const std::string& bytes) const {
        fs::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << bytes;
    }
    [[nodiscard]] std::string bytesOf(const fs::path& path) const {
        std::ifstream stream(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    [[nodiscard]] fs::path copy(const std::string& word) const {
        return file.string() + '.' + word;
    }

    const PrivateHome privateHome;
    const fs::path home = privateHome.folder();
    const fs::path file = privateHome.file();
    HeadlessPlatform platform;
};

PropertyData dataOf(double number) {
    const auto bytes = DYXDataExtensions::dataWithDouble(number);
    return {bytes.begin(), bytes.end()};
}

// Turns over every switch of a menu, and chooses the last of several values.
void chooseAll(NSMenu& menu) {
    for (NSMenuItem& item : menu.items) {
        chooseAll(item.submenu);
        if (item.validation && item.enabled) {
            item.action(item);
        }
    }
}

// What the menu, the drawers and the help were set to, as far as it can be seen.
auto settingsOf(DYXWindowController& calculator) {
    const DYXInputDisplay& line = calculator.calculator().xDisplay();
    const WindowLayout& layout = calculator.layout();
    const WindowViews& views = calculator.views();
    return std::tuple(calculator.settings(), line.settings(), line.inputSettings(),
                      line.textFont()->name, calculator.calculator().angleMode(),
                      layout.keyPadHidden, layout.displayViewMode, layout.showStatusLine,
                      views.window.frame(), views.conversionPanel.tabView->indexOfSelectedItem(),
                      views.help.window.frame(), views.help.window.isVisible(),
                      views.help.webView.textSteps(), views.help.webView.requestedURL());
}

TEST_F(SavedFile, BringsEverythingBackToTheBit) {
    DYXWindowController first(platform);
    edit(first.calculator(), [](CalculatorState& state) {
        state.stack = {.reg = {DYXnan('L'), -0.0, kInfinity, 5e-324}, .lastX = -kInfinity};
        for (std::size_t index = 0; index < kSavedRegisters; ++index) {
            state.mem.at(index) = 1.0 / (1.0 + static_cast<double>(index));
        }
    });
    for (const DrawerName name : kDrawerNames) {
        first.drawers().toggleDrawer(name);
    }
    validateMenu(first.views().menu);
    chooseAll(first.views().menu);
    first.choose(settingRow<&Settings::outputDisplayMode>(), mode::CAR);
    first.views().conversionPanel.tabView->selectTabViewItemAtIndex(3);
    first.views().help.matrix->performClickAt(3, 0);
    first.views().help.window.setFrame({10, 20, 500, 400});
    first.help().setHelpViewTextToSize(-2);
    first.applicationWillTerminate();
    const PropertyDictionary saved = propertiesOf(*StateFile(home).read());
    for (const auto& [key, value] : propertiesOf({})) {  // the drawers are closed, to come back
        EXPECT_TRUE(saved.at(key) != value || key == "inputState" || key.ends_with("DrawerState"))
            << key;
    }
    DYXWindowController second(platform);
    EXPECT_EQ(settingsOf(second), settingsOf(first));
    EXPECT_TRUE(second.calculator().state() == first.calculator().state());
    EXPECT_EQ(second.calculator().yDisplay().outputMode(), mode::CAR);
    second.geometry().takeShowKeyPadFrom();
    for (const DrawerName name : kDrawerNames) {
        EXPECT_TRUE(second.drawers()[name].record.isOpenOrOpening());
    }
}

TEST_F(SavedFile, EndsALiveEntryAsEnterDoesAndASaveDoesnt) {
    DYXWindowController calculator(platform);
    for (const char16_t key : {u'4', u'2'}) {
        calculator.keyDown({.type = NSKeyDown, .charactersIgnoringModifiers = {key}});
    }
    calculator.saveDocument();
    EXPECT_EQ(StateFile(home).read()->reg[1], 0.0);
    EXPECT_EQ(calculator.calculator().inputState(), InputState::entering);
    calculator.applicationWillTerminate();
    const SavedState state = *StateFile(home).read();
    EXPECT_EQ(state.reg, (std::array<double, 4>{42, 42, 0, 0}));
    EXPECT_EQ(state.inputState, 2);
    EXPECT_TRUE(DYXWindowController(platform).views().help.window.isVisible());
}

TEST_F(SavedFile, RevertsToWhatWasSaved) {
    DYXWindowController calculator(platform);
    calculator.revertDocumentToSaved();
    setX(calculator.calculator(), 3.5);
    calculator.saveDocument();
    setX(calculator.calculator(), 4.5);
    calculator.choose(settingRow<&Settings::inputDisplayMode>(), 1);
    calculator.choose(settingRow<&Settings::decimalMode>(), 2);
    calculator.revertDocumentToSaved();
    EXPECT_EQ(calculator.calculator().xDisplay().mantissaField()->stringValue(), u"3.500\u20090");
}

TEST_F(SavedFile, LeavesTheLayoutAloneWithoutAFrame) {
    put(file, writePropertyList({{"keyPadHidden", true},
                                 {"displayViewMode", std::int64_t{1}},
                                 {"digits", std::int64_t{7}}},
                                PropertyListFlavour::xml));
    DYXWindowController calculator(platform);
    EXPECT_EQ(calculator.calculator().xDisplay().digits(), 7U);
    calculator.drawers().toggleDrawer(DrawerName::memory);
    calculator.revertDocumentToSaved();
    EXPECT_EQ(calculator.drawers()[DrawerName::memory].record.state(), NSDrawerOpenState);
    EXPECT_FALSE(calculator.layout().keyPadHidden);
    // With one the status line comes and goes with the key pad.
    calculator.saveDocument();
    calculator.geometry().takeShowKeyPadFrom();
    calculator.revertDocumentToSaved();
    EXPECT_FALSE(calculator.views().keyPad.view()->statusField()->isHidden());
}

TEST_F(SavedFile, HasTwoSetsOfDefaults) {
    PropertyDictionary missing = propertiesOf(savedStateFrom({}));
    const PropertyDictionary none = propertiesOf({});
    for (const char* key : {"showStatusLine", "includeDigitGroupingWhenCopying"}) {
        EXPECT_EQ(std::exchange(missing.at(key), false), PropertyValue(true)) << key;
    }
    EXPECT_EQ(missing, none);
}

TEST_F(SavedFile, ReadsOlderFilesAndWritesTheNewest) {
    const fs::path folder = home / "Library/Preferences";
    StateFile stateFile(home);
    EXPECT_FALSE(stateFile.read());
    EXPECT_EQ(stateFile.prevVersion(), 10);
    const std::pair<const char*, int> versions[]{{"com.Quondel.Talvex.data", 10},
                                                 {"com.Quondel.Talvex.data.plist", 11}};
    for (const auto& [name, number] : versions) {
        put(folder / name,
            writePropertyList({{"reg[0]", dataOf(number)}}, PropertyListFlavour::binary));
        EXPECT_EQ(stateFile.read()->reg[0], number);
        EXPECT_EQ(stateFile.prevVersion(), number);
    }
    SavedState state;
    state.reg[0] = 12;
    EXPECT_FALSE(stateFile.write(state));
    EXPECT_EQ(stateFile.read()->reg[0], 12);
    EXPECT_EQ(stateFile.prevVersion(), 12);
    EXPECT_TRUE(fs::exists(folder / "com.Quondel.Talvex.data"));
}

TEST_F(SavedFile, UnderstandsOlderKeysAndOtherKinds) {
    constexpr std::array<float, 4> kFrame{1, 2, 404, 229};
    const auto native = std::bit_cast<std::array<std::uint8_t, 16>>(kFrame);
    const PropertyDictionary oldValues{{"windowIsBig", false},
                                       {"keyPadHidden", false},
                                       {"memKeysWasOpen", true},
                                       {"memoryWasOpen", false},
                                       {"memKeysDrawerState", std::int64_t{2}},
                                       {"memoryDrawerState", std::int64_t{1}},
                                       {"showStatusLines", false},
                                       {"helpFame", PropertyData(16)},
                                       {"frame", PropertyData(native.begin(), native.end())}};
    const SavedState old = savedStateFrom(oldValues);
    EXPECT_TRUE(old.layout.keyPadHidden && old.window.memoryWasOpen && !old.layout.showStatusLine);
    EXPECT_EQ(old.window.memoryDrawerState, 2);
    EXPECT_EQ(old.helpFrame, NSRect{});
    EXPECT_EQ(old.calculatorFrame, (NSRect{1, 2, 404, 229}));
    const PropertyDictionary oddValues{{"reg[0]", std::int64_t{7}},
                                       {"reg[1]", std::string(" -2.5e1x")},
                                       {"reg[2]", PropertyData{1, 2, 3}},
                                       {"reg[3]", true},
                                       {"digits", std::int64_t{4'000'000'000}},
                                       {"angleMode", std::string("3")},
                                       {"fontMode", 1.9},
                                       {"showStatusLine", std::string("YES")},
                                       {"animateWindow", PropertyData{}},
                                       {"calculatorFrame", std::string("here")},
                                       {"showStatusLines", false}};
    const SavedState odd = savedStateFrom(oddValues);
    EXPECT_EQ(odd.reg, (std::array<double, 4>{7, -25, 0, 1}));
    EXPECT_EQ(static_cast<std::uint32_t>(odd.settings.digits), 4'000'000'000U);
    EXPECT_EQ(odd.settings.angleMode, AngleMode::hrs);
    EXPECT_EQ(odd.settings.fontMode, FontMode::proportional);
    EXPECT_TRUE(odd.layout.showStatusLine);
    EXPECT_FALSE(odd.settings.animateWindow);
    EXPECT_EQ(odd.calculatorFrame, NSRect{});
}

TEST_F(SavedFile, KeepsAFileThatItCantRead) {
    SavedState state;
    for (const char* content : {"no property list", "", "bplist00 neither"}) {
        put(file, content);
        EXPECT_FALSE(StateFile(home).read());
        EXPECT_FALSE(StateFile(home).write(state));
    }
    EXPECT_EQ(bytesOf(copy("damaged")), "no property list");
    EXPECT_EQ(bytesOf(copy("damaged-3")), "bplist00 neither");
    put(file, "no property list");
    EXPECT_FALSE(StateFile(home).write(state));
    EXPECT_FALSE(fs::exists(copy("damaged-4")));
}

TEST_F(SavedFile, KeepsTheLatestFilesThatCameMeanwhile) {
    SavedState state;
    StateFile first(home);
    StateFile second(home);
    for (state.reg[0] = 1; state.reg[0] <= 2; ++state.reg[0]) {
        EXPECT_FALSE(first.write(state));
    }
    EXPECT_TRUE(second.read());
    EXPECT_FALSE(second.write({}));
    EXPECT_FALSE(fs::exists(copy("other")));
    for (; state.reg[0] <= 25; ++state.reg[0]) {
        EXPECT_FALSE(first.write(state));
        EXPECT_FALSE(second.write({}));
    }
    std::set<double> kept;
    for (const auto& entry : fs::directory_iterator(file.parent_path())) {
        kept.insert(savedStateFrom(readPropertyList(bytesOf(entry.path()))->values).reg[0]);
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(file.parent_path()), {}), 21);
    EXPECT_EQ(kept.count(3), 0U);
    EXPECT_EQ(kept.count(25), 1U);
}

TEST_F(SavedFile, SaysThatASaveFailed) {
    EXPECT_TRUE(StateFile(fs::path()).write({}));
    fs::remove_all(home / "Library");
    put(home / "Library", "a file in the folder's place");
    DYXWindowController calculator(platform);
    calculator.saveDocument();
    ASSERT_EQ(platform.notifications.size(), 1U);
    EXPECT_NE(platform.notifications[0].find(file.string() + ": Not a dir"), std::string::npos)
        << platform.notifications[0];
    fs::remove(home / "Library");
    fs::create_directories(file);  // a folder in the file's place
    calculator.applicationWillTerminate();
    EXPECT_TRUE(fs::is_directory(copy("damaged")));
    EXPECT_EQ(platform.notifications.size(), 1U);
}

}  // namespace
}  // namespace talvex
