// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include <array>
#include <optional>
#include <string_view>

/// The Earth's main magnetic field by a World Magnetic Model: Gauss
/// coefficients to degree 12 and their yearly change, for five years.
namespace zel::navigation {

/// The field at a place and time, and its yearly change, in nT and degrees.
struct MagneticField {
    double north = 0;       ///< X
    double east = 0;        ///< Y
    double down = 0;        ///< Z
    double horizontal = 0;  ///< H
    double declination = 0; ///< the variation: east of true north positive
    double declinationPerYear = 0;
};

class MagneticModel {
  public:
    static constexpr int Degree = 12;

    /// The model of a coefficient file (as NOAA publishes it: the epoch's
    /// line, then n m g h ġ ḣ per line, ending in lines of 9s); nothing for
    /// a text that is not one.
    static std::optional<MagneticModel> read(std::string_view text);

    double epoch() const { return m_epoch; }

    /// The field at geodetic latitude and longitude (degrees), height above
    /// the WGS84 ellipsoid (km) and decimal year.
    MagneticField field(double latitude, double longitude, double heightKm, double year) const;

  private:
    using Table = std::array<std::array<double, Degree + 1>, Degree + 1>;
    double m_epoch = 0;
    Table m_g{}, m_h{}, m_gDot{}, m_hDot{};
};

/// WMM2025's coefficient file as it ships, compiled in.
std::string_view wmm2025Coefficients();
/// WMM2025: 13 November 2024 to the end of 2029.
const MagneticModel& wmm2025();

} // namespace zel::navigation
