// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "fakeplatform.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>

namespace zel::test {
namespace {

/// Drives the scratch pad: typed characters are typed; "=" is Enter,
/// "C" the clear key, "M" "P" "N" the memory keys MRC, M+ and M-, "D" the lower
/// face of the divide key, "<" Backspace; "a" "s" "m" "d" click the on-screen
/// add, subtract, multiply and divide keys (a click, unlike a typed operator,
/// does not first clear the entry).
void press(Calculator& calc, std::string_view keys) {
    const std::map<char, std::function<void(Menu&)>> clicks{
        {'=', [](Menu& m) { m.keyUp({.key = Key::Enter}); }},
        {'C', [](Menu& m) { m.clear(); }},
        {'M', [](Menu& m) { m.pressMemory(MemoryKey::Recall); }},
        {'P', [](Menu& m) { m.pressMemory(MemoryKey::Add); }},
        {'N', [](Menu& m) { m.pressMemory(MemoryKey::Subtract); }},
        {'D', [](Menu& m) { m.pressOperator(Operator::DivideLower); }},
        {'<', [](Menu& m) { m.keyDown({.key = Key::Backspace}); }},
        {'a', [](Menu& m) { m.pressOperator(Operator::Add); }},
        {'s', [](Menu& m) { m.pressOperator(Operator::Subtract); }},
        {'m', [](Menu& m) { m.pressOperator(Operator::Multiply); }},
        {'d', [](Menu& m) { m.pressOperator(Operator::Divide); }},
    };
    for (char k : keys) {
        const auto click = clicks.find(k);
        if (click != clicks.end()) {
            click->second(calc.menu);
        } else {
            calc.menu.type(static_cast<unsigned char>(k));
        }
    }
}

struct PadCase {
    const char* name;
    const Symbols& symbols;
    const char* keys;
    const char* display;
    int size;
};

TEST(ScratchPad, ShowsWhatAPocketCalculatorShows) {
    const PadCase cases[] = {
        {"a whole number has a trailing symbol", Dot, "1234", "1,234.", 18},
        {"regional form", Comma, "1234,5", "1.234,5", 18},
        {"either key types the regional symbol", Comma, "1.5", "1,5", 18},
        {"leading zeros vanish", Dot, "007", "7.", 18},
        {"typed trailing zeros stay", Dot, "12.50", "12.50", 18},
        {"long numbers get the small font", Dot, "1234567890", "1,234,567,890.", 10},
        {"backspace drops a dangling symbol", Dot, "1.5<", "1.", 18},
        {"backspace to nothing", Dot, "5<", "0.", 18},
        {"no precedence", Dot, "2+3x4=", "20.", 18},
        {"an operator key shows the running result", Dot, "5ms", "25.", 18},
        {"subtract", Dot, "9s4=", "5.", 18},
        {"a typed operator first clears the entry", Dot, "5x-", "-0.", 18},
        {"minus on an empty entry starts a negative", Dot, "-7", "-7.", 18},
        {"negative decimal", Dot, "-.5", "-0.5", 18},
        {"a minus typed before the digits stays", Dot, "-0.5", "-0.5", 18},
        {"on -0. too", Dot, "-0.", "-0.", 18},
        {"Backspace takes the sign with the last figure", Dot, "-0<", "0.", 18},
        {"M+ ends the number: 50 M+ 10 M+ MRC is 60", Dot, "50P10PM", "60.", 18},
        {"so does MRC", Dot, "4PM5", "5.", 18},
        {"divide", Dot, "7/2=", "3.5", 18},
        {"the lower divide face divides nothing", Dot, "7D2=", "2.", 18},
        {"clear after an operator keeps the calculation", Dot, "5+C3=", "8.", 18},
        {"clear twice forgets it", Dot, "5+CC3=", "3.", 18},
        {"MRC recalls an empty memory", Dot, "12M", "0.", 18},
        {"memory adds and recalls", Dot, "4PPCM", "8.", 18},
        {"Enter without an operation does nothing", Dot, "12=", "12.", 18},
    };
    for (const auto& c : cases) {
        Calculator calc(c.symbols, page::Weight);
        press(calc, c.keys);
        EXPECT_EQ(calc.menu.view().display, c.display) << c.name;
        EXPECT_EQ(calc.view().displayEmphasis, c.size) << c.name;
    }
}

TEST(ScratchPad, LimitsTheDecimalsThatFitTheDisplay) {
    Calculator calc(Dot, page::Weight);
    press(calc, "0.12345678901234");
    EXPECT_TRUE(calc.ui.events.empty());
    press(calc, "5");
    EXPECT_EQ(calc.lastEvent(), "beep");
    EXPECT_EQ(calc.menu.view().display, "0.12345678901234");
}

TEST(ScratchPad, OperatorAndMemoryHighlights) {
    Calculator calc(Dot, page::Weight);
    press(calc, "5/");
    EXPECT_TRUE(calc.view().operators[4].lit);
    EXPECT_TRUE(calc.view().operators[5].lit);
    press(calc, "2+");
    EXPECT_TRUE(calc.view().operators[1].lit);
    EXPECT_FALSE(calc.view().operators[4].lit);
    press(calc, "=P");
    EXPECT_FALSE(calc.view().operators[1].lit);
    EXPECT_TRUE(calc.menu.view().memory[0].lit);
    press(calc, "MM"); // the second press clears the memory
    EXPECT_EQ(calc.menu.scratchPad().memory(), 0);
    EXPECT_FALSE(calc.menu.view().memory[0].lit);
}

TEST(ScratchPad, DivisionByZeroIsReportedAndRecoverable) {
    Calculator calc(Dot, page::Weight);
    press(calc, "7/0=");
    EXPECT_EQ(calc.lastEvent(), "critical zelFLIGHTAB: Division by zero");
    press(calc, "2=");
    EXPECT_EQ(calc.menu.view().display, "3.5");
    EXPECT_EQ(calc.menu.scratchPad().inputText(), "3.5");
}

TEST(ScratchPad, OverflowIsReportedAndNothingInfiniteIsKept) {
    Calculator calc(Dot, page::Weight);
    press(calc, "9999999999mmmmmm"); // squares until past the double range
    EXPECT_EQ(calc.lastEvent(), "critical zelFLIGHTAB: Overflow");
    EXPECT_TRUE(std::isfinite(calc.menu.scratchPad().accumulator()));
    EXPECT_TRUE(std::isfinite(calc.menu.scratchPad().inputValue()));

    Calculator memory(Dot, page::Weight);
    press(memory, std::string(308, '9'));
    const double typed = memory.menu.scratchPad().inputValue();
    press(memory, "PP");
    EXPECT_EQ(memory.lastEvent(), "critical zelFLIGHTAB: Overflow");
    EXPECT_EQ(memory.menu.scratchPad().memory(), typed);

    Calculator digits(Dot, page::Weight);
    press(digits, std::string(320, '9'));
    EXPECT_EQ(digits.lastEvent(), "critical zelFLIGHTAB: Overflow");
    EXPECT_TRUE(std::isfinite(digits.menu.scratchPad().inputValue()));
}

TEST(ScratchPad, RowClickDropsThePendingOperation) {
    Calculator calc(Dot, page::Weight);
    press(calc, "5+3");
    calc.menu.clickRow(2);
    EXPECT_EQ(calc.tag(2), "3");
    EXPECT_EQ(calc.menu.scratchPad().pendingOperator(), Operator::Equals);
}

TEST(ScratchPad, FirstKeyAfterAnOperatorBlanksThePage) {
    Calculator calc(Dot, page::Weight);
    calc.enter(1, "2");
    press(calc, "5+");
    EXPECT_EQ(calc.caption(1), "2.00");
    press(calc, "1");
    EXPECT_EQ(calc.caption(1), "");
    EXPECT_EQ(calc.tag(1), "0");
}

} // namespace
} // namespace zel::test
