// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include <cmath>
#include <exception>

namespace zel {

/// An arithmetic result that cannot be stored: the calculation stops where it
/// arose, and the window reports it instead of keeping an infinite or NaN value.
class ArithmeticFault : public std::exception {
  public:
    enum class Kind { DivisionByZero, Overflow };
    explicit ArithmeticFault(Kind kind) : m_kind(kind) {}
    Kind kind() const { return m_kind; }
    const char* what() const noexcept override {
        return m_kind == Kind::DivisionByZero ? "Division by zero" : "Overflow";
    }

  private:
    Kind m_kind;
};

/// a / b, faulting on a zero divisor or a result outside the double range.
inline double divide(double a, double b) {
    if (b == 0) {
        throw ArithmeticFault(ArithmeticFault::Kind::DivisionByZero);
    }
    const double q = a / b;
    if (!std::isfinite(q)) {
        throw ArithmeticFault(ArithmeticFault::Kind::Overflow);
    }
    return q;
}

/// The value itself, faulting when it is not a finite number.
inline double finite(double value) {
    if (!std::isfinite(value)) {
        throw ArithmeticFault(ArithmeticFault::Kind::Overflow);
    }
    return value;
}

} // namespace zel
