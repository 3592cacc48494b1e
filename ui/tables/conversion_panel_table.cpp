#include <array>

#include "ui/panel_geometry.h"
#include "ui/tables/panel_tables.h"

namespace talvex {
namespace {

constexpr auto kPrefixes = std::to_array<UnitKeyRow>({
    {fourCC("one "), u"1", u"one, no prefix"},
    {fourCC("Kilo"), u"k", u"kilo, 10^3"},
    {fourCC("Mega"), u"M", u"mega, 10^6"},
    {fourCC("Giga"), u"G", u"giga, 10^9"},
    {fourCC("Tera"), u"T", u"tera, 10^{12}"},
    {fourCC("Peta"), u"P", u"peta, 10^{15}"},
    {fourCC("Exa "), u"E", u"exa, 10^{18}"},
    {fourCC("cent"), u"c", u"centi, 10^{\u22122}"},
    {fourCC("mill"), u"m", u"milli, 10^{\u22123}"},
    {fourCC("micr"), u"\u00B5", u"micro, 10^{\u22126}"},
    {fourCC("nano"), u"n", u"nano, 10^{\u22129}"},
    {fourCC("pico"), u"p", u"pico, 10^{\u221212}"},
    {fourCC("femt"), u"f", u"femto, 10^{\u221215}"},
    {fourCC("atto"), u"a", u"atto, 10^{\u221218}"},
});

constexpr auto kLengths = std::to_array<UnitKeyRow>({
    {fourCC("m   "), u"m", u"metre"},
    {fourCC("cm  "), u"cm", u"centimetre"},
    {fourCC("mm  "), u"mm", u"millimetre"},
    {fourCC("um  "), u"\u00B5m", u"micrometre"},
    {fourCC("nm  "), u"nm", u"nanometre"},
    {fourCC("Angs"), u"\u00C5", u"\u00E5ngstr\u00F6m"},
    {fourCC("km  "), u"km", u"kilometre"},
    {fourCC("inch"), u"in", u"inch"},
    {fourCC("mils"), u"mil", u"mil, a thousandth of an inch"},
    {fourCC("feet"), u"ft", u"foot"},
    {fourCC("yard"), u"yd", u"yard"},
    {fourCC("mile"), u"mi", u"mile"},
    {fourCC("nmil"), u"nmi", u"nautical mile"},
    {fourCC("shak"), u"shaku", u"shaku"},
    {fourCC("BRad"), u"a_0", u"Bohr radius"},
    {fourCC("AU  "), u"AU", u"astronomical unit"},
    {fourCC("LY  "), u"ly", u"light year"},
    {fourCC("prsc"), u"pc", u"parsec"},
});

constexpr auto kAreas = std::to_array<UnitKeyRow>({
    {fourCC("m^2 "), u"m^2", u"square metre"},
    {fourCC("cm^2"), u"cm^2", u"square centimetre"},
    {fourCC("um^2"), u"\u00B5m^2", u"square micrometre"},
    {fourCC("km^2"), u"km^2", u"square kilometre"},
    {fourCC("hect"), u"ha", u"hectare"},
    {fourCC("barn"), u"b", u"barn"},
    {fourCC("in^2"), u"in^2", u"square inch"},
    {fourCC("ft^2"), u"ft^2", u"square foot"},
    {fourCC("mi^2"), u"mi^2", u"square mile"},
    {fourCC("acre"), u"acre", u"acre"},
});

constexpr auto kVolumes = std::to_array<UnitKeyRow>({
    {fourCC("m^3 "), u"m^3", u"cubic metre"},
    {fourCC("cm^3"), u"cm^3", u"cubic centimetre"},
    {fourCC("ltr "), u"L", u"litre"},
    {fourCC("ml  "), u"mL", u"millilitre"},
    {fourCC("barr"), u"bbl", u"barrel of oil"},
    {fourCC("gals"), u"gal", u"US gallon"},
    {fourCC("qrts"), u"qt", u"US quart"},
    {fourCC("pint"), u"pt", u"US pint"},
    {fourCC("cups"), u"cup", u"US cup"},
    {fourCC("floz"), u"fl oz", u"US fluid ounce"},
    {fourCC("Tbs "), u"tbsp", u"US tablespoon"},
    {fourCC("tsp "), u"tsp", u"US teaspoon"},
    {fourCC("in^3"), u"in^3", u"cubic inch"},
    {fourCC("ft^3"), u"ft^3", u"cubic foot"},
    {fourCC("yd^3"), u"yd^3", u"cubic yard"},
});

constexpr auto kMasses = std::to_array<UnitKeyRow>({
    {fourCC("kg  "), u"kg", u"kilogram"},
    {fourCC("gm  "), u"g", u"gram"},
    {fourCC("mg  "), u"mg", u"milligram"},
    {fourCC("ug  "), u"\u00B5g", u"microgram"},
    {fourCC("amu "), u"u", u"atomic mass unit"},
    {fourCC("lbs "), u"lb", u"pound"},
    {fourCC("oz  "), u"oz", u"ounce"},
    {fourCC("gran"), u"gr", u"grain"},
    {fourCC("tons"), u"ton", u"US short ton"},
    {fourCC("tonk"), u"long ton", u"UK long ton"},
    {fourCC("Luna"), u"Moon", u"mass of the Moon"},
    {fourCC("Eart"), u"Earth", u"mass of the Earth"},
    {fourCC("Jupi"), u"Jupiter", u"mass of Jupiter"},
    {fourCC("Sola"), u"Sun", u"mass of the Sun"},
});

constexpr auto kForces = std::to_array<UnitKeyRow>({
    {fourCC("N   "), u"N", u"newton"},
    {fourCC("Dyne"), u"dyn", u"dyne"},
    {fourCC("kgf "), u"kgf", u"kilogram-force"},
    {fourCC("Flbs"), u"lbf", u"pound-force"},
    {fourCC("Foz "), u"ozf", u"ounce-force"},
    {fourCC("FTon"), u"tonf", u"ton-force"},
});

constexpr auto kPressures = std::to_array<UnitKeyRow>({
    {fourCC("Pa  "), u"Pa", u"pascal"},
    {fourCC("mBar"), u"mbar", u"millibar"},
    {fourCC("Bars"), u"bar", u"bar"},
    {fourCC("Atm "), u"atm", u"atmosphere"},
    {fourCC("Torr"), u"Torr", u"torr"},
    {fourCC("mmHg"), u"mmHg", u"millimetre of mercury"},
    {fourCC("inHg"), u"inHg", u"inch of mercury"},
    {fourCC("psi "), u"psi", u"pound-force per square inch"},
});

constexpr auto kDensities = std::to_array<UnitKeyRow>({
    {fourCC("kgm3"), u"kg/m^3", u"kilogram per cubic metre"},
    {fourCC("kgcm"), u"kg/cm^3", u"kilogram per cubic centimetre"},
    {fourCC("kgmm"), u"kg/mm^3", u"kilogram per cubic millimetre"},
    {fourCC("kg/l"), u"kg/L", u"kilogram per litre"},
    {fourCC("kgml"), u"kg/mL", u"kilogram per millilitre"},
    {fourCC("g/m3"), u"g/m^3", u"gram per cubic metre"},
    {fourCC("g/cm"), u"g/cm^3", u"gram per cubic centimetre"},
    {fourCC("g/mm"), u"g/mm^3", u"gram per cubic millimetre"},
    {fourCC("g/l "), u"g/L", u"gram per litre"},
    {fourCC("g/ml"), u"g/mL", u"gram per millilitre"},
});

constexpr auto kEnergies = std::to_array<UnitKeyRow>({
    {fourCC("Joul"), u"J", u"joule"},
    {fourCC("ergs"), u"erg", u"erg"},
    {fourCC("cal "), u"cal", u"calorie"},
    {fourCC("BTU "), u"BTU", u"British thermal unit"},
    {fourCC("kWHr"), u"kWh", u"kilowatt hour"},
    {fourCC("Kelv"), u"K", u"kelvin, through the Boltzmann constant"},
    {fourCC("meV "), u"meV", u"millielectronvolt"},
    {fourCC("eV  "), u"eV", u"electronvolt"},
    {fourCC("MeV "), u"MeV", u"megaelectronvolt"},
    {fourCC("Tesl"), u"T", u"tesla, through the Bohr magneton"},
    {fourCC("kHz "), u"kHz", u"photon of so many kilohertz"},
    {fourCC("MHz "), u"MHz", u"photon of so many megahertz"},
    {fourCC("GHz "), u"GHz", u"photon of so many gigahertz"},
    {fourCC("THz "), u"THz", u"photon of so many terahertz"},
    {fourCC("1/cm"), u"cm^{\u22121}", u"photon by its wave number in a centimetre"},
    {fourCC("Enm "), u"nm", u"photon by its wavelength in nanometres"},
    {fourCC("Eum "), u"\u00B5m", u"photon by its wavelength in micrometres"},
    {fourCC("Emm "), u"mm", u"photon by its wavelength in millimetres"},
    {fourCC("Ecm "), u"cm", u"photon by its wavelength in centimetres"},
    {fourCC("Em  "), u"m", u"photon by its wavelength in metres"},
});

constexpr auto kPowers = std::to_array<UnitKeyRow>({
    {fourCC("Watt"), u"W", u"watt"},
    {fourCC("kW  "), u"kW", u"kilowatt"},
    {fourCC("MW  "), u"MW", u"megawatt"},
    {fourCC("mW  "), u"mW", u"milliwatt"},
    {fourCC("uW  "), u"\u00B5W", u"microwatt"},
    {fourCC("er/s"), u"erg/s", u"erg per second"},
    {fourCC("hp  "), u"hp", u"horsepower"},
    {fourCC("dBm "), u"dBm", u"decibel above a milliwatt"},
    {fourCC("dB50"), u"dBmV 50", u"decibel above a millivolt at 50 ohm"},
    {fourCC("dB75"), u"dBmV 75", u"decibel above a millivolt at 75 ohm"},
    {fourCC("LSun"), u"L_{Sun}", u"luminosity of the Sun"},
});

constexpr auto kTemperatures = std::to_array<UnitKeyRow>({
    {fourCC("cent"), u"\u00B0C", u"degree Celsius"},
    {fourCC("fahr"), u"\u00B0F", u"degree Fahrenheit"},
    {fourCC("kelv"), u"K", u"kelvin"},
    {fourCC("rank"), u"\u00B0R", u"degree Rankine"},
    {fourCC("TypK"), u"Type K", u"thermocouple type K in millivolts"},
    {fourCC("TypJ"), u"Type J", u"thermocouple type J in millivolts"},
    {fourCC("TypE"), u"Type E", u"thermocouple type E in millivolts"},
    {fourCC("TypN"), u"Type N", u"thermocouple type N in millivolts"},
    {fourCC("TypB"), u"Type B", u"thermocouple type B in millivolts"},
    {fourCC("TypR"), u"Type R", u"thermocouple type R in millivolts"},
    {fourCC("TypS"), u"Type S", u"thermocouple type S in millivolts"},
    {fourCC("TypT"), u"Type T", u"thermocouple type T in millivolts"},
});

constexpr auto kTimes = std::to_array<UnitKeyRow>({
    {fourCC("sec "), u"s", u"second"},
    {fourCC("mins"), u"min", u"minute"},
    {fourCC("hour"), u"h", u"hour"},
    {fourCC("days"), u"d", u"day"},
    {fourCC("week"), u"week", u"week"},
    {fourCC("year"), u"year", u"Julian year"},
    {fourCC("msec"), u"ms", u"millisecond"},
    {fourCC("usec"), u"\u00B5s", u"microsecond"},
    {fourCC("nsec"), u"ns", u"nanosecond"},
    {fourCC("psec"), u"ps", u"picosecond"},
    {fourCC("Hz  "), u"Hz", u"period of so many hertz"},
    {fourCC("kHz "), u"kHz", u"period of so many kilohertz"},
    {fourCC("MHz "), u"MHz", u"period of so many megahertz"},
    {fourCC("GHz "), u"GHz", u"period of so many gigahertz"},
    {fourCC("THz "), u"THz", u"period of so many terahertz"},
});

constexpr auto kSpeeds = std::to_array<UnitKeyRow>({
    {fourCC("m/s "), u"m/s", u"metre per second"},
    {fourCC("kph "), u"km/h", u"kilometre per hour"},
    {fourCC("ft/s"), u"ft/s", u"foot per second"},
    {fourCC("mph "), u"mph", u"mile per hour"},
    {fourCC("knot"), u"kn", u"knot"},
    {fourCC("mach"), u"Mach", u"Mach number at 340 m/s"},
    {fourCC("c   "), u"c", u"speed of light"},
});

constexpr auto kAccelerations = std::to_array<UnitKeyRow>({
    {fourCC("ms-2"), u"m/s^2", u"metre per second squared"},
    {fourCC("fs-2"), u"ft/s^2", u"foot per second squared"},
    {fourCC("g   "), u"g", u"standard gravity"},
});

constexpr auto kAngles = std::to_array<UnitKeyRow>({
    {fourCC("degs"), u"\u00B0", u"degree"},
    {fourCC("'   "), u"\u2032", u"minute of arc"},
    {fourCC("\"   "), u"\u2033", u"second of arc"},
    {fourCC("rads"), u"rad", u"radian"},
    {fourCC("mrad"), u"mrad", u"milliradian"},
    {fourCC("grds"), u"gon", u"gradian"},
    {fourCC("hour"), u"h", u"hour of angle, 15 degrees"},
    {fourCC("mins"), u"min", u"minute of time as an angle"},
    {fourCC("secs"), u"s", u"second of time as an angle"},
    {fourCC("revs"), u"rev", u"revolution"},
    {fourCC("%grd"), u"% grade", u"grade in per cent"},
    {fourCC("slop"), u"slope", u"slope, rise over run"},
});

constexpr auto kPages = std::to_array<UnitPage>({
    {u"Prefix", fourCC("prfx"), kPrefixes},
    {u"Length", fourCC("len "), kLengths},
    {u"Area", fourCC("area"), kAreas},
    {u"Volume", fourCC("volu"), kVolumes},
    {u"Mass", fourCC("mass"), kMasses},
    {u"Force", fourCC("forc"), kForces},
    {u"Pressure", fourCC("pres"), kPressures},
    {u"Density", fourCC("mden"), kDensities},
    {u"Energy", fourCC("ener"), kEnergies},
    {u"Power", fourCC("powe"), kPowers},
    {u"Temperature", fourCC("temp"), kTemperatures},
    {u"Time", fourCC("time"), kTimes},
    {u"Speed", fourCC("sped"), kSpeeds},
    {u"Acceleration", fourCC("accl"), kAccelerations},
    {u"Angle", fourCC("angl"), kAngles},
});

constexpr KeyGrid kGrid = unitsGrid(kPages);
static_assert(lieApartWithin<kGrid.capacity()>(kGrid.size(), [](std::size_t number) {
    return kGrid.frameByRows(number);
}));

}  // namespace

std::span<const UnitPage> unitPages() { return kPages; }

}  // namespace talvex
