#include <array>

#include "ui/tables/panel_tables.h"

namespace talvex {
namespace {

constexpr auto kPrefixes = std::to_array<UnitKeyRow>({
    {u"one ", u"1", u"one, no prefix"},
    {u"Kilo", u"k", u"kilo, 10^3"},
    {u"Mega", u"M", u"mega, 10^6"},
    {u"Giga", u"G", u"giga, 10^9"},
    {u"Tera", u"T", u"tera, 10^{12}"},
    {u"Peta", u"P", u"peta, 10^{15}"},
    {u"Exa ", u"E", u"exa, 10^{18}"},
    {u"cent", u"c", u"centi, 10^{\u22122}"},
    {u"mill", u"m", u"milli, 10^{\u22123}"},
    {u"micr", u"\u00B5", u"micro, 10^{\u22126}"},
    {u"nano", u"n", u"nano, 10^{\u22129}"},
    {u"pico", u"p", u"pico, 10^{\u221212}"},
    {u"femt", u"f", u"femto, 10^{\u221215}"},
    {u"atto", u"a", u"atto, 10^{\u221218}"},
});

constexpr auto kLengths = std::to_array<UnitKeyRow>({
    {u"m   ", u"m", u"metre"},
    {u"cm  ", u"cm", u"centimetre"},
    {u"mm  ", u"mm", u"millimetre"},
    {u"um  ", u"\u00B5m", u"micrometre"},
    {u"nm  ", u"nm", u"nanometre"},
    {u"Angs", u"\u00C5", u"\u00E5ngstr\u00F6m"},
    {u"km  ", u"km", u"kilometre"},
    {u"inch", u"in", u"inch"},
    {u"mils", u"mil", u"mil, a thousandth of an inch"},
    {u"feet", u"ft", u"foot"},
    {u"yard", u"yd", u"yard"},
    {u"mile", u"mi", u"mile"},
    {u"nmil", u"nmi", u"nautical mile"},
    {u"shak", u"shaku", u"shaku"},
    {u"BRad", u"a_0", u"Bohr radius"},
    {u"AU  ", u"AU", u"astronomical unit"},
    {u"LY  ", u"ly", u"light year"},
    {u"prsc", u"pc", u"parsec"},
});

constexpr auto kAreas = std::to_array<UnitKeyRow>({
    {u"m^2 ", u"m^2", u"square metre"},
    {u"cm^2", u"cm^2", u"square centimetre"},
    {u"um^2", u"\u00B5m^2", u"square micrometre"},
    {u"km^2", u"km^2", u"square kilometre"},
    {u"hect", u"ha", u"hectare"},
    {u"barn", u"b", u"barn"},
    {u"in^2", u"in^2", u"square inch"},
    {u"ft^2", u"ft^2", u"square foot"},
    {u"mi^2", u"mi^2", u"square mile"},
    {u"acre", u"acre", u"acre"},
});

constexpr auto kVolumes = std::to_array<UnitKeyRow>({
    {u"m^3 ", u"m^3", u"cubic metre"},
    {u"cm^3", u"cm^3", u"cubic centimetre"},
    {u"ltr ", u"L", u"litre"},
    {u"ml  ", u"mL", u"millilitre"},
    {u"barr", u"bbl", u"barrel of oil"},
    {u"gals", u"gal", u"US gallon"},
    {u"qrts", u"qt", u"US quart"},
    {u"pint", u"pt", u"US pint"},
    {u"cups", u"cup", u"US cup"},
    {u"floz", u"fl oz", u"US fluid ounce"},
    {u"Tbs ", u"tbsp", u"US tablespoon"},
    {u"tsp ", u"tsp", u"US teaspoon"},
    {u"in^3", u"in^3", u"cubic inch"},
    {u"ft^3", u"ft^3", u"cubic foot"},
    {u"yd^3", u"yd^3", u"cubic yard"},
});

constexpr auto kMasses = std::to_array<UnitKeyRow>({
    {u"kg  ", u"kg", u"kilogram"},
    {u"gm  ", u"g", u"gram"},
    {u"mg  ", u"mg", u"milligram"},
    {u"ug  ", u"\u00B5g", u"microgram"},
    {u"amu ", u"u", u"atomic mass unit"},
    {u"lbs ", u"lb", u"pound"},
    {u"oz  ", u"oz", u"ounce"},
    {u"gran", u"gr", u"grain"},
    {u"tons", u"ton", u"US short ton"},
    {u"tonk", u"long ton", u"UK long ton"},
    {u"Luna", u"Moon", u"mass of the Moon"},
    {u"Eart", u"Earth", u"mass of the Earth"},
    {u"Jupi", u"Jupiter", u"mass of Jupiter"},
    {u"Sola", u"Sun", u"mass of the Sun"},
});

constexpr auto kForces = std::to_array<UnitKeyRow>({
    {u"N   ", u"N", u"newton"},
    {u"Dyne", u"dyn", u"dyne"},
    {u"kgf ", u"kgf", u"kilogram-force"},
    {u"Flbs", u"lbf", u"pound-force"},
    {u"Foz ", u"ozf", u"ounce-force"},
    {u"FTon", u"tonf", u"ton-force"},
});

constexpr auto kPressures = std::to_array<UnitKeyRow>({
    {u"Pa  ", u"Pa", u"pascal"},
    {u"mBar", u"mbar", u"millibar"},
    {u"Bars", u"bar", u"bar"},
    {u"Atm ", u"atm", u"atmosphere"},
    {u"Torr", u"Torr", u"torr"},
    {u"mmHg", u"mmHg", u"millimetre of mercury"},
    {u"inHg", u"inHg", u"inch of mercury"},
    {u"psi ", u"psi", u"pound-force per square inch"},
});

constexpr auto kDensities = std::to_array<UnitKeyRow>({
    {u"kgm3", u"kg/m^3", u"kilogram per cubic metre"},
    {u"kgcm", u"kg/cm^3", u"kilogram per cubic centimetre"},
    {u"kgmm", u"kg/mm^3", u"kilogram per cubic millimetre"},
    {u"kg/l", u"kg/L", u"kilogram per litre"},
    {u"kgml", u"kg/mL", u"kilogram per millilitre"},
    {u"g/m3", u"g/m^3", u"gram per cubic metre"},
    {u"g/cm", u"g/cm^3", u"gram per cubic centimetre"},
    {u"g/mm", u"g/mm^3", u"gram per cubic millimetre"},
    {u"g/l ", u"g/L", u"gram per litre"},
    {u"g/ml", u"g/mL", u"gram per millilitre"},
});

constexpr auto kEnergies = std::to_array<UnitKeyRow>({
    {u"Joul", u"J", u"joule"},
    {u"ergs", u"erg", u"erg"},
    {u"cal ", u"cal", u"calorie"},
    {u"BTU ", u"BTU", u"British thermal unit"},
    {u"kWHr", u"kWh", u"kilowatt hour"},
    {u"Kelv", u"K", u"kelvin, through the Boltzmann constant"},
    {u"meV ", u"meV", u"millielectronvolt"},
    {u"eV  ", u"eV", u"electronvolt"},
    {u"MeV ", u"MeV", u"megaelectronvolt"},
    {u"Tesl", u"T", u"tesla, through the Bohr magneton"},
    {u"kHz ", u"kHz", u"photon of so many kilohertz"},
    {u"MHz ", u"MHz", u"photon of so many megahertz"},
    {u"GHz ", u"GHz", u"photon of so many gigahertz"},
    {u"THz ", u"THz", u"photon of so many terahertz"},
    {u"1/cm", u"cm^{\u22121}", u"photon by its wave number in a centimetre"},
    {u"Enm ", u"nm", u"photon by its wavelength in nanometres"},
    {u"Eum ", u"\u00B5m", u"photon by its wavelength in micrometres"},
    {u"Emm ", u"mm", u"photon by its wavelength in millimetres"},
    {u"Ecm ", u"cm", u"photon by its wavelength in centimetres"},
    {u"Em  ", u"m", u"photon by its wavelength in metres"},
});

constexpr auto kPowers = std::to_array<UnitKeyRow>({
    {u"Watt", u"W", u"watt"},
    {u"kW  ", u"kW", u"kilowatt"},
    {u"MW  ", u"MW", u"megawatt"},
    {u"mW  ", u"mW", u"milliwatt"},
    {u"uW  ", u"\u00B5W", u"microwatt"},
    {u"er/s", u"erg/s", u"erg per second"},
    {u"hp  ", u"hp", u"horsepower"},
    {u"dBm ", u"dBm", u"decibel above a milliwatt"},
    {u"dB50", u"dBmV 50", u"decibel above a millivolt at 50 ohm"},
    {u"dB75", u"dBmV 75", u"decibel above a millivolt at 75 ohm"},
    {u"LSun", u"L_{Sun}", u"luminosity of the Sun"},
});

constexpr auto kTemperatures = std::to_array<UnitKeyRow>({
    {u"cent", u"\u00B0C", u"degree Celsius"},
    {u"fahr", u"\u00B0F", u"degree Fahrenheit"},
    {u"kelv", u"K", u"kelvin"},
    {u"rank", u"\u00B0R", u"degree Rankine"},
    {u"TypK", u"Type K", u"thermocouple type K in millivolts"},
    {u"TypJ", u"Type J", u"thermocouple type J in millivolts"},
    {u"TypE", u"Type E", u"thermocouple type E in millivolts"},
    {u"TypN", u"Type N", u"thermocouple type N in millivolts"},
    {u"TypB", u"Type B", u"thermocouple type B in millivolts"},
    {u"TypR", u"Type R", u"thermocouple type R in millivolts"},
    {u"TypS", u"Type S", u"thermocouple type S in millivolts"},
    {u"TypT", u"Type T", u"thermocouple type T in millivolts"},
});

constexpr auto kTimes = std::to_array<UnitKeyRow>({
    {u"sec ", u"s", u"second"},
    {u"mins", u"min", u"minute"},
    {u"hour", u"h", u"hour"},
    {u"days", u"d", u"day"},
    {u"week", u"week", u"week"},
    {u"year", u"year", u"Julian year"},
    {u"msec", u"ms", u"millisecond"},
    {u"usec", u"\u00B5s", u"microsecond"},
    {u"nsec", u"ns", u"nanosecond"},
    {u"psec", u"ps", u"picosecond"},
    {u"Hz  ", u"Hz", u"period of so many hertz"},
    {u"kHz ", u"kHz", u"period of so many kilohertz"},
    {u"MHz ", u"MHz", u"period of so many megahertz"},
    {u"GHz ", u"GHz", u"period of so many gigahertz"},
    {u"THz ", u"THz", u"period of so many terahertz"},
});

constexpr auto kSpeeds = std::to_array<UnitKeyRow>({
    {u"m/s ", u"m/s", u"metre per second"},
    {u"kph ", u"km/h", u"kilometre per hour"},
    {u"ft/s", u"ft/s", u"foot per second"},
    {u"mph ", u"mph", u"mile per hour"},
    {u"knot", u"kn", u"knot"},
    {u"mach", u"Mach", u"Mach number at 340 m/s"},
    {u"c   ", u"c", u"speed of light"},
});

constexpr auto kAccelerations = std::to_array<UnitKeyRow>({
    {u"ms-2", u"m/s^2", u"metre per second squared"},
    {u"fs-2", u"ft/s^2", u"foot per second squared"},
    {u"g   ", u"g", u"standard gravity"},
});

constexpr auto kAngles = std::to_array<UnitKeyRow>({
    {u"degs", u"\u00B0", u"degree"},
    {u"'   ", u"\u2032", u"minute of arc"},
    {u"\"   ", u"\u2033", u"second of arc"},
    {u"rads", u"rad", u"radian"},
    {u"mrad", u"mrad", u"milliradian"},
    {u"grds", u"gon", u"gradian"},
    {u"hour", u"h", u"hour of angle, 15 degrees"},
    {u"mins", u"min", u"minute of time as an angle"},
    {u"secs", u"s", u"second of time as an angle"},
    {u"revs", u"rev", u"revolution"},
    {u"%grd", u"% grade", u"grade in per cent"},
    {u"slop", u"slope", u"slope, rise over run"},
});

constexpr auto kPages = std::to_array<UnitPage>({
    {u"Prefix", u"prfx", kPrefixes},
    {u"Length", u"len ", kLengths},
    {u"Area", u"area", kAreas},
    {u"Volume", u"volu", kVolumes},
    {u"Mass", u"mass", kMasses},
    {u"Force", u"forc", kForces},
    {u"Pressure", u"pres", kPressures},
    {u"Density", u"mden", kDensities},
    {u"Energy", u"ener", kEnergies},
    {u"Power", u"powe", kPowers},
    {u"Temperature", u"temp", kTemperatures},
    {u"Time", u"time", kTimes},
    {u"Speed", u"sped", kSpeeds},
    {u"Acceleration", u"accl", kAccelerations},
    {u"Angle", u"angl", kAngles},
});

}  // namespace

std::span<const UnitPage> unitPages() { return kPages; }

}  // namespace talvex
