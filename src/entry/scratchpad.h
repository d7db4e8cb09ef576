// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "entry/fault.h"
#include "entry/numbertext.h"

#include <array>
#include <optional>
#include <string>

namespace zel {

/// The calculator's operator keys. The divide key has two faces: the upper
/// divides; the lower lights up like it but divides nothing.
enum class Operator { Equals, Add, Subtract, Multiply, Divide, DivideLower };
inline constexpr int OperatorCount = 6;

/// The memory keys: MRC recalls (or clears when already recalled), M+ and M-.
enum class MemoryKey { Recall, Add, Subtract };

/// The number being typed and the small four-function calculator beside the
/// rows: operand entry, chained operators with no precedence, and a memory.
/// The entry is both the calculator's operand and the value a row click takes.
class ScratchPad {
  public:
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
    /// The operation waiting for its right operand; Equals for none.
    Operator pendingOperator() const { return m_pendingOperator; }
    bool pending() const { return m_pendingOperator != Operator::Equals; }
    bool newOperand() const { return m_newOperand; }
    double memory() const { return m_memory; }
    bool operatorLit(Operator key) const { return m_operatorLit.at(static_cast<std::size_t>(key)); }
    bool memoryLit() const { return m_memoryLit; }

    /// Clears the entry (to "" on a text page such as the
    /// runway-state decoder), and the calculation too unless an operand is just
    /// beginning after an operator key.
    void reset(bool textPage);
    /// Shows the entry the way a pocket calculator does.
    void displayValue();
    /// Shows the entry again after the regional symbols were read afresh:
    /// a decimal symbol typed as `before`'s becomes today's.
    void redisplay(bool textPage, const Symbols& before);

    /// What a digit key did.
    enum class Typed { Digit, Full, Overflow };
    /// A digit key: taken, or refused because the display is full (the caller
    /// beeps) or the number would leave the double range (nothing changes).
    Typed typeDigit(int digit);
    /// The decimal key; false when the entry is a time typed with a colon.
    bool typeDecimal();
    /// The colon of a time typed as hours:minutes ("1:30"); false when the
    /// entry cannot take one (it has decimals, or a colon already).
    bool typeColon();
    /// A time typed with a colon, as hours and minutes ("1:75" is 1 and 75,
    /// for the row to refuse); nothing for any other entry. The entry's
    /// value is then the decimal hours (1:30 is 1.5).
    struct ClockTime {
        double hours = 0;
        double minutes = 0;
        bool negative = false;
    };
    std::optional<ClockTime> clockTime() const;
    void backspace();
    /// The entry becomes a row's value.
    void select(double value);
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

    /// An operator key: carries out the pending operation and makes this one
    /// pending. The fault, having changed nothing, when the pending operation
    /// divides by zero or leaves the double range.
    Faulted operate(Operator key);
    /// Forgets the pending operation (a row click ends an unfinished calculation).
    void dropPending() { m_pendingOperator = Operator::Equals; }
    /// A memory key. Each ends the number being typed: the next digit starts
    /// another, as after a result.
    Faulted memoryKey(MemoryKey key);

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
    Operator m_pendingOperator = Operator::Equals;
    bool m_newOperand = false;
    double m_memory = 0;
    std::array<bool, OperatorCount> m_operatorLit{};
    bool m_memoryLit = false;
};

} // namespace zel
