// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "entry/coordinate.h"

#include "entry/text.h"

#include <array>
#include <cmath>
#include <span>

namespace zel {
namespace {

// The marks a coordinate is written with, typed or typeset; '' for seconds
// where a keyboard has no ″.
constexpr std::array<std::string_view, 3> DegreeMarks{"°", "º", "˚"};
constexpr std::array<std::string_view, 3> MinuteMarks{"'", "′", "’"};
constexpr std::array<std::string_view, 4> SecondMarks{"\"", "″", "''", "”"};
constexpr std::array<std::string_view, 1> Space{" "};

/// Reads the coordinates of one text, left to right.
class CoordinateReader {
  public:
    explicit CoordinateReader(std::string_view text) : m_text(text) {}

    std::optional<std::vector<Coordinate>> read() {
        std::vector<Coordinate> read;
        bool separated = false;
        skipBlanks();
        while (!atEnd() && read.size() < 2) {
            const auto one = coordinate();
            if (!one) {
                return std::nullopt;
            }
            read.push_back(*one);
            // Between the two: blanks, or a comma, semicolon or slash.
            skipBlanks();
            if (!atEnd() && read.size() == 1 && (peek() == ',' || peek() == ';' || peek() == '/')) {
                ++m_at;
                separated = true;
                skipBlanks();
                if (atEnd()) {
                    return std::nullopt;
                }
            }
        }
        if (!atEnd() || read.empty()) {
            return std::nullopt;
        }
        if (read.size() == 2) {
            // Latitude first, then longitude, as a position is written.
            if (read[0].axis == Axis::Longitude || read[1].axis == Axis::Latitude) {
                return std::nullopt;
            }
            // Two bare numbers side by side could as well be degrees and
            // minutes: a pair of them needs its comma.
            if (read[0].axis == Axis::Either && read[1].axis == Axis::Either && !separated) {
                return std::nullopt;
            }
            read[0].axis = Axis::Latitude;
            read[1].axis = Axis::Longitude;
        }
        for (const Coordinate& c : read) {
            const double limit = c.axis == Axis::Longitude ? 180 : 90;
            if (std::fabs(c.degrees) > (c.axis == Axis::Either ? 180 : limit)) {
                return std::nullopt;
            }
        }
        return read;
    }

  private:
    bool atEnd() const { return m_at >= m_text.size(); }
    char peek() const { return m_text[m_at]; }

    /// Whether one of the marks comes next (and is passed over).
    bool take(std::span<const std::string_view> marks) {
        for (std::string_view mark : marks) {
            if (m_text.substr(m_at).starts_with(mark)) {
                m_at += mark.size();
                return true;
            }
        }
        return false;
    }

    void skipBlanks() {
        while (take(Space) || take(OtherBlanks)) {
        }
    }

    /// The hemisphere's letter, when one comes next: its sign and axis.
    std::optional<Coordinate> hemisphere() {
        if (atEnd()) {
            return std::nullopt;
        }
        switch (upperCase(peek())) {
        case 'N':
            ++m_at;
            return Coordinate{1, Axis::Latitude};
        case 'S':
            ++m_at;
            return Coordinate{-1, Axis::Latitude};
        case 'E':
            ++m_at;
            return Coordinate{1, Axis::Longitude};
        case 'W':
            ++m_at;
            return Coordinate{-1, Axis::Longitude};
        default:
            return std::nullopt;
        }
    }

    /// Figures with at most one decimal point ("." or ","), and whether it had one.
    std::optional<std::pair<double, bool>> figures() {
        const std::size_t start = m_at;
        bool point = false;
        while (!atEnd() && (isDigit(peek()) || ((peek() == '.' || peek() == ',') && !point &&
                                                m_at + 1 < m_text.size() &&
                                                isDigit(m_text[m_at + 1]) && m_at > start))) {
            point = point || !isDigit(peek());
            ++m_at;
        }
        if (m_at == start || m_at - start > 20) {
            return std::nullopt;
        }
        std::string digits(m_text.substr(start, m_at - start));
        for (char& c : digits) {
            c = c == ',' ? '.' : c;
        }
        const auto value = readRegional(digits, Symbols{".", ","});
        if (!value) {
            return std::nullopt;
        }
        return std::pair{*value, point};
    }

    std::optional<Coordinate> coordinate() {
        auto letter = hemisphere();
        skipBlanks();
        double sign = 1;
        if (!letter && !atEnd() && (peek() == '-' || peek() == '+')) {
            sign = peek() == '-' ? -1 : 1;
            ++m_at;
        }
        const auto degrees = figures();
        if (!degrees) {
            return std::nullopt;
        }
        double value = degrees->first;
        take(DegreeMarks);
        bool whole = !degrees->second;
        // Minutes, then seconds, each only after a whole number of the unit
        // before it, each below 60.
        const auto part = [&](std::span<const std::string_view> marks, double per) -> bool {
            const std::size_t back = m_at;
            skipBlanks();
            if (!whole || atEnd() || !isDigit(peek())) {
                m_at = back;
                return true;
            }
            const auto amount = figures();
            if (!amount) {
                m_at = back;
                return true;
            }
            take(marks);
            if (amount->first >= 60) {
                return false;
            }
            value += amount->first / per;
            whole = !amount->second;
            return true;
        };
        const std::size_t beforeMinutes = m_at;
        if (!part(MinuteMarks, 60)) {
            return std::nullopt;
        }
        const bool minutes = m_at != beforeMinutes;
        if (minutes && !part(SecondMarks, 3600)) {
            return std::nullopt;
        }
        skipBlanks();
        if (!letter) {
            letter = hemisphere();
            if (letter && sign < 0) {
                return std::nullopt; // a sign and a letter: which one holds?
            }
        }
        if (!letter) {
            return Coordinate{sign * value, Axis::Either};
        }
        return Coordinate{letter->degrees * value, letter->axis};
    }

    std::string_view m_text;
    std::size_t m_at = 0;
};

} // namespace

std::optional<std::vector<Coordinate>> readCoordinates(std::string_view text) {
    return CoordinateReader(text).read();
}

bool writtenAsCoordinate(std::string_view text) {
    for (const auto marks : {std::span<const std::string_view>(DegreeMarks),
                             std::span<const std::string_view>(MinuteMarks),
                             std::span<const std::string_view>(SecondMarks)}) {
        for (std::string_view mark : marks) {
            if (text.find(mark) != std::string_view::npos) {
                return true;
            }
        }
    }
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool alone = (at == 0 || !isLetter(text[at - 1])) &&
                           (at + 1 == text.size() || !isLetter(text[at + 1]));
        if (alone && std::string_view("NSEW").find(upperCase(text[at])) != std::string_view::npos) {
            return true;
        }
    }
    return false;
}

std::string degreesMinutes(double degrees, Axis axis, const Symbols& symbols) {
    const bool longitude = axis == Axis::Longitude;
    // Rounded to the hundredth of a minute first, so that 59.999′ is the
    // next degree and never 60.00′.
    const double hundredths = std::round(std::fabs(degrees) * 6000);
    const double whole = std::floor(hundredths / 6000);
    const double minutes = (hundredths - whole * 6000) / 100;
    std::string letter;
    if (hundredths != 0) {
        letter = longitude ? (degrees < 0 ? "W " : "E ") : (degrees < 0 ? "S " : "N ");
    }
    return letter + formatNumber(whole, longitude ? "000" : "00", symbols) + "°" +
           formatNumber(minutes, "00.00", symbols) + "′";
}

} // namespace zel
