<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
    <context>
        <name>titles</name>
        <message>
            <source>+</source>
            <translation>+</translation>
        </message>
        <message>
            <source>+/−</source>
            <translation>+/−</translation>
        </message>
        <message>
            <source>0</source>
            <translation>0</translation>
        </message>
        <message>
            <source>1</source>
            <translation>1</translation>
        </message>
        <message>
            <source>1 over 2 pi</source>
            <translation>1 over 2 pi</translation>
        </message>
        <message>
            <source>1 over e</source>
            <translation>1 over e</translation>
        </message>
        <message>
            <source>1 over pi</source>
            <translation>1 over pi</translation>
        </message>
        <message>
            <source>1 over the square root of 2</source>
            <translation>1 over the square root of 2</translation>
        </message>
        <message>
            <source>1/x</source>
            <translation>1/x</translation>
        </message>
        <message>
            <source>10 to the power X</source>
            <translation>10 to the power X</translation>
        </message>
        <message>
            <source>100 %</source>
            <translation>100 %</translation>
        </message>
        <message>
            <source>10^x</source>
            <translation>10^x</translation>
        </message>
        <message>
            <source>125 %</source>
            <translation>125 %</translation>
        </message>
        <message>
            <source>150 %</source>
            <translation>150 %</translation>
        </message>
        <message>
            <source>175 %</source>
            <translation>175 %</translation>
        </message>
        <message>
            <source>2</source>
            <translation>2</translation>
        </message>
        <message>
            <source>2 over pi</source>
            <translation>2 over pi</translation>
        </message>
        <message>
            <source>2 over the square root of pi</source>
            <translation>2 over the square root of pi</translation>
        </message>
        <message>
            <source>2 pi</source>
            <translation>2 pi</translation>
        </message>
        <message>
            <source>2 to the power X</source>
            <translation>2 to the power X</translation>
        </message>
        <message>
            <source>200 %</source>
            <translation>200 %</translation>
        </message>
        <message>
            <source>250 %</source>
            <translation>250 %</translation>
        </message>
        <message>
            <source>2^x</source>
            <translation>2^x</translation>
        </message>
        <message>
            <source>3</source>
            <translation>3</translation>
        </message>
        <message>
            <source>300 %</source>
            <translation>300 %</translation>
        </message>
        <message>
            <source>4</source>
            <translation>4</translation>
        </message>
        <message>
            <source>4 pi</source>
            <translation>4 pi</translation>
        </message>
        <message>
            <source>5</source>
            <translation>5</translation>
        </message>
        <message>
            <source>6</source>
            <translation>6</translation>
        </message>
        <message>
            <source>7</source>
            <translation>7</translation>
        </message>
        <message>
            <source>75 %</source>
            <translation>75 %</translation>
        </message>
        <message>
            <source>8</source>
            <translation>8</translation>
        </message>
        <message>
            <source>9</source>
            <translation>9</translation>
        </message>
        <message>
            <source>A</source>
            <translation>A</translation>
        </message>
        <message>
            <source>AND</source>
            <translation>AND</translation>
        </message>
        <message>
            <source>Acceleration</source>
            <translation>Acceleration</translation>
        </message>
        <message>
            <source>Always on Top</source>
            <translation>Always on Top</translation>
        </message>
        <message>
            <source>Angle</source>
            <translation>Angle</translation>
        </message>
        <message>
            <source>Angles</source>
            <translation>Angles</translation>
        </message>
        <message>
            <source>Animate Window Sizing</source>
            <translation>Animate Window Sizing</translation>
        </message>
        <message>
            <source>Apéry's constant</source>
            <translation>Apéry's constant</translation>
        </message>
        <message>
            <source>Area</source>
            <translation>Area</translation>
        </message>
        <message>
            <source>As the System</source>
            <translation>As the System</translation>
        </message>
        <message>
            <source>Avogadro constant</source>
            <translation>Avogadro constant</translation>
        </message>
        <message>
            <source>B</source>
            <translation>B</translation>
        </message>
        <message>
            <source>BIN</source>
            <translation>BIN</translation>
        </message>
        <message>
            <source>Base of Powers and Logarithms in Y</source>
            <translation>Base of Powers and Logarithms in Y</translation>
        </message>
        <message>
            <source>Bessel error</source>
            <translation>Bessel error</translation>
        </message>
        <message>
            <source>Bessel function of the first kind</source>
            <translation>Bessel function of the first kind</translation>
        </message>
        <message>
            <source>Bessel function of the first kind, order 0</source>
            <translation>Bessel function of the first kind, order 0</translation>
        </message>
        <message>
            <source>Bessel function of the first kind, order 1</source>
            <translation>Bessel function of the first kind, order 1</translation>
        </message>
        <message>
            <source>Bessel function of the second kind</source>
            <translation>Bessel function of the second kind</translation>
        </message>
        <message>
            <source>Bessel function of the second kind, order 0</source>
            <translation>Bessel function of the second kind, order 0</translation>
        </message>
        <message>
            <source>Bessel function of the second kind, order 1</source>
            <translation>Bessel function of the second kind, order 1</translation>
        </message>
        <message>
            <source>Blank</source>
            <translation>Blank</translation>
        </message>
        <message>
            <source>Bohr magneton</source>
            <translation>Bohr magneton</translation>
        </message>
        <message>
            <source>Bohr radius</source>
            <translation>Bohr radius</translation>
        </message>
        <message>
            <source>Boltzmann constant</source>
            <translation>Boltzmann constant</translation>
        </message>
        <message>
            <source>British thermal unit</source>
            <translation>British thermal unit</translation>
        </message>
        <message>
            <source>By Mode</source>
            <translation>By Mode</translation>
        </message>
        <message>
            <source>C</source>
            <translation>C</translation>
        </message>
        <message>
            <source>CAR</source>
            <translation>CAR</translation>
        </message>
        <message>
            <source>CLALL</source>
            <translation>CLALL</translation>
        </message>
        <message>
            <source>CLR</source>
            <translation>CLR</translation>
        </message>
        <message>
            <source>CLST</source>
            <translation>CLST</translation>
        </message>
        <message>
            <source>C_{y,x}</source>
            <translation>C_{y,x}</translation>
        </message>
        <message>
            <source>Catalan's constant</source>
            <translation>Catalan's constant</translation>
        </message>
        <message>
            <source>Clipboard</source>
            <translation>Clipboard</translation>
        </message>
        <message>
            <source>Comma</source>
            <translation>Comma</translation>
        </message>
        <message>
            <source>Compton wavelength</source>
            <translation>Compton wavelength</translation>
        </message>
        <message>
            <source>Constants</source>
            <translation>Constants</translation>
        </message>
        <message>
            <source>Copy</source>
            <translation>Copy</translation>
        </message>
        <message>
            <source>Copy Digit Groups</source>
            <translation>Copy Digit Groups</translation>
        </message>
        <message>
            <source>D</source>
            <translation>D</translation>
        </message>
        <message>
            <source>DEC</source>
            <translation>DEC</translation>
        </message>
        <message>
            <source>DEG</source>
            <translation>DEG</translation>
        </message>
        <message>
            <source>DMS</source>
            <translation>DMS</translation>
        </message>
        <message>
            <source>Decimal Separator</source>
            <translation>Decimal Separator</translation>
        </message>
        <message>
            <source>Density</source>
            <translation>Density</translation>
        </message>
        <message>
            <source>Digits</source>
            <translation>Digits</translation>
        </message>
        <message>
            <source>Digits in a Group</source>
            <translation>Digits in a Group</translation>
        </message>
        <message>
            <source>Display</source>
            <translation>Display</translation>
        </message>
        <message>
            <source>Drawers</source>
            <translation>Drawers</translation>
        </message>
        <message>
            <source>E</source>
            <translation>E</translation>
        </message>
        <message>
            <source>EEX</source>
            <translation>EEX</translation>
        </message>
        <message>
            <source>ENG</source>
            <translation>ENG</translation>
        </message>
        <message>
            <source>ENTER</source>
            <translation>ENTER</translation>
        </message>
        <message>
            <source>Edit</source>
            <translation>Edit</translation>
        </message>
        <message>
            <source>Energy</source>
            <translation>Energy</translation>
        </message>
        <message>
            <source>Euler-Mascheroni constant</source>
            <translation>Euler-Mascheroni constant</translation>
        </message>
        <message>
            <source>F</source>
            <translation>F</translation>
        </message>
        <message>
            <source>FIX</source>
            <translation>FIX</translation>
        </message>
        <message>
            <source>FRC</source>
            <translation>FRC</translation>
        </message>
        <message>
            <source>Files</source>
            <translation>Files</translation>
        </message>
        <message>
            <source>Font</source>
            <translation>Font</translation>
        </message>
        <message>
            <source>Force</source>
            <translation>Force</translation>
        </message>
        <message>
            <source>Format</source>
            <translation>Format</translation>
        </message>
        <message>
            <source>Fours</source>
            <translation>Fours</translation>
        </message>
        <message>
            <source>Functions</source>
            <translation>Functions</translation>
        </message>
        <message>
            <source>GRD</source>
            <translation>GRD</translation>
        </message>
        <message>
            <source>HEX</source>
            <translation>HEX</translation>
        </message>
        <message>
            <source>HMS</source>
            <translation>HMS</translation>
        </message>
        <message>
            <source>HRS</source>
            <translation>HRS</translation>
        </message>
        <message>
            <source>HYP</source>
            <translation>HYP</translation>
        </message>
        <message>
            <source>Help</source>
            <translation>Help</translation>
        </message>
        <message>
            <source>Help on</source>
            <translation>Help on</translation>
        </message>
        <message>
            <source>Hide Help</source>
            <translation>Hide Help</translation>
        </message>
        <message>
            <source>Hide Key Pad</source>
            <translation>Hide Key Pad</translation>
        </message>
        <message>
            <source>Hide Register Labels</source>
            <translation>Hide Register Labels</translation>
        </message>
        <message>
            <source>Hide Status Line</source>
            <translation>Hide Status Line</translation>
        </message>
        <message>
            <source>Hide YZT Registers</source>
            <translation>Hide YZT Registers</translation>
        </message>
        <message>
            <source>Hide the X Label when X Stands Alone</source>
            <translation>Hide the X Label when X Stands Alone</translation>
        </message>
        <message>
            <source>INV</source>
            <translation>INV</translation>
        </message>
        <message>
            <source>IRR</source>
            <translation>IRR</translation>
        </message>
        <message>
            <source>Input</source>
            <translation>Input</translation>
        </message>
        <message>
            <source>J_{0}(x)</source>
            <translation>J_{0}(x)</translation>
        </message>
        <message>
            <source>J_{1}(x)</source>
            <translation>J_{1}(x)</translation>
        </message>
        <message>
            <source>J_{x}(y)</source>
            <translation>J_{x}(y)</translation>
        </message>
        <message>
            <source>Josephson constant</source>
            <translation>Josephson constant</translation>
        </message>
        <message>
            <source>Julian year</source>
            <translation>Julian year</translation>
        </message>
        <message>
            <source>Keyboard</source>
            <translation>Keyboard</translation>
        </message>
        <message>
            <source>LASTx</source>
            <translation>LASTx</translation>
        </message>
        <message>
            <source>Larger Text</source>
            <translation>Larger Text</translation>
        </message>
        <message>
            <source>Length</source>
            <translation>Length</translation>
        </message>
        <message>
            <source>Lock Output to Input</source>
            <translation>Lock Output to Input</translation>
        </message>
        <message>
            <source>MON</source>
            <translation>MON</translation>
        </message>
        <message>
            <source>Mach number at 340 m/s</source>
            <translation>Mach number at 340 m/s</translation>
        </message>
        <message>
            <source>Mass</source>
            <translation>Mass</translation>
        </message>
        <message>
            <source>Memory</source>
            <translation>Memory</translation>
        </message>
        <message>
            <source>Modes</source>
            <translation>Modes</translation>
        </message>
        <message>
            <source>Monospaced</source>
            <translation>Monospaced</translation>
        </message>
        <message>
            <source>NAND</source>
            <translation>NAND</translation>
        </message>
        <message>
            <source>NOT</source>
            <translation>NOT</translation>
        </message>
        <message>
            <source>Newtonian constant of gravitation</source>
            <translation>Newtonian constant of gravitation</translation>
        </message>
        <message>
            <source>None</source>
            <translation>None</translation>
        </message>
        <message>
            <source>Normal Text</source>
            <translation>Normal Text</translation>
        </message>
        <message>
            <source>Numbers</source>
            <translation>Numbers</translation>
        </message>
        <message>
            <source>OCT</source>
            <translation>OCT</translation>
        </message>
        <message>
            <source>OR</source>
            <translation>OR</translation>
        </message>
        <message>
            <source>Output</source>
            <translation>Output</translation>
        </message>
        <message>
            <source>Paste</source>
            <translation>Paste</translation>
        </message>
        <message>
            <source>Planck constant</source>
            <translation>Planck constant</translation>
        </message>
        <message>
            <source>Point</source>
            <translation>Point</translation>
        </message>
        <message>
            <source>Power</source>
            <translation>Power</translation>
        </message>
        <message>
            <source>Prefix</source>
            <translation>Prefix</translation>
        </message>
        <message>
            <source>Pressure</source>
            <translation>Pressure</translation>
        </message>
        <message>
            <source>Proportional</source>
            <translation>Proportional</translation>
        </message>
        <message>
            <source>Quit</source>
            <translation>Quit</translation>
        </message>
        <message>
            <source>RAD</source>
            <translation>RAD</translation>
        </message>
        <message>
            <source>RCL</source>
            <translation>RCL</translation>
        </message>
        <message>
            <source>REV</source>
            <translation>REV</translation>
        </message>
        <message>
            <source>Reduce Carpentry Fractions</source>
            <translation>Reduce Carpentry Fractions</translation>
        </message>
        <message>
            <source>Revert to Saved</source>
            <translation>Revert to Saved</translation>
        </message>
        <message>
            <source>Riemann zeta function</source>
            <translation>Riemann zeta function</translation>
        </message>
        <message>
            <source>Rydberg constant</source>
            <translation>Rydberg constant</translation>
        </message>
        <message>
            <source>R↑</source>
            <translation>R↑</translation>
        </message>
        <message>
            <source>R↓</source>
            <translation>R↓</translation>
        </message>
        <message>
            <source>SCI</source>
            <translation>SCI</translation>
        </message>
        <message>
            <source>STO</source>
            <translation>STO</translation>
        </message>
        <message>
            <source>STO+</source>
            <translation>STO+</translation>
        </message>
        <message>
            <source>STO×</source>
            <translation>STO×</translation>
        </message>
        <message>
            <source>STO÷</source>
            <translation>STO÷</translation>
        </message>
        <message>
            <source>STO−</source>
            <translation>STO−</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Save</translation>
        </message>
        <message>
            <source>Separator of Groups</source>
            <translation>Separator of Groups</translation>
        </message>
        <message>
            <source>Settings</source>
            <translation>Settings</translation>
        </message>
        <message>
            <source>Show Help</source>
            <translation>Show Help</translation>
        </message>
        <message>
            <source>Show Key Pad</source>
            <translation>Show Key Pad</translation>
        </message>
        <message>
            <source>Show Multiples of π, √2, √3 and e</source>
            <translation>Show Multiples of π, √2, √3 and e</translation>
        </message>
        <message>
            <source>Show Status Line</source>
            <translation>Show Status Line</translation>
        </message>
        <message>
            <source>Show YZT Registers</source>
            <translation>Show YZT Registers</translation>
        </message>
        <message>
            <source>Size</source>
            <translation>Size</translation>
        </message>
        <message>
            <source>Smaller Text</source>
            <translation>Smaller Text</translation>
        </message>
        <message>
            <source>Speed</source>
            <translation>Speed</translation>
        </message>
        <message>
            <source>Stack</source>
            <translation>Stack</translation>
        </message>
        <message>
            <source>Start</source>
            <translation>Start</translation>
        </message>
        <message>
            <source>Stefan-Boltzmann constant</source>
            <translation>Stefan-Boltzmann constant</translation>
        </message>
        <message>
            <source>Talvex Help</source>
            <translation>Talvex Help</translation>
        </message>
        <message>
            <source>Tell What a Key Does</source>
            <translation>Tell What a Key Does</translation>
        </message>
        <message>
            <source>Temperature</source>
            <translation>Temperature</translation>
        </message>
        <message>
            <source>The state could not be saved</source>
            <translation>The state could not be saved</translation>
        </message>
        <message>
            <source>Thermocouples</source>
            <translation>Thermocouples</translation>
        </message>
        <message>
            <source>Thin Space</source>
            <translation>Thin Space</translation>
        </message>
        <message>
            <source>Threes</source>
            <translation>Threes</translation>
        </message>
        <message>
            <source>Time</source>
            <translation>Time</translation>
        </message>
        <message>
            <source>Twos</source>
            <translation>Twos</translation>
        </message>
        <message>
            <source>UK long ton</source>
            <translation>UK long ton</translation>
        </message>
        <message>
            <source>US cup</source>
            <translation>US cup</translation>
        </message>
        <message>
            <source>US fluid ounce</source>
            <translation>US fluid ounce</translation>
        </message>
        <message>
            <source>US gallon</source>
            <translation>US gallon</translation>
        </message>
        <message>
            <source>US pint</source>
            <translation>US pint</translation>
        </message>
        <message>
            <source>US quart</source>
            <translation>US quart</translation>
        </message>
        <message>
            <source>US short ton</source>
            <translation>US short ton</translation>
        </message>
        <message>
            <source>US tablespoon</source>
            <translation>US tablespoon</translation>
        </message>
        <message>
            <source>US teaspoon</source>
            <translation>US teaspoon</translation>
        </message>
        <message>
            <source>Unit Conversions</source>
            <translation>Unit Conversions</translation>
        </message>
        <message>
            <source>Units</source>
            <translation>Units</translation>
        </message>
        <message>
            <source>Unlock Output from Input</source>
            <translation>Unlock Output from Input</translation>
        </message>
        <message>
            <source>View</source>
            <translation>View</translation>
        </message>
        <message>
            <source>Volume</source>
            <translation>Volume</translation>
        </message>
        <message>
            <source>X shifted left by one bit</source>
            <translation>X shifted left by one bit</translation>
        </message>
        <message>
            <source>X shifted right by one bit</source>
            <translation>X shifted right by one bit</translation>
        </message>
        <message>
            <source>X to the power Y</source>
            <translation>X to the power Y</translation>
        </message>
        <message>
            <source>XOR</source>
            <translation>XOR</translation>
        </message>
        <message>
            <source>Y shifted left by X bits</source>
            <translation>Y shifted left by X bits</translation>
        </message>
        <message>
            <source>Y shifted right by X bits</source>
            <translation>Y shifted right by X bits</translation>
        </message>
        <message>
            <source>Y_{0}(x)</source>
            <translation>Y_{0}(x)</translation>
        </message>
        <message>
            <source>Y_{1}(x)</source>
            <translation>Y_{1}(x)</translation>
        </message>
        <message>
            <source>Y_{x}(y)</source>
            <translation>Y_{x}(y)</translation>
        </message>
        <message>
            <source>a quarter of pi</source>
            <translation>a quarter of pi</translation>
        </message>
        <message>
            <source>absolute value</source>
            <translation>absolute value</translation>
        </message>
        <message>
            <source>acre</source>
            <translation>acre</translation>
        </message>
        <message>
            <source>add X to Y</source>
            <translation>add X to Y</translation>
        </message>
        <message>
            <source>add X to a register</source>
            <translation>add X to a register</translation>
        </message>
        <message>
            <source>all bits turned over</source>
            <translation>all bits turned over</translation>
        </message>
        <message>
            <source>angle mode</source>
            <translation>angle mode</translation>
        </message>
        <message>
            <source>approx</source>
            <translation>approx</translation>
        </message>
        <message>
            <source>astronomical unit</source>
            <translation>astronomical unit</translation>
        </message>
        <message>
            <source>atmosphere</source>
            <translation>atmosphere</translation>
        </message>
        <message>
            <source>atomic mass constant</source>
            <translation>atomic mass constant</translation>
        </message>
        <message>
            <source>atomic mass unit</source>
            <translation>atomic mass unit</translation>
        </message>
        <message>
            <source>atto, 10^{−18}</source>
            <translation>atto, 10^{−18}</translation>
        </message>
        <message>
            <source>backspace</source>
            <translation>backspace</translation>
        </message>
        <message>
            <source>bar</source>
            <translation>bar</translation>
        </message>
        <message>
            <source>barn</source>
            <translation>barn</translation>
        </message>
        <message>
            <source>barrel of oil</source>
            <translation>barrel of oil</translation>
        </message>
        <message>
            <source>base of the natural logarithm</source>
            <translation>base of the natural logarithm</translation>
        </message>
        <message>
            <source>binary, 32 bits</source>
            <translation>binary, 32 bits</translation>
        </message>
        <message>
            <source>bits not set in both X and Y</source>
            <translation>bits not set in both X and Y</translation>
        </message>
        <message>
            <source>bits set in X or Y</source>
            <translation>bits set in X or Y</translation>
        </message>
        <message>
            <source>bits set in both X and Y</source>
            <translation>bits set in both X and Y</translation>
        </message>
        <message>
            <source>bits set in one of X and Y</source>
            <translation>bits set in one of X and Y</translation>
        </message>
        <message>
            <source>calorie</source>
            <translation>calorie</translation>
        </message>
        <message>
            <source>cancel</source>
            <translation>cancel</translation>
        </message>
        <message>
            <source>carpentry, marks of a folding rule</source>
            <translation>carpentry, marks of a folding rule</translation>
        </message>
        <message>
            <source>centi, 10^{−2}</source>
            <translation>centi, 10^{−2}</translation>
        </message>
        <message>
            <source>centimetre</source>
            <translation>centimetre</translation>
        </message>
        <message>
            <source>change from Y to X in per cent</source>
            <translation>change from Y to X in per cent</translation>
        </message>
        <message>
            <source>change sign</source>
            <translation>change sign</translation>
        </message>
        <message>
            <source>clear X</source>
            <translation>clear X</translation>
        </message>
        <message>
            <source>clear all</source>
            <translation>clear all</translation>
        </message>
        <message>
            <source>clear all memory registers</source>
            <translation>clear all memory registers</translation>
        </message>
        <message>
            <source>clear the stack</source>
            <translation>clear the stack</translation>
        </message>
        <message>
            <source>clear the stack and all memory registers</source>
            <translation>clear the stack and all memory registers</translation>
        </message>
        <message>
            <source>close</source>
            <translation>close</translation>
        </message>
        <message>
            <source>combinations of Y things taken X at a time</source>
            <translation>combinations of Y things taken X at a time</translation>
        </message>
        <message>
            <source>complement of the error function</source>
            <translation>complement of the error function</translation>
        </message>
        <message>
            <source>conductance quantum</source>
            <translation>conductance quantum</translation>
        </message>
        <message>
            <source>cos</source>
            <translation>cos</translation>
        </message>
        <message>
            <source>cosecant</source>
            <translation>cosecant</translation>
        </message>
        <message>
            <source>cosine</source>
            <translation>cosine</translation>
        </message>
        <message>
            <source>cot</source>
            <translation>cot</translation>
        </message>
        <message>
            <source>cotangent</source>
            <translation>cotangent</translation>
        </message>
        <message>
            <source>csc</source>
            <translation>csc</translation>
        </message>
        <message>
            <source>cube root</source>
            <translation>cube root</translation>
        </message>
        <message>
            <source>cubic centimetre</source>
            <translation>cubic centimetre</translation>
        </message>
        <message>
            <source>cubic foot</source>
            <translation>cubic foot</translation>
        </message>
        <message>
            <source>cubic inch</source>
            <translation>cubic inch</translation>
        </message>
        <message>
            <source>cubic metre</source>
            <translation>cubic metre</translation>
        </message>
        <message>
            <source>cubic yard</source>
            <translation>cubic yard</translation>
        </message>
        <message>
            <source>day</source>
            <translation>day</translation>
        </message>
        <message>
            <source>decibel above a millivolt at 50 ohm</source>
            <translation>decibel above a millivolt at 50 ohm</translation>
        </message>
        <message>
            <source>decibel above a millivolt at 75 ohm</source>
            <translation>decibel above a millivolt at 75 ohm</translation>
        </message>
        <message>
            <source>decibel above a milliwatt</source>
            <translation>decibel above a milliwatt</translation>
        </message>
        <message>
            <source>decimal integers, 32 bits</source>
            <translation>decimal integers, 32 bits</translation>
        </message>
        <message>
            <source>decimal logarithm</source>
            <translation>decimal logarithm</translation>
        </message>
        <message>
            <source>decimal point</source>
            <translation>decimal point</translation>
        </message>
        <message>
            <source>degree</source>
            <translation>degree</translation>
        </message>
        <message>
            <source>degree Celsius</source>
            <translation>degree Celsius</translation>
        </message>
        <message>
            <source>degree Fahrenheit</source>
            <translation>degree Fahrenheit</translation>
        </message>
        <message>
            <source>degree Rankine</source>
            <translation>degree Rankine</translation>
        </message>
        <message>
            <source>degrees, 360 in a turn</source>
            <translation>degrees, 360 in a turn</translation>
        </message>
        <message>
            <source>degrees, minutes, seconds</source>
            <translation>degrees, minutes, seconds</translation>
        </message>
        <message>
            <source>divide Y by X</source>
            <translation>divide Y by X</translation>
        </message>
        <message>
            <source>divide a register by X</source>
            <translation>divide a register by X</translation>
        </message>
        <message>
            <source>double factorial</source>
            <translation>double factorial</translation>
        </message>
        <message>
            <source>dyne</source>
            <translation>dyne</translation>
        </message>
        <message>
            <source>e to the power X</source>
            <translation>e to the power X</translation>
        </message>
        <message>
            <source>e^x</source>
            <translation>e^x</translation>
        </message>
        <message>
            <source>electric constant</source>
            <translation>electric constant</translation>
        </message>
        <message>
            <source>electron g-factor</source>
            <translation>electron g-factor</translation>
        </message>
        <message>
            <source>electron gyromagnetic ratio</source>
            <translation>electron gyromagnetic ratio</translation>
        </message>
        <message>
            <source>electron mass</source>
            <translation>electron mass</translation>
        </message>
        <message>
            <source>electronvolt</source>
            <translation>electronvolt</translation>
        </message>
        <message>
            <source>elementary charge</source>
            <translation>elementary charge</translation>
        </message>
        <message>
            <source>engineering, exponents in steps of three</source>
            <translation>engineering, exponents in steps of three</translation>
        </message>
        <message>
            <source>enter</source>
            <translation>enter</translation>
        </message>
        <message>
            <source>enter exponent</source>
            <translation>enter exponent</translation>
        </message>
        <message>
            <source>entering exponent…</source>
            <translation>entering exponent…</translation>
        </message>
        <message>
            <source>entering significand…</source>
            <translation>entering significand…</translation>
        </message>
        <message>
            <source>erf</source>
            <translation>erf</translation>
        </message>
        <message>
            <source>erfc</source>
            <translation>erfc</translation>
        </message>
        <message>
            <source>erg</source>
            <translation>erg</translation>
        </message>
        <message>
            <source>erg per second</source>
            <translation>erg per second</translation>
        </message>
        <message>
            <source>error function</source>
            <translation>error function</translation>
        </message>
        <message>
            <source>exa, 10^{18}</source>
            <translation>exa, 10^{18}</translation>
        </message>
        <message>
            <source>exact</source>
            <translation>exact</translation>
        </message>
        <message>
            <source>exchange X and Y</source>
            <translation>exchange X and Y</translation>
        </message>
        <message>
            <source>exponent -3</source>
            <translation>exponent -3</translation>
        </message>
        <message>
            <source>exponent -6</source>
            <translation>exponent -6</translation>
        </message>
        <message>
            <source>exponent -9</source>
            <translation>exponent -9</translation>
        </message>
        <message>
            <source>exponent 3</source>
            <translation>exponent 3</translation>
        </message>
        <message>
            <source>exponent 6</source>
            <translation>exponent 6</translation>
        </message>
        <message>
            <source>exponent 9</source>
            <translation>exponent 9</translation>
        </message>
        <message>
            <source>factorial</source>
            <translation>factorial</translation>
        </message>
        <message>
            <source>factorial error</source>
            <translation>factorial error</translation>
        </message>
        <message>
            <source>femto, 10^{−15}</source>
            <translation>femto, 10^{−15}</translation>
        </message>
        <message>
            <source>fine-structure constant</source>
            <translation>fine-structure constant</translation>
        </message>
        <message>
            <source>fixed number of decimals</source>
            <translation>fixed number of decimals</translation>
        </message>
        <message>
            <source>foot</source>
            <translation>foot</translation>
        </message>
        <message>
            <source>foot per second</source>
            <translation>foot per second</translation>
        </message>
        <message>
            <source>foot per second squared</source>
            <translation>foot per second squared</translation>
        </message>
        <message>
            <source>frac</source>
            <translation>frac</translation>
        </message>
        <message>
            <source>fractional part</source>
            <translation>fractional part</translation>
        </message>
        <message>
            <source>fractions</source>
            <translation>fractions</translation>
        </message>
        <message>
            <source>gamma function</source>
            <translation>gamma function</translation>
        </message>
        <message>
            <source>geometric mean of X and Y</source>
            <translation>geometric mean of X and Y</translation>
        </message>
        <message>
            <source>giga, 10^9</source>
            <translation>giga, 10^9</translation>
        </message>
        <message>
            <source>golden ratio</source>
            <translation>golden ratio</translation>
        </message>
        <message>
            <source>grade in per cent</source>
            <translation>grade in per cent</translation>
        </message>
        <message>
            <source>gradian</source>
            <translation>gradian</translation>
        </message>
        <message>
            <source>grads, 400 in a turn</source>
            <translation>grads, 400 in a turn</translation>
        </message>
        <message>
            <source>grain</source>
            <translation>grain</translation>
        </message>
        <message>
            <source>gram</source>
            <translation>gram</translation>
        </message>
        <message>
            <source>gram per cubic centimetre</source>
            <translation>gram per cubic centimetre</translation>
        </message>
        <message>
            <source>gram per cubic metre</source>
            <translation>gram per cubic metre</translation>
        </message>
        <message>
            <source>gram per cubic millimetre</source>
            <translation>gram per cubic millimetre</translation>
        </message>
        <message>
            <source>gram per litre</source>
            <translation>gram per litre</translation>
        </message>
        <message>
            <source>gram per millilitre</source>
            <translation>gram per millilitre</translation>
        </message>
        <message>
            <source>half of pi</source>
            <translation>half of pi</translation>
        </message>
        <message>
            <source>hectare</source>
            <translation>hectare</translation>
        </message>
        <message>
            <source>hexadecimal, 32 bits</source>
            <translation>hexadecimal, 32 bits</translation>
        </message>
        <message>
            <source>horsepower</source>
            <translation>horsepower</translation>
        </message>
        <message>
            <source>hour</source>
            <translation>hour</translation>
        </message>
        <message>
            <source>hour of angle, 15 degrees</source>
            <translation>hour of angle, 15 degrees</translation>
        </message>
        <message>
            <source>hours, 24 in a turn</source>
            <translation>hours, 24 in a turn</translation>
        </message>
        <message>
            <source>hours, minutes, seconds</source>
            <translation>hours, minutes, seconds</translation>
        </message>
        <message>
            <source>hyperbolic error</source>
            <translation>hyperbolic error</translation>
        </message>
        <message>
            <source>hyperbolic form of the next function</source>
            <translation>hyperbolic form of the next function</translation>
        </message>
        <message>
            <source>hypotenuse of X and Y</source>
            <translation>hypotenuse of X and Y</translation>
        </message>
        <message>
            <source>impedance of vacuum</source>
            <translation>impedance of vacuum</translation>
        </message>
        <message>
            <source>inch</source>
            <translation>inch</translation>
        </message>
        <message>
            <source>inch of mercury</source>
            <translation>inch of mercury</translation>
        </message>
        <message>
            <source>indeterminate</source>
            <translation>indeterminate</translation>
        </message>
        <message>
            <source>inexact</source>
            <translation>inexact</translation>
        </message>
        <message>
            <source>input error</source>
            <translation>input error</translation>
        </message>
        <message>
            <source>input mode</source>
            <translation>input mode</translation>
        </message>
        <message>
            <source>int</source>
            <translation>int</translation>
        </message>
        <message>
            <source>integer part</source>
            <translation>integer part</translation>
        </message>
        <message>
            <source>integer quotient of Y by X</source>
            <translation>integer quotient of Y by X</translation>
        </message>
        <message>
            <source>integer remainder of Y by X</source>
            <translation>integer remainder of Y by X</translation>
        </message>
        <message>
            <source>inverse conductance quantum</source>
            <translation>inverse conductance quantum</translation>
        </message>
        <message>
            <source>inverse fine-structure constant</source>
            <translation>inverse fine-structure constant</translation>
        </message>
        <message>
            <source>inverse of the next function</source>
            <translation>inverse of the next function</translation>
        </message>
        <message>
            <source>irrational, multiples of π, √2, √3 and e</source>
            <translation>irrational, multiples of π, √2, √3 and e</translation>
        </message>
        <message>
            <source>joule</source>
            <translation>joule</translation>
        </message>
        <message>
            <source>kelvin</source>
            <translation>kelvin</translation>
        </message>
        <message>
            <source>kelvin, through the Boltzmann constant</source>
            <translation>kelvin, through the Boltzmann constant</translation>
        </message>
        <message>
            <source>kilo, 10^3</source>
            <translation>kilo, 10^3</translation>
        </message>
        <message>
            <source>kilogram</source>
            <translation>kilogram</translation>
        </message>
        <message>
            <source>kilogram per cubic centimetre</source>
            <translation>kilogram per cubic centimetre</translation>
        </message>
        <message>
            <source>kilogram per cubic metre</source>
            <translation>kilogram per cubic metre</translation>
        </message>
        <message>
            <source>kilogram per cubic millimetre</source>
            <translation>kilogram per cubic millimetre</translation>
        </message>
        <message>
            <source>kilogram per litre</source>
            <translation>kilogram per litre</translation>
        </message>
        <message>
            <source>kilogram per millilitre</source>
            <translation>kilogram per millilitre</translation>
        </message>
        <message>
            <source>kilogram-force</source>
            <translation>kilogram-force</translation>
        </message>
        <message>
            <source>kilometre</source>
            <translation>kilometre</translation>
        </message>
        <message>
            <source>kilometre per hour</source>
            <translation>kilometre per hour</translation>
        </message>
        <message>
            <source>kilowatt</source>
            <translation>kilowatt</translation>
        </message>
        <message>
            <source>kilowatt hour</source>
            <translation>kilowatt hour</translation>
        </message>
        <message>
            <source>knot</source>
            <translation>knot</translation>
        </message>
        <message>
            <source>last X</source>
            <translation>last X</translation>
        </message>
        <message>
            <source>light year</source>
            <translation>light year</translation>
        </message>
        <message>
            <source>litre</source>
            <translation>litre</translation>
        </message>
        <message>
            <source>ln</source>
            <translation>ln</translation>
        </message>
        <message>
            <source>ln Γ(x)</source>
            <translation>ln Γ(x)</translation>
        </message>
        <message>
            <source>log</source>
            <translation>log</translation>
        </message>
        <message>
            <source>log error</source>
            <translation>log error</translation>
        </message>
        <message>
            <source>log_{2}x</source>
            <translation>log_{2}x</translation>
        </message>
        <message>
            <source>log_{x}y</source>
            <translation>log_{x}y</translation>
        </message>
        <message>
            <source>logarithm of Y to the base X</source>
            <translation>logarithm of Y to the base X</translation>
        </message>
        <message>
            <source>logarithm of e to the base 10</source>
            <translation>logarithm of e to the base 10</translation>
        </message>
        <message>
            <source>logarithm of e to the base 2</source>
            <translation>logarithm of e to the base 2</translation>
        </message>
        <message>
            <source>logarithm to a base</source>
            <translation>logarithm to a base</translation>
        </message>
        <message>
            <source>logarithm to the base 2</source>
            <translation>logarithm to the base 2</translation>
        </message>
        <message>
            <source>luminosity of the Sun</source>
            <translation>luminosity of the Sun</translation>
        </message>
        <message>
            <source>magnetic constant</source>
            <translation>magnetic constant</translation>
        </message>
        <message>
            <source>magnetic flux quantum</source>
            <translation>magnetic flux quantum</translation>
        </message>
        <message>
            <source>mass of Jupiter</source>
            <translation>mass of Jupiter</translation>
        </message>
        <message>
            <source>mass of the Earth</source>
            <translation>mass of the Earth</translation>
        </message>
        <message>
            <source>mass of the Moon</source>
            <translation>mass of the Moon</translation>
        </message>
        <message>
            <source>mass of the Sun</source>
            <translation>mass of the Sun</translation>
        </message>
        <message>
            <source>mega, 10^6</source>
            <translation>mega, 10^6</translation>
        </message>
        <message>
            <source>megaelectronvolt</source>
            <translation>megaelectronvolt</translation>
        </message>
        <message>
            <source>megawatt</source>
            <translation>megawatt</translation>
        </message>
        <message>
            <source>memory register</source>
            <translation>memory register</translation>
        </message>
        <message>
            <source>memory ▸</source>
            <translation>memory ▸</translation>
        </message>
        <message>
            <source>menu</source>
            <translation>menu</translation>
        </message>
        <message>
            <source>metre</source>
            <translation>metre</translation>
        </message>
        <message>
            <source>metre per second</source>
            <translation>metre per second</translation>
        </message>
        <message>
            <source>metre per second squared</source>
            <translation>metre per second squared</translation>
        </message>
        <message>
            <source>micro, 10^{−6}</source>
            <translation>micro, 10^{−6}</translation>
        </message>
        <message>
            <source>microgram</source>
            <translation>microgram</translation>
        </message>
        <message>
            <source>micrometre</source>
            <translation>micrometre</translation>
        </message>
        <message>
            <source>microsecond</source>
            <translation>microsecond</translation>
        </message>
        <message>
            <source>microwatt</source>
            <translation>microwatt</translation>
        </message>
        <message>
            <source>mil, a thousandth of an inch</source>
            <translation>mil, a thousandth of an inch</translation>
        </message>
        <message>
            <source>mile</source>
            <translation>mile</translation>
        </message>
        <message>
            <source>mile per hour</source>
            <translation>mile per hour</translation>
        </message>
        <message>
            <source>milli, 10^{−3}</source>
            <translation>milli, 10^{−3}</translation>
        </message>
        <message>
            <source>millibar</source>
            <translation>millibar</translation>
        </message>
        <message>
            <source>millielectronvolt</source>
            <translation>millielectronvolt</translation>
        </message>
        <message>
            <source>milligram</source>
            <translation>milligram</translation>
        </message>
        <message>
            <source>millilitre</source>
            <translation>millilitre</translation>
        </message>
        <message>
            <source>millimetre</source>
            <translation>millimetre</translation>
        </message>
        <message>
            <source>millimetre of mercury</source>
            <translation>millimetre of mercury</translation>
        </message>
        <message>
            <source>milliradian</source>
            <translation>milliradian</translation>
        </message>
        <message>
            <source>millisecond</source>
            <translation>millisecond</translation>
        </message>
        <message>
            <source>milliwatt</source>
            <translation>milliwatt</translation>
        </message>
        <message>
            <source>minimise</source>
            <translation>minimise</translation>
        </message>
        <message>
            <source>minute</source>
            <translation>minute</translation>
        </message>
        <message>
            <source>minute of arc</source>
            <translation>minute of arc</translation>
        </message>
        <message>
            <source>minute of time as an angle</source>
            <translation>minute of time as an angle</translation>
        </message>
        <message>
            <source>molar gas constant</source>
            <translation>molar gas constant</translation>
        </message>
        <message>
            <source>money, X itself is rounded</source>
            <translation>money, X itself is rounded</translation>
        </message>
        <message>
            <source>multiply Y by X</source>
            <translation>multiply Y by X</translation>
        </message>
        <message>
            <source>multiply a register by X</source>
            <translation>multiply a register by X</translation>
        </message>
        <message>
            <source>n!</source>
            <translation>n!</translation>
        </message>
        <message>
            <source>n!!</source>
            <translation>n!!</translation>
        </message>
        <message>
            <source>nano, 10^{−9}</source>
            <translation>nano, 10^{−9}</translation>
        </message>
        <message>
            <source>nanometre</source>
            <translation>nanometre</translation>
        </message>
        <message>
            <source>nanosecond</source>
            <translation>nanosecond</translation>
        </message>
        <message>
            <source>natural logarithm</source>
            <translation>natural logarithm</translation>
        </message>
        <message>
            <source>natural logarithm of 10</source>
            <translation>natural logarithm of 10</translation>
        </message>
        <message>
            <source>natural logarithm of 2</source>
            <translation>natural logarithm of 2</translation>
        </message>
        <message>
            <source>natural logarithm of the gamma function</source>
            <translation>natural logarithm of the gamma function</translation>
        </message>
        <message>
            <source>nautical mile</source>
            <translation>nautical mile</translation>
        </message>
        <message>
            <source>nearby</source>
            <translation>nearby</translation>
        </message>
        <message>
            <source>negative overflow</source>
            <translation>negative overflow</translation>
        </message>
        <message>
            <source>negative underflow</source>
            <translation>negative underflow</translation>
        </message>
        <message>
            <source>neutron mass</source>
            <translation>neutron mass</translation>
        </message>
        <message>
            <source>newton</source>
            <translation>newton</translation>
        </message>
        <message>
            <source>octal, 32 bits</source>
            <translation>octal, 32 bits</translation>
        </message>
        <message>
            <source>one, no prefix</source>
            <translation>one, no prefix</translation>
        </message>
        <message>
            <source>open or close the drawer of constants</source>
            <translation>open or close the drawer of constants</translation>
        </message>
        <message>
            <source>open or close the drawer of memory registers</source>
            <translation>open or close the drawer of memory registers</translation>
        </message>
        <message>
            <source>open or close the drawer of more functions</source>
            <translation>open or close the drawer of more functions</translation>
        </message>
        <message>
            <source>open or close the drawer of unit conversions</source>
            <translation>open or close the drawer of unit conversions</translation>
        </message>
        <message>
            <source>ounce</source>
            <translation>ounce</translation>
        </message>
        <message>
            <source>ounce-force</source>
            <translation>ounce-force</translation>
        </message>
        <message>
            <source>output mode</source>
            <translation>output mode</translation>
        </message>
        <message>
            <source>output mode independent of the input mode</source>
            <translation>output mode independent of the input mode</translation>
        </message>
        <message>
            <source>overflow</source>
            <translation>overflow</translation>
        </message>
        <message>
            <source>pages of the help</source>
            <translation>pages of the help</translation>
        </message>
        <message>
            <source>parsec</source>
            <translation>parsec</translation>
        </message>
        <message>
            <source>pascal</source>
            <translation>pascal</translation>
        </message>
        <message>
            <source>paste: no answer</source>
            <translation>paste: no answer</translation>
        </message>
        <message>
            <source>period of so many gigahertz</source>
            <translation>period of so many gigahertz</translation>
        </message>
        <message>
            <source>period of so many hertz</source>
            <translation>period of so many hertz</translation>
        </message>
        <message>
            <source>period of so many kilohertz</source>
            <translation>period of so many kilohertz</translation>
        </message>
        <message>
            <source>period of so many megahertz</source>
            <translation>period of so many megahertz</translation>
        </message>
        <message>
            <source>period of so many terahertz</source>
            <translation>period of so many terahertz</translation>
        </message>
        <message>
            <source>peta, 10^{15}</source>
            <translation>peta, 10^{15}</translation>
        </message>
        <message>
            <source>photon by its wave number in a centimetre</source>
            <translation>photon by its wave number in a centimetre</translation>
        </message>
        <message>
            <source>photon by its wavelength in centimetres</source>
            <translation>photon by its wavelength in centimetres</translation>
        </message>
        <message>
            <source>photon by its wavelength in metres</source>
            <translation>photon by its wavelength in metres</translation>
        </message>
        <message>
            <source>photon by its wavelength in micrometres</source>
            <translation>photon by its wavelength in micrometres</translation>
        </message>
        <message>
            <source>photon by its wavelength in millimetres</source>
            <translation>photon by its wavelength in millimetres</translation>
        </message>
        <message>
            <source>photon by its wavelength in nanometres</source>
            <translation>photon by its wavelength in nanometres</translation>
        </message>
        <message>
            <source>photon of so many gigahertz</source>
            <translation>photon of so many gigahertz</translation>
        </message>
        <message>
            <source>photon of so many kilohertz</source>
            <translation>photon of so many kilohertz</translation>
        </message>
        <message>
            <source>photon of so many megahertz</source>
            <translation>photon of so many megahertz</translation>
        </message>
        <message>
            <source>photon of so many terahertz</source>
            <translation>photon of so many terahertz</translation>
        </message>
        <message>
            <source>pi</source>
            <translation>pi</translation>
        </message>
        <message>
            <source>pico, 10^{−12}</source>
            <translation>pico, 10^{−12}</translation>
        </message>
        <message>
            <source>picosecond</source>
            <translation>picosecond</translation>
        </message>
        <message>
            <source>pound</source>
            <translation>pound</translation>
        </message>
        <message>
            <source>pound-force</source>
            <translation>pound-force</translation>
        </message>
        <message>
            <source>pound-force per square inch</source>
            <translation>pound-force per square inch</translation>
        </message>
        <message>
            <source>power</source>
            <translation>power</translation>
        </message>
        <message>
            <source>power error</source>
            <translation>power error</translation>
        </message>
        <message>
            <source>proton mass</source>
            <translation>proton mass</translation>
        </message>
        <message>
            <source>radian</source>
            <translation>radian</translation>
        </message>
        <message>
            <source>radians, 2π in a turn</source>
            <translation>radians, 2π in a turn</translation>
        </message>
        <message>
            <source>random</source>
            <translation>random</translation>
        </message>
        <message>
            <source>random number from 0 to 1</source>
            <translation>random number from 0 to 1</translation>
        </message>
        <message>
            <source>recall a register, or read a converted unit</source>
            <translation>recall a register, or read a converted unit</translation>
        </message>
        <message>
            <source>reciprocal</source>
            <translation>reciprocal</translation>
        </message>
        <message>
            <source>reduced Planck constant</source>
            <translation>reduced Planck constant</translation>
        </message>
        <message>
            <source>remainder of Y by X, from 0 up to X</source>
            <translation>remainder of Y by X, from 0 up to X</translation>
        </message>
        <message>
            <source>revolution</source>
            <translation>revolution</translation>
        </message>
        <message>
            <source>revolutions</source>
            <translation>revolutions</translation>
        </message>
        <message>
            <source>rint</source>
            <translation>rint</translation>
        </message>
        <message>
            <source>roll the stack down</source>
            <translation>roll the stack down</translation>
        </message>
        <message>
            <source>roll the stack up</source>
            <translation>roll the stack up</translation>
        </message>
        <message>
            <source>round</source>
            <translation>round</translation>
        </message>
        <message>
            <source>round down</source>
            <translation>round down</translation>
        </message>
        <message>
            <source>round to an integer, halves to even</source>
            <translation>round to an integer, halves to even</translation>
        </message>
        <message>
            <source>round up</source>
            <translation>round up</translation>
        </message>
        <message>
            <source>round, halves away from zero</source>
            <translation>round, halves away from zero</translation>
        </message>
        <message>
            <source>round, halves to even</source>
            <translation>round, halves to even</translation>
        </message>
        <message>
            <source>scientific, with an exponent</source>
            <translation>scientific, with an exponent</translation>
        </message>
        <message>
            <source>sec</source>
            <translation>sec</translation>
        </message>
        <message>
            <source>secant</source>
            <translation>secant</translation>
        </message>
        <message>
            <source>second</source>
            <translation>second</translation>
        </message>
        <message>
            <source>second of arc</source>
            <translation>second of arc</translation>
        </message>
        <message>
            <source>second of time as an angle</source>
            <translation>second of time as an angle</translation>
        </message>
        <message>
            <source>shaku</source>
            <translation>shaku</translation>
        </message>
        <message>
            <source>show or hide the key pad</source>
            <translation>show or hide the key pad</translation>
        </message>
        <message>
            <source>show the registers Y, Z and T</source>
            <translation>show the registers Y, Z and T</translation>
        </message>
        <message>
            <source>show the status line</source>
            <translation>show the status line</translation>
        </message>
        <message>
            <source>sin</source>
            <translation>sin</translation>
        </message>
        <message>
            <source>sine</source>
            <translation>sine</translation>
        </message>
        <message>
            <source>slope, rise over run</source>
            <translation>slope, rise over run</translation>
        </message>
        <message>
            <source>speed of light</source>
            <translation>speed of light</translation>
        </message>
        <message>
            <source>speed of light in vacuum</source>
            <translation>speed of light in vacuum</translation>
        </message>
        <message>
            <source>sqrt error</source>
            <translation>sqrt error</translation>
        </message>
        <message>
            <source>square</source>
            <translation>square</translation>
        </message>
        <message>
            <source>square centimetre</source>
            <translation>square centimetre</translation>
        </message>
        <message>
            <source>square foot</source>
            <translation>square foot</translation>
        </message>
        <message>
            <source>square inch</source>
            <translation>square inch</translation>
        </message>
        <message>
            <source>square kilometre</source>
            <translation>square kilometre</translation>
        </message>
        <message>
            <source>square metre</source>
            <translation>square metre</translation>
        </message>
        <message>
            <source>square micrometre</source>
            <translation>square micrometre</translation>
        </message>
        <message>
            <source>square mile</source>
            <translation>square mile</translation>
        </message>
        <message>
            <source>square root</source>
            <translation>square root</translation>
        </message>
        <message>
            <source>square root of 2</source>
            <translation>square root of 2</translation>
        </message>
        <message>
            <source>standard gravity</source>
            <translation>standard gravity</translation>
        </message>
        <message>
            <source>store X in a register</source>
            <translation>store X in a register</translation>
        </message>
        <message>
            <source>subtract X from Y</source>
            <translation>subtract X from Y</translation>
        </message>
        <message>
            <source>subtract X from a register</source>
            <translation>subtract X from a register</translation>
        </message>
        <message>
            <source>take back STO and RCL</source>
            <translation>take back STO and RCL</translation>
        </message>
        <message>
            <source>tan</source>
            <translation>tan</translation>
        </message>
        <message>
            <source>tangent</source>
            <translation>tangent</translation>
        </message>
        <message>
            <source>tera, 10^{12}</source>
            <translation>tera, 10^{12}</translation>
        </message>
        <message>
            <source>tesla, through the Bohr magneton</source>
            <translation>tesla, through the Bohr magneton</translation>
        </message>
        <message>
            <source>there is no home folder</source>
            <translation>there is no home folder</translation>
        </message>
        <message>
            <source>thermocouple type B in millivolts</source>
            <translation>thermocouple type B in millivolts</translation>
        </message>
        <message>
            <source>thermocouple type E in millivolts</source>
            <translation>thermocouple type E in millivolts</translation>
        </message>
        <message>
            <source>thermocouple type J in millivolts</source>
            <translation>thermocouple type J in millivolts</translation>
        </message>
        <message>
            <source>thermocouple type K in millivolts</source>
            <translation>thermocouple type K in millivolts</translation>
        </message>
        <message>
            <source>thermocouple type N in millivolts</source>
            <translation>thermocouple type N in millivolts</translation>
        </message>
        <message>
            <source>thermocouple type R in millivolts</source>
            <translation>thermocouple type R in millivolts</translation>
        </message>
        <message>
            <source>thermocouple type S in millivolts</source>
            <translation>thermocouple type S in millivolts</translation>
        </message>
        <message>
            <source>thermocouple type T in millivolts</source>
            <translation>thermocouple type T in millivolts</translation>
        </message>
        <message>
            <source>ton-force</source>
            <translation>ton-force</translation>
        </message>
        <message>
            <source>torr</source>
            <translation>torr</translation>
        </message>
        <message>
            <source>trig error</source>
            <translation>trig error</translation>
        </message>
        <message>
            <source>undefined</source>
            <translation>undefined</translation>
        </message>
        <message>
            <source>underflow</source>
            <translation>underflow</translation>
        </message>
        <message>
            <source>watt</source>
            <translation>watt</translation>
        </message>
        <message>
            <source>week</source>
            <translation>week</translation>
        </message>
        <message>
            <source>x ≪ 1</source>
            <translation>x ≪ 1</translation>
        </message>
        <message>
            <source>x ≫ 1</source>
            <translation>x ≫ 1</translation>
        </message>
        <message>
            <source>x^2</source>
            <translation>x^2</translation>
        </message>
        <message>
            <source>x^y</source>
            <translation>x^y</translation>
        </message>
        <message>
            <source>x⇄y</source>
            <translation>x⇄y</translation>
        </message>
        <message>
            <source>y div x</source>
            <translation>y div x</translation>
        </message>
        <message>
            <source>y mod x</source>
            <translation>y mod x</translation>
        </message>
        <message>
            <source>y rem x</source>
            <translation>y rem x</translation>
        </message>
        <message>
            <source>y ≪ x</source>
            <translation>y ≪ x</translation>
        </message>
        <message>
            <source>y ≫ x</source>
            <translation>y ≫ x</translation>
        </message>
        <message>
            <source>yard</source>
            <translation>yard</translation>
        </message>
        <message>
            <source>|x|</source>
            <translation>|x|</translation>
        </message>
        <message>
            <source>×</source>
            <translation>×</translation>
        </message>
        <message>
            <source>ångström</source>
            <translation>ångström</translation>
        </message>
        <message>
            <source>÷</source>
            <translation>÷</translation>
        </message>
        <message>
            <source>Γ(x)</source>
            <translation>Γ(x)</translation>
        </message>
        <message>
            <source>Δ%</source>
            <translation>Δ%</translation>
        </message>
        <message>
            <source>ζ(x)</source>
            <translation>ζ(x)</translation>
        </message>
        <message>
            <source>π</source>
            <translation>π</translation>
        </message>
        <message>
            <source>−</source>
            <translation>−</translation>
        </message>
        <message>
            <source>√(x^2+y^2)</source>
            <translation>√(x^2+y^2)</translation>
        </message>
        <message>
            <source>√(x·y)</source>
            <translation>√(x·y)</translation>
        </message>
        <message>
            <source>√x</source>
            <translation>√x</translation>
        </message>
        <message>
            <source>∛x</source>
            <translation>∛x</translation>
        </message>
        <message>
            <source>⌈x⌉</source>
            <translation>⌈x⌉</translation>
        </message>
        <message>
            <source>⌊x⌋</source>
            <translation>⌊x⌋</translation>
        </message>
        <message>
            <source>⌫</source>
            <translation>⌫</translation>
        </message>
        <message>
            <source>▴ units</source>
            <translation>▴ units</translation>
        </message>
        <message>
            <source>▾ functions</source>
            <translation>▾ functions</translation>
        </message>
        <message>
            <source>◂ constants</source>
            <translation>◂ constants</translation>
        </message>
    </context>
</TS>
