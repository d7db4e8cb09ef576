// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "entry/numbertext.h"
#include "fakeplatform.h"

#include <gtest/gtest.h>

#include <limits>

namespace zel::test {
namespace {

struct TextCase {
    const char* name;
    double value;
    const char* dot;
    const char* comma;
};

TEST(GeneralText, WritesFifteenDigitsAndExponentForms) {
    const TextCase cases[] = {
        {"zero", 0, "0", "0"},
        {"negative zero is plain zero", -0.0, "0", "0"},
        {"whole number", 1000, "1000", "1000"},
        {"no grouping, decimal symbol", 1234.5, "1234.5", "1234,5"},
        {"fifteen significant digits", 3.1415927410125732, "3.14159274101257", "3,14159274101257"},
        {"binary noise rounded away", 0.001 * 2205, "2.205", "2,205"},
        {"smallest plain", 0.0001, "0.0001", "0,0001"},
        {"first exponent below", 0.00001, "1E-05", "1E-05"},
        {"small with mantissa", 1.5e-7, "1.5E-07", "1,5E-07"},
        {"largest plain", 100000000000000, "100000000000000", "100000000000000"},
        {"first exponent above", 1e15, "1E+15", "1E+15"},
        {"large", 1e20, "1E+20", "1E+20"},
        {"rounded into exponent form", 123456789012345678.0, "1.23456789012346E+17",
         "1,23456789012346E+17"},
        {"three-digit exponent", -2.5e300, "-2.5E+300", "-2,5E+300"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(generalText(c.value, Dot), c.dot) << c.name;
        EXPECT_EQ(generalText(c.value, Comma), c.comma) << c.name;
    }
}

TEST(ExponentText, RoundsToTheDigitsThatFit) {
    const std::tuple<double, int, const char*> cases[] = {
        {220499999999997795.0, 15, "2,20499999999998E+17"},
        {220499999999997795.0, 4, "2,205E+17"},
        {1e26, 15, "1E+26"},
        {-1.5e-7, 3, "-1,5E-07"},
        {123, 1, "1E+02"},
        {5, 15, "5E+00"},
    };
    for (const auto& [value, digits, text] : cases) {
        EXPECT_EQ(exponentText(value, digits, Comma), text) << value;
    }
}

TEST(SingleText, WritesSevenDigits) {
    const std::pair<float, const char*> cases[] = {
        {101.980392f, "101.9804"}, {90.0f, "90"},       {1e7f, "1E+07"},
        {1234567.0f, "1234567"},   {0.0001f, "0.0001"}, {-999.0f, "-999"},
    };
    for (const auto& [value, text] : cases) {
        EXPECT_EQ(singleText(value, Dot), text) << value;
    }
}

struct PatternCase {
    const char* name;
    double value;
    const char* pattern;
    const char* dot;
    const char* comma;
};

TEST(FormatNumber, AppliesPatternsRegionally) {
    const PatternCase cases[] = {
        {"two decimals grouped", 1234567.891, "#,#0.00", "1,234,567.89", "1.234.567,89"},
        {"half away from zero", 0.125, "#,#0.00", "0.13", "0,13"},
        {"negative half away from zero", -0.125, "#,#0.00", "-0.13", "-0,13"},
        {"decimal value, not binary", 2.675, "0.00", "2.68", "2,68"},
        {"carry through nines", 999.995, "#,#0.00", "1,000.00", "1.000,00"},
        {"whole numbers", 2.5, "#,#0", "3", "3"},
        {"all digits keeps trailing symbol", 5, "#,#0.##############", "5.", "5,"},
        {"all digits", 35.27396584, "#,#0.##############", "35.27396584", "35,27396584"},
        {"digits past the fifteenth are zero", 123456789012345678.0, "#,##0",
         "123,456,789,012,346,000", "123.456.789.012.346.000"},
        {"three-digit direction", 90, "000", "090", "090"},
        {"two-digit minutes", 5, "00", "05", "05"},
        {"optional whole digits", 1000, "#,###", "1,000", "1.000"},
        {"nothing for zero", 0, "#,###", "", ""},
        {"tiny rounds to zero without sign", -0.0001, "0.00", "0.00", "0,00"},
        {"no leading digit", 0.5, "#.0", ".5", ",5"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(formatNumber(c.value, c.pattern, Dot), c.dot) << c.name;
        EXPECT_EQ(formatNumber(c.value, c.pattern, Comma), c.comma) << c.name;
    }
}

TEST(FormatNumber, GroupsWithMultiByteSymbols) {
    const Symbols swiss{".", "\xe2\x80\x99"}; // right single quotation mark
    EXPECT_EQ(formatNumber(1234567.5, "#,#0.00", swiss), "1\xe2\x80\x99"
                                                         "234\xe2\x80\x99"
                                                         "567.50");
    EXPECT_EQ(charCount("1\xe2\x80\x99"
                        "234"),
              5u);
    EXPECT_EQ(charCount("\xf0\x9f\x98\x80!"), 2u); // a four-byte character, then one
    EXPECT_EQ(charCount("\xf4\x8f\xbf\xbf"), 1u);  // the last code point
}

struct ReadCase {
    const char* name;
    const char* text;
    double dot;
    double comma;
};

TEST(ReadNumber, ReadsNumbersAndZeroForAnythingElse) {
    const ReadCase cases[] = {
        {"empty", "", 0, 0},
        {"letters", "abc", 0, 0},
        {"decimal", "12.5", 12.5, 125},
        {"regional decimal", "12,5", 12, 12.5},
        {"sign and exponent", "-1.5E+20", -1.5e20, -15e20},
        {"leading blanks", "  7", 7, 7},
        {"two slashes", "//", 0, 0},
        {"digit and slash", "2/", 0, 0},
        {"lone sign", "-", 0, 0},
        {"exponent without digits", "1E", 0, 0},
        {"beyond the double range", "1E+400", 0, 0},
        {"not a number word", "nan", 0, 0},
        {"infinity word", "inf", 0, 0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(readNumber(c.text, Dot), c.dot) << c.name;
        EXPECT_EQ(readNumber(c.text, Comma), c.comma) << c.name;
    }
}

TEST(ReadNumber, ReadsGroupedTextTheWayEachSystemDoes) {
    // Where "." is the decimal symbol the text is read from its start and stops
    // at the grouping symbol; elsewhere grouping is understood.
    EXPECT_EQ(readNumber("1,234.5", Dot), 1);
    EXPECT_EQ(readNumber("1.234,5", Comma), 1234.5);
    EXPECT_EQ(readRegional("1,234.5", Dot), 1234.5);
}

TEST(GeneralText, RoundTripsThroughReading) {
    const double values[] = {1.0 / 3, 2.0 / 3 * 1e-9, 6.02214076e23, -273.15, 1e-300, 1.7e308};
    for (double v : values) {
        for (const Symbols& s : {Dot, Comma}) {
            const std::string text = generalText(v, s);
            EXPECT_EQ(generalText(readRegional(text, s).value_or(0), s), text) << text;
            // A value kept to 15 digits is the number its text reads back as,
            // in either regional form.
            EXPECT_EQ(roundSignificant(v, 15), readRegional(text, s)) << text;
        }
    }
    EXPECT_EQ(roundSignificant(101.98039, 7), 101.9804);
    EXPECT_EQ(roundSignificant(-0.000123456789, 3), -0.000123);
    EXPECT_EQ(roundSignificant(0, 15), 0);
}

} // namespace
} // namespace zel::test

namespace zel {
namespace {

TEST(ReadFigure, GroupingOnlyBetweenGroupsOfThree) {
    using test::Dot;
    const Symbols german{",", "."};
    struct Case {
        const char* text;
        const Symbols& symbols;
        std::optional<double> value;
    } cases[] = {
        {"2.5", Dot, 2.5},
        {"2.5", german, std::nullopt}, // never 25
        {"2,5", german, 2.5},
        {"170,5", Dot, std::nullopt}, // never 1,705
        {"1,705.5", Dot, 1705.5},
        {"1.705,5", german, 1705.5},
        {"12,345,678", Dot, 12345678},
        {"-1,234", Dot, -1234},
        {" 1,234 ", Dot, 1234},
        {"1,2345", Dot, std::nullopt},
        {"1234,567", Dot, std::nullopt},
        {",123", Dot, std::nullopt},
        {"1,,234", Dot, std::nullopt},
        {"1,234e2", Dot, 123400},
        {"x", Dot, std::nullopt},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(readFigure(c.text, c.symbols), c.value) << c.text;
    }
}

} // namespace
} // namespace zel
