// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "entry/fault.h"
#include "entry/numbertext.h"

#include <array>
#include <string>

namespace zel {

/// The number being typed and the small four-function calculator beside the
/// rows: operand entry, chained operators with no precedence, and a memory.
/// The entry is both the calculator's operand and the value a row click takes.
class ScratchPad {
  public:
    /// Operator keys: 0 equals, 1 add, 2 subtract, 3 multiply, 4 divide. Key 5 is
    /// the lower face of the divide key: it lights up like 4 but divides nothing.
    static constexpr int Operators = 5;

    explicit ScratchPad(const Symbols& symbols) : m_symbols(symbols) {}

    const std::string& inputText() const { return m_inputText; }
    double inputValue() const { return m_inputValue; }
    /// Whether a digit was typed since the entry was last cleared or loaded from
    /// a row: a typed 0 is then a value, not an empty entry.
    bool typed() const { return m_typed; }
    const std::string& display() const { return m_display; }
    /// A long display (more than 11 characters) is drawn smaller.
    bool displayCompact() const { return m_displayCompact; }
    double accumulator() const { return m_accumulator; }
    int pendingOperator() const { return m_pendingOperator; }
    bool newOperand() const { return m_newOperand; }
    double memory() const { return m_memory; }
    bool operatorLit(int key) const { return m_operatorLit.at(static_cast<std::size_t>(key)); }
    bool memoryLit() const { return m_memoryLit; }

    /// `ResetScratchPad`: clears the entry (to "" on a text page such as the
    /// runway-state decoder), and the calculation too unless an operand is just
    /// beginning after an operator key.
    void reset(bool textPage);
    /// `DisplayValue`: shows the entry the way a pocket calculator does.
    void displayValue();
    /// Shows the entry again after the regional symbols were read afresh:
    /// a decimal symbol typed as `before`'s becomes today's.
    void redisplay(bool textPage, const Symbols& before);

    /// What a digit key did.
    enum class Typed { Digit, Full, Overflow };
    /// A digit key: taken, or refused because the display is full (the caller
    /// beeps) or the number would leave the double range (nothing changes).
    Typed typeDigit(int digit);
    void typeDecimal();
    void backspace();
    /// The entry becomes a stored row value, as text and number.
    void select(const std::string& text);
    /// The entry is a number the user did not type here (a row's value, a
    /// recalled memory, a result, an entry brought from another page): the
    /// next digit or decimal key starts a new number, as on every calculator.
    /// An operator, a row click or Backspace still works on it.
    void carry() { m_carried = true; }
    /// The entry is 0 again; a pending calculation stays.
    void clearEntry() {
        m_carried = true;
        startOver();
    }
    bool carried() const { return m_carried; }

    /// A character of a text entry (a runway report), at most `limit`
    /// characters. False when the entry is full (the caller beeps).
    bool typeText(char32_t c, std::size_t limit);
    void backspaceText();

    /// `LabOP_Click`. The fault, having changed nothing, when the pending
    /// operation divides by zero or leaves the double range.
    Faulted operate(int key);
    /// Forgets the pending operation (a row click ends an unfinished calculation).
    void dropPending() { m_pendingOperator = 0; }
    /// MRC (0: recall, or clear when already recalled), M+ (1), M- (2).
    Faulted memoryKey(int key);

  private:
    /// A carried number gives way to the first digit or decimal key.
    void startOver();

    const Symbols& m_symbols;
    std::string m_inputText = "0";
    double m_inputValue = 0;
    bool m_typed = false;
    std::string m_display;
    bool m_displayCompact = false;
    bool m_carried = false;
    double m_accumulator = 0;
    int m_pendingOperator = 0;
    bool m_newOperand = false;
    double m_memory = 0;
    std::array<bool, Operators + 1> m_operatorLit{};
    bool m_memoryLit = false;
};

} // namespace zel
