// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "entry/coordinate.h"

#include "entry/text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace zel {
namespace {

// The marks a coordinate is written with, typed or typeset; '' for seconds
// where a keyboard has no ″ (looked for before the minute's ').
constexpr std::array<std::string_view, 3> DegreeMarks{"°", "º", "˚"};
constexpr std::array<std::string_view, 3> MinuteMarks{"'", "′", "’"};
constexpr std::array<std::string_view, 4> SecondMarks{"\"", "″", "''", "”"};
constexpr std::array<std::string_view, 2> Minus{"-", "−"};

constexpr std::string_view Ambiguous =
    "It can be read more than one way: mark the degrees and minutes (51°28′), "
    "or separate the latitude and longitude with a comma (51, 28).";
constexpr std::string_view AmbiguousComma =
    "Its commas can be read as decimal commas or as separators: separate the "
    "latitude and longitude with a space or a semicolon.";
constexpr std::string_view UnderSixty = "Minutes and seconds are under 60.";
constexpr std::string_view OnlyTwo = "A position is one latitude and one longitude.";

/// One piece of a coordinate's text.
struct Token {
    enum Kind { Number, Sign, Letter, Degrees, Minutes, Seconds, Separator };
    Kind kind = Number;
    double value = 0;    ///< a number's value; a sign's -1 or +1
    std::string figures; ///< a number's figures before its decimal point
    bool fraction = false;
    char letter = 0; ///< N, S, E or W
    bool blankBefore = false;
};

/// A reading in progress: the tokens, or why there are none.
struct Tokens {
    std::vector<Token> tokens;
    std::string problem;
};

bool takeMark(std::string_view text, std::size_t& at, std::span<const std::string_view> marks) {
    for (std::string_view mark : marks) {
        if (text.substr(at).starts_with(mark)) {
            at += mark.size();
            return true;
        }
    }
    return false;
}

bool betweenDigits(std::string_view text, std::size_t at) {
    return at > 0 && at + 1 < text.size() && isDigit(text[at - 1]) && isDigit(text[at + 1]);
}

Tokens tokenize(std::string_view text) {
    // A point between figures makes every comma a separator; without one, a
    // comma between figures is a decimal comma.
    bool decimalPoint = false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        decimalPoint = decimalPoint || (text[at] == '.' && betweenDigits(text, at));
    }
    Tokens out;
    bool blank = false;
    for (std::size_t at = 0; at < text.size();) {
        if (takeMark(text, at, std::array<std::string_view, 1>{" "}) ||
            takeMark(text, at, OtherBlanks)) {
            blank = true;
            continue;
        }
        Token token;
        token.blankBefore = blank;
        blank = false;
        const char c = text[at];
        if (isDigit(c)) {
            const std::size_t start = at;
            while (at < text.size() && isDigit(text[at])) {
                ++at;
            }
            token.figures = std::string(text.substr(start, at - start));
            std::string number = token.figures;
            const bool point = at < text.size() && text[at] == '.';
            const bool comma = at < text.size() && text[at] == ',' && !decimalPoint;
            if ((point || comma) && betweenDigits(text, at)) {
                token.fraction = true;
                number += '.';
                for (++at; at < text.size() && isDigit(text[at]); ++at) {
                    number += text[at];
                }
                if (comma && at < text.size() && text[at] == ',' && betweenDigits(text, at)) {
                    out.problem = AmbiguousComma; // 51,5,0,5
                    return out;
                }
            }
            const auto value = readRegional(number, Symbols{".", ","});
            if (!value || !std::isfinite(*value)) {
                out.problem = "Its figures are too many for a coordinate.";
                return out;
            }
            token.value = *value;
            token.kind = Token::Number;
        } else if (c == '+' || takeMark(text, at, Minus)) {
            at += c == '+' ? 1 : 0;
            token.kind = Token::Sign;
            token.value = c == '+' ? 1 : -1;
        } else if (isLetter(c)) {
            const bool alone = (at == 0 || !isLetter(text[at - 1])) &&
                               (at + 1 == text.size() || !isLetter(text[at + 1]));
            const char upper = upperCase(c);
            if (!alone || std::string_view("NSEW").find(upper) == std::string_view::npos) {
                out.problem = "Its letters are not N, S, E or W.";
                return out;
            }
            token.kind = Token::Letter;
            token.letter = upper;
            ++at;
        } else if (takeMark(text, at, DegreeMarks)) {
            token.kind = Token::Degrees;
        } else if (takeMark(text, at, SecondMarks)) {
            token.kind = Token::Seconds;
        } else if (takeMark(text, at, MinuteMarks)) {
            token.kind = Token::Minutes;
        } else if (c == ',' || c == ';' || c == '/') {
            token.kind = Token::Separator;
            ++at;
        } else {
            out.problem = "It holds a character no coordinate is written with.";
            return out;
        }
        out.tokens.push_back(std::move(token));
    }
    return out;
}

using Chunk = std::vector<Token>;

bool hasKind(const Chunk& chunk, Token::Kind kind) {
    return std::any_of(chunk.begin(), chunk.end(),
                       [kind](const Token& t) { return t.kind == kind; });
}

/// The numbers of a chunk without letters or marks, told apart where only one
/// reading fits: "51.4775 -0.4614" is two places, "51 28" could be either.
std::optional<std::vector<Chunk>> splitBareNumbers(const Chunk& chunk) {
    std::vector<Chunk> numbers;
    for (const Token& t : chunk) {
        if (numbers.empty() || numbers.back().back().kind == Token::Number) {
            numbers.emplace_back();
        }
        numbers.back().push_back(t);
    }
    if (numbers.size() == 1) {
        return numbers;
    }
    if (numbers.size() != 2) {
        return std::nullopt; // three figures: degrees, minutes and seconds, or what?
    }
    const Token& first = numbers[0].back();
    const Token& second = numbers[1].back();
    // Minutes never carry a sign, never follow degrees with decimals, and
    // are under 60: then the second is the longitude.
    const bool pair =
        numbers[1].front().kind == Token::Sign || first.fraction || second.value >= 60;
    if (!pair) {
        return std::nullopt;
    }
    return numbers;
}

/// Where marks tell the coordinates apart: each number marked as degrees, or
/// signed, starts one.
std::vector<Chunk> splitMarked(const Chunk& chunk) {
    std::vector<Chunk> out;
    for (std::size_t i = 0; i < chunk.size(); ++i) {
        const Token& t = chunk[i];
        const bool startsOne =
            t.kind == Token::Sign ||
            (t.kind == Token::Number && (i == 0 || chunk[i - 1].kind != Token::Sign) &&
             i + 1 < chunk.size() && chunk[i + 1].kind == Token::Degrees);
        if (out.empty() || (startsOne && hasKind(out.back(), Token::Number))) {
            out.emplace_back();
        }
        out.back().push_back(t);
    }
    return out;
}

/// A text between separators, cut where each coordinate begins: at its
/// letter (N51 28.65 W0 27.68), after it (5128N00028W), or by its marks.
std::optional<std::vector<Chunk>> splitCoordinates(const Chunk& chunk, std::string& problem) {
    std::vector<Chunk> out;
    if (hasKind(chunk, Token::Letter)) {
        const bool trailing = chunk.back().kind == Token::Letter;
        for (const Token& t : chunk) {
            if (out.empty() ||
                (!trailing && t.kind == Token::Letter && hasKind(out.back(), Token::Number))) {
                out.emplace_back();
            }
            out.back().push_back(t);
            if (trailing && t.kind == Token::Letter) {
                out.emplace_back();
            }
        }
        if (out.back().empty()) {
            out.pop_back();
        }
        return out;
    }
    if (hasKind(chunk, Token::Degrees) || hasKind(chunk, Token::Minutes) ||
        hasKind(chunk, Token::Seconds)) {
        return splitMarked(chunk);
    }
    auto bare = splitBareNumbers(chunk);
    if (!bare) {
        problem = Ambiguous;
    }
    return bare;
}

/// Figures run together as a flight plan or a GPS unit writes them: DDMM or
/// DDMMSS for a latitude, DDDMM or DDDMMSS for a longitude; decimals belong
/// to the last.
std::optional<double> packedDegrees(const Token& number, Axis axis, std::string& problem) {
    const int degreeFigures = axis == Axis::Longitude ? 3 : 2;
    const int wholeFigures = static_cast<int>(number.figures.size());
    const int parts = (wholeFigures - degreeFigures) / 2;
    if (wholeFigures - degreeFigures != parts * 2 || parts > 2) {
        problem = axis == Axis::Longitude
                      ? "A longitude's figures run together are DDDMM or DDDMMSS."
                      : "A latitude's figures run together are DDMM or DDMMSS.";
        return std::nullopt;
    }
    const std::string& f = number.figures;
    const auto part = [&f](std::size_t from, std::size_t count) {
        return std::stod(f.substr(from, count));
    };
    const double fraction = number.value - std::trunc(number.value);
    const auto degreeCount = static_cast<std::size_t>(degreeFigures);
    double minutes = part(degreeCount, 2) + (parts == 1 ? fraction : 0);
    double seconds = parts == 2 ? part(degreeCount + 2, 2) + fraction : 0;
    if (minutes >= 60 || seconds >= 60) {
        problem = UnderSixty;
        return std::nullopt;
    }
    return part(0, degreeCount) + minutes / 60 + seconds / 3600;
}

/// One coordinate: [letter] [sign] degrees [°] [minutes [′] [seconds [″]]] [letter].
std::optional<Coordinate> readOne(const Chunk& chunk, std::string& problem) {
    Coordinate c;
    double sign = 1;
    bool signed_ = false;
    std::vector<std::pair<Token, Token::Kind>> numbers; // each with its mark
    for (std::size_t i = 0; i < chunk.size(); ++i) {
        const Token& t = chunk[i];
        switch (t.kind) {
        case Token::Letter:
            if (c.axis != Axis::Either) {
                problem = OnlyTwo;
                return std::nullopt;
            }
            c.axis = t.letter == 'N' || t.letter == 'S' ? Axis::Latitude : Axis::Longitude;
            sign *= t.letter == 'S' || t.letter == 'W' ? -1 : 1;
            break;
        case Token::Sign:
            if (signed_ || !numbers.empty()) {
                problem = "Its signs stand where no coordinate has one.";
                return std::nullopt;
            }
            signed_ = true;
            sign *= t.value;
            break;
        case Token::Number:
            numbers.emplace_back(t, Token::Number);
            break;
        case Token::Degrees:
        case Token::Minutes:
        case Token::Seconds:
            if (numbers.empty() || numbers.back().second != Token::Number) {
                problem = "Its marks stand where no figures are.";
                return std::nullopt;
            }
            numbers.back().second = t.kind;
            break;
        case Token::Separator:
            break; // split off before
        }
    }
    if (signed_ && c.axis != Axis::Either) {
        problem = "A coordinate has a sign or a letter N, S, E or W, not both.";
        return std::nullopt;
    }
    if (numbers.empty()) {
        problem = "A letter or a sign has no figures.";
        return std::nullopt;
    }
    if (numbers.size() > 3) {
        problem = OnlyTwo;
        return std::nullopt;
    }
    const Token& first = numbers.front().first;
    // Four figures or more before the point are never degrees alone.
    if (numbers.size() == 1 && numbers.front().second == Token::Number && c.axis != Axis::Either &&
        first.figures.size() >= 4) {
        const auto packed = packedDegrees(first, c.axis, problem);
        if (!packed) {
            return std::nullopt;
        }
        c.degrees = sign * *packed;
        return c;
    }
    constexpr std::array<Token::Kind, 3> Marks{Token::Degrees, Token::Minutes, Token::Seconds};
    constexpr std::array<double, 3> PerDegree{1, 60, 3600};
    double degrees = 0;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const auto& [number, mark] = numbers[i];
        if (mark != Token::Number && mark != Marks.at(i)) {
            problem = "Its marks are out of order: degrees °, minutes ′, seconds ″.";
            return std::nullopt;
        }
        if (number.fraction && i + 1 < numbers.size()) {
            problem = "Only the last of degrees, minutes and seconds has decimals.";
            return std::nullopt;
        }
        if (i > 0 && number.value >= 60) {
            problem = UnderSixty;
            return std::nullopt;
        }
        degrees += number.value / PerDegree.at(i);
    }
    c.degrees = sign * degrees;
    return c;
}

CoordinateReading refused(std::string_view problem) {
    return {{}, std::string(problem), problem == Ambiguous || problem == AmbiguousComma};
}

} // namespace

CoordinateReading readCoordinates(std::string_view text) {
    Tokens tokens = tokenize(text);
    if (!tokens.problem.empty()) {
        return refused(tokens.problem);
    }
    if (tokens.tokens.empty()) {
        return refused("There is nothing to read.");
    }
    // Separators first, then what each part holds.
    std::vector<Chunk> parts(1);
    for (const Token& t : tokens.tokens) {
        if (t.kind == Token::Separator) {
            parts.emplace_back();
        } else {
            parts.back().push_back(t);
        }
    }
    std::vector<Chunk> chunks;
    for (const Chunk& part : parts) {
        if (part.empty()) {
            return refused("A comma, semicolon or slash has no coordinate on one side.");
        }
        std::string problem;
        const auto split = splitCoordinates(part, problem);
        if (!split) {
            return refused(problem);
        }
        chunks.insert(chunks.end(), split->begin(), split->end());
    }
    if (chunks.size() > 2) {
        return refused(OnlyTwo);
    }
    CoordinateReading read;
    for (const Chunk& chunk : chunks) {
        std::string problem;
        const auto one = readOne(chunk, problem);
        if (!one) {
            return refused(problem);
        }
        read.coordinates.push_back(*one);
    }
    auto& c = read.coordinates;
    if (c.size() == 2) {
        if (c[0].axis == c[1].axis && c[0].axis != Axis::Either) {
            return refused(c[0].axis == Axis::Latitude
                               ? "It holds two latitudes: a position is a latitude and a longitude."
                               : "It holds two longitudes: a position is a latitude and a "
                                 "longitude.");
        }
        // Latitude first, as a position is written; letters may say otherwise.
        if (c[0].axis == Axis::Longitude || c[1].axis == Axis::Latitude) {
            std::swap(c[0], c[1]);
        }
        c[0].axis = Axis::Latitude;
        c[1].axis = Axis::Longitude;
    }
    for (const Coordinate& one : c) {
        if (one.axis == Axis::Latitude && std::fabs(one.degrees) > 90) {
            return refused("A latitude is at most 90°.");
        }
        if (std::fabs(one.degrees) > 180) {
            return refused("A longitude is at most 180°.");
        }
    }
    return read;
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

namespace {

std::string hemisphere(double degrees, Axis axis, bool none) {
    if (none) {
        return "";
    }
    return axis == Axis::Longitude ? (degrees < 0 ? "W " : "E ") : (degrees < 0 ? "S " : "N ");
}

} // namespace

std::string degreesMinutes(double degrees, Axis axis, const Symbols& symbols) {
    const bool longitude = axis == Axis::Longitude;
    // Rounded to the hundredth of a minute first, so that 59.999′ is the
    // next degree and never 60.00′.
    const double hundredths = std::round(std::fabs(degrees) * 6000);
    const double whole = std::floor(hundredths / 6000);
    const double minutes = (hundredths - whole * 6000) / 100;
    return hemisphere(degrees, axis, hundredths == 0) +
           formatNumber(whole, longitude ? "000" : "00", symbols) + "°" +
           formatNumber(minutes, "00.00", symbols) + "′";
}

std::string degreesMinutesSeconds(double degrees, Axis axis, const Symbols& symbols,
                                  bool hundredths) {
    const bool longitude = axis == Axis::Longitude;
    // Rounded to the last figure shown first, then split, so that 59.999″
    // is the next minute and never 60.00″.
    const double per = hundredths ? 100 : 1;
    const double steps = std::round(std::fabs(degrees) * 3600 * per);
    const double whole = std::floor(steps / (3600 * per));
    const double minutes = std::floor((steps - whole * 3600 * per) / (60 * per));
    const double seconds = (steps - whole * 3600 * per - minutes * 60 * per) / per;
    return hemisphere(degrees, axis, steps == 0) +
           formatNumber(whole, longitude ? "000" : "00", symbols) + "°" +
           formatNumber(minutes, "00", symbols) + "′" +
           formatNumber(seconds, hundredths ? "00.00" : "00", symbols) + "″";
}

} // namespace zel
