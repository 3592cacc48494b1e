#pragma once

// The eight thermocouple types of the ITS-90. Temperatures are in degrees Celsius, voltages in
// millivolts with the reference joint at 0 degrees. Source: NIST Monograph 175 and IEC 60584-1.
//
// Outside a type's range the outermost polynomial is carried on; there is no error. At a joint of
// two pieces the lower one counts.
namespace talvex {

double TCtomV(double t);
double SCtomV(double t);
double RCtomV(double t);
double BCtomV(double t);
double NCtomV(double t);
double ECtomV(double t);
double KCtomV(double t);
double JCtomV(double t);

// The derivatives, in millivolts per degree.
double TCtomVderiv(double t);
double SCtomVderiv(double t);
double RCtomVderiv(double t);
double BCtomVderiv(double t);
double NCtomVderiv(double t);
double ECtomVderiv(double t);
double KCtomVderiv(double t);
double JCtomVderiv(double t);

// The temperature at a voltage: the root that Newton's iteration finds from 0 degrees, to 1e-9
// degrees. It lies in the type's range over the whole of K, J and E and nearly the whole of T, up
// to about 1100 degrees for N, 1060 for S and 970 for R; elsewhere, and nearly everywhere for B, it
// may be a root of the polynomials outside their range, or no root at all.
double TmVtoC(double mV);
double SmVtoC(double mV);
double RmVtoC(double mV);
double BmVtoC(double mV);
double NmVtoC(double mV);
double EmVtoC(double mV);
double KmVtoC(double mV);
double JmVtoC(double mV);

// A polynomial of ascending powers and its derivative, summed with a running power.
double Poly(const double* coefficients, int degree, double t);
double PolyDeriv(const double* coefficients, int degree, double t);

// Newton's iteration for function(x) = target. Ends when a step is below the tolerance, or with
// the last x after 1000 steps. A NaN target comes back.
double Newton(double (*function)(double), double (*derivative)(double), double target, double start,
              double tolerance);

}  // namespace talvex
