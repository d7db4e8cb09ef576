// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// The World Magnetic Model's field: the place turned from geodetic to
// geocentric spherical coordinates, Schmidt semi-normalised associated
// Legendre functions of the geocentric latitude, the potential's gradient
// summed to degree 12 with each coefficient moved on to the date by its
// yearly change, and the vector turned back to the geodetic north and down.
#include "navigation/magneticmodel.h"

#include "entry/numbertext.h"
#include "page/units.h"

#include <cmath>
#include <vector>

namespace zel::navigation {
namespace {

// The WGS84 ellipsoid, in km.
constexpr double SemiMajorAxis = 6378.137;
constexpr double Flattening = 1 / 298.257223563;
constexpr double EccentricitySquared = Flattening * (2 - Flattening);
/// The model's reference radius: the Earth's mean radius, km.
constexpr double ReferenceRadius = 6371.2;

/// The numbers of a line, read as C writes them; nothing at a word that is none.
std::optional<std::vector<double>> numbersOf(std::string_view line) {
    std::vector<double> numbers;
    std::size_t at = 0;
    while (at < line.size()) {
        const std::size_t start = line.find_first_not_of(" \t\r", at);
        if (start == std::string_view::npos) {
            break;
        }
        at = std::min(line.size(), line.find_first_of(" \t\r", start));
        const auto number = readRegional(line.substr(start, at - start), Symbols{".", ""});
        if (!number) {
            return std::nullopt;
        }
        numbers.push_back(*number);
    }
    return numbers;
}

} // namespace

std::optional<MagneticModel> MagneticModel::read(std::string_view text) {
    MagneticModel model;
    bool first = true;
    int count = 0;
    while (!text.empty()) {
        const std::size_t end = std::min(text.size(), text.find('\n'));
        const std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(text.size(), end + 1));
        if (line.starts_with("9999")) {
            break;
        }
        if (first) {
            // "    2025.0            WMM-2025        11/13/2024"
            const std::size_t start = line.find_first_not_of(' ');
            const auto epoch = numbersOf(line.substr(0, line.find(' ', start)));
            if (!epoch || epoch->size() != 1) {
                return std::nullopt;
            }
            model.m_epoch = epoch->front();
            first = false;
            continue;
        }
        const auto numbers = numbersOf(line);
        if (!numbers || numbers->empty()) {
            continue;
        }
        if (numbers->size() != 6) {
            return std::nullopt;
        }
        const auto& v = *numbers;
        const int n = static_cast<int>(v[0]);
        const int m = static_cast<int>(v[1]);
        if (v[0] != n || v[1] != m || n < 1 || n > Degree || m < 0 || m > n) {
            return std::nullopt;
        }
        const auto i = static_cast<std::size_t>(n);
        const auto j = static_cast<std::size_t>(m);
        model.m_g[i][j] = v[2];
        model.m_h[i][j] = v[3];
        model.m_gDot[i][j] = v[4];
        model.m_hDot[i][j] = v[5];
        ++count;
    }
    // Degrees 1 to 12, each with its orders 0 to n: 90 lines.
    if (first || count != Degree * (Degree + 3) / 2) {
        return std::nullopt;
    }
    return model;
}

MagneticField MagneticModel::field(double latitude, double longitude, double heightKm,
                                   double year) const {
    using units::radians, units::degrees;
    const double phi = radians(latitude);
    const double lambda = radians(longitude);
    // Geodetic to geocentric: the place's distance from the centre and its
    // latitude seen from there.
    const double curvature =
        SemiMajorAxis / std::sqrt(1 - EccentricitySquared * std::sin(phi) * std::sin(phi));
    const double p = (curvature + heightKm) * std::cos(phi);
    const double z = (curvature * (1 - EccentricitySquared) + heightKm) * std::sin(phi);
    const double r = std::hypot(p, z);
    const double centric = std::asin(z / r);
    const double x = std::sin(centric);
    // At a pole every meridian meets: the field is taken a hair's breadth
    // (well under a millimetre) along the meridian asked for.
    const double s = std::max(std::cos(centric), 1e-12);

    // Schmidt semi-normalised P(n, m) of sin(latitude) and their derivatives
    // by the latitude.
    Table legendre{};
    Table slope{};
    legendre[0][0] = 1;
    for (std::size_t n = 1; n <= Degree; ++n) {
        const double dn = static_cast<double>(n);
        for (std::size_t m = 0; m < n; ++m) {
            const double dm = static_cast<double>(m);
            const double below = n >= 2 ? legendre[n - 2][m] : 0;
            const double belowSlope = n >= 2 ? slope[n - 2][m] : 0;
            const double k = std::sqrt((dn - 1) * (dn - 1) - dm * dm);
            const double norm = std::sqrt(dn * dn - dm * dm);
            legendre[n][m] = ((2 * dn - 1) * x * legendre[n - 1][m] - k * below) / norm;
            slope[n][m] =
                ((2 * dn - 1) * (x * slope[n - 1][m] + s * legendre[n - 1][m]) - k * belowSlope) /
                norm;
        }
        const double diagonal = n == 1 ? 1 : std::sqrt((2 * dn - 1) / (2 * dn));
        legendre[n][n] = diagonal * s * legendre[n - 1][n - 1];
        slope[n][n] = diagonal * (s * slope[n - 1][n - 1] - x * legendre[n - 1][n - 1]);
    }

    const double t = year - m_epoch;
    struct Sum {
        double north = 0, east = 0, down = 0;
    };
    Sum now;
    Sum change;
    for (std::size_t n = 1; n <= Degree; ++n) {
        const double ratio = std::pow(ReferenceRadius / r, static_cast<double>(n) + 2);
        for (std::size_t m = 0; m <= n; ++m) {
            const double cm = std::cos(static_cast<double>(m) * lambda);
            const double sm = std::sin(static_cast<double>(m) * lambda);
            const auto add = [&](Sum& sum, double g, double h) {
                const double along = g * cm + h * sm;
                sum.north -= ratio * along * slope[n][m];
                sum.east += ratio * static_cast<double>(m) * (g * sm - h * cm) * legendre[n][m] / s;
                sum.down -= ratio * (static_cast<double>(n) + 1) * along * legendre[n][m];
            };
            add(now, m_g[n][m] + t * m_gDot[n][m], m_h[n][m] + t * m_hDot[n][m]);
            add(change, m_gDot[n][m], m_hDot[n][m]);
        }
    }
    // Back from the geocentric axes to the geodetic north and down.
    const double psi = centric - phi;
    const auto turned = [psi](const Sum& sum) {
        return Sum{sum.north * std::cos(psi) - sum.down * std::sin(psi), sum.east,
                   sum.north * std::sin(psi) + sum.down * std::cos(psi)};
    };
    const Sum f = turned(now);
    const Sum d = turned(change);
    MagneticField out;
    out.north = f.north;
    out.east = f.east;
    out.down = f.down;
    out.horizontal = std::hypot(f.north, f.east);
    out.declination = degrees(std::atan2(f.east, f.north));
    out.declinationPerYear =
        degrees((f.north * d.east - f.east * d.north) / (out.horizontal * out.horizontal));
    return out;
}

const MagneticModel& wmm2025() {
    static const MagneticModel model = *MagneticModel::read(wmm2025Coefficients());
    return model;
}

} // namespace zel::navigation
