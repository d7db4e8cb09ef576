// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "flight/windtriangle.h"

#include "page/units.h"

#include <cmath>
#include <optional>

namespace zel::wind {
namespace {

/// East and north components of a vector.
struct Vector {
    double east = 0;
    double north = 0;
};

Vector operator+(Vector a, Vector b) {
    return {a.east + b.east, a.north + b.north};
}
Vector operator-(Vector a, Vector b) {
    return {a.east - b.east, a.north - b.north};
}
Vector operator*(double k, Vector v) {
    return {k * v.east, k * v.north};
}
double dot(Vector a, Vector b) {
    return a.east * b.east + a.north * b.north;
}
double length(Vector v) {
    return std::hypot(v.east, v.north);
}

/// Whether either of two fillings filled in anything; both are made.
bool either(bool a, bool b) {
    return a || b;
}

/// A unit vector toward a direction.
Vector toward(double degrees) {
    const double r = units::radians(degrees);
    return {std::sin(r), std::cos(r)};
}

/// The direction a vector points to; nothing for no vector.
std::optional<double> bearing(Vector v) {
    if (length(v) < 1e-9) {
        return std::nullopt;
    }
    return direction(units::degrees(std::atan2(v.east, v.north)));
}

/// The quantities as the triangle reads them.
struct Triangle {
    Quantities& q;
    const Slots& s;

    std::optional<double> get(int slot) const {
        return slot < 0 ? std::nullopt : q[static_cast<std::size_t>(slot)];
    }
    bool has(int slot) const { return get(slot).has_value(); }
    double at(int slot) const { return *get(slot); }
    /// Fills in an unknown quantity; true when it did.
    bool put(int slot, std::optional<double> value) {
        if (slot < 0 || has(slot) || !value || !std::isfinite(*value)) {
            return false;
        }
        q[static_cast<std::size_t>(slot)] = value;
        return true;
    }

    std::optional<Vector> air() const {
        if (!has(s.tas) || !has(s.heading)) {
            return std::nullopt;
        }
        return at(s.tas) * toward(at(s.heading));
    }
    std::optional<Vector> ground() const {
        if (!has(s.groundSpeed) || !has(s.course)) {
            return std::nullopt;
        }
        return at(s.groundSpeed) * toward(at(s.course));
    }
    /// The wind as the vector it moves the air by: from its direction, so
    /// toward the opposite one. A calm needs no direction.
    std::optional<Vector> wind() const {
        if (!has(s.windSpeed) || (!has(s.windDirection) && at(s.windSpeed) != 0)) {
            return std::nullopt;
        }
        if (at(s.windSpeed) == 0) {
            return Vector{};
        }
        return -at(s.windSpeed) * toward(at(s.windDirection));
    }

    bool putAir(Vector a) { return either(put(s.tas, length(a)), put(s.heading, bearing(a))); }
    bool putGround(Vector g) {
        return either(put(s.groundSpeed, length(g)), put(s.course, bearing(g)));
    }
    bool putWind(Vector w) {
        // The wind blows from the direction opposite to where it moves the air.
        return either(put(s.windSpeed, length(w)), put(s.windDirection, bearing(-1 * w)));
    }
};

/// a u + b v = r for a and b; nothing when u and v are (nearly) parallel.
std::optional<std::pair<double, double>> split(Vector u, Vector v, Vector r) {
    const double det = u.east * v.north - u.north * v.east;
    if (std::fabs(det) < 1e-9) {
        return std::nullopt;
    }
    return std::pair{(r.east * v.north - r.north * v.east) / det,
                     (u.east * r.north - u.north * r.east) / det};
}

/// The ground speed along `course` at `tas` in `wind`: the larger root of
/// |g c - w| = tas, the one with the aircraft pointing along the course;
/// nothing when no heading makes headway along it.
std::optional<double> headway(Vector course, double tas, Vector wind) {
    const double along = dot(course, wind);
    const double discriminant = along * along - dot(wind, wind) + tas * tas;
    if (discriminant < 0) {
        return std::nullopt;
    }
    const double g = along + std::sqrt(discriminant);
    if (!(g > 1e-9)) {
        return std::nullopt;
    }
    return g;
}

} // namespace

double direction(double degrees) {
    const double d = std::fmod(degrees, 360);
    return d <= 0 ? d + 360 : d;
}

bool derive(Quantities& q, const Slots& slots) {
    Triangle t{q, slots};
    bool filled = false;
    const auto a = t.air();
    const auto g = t.ground();
    const auto w = t.wind();
    if (a && w) {
        filled = either(filled, t.putGround(*a + *w)); // a course from a heading: air plus wind
    } else if (g && w) {
        filled = either(filled, t.putAir(*g - *w));
    } else if (a && g) {
        filled = either(filled, t.putWind(*g - *a));
    } else if (w && t.has(slots.course) && t.has(slots.tas)) {
        // Heading into the wind so as to hold the course.
        const Vector c = toward(t.at(slots.course));
        if (const auto speed = headway(c, t.at(slots.tas), *w)) {
            filled = either(filled, t.put(slots.groundSpeed, *speed));
            filled = either(filled, t.put(slots.heading, bearing(*speed * c - *w)));
        }
    } else if (w && t.has(slots.heading) && t.has(slots.course)) {
        // TAS and ground speed along two known directions.
        if (const auto ab =
                split(toward(t.at(slots.heading)), -1 * toward(t.at(slots.course)), -1 * *w);
            ab && ab->first > 0 && ab->second > 0) {
            filled =
                either(t.put(slots.tas, ab->first), t.put(slots.groundSpeed, ab->second)) || filled;
        }
    } else if (a && t.has(slots.course) && t.has(slots.windDirection)) {
        // Ground speed and wind speed along the course and from the wind.
        if (const auto ab =
                split(toward(t.at(slots.course)), toward(t.at(slots.windDirection)), *a);
            ab && ab->first > 0 && ab->second >= 0) {
            filled =
                either(t.put(slots.groundSpeed, ab->first), t.put(slots.windSpeed, ab->second)) ||
                filled;
        }
    } else if (g && t.has(slots.heading) && t.has(slots.windDirection)) {
        if (const auto ab =
                split(toward(t.at(slots.heading)), -1 * toward(t.at(slots.windDirection)), *g);
            ab && ab->first > 0 && ab->second >= 0) {
            filled =
                either(t.put(slots.tas, ab->first), t.put(slots.windSpeed, ab->second)) || filled;
        }
    }
    if (t.has(slots.heading) && t.has(slots.course)) {
        // The drift, R or L up to 180°.
        const double drift = std::remainder(t.at(slots.course) - t.at(slots.heading), 360);
        filled = either(filled, t.put(slots.drift, drift == -180 ? 180 : drift));
    }
    if (t.has(slots.groundSpeed) && t.has(slots.tas)) {
        filled = either(filled, t.put(slots.component, t.at(slots.groundSpeed) - t.at(slots.tas)));
    }
    return filled;
}

std::optional<std::string_view> noHeading(const Quantities& q, const Slots& slots) {
    Quantities copy = q;
    const Triangle t{copy, slots};
    const auto w = t.wind();
    if (w && t.has(slots.course) && t.has(slots.tas) && !t.has(slots.heading) &&
        !headway(toward(t.at(slots.course)), t.at(slots.tas), *w)) {
        return "Wind stronger than TAS: no heading holds this course";
    }
    return std::nullopt;
}

} // namespace zel::wind
