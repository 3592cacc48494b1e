#include "numeric/temperature.h"

#include "numeric/thermocouple.h"

namespace talvex {
namespace {

constexpr double kKelvinAtZeroCelsius = 273.15;
constexpr double kFahrenheitAtZeroCelsius = 32.0;
constexpr double kRankineAtZeroCelsius = 491.67;

// A scale in degrees of 5/9 kelvin. The product comes before the quotient, so that whole degrees
// stay whole.
double convertNinthDegrees(double zeroCelsius, double value, Conversion direction) {
    return direction == Conversion::toBase ? (value - zeroCelsius) * 5.0 / 9.0
                                           : value * 9.0 / 5.0 + zeroCelsius;
}

}  // namespace

double DYXConvertTemperatureCelsius(const DYXMathContext&, double value, Conversion) {
    return value;
}

double DYXConvertTemperatureKelvin(const DYXMathContext&, double value, Conversion direction) {
    return direction == Conversion::toBase ? value - kKelvinAtZeroCelsius
                                           : value + kKelvinAtZeroCelsius;
}

double DYXConvertTemperatureFahrenheit(const DYXMathContext&, double value, Conversion direction) {
    return convertNinthDegrees(kFahrenheitAtZeroCelsius, value, direction);
}

double DYXConvertTemperatureRankine(const DYXMathContext&, double value, Conversion direction) {
    return convertNinthDegrees(kRankineAtZeroCelsius, value, direction);
}

double DYXConvertTemperatureTypeK(const DYXMathContext&, double value, Conversion direction) {
    return direction == Conversion::toBase ? KmVtoC(value) : KCtomV(value);
}

double DYXConvertTemperatureTypeJ(const DYXMathContext&, double value, Conversion direction) {
    return direction == Conversion::toBase ? JmVtoC(value) : JCtomV(value);
}

double DYXConvertTemperatureTypeE(const DYXMathContext&, double value, Conversion direction) {
    return direction == Conversion::toBase ? EmVtoC(value) : ECtomV(value);
}

double DYXConvertTemperatureTypeN(const DYXMathContext&, double value, Conversion direction) {
    return direction == Conversion::toBase ? NmVtoC(value) : NCtomV(value);
}

double DYXConvertTemperatureTypeB(const DYXMathContext&, double value, Conversion direction) {
    return direction == Conversion::toBase ? BmVtoC(value) : BCtomV(value);
}

double DYXConvertTemperatureTypeR(const DYXMathContext&, double value, Conversion direction) {
    return direction == Conversion::toBase ? RmVtoC(value) : RCtomV(value);
}

double DYXConvertTemperatureTypeS(const DYXMathContext&, double value, Conversion direction) {
    return direction == Conversion::toBase ? SmVtoC(value) : SCtomV(value);
}

double DYXConvertTemperatureTypeT(const DYXMathContext&, double value, Conversion direction) {
    return direction == Conversion::toBase ? TmVtoC(value) : TCtomV(value);
}

}  // namespace talvex
