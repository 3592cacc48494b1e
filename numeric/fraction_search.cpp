// Let L be the limit, g(d) the error that the full search computes for the denominator d, and e the
// exact distance of a fraction from f. Why a few fractions are enough:
//
// 1. Computed errors keep the order of exact ones. On each side of f, n/d rounded to a double is
//    monotonic in n/d, and so is its rounded distance from f: a fraction that is nearer on the same
//    side never has a larger computed error. And a computed error is off by less than 2^-52, since
//    nothing here exceeds 1.
// 2. Let q- <= f <= q+ be the fractions nearest to f on both sides with denominators d-, d+ up to
// L.
//    They are neighbours in the Farey sequence: e(q-) + e(q+) = 1/(d- d+), and d- + d+ > L (or one
//    of them is f). So no g(d) is below M, the smaller of their two computed errors.
// 3. A fraction p/d with the computed error M is what the full search computes for d, that is p is
//    f times d rounded, unless {d-, d+} = {1, L}. If it weren't, f d would be half an integer from
//    p, to the 2^-37 by which the product is rounded, and e(p/d) be 1/(2d) or more, but for that.
//    As M is least, so would be e(q-) and e(q+), within 2^-52, hence 1/(d- d+) >= 1/d - 2^-36/d -
//    2^-50, and d- d+ <= d <= L (integers, d below 2^17). With d- + d+ >= L + 1 that gives
//    (d- - 1)(d+ - 1) <= 0: one of them is 1, the other L.
// 4. So but for that case M is the least g, and the answer is the smallest denominator of all
//    fractions with the computed error M. By 1 these are the fractions with denominators up to L in
//    an interval around f. The simplest fraction of an interval around f, the one with the smallest
//    denominator, is the first one in it on the way down the Stern-Brocot tree from 0/1 and 1/1 to
//    f. On that way denominators only grow; runs of steps to the same side approach f from one
//    side, so that by 1 the first fraction of a run with an error of M is found by bisection.
// 5. In the case left out, f lies between 0/1 and 1/L or between (L-1)/L and 1/1. The full search
//    then meets the fractions 0/1 and 1/d, or (d-1)/d and 1/1. Of 1/d and (d-1)/d the one with
//    d = L is nearest by at least 1/L^2, well above 2^-52; it wins if g(L) < g(1), and else, ties
//    included, the denominator 1 does.

#include "numeric/fraction_search.h"

#include <algorithm>
#include <cmath>

namespace talvex {
namespace {

// Numerators and denominators are integers below 2^17, exact as doubles.
struct Fraction {
    double numerator;
    double denominator;
};

double computedError(const Fraction& fraction, double f) {
    return std::fabs(fraction.numerator / fraction.denominator - f);
}

// f times the denominator less the numerator, rounded once: its sign is exact.
double excess(const Fraction& fraction, double f) {
    return std::fma(f, fraction.denominator, -fraction.numerator);
}

// The fractions start + times * step, times from 1 to length: one-sided steps towards f.
struct Run {
    Fraction start;
    Fraction step;
    double length;

    [[nodiscard]] Fraction at(double times) const {
        return {.numerator = start.numerator + times * step.numerator,
                .denominator = start.denominator + times * step.denominator};
    }
    [[nodiscard]] Fraction last() const { return at(length); }
};

// The way down the Stern-Brocot tree to f, between 0 and 1, as far as the limit of denominators or
// f itself.
class Descent {
  public:
    Descent(double f, double limit) : f_(f), limit_(limit) {}

    [[nodiscard]] bool isAtEnd() const {
        return lower_.denominator + upper_.denominator > limit_ || excess(lower_, f_) == 0.0 ||
               excess(upper_, f_) == 0.0;
    }
    // The next run, perhaps of no steps; alternately below f and above.
    Run next() {
        Fraction& start = isBelow_ ? lower_ : upper_;
        const Fraction& step = isBelow_ ? upper_ : lower_;
        Run run{.start = start, .step = step, .length = 0.0};
        run.length = lengthOf(run);
        start = run.last();
        isBelow_ = !isBelow_;
        return run;
    }
    [[nodiscard]] double leastError() const {
        return std::min(computedError(lower_, f_), computedError(upper_, f_));
    }

  private:
    // The quotient is off by less than one; the exact signs decide.
    [[nodiscard]] double lengthOf(const Run& run) const {
        const auto stays = [&](double times) {
            const double sum = excess(run.at(times), f_);
            return isBelow_ ? sum >= 0.0 : sum <= 0.0;
        };
        const double most = std::floor((limit_ - run.start.denominator) / run.step.denominator);
        double length = std::min(std::floor(-excess(run.start, f_) / excess(run.step, f_)), most);
        while (length > 0.0 && !stays(length)) {
            length -= 1.0;
        }
        while (length < most && stays(length + 1.0)) {
            length += 1.0;
        }
        return length;
    }

    double f_;
    double limit_;
    Fraction lower_{.numerator = 0.0, .denominator = 1.0};
    Fraction upper_{.numerator = 1.0, .denominator = 1.0};
    bool isBelow_ = true;
};

// The first fraction of the run with an error of at most `error`, as the last one has.
Fraction firstNear(const Run& run, double f, double error) {
    double far = 0.0;
    double near = run.length;
    while (near - far > 1.0) {
        const double middle = std::floor((near + far) / 2.0);
        (computedError(run.at(middle), f) <= error ? near : far) = middle;
    }
    return run.at(near);
}

// g of the proof.
double searchError(double f, double denominator) {
    return computedError(
        {.numerator = nearestNumerator(f, denominator), .denominator = denominator}, f);
}

// The case left out by the proof's third step.
bool isBesideWholeNumber(double f, double limit) {
    return excess({.numerator = 1.0, .denominator = limit}, f) < 0.0 ||
           excess({.numerator = limit - 1.0, .denominator = limit}, f) > 0.0;
}

double leastErrorOnTheWay(double f, double limit) {
    Descent descent(f, limit);
    while (!descent.isAtEnd()) {
        descent.next();
    }
    return descent.leastError();
}

}  // namespace

double nearestNumerator(double f, double d) { return std::rint(f * d); }

bool areClose(double left, double right) {
    return left == right || std::nextafter(left, right) == right;
}

std::uint32_t bestDenominator(double f, std::uint32_t limit) {
    if (isBesideWholeNumber(f, limit)) {
        return searchError(f, limit) < searchError(f, 1.0) ? limit : 1;
    }
    const double error = leastErrorOnTheWay(f, limit);
    Descent descent(f, limit);
    if (descent.leastError() == error) {
        return 1;
    }
    Run run = descent.next();
    while (run.length == 0.0 || computedError(run.last(), f) > error) {
        run = descent.next();
    }
    return static_cast<std::uint32_t>(firstNear(run, f, error).denominator);
}

}  // namespace talvex
