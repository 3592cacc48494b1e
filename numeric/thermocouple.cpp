#include "numeric/thermocouple.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "numeric/thermocouple_tables.h"

namespace talvex {
namespace {

struct Piece {
    double high;
    const double* coefficients;
    int degree;
};

template <std::size_t Size>
constexpr Piece piece(const TemperatureRange& range, const std::array<double, Size>& coefficients) {
    return {.high = range[1],
            .coefficients = coefficients.data(),
            .degree = static_cast<int>(Size) - 1};
}

// Lowest piece first.
constexpr std::array kTypeT{piece(T1R, T1), piece(T2R, T2)};
constexpr std::array kTypeS{piece(S1R, S1), piece(S2R, S2), piece(S3R, S3)};
constexpr std::array kTypeR{piece(R1R, R1), piece(R2R, R2), piece(R3R, R3)};
constexpr std::array kTypeB{piece(B1R, B1), piece(B2R, B2)};
constexpr std::array kTypeN{piece(N1R, N1), piece(N2R, N2)};
constexpr std::array kTypeE{piece(E1R, E1), piece(E2R, E2)};
constexpr std::array kTypeK{piece(K1R, K1), piece(K2R, K2)};
constexpr std::array kTypeJ{piece(J1R, J1), piece(J2R, J2)};

// The last piece takes all that the others don't, also a NaN.
template <std::size_t Size>
const Piece& pieceAt(const std::array<Piece, Size>& pieces, double t) {
    std::size_t index = 0;
    while (index + 1 < Size && !(t <= pieces[index].high)) {
        ++index;
    }
    return pieces[index];
}

template <std::size_t Size>
double voltage(const std::array<Piece, Size>& pieces, double t) {
    const Piece& piece = pieceAt(pieces, t);
    return Poly(piece.coefficients, piece.degree, t);
}

template <std::size_t Size>
double slope(const std::array<Piece, Size>& pieces, double t) {
    const Piece& piece = pieceAt(pieces, t);
    return PolyDeriv(piece.coefficients, piece.degree, t);
}

constexpr double kStart = 0.0;
constexpr double kTolerance = 1e-9;

bool isInUpperPieceOfK(double t) { return !(t <= K1R[1]); }

}  // namespace

double Poly(const double* coefficients, int degree, double t) {
    double sum = coefficients[0];
    double power = t;
    for (int i = 1; i <= degree; ++i) {
        sum = sum + power * coefficients[i];
        power = power * t;
    }
    return sum;
}

double PolyDeriv(const double* coefficients, int degree, double t) {
    double sum = coefficients[1];
    double power = t;
    for (int i = 2; i <= degree; ++i) {
        sum = sum + i * coefficients[i] * power;
        power = power * t;
    }
    return sum;
}

// A NaN stays the same NaN through all further steps.
double Newton(double (*function)(double), double (*derivative)(double), double target, double start,
              double tolerance) {
    constexpr int kMostSteps = 1000;
    double x = start;
    for (int step = 0; step < kMostSteps; ++step) {
        const double next = x - (function(x) - target) / derivative(x);
        if (std::fabs(next - x) < tolerance || std::isnan(next)) {
            return next;
        }
        x = next;
    }
    return x;
}

double TCtomV(double t) { return voltage(kTypeT, t); }
double SCtomV(double t) { return voltage(kTypeS, t); }
double RCtomV(double t) { return voltage(kTypeR, t); }
double BCtomV(double t) { return voltage(kTypeB, t); }
double NCtomV(double t) { return voltage(kTypeN, t); }
double ECtomV(double t) { return voltage(kTypeE, t); }
double JCtomV(double t) { return voltage(kTypeJ, t); }

double KCtomV(double t) {
    const double polynomial = voltage(kTypeK, t);
    if (!isInUpperPieceOfK(t)) {
        return polynomial;
    }
    return polynomial + Ka0 * std::exp(Ka1 * ((t - Ka2) * (t - Ka2)));
}

double TCtomVderiv(double t) { return slope(kTypeT, t); }
double SCtomVderiv(double t) { return slope(kTypeS, t); }
double RCtomVderiv(double t) { return slope(kTypeR, t); }
double BCtomVderiv(double t) { return slope(kTypeB, t); }
double NCtomVderiv(double t) { return slope(kTypeN, t); }
double ECtomVderiv(double t) { return slope(kTypeE, t); }
double JCtomVderiv(double t) { return slope(kTypeJ, t); }

double KCtomVderiv(double t) {
    const double polynomial = slope(kTypeK, t);
    if (!isInUpperPieceOfK(t)) {
        return polynomial;
    }
    return polynomial + 2.0 * Ka0 * std::exp(Ka1 * ((t - Ka2) * (t - Ka2))) * Ka1 * (t - Ka2);
}

double TmVtoC(double mV) { return Newton(TCtomV, TCtomVderiv, mV, kStart, kTolerance); }
double SmVtoC(double mV) { return Newton(SCtomV, SCtomVderiv, mV, kStart, kTolerance); }
double RmVtoC(double mV) { return Newton(RCtomV, RCtomVderiv, mV, kStart, kTolerance); }
double BmVtoC(double mV) { return Newton(BCtomV, BCtomVderiv, mV, kStart, kTolerance); }
double NmVtoC(double mV) { return Newton(NCtomV, NCtomVderiv, mV, kStart, kTolerance); }
double EmVtoC(double mV) { return Newton(ECtomV, ECtomVderiv, mV, kStart, kTolerance); }
double KmVtoC(double mV) { return Newton(KCtomV, KCtomVderiv, mV, kStart, kTolerance); }
double JmVtoC(double mV) { return Newton(JCtomV, JCtomVderiv, mV, kStart, kTolerance); }

}  // namespace talvex
