// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "entry/scratchpad.h"

#include "entry/fault.h"

#include <cmath>
#include <utility>

namespace zel {
namespace {

bool contains(std::string_view text, std::string_view part) {
    return !part.empty() && text.find(part) != std::string_view::npos;
}

bool containsE(std::string_view text) {
    return text.find_first_of("Ee") != std::string_view::npos;
}

void dropLastCharacter(std::string& text) {
    while (!text.empty()) {
        const auto byte = static_cast<unsigned char>(text.back());
        text.pop_back();
        if ((byte & 0xC0) != 0x80) {
            break;
        }
    }
}

} // namespace

void ScratchPad::reset(bool textPage) {
    m_display = textPage ? "" : "0" + m_symbols.decimal;
    m_inputValue = 0;
    m_inputText = textPage ? "" : "0";
    m_typed = false;
    m_carried = false;
    m_displayCompact = false;
    if (m_newOperand) {
        m_newOperand = false;
    } else {
        m_accumulator = 0;
        m_pendingOperator = Operator::Equals;
    }
}

void ScratchPad::displayValue() {
    if (const auto time = clockTime()) {
        // As typed: the hours grouped, the minutes' figures as they stand.
        const std::string minutes = m_inputText.substr(m_inputText.find(':') + 1);
        m_display = (time->negative ? "-" : "") + formatNumber(time->hours, "#,##0", m_symbols) +
                    ":" + minutes;
        m_displayCompact = charCount(m_display) > 11;
        return;
    }
    const std::string& dec = m_symbols.decimal;
    // A minus typed before the digits stays, on "-0." too.
    const bool negative = m_inputValue < 0 || m_inputText.starts_with('-');
    if (!contains(m_inputText, dec)) {
        m_display = (negative && m_inputValue == 0 ? "-" : "") +
                    formatNumber(m_inputValue, "#,##0", m_symbols) + dec;
    } else if (containsE(m_inputText)) {
        m_display = m_inputText;
    } else {
        const std::string sign = negative ? "-" : "";
        const double whole = std::trunc(std::fabs(m_inputValue));
        const std::string typedFraction = m_inputText.substr(m_inputText.find(dec) + dec.size());
        m_display = sign + formatNumber(whole, "#,##0", m_symbols) + dec + typedFraction;
    }
    m_displayCompact = charCount(m_display) > 11;
}

void ScratchPad::redisplay(bool textPage, const Symbols& before) {
    if (const auto at = m_inputText.find(before.decimal);
        !textPage && at != std::string::npos && before.decimal != m_symbols.decimal) {
        m_inputText.replace(at, before.decimal.size(), m_symbols.decimal);
    }
    if (textPage) {
        m_display = m_inputText;
    } else {
        displayValue();
    }
}

std::optional<ScratchPad::ClockTime> ScratchPad::clockTime() const {
    const auto colon = m_inputText.find(':');
    if (colon == std::string::npos) {
        return std::nullopt;
    }
    ClockTime time;
    time.negative = m_inputText.starts_with('-');
    const std::string hours =
        m_inputText.substr(time.negative ? 1 : 0, colon - (time.negative ? 1 : 0));
    const std::string minutes = m_inputText.substr(colon + 1);
    time.hours = hours.empty() ? 0 : std::stod(hours);
    time.minutes = minutes.empty() ? 0 : std::stod(minutes);
    return time;
}

bool ScratchPad::typeColon() {
    startOver();
    if (contains(m_inputText, m_symbols.decimal) || containsE(m_inputText) ||
        m_inputText.find(':') != std::string::npos || std::fabs(m_inputValue) >= 1e9) {
        return false;
    }
    m_inputText += ':';
    m_typed = true;
    displayValue();
    return true;
}

ScratchPad::Typed ScratchPad::typeDigit(int digit) {
    startOver();
    if (const auto colon = m_inputText.find(':'); colon != std::string::npos) {
        // At most two figures of minutes.
        if (m_inputText.size() - colon > 2) {
            return Typed::Full;
        }
        m_inputText += static_cast<char>('0' + digit);
        const ClockTime time = *clockTime();
        m_inputValue = (time.negative ? -1 : 1) * (time.hours + time.minutes / 60);
        m_typed = true;
        displayValue();
        return Typed::Digit;
    }
    const std::string& dec = m_symbols.decimal;
    // The display takes at most 13 characters after the decimal symbol.
    const auto at = m_display.find(dec);
    const std::size_t length = charCount(m_display);
    const std::size_t position =
        at == std::string::npos ? 0 : charCount(std::string_view(m_display).substr(0, at)) + 1;
    if (length - position >= 14) {
        return Typed::Full;
    }
    if (contains(m_inputText, dec)) {
        m_inputText += static_cast<char>('0' + digit);
        m_inputValue = readNumber(m_inputText, m_symbols);
    } else {
        // Whole digits accumulate arithmetically, keeping the sign shown.
        const bool negative = m_inputText.starts_with('-') || m_inputValue < 0;
        const double value = (negative ? -1 : 1) * (std::fabs(m_inputValue) * 10 + digit);
        if (!std::isfinite(value)) {
            return Typed::Overflow;
        }
        m_inputValue = value;
        m_inputText = (negative && value == 0 ? "-" : "") + generalText(m_inputValue, m_symbols);
    }
    m_typed = true;
    displayValue();
    return Typed::Digit;
}

void ScratchPad::startOver() {
    if (std::exchange(m_carried, false)) {
        m_inputText = "0";
        m_inputValue = 0;
        m_display = "0" + m_symbols.decimal;
    }
}

bool ScratchPad::typeDecimal() {
    startOver();
    if (m_inputText.find(':') != std::string::npos) {
        return false; // minutes are whole
    }
    if (!contains(m_inputText, m_symbols.decimal)) {
        m_inputText += m_symbols.decimal;
    }
    return true;
}

void ScratchPad::backspace() {
    m_carried = false; // the number is being edited now
    if (m_inputText.empty()) {
        return;
    }
    dropLastCharacter(m_inputText);
    if (m_inputText.ends_with(m_symbols.decimal)) {
        m_inputText.resize(m_inputText.size() - m_symbols.decimal.size());
    }
    if (const auto time = clockTime()) {
        m_inputValue = (time->negative ? -1 : 1) * (time->hours + time->minutes / 60);
        displayValue();
        return;
    }
    if (m_inputText.empty() || m_inputText == "-") {
        // The sign goes with the last figure; an entry erased to nothing is
        // nothing typed, not a typed zero.
        m_inputText = "0";
        m_typed = false;
    }
    m_inputValue = readNumber(m_inputText, m_symbols);
    displayValue();
}

void ScratchPad::select(double value) {
    m_typed = false;
    m_carried = true;
    m_inputText = generalText(value, m_symbols);
    m_inputValue = value;
    displayValue();
}

bool ScratchPad::typeText(char32_t c, std::size_t limit) {
    if (charCount(m_inputText) >= limit) {
        return false;
    }
    appendUtf8(m_inputText, c);
    m_display = m_inputText;
    m_displayCompact = charCount(m_display) > 11; // a long report in smaller type
    return true;
}

void ScratchPad::backspaceText() {
    if (!m_inputText.empty()) {
        dropLastCharacter(m_inputText);
        m_display = m_inputText;
        m_displayCompact = charCount(m_display) > 11;
    }
}

Faulted ScratchPad::operate(Operator key) {
    if (key == Operator::Subtract && m_inputValue == 0) {
        // Minus on an empty entry starts a negative number.
        m_display = "-0" + m_symbols.decimal;
        m_inputText = "-0";
        m_carried = false;
        return std::nullopt;
    }
    double result = m_inputValue;
    switch (m_pendingOperator) {
    case Operator::Add:
        result = m_accumulator + m_inputValue;
        break;
    case Operator::Subtract:
        result = m_accumulator - m_inputValue;
        break;
    case Operator::Multiply:
        result = m_accumulator * m_inputValue;
        break;
    case Operator::Divide:
        if (m_inputValue == 0) {
            return Fault::DivisionByZero;
        }
        result = m_accumulator / m_inputValue;
        break;
    case Operator::Equals:
    case Operator::DivideLower:
        break; // the lower face of the divide key divides nothing
    }
    if (!std::isfinite(result)) {
        return Fault::Overflow;
    }
    m_inputValue = result;
    m_newOperand = true;
    m_accumulator = result;
    m_pendingOperator = key;
    m_inputText = generalText(result, m_symbols);
    displayValue();
    m_operatorLit.fill(false);
    if (key == Operator::Equals) {
        m_newOperand = false;
        m_carried = true; // a result
    } else if (key == Operator::Divide || key == Operator::DivideLower) {
        // Both faces of the divide key light up together.
        m_operatorLit[static_cast<std::size_t>(Operator::Divide)] = true;
        m_operatorLit[static_cast<std::size_t>(Operator::DivideLower)] = true;
    } else {
        m_operatorLit.at(static_cast<std::size_t>(key)) = true;
    }
    return std::nullopt;
}

Faulted ScratchPad::memoryKey(MemoryKey key) {
    switch (key) {
    case MemoryKey::Recall:
        if (m_inputValue != m_memory) {
            m_inputValue = m_memory;
            m_inputText = generalText(m_memory, m_symbols);
        } else {
            m_memory = 0;
        }
        // A recalled number was not typed here: an empty memory recalls nothing
        // a row click could take, a full one a number like a result.
        m_typed = false;
        m_carried = true;
        displayValue();
        break;
    case MemoryKey::Add:
    case MemoryKey::Subtract: {
        const double sum =
            key == MemoryKey::Add ? m_memory + m_inputValue : m_memory - m_inputValue;
        if (!std::isfinite(sum)) {
            return Fault::Overflow;
        }
        m_memory = sum;
        m_carried = true; // the number is done with: the next digit starts another
        break;
    }
    }
    m_memoryLit = m_memory != 0;
    return std::nullopt;
}

} // namespace zel
