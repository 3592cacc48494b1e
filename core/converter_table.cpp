#include "core/converter_table.h"

#include <algorithm>
#include <array>

#include "core/Comand.h"
#include "numeric/power_and_slope.h"
#include "numeric/temperature.h"

namespace talvex {
namespace {

constexpr UnitGroup kPrefix{.code = fourCC("prfx"), .index = 0};
constexpr UnitGroup kEnergy{.code = fourCC("ener"), .index = 2};
constexpr UnitGroup kDensity{.code = fourCC("mden"), .index = 3};
constexpr UnitGroup kAngle{.code = fourCC("angl"), .index = 14};
constexpr UnitGroup kTime{.code = fourCC("time"), .index = 4};
constexpr UnitGroup kLength{.code = fourCC("len "), .index = 1};
constexpr UnitGroup kArea{.code = fourCC("area"), .index = 5};
constexpr UnitGroup kVolume{.code = fourCC("volu"), .index = 6};
constexpr UnitGroup kSpeed{.code = fourCC("sped"), .index = 7};
constexpr UnitGroup kAcceleration{.code = fourCC("accl"), .index = 8};
constexpr UnitGroup kPower{.code = fourCC("powe"), .index = 9};
constexpr UnitGroup kForce{.code = fourCC("forc"), .index = 10};
constexpr UnitGroup kMass{.code = fourCC("mass"), .index = 13};
constexpr UnitGroup kPressure{.code = fourCC("pres"), .index = 11};
constexpr UnitGroup kTemperature{.code = fourCC("temp"), .index = 12};

// The first unit of a group is its base unit; of the temperatures that is "cent", degrees Celsius.
// Wavelengths and the wave number go through the product of Planck's constant and the speed of
// light, frequencies of an energy through Planck's constant, "Tesl" through the Bohr magneton,
// "Kelv" through Boltzmann's constant, "eV  " through the elementary charge. Among the angles
// "hour", "mins" and "secs" measure time, and ' and " are the minute and second of arc.
constexpr auto kConverters = std::to_array<ConverterRow>({
    {.group = kPrefix, .action = fourCC("one "), .factor = 1.0},
    {.group = kPrefix, .action = fourCC("atto"), .factor = 1e-18},
    {.group = kPrefix, .action = fourCC("femt"), .factor = 1e-15},
    {.group = kPrefix, .action = fourCC("nano"), .factor = 1e-09},
    {.group = kPrefix, .action = fourCC("pico"), .factor = 1e-12},
    {.group = kPrefix, .action = fourCC("micr"), .factor = 1e-06},
    {.group = kPrefix, .action = fourCC("mill"), .factor = 0.001},
    {.group = kPrefix, .action = fourCC("cent"), .factor = 0.01},
    {.group = kPrefix, .action = fourCC("Exa "), .factor = 1e+18},
    {.group = kPrefix, .action = fourCC("Peta"), .factor = 1000000000000000.0},
    {.group = kPrefix, .action = fourCC("Tera"), .factor = 1000000000000.0},
    {.group = kPrefix, .action = fourCC("Giga"), .factor = 1000000000.0},
    {.group = kPrefix, .action = fourCC("Mega"), .factor = 1000000.0},
    {.group = kPrefix, .action = fourCC("Kilo"), .factor = 1000.0},

    {.group = kEnergy, .action = fourCC("Joul"), .factor = 1.0},
    {.group = kEnergy, .action = fourCC("1/cm"), .factor = 1.9864455003959037e-23},
    {.group = kEnergy, .action = fourCC("Enm "), .factor = 1.9864455003959037e-16, .inverse = true},
    {.group = kEnergy, .action = fourCC("Eum "), .factor = 1.9864455003959036e-19, .inverse = true},
    {.group = kEnergy, .action = fourCC("Emm "), .factor = 1.9864455003959036e-22, .inverse = true},
    {.group = kEnergy, .action = fourCC("Ecm "), .factor = 1.9864455003959037e-23, .inverse = true},
    {.group = kEnergy, .action = fourCC("Em  "), .factor = 1.9864455003959036e-25, .inverse = true},
    {.group = kEnergy, .action = fourCC("kHz "), .factor = 6.62606896e-31},
    {.group = kEnergy, .action = fourCC("MHz "), .factor = 6.62606896e-28},
    {.group = kEnergy, .action = fourCC("GHz "), .factor = 6.626068959999999e-25},
    {.group = kEnergy, .action = fourCC("THz "), .factor = 6.6260689599999995e-22},
    {.group = kEnergy, .action = fourCC("Tesl"), .factor = 9.27400915e-24},
    {.group = kEnergy, .action = fourCC("Kelv"), .factor = 1.3806504e-23},
    {.group = kEnergy, .action = fourCC("eV  "), .factor = 1.602176487e-19},
    {.group = kEnergy, .action = fourCC("meV "), .factor = 1.6021764870000001e-22},
    {.group = kEnergy, .action = fourCC("BTU "), .factor = 1055.05585},
    {.group = kEnergy, .action = fourCC("ergs"), .factor = 1e-07},
    {.group = kEnergy, .action = fourCC("cal "), .factor = 4.184},
    {.group = kEnergy, .action = fourCC("kWHr"), .factor = 3600000.0},
    {.group = kEnergy, .action = fourCC("MeV "), .factor = 1.602176487e-13},

    {.group = kDensity, .action = fourCC("kgm3"), .factor = 1.0},
    {.group = kDensity, .action = fourCC("kgcm"), .factor = 1000000.0},
    {.group = kDensity, .action = fourCC("kgmm"), .factor = 1000000000.0},
    {.group = kDensity, .action = fourCC("kg/l"), .factor = 1000.0},
    {.group = kDensity, .action = fourCC("kgml"), .factor = 1000000.0},
    {.group = kDensity, .action = fourCC("g/m3"), .factor = 0.001},
    {.group = kDensity, .action = fourCC("g/cm"), .factor = 1000.0},
    {.group = kDensity, .action = fourCC("g/mm"), .factor = 1000000.0},
    {.group = kDensity, .action = fourCC("g/l "), .factor = 1.0},
    {.group = kDensity, .action = fourCC("g/ml"), .factor = 1000.0},

    {.group = kAngle, .action = fourCC("degs"), .factor = 1.0},
    {.group = kAngle, .action = fourCC("rads"), .factor = 57.29577951308232},
    {.group = kAngle, .action = fourCC("mrad"), .factor = 0.05729577951308232},
    {.group = kAngle, .action = fourCC("grds"), .factor = 0.9},
    {.group = kAngle, .action = fourCC("hour"), .factor = 15.0},
    {.group = kAngle, .action = fourCC("mins"), .factor = 0.25},
    {.group = kAngle, .action = fourCC("secs"), .factor = 0.004166666666666667},
    {.group = kAngle, .action = fourCC("'   "), .factor = 0.016666666666666666},
    {.group = kAngle, .action = fourCC("\"   "), .factor = 0.0002777777777777778},
    {.group = kAngle, .action = fourCC("revs"), .factor = 360.0},
    {.group = kAngle, .action = fourCC("%grd"), .function = DYXConvertPercentGrade},
    {.group = kAngle, .action = fourCC("slop"), .function = DYXConvertSlope},

    {.group = kTime, .action = fourCC("sec "), .factor = 1.0},
    {.group = kTime, .action = fourCC("mins"), .factor = 60.0},
    {.group = kTime, .action = fourCC("hour"), .factor = 3600.0},
    {.group = kTime, .action = fourCC("days"), .factor = 86400.0},
    {.group = kTime, .action = fourCC("week"), .factor = 604800.0},
    {.group = kTime, .action = fourCC("year"), .factor = 31557600.0},
    {.group = kTime, .action = fourCC("msec"), .factor = 0.001},
    {.group = kTime, .action = fourCC("usec"), .factor = 1e-06},
    {.group = kTime, .action = fourCC("nsec"), .factor = 1e-09},
    {.group = kTime, .action = fourCC("psec"), .factor = 1e-12},
    {.group = kTime, .action = fourCC("Hz  "), .factor = 1.0, .inverse = true},
    {.group = kTime, .action = fourCC("kHz "), .factor = 0.001, .inverse = true},
    {.group = kTime, .action = fourCC("MHz "), .factor = 1e-06, .inverse = true},
    {.group = kTime, .action = fourCC("GHz "), .factor = 1e-09, .inverse = true},
    {.group = kTime, .action = fourCC("THz "), .factor = 1e-12, .inverse = true},

    {.group = kLength, .action = fourCC("m   "), .factor = 1.0},
    {.group = kLength, .action = fourCC("cm  "), .factor = 0.01},
    {.group = kLength, .action = fourCC("mm  "), .factor = 0.001},
    {.group = kLength, .action = fourCC("um  "), .factor = 1e-06},
    {.group = kLength, .action = fourCC("nm  "), .factor = 1e-09},
    {.group = kLength, .action = fourCC("Angs"), .factor = 1e-10},
    {.group = kLength, .action = fourCC("km  "), .factor = 1000.0},
    {.group = kLength, .action = fourCC("inch"), .factor = 0.0254},
    {.group = kLength, .action = fourCC("mils"), .factor = 2.54e-05},
    {.group = kLength, .action = fourCC("feet"), .factor = 0.30479999999999996},
    {.group = kLength, .action = fourCC("shak"), .factor = 0.30303030303030304},
    {.group = kLength, .action = fourCC("yard"), .factor = 0.9144},
    {.group = kLength, .action = fourCC("mile"), .factor = 1609.3439999999998},
    {.group = kLength, .action = fourCC("nmil"), .factor = 1852.0},
    {.group = kLength, .action = fourCC("BRad"), .factor = 5.2917720859e-11},
    {.group = kLength, .action = fourCC("prsc"), .factor = 3.08567748793819e+16},
    {.group = kLength, .action = fourCC("AU  "), .factor = 149597870690.342},
    {.group = kLength, .action = fourCC("LY  "), .factor = 9460730472580800.0},

    {.group = kArea, .action = fourCC("m^2 "), .factor = 1.0},
    {.group = kArea, .action = fourCC("km^2"), .factor = 1000000.0},
    {.group = kArea, .action = fourCC("cm^2"), .factor = 0.0001},
    {.group = kArea, .action = fourCC("um^2"), .factor = 1e-12},
    {.group = kArea, .action = fourCC("barn"), .factor = 1e-28},
    {.group = kArea, .action = fourCC("hect"), .factor = 10000.0},
    {.group = kArea, .action = fourCC("acre"), .factor = 4046.8564224},
    {.group = kArea, .action = fourCC("mi^2"), .factor = 2589988.110336},
    {.group = kArea, .action = fourCC("ft^2"), .factor = 0.09290304},
    {.group = kArea, .action = fourCC("in^2"), .factor = 0.0006451600000000001},

    {.group = kVolume, .action = fourCC("m^3 "), .factor = 1.0},
    {.group = kVolume, .action = fourCC("cm^3"), .factor = 1e-06},
    {.group = kVolume, .action = fourCC("ltr "), .factor = 0.001},
    {.group = kVolume, .action = fourCC("ml  "), .factor = 1e-06},
    {.group = kVolume, .action = fourCC("barr"), .factor = 0.158987294928},
    {.group = kVolume, .action = fourCC("gals"), .factor = 0.003785411784},
    {.group = kVolume, .action = fourCC("qrts"), .factor = 0.000946352946},
    {.group = kVolume, .action = fourCC("pint"), .factor = 0.000473176473},
    {.group = kVolume, .action = fourCC("cups"), .factor = 0.0002365882365},
    {.group = kVolume, .action = fourCC("Tbs "), .factor = 1.478676478125e-05},
    {.group = kVolume, .action = fourCC("floz"), .factor = 2.95735295625e-05},
    {.group = kVolume, .action = fourCC("tsp "), .factor = 4.9289215937500005e-06},
    {.group = kVolume, .action = fourCC("in^3"), .factor = 1.6387064e-05},
    {.group = kVolume, .action = fourCC("ft^3"), .factor = 0.028316846591999997},
    {.group = kVolume, .action = fourCC("yd^3"), .factor = 0.7645548579839999},

    {.group = kSpeed, .action = fourCC("m/s "), .factor = 1.0},
    {.group = kSpeed, .action = fourCC("kph "), .factor = 0.2777777777777778},
    {.group = kSpeed, .action = fourCC("ft/s"), .factor = 0.30479999999999996},
    {.group = kSpeed, .action = fourCC("mph "), .factor = 0.44703999999999994},
    {.group = kSpeed, .action = fourCC("mach"), .factor = 340.0},
    {.group = kSpeed, .action = fourCC("c   "), .factor = 299792458.0},
    {.group = kSpeed, .action = fourCC("knot"), .factor = 0.5144444444444445},

    {.group = kAcceleration, .action = fourCC("ms-2"), .factor = 1.0},
    {.group = kAcceleration, .action = fourCC("fs-2"), .factor = 0.30479999999999996},
    {.group = kAcceleration, .action = fourCC("g   "), .factor = 9.80665},

    {.group = kPower, .action = fourCC("Watt"), .factor = 1.0},
    {.group = kPower, .action = fourCC("MW  "), .factor = 1000000.0},
    {.group = kPower, .action = fourCC("kW  "), .factor = 1000.0},
    {.group = kPower, .action = fourCC("mW  "), .factor = 0.001},
    {.group = kPower, .action = fourCC("uW  "), .factor = 1e-06},
    {.group = kPower, .action = fourCC("er/s"), .factor = 1e-07},
    {.group = kPower, .action = fourCC("hp  "), .factor = 745.6998715823},
    {.group = kPower, .action = fourCC("dBm "), .function = DYXConvertdBm},
    {.group = kPower, .action = fourCC("dB50"), .function = DYXConvertdBmV50},
    {.group = kPower, .action = fourCC("dB75"), .function = DYXConvertdBmV75},
    {.group = kPower, .action = fourCC("LSun"), .factor = 3.839e+26},

    {.group = kForce, .action = fourCC("N   "), .factor = 1.0},
    {.group = kForce, .action = fourCC("kgf "), .factor = 9.80665},
    {.group = kForce, .action = fourCC("Dyne"), .factor = 1e-05},
    {.group = kForce, .action = fourCC("FTon"), .factor = 8896.443230521},
    {.group = kForce, .action = fourCC("Flbs"), .factor = 4.4482216153},
    {.group = kForce, .action = fourCC("Foz "), .factor = 0.27801385095625},

    {.group = kMass, .action = fourCC("kg  "), .factor = 1.0},
    {.group = kMass, .action = fourCC("Sola"), .factor = 1.98892e+30},
    {.group = kMass, .action = fourCC("Jupi"), .factor = 1.8986e+27},
    {.group = kMass, .action = fourCC("Eart"), .factor = 5.9742e+24},
    {.group = kMass, .action = fourCC("Luna"), .factor = 7.3477e+22},
    {.group = kMass, .action = fourCC("amu "), .factor = 1.660538782e-27},
    {.group = kMass, .action = fourCC("tonk"), .factor = 1016.0469088},
    {.group = kMass, .action = fourCC("tons"), .factor = 907.18474},
    {.group = kMass, .action = fourCC("gm  "), .factor = 0.001},
    {.group = kMass, .action = fourCC("mg  "), .factor = 1e-06},
    {.group = kMass, .action = fourCC("ug  "), .factor = 1e-09},
    {.group = kMass, .action = fourCC("lbs "), .factor = 0.45359237},
    {.group = kMass, .action = fourCC("oz  "), .factor = 0.0283495231},
    {.group = kMass, .action = fourCC("gran"), .factor = 6.479891e-05},

    {.group = kPressure, .action = fourCC("Pa  "), .factor = 1.0},
    {.group = kPressure, .action = fourCC("Torr"), .factor = 133.3223684211},
    {.group = kPressure, .action = fourCC("Bars"), .factor = 100000.0},
    {.group = kPressure, .action = fourCC("mmHg"), .factor = 133.3223684211},
    {.group = kPressure, .action = fourCC("inHg"), .factor = 3386.38815789594},
    {.group = kPressure, .action = fourCC("mBar"), .factor = 100.0},
    {.group = kPressure, .action = fourCC("psi "), .factor = 6894.75},
    {.group = kPressure, .action = fourCC("Atm "), .factor = 101325.0},

    {.group = kTemperature, .action = fourCC("fahr"), .function = DYXConvertTemperatureFahrenheit},
    {.group = kTemperature, .action = fourCC("cent"), .function = DYXConvertTemperatureCelsius},
    {.group = kTemperature, .action = fourCC("kelv"), .function = DYXConvertTemperatureKelvin},
    {.group = kTemperature, .action = fourCC("rank"), .function = DYXConvertTemperatureRankine},
    {.group = kTemperature, .action = fourCC("TypK"), .function = DYXConvertTemperatureTypeK},
    {.group = kTemperature, .action = fourCC("TypJ"), .function = DYXConvertTemperatureTypeJ},
    {.group = kTemperature, .action = fourCC("TypE"), .function = DYXConvertTemperatureTypeE},
    {.group = kTemperature, .action = fourCC("TypN"), .function = DYXConvertTemperatureTypeN},
    {.group = kTemperature, .action = fourCC("TypB"), .function = DYXConvertTemperatureTypeB},
    {.group = kTemperature, .action = fourCC("TypR"), .function = DYXConvertTemperatureTypeR},
    {.group = kTemperature, .action = fourCC("TypS"), .function = DYXConvertTemperatureTypeS},
    {.group = kTemperature, .action = fourCC("TypT"), .function = DYXConvertTemperatureTypeT},
});

consteval bool hasUniqueUnits() {
    for (std::size_t first = 0; first < kConverters.size(); ++first) {
        for (std::size_t second = first + 1; second < kConverters.size(); ++second) {
            if (kConverters[first].action == kConverters[second].action &&
                kConverters[first].group.code == kConverters[second].group.code) {
                return false;
            }
        }
    }
    return true;
}
static_assert(hasUniqueUnits());

}  // namespace

double ConverterRow::toBase(const DYXMathContext& context, double value) const {
    if (function != nullptr) {
        return function(context, value, Conversion::toBase);
    }
    return inverse ? factor / value : factor * value;
}

double ConverterRow::fromBase(const DYXMathContext& context, double value) const {
    if (function != nullptr) {
        return function(context, value, Conversion::fromBase);
    }
    return inverse ? factor / value : value / factor;
}

std::span<const ConverterRow> converters() { return kConverters; }

const ConverterRow* findConverter(std::uint32_t group, std::uint32_t action) {
    const auto* const row =
        std::find_if(kConverters.begin(), kConverters.end(), [=](const ConverterRow& candidate) {
            return candidate.action == action && candidate.group.code == group;
        });
    return row == kConverters.end() ? nullptr : row;
}

}  // namespace talvex
