#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "numeric/DYXnan.h"
#include "same_bits.h"
#include "state/DYXDataExtensions.h"
#include "window_fixture.h"

namespace talvex {
namespace {

using Text = std::u16string;

Text mantissaOf(const DYXOutputDisplay& line) { return line.mantissaField()->stringValue(); }

TEST(CopiedLine, IsPlainAndStandsAboveItsOriginal) {
    HeadlessPlatform platform;
    NSView view(NSRect{0, 0, 394, 41});
    const auto field = std::make_shared<NSTextField>(NSRect{31, 20, 319, 17});
    field->setAutoresizingMask(NSViewWidthSizable);
    view.addSubview(field);
    DYXInputDisplay line(platform, {.mantissa = field, .status = field});
    LineSettings settings{
        .digits = 7, .maxDigits = 12, .outputMode = mode::SCI, .reduceCarpentryFractions = false};
    const LineSettings copied = settings;
    settings.displayIrrationals = true;
    settings.decimalGroupingSeparator = u"_";
    line.setSettings(settings);
    line.setInputMode(mode::HEX);
    const std::unique_ptr<DYXOutputDisplay> copy = line.copy();
    EXPECT_EQ(dynamic_cast<DYXInputDisplay*>(copy.get()), nullptr);
    EXPECT_EQ(copy->mantissaField()->frame(), (NSRect{31, 40, 319, 17}));
    EXPECT_EQ(copy->mantissaField()->superview(), &view);
    EXPECT_EQ(copy->mantissaField()->autoresizingMask(), NSViewWidthSizable);
    EXPECT_EQ(copy->statusField(), nullptr);
    EXPECT_EQ(copy->settings(), copied);

    const NSFont font{.name = u"Some Font", .size = 20};
    line.setTextFont(font);
    copy->syncToDisplay(line);
    settings.outputMode = mode::HEX;  // the mode that the original shows in
    EXPECT_EQ(copy->settings(), settings);
    EXPECT_EQ(copy->textFont(), font);
    copy->setOutputTo(-DYXnan('Q'));  // absent slots are passed over
    EXPECT_EQ(mantissaOf(*copy), u"sqrt error");
}

class WindowLines : public WindowTest {
  protected:
    Text shown(double x) {
        setX(x);
        calculator.updateDisplay();
        return mantissaOf(calculator.xDisplay());
    }
    const LineSettings& lineY() { return calculator.yDisplay().settings(); }
};

TEST_F(WindowLines, NeverGroupWithTheDecimalSeparator) {
    EXPECT_EQ(calculator.cDisplay().settings().integerGroupingSeparator, u"");
    for (const int mode : {1, 2, 0}) {
        choose<&Settings::decimalMode>(mode);
        EXPECT_EQ(shown(1234567.891),
                  mode == 2 ? u"1.234.567,891\u20090" : u"1,234,567.891\u20090");
    }
    platform.format.decimalSeparator = u",";
    controller.applicationWillBecomeActive();
    EXPECT_EQ(shown(1234567.891), u"1.234.567,891\u20090");
    EXPECT_EQ(calculator.cDisplay().decimalSeparator(), u',');
}

TEST_F(WindowLines, GroupByTheSettings) {
    const Text separators[]{u"1234.5678", u"1,234.567\u20098", u"1\u2009234.567\u20098",
                            u"1 234.567 8", u"1234.5678"};
    for (int mode = 0; mode < 5; ++mode) {
        choose<&Settings::digitGroupingSeparatorMode>(mode);
        EXPECT_EQ(shown(1234.5678), separators[mode]) << mode;
    }
    const std::uint32_t sizes[]{3, 2, 2, 3, 4, 4, 4};
    for (int mode = 0; mode < 7; ++mode) {
        choose<&Settings::digitGroupingDigitsMode>(mode);
        EXPECT_EQ(lineY().groupingDigits, sizes[mode]) << mode;
        EXPECT_EQ(controller.settings().digitGroupingDigitsMode, mode);
    }
    platform.format.groupingSize = 0;
    choose<&Settings::digitGroupingDigitsMode>(0);
    EXPECT_EQ(lineY().groupingDigits, 3U);
}

// 1234.5678 with the groups of a first start, in X and in the lines that follow it.
TEST_F(WindowLines, ShowOneNumberInThirteenModes) {
    const Text inexact = u"inexact (1234.567800000)";
    const struct {
        Text mantissa, exponent, status;
    } rows[]{{u"1,234.567\u20098", u"", u""},
             {u"1.234\u20096", u"03", u""},
             {u"1.234\u20096", u"03", u""},
             {u"1,234.567\u20098", u"", u""},
             {u"1,234  2839/5000", u"", u"exact"},
             {u"1,234  290/512", u"", u"approx"},
             {u"10 : 34 : 04.0800", u"", u""},
             {u"154\u00B0 34' 04.0800\"", u"", u""},
             {u"00\u200900\u221904\u2009D3", u"hex", inexact},
             {u"1,235", u"dec", inexact},
             {u"000\u2009000\u2219002\u2009323", u"oct", inexact},
             {u"0000 0100 1101 0011 ", u"bin", inexact},
             {u"1,234.567\u20098", u"", u""}};
    edit(calculator, [](CalculatorState& state) { state.stack.reg.fill(1234.5678); });
    for (int mode = 0; mode < mode::count; ++mode) {
        choose<&Settings::inputDisplayMode>(mode);
        const DYXOutputDisplay& x = calculator.xDisplay();
        EXPECT_EQ(x.statusField()->stringValue(), rows[mode].status);
        for (const DYXOutputDisplay* line : controller.lines()) {
            SCOPED_TRACE(mode);
            EXPECT_EQ(mantissaOf(*line), rows[mode].mantissa);
            EXPECT_EQ(line->exponentField()->stringValue(), rows[mode].exponent);
            EXPECT_EQ(line->mantissaField()->alignment(), x.mantissaField()->alignment());
            EXPECT_EQ(line->mantissaField()->textColor(), x.mantissaField()->textColor());
        }
    }
}

TEST(DataExtensions, AreBigEndianBytes) {
    using namespace DYXDataExtensions;
    using Bytes = std::vector<std::uint8_t>;
    const std::pair<double, Bytes> numbers[]{
        {3.141592653589793, {0x40, 0x09, 0x21, 0xFB, 0x54, 0x44, 0x2D, 0x18}},
        {DYXnan('L'), {0x7F, 0xF8, 0, 0, 0, 0, 0, 0x4C}}};
    for (auto [number, bytes] : numbers) {
        const auto data = dataWithDouble(number);
        EXPECT_EQ(Bytes(data.begin(), data.end()), bytes);
        bytes.push_back(0xAA);  // only the first eight count
        EXPECT_TRUE(isSame(doubleValue(bytes), number));
        bytes.resize(7);
        EXPECT_EQ(doubleValue(bytes), 0.0);
    }
    const auto data = dataWithRect({1, -2, 0.1, 404});
    Bytes bytes(data.begin(), data.end());
    EXPECT_EQ(bytes,
              (Bytes{0x3F, 0x80, 0, 0, 0xC0, 0, 0, 0, 0x3D, 0xCC, 0xCC, 0xCD, 0x43, 0xCA, 0, 0}));
    bytes.push_back(0xAA);
    EXPECT_EQ(rectValue(bytes), (NSRect{1, -2, static_cast<double>(0.1F), 404}));
    bytes.resize(15);
    EXPECT_EQ(rectValue(bytes), NSRect{});
}

}  // namespace
}  // namespace talvex
