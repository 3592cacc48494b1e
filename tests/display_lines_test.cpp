#include <memory>
#include <string>

#include "numeric/DYXnan.h"
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
    const DYXInputDisplay line(platform, {.mantissa = field, .status = field});
    const std::unique_ptr<DYXOutputDisplay> copy = line.copy();
    EXPECT_EQ(dynamic_cast<DYXInputDisplay*>(copy.get()), nullptr);
    EXPECT_EQ(copy->mantissaField()->frame(), (NSRect{31, 40, 319, 17}));
    EXPECT_EQ(copy->mantissaField()->superview(), &view);
    EXPECT_EQ(copy->mantissaField()->autoresizingMask(), NSViewWidthSizable);
    EXPECT_EQ(copy->statusField(), nullptr);
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
TEST_F(WindowLines, ShowOneNumberInAllModesAlike) {
    const Text inexact = u"inexact (1234.567800000)";
    const struct {
        int mode;
        Text mantissa, exponent, status;
    } rows[]{{mode::SCI, u"1.234\u20096", u"03", u""},
             {mode::FRC, u"1,234  2839/5000", u"", u"exact"},
             {mode::HMS, u"10 : 34 : 04.0800", u"", u""},
             {mode::HEX, u"00\u200900\u221904\u2009D3", u"hex", inexact},
             {mode::DEC, u"1,235", u"dec", inexact},
             {mode::OCT, u"000\u2009000\u2219002\u2009323", u"oct", inexact},
             {mode::BIN, u"0000 0100 1101 0011 ", u"bin", inexact}};
    edit(calculator, [](CalculatorState& state) { state.stack.reg.fill(1234.5678); });
    for (const auto& row : rows) {
        choose<&Settings::inputDisplayMode>(row.mode);
        const DYXOutputDisplay& x = calculator.xDisplay();
        EXPECT_EQ(x.statusField()->stringValue(), row.status);
        for (const DYXOutputDisplay* line : controller.lines()) {
            SCOPED_TRACE(row.mode);
            EXPECT_EQ(mantissaOf(*line), row.mantissa);
            EXPECT_EQ(line->exponentField()->stringValue(), row.exponent);
            EXPECT_EQ(line->mantissaField()->alignment(), x.mantissaField()->alignment());
            EXPECT_EQ(line->mantissaField()->textColor(), x.mantissaField()->textColor());
        }
    }
}

}  // namespace
}  // namespace talvex
