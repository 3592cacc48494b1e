#pragma once

#include "numeric/DYXMathContext.h"
#include "numeric/conversion_direction.h"

// The keys of the temperature group. The base unit is the degree Celsius; a value in the unit of a
// thermocouple is its voltage in millivolts (numeric/thermocouple.h). No errors of their own.
namespace talvex {

double DYXConvertTemperatureCelsius(const DYXMathContext& context, double value,
                                    Conversion direction);
double DYXConvertTemperatureKelvin(const DYXMathContext& context, double value,
                                   Conversion direction);
double DYXConvertTemperatureFahrenheit(const DYXMathContext& context, double value,
                                       Conversion direction);
double DYXConvertTemperatureRankine(const DYXMathContext& context, double value,
                                    Conversion direction);

double DYXConvertTemperatureTypeK(const DYXMathContext& context, double value,
                                  Conversion direction);
double DYXConvertTemperatureTypeJ(const DYXMathContext& context, double value,
                                  Conversion direction);
double DYXConvertTemperatureTypeE(const DYXMathContext& context, double value,
                                  Conversion direction);
double DYXConvertTemperatureTypeN(const DYXMathContext& context, double value,
                                  Conversion direction);
double DYXConvertTemperatureTypeB(const DYXMathContext& context, double value,
                                  Conversion direction);
double DYXConvertTemperatureTypeR(const DYXMathContext& context, double value,
                                  Conversion direction);
double DYXConvertTemperatureTypeS(const DYXMathContext& context, double value,
                                  Conversion direction);
double DYXConvertTemperatureTypeT(const DYXMathContext& context, double value,
                                  Conversion direction);

}  // namespace talvex
