// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string_view>

/// A property every input must keep; a breach stops the fuzzer with the input.
#define ZEL_CHECK(condition)                                                                       \
    do {                                                                                           \
        if (!(condition)) {                                                                        \
            std::fprintf(stderr, "%s:%d: %s\n", __FILE__, __LINE__, #condition);                   \
            std::abort();                                                                          \
        }                                                                                          \
    } while (false)

namespace zel::fuzz {

inline std::string_view text(const unsigned char* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

} // namespace zel::fuzz
